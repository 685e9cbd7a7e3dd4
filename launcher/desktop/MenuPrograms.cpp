// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/desktop/MenuPrograms.h"

#include "host/files/InstallPaths.h"
#include "launcher/desktop/DesktopFile.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/ProgramName.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "launcher/programs/Subject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace launcher {
namespace {

struct Entry
{
    QString path;
    QString identifier;
};

// All files of entries, the user's own first.
QList<Entry> allEntries(const DesktopMenu::Places &places)
{
    QList<Entry> entries;
    const QStringList folders = QStringList(places.own) + places.installed;
    for (const QString &folder : folders) {
        const QStringList names = DesktopMenu::namesIn(folder);
        for (const QString &name : names)
            entries.append({QDir(folder).filePath(name), DesktopMenu::identifierOf(name)});
    }
    return entries;
}

QString canonical(const QByteArray &path)
{
    return QFileInfo(QFile::decodeName(path)).canonicalFilePath();
}

// Several copies of our programs may be installed.
bool isOurs(const QString &executable)
{
    static const QStringList names{QStringLiteral("mouse-gestures"),
                                   QStringLiteral("mouse-gestures-settings"),
                                   QStringLiteral("mouse-gestures-sheet")};
    return names.contains(QFileInfo(executable).fileName());
}

bool isShown(const DesktopFile &file)
{
    return file.isApplication() && file.value("NoDisplay") != "true" && file.value("Terminal") != "true";
}

} // namespace

MenuPrograms::MenuPrograms(const DesktopMenu::Places &places, const Environment &environment,
                           const QStringList &profileFolders, const QString &locale)
    : m_places(places)
    , m_environment(environment)
    , m_profileFolders(profileFolders)
    , m_locale(locale)
{
}

void MenuPrograms::find(const std::function<void(const MenuProgram &)> &found,
                        const std::function<bool(int, int)> &progress) const
{
    const QList<QByteArray> libraryFolders = systemLibraryFolders("/etc/ld.so.conf");
    const QList<Entry> entries = allEntries(m_places);
    QSet<QString> seenEntries;
    QSet<QString> seenPrograms;
    int done = 0;
    for (const Entry &entry : entries) {
        if (!progress(done++, static_cast<int>(entries.size())))
            return;
        DesktopFile file;
        if (seenEntries.contains(entry.identifier) || !file.read(entry.path))
            continue;
        // Behind a copy that starts the program with gestures is the installed entry.
        if (file.isOurs())
            continue;
        seenEntries.insert(entry.identifier);
        const ExecLine line = file.exec();
        if (!isShown(file) || !line.isValid)
            continue;
        const ProgramLookup lookup =
            ProgramLookup::find(line.program, m_environment.value("PATH", kDefaultSearchPath));
        if (lookup.result != ProgramLookup::Result::Found)
            continue;

        const MenuProgram program{line.program, lookup.path,
                                  QString::fromUtf8(file.translated("Name", m_locale)).simplified(),
                                  QString::fromUtf8(file.translated("Icon", m_locale))};
        const QString executable = canonical(program.path);
        const QString typedName = QFileInfo(QFile::decodeName(program.typed)).fileName();
        const QString key = executable + QLatin1Char('\n') + typedName;
        if (isOurs(executable) || seenPrograms.contains(key))
            continue;
        seenPrograms.insert(key);
        if (canHaveGestures(program, file.value("Categories"), libraryFolders))
            found(program);
    }
    progress(static_cast<int>(entries.size()), static_cast<int>(entries.size()));
}

bool MenuPrograms::canHaveGestures(const MenuProgram &program, const QByteArray &categories,
                                   const QList<QByteArray> &libraryFolders) const
{
    switch (qtWidgetsUse(program.path, m_environment.value("LD_LIBRARY_PATH"), libraryFolders)) {
    case QtWidgetsUse::Qt5:
    case QtWidgetsUse::Qt6:
        return true;
    case QtWidgetsUse::None:
        return false;
    case QtWidgetsUse::Unknown:
        break;
    }
    const QList<QByteArray> words = categories.split(';');
    if (words.contains("Qt"))
        return true;
    const QString name = ProgramName::of(program.typed, program.path, m_profileFolders).name;
    return QFileInfo::exists(gesturewidget::settingsFile(name))
        || !profileFile(name, m_profileFolders).isEmpty();
}

} // namespace launcher
