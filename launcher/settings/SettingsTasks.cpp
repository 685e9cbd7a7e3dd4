// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/SettingsTasks.h"

#include "host/files/CrashNote.h"
#include "host/files/FileContent.h"
#include "host/files/FileWriter.h"
#include "host/files/RingSettings.h"
#include "host/files/SettingsFile.h"
#include "host/files/SettingsNames.h"
#include "host/files/TriggerText.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/BindingsJson.h"
#include "launcher/Text.h"

#include <algorithm>
#include <utility>

namespace launcher {
namespace {

using gesturewidget::FileContent;
using gesturewidget::FileWriter;
using gesturewidget::SettingsFile;
namespace ringsettings = gesturewidget::ringsettings;

// The difference between two states of the settings.
SettingsChange changeBetween(const Bindings &before, const Bindings &after)
{
    const SettingsFile::Values old = before.toSettings();
    const SettingsFile::Values present = after.toSettings();
    SettingsChange change;
    for (auto it = present.cbegin(); it != present.cend(); ++it) {
        if (old.value(it.key()) == it.value())
            continue;
        change.before.insert(it.key(), old.value(it.key()));
        change.after.insert(it.key(), it.value());
    }
    return change;
}

// The values of a file that had `own` when `written` have been written to it.
SettingsFile::Values merged(SettingsFile::Values own, const SettingsFile::Values &written)
{
    for (auto it = written.cbegin(); it != written.cend(); ++it) {
        if (it.value().isNull())
            own.remove(it.key());
        else
            own.insert(it.key(), it.value());
    }
    return own;
}

void report(const SettingsChange &change, SettingsChange *made)
{
    if (made)
        *made = change;
}

Outcome outcomeOf(bool isDone, const SettingsFile &file)
{
    return isDone ? Outcome() : Outcome::failure(file.problem());
}

// The keys and values of a ring, without the section.
QHash<QString, QString> keysOf(const Bindings &ring)
{
    QHash<QString, QString> keys;
    const SettingsFile::Values values = ring.toSettings();
    const QString prefix = gesturewidget::settingsnames::moduleSection() + QLatin1Char('/');
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString key = it.key().startsWith(prefix) ? it.key().mid(prefix.size()) : QString();
        if (ringsettings::isRingKey(key))
            keys.insert(key, it.value());
    }
    return keys;
}

// The settings for the ring of a task.
SettingsFile::Values ringValues(const QString &task, const Bindings &ring)
{
    return ringsettings::ownRing({}, task, keysOf(ring), {});
}

// Adds the wanted values of a ring to `values`, and those that differ from the file's own to `change`.
void addRing(const SettingsFile::Values &ring, const SettingsFile::Values &own,
             SettingsFile::Values &values, SettingsChange &change)
{
    for (auto value = ring.cbegin(); value != ring.cend(); ++value) {
        values.insert(value.key(), value.value());
        if (own.contains(value.key()) && own.value(value.key()) == value.value())
            continue;
        // An empty value is written again, and a null one is removed.
        const QString before = own.value(value.key());
        change.ringsBefore.insert(value.key(), own.contains(value.key()) && before.isNull()
                                                   ? QString(QLatin1String(""))
                                                   : before);
        change.ringsAfter.insert(value.key(), value.value());
    }
}

QString importedName()
{
    return SettingsFile::nameOf(gesturewidget::settingsnames::hostSection(),
                                gesturewidget::settingsnames::importedKey());
}

// The commands of imported rings and others that are `known`, as the settings keep them. They may be
// new to this computer.
QString identifiersOf(const QList<Bindings> &rings, QStringList known)
{
    for (const Bindings &ring : rings)
        known += ring.four + ring.eight;
    known.removeAll(QString());
    known.removeDuplicates();
    return known.join(QLatin1Char('\n'));
}

void append(QByteArray &text, const QString &line)
{
    text += line.toLocal8Bit() + '\n';
}

void appendScheme(QByteArray &text, int scheme, const QStringList &commands, bool isInUse,
                  const KnownCommands &known)
{
    append(text, (isInUse ? Text::tr("%1 gestures (in use)") : Text::tr("%1 gestures")).arg(scheme));
    const QStringList names = Bindings::directionNames(scheme);
    QStringList shown;
    int width = 0;
    for (const QString &command : commands) {
        shown.append(command.isEmpty() ? QStringLiteral("none") : command.simplified());
        width = std::max(width, static_cast<int>(shown.last().size()));
    }
    for (int i = 0; i < scheme; ++i) {
        const QString caption = known.captionOf(commands.at(i));
        const QString command = caption.isEmpty() ? shown.at(i) : shown.at(i).leftJustified(width + 2);
        append(text, QStringLiteral("  %1 %2%3").arg(names.at(i), -10).arg(command, caption));
    }
}

void appendRing(QByteArray &text, const Bindings &bindings, const KnownCommands &known)
{
    const bool isFour = bindings.scheme == 4;
    appendScheme(text, isFour ? 4 : 8, isFour ? bindings.four : bindings.eight, true, known);
    appendScheme(text, isFour ? 8 : 4, isFour ? bindings.eight : bindings.four, false, known);
}

// Reads a file that is to be imported.
Outcome readText(const QString &path, QByteArray &text)
{
    const FileContent file = FileContent::read(path, SettingsTasks::kMaximalImport);
    text = file.bytes;
    switch (file.state) {
    case FileContent::State::Read:
        return {};
    case FileContent::State::Missing:
        return Outcome::failure(Text::tr("%1: there is no such file").arg(path));
    case FileContent::State::NotAFile:
        return Outcome::failure(Text::tr("%1: this is not a file").arg(path));
    case FileContent::State::TooLarge:
        return Outcome::failure(Text::tr("%1: this is too long for bindings").arg(path));
    default:
        return Outcome::failure(Text::tr("%1: %2").arg(path, file.problem));
    }
}

} // namespace

