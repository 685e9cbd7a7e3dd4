// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUIMenuItem.h"

CHxUIMenuItem::~CHxUIMenuItem() = default;
