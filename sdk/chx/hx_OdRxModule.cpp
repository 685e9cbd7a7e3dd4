// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "hx_OdRxModule.h"

hx_OdRxModule::~hx_OdRxModule() = default;
