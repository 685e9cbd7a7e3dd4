// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxApplication.h"

CHxApplication::~CHxApplication() = default;
