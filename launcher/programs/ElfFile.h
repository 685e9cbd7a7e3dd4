// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// The data that the dynamic loader reads at the start of a program or library.
//
// Only files of this machine's byte order are read. Any other file, and a damaged one, is not valid
// here.
struct ElfFile
{
    [[nodiscard]] static ElfFile read(const QByteArray &path);

    bool isValid = false;
    // ELF class (1 for 32 bits, 2 for 64) and machine number. A program can use a library only when
    // both are equal.
    int bits = 0;
    int machine = 0;
    // Names of the libraries it needs, in its own order.
    QList<QByteArray> needed;
    // Folders to search, as written; they may contain "$ORIGIN".
    QList<QByteArray> rpath;
    QList<QByteArray> runpath;
};

} // namespace launcher
