// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostExport.h"

// Sets where the hosts of this process report what they find in the program, for
// `mouse-gestures --explain`. The plug-in sets it before it starts its host. Not installed, because
// programs do not need it.
namespace gesturewidget {

// `socket`: see host/files/ExplanationChannel.h. The caller keeps the ownership. -1, the initial
// state, means that nobody listens. Affects hosts that start afterwards.
GESTUREWIDGET_HOST_EXPORT void explainTo(int socket);

[[nodiscard]] int explanationListener();

} // namespace gesturewidget
