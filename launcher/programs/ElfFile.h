#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// What the dynamic loader would read in the head of a program or library.
//
// Reads only files of this machine's byte order; anything else, and anything damaged, is
// simply not an ELF file here.
struct ElfFile
{
    [[nodiscard]] static ElfFile read(const QByteArray &path);

    bool isValid = false;
    // ELF class (1 for 32 bits, 2 for 64) and machine number: a library serves a program
    // only when both are the same.
    int bits = 0;
    int machine = 0;
    // Names of the libraries it needs, in its own order.
    QList<QByteArray> needed;
    // Folders it wants searched, as written: may contain "$ORIGIN".
    QList<QByteArray> rpath;
    QList<QByteArray> runpath;
};

} // namespace launcher
