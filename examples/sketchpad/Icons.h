// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

// The program's own icons. They are drawn here, so that they look the same in every theme.
namespace icons {

// The icon of the action or window with this object name; null if it has none.
[[nodiscard]] QIcon named(const QString &name);

} // namespace icons
