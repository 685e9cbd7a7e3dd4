// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUICommandItem.h"

CHxUICommandItem::~CHxUICommandItem() = default;
