// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/ProgramProfile.h"

#include "host/files/FileContent.h"
#include "host/files/Text.h"
#include "host/files/TriggerText.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

namespace gesturewidget {
namespace {

// Far more than any profile needs; keeps a wrong file from filling the memory.
constexpr qint64 kMaximalProfileSize = qint64(1024) * 1024;
constexpr int kProfileVersion = 1;

// Reads one object member by member and remembers the first thing that is wrong.
class Reader
{
public:
    explicit Reader(const QByteArray &text)
    {
        QJsonParseError parsing;
        const QJsonDocument document = QJsonDocument::fromJson(text, &parsing);
        if (parsing.error != QJsonParseError::NoError)
            fail(Text::tr("%1 at byte %2").arg(parsing.errorString()).arg(parsing.offset));
        else if (!document.isObject())
            fail(Text::tr("it is not an object"));
        m_object = document.object();
    }
    Reader(const QJsonObject &object, const QString &path)
        : m_object(object)
        , m_path(path)
    {
    }

    [[nodiscard]] QString problem() const { return m_problem; }
    // An empty text is no problem.
    void fail(const QString &problem)
    {
        if (m_problem.isEmpty())
            m_problem = problem;
    }

    void allow(const QStringList &keys)
    {
        const QStringList present = m_object.keys();
        for (const QString &key : present) {
            if (!keys.contains(key))
                fail(Text::tr("unknown key \"%1\"").arg(m_path + key));
        }
    }

    QString string(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isUndefined() && !value.isString())
            fail(Text::tr("\"%1\" is not a string").arg(m_path + key));
        return value.toString();
    }

    // A list of names, or one name alone.
    QStringList namesOf(const QString &key)
    {
        return m_object.value(key).isArray() ? strings(key) : QStringList(string(key));
    }

    QStringList strings(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isUndefined() && !value.isArray())
            fail(Text::tr("\"%1\" is not a list").arg(m_path + key));
        QStringList list;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &entry : array) {
            if (!entry.isString() || entry.toString().isEmpty())
                fail(Text::tr("\"%1\" holds something that is not a name").arg(m_path + key));
            list.append(entry.toString());
        }
        return list;
    }

    QJsonObject object(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isUndefined() && !value.isObject())
            fail(Text::tr("\"%1\" is not an object").arg(m_path + key));
        return value.toObject();
    }

    bool flag(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isUndefined() && !value.isBool())
            fail(Text::tr("\"%1\" is neither true nor false").arg(m_path + key));
        return value.toBool();
    }

    QJsonValue value(const QString &key) const { return m_object.value(key); }
    QStringList keys() const { return m_object.keys(); }

private:
    QJsonObject m_object;
    QString m_path;
    QString m_problem;
};

void readTrigger(Reader &profileReader, ProgramProfile &profile)
{
    Reader reader(profileReader.object(QStringLiteral("trigger")), QStringLiteral("trigger."));
    reader.allow({QStringLiteral("button"), QStringLiteral("modifiers")});
    const QString button = reader.string(QStringLiteral("button"));
    if (!reader.value(QStringLiteral("button")).isUndefined()) {
        profile.triggerButton = buttonNamed(button);
        if (profile.triggerButton == Qt::NoButton)
            reader.fail(Text::tr("\"trigger.button\" names no mouse button: \"%1\"").arg(button));
    }
    const QStringList names = reader.strings(QStringLiteral("modifiers"));
    for (const QString &name : names) {
        const Qt::KeyboardModifier modifier = modifierNamed(name);
        if (modifier == Qt::NoModifier)
            reader.fail(Text::tr("\"trigger.modifiers\" names no key: \"%1\"").arg(name));
        profile.triggerModifiers |= modifier;
    }
    profile.hasTrigger = !reader.keys().isEmpty();
    profileReader.fail(reader.problem());
}

QStringList readTriggers(Reader &reader, const QString &key, const QString &path)
{
    QStringList triggers;
    const QStringList texts = reader.strings(key);
    for (const QString &text : texts) {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        if (parseTrigger(text, button, modifiers))
            triggers.append(triggerText(button, modifiers));
        else
            reader.fail(Text::tr("\"%1\" names no trigger: \"%2\"").arg(path + key, text));
    }
    return triggers;
}

