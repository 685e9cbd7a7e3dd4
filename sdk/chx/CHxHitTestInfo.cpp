// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxHitTestInfo.h"

CHxHitTestInfo::~CHxHitTestInfo() = default;
