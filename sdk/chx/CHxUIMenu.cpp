// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUIMenu.h"

CHxUIMenu::~CHxUIMenu() = default;