// Reads what the program itself is set to, from one of its files in the folder for configuration.
// Returns null if the file or the value is not there.
QString ownSetting(const QString &file, const QString &before, const QString &behind)
{
    constexpr qint64 kMaximalFile = qint64(16) * 1024 * 1024;
    const QString path =
        QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).filePath(file);
    const FileContent content = FileContent::read(path, kMaximalFile);
    const QString text = QString::fromUtf8(content.bytes);
    const auto found = content.isRead() ? text.indexOf(before) : -1;
    if (found < 0)
        return {};
    const auto start = found + before.size();
    const auto end = text.indexOf(behind, start);
    return end < 0 ? QString() : text.mid(start, end - start);
}

// A trigger that depends on a setting of the program, such as how the mouse turns things.
void readTriggerSetting(Reader &profileReader, ProgramProfile &profile)
{
    const QString key = QStringLiteral("triggerBySetting");
    if (profileReader.value(key).isUndefined())
        return;
    Reader reader(profileReader.object(key), key + QLatin1Char('.'));
    reader.allow({QStringLiteral("file"), QStringLiteral("before"), QStringLiteral("behind"),
                  QStringLiteral("triggers"), QStringLiteral("usedTriggers")});
    const QString file = reader.string(QStringLiteral("file"));
    const QString before = reader.string(QStringLiteral("before"));
    const QString behind = reader.string(QStringLiteral("behind"));
    if (file.isEmpty() || QDir::isAbsolutePath(file) || before.isEmpty() || behind.isEmpty())
        reader.fail(Text::tr("\"%1\" needs a file and what is around the value").arg(key));
    const QJsonObject triggers = reader.object(QStringLiteral("triggers"));
    const QString value = reader.problem().isEmpty() ? ownSetting(file, before, behind) : QString();
    for (auto it = triggers.begin(); it != triggers.end(); ++it) {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        if (!parseTrigger(it->toString(), button, modifiers) || !isUsableTrigger(button, modifiers)) {
            reader.fail(Text::tr("\"%1.triggers.%2\" names no trigger").arg(key, it.key()));
        } else if (it.key() == value) {
            profile.triggerButton = button;
            profile.triggerModifiers = modifiers;
            profile.hasTrigger = true;
            profile.triggerSetting = value;
        }
    }
    const QString usedKey = QStringLiteral("usedTriggers");
    const QString usedPath = key + QLatin1Char('.') + usedKey + QLatin1Char('.');
    Reader used(reader.object(usedKey), usedPath);
    const QStringList values = used.keys();
    for (const QString &one : values) {
        const QStringList list = readTriggers(used, one, usedPath);
        if (one == value)
            profile.usedTriggers = list;
    }
    reader.fail(used.problem());
    profile.triggerBySetting = profileReader.object(key);
    for (const QString &fixed : {QStringLiteral("trigger"), usedKey}) {
        if (!profileReader.value(fixed).isUndefined())
            profile.fixedTriggers.insert(fixed, profileReader.value(fixed));
    }
    profileReader.fail(reader.problem());
}

void readCommands(Reader &profileReader, ProgramProfile &profile)
{
    Reader reader(profileReader.object(QStringLiteral("wellKnownCommands")),
                  QStringLiteral("wellKnownCommands."));
    const QStringList identifiers = reader.keys();
    for (const QString &identifier : identifiers) {
        const QStringList actions = reader.namesOf(identifier);
        if (identifier.isEmpty() || actions.isEmpty() || actions.contains(QString()))
            reader.fail(Text::tr("\"wellKnownCommands.%1\" names no action").arg(identifier));
        profile.wellKnownCommands.insert(identifier, actions);
    }
    profileReader.fail(reader.problem());
}

void readRing(Reader &tasksReader, const QString &task, const QJsonObject &object,
              ProgramProfile &profile)
{
    const QString path = QStringLiteral("tasks.firstBindings.%1.").arg(task);
    Reader reader(object, path);
    const QStringList keys = reader.keys();
    for (const QString &key : keys) {
        const int scheme = key.size() == 2 ? key.at(0).digitValue() : 0;
        const int direction = key.size() == 2 ? key.at(1).digitValue() : 0;
        if ((scheme != 4 && scheme != 8) || direction < 1 || direction > scheme)
            reader.fail(Text::tr("\"%1\" is no direction").arg(path + key));
        profile.taskBindings[task].insert(key, reader.string(key));
    }
    tasksReader.fail(reader.problem());
}

