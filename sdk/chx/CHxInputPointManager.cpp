// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxInputPointManager.h"

CHxInputPointManager::~CHxInputPointManager() = default;
