// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// The command of a desktop entry, the value of its key "Exec" as the file has it: escaped like
// every value there, quoted in double quotes, with field codes such as "%F".
//
// Where the command begins with "env", the program is the one that env starts.
struct ExecLine
{
    // A command is not valid if it cannot be read, has no program, or lets env split a text.
    [[nodiscard]] static ExecLine parse(const QByteArray &value);
    // An argument as such a value holds it. Field codes in it are meant literally.
    [[nodiscard]] static QByteArray encoded(const QByteArray &argument);
    // Any text as a value of a desktop entry holds it: a line end in it begins no line.
    [[nodiscard]] static QByteArray escaped(QByteArray text);

    // The value with `launcher`, a path, put before the program; everything else stays as it was,
    // to the byte. Where the launcher has been removed, the command starts the program alone.
    [[nodiscard]] QByteArray startedBy(const QByteArray &launcher) const;
    // Of a value that startedBy() gave: the program that the launcher starts.
    [[nodiscard]] QByteArray startedProgram() const;

    bool isValid = false;
    QByteArray program; // as a shell would see it
    QList<QByteArray> arguments; // likewise, with their field codes
    // Where the program begins in the value.
    int place = 0;
    QByteArray value;
};

} // namespace launcher
