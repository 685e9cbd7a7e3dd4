#include "launcher/desktop/DesktopMenu.h"

#include "host/files/FileWriter.h"
#include "launcher/desktop/DesktopFile.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/QtWidgetsUse.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>
#include <vector>

namespace launcher {
namespace {

using gesturewidget::FileWriter;

QByteArray fileName(const QByteArray &path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

// Whether something of that name is there, if only a link that leads nowhere.
bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Names of all entries in a folder and below it, in order.
QStringList namesIn(const QString &folder)
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

// What a desktop takes two entries for the same by: "kde/draw.desktop" is "kde-draw.desktop".
QString identifierOf(QString name)
{
    return name.replace(QLatin1Char('/'), QLatin1Char('-'));
}

QString ownFileMessage(const QString &path)
{
    return QStringLiteral("%1 is your own and stays as it is").arg(path);
}

bool store(const QString &path, const QByteArray &content)
{
    return FileWriter(path, FileWriter::Readers::Usual).write(content);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
        return Outcome::failure(
            QStringLiteral("%1: the desktop has no entry that starts it").arg(program));
    }

    std::vector<std::pair<QString, QByteArray>> copies;
    for (const QString &name : names) {
        DesktopFile file;
        const QString source = installedFile(name);
        if (!file.read(source))
            return Outcome::failure(QStringLiteral("%1 cannot be read").arg(source));
        const QByteArray started = file.exec().program;
        if (file.value("TryExec").isEmpty()) // else it would outlive the program
            file.setValue("TryExec", QByteArray(started).replace('\\', "\\\\"));
        file.startBy(m_places.launcher, [&](const ExecLine &line) {
            return isProgram(line.program, path) || line.program == started;
        });
        // Started by a message on the bus, it would start as ever.
        if (file.value("DBusActivatable") == "true")
            file.setValue("DBusActivatable", "false");
        file.setValue("X-MouseGestures", "true");

        const QString copy = QDir(m_places.own).filePath(name);
        DesktopFile present;
        if (isThere(copy) && !(present.read(copy) && present.isOurs()))
            return Outcome::failure(ownFileMessage(copy));
        copies.emplace_back(copy, file.content());
    }
    Outcome outcome;
    for (const auto &[copy, content] : copies) {
        if (contentOf(copy) != content && !store(copy, content))
            return Outcome::failure(QStringLiteral("%1 cannot be written").arg(copy));
        outcome.output += "starts with gestures: " + QFile::encodeName(copy) + '\n';
    }
    const QStringList all = copiesFor(typed, path);
    for (const QString &name : all) {
        if (installedFile(name).isEmpty()) // its entry is gone
            QFile::remove(QDir(m_places.own).filePath(name));
    }
    return outcome;
}

Outcome DesktopMenu::disable(const QByteArray &typed, const QByteArray &path) const
{
    Outcome outcome;
    const QStringList copies = copiesFor(typed, path);
    for (const QString &name : copies) {
        const QString copy = QDir(m_places.own).filePath(name);
        if (!QFile::remove(copy))
            return Outcome::failure(QStringLiteral("%1 cannot be removed").arg(copy));
        outcome.output += "starts as ever: " + QFile::encodeName(copy) + " is removed\n";
    }
    if (outcome.output.isEmpty())
        outcome.output = typed + ": nothing was there to remove\n";
    return outcome;
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
    const ProgramLookup lookup = ProgramLookup::find(named, m_places.searchPath);
    if (path.isEmpty() || lookup.result != ProgramLookup::Result::Found)
        return false;
    const QString file = QFileInfo(QFile::decodeName(lookup.path)).canonicalFilePath();
    return !file.isEmpty() && file == QFileInfo(QFile::decodeName(path)).canonicalFilePath();
}

QString DesktopMenu::installedFile(const QString &name) const
{
    for (const QString &folder : m_places.installed) {
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QStringList DesktopMenu::entriesOf(const QByteArray &typed, const QByteArray &path) const
{
    QStringList named; // start it by the name that was typed
    QStringList others; // start the same file by another name
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
                (fileName(line.program) == fileName(typed) ? named : others).append(name);
        }
    }
    if (!named.isEmpty() || !others.isEmpty())
        return named.isEmpty() ? others : named;

    // The entry may start a script that starts the program in the end.
    const QString name = QFile::decodeName(fileName(typed)) + QLatin1String(".desktop");
    DesktopFile file;
    if (!file.read(installedFile(name)) || !file.isApplication() || !file.exec().isValid)
        return {};
    const ProgramLookup lookup = ProgramLookup::find(file.exec().program, m_places.searchPath);
    const bool canRun =
        lookup.result == ProgramLookup::Result::Found
        && qtWidgetsUse(lookup.path, {}, systemLibraryFolders("/etc/ld.so.conf")) != QtWidgetsUse::None;
    return canRun ? QStringList(name) : QStringList();
}

QStringList DesktopMenu::copiesFor(const QByteArray &typed, const QByteArray &path) const
{
    QStringList named; // as entriesOf() has it
    QStringList others;
    const QString usual = QFile::decodeName(fileName(typed)) + QLatin1String(".desktop");
    const QStringList own = namesIn(m_places.own);
    for (const QString &name : own) {
        DesktopFile file;
        if (!file.read(QDir(m_places.own).filePath(name)) || !file.isOurs())
            continue;
        // Of the arguments the first is what the launcher starts.
        const QByteArray started = file.exec().arguments.value(0).replace("%%", "%");
        const bool isNamed = fileName(started) == fileName(typed);
        const bool isIt = path.isEmpty() ? isNamed : isProgram(started, path);
        if (name == usual || (isIt && isNamed))
            named.append(name);
        else if (isIt)
            others.append(name);
    }
    return named.isEmpty() ? others : named;
}

} // namespace launcher