void readTasks(Reader &profileReader, ProgramProfile &profile)
{
    Reader reader(profileReader.object(QStringLiteral("tasks")), QStringLiteral("tasks."));
    reader.allow({QStringLiteral("checkedActionBeside"), QStringLiteral("classOfView"),
                  QStringLiteral("firstBindings"), QStringLiteral("commandPrefixes")});
    if (!reader.value(QStringLiteral("checkedActionBeside")).isUndefined())
        profile.taskActions = reader.namesOf(QStringLiteral("checkedActionBeside"));
    profile.isTaskOfView = reader.flag(QStringLiteral("classOfView"));
    if (profile.isTaskOfView && !profile.taskActions.isEmpty())
        reader.fail(Text::tr("\"tasks\" names two ways to know the task"));
    const QJsonObject rings = reader.object(QStringLiteral("firstBindings"));
    for (auto it = rings.begin(); it != rings.end(); ++it) {
        if (!it.value().isObject() || it.key().isEmpty())
            reader.fail(Text::tr("\"tasks.firstBindings.%1\" is not an object").arg(it.key()));
        readRing(reader, it.key(), it.value().toObject(), profile);
    }
    const QString prefixesKey = QStringLiteral("commandPrefixes");
    const QString path = QStringLiteral("tasks.") + prefixesKey + QLatin1Char('.');
    Reader prefixes(reader.object(prefixesKey), path);
    const QStringList tasks = prefixes.keys();
    for (const QString &task : tasks) {
        const QString prefix = prefixes.string(task);
        if (task.isEmpty() || prefix.isEmpty())
            prefixes.fail(Text::tr("\"%1\" is empty").arg(path + task));
        profile.taskPrefixes.insert(task, prefix);
    }
    reader.fail(prefixes.problem());
    profileReader.fail(reader.problem());
}

// Returns what is wrong with the text; empty when `profile` could be filled.
QString fill(ProgramProfile &profile, const QByteArray &text)
{
    Reader reader(text);
    // An editor looks for the schema there.
    static_cast<void>(reader.string(QStringLiteral("$schema")));
    reader.allow({QStringLiteral("$schema"), QStringLiteral("version"), QStringLiteral("program"),
                  QStringLiteral("viewClasses"), QStringLiteral("trigger"),
                  QStringLiteral("wellKnownCommands"), QStringLiteral("toolsMenu"),
                  QStringLiteral("commandLineClass"), QStringLiteral("changesMenus"),
                  QStringLiteral("triggerBySetting"), QStringLiteral("tasks"),
                  QStringLiteral("usedTriggers"), QStringLiteral("why")});
    // Reasons for the rest, for people who read the file.
    static_cast<void>(reader.object(QStringLiteral("why")));
    const QJsonValue version = reader.value(QStringLiteral("version"));
    if (!version.isDouble())
        reader.fail(Text::tr("\"version\" is missing or not a number"));
    else if (version.toDouble() != kProfileVersion)
        reader.fail(Text::tr("version %1 is not known").arg(version.toDouble()));
    const QString program = reader.string(QStringLiteral("program"));
    if (program != profile.program)
        reader.fail(Text::tr("\"program\" is \"%1\", not \"%2\"").arg(program, profile.program));
    profile.viewClasses = reader.strings(QStringLiteral("viewClasses"));
    readTrigger(reader, profile);
    profile.usedTriggers = readTriggers(reader, QStringLiteral("usedTriggers"), {});
    readTriggerSetting(reader, profile);
    readCommands(reader, profile);
    readTasks(reader, profile);
    profile.toolsMenu = reader.string(QStringLiteral("toolsMenu"));
    profile.commandLineClass = reader.string(QStringLiteral("commandLineClass"));
    profile.changesMenus = reader.flag(QStringLiteral("changesMenus"));
    return reader.problem();
}

QString fill(ProgramProfile &profile, const FileContent &file)
{
    switch (file.state) {
    case FileContent::State::Read:
        return fill(profile, file.bytes);
    case FileContent::State::NotAFile:
        return Text::tr("it is not a file");
    case FileContent::State::TooLarge:
        return Text::tr("it is too long");
    default:
        return file.problem;
    }
}

