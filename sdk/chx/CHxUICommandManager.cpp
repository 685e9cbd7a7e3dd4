// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUICommandManager.h"

CHxUICommandGroup::~CHxUICommandGroup() = default;

CHxUICommandManager::~CHxUICommandManager() = default;