SettingsTasks::SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands,
                             const QString &usualTrigger)
    : m_program(program)
    , m_file(file)
    , m_site(file)
    , m_commands(commands)
    , m_usualTrigger(usualTrigger)
{
}

Bindings SettingsTasks::bindings() const
{
    return ringOf(m_task);
}

Bindings SettingsTasks::ringOf(const QString &task) const
{
    return Bindings::fromSettings(ringsettings::seenIn(m_site.under(SettingsFile(m_file).read()), task));
}

QString SettingsTasks::obstacle(const SettingsFile::Values &all) const
{
    return m_task.isEmpty() || ringsettings::hasOwnRing(all, m_task)
             ? QString()
             : Text::tr("%1 has no ring of its own, see mouse-gestures --ring").arg(m_task);
}

QStringList SettingsTasks::tasks() const
{
    return ringsettings::ownRings(m_site.under(SettingsFile(m_file).read()));
}

Outcome SettingsTasks::edit(const std::function<QString(Bindings &)> &edit, SettingsChange *made)
{
    SettingsFile file(m_file);
    QString complaint;
    SettingsChange change;
    const bool isDone = file.change([&](const SettingsFile::Values &own) -> SettingsFile::Values {
        const SettingsFile::Values all = m_site.under(own);
        complaint = obstacle(all);
        if (!complaint.isEmpty())
            return {};
        const SettingsFile::Values now = ringsettings::seenIn(all, m_task);
        const Bindings before = Bindings::fromSettings(now);
        Bindings after = before;
        complaint = edit(after);
        if (!complaint.isEmpty())
            return {};
        change = changeBetween(before, after);
        change.task = m_task;
        SettingsFile::Values changes = after.changesFrom(now);
        if (!m_task.isEmpty())
            changes = ringsettings::movedTo(changes, m_task);
        for (auto it = changes.begin(); it != changes.end(); ++it) {
            if (m_site.values().contains(it.key()) && m_site.values().value(it.key()) == it.value())
                it.value() = QString(); // the administrator's counts, also when that changes
        }
        return changes;
    });
    if (!complaint.isEmpty())
        return Outcome::failure(complaint);
    report(isDone ? change : SettingsChange(), made);
    return outcomeOf(isDone, file);
}

Outcome SettingsTasks::takeBack(const SettingsChange &change)
{
    return replace(change.after, change.before, change.task, change.ringsAfter, change.ringsBefore);
}

Outcome SettingsTasks::makeAgain(const SettingsChange &change)
{
    return replace(change.before, change.after, change.task, change.ringsBefore, change.ringsAfter);
}

