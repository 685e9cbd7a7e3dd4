#include "CHxUIMenuItem.h"

CHxUIMenuItem::~CHxUIMenuItem() = default;
