// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUIMenuItemCollection.h"

CHxUIMenuItemCollection::~CHxUIMenuItemCollection() = default;
