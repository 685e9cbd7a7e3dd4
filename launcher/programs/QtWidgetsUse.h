#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// Which Qt Widgets library a program is linked to.
enum class QtWidgetsUse {
    None, // an ELF program that needs neither
    Qt5, // libQt5Widgets.so.5
    Qt6, // libQt6Widgets.so.6
    Unknown, // not an ELF file: a script, about which nothing can be said before it runs
};

// Looks through the libraries that the program needs, and those that they need, as the
// dynamic loader would find them. `libraryPath` is LD_LIBRARY_PATH, `systemFolders` what
// systemLibraryFolders() gives.
[[nodiscard]] QtWidgetsUse qtWidgetsUse(const QByteArray &program, const QByteArray &libraryPath,
                                        const QList<QByteArray> &systemFolders);

// The folders that a loader configuration names, in its order and with its "include"
// lines followed, and after them the loader's own default folders. A file that cannot be
// read adds nothing.
[[nodiscard]] QList<QByteArray> systemLibraryFolders(const QByteArray &configuration);

} // namespace launcher
