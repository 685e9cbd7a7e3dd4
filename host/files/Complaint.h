// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// Writes one line to standard error. It begins with the name that all lines of the host begin with.
void complain(const QString &line);

} // namespace gesturewidget
