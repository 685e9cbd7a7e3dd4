// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace launcher {

// Finds a program by the rules of execvp().
struct ProgramLookup
{
    enum class Result { Found, Missing, NotExecutable, IsFolder };

    // `name` as typed. With a slash it is a path. Without one it is searched for in `searchPath`, a
    // list of folders separated by colons; an empty entry is the current folder.
    [[nodiscard]] static ProgramLookup find(const QByteArray &name, const QByteArray &searchPath);

    Result result = Result::Missing;
    // The path to run; for NotExecutable and IsFolder the first path with that result.
    QByteArray path;
};

} // namespace launcher
