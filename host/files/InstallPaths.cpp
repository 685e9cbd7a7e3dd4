// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/InstallPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <dlfcn.h>

#include <algorithm>

namespace gesturewidget {
namespace {

// The folder of the file that this code was loaded from.
QDir libraryFolder()
{
    Dl_info info = {};
    static const char inThisFile = 0;
    if (!dladdr(&inThisFile, &info) || !info.dli_fname)
        return QDir(QCoreApplication::applicationDirPath());
    return QFileInfo(QFile::decodeName(info.dli_fname)).absoluteDir();
}

// A script often starts a program beside it that has the script's name with an ending. People know
// the script.
QString withoutEnding(const QString &name)
{
    for (const char *ending : {".bin", "-bin", ".real", ".py", ".sh"}) {
        if (name.endsWith(QLatin1String(ending)) && name.size() > int(qstrlen(ending)))
            return name.chopped(int(qstrlen(ending)));
    }
    return name;
}

// All programs that an interpreter runs have its file in common.
bool isInterpreter(const QString &name)
{
    static const QRegularExpression interpreter(QStringLiteral("^(python|pypy)[0-9.]*$"));
    return interpreter.match(name).hasMatch();
}

bool hasProfile(const QString &name, const QStringList &folders)
{
    return !name.isEmpty()
        && std::any_of(folders.begin(), folders.end(), [&name](const QString &folder) {
               return !folder.isEmpty()
                   && QFileInfo::exists(QDir(folder).filePath(name + QLatin1String(".json")));
           });
}

// Returns the first name that has a profile, or the last one if none has.
QString firstWithProfile(const QStringList &names, const QStringList &folders)
{
    const auto found = std::find_if(names.begin(), names.end(), [&folders](const QString &name) {
        return hasProfile(name, folders);
    });
    return found == names.end() ? names.last() : *found;
}

} // namespace

QString chooseProgramName(const QString &typed, const QString &file, const QStringList &folders)
{
    QStringList names{QFileInfo(typed).fileName().toLower(), QFileInfo(file).fileName().toLower()};
    const bool isScript = isInterpreter(names.last()) && !names.first().isEmpty();
    names.append(withoutEnding(isScript ? names.first() : names.last()));
    return firstWithProfile(names, folders);
}

QString chooseScriptName(const QString &typed, const QString &file, const QString &interpreter,
                         const QStringList &folders)
{
    // The interpreter runs the program itself, under the name that was typed.
    if (isInterpreter(interpreter))
        return chooseProgramName(typed, interpreter, folders);
    QStringList names{QFileInfo(typed).fileName().toLower(), QFileInfo(file).fileName().toLower()};
    const bool isPlain = withoutEnding(names.last()) == names.last();
    names.append(isPlain ? names.last() : withoutEnding(names.first()));
    return firstWithProfile(names, folders);
}

QString programName()
{
    return chooseProgramName(QCoreApplication::arguments().value(0),
                             QCoreApplication::applicationFilePath(), profileFolders());
}

QString profileName(const QString &given)
{
    const QStringList folders = profileFolders();
    const QString own = programName();
    return !hasProfile(given, folders) && hasProfile(own, folders) ? own : given;
}

QString moduleFile()
{
    return libraryFolder().filePath(
        QStringLiteral("gesturewidget-module-qt%1.so").arg(QT_VERSION_MAJOR));
}

QString ownFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
         + QLatin1String("/gesturewidget");
}

QStringList siteFolders()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.removeAll(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    for (QString &folder : folders)
        folder += QLatin1String("/gesturewidget");
    return folders;
}

QString settingsFile(const QString &program)
{
    return QStringLiteral("%1/%2.ini").arg(ownFolder(), program);
}

QString catalogueFile(const QString &program)
{
    return catalogueFileBeside(settingsFile(program));
}

QString catalogueFileBeside(const QString &settings)
{
    const QLatin1String suffix(".ini");
    const QString stem = settings.endsWith(suffix) ? settings.chopped(suffix.size()) : settings;
    return stem.isEmpty() ? QString() : stem + QLatin1String(".commands.json");
}

QString ownProfileFile(const QString &program)
{
    return QStringLiteral("%1/profiles/%2.json").arg(ownFolder(), program);
}

QStringList profileFolders()
{
    return profileFolders(libraryFolder());
}

QStringList profileFolders(const QDir &folder)
{
    QStringList folders = qEnvironmentVariable("GESTUREWIDGET_PROFILES").split(QLatin1Char(':'));
    folders.removeAll(QString());
    folders.append(ownFolder() + QLatin1String("/profiles"));
    const QStringList sites = siteFolders();
    for (const QString &site : sites) {
        if (QFileInfo(site + QLatin1String("/profiles")).isDir())
            folders.append(site + QLatin1String("/profiles"));
    }
    // A library is in lib/ or, if sorted by architecture, one folder below; a program is in bin/.
    for (const char *up : {"..", "../.."}) {
        const QString path =
            folder.filePath(QLatin1String(up) + QLatin1String("/share/gesturewidget/profiles"));
        if (QFileInfo(path).isDir())
            folders.append(QDir::cleanPath(path));
    }
    return folders;
}

} // namespace gesturewidget
