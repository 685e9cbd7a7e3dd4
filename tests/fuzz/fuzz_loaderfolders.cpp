// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The loader's configuration. A "~" of the input becomes the folder of the files, so that files can
// include each other.

#include "launcher/programs/QtWidgetsUse.h"
#include "tests/fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = fuzz::bytes(data, size).replace('~', fuzz::folder().toLocal8Bit() + '/');
    static_cast<void>(fuzz::file(QStringLiteral("b.conf"), text.mid(text.size() / 2)));
    const QString first = fuzz::file(QStringLiteral("a.conf"), text);
    const auto folders = launcher::systemLibraryFolders(first.toLocal8Bit());
    fuzz::check(!folders.isEmpty(), "the default folders are always there");
    return 0;
}
