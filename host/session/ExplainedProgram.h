// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostExport.h"

// Where hosts of this process tell what they find in the program, for `mouse-gestures --explain`.
// Set by the plug-in before any host starts, so that it also serves a program that hosts
// gestures itself. Not installed: programs have no use for it.
namespace gesturewidget {

// `socket`: see host/files/ExplanationChannel.h; stays the caller's. -1, the initial state,
// means that nobody listens. Counts for hosts that start afterwards.
GESTUREWIDGET_HOST_EXPORT void explainTo(int socket);

[[nodiscard]] int explanationListener();

} // namespace gesturewidget
