#pragma once

#include <QByteArray>

namespace launcher {

// Where a program is, by the rules of execvp().
struct ProgramLookup
{
    enum class Result { Found, Missing, NotExecutable, IsFolder };

    // `name` as typed: with a slash it is a path, without one it is looked for in
    // `searchPath`, a list of folders separated by colons in which an empty entry is the
    // current folder.
    [[nodiscard]] static ProgramLookup find(const QByteArray &name, const QByteArray &searchPath);

    Result result = Result::Missing;
    // The path to run; for NotExecutable and IsFolder the one that was met first.
    QByteArray path;
};

} // namespace launcher
