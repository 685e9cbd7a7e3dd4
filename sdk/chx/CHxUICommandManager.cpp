#include "CHxUICommandManager.h"

CHxUICommandGroup::~CHxUICommandGroup() = default;

CHxUICommandManager::~CHxUICommandManager() = default;