Outcome SettingsTasks::replace(const SettingsFile::Values &from, const SettingsFile::Values &to,
                               const QString &task, const SettingsFile::Values &ringsFrom,
                               const SettingsFile::Values &ringsTo)
{
    SettingsFile file(m_file);
    QString complaint;
    const bool isDone = file.change([&](const SettingsFile::Values &own) -> SettingsFile::Values {
        const SettingsFile::Values now = ringsettings::seenIn(m_site.under(own), task);
        SettingsFile::Values values = Bindings::fromSettings(now).toSettings();
        bool isSame = task.isEmpty() || ringsettings::hasOwnRing(m_site.under(own), task);
        for (auto it = from.cbegin(); it != from.cend(); ++it)
            isSame = isSame && values.value(it.key()) == it.value();
        for (auto it = ringsFrom.cbegin(); it != ringsFrom.cend(); ++it)
            isSame = isSame && own.value(it.key()) == it.value();
        if (!isSame) {
            complaint = Text::tr("this was changed elsewhere meanwhile, so it stays");
            return {};
        }
        for (auto it = to.cbegin(); it != to.cend(); ++it)
            values.insert(it.key(), it.value());
        SettingsFile::Values changes = Bindings::fromSettings(values).changesFrom(now);
        if (!task.isEmpty())
            changes = ringsettings::movedTo(changes, task);
        for (auto it = ringsTo.cbegin(); it != ringsTo.cend(); ++it)
            changes.insert(it.key(), it.value());
        return changes;
    });
    return complaint.isEmpty() ? outcomeOf(isDone, file) : Outcome::failure(complaint);
}

Outcome SettingsTasks::showBindings() const
{
    const SettingsFile::Values values = m_site.under(SettingsFile(m_file).read());
    const Bindings bindings = Bindings::fromSettings(values);
    Outcome outcome;
    const bool areOn = bindings.enabled && !gesturewidget::CrashNote(m_program, m_file).isThere();
    append(outcome.output,
           (areOn ? Text::tr("gestures in %1: on") : Text::tr("gestures in %1: off")).arg(m_program));
    append(outcome.output, bindings.trigger.isEmpty()
                               ? Text::tr("started with: %1 (default)").arg(m_usualTrigger)
                               : Text::tr("started with: %1").arg(bindings.trigger));
    appendRing(outcome.output, bindings, m_commands);
    const QStringList tasks = ringsettings::ownRings(values);
    for (const QString &task : tasks) {
        append(outcome.output, Text::tr("ring of %1").arg(task));
        appendRing(outcome.output, Bindings::fromSettings(ringsettings::seenIn(values, task)),
                   m_commands);
    }
    return outcome;
}

Outcome SettingsTasks::exported() const
{
    SettingsFile file(m_file);
    if (!file.isReadable())
        return Outcome::failure(Text::tr("%1 cannot be read").arg(m_file));
    const SettingsFile::Values all = m_site.under(file.read());
    if (const QString complaint = obstacle(all); !complaint.isEmpty())
        return Outcome::failure(complaint);
    QMap<QString, Bindings> rings;
    const QStringList tasks = m_task.isEmpty() ? ringsettings::ownRings(all) : QStringList();
    for (const QString &task : tasks)
        rings.insert(task, Bindings::fromSettings(ringsettings::seenIn(all, task)));
    Outcome outcome;
    outcome.output =
        bindingsToJson(Bindings::fromSettings(ringsettings::seenIn(all, m_task)), m_program, rings);
    return outcome;
}

Outcome SettingsTasks::showBindingsAsJson() const
{
    Outcome outcome;
    outcome.output = bindingsToJson(bindings(), m_program);
    return outcome;
}

