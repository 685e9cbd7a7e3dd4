// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUIWorkspace.h"

CHxUIWorkspace::~CHxUIWorkspace() = default;
