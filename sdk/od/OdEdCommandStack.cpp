// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdEdCommandStack.h"

namespace {
OdEdCommandStack *currentStack = nullptr;
}

OdEdCommandStack::~OdEdCommandStack() = default;

OdEdCommandStackPtr odedRegCmds()
{
    return OdEdCommandStackPtr(currentStack);
}

void odedSetCommandStack(OdEdCommandStack *stack)
{
    currentStack = stack;
}
