// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUIManager.h"

CHxUIManager::~CHxUIManager() = default;