// Returns whether the name is that of a file and no path: profiles come from the given folders.
bool isFileName(const QString &program)
{
    return !program.isEmpty() && !program.contains(QLatin1Char('/')) && !program.contains(QChar::Null)
        && !program.startsWith(QLatin1Char('.'));
}

} // namespace

QJsonObject ProgramProfile::toJson() const
{
    QStringList modifiers = modifierNames();
    const auto isNotHeld = [this](const QString &name) {
        return !triggerModifiers.testFlag(modifierNamed(name));
    };
    modifiers.erase(std::remove_if(modifiers.begin(), modifiers.end(), isNotHeld), modifiers.end());
    QJsonObject trigger;
    trigger.insert(QStringLiteral("button"), triggerText(triggerButton, Qt::NoModifier));
    trigger.insert(QStringLiteral("modifiers"), QJsonArray::fromStringList(modifiers));

    QJsonObject commands;
    for (auto it = wellKnownCommands.cbegin(); it != wellKnownCommands.cend(); ++it) {
        const QStringList &names = it.value();
        commands.insert(it.key(), names.size() == 1 ? QJsonValue(names.first())
                                                    : QJsonValue(QJsonArray::fromStringList(names)));
    }

    QJsonObject profile{{QStringLiteral("version"), kProfileVersion},
                        {QStringLiteral("program"), program},
                        {QStringLiteral("viewClasses"), QJsonArray::fromStringList(viewClasses)},
                        {QStringLiteral("trigger"), trigger},
                        {QStringLiteral("wellKnownCommands"), commands},
                        {QStringLiteral("toolsMenu"), toolsMenu},
                        {QStringLiteral("commandLineClass"), commandLineClass}};
    if (!usedTriggers.isEmpty())
        profile.insert(QStringLiteral("usedTriggers"), QJsonArray::fromStringList(usedTriggers));
    if (!triggerBySetting.isEmpty()) {
        for (const QString &key : {QStringLiteral("trigger"), QStringLiteral("usedTriggers")}) {
            profile.remove(key);
            if (fixedTriggers.contains(key))
                profile.insert(key, fixedTriggers.value(key));
        }
        profile.insert(QStringLiteral("triggerBySetting"), triggerBySetting);
    }
    if (changesMenus)
        profile.insert(QStringLiteral("changesMenus"), true);
    if (knowsTasks())
        profile.insert(QStringLiteral("tasks"), tasksToJson());
    return profile;
}

QJsonObject ProgramProfile::tasksToJson() const
{
    QJsonObject rings;
    for (auto task = taskBindings.cbegin(); task != taskBindings.cend(); ++task) {
        QJsonObject ring;
        for (auto it = task.value().cbegin(); it != task.value().cend(); ++it)
            ring.insert(it.key(), it.value());
        rings.insert(task.key(), ring);
    }
    QJsonObject tasks{{QStringLiteral("firstBindings"), rings}};
    QJsonObject prefixes;
    for (auto it = taskPrefixes.cbegin(); it != taskPrefixes.cend(); ++it)
        prefixes.insert(it.key(), it.value());
    if (!prefixes.isEmpty())
        tasks.insert(QStringLiteral("commandPrefixes"), prefixes);
    if (isTaskOfView)
        tasks.insert(QStringLiteral("classOfView"), true);
    else
        tasks.insert(QStringLiteral("checkedActionBeside"), QJsonArray::fromStringList(taskActions));
    return tasks;
}

ProgramProfile ProgramProfile::forProgram(const QString &program, const QStringList &folders,
                                          QString *message)
{
    if (message)
        message->clear();
    ProgramProfile defaults;
    defaults.program = program;
    if (!isFileName(program))
        return defaults;
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(program + QLatin1String(".json"));
        if (folder.isEmpty() || !QFileInfo::exists(path))
            continue;
        ProgramProfile profile = defaults;
        const QString problem = fill(profile, FileContent::read(path, kMaximalProfileSize));
        if (problem.isEmpty())
            return profile;
        if (message) {
            const QString line = Text::tr("the profile %1 is not used: %2").arg(path, problem);
            *message = line.simplified();
        }
        return defaults;
    }
    return defaults;
}

} // namespace gesturewidget
