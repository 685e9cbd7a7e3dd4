#include "sdk/chx/CHxInputPointManager.h"

CHxInputPointManager::~CHxInputPointManager() = default;
