#include "CHxInputPointManager.h"

CHxInputPointManager::~CHxInputPointManager() = default;
