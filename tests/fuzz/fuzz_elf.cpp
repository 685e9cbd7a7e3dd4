// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A program or library, and the loader's list of folders.

#include "launcher/programs/ElfFile.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "tests/fuzz/Fuzz.h"

using namespace launcher;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray path = fuzz::file(QStringLiteral("program"), fuzz::bytes(data, size)).toLocal8Bit();
    const ElfFile elf = ElfFile::read(path);
    if (!elf.isValid)
        fuzz::check(elf.needed.isEmpty(), "a file that is not valid needs nothing");
    else
        fuzz::check(elf.bits == 1 || elf.bits == 2, "a valid file has a class");
    static_cast<void>(qtWidgetsUse(path, {}, {"/lib", "/usr/lib"}));
    return 0;
}
