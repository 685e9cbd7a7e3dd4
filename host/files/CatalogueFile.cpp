// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CatalogueFile.h"

#include "host/files/Complaint.h"
#include "host/files/DocumentName.h"
#include "host/files/DottedNames.h"
#include "host/files/FileContent.h"
#include "host/files/FileLock.h"
#include "host/files/FileWriter.h"
#include "host/files/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace gesturewidget {
namespace {

constexpr int kCatalogueVersion = 1;

// Milliseconds. Others hold the lock for as long as it takes to write the file. If that is too
// long, the next change of the menus tries again.
constexpr int kLockPatience = 500;

const QLatin1String kVersionKey("version");
const QLatin1String kCommandsKey("commands");
const QLatin1String kIdentifierKey("identifier");
const QLatin1String kCommandKey("command");
const QLatin1String kCaptionKey("caption");
const QLatin1String kTipKey("tip");
const QLatin1String kGroupKey("group");
const QLatin1String kIconKey("icon");
const QLatin1String kToolBarKey("toolbar");
const QLatin1String kWayKey("way");

// An identifier must not be cut off: it would be another one.
bool isAcceptable(const RememberedCommand &command)
{
    return !command.identifier.isEmpty() && command.identifier.size() <= CatalogueFile::kMaximalText
        && command.command.size() <= CatalogueFile::kMaximalText;
}

// An identifier may be a path of captions.
bool isPrivateName(const QString &name, const DottedNames &objectNames)
{
    const QStringList captions = name.split(QLatin1Char('/'));
    return std::any_of(captions.begin(), captions.end(), namesADocument) && !objectNames.contains(name);
}

bool isPrivate(const RememberedCommand &command, const DottedNames &objectNames)
{
    return namesADocument(command.caption)
        || std::any_of(command.way.begin(), command.way.end(), namesADocument)
        || isPrivateName(command.identifier, objectNames) || isPrivateName(command.command, objectNames);
}

RememberedCommand bounded(const RememberedCommand &command)
{
    RememberedCommand result = command;
    for (QString *text : {&result.caption, &result.tip, &result.group})
        text->truncate(CatalogueFile::kMaximalText);
    for (QString &caption : result.way)
        caption.truncate(CatalogueFile::kMaximalText);
    if (result.icon.size() > CatalogueFile::kMaximalIcon)
        result.icon.clear();
    if (namesADocument(result.tip))
        result.tip.clear();
    return result;
}

RememberedCommand fromJson(const QJsonObject &object)
{
    const auto text = [&object](QLatin1String key) { return object.value(key).toString(); };
    QStringList way;
    const QJsonArray captions = object.value(kWayKey).toArray();
    for (const QJsonValue &caption : captions)
        way.append(caption.toString());
    return bounded({text(kIdentifierKey), text(kCommandKey), text(kCaptionKey), text(kTipKey),
                    text(kGroupKey), QByteArray::fromBase64(text(kIconKey).toLatin1()),
                    object.value(kToolBarKey).toBool(), way});
}

QJsonObject toJson(const RememberedCommand &command)
{
    QJsonObject object;
    const auto insert = [&object](QLatin1String key, const QString &text) {
        if (!text.isEmpty())
            object.insert(key, text);
    };
    insert(kIdentifierKey, command.identifier);
    insert(kCommandKey, command.command);
    insert(kCaptionKey, command.caption);
    insert(kTipKey, command.tip);
    insert(kGroupKey, command.group);
    insert(kIconKey, QString::fromLatin1(command.icon.toBase64()));
    if (command.isInToolBar)
        object.insert(kToolBarKey, true);
    if (!command.way.isEmpty())
        object.insert(kWayKey, QJsonArray::fromStringList(command.way));
    return object;
}

// One line for each command, so that people can read the file.
QByteArray textOf(const QVector<RememberedCommand> &commands)
{
    QByteArray text = "{\n\"version\": " + QByteArray::number(kCatalogueVersion) + ",\n\"commands\": [";
    const char *separator = "\n";
    for (const RememberedCommand &command : commands) {
        text += separator + QJsonDocument(toJson(command)).toJson(QJsonDocument::Compact);
        separator = ",\n";
    }
    return text + "\n]\n}\n";
}

// Updates `known`. Returns whether that changed anything.
bool update(RememberedCommand &known, const RememberedCommand &seen)
{
    RememberedCommand updated = seen;
    if (updated.tip.isEmpty())
        updated.tip = known.tip;
    if (updated.caption.isEmpty())
        updated.caption = known.caption;
    if (updated.group.isEmpty())
        updated.group = known.group;
    if (updated.command.isEmpty())
        updated.command = known.command;
    if (updated.icon.isEmpty())
        updated.icon = known.icon;
    if (updated == known)
        return false;
    known = updated;
    return true;
}

bool apply(QVector<RememberedCommand> &commands, const QVector<RememberedCommand> &seen,
           const QStringList &gone)
{
    QHash<QString, int> places;
    for (int i = 0; i < commands.size(); ++i)
        places.insert(commands.at(i).identifier, i);
    QVector<bool> isGone(commands.size(), false);
    for (const QString &identifier : gone) {
        const int place = places.value(identifier, -1);
        if (place >= 0)
            isGone[place] = true;
    }
    DottedNames objectNames;
    for (const QVector<RememberedCommand> *list : {&std::as_const(commands), &seen}) {
        for (const RememberedCommand &command : *list)
            objectNames.add(command);
    }
    bool hasChanged = false;
    for (const RememberedCommand &command : seen) {
        if (!isAcceptable(command) || isPrivate(command, objectNames))
            continue;
        const int place = places.value(command.identifier, -1);
        if (place >= 0) {
            hasChanged |= update(commands[place], bounded(command));
            isGone[place] = false;
        } else if (commands.size() < CatalogueFile::kMaximalCount) {
            places.insert(command.identifier, int(commands.size()));
            commands.append(bounded(command));
            isGone.append(false);
            hasChanged = true;
        }
    }
    QVector<RememberedCommand> kept;
    kept.reserve(commands.size());
    for (int i = 0; i < commands.size(); ++i) {
        if (!isGone.at(i))
            kept.append(commands.at(i));
    }
    hasChanged |= kept.size() != commands.size();
    commands = kept;
    return hasChanged;
}

} // namespace

