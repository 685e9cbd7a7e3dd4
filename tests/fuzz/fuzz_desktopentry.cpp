// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A desktop entry of another program, and the entry that starts it with gestures.

#include "launcher/desktop/DesktopFile.h"
#include "tests/fuzz/Fuzz.h"

using namespace launcher;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray launcherPath("/usr/bin/mouse-gestures");
    const QString path = fuzz::file(QStringLiteral("drafting.desktop"), fuzz::bytes(data, size));
    DesktopFile entry;
    if (!entry.read(path))
        return 0;
    const ExecLine before = entry.exec();
    entry.startBy(launcherPath, [](const ExecLine &) { return true; });
    entry.setValue("X-MouseGestures", "true");
    fuzz::check(entry.isOurs(), "a value that was set is there");

    DesktopFile again;
    fuzz::check(again.read(fuzz::file(QStringLiteral("ours.desktop"), entry.content())),
                "our entry can be read");
    fuzz::check(again.isOurs(), "our entry is ours");
    if (before.isValid)
        fuzz::check(again.exec().startedProgram() == before.program, "it starts the same program");
    return 0;
}
