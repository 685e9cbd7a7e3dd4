#include "CHxUIWorkspace.h"

CHxUIWorkspace::~CHxUIWorkspace() = default;
