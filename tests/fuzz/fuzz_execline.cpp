// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The command of a desktop entry.

#include "launcher/desktop/ExecLine.h"
#include "tests/fuzz/Fuzz.h"

using launcher::ExecLine;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray value = fuzz::bytes(data, size);
    const ExecLine line = ExecLine::parse(value);
    if (line.isValid) {
        fuzz::check(!line.program.isEmpty(), "a command has a program");
        const ExecLine started = ExecLine::parse(line.startedBy("/usr/bin/mouse-gestures"));
        fuzz::check(started.isValid, "a command can be started by the launcher");
        fuzz::check(started.startedProgram() == line.program, "the launcher starts its program");
    }
    // An argument comes back as it was. A command cannot hold a null.
    if (value.contains('\0') || value.isEmpty())
        return 0;
    const ExecLine quoted = ExecLine::parse("program " + ExecLine::encoded(value));
    fuzz::check(quoted.isValid && quoted.arguments.size() == 1, "an argument stays one");
    QByteArray expected = value;
    fuzz::check(quoted.arguments.first() == expected.replace('%', "%%"), "an argument stays the same");
    return 0;
}
