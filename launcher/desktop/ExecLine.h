// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// The command of a desktop entry, the value of its key "Exec" as the file has it: escaped like
// every value there, quoted in double quotes, with field codes such as "%F".
//
// If the command begins with "env", the program is the one that env starts.
struct ExecLine
{
    // A command is not valid if it cannot be read, has no program, or lets env split a text.
    [[nodiscard]] static ExecLine parse(const QByteArray &value);
    // Returns an argument in the form of such a value. Field codes in it are literal text.
    [[nodiscard]] static QByteArray encoded(const QByteArray &argument);
    // Returns any text in the form of a value of a desktop entry. A line end in it does not begin a
    // line of the file.
    [[nodiscard]] static QByteArray escaped(QByteArray text);
    // The other way round: the text of a value as the file has it.
    [[nodiscard]] static QByteArray unescaped(const QByteArray &value);

    // The last part of a program's path.
    [[nodiscard]] static QByteArray fileName(const QByteArray &program);

    // The value with `launcher`, a path, put before the program; everything else stays as it was,
    // to the byte. If the launcher is removed later, the command starts the program alone.
    [[nodiscard]] QByteArray startedBy(const QByteArray &launcher) const;
    // For a value from startedBy(), returns the program that the launcher starts.
    [[nodiscard]] QByteArray startedProgram() const;

    bool isValid = false;
    QByteArray program; // as a shell would see it
    QList<QByteArray> arguments; // also as a shell would see them, with their field codes
    // The place in the value at which the program begins.
    int place = 0;
    QByteArray value;
};

} // namespace launcher