CatalogueFile::CatalogueFile(const QString &path)
    : m_path(path)
{
}

QVector<RememberedCommand> CatalogueFile::read()
{
    if (m_path.isEmpty())
        return {};
    const Content content = lastGood();
    m_isComplete = content.state == State::Good || content.state == State::Missing;
    return content.commands;
}

bool CatalogueFile::merge(const QVector<RememberedCommand> &seen, const QStringList &gone)
{
    if (m_path.isEmpty())
        return false;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const FileLock lock(m_path, kLockPatience);
    if (!lock.isHeld()) {
        if (lock.result() == FileLock::Result::Impossible)
            complainOnce(Text::tr("%1 cannot be written, new commands are forgotten").arg(m_path));
        return false;
    }
    Content content = lastGood();
    if (content.state == State::Foreign)
        return false;
    const bool hasChanged = apply(content.commands, seen, gone);
    if (!hasChanged && !content.isPrivate && content.state != State::Damaged)
        return true;
    if (store(content.commands, content))
        return true;
    complainOnce(Text::tr("%1 cannot be written, new commands are forgotten").arg(m_path));
    return false;
}

CatalogueFile::Content CatalogueFile::lastGood()
{
    Content content = contentOf(m_path);
    if (content.state == State::Foreign) {
        complainOnce(content.problem.arg(m_path));
    } else if (content.state == State::Damaged) {
        const Content backup = contentOf(backupPath());
        if (backup.state == State::Good) {
            complainOnce(Text::tr("%1 is damaged, %2 is used").arg(m_path, backupPath()));
            content.commands = backup.commands;
            content.isPrivate = backup.isPrivate;
        } else {
            complainOnce(Text::tr("%1 is damaged, and there is no good copy of it").arg(m_path));
        }
    }
    return content;
}

CatalogueFile::Content CatalogueFile::contentOf(const QString &path)
{
    const FileContent file = FileContent::read(path, kMaximalSize);
    switch (file.state) {
    case FileContent::State::Read:
        return parsed(file.bytes);
    case FileContent::State::Missing:
        return {};
    case FileContent::State::TooLarge:
        return {State::Foreign, {}, false, Text::tr("%1 is too large, its commands are not offered")};
    default:
        return {State::Foreign, {}, false, Text::tr("%1 cannot be read, its commands are not offered")};
    }
}

CatalogueFile::Content CatalogueFile::parsed(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return {State::Damaged, {}, false, {}};
    const QJsonObject object = document.object();
    const int version = object.value(kVersionKey).toInt();
    if (version > kCatalogueVersion)
        return {State::Foreign,
                {},
                false,
                Text::tr("%1 is of a later version (%2), its commands are not offered")
                    .arg(QLatin1String("%1"), QString::number(version))};
    if (version < 1 || !object.value(kCommandsKey).isArray())
        return {State::Foreign, {}, false, Text::tr("%1 is not a list of commands and is left alone")};
    Content content{State::Good, {}, false, {}};
    QHash<QString, bool> known;
    DottedNames objectNames;
    const QJsonArray commands = object.value(kCommandsKey).toArray();
    QVector<RememberedCommand> stored;
    stored.reserve(int(commands.size()));
    for (const QJsonValue &value : commands) {
        stored.append(fromJson(value.toObject()));
        objectNames.add(stored.last());
    }
    for (int i = 0; i < stored.size(); ++i) {
        const RememberedCommand &command = stored.at(i);
        const bool hasPrivateTip =
            command.tip.isEmpty() && !commands.at(i).toObject().value(kTipKey).toString().isEmpty();
        const bool isLeftOut = isPrivate(command, objectNames);
        content.isPrivate |= hasPrivateTip || isLeftOut;
        if (isLeftOut || !isAcceptable(command) || known.contains(command.identifier))
            continue;
        if (content.commands.size() == kMaximalCount)
            break;
        known.insert(command.identifier, true);
        content.commands.append(command);
    }
    return content;
}

bool CatalogueFile::store(const QVector<RememberedCommand> &commands, const Content &before)
{
    QByteArray text = textOf(commands);
    if (text.size() > kMaximalSize) {
        QVector<RememberedCommand> plain = commands;
        for (RememberedCommand &command : plain)
            command.icon.clear();
        text = textOf(plain);
    }
    if (text.size() > kMaximalSize)
        return false;
    const FileWriter writer(m_path, FileWriter::Readers::Owner);
    const QString kept = before.state == State::Damaged ? m_path + QLatin1String(".damaged")
                       : before.state == State::Good    ? backupPath()
                                                        : QString();
    // The new content matters more than the copy of the old one.
    if (!(!kept.isEmpty() && writer.write(text, kept)) && !writer.write(text))
        return false;
    // The copy must not keep what the file has lost.
    return !before.isPrivate || FileWriter(backupPath(), FileWriter::Readers::Owner).write(text);
}

QString CatalogueFile::backupPath() const
{
    return m_path + QLatin1String(".bak");
}

void CatalogueFile::complainOnce(const QString &line)
{
    if (!m_hasComplained)
        complain(line);
    m_hasComplained = true;
}

} // namespace gesturewidget
