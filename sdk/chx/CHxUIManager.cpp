#include "CHxUIManager.h"

CHxUIManager::~CHxUIManager() = default;
