// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/SettingsTasks.h"

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

// The settings for imported bindings. Their commands may be new to this computer.
SettingsFile::Values imported(const Bindings &bindings)
{
    SettingsFile::Values values = bindings.toSettings();
    QStringList identifiers = bindings.four + bindings.eight;
    identifiers.removeAll(QString());
    identifiers.removeDuplicates();
    values.insert(SettingsFile::nameOf(gesturewidget::settingsnames::hostSection(),
                                       gesturewidget::settingsnames::importedKey()),
                  identifiers.join(QLatin1Char('\n')));
    return values;
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
    return Bindings::fromSettings(
        ringsettings::seenIn(m_site.under(SettingsFile(m_file).read()), m_task));
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
        if (!m_task.isEmpty() && !ringsettings::hasOwnRing(all, m_task)) {
            complaint = Text::tr("%1 has no ring of its own, see mouse-gestures --ring").arg(m_task);
            return {};
        }
        const SettingsFile::Values now = ringsettings::seenIn(all, m_task);
        const Bindings before = Bindings::fromSettings(now);
        Bindings after = before;
        complaint = edit(after);
        if (!complaint.isEmpty())
            return {};
        change = changeBetween(before, after);
        change.task = m_task;
        const SettingsFile::Values changes = after.changesFrom(now);
        return m_task.isEmpty() ? changes : ringsettings::movedTo(changes, m_task);
    });
    if (!complaint.isEmpty())
        return Outcome::failure(complaint);
    report(isDone ? change : SettingsChange(), made);
    return outcomeOf(isDone, file);
}

Outcome SettingsTasks::takeBack(const SettingsChange &change)
{
    return replace(change.after, change.before, change.task);
}

Outcome SettingsTasks::makeAgain(const SettingsChange &change)
{
    return replace(change.before, change.after, change.task);
}

Outcome SettingsTasks::replace(const SettingsFile::Values &from, const SettingsFile::Values &to,
                               const QString &task)
{
    const QString present = std::exchange(m_task, task);
    Outcome outcome = edit([&](Bindings &bindings) -> QString {
        SettingsFile::Values values = bindings.toSettings();
        for (auto it = from.cbegin(); it != from.cend(); ++it) {
            if (values.value(it.key()) != it.value())
                return Text::tr("this was changed elsewhere meanwhile, so it stays");
        }
        for (auto it = to.cbegin(); it != to.cend(); ++it)
            values.insert(it.key(), it.value());
        bindings = Bindings::fromSettings(values);
        return {};
    });
    m_task = present;
    return outcome;
}

Outcome SettingsTasks::showBindings() const
{
    const SettingsFile::Values values = m_site.under(SettingsFile(m_file).read());
    const Bindings bindings = Bindings::fromSettings(values);
    Outcome outcome;
    append(outcome.output,
           (bindings.enabled ? Text::tr("gestures in %1: on") : Text::tr("gestures in %1: off"))
               .arg(m_program));
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
        return isOwn ? ringsettings::ownRing(now, task, first, Bindings::fromSettings(now).toSettings())
                     : ringsettings::sharedRing(task);
    });
    return outcomeOf(isDone, file);
}

Outcome SettingsTasks::reset(SettingsChange *made)
{
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

Outcome SettingsTasks::exportTo(const QString &path) const
{
    if (!FileWriter(path, FileWriter::Readers::Usual).write(showBindingsAsJson().output))
        return Outcome::failure(Text::tr("%1 cannot be written").arg(path));
    return {};
}

Outcome SettingsTasks::importFrom(const QString &path, SettingsChange *made)
{
    QByteArray text;
    const Outcome reading = readText(path, text);
    return reading.isDone() ? importText(text, path, made) : reading;
}

Outcome SettingsTasks::readImport(const QString &path, Bindings &bindings) const
{
    QByteArray text;
    const Outcome reading = readText(path, text);
    return reading.isDone() ? parseImport(text, path, bindings) : reading;
}

Outcome SettingsTasks::parseImport(const QByteArray &text, const QString &source,
                                   Bindings &bindings) const
{
    if (text.size() > kMaximalImport)
        return Outcome::failure(Text::tr("%1: this is too long for bindings").arg(source));
    QString problem;
    if (!bindingsFromJson(text, m_program, bindings, problem))
        return Outcome::failure(Text::tr("%1, %2").arg(source, problem));
    return {};
}

Outcome SettingsTasks::importText(const QByteArray &text, const QString &source, SettingsChange *made)
{
    Bindings bindings;
    Outcome parsing = parseImport(text, source, bindings);
    if (!parsing.isDone())
        return parsing;

    SettingsFile file(m_file);
    SettingsChange change;
    const bool isDone = file.change(
        [&](const SettingsFile::Values &now) {
            change = changeBetween(Bindings::fromSettings(m_site.under(now)), bindings);
            return imported(bindings);
        },
        m_file + QLatin1String(".before-import"));
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
