// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/ExplainedProgram.h"

namespace gesturewidget {
namespace {

int listener = -1;

} // namespace

void explainTo(int socket)
{
    listener = socket;
}

int explanationListener()
{
    return listener;
}

} // namespace gesturewidget
