// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdRxObject.h"

OdRxObject::~OdRxObject() = default;
