// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ProgramLookup.h"

#include <QList>

#include <sys/stat.h>
#include <unistd.h>

namespace launcher {
namespace {

ProgramLookup::Result judge(const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return ProgramLookup::Result::Missing;
    if (S_ISDIR(status.st_mode))
        return ProgramLookup::Result::IsFolder;
    return ::access(path.constData(), X_OK) == 0 ? ProgramLookup::Result::Found
                                                 : ProgramLookup::Result::NotExecutable;
}

} // namespace

ProgramLookup ProgramLookup::find(const QByteArray &name, const QByteArray &searchPath)
{
    ProgramLookup lookup;
    if (name.isEmpty())
        return lookup;
    if (name.contains('/')) {
        lookup.path = name;
        lookup.result = judge(name);
        return lookup;
    }

    const QList<QByteArray> folders = searchPath.split(':');
    for (const QByteArray &folder : folders) {
        const QByteArray path = (folder.isEmpty() ? QByteArray(".") : folder) + '/' + name;
        const Result result = judge(path);
        if (result == Result::Found)
            return {result, path};
        // Report a file that may not be run, but not a folder: a person who types a program's name
        // does not mean a folder.
        if (result == Result::NotExecutable && lookup.result == Result::Missing)
            lookup = {result, path};
    }
    return lookup;
}

} // namespace launcher
