// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace launcher {

// The name by which settings and profile of a program are found.
struct ProgramName
{
    // `typed` is the program as typed, `path` its file, and `folders` are those with profiles.
    [[nodiscard]] static ProgramName of(const QByteArray &typed, const QByteArray &path,
                                        const QStringList &folders);

    QString name;
    // True if a script starts the program. The program then does not know the name.
    bool isOfScript = false;
};

// Returns whether an executable file is a program or a script. On disks of other systems all files are
// executable.
[[nodiscard]] bool isProgram(const QByteArray &path);

} // namespace launcher
