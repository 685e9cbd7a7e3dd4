#include "sdk/chx/CHxUICommandManager.h"

CHxUICommandGroup::~CHxUICommandGroup() = default;

CHxUICommandManager::~CHxUICommandManager() = default;