Outcome SettingsTasks::bind(const QString &direction, const QString &command)
{
    const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
    if (std::any_of(command.begin(), command.end(), isControl))
        return Outcome::failure(Text::tr("a command's identifier has no control characters"));
    QString wanted;
    if (!command.isEmpty() && command != QLatin1String("none")) {
        const QString complaint = m_commands.resolve(command, m_program, wanted);
        if (!complaint.isEmpty())
            return Outcome::failure(complaint);
    }

    Outcome outcome = edit([&](Bindings &bindings) -> QString {
        const QStringList names = Bindings::directionNames(bindings.scheme);
        const auto index = names.indexOf(direction.toLower());
        if (index < 0)
            return Text::tr("\"%1\" is not one of the %2 directions: %3")
                .arg(direction)
                .arg(bindings.scheme)
                .arg(names.join(QStringLiteral(", ")));
        bindings.bind(static_cast<int>(index), wanted);
        return {};
    });
    if (outcome.isDone() && !wanted.isEmpty() && !m_commands.canJudge(wanted))
        append(outcome.output,
               Text::tr("%1 has not run with gestures yet; if it has no command \"%2\", the "
                        "direction becomes empty")
                   .arg(m_program, wanted.simplified()));
    return outcome;
}

Outcome SettingsTasks::setRing(const QString &task, bool isOwn, const QHash<QString, QString> &first)
{
    SettingsFile file(m_file);
    const bool isDone = file.change([&](const SettingsFile::Values &own) {
        const SettingsFile::Values now = m_site.under(own);
        return isOwn ? ringsettings::ownRing(now, task, first, Bindings::fromSettings(now).toSettings(),
                                             m_site.values())
                     : ringsettings::sharedRing(task, m_site.values());
    });
    return outcomeOf(isDone, file);
}

Outcome SettingsTasks::resetRing(const QHash<QString, QString> &first, SettingsChange *made)
{
    return edit(
        [&](Bindings &ring) -> QString {
            const SettingsFile::Values shared = ringOf({}).toSettings();
            // The section of a task is used to see what a new ring would have.
            const SettingsFile::Values fresh = ringsettings::hasOwnRing(m_site.values(), m_task)
                                                 ? m_site.values()
                                                 : ringsettings::ownRing({}, m_task, first, shared);
            const Bindings wanted = Bindings::fromSettings(ringsettings::seenIn(fresh, m_task));
            ring.scheme = wanted.scheme;
            ring.four = wanted.four;
            ring.eight = wanted.eight;
            return {};
        },
        made);
}

Outcome SettingsTasks::reset(SettingsChange *made, const QHash<QString, QString> &first)
{
    if (!m_task.isEmpty())
        return resetRing(first, made);
    SettingsFile file(m_file);
    QString trigger;
    SettingsChange change;
    const bool isDone = file.change([&](const SettingsFile::Values &own) {
        const Bindings before = Bindings::fromSettings(m_site.under(own));
        trigger = before.trigger;
        Bindings bindings = Bindings::initial();
        bindings.trigger = Bindings::fromSettings(own).trigger;
        SettingsFile::Values values = bindings.toSettings();
        for (auto it = values.begin(); it != values.end(); ++it) {
            const bool isOfModule =
                it.key().startsWith(gesturewidget::settingsnames::moduleSection() + QLatin1Char('/'));
            if (isOfModule && m_site.values().contains(it.key()))
                it.value() = QString(); // so that the administrator's counts
        }
        const QString name = Bindings::triggerName();
        if (bindings.trigger.isEmpty() && m_site.values().contains(name))
            values.remove(name);
        change = changeBetween(before, Bindings::fromSettings(m_site.under(merged(own, values))));
        return values;
    });
    report(isDone ? change : SettingsChange(), made);
    Outcome outcome = outcomeOf(isDone, file);
    if (isDone)
        append(outcome.output, Text::tr("gestures are still started with: %1")
                                   .arg(trigger.isEmpty() ? m_usualTrigger : trigger));
    return outcome;
}

Outcome SettingsTasks::switchOn(SettingsChange *made)
{
    QString problem;
    if (!gesturewidget::CrashNote(m_program, m_file).remove(&problem))
        return Outcome::failure(problem);
    return edit(
        [](Bindings &bindings) {
            bindings.enabled = true;
            return QString();
        },
        made);
}

Outcome SettingsTasks::exportTo(const QString &path) const
{
    Outcome outcome = exported();
    if (!outcome.isDone())
        return outcome;
    if (!FileWriter(path, FileWriter::Readers::Usual).write(outcome.output))
        return Outcome::failure(Text::tr("%1 cannot be written").arg(path));
    return {};
}

