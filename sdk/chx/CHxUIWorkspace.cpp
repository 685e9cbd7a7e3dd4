#include "sdk/chx/CHxUIWorkspace.h"

CHxUIWorkspace::~CHxUIWorkspace() = default;
