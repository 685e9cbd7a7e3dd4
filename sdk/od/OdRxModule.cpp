// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdRxModule.h"

OdRxModule::~OdRxModule() = default;