Outcome SettingsTasks::importFrom(const QString &path, SettingsChange *made)
{
    QByteArray text;
    const Outcome reading = readText(path, text);
    return reading.isDone() ? importText(text, path, made) : reading;
}

Outcome SettingsTasks::readImport(const QString &path, Bindings &bindings,
                                  QMap<QString, Bindings> &rings) const
{
    QByteArray text;
    const Outcome reading = readText(path, text);
    return reading.isDone() ? parseImport(text, path, bindings, rings) : reading;
}

Outcome SettingsTasks::parseImport(const QByteArray &text, const QString &source, Bindings &bindings,
                                   QMap<QString, Bindings> &rings) const
{
    if (text.size() > kMaximalImport)
        return Outcome::failure(Text::tr("%1: this is too long for bindings").arg(source));
    QString problem;
    if (!bindingsFromJson(text, m_program, bindings, problem, &rings))
        return Outcome::failure(Text::tr("%1, %2").arg(source, problem));
    return {};
}

Outcome SettingsTasks::importText(const QByteArray &text, const QString &source, SettingsChange *made)
{
    Bindings bindings;
    QMap<QString, Bindings> rings;
    Outcome parsing = parseImport(text, source, bindings, rings);
    if (!parsing.isDone())
        return parsing;
    SettingsFile file(m_file);
    SettingsChange change;
    change.task = m_task;
    QString complaint;
    const bool isDone = file.change(
        [&](const SettingsFile::Values &own) -> SettingsFile::Values {
            const SettingsFile::Values all = m_site.under(own);
            complaint = obstacle(all);
            if (!complaint.isEmpty())
                return {};
            const Bindings before = Bindings::fromSettings(ringsettings::seenIn(all, m_task));
            SettingsFile::Values values = bindings.toSettings();
            QList<Bindings> imported{bindings};
            QStringList known;
            if (!m_task.isEmpty()) {
                values = ringValues(m_task, bindings);
                bindings.enabled = before.enabled; // of the program, not of the ring
                bindings.trigger = before.trigger;
                known = own.value(importedName()).split(QLatin1Char('\n'));
            }
            const SettingsChange shared = changeBetween(before, bindings);
            change.before = shared.before;
            change.after = shared.after;
            for (auto it = rings.cbegin(); it != rings.cend() && m_task.isEmpty(); ++it) {
                imported.append(it.value());
                addRing(ringValues(it.key(), it.value()), own, values, change);
            }
            values.insert(importedName(), identifiersOf(imported, known));
            return values;
        },
        m_file + QLatin1String(".before-import"));
    if (!complaint.isEmpty())
        return Outcome::failure(complaint);
    report(isDone ? change : SettingsChange(), made);
    return isDone ? Outcome()
                  : Outcome::failure(Text::tr("%1, so nothing is imported").arg(file.problem()));
}

Outcome SettingsTasks::setTrigger(const QString &text, SettingsChange *made)
{
    QString wanted;
    if (text != QLatin1String("default")) {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers keys = Qt::NoModifier;
        if (!gesturewidget::parseTrigger(text, button, keys))
            return Outcome::failure(Text::tr("\"%1\" names no trigger, such as right, middle or "
                                             "ctrl+right; \"default\" is the program's usual one")
                                        .arg(text));
        if (!gesturewidget::isUsableTrigger(button, keys))
            return Outcome::failure(Text::tr("the left button alone is for drawing, add a key to it, "
                                             "such as ctrl+left"));
        wanted = gesturewidget::triggerText(button, keys);
    }
    SettingsFile file(m_file);
    SettingsChange change;
    const bool isDone = file.change([&](const SettingsFile::Values &own) {
        const bool isOfSite = wanted.isEmpty() && m_site.values().contains(Bindings::triggerName());
        SettingsFile::Values values;
        values.insert(Bindings::triggerName(), isOfSite          ? QString()
                                               : wanted.isNull() ? QString(QLatin1String(""))
                                                                 : wanted);
        change = changeBetween(Bindings::fromSettings(m_site.under(own)),
                               Bindings::fromSettings(m_site.under(merged(own, values))));
        return values;
    });
    report(isDone ? change : SettingsChange(), made);
    return outcomeOf(isDone, file);
}

} // namespace launcher
