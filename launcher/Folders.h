// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace launcher {

// The folder itself, or the nearest one above it that exists. A folder that is not there yet shows up
// as a change of that one.
[[nodiscard]] QString nearestFolder(const QString &folder);

} // namespace launcher
