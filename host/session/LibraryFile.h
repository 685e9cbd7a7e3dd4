// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// Checks a library file before the system's loader gets it. The loader refuses a file that is no
// library, but maps a file that is cut short, by a full disk for example, and then ends the
// process at the first missing page.
//
// Returns an empty text, or what is wrong with the file.
[[nodiscard]] QString problemOfLibraryFile(const QString &file);

} // namespace gesturewidget
