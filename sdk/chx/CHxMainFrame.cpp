// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxMainFrame.h"

CHxMainFrame::~CHxMainFrame() = default;
