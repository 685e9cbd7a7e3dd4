// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/QtWidgetsUse.h"

#include "host/files/FileContent.h"
#include "launcher/programs/ElfFile.h"

#include <QFile>
#include <QSet>

#include <glob.h>

#include <cstdlib>

namespace launcher {
namespace {

// Bytes. Far more than any loader configuration has.
constexpr qint64 kMaximalConfiguration = 1024 * Q_INT64_C(1024);

struct Library
{
    QByteArray path;
    // Folders of DT_RPATH. Unlike DT_RUNPATH, they also apply to what its libraries need.
    QList<QByteArray> inherited;
};

QByteArray folderOf(const QByteArray &path)
{
    const auto slash = path.lastIndexOf('/');
    if (slash < 0)
        return ".";
    return slash == 0 ? QByteArray("/") : path.left(slash);
}

QByteArray realPath(const QByteArray &path)
{
    char *resolved = ::realpath(path.constData(), nullptr);
    QByteArray result = resolved ? QByteArray(resolved) : path;
    std::free(resolved);
    return result;
}

QList<QByteArray> expanded(const QList<QByteArray> &folders, const QByteArray &origin)
{
    QList<QByteArray> result;
    for (QByteArray folder : folders) {
        folder.replace("${ORIGIN}", origin).replace("$ORIGIN", origin);
        if (!folder.isEmpty())
            result.append(folder);
    }
    return result;
}

QByteArray findLibrary(const QByteArray &name, const ElfFile &user, const QList<QByteArray> &folders)
{
    if (name.contains('/'))
        return name;
    for (const QByteArray &folder : folders) {
        QByteArray path = folder + '/' + name;
        if (!QFile::exists(QFile::decodeName(path)))
            continue;
        const ElfFile library = ElfFile::read(path);
        if (library.isValid && library.bits == user.bits && library.machine == user.machine)
            return path;
    }
    return {};
}

// Reads each file once: files may include each other.
void readConfiguration(const QByteArray &path, QSet<QByteArray> &known, QList<QByteArray> &folders)
{
    if (known.contains(realPath(path)))
        return;
    known.insert(realPath(path));
    const QList<QByteArray> lines =
        gesturewidget::FileContent::read(QFile::decodeName(path), kMaximalConfiguration)
            .bytes.split('\n');
    for (QByteArray line : lines) {
        const auto comment = line.indexOf('#');
        if (comment >= 0)
            line.truncate(comment);
        line = line.trimmed();
        if (!line.startsWith("include ") && !line.startsWith("include\t")) {
            if (line.startsWith('/'))
                folders.append(line);
            continue;
        }
        QByteArray pattern = line.mid(8).trimmed();
        if (!pattern.startsWith('/'))
            pattern = folderOf(path) + '/' + pattern;
        glob_t found = {};
        if (::glob(pattern.constData(), 0, nullptr, &found) == 0) {
            for (std::size_t i = 0; i < found.gl_pathc; ++i)
                readConfiguration(found.gl_pathv[i], known, folders);
        }
        ::globfree(&found);
    }
}

} // namespace

QtWidgetsUse qtWidgetsUse(const QByteArray &program, const QByteArray &libraryPath,
                          const QList<QByteArray> &systemFolders)
{
    if (!ElfFile::read(program).isValid)
        return QtWidgetsUse::Unknown;

    QList<Library> queue = {{realPath(program), {}}};
    QSet<QByteArray> seen;
    while (!queue.isEmpty()) {
        const Library current = queue.takeFirst();
        const ElfFile elf = ElfFile::read(current.path);
        const QByteArray origin = folderOf(current.path);
        const QList<QByteArray> runpath = expanded(elf.runpath, origin);
        QList<QByteArray> inherited = expanded(elf.rpath, origin) + current.inherited;
        if (!runpath.isEmpty())
            inherited.clear(); // the loader ignores DT_RPATH where there is a DT_RUNPATH
        const QList<QByteArray> folders =
            inherited + expanded(libraryPath.split(':'), origin) + runpath + systemFolders;

        for (const QByteArray &name : elf.needed) {
            if (name == "libQt5Widgets.so.5")
                return QtWidgetsUse::Qt5;
            if (name == "libQt6Widgets.so.6")
                return QtWidgetsUse::Qt6;
            if (seen.contains(name))
                continue;
            const QByteArray found = findLibrary(name, elf, folders);
            if (found.isEmpty())
                continue; // another library may name it where it can be found
            seen.insert(name);
            queue.append({realPath(found), inherited});
        }
    }
    return QtWidgetsUse::None;
}

QList<QByteArray> systemLibraryFolders(const QByteArray &configuration)
{
    QList<QByteArray> folders;
    QSet<QByteArray> known;
    readConfiguration(configuration, known, folders);
    folders += {"/lib64", "/usr/lib64", "/lib", "/usr/lib"};
    return folders;
}

} // namespace launcher
