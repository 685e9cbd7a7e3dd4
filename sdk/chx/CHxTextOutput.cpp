// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxTextOutput.h"

CHxTextOutput::~CHxTextOutput() = default;
