#include "sdk/chx/CHxApplication.h"

CHxApplication::~CHxApplication() = default;
