// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxUICommandItemCollection.h"

CHxUICommandItemCollection::~CHxUICommandItemCollection() = default;
