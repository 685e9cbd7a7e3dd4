#include "host/HostApplication.h"

namespace host {

HostApplication::HostApplication() = default;
HostApplication::~HostApplication() = default;

} // namespace host
