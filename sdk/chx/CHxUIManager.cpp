#include "sdk/chx/CHxUIManager.h"

CHxUIManager::~CHxUIManager() = default;
