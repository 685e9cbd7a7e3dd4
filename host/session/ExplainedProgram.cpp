// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/ExplainedProgram.h"

namespace gesturewidget {
namespace {

int whoAsked = -1;

} // namespace

void explainTo(int socket)
{
    whoAsked = socket;
}

int explanationListener()
{
    return whoAsked;
}

} // namespace gesturewidget
