// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class GuestWindow;

// Lets the program die in one of several ways, named by `way`, once its menus have the module's
// entry. Returns false if there is no such way.
[[nodiscard]] bool crash(const QByteArray &way, GuestWindow &window);
