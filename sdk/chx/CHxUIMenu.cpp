#include "CHxUIMenu.h"

CHxUIMenu::~CHxUIMenu() = default;
