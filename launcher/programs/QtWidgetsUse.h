// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// Which Qt Widgets library a program is linked to.
enum class QtWidgetsUse {
    None, // an ELF program that needs neither
    Qt5, // libQt5Widgets.so.5
    Qt6, // libQt6Widgets.so.6
    Unknown, // not an ELF file but a script: nothing is known before it runs
};

// Looks through the libraries that the program needs, and those that they need in turn, where the
// dynamic loader would find them. `libraryPath` is LD_LIBRARY_PATH, `systemFolders` what
// systemLibraryFolders() gives.
[[nodiscard]] QtWidgetsUse qtWidgetsUse(const QByteArray &program, const QByteArray &libraryPath,
                                        const QList<QByteArray> &systemFolders);

// The folders that a loader configuration and the files that it includes name, in their order, and
// then the loader's default folders. Each file is read once. A file that cannot be read adds
// nothing.
[[nodiscard]] QList<QByteArray> systemLibraryFolders(const QByteArray &configuration);

} // namespace launcher
