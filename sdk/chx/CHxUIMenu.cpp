#include "sdk/chx/CHxUIMenu.h"

CHxUIMenu::~CHxUIMenu() = default;
