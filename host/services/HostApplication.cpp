#include "host/services/HostApplication.h"

namespace gesturewidget {

HostApplication::HostApplication() = default;
HostApplication::~HostApplication() = default;

} // namespace gesturewidget
