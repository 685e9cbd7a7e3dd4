#include "CHxApplication.h"

CHxApplication::~CHxApplication() = default;
