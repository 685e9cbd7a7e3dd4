#include "sdk/chx/CHxUIMenuItem.h"

CHxUIMenuItem::~CHxUIMenuItem() = default;
