// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/desktop/DesktopMenu.h"

#include "host/files/FileWriter.h"
#include "launcher/desktop/DesktopFile.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "launcher/Text.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <utility>
#include <vector>

namespace launcher {
namespace {

using gesturewidget::FileWriter;

// Milliseconds. Usually it takes a few.
constexpr int kLongestRefresh = 5000;

// Returns whether something has that name, if only a link that leads nowhere.
bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString ownFileMessage(const QString &path)
{
    return Text::tr("%1 is your own and stays as it is").arg(path);
}

bool store(const QString &path, const QByteArray &content)
{
    return QDir().mkpath(QFileInfo(path).absolutePath())
        && FileWriter(path, FileWriter::Readers::Usual).write(content);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A copy of an entry, to be written.
struct Copy
{
    QString path;
    QByteArray content;
    bool wasThere;
    QByteArray before;
};

} // namespace

DesktopMenu::Places DesktopMenu::usualPlaces(const QByteArray &searchPath, const QByteArray &launcher)
{
    Places places;
    places.own = QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
    places.installed = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    places.installed.removeAll(places.own);
    places.searchPath = searchPath;
    places.launcher = launcher;
    return places;
}

QStringList DesktopMenu::namesIn(const QString &folder)
{
    QStringList names;
    const QDir base(folder);
    QDirIterator files(folder, {QStringLiteral("*.desktop")}, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(base.relativeFilePath(files.next()));
    names.sort();
    return names;
}

QString DesktopMenu::identifierOf(QString name)
{
    return name.replace(QLatin1Char('/'), QLatin1Char('-'));
}

DesktopMenu::DesktopMenu(const Places &places)
    : m_places(places)
{
}

Outcome DesktopMenu::enable(const QByteArray &typed, const QByteArray &path) const
{
    const QString program = QFile::decodeName(typed);
    const QStringList names = entriesOf(typed, path);
    if (names.isEmpty()) {
        const QStringList own = namesIn(m_places.own);
        for (const QString &name : own) {
            DesktopFile file;
            const QString entry = QDir(m_places.own).filePath(name);
            if (file.read(entry) && !file.isOurs() && file.exec().isValid
                && isProgram(file.exec().program, path))
                return Outcome::failure(ownFileMessage(entry));
        }
        return Outcome::failure(Text::tr("%1: the desktop has no entry that starts it").arg(program));
    }

    std::vector<Copy> copies;
    QList<QByteArray> shown; // what a person sees of the entries
    for (const QString &name : names) {
        DesktopFile file;
        const QString source = installedFile(name);
        if (!file.read(source))
            return Outcome::failure(Text::tr("%1 cannot be read").arg(source));
        // Two entries that look the same and do the same are one in the menu.
        const QByteArray looks = file.value("Name") + '\n' + file.exec().arguments.join('\n');
        if (file.value("NoDisplay") != "true" && shown.contains(looks))
            file.setValue("NoDisplay", "true");
        else if (file.value("NoDisplay") != "true")
            shown.append(looks);

        const QByteArray started = file.exec().program;
        if (file.value("TryExec").isEmpty()) // otherwise the copy would outlive the program
            file.setValue("TryExec", ExecLine::escaped(started));
        file.startBy(m_places.launcher, [&](const ExecLine &line) {
            return isProgram(line.program, path) || line.program == started;
        });
        // Started by a message on the bus, it would start without gestures.
        if (file.value("DBusActivatable") == "true")
            file.setValue("DBusActivatable", "false");
        file.setValue("X-MouseGestures", "true");

        const QString copy = QDir(m_places.own).filePath(name);
        const QString own = ownFileFor(name);
        if (!own.isEmpty())
            return Outcome::failure(ownFileMessage(own));
        copies.push_back({copy, file.content(), isThere(copy), contentOf(copy)});
    }
    Outcome outcome;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const Copy &copy = copies[i];
        if (copy.before != copy.content && !store(copy.path, copy.content)) {
            for (std::size_t j = 0; j < i; ++j) {
                if (!copies[j].wasThere || !store(copies[j].path, copies[j].before))
                    QFile::remove(copies[j].path);
            }
            return Outcome::failure(Text::tr("%1 cannot be written").arg(copy.path));
        }
        outcome.output += Text::tr("starts with gestures: %1").arg(copy.path).toLocal8Bit() + '\n';
    }
    // Copies of entries that are gone would be second entries of the program.
    const QStringList all = copiesFor(typed, path, Named::Any);
    for (const QString &name : all) {
        if (installedFile(name).isEmpty())
            QFile::remove(QDir(m_places.own).filePath(name));
    }
    refreshFileTypes();
    return outcome;
}

Outcome DesktopMenu::disable(const QByteArray &typed, const QByteArray &path) const
{
    Outcome outcome;
    const QStringList copies = copiesFor(typed, path, Named::AsTyped);
    for (const QString &name : copies) {
        const QString copy = QDir(m_places.own).filePath(name);
        if (!QFile::remove(copy))
            return Outcome::failure(Text::tr("%1 cannot be removed").arg(copy));
        outcome.output += Text::tr("starts as before: %1 is removed").arg(copy).toLocal8Bit() + '\n';
    }
    if (!copies.isEmpty())
        refreshFileTypes();
    else
        outcome.output =
            Text::tr("%1: nothing was there to remove").arg(QString::fromLocal8Bit(typed)).toLocal8Bit()
            + '\n';
    return outcome;
}

bool DesktopMenu::isEnabled(const QByteArray &typed, const QByteArray &path) const
{
    return !copiesFor(typed, path, Named::AsTyped).isEmpty();
}

QString DesktopMenu::nameOf(const QByteArray &typed, const QByteArray &path) const
{
    const QStringList names = entriesOf(typed, path);
    DesktopFile file;
    return !names.isEmpty() && file.read(installedFile(names.first()))
             ? QString::fromUtf8(file.value("Name")).simplified()
             : QString();
}

bool DesktopMenu::isProgram(const QByteArray &named, const QByteArray &path) const
{
    const QString wanted = QFileInfo(QFile::decodeName(path)).canonicalFilePath();
    if (wanted.isEmpty())
        return false;
    const ProgramLookup lookup = ProgramLookup::find(named, m_places.searchPath);
    return lookup.result == ProgramLookup::Result::Found
        && QFileInfo(QFile::decodeName(lookup.path)).canonicalFilePath() == wanted;
}

QString DesktopMenu::installedFile(const QString &name) const
{
    for (const QString &folder : m_places.installed) {
        QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QStringList DesktopMenu::entriesOf(const QByteArray &typed, const QByteArray &path) const
{
    const QByteArray wanted = ExecLine::fileName(typed);
    QStringList named; // these start it by the name that was typed
    QStringList others; // these start the same file by another name
    QStringList seen;
    for (const QString &folder : m_places.installed) {
        const QStringList names = namesIn(folder);
        for (const QString &name : names) {
            if (seen.contains(identifierOf(name)))
                continue;
            seen.append(identifierOf(name));
            DesktopFile file;
            if (!file.read(QDir(folder).filePath(name)) || !file.isApplication())
                continue;
            const ExecLine line = file.exec();
            if (line.isValid && isProgram(line.program, path))
                (ExecLine::fileName(line.program) == wanted ? named : others).append(name);
        }
    }
    if (!named.isEmpty() || !others.isEmpty())
        return named.isEmpty() ? others : named;

    // The entry may start a script that in turn starts the program.
    const QString name = QFile::decodeName(wanted) + QLatin1String(".desktop");
    DesktopFile file;
    if (!file.read(installedFile(name)) || !file.isApplication() || !file.exec().isValid)
        return {};
    const ProgramLookup lookup = ProgramLookup::find(file.exec().program, m_places.searchPath);
    const bool canRun =
        lookup.result == ProgramLookup::Result::Found
        && qtWidgetsUse(lookup.path, {}, systemLibraryFolders("/etc/ld.so.conf")) != QtWidgetsUse::None;
    return canRun ? QStringList(name) : QStringList();
}

QStringList DesktopMenu::copiesFor(const QByteArray &typed, const QByteArray &path, Named which) const
{
    QStringList named; // as in entriesOf()
    QStringList others;
    const QString usual = QFile::decodeName(ExecLine::fileName(typed)) + QLatin1String(".desktop");
    const QStringList own = namesIn(m_places.own);
    for (const QString &name : own) {
        DesktopFile file;
        if (!file.read(QDir(m_places.own).filePath(name)) || !file.isOurs())
            continue;
        const QByteArray started = file.exec().startedProgram();
        const bool isNamed = ExecLine::fileName(started) == ExecLine::fileName(typed);
        const bool isIt = path.isEmpty() ? isNamed : isProgram(started, path);
        if (name == usual || (isIt && isNamed))
            named.append(name);
        else if (isIt)
            others.append(name);
    }
    if (which == Named::Any)
        return named + others;
    return named.isEmpty() ? others : named;
}

QString DesktopMenu::ownFileFor(const QString &name) const
{
    QStringList names = namesIn(m_places.own);
    if (!names.contains(name))
        names.append(name); // it may be there and be no file
    for (const QString &other : std::as_const(names)) {
        QString path = QDir(m_places.own).filePath(other);
        DesktopFile present;
        if (identifierOf(other) == identifierOf(name) && isThere(path)
            && !(present.read(path) && present.isOurs()))
            return path;
    }
    return {};
}

void DesktopMenu::refreshFileTypes() const
{
    const ProgramLookup tool = ProgramLookup::find("update-desktop-database", m_places.searchPath);
    if (tool.result != ProgramLookup::Result::Found)
        return;
    QProcess process;
    // It complains about foreign entries.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QFile::decodeName(tool.path), {m_places.own});
    process.waitForFinished(kLongestRefresh);
}

} // namespace launcher
