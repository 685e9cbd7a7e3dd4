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

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::FileContent;
using gesturewidget::FileWriter;
using gesturewidget::SettingsFile;
namespace ringsettings = gesturewidget::ringsettings;

Bindings read(const QString &path)
{
    return Bindings::fromSettings(SettingsFile(path).read());
}

Outcome outcomeOf(bool isDone, const SettingsFile &file)
{
    return isDone ? Outcome() : Outcome::failure(file.problem());
}

void append(QByteArray &text, const QString &line)
{
    text += line.toLocal8Bit() + '\n';
}

void appendScheme(QByteArray &text, int scheme, const QStringList &commands, bool isInUse,
                  const KnownCommands &known)
{
    append(text, QStringLiteral("%1 gestures%2")
                     .arg(scheme)
                     .arg(isInUse ? QStringLiteral(" (in use)") : QString()));
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

} // namespace

SettingsTasks::SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands,
                             const QString &usualTrigger)
    : m_program(program)
    , m_file(file)
    , m_commands(commands)
    , m_usualTrigger(usualTrigger)
{
}

Bindings SettingsTasks::bindings() const
{
    return read(m_file);
}

Outcome SettingsTasks::showBindings() const
{
    const SettingsFile::Values values = SettingsFile(m_file).read();
    const Bindings bindings = Bindings::fromSettings(values);
    Outcome outcome;
    append(outcome.output,
           QStringLiteral("gestures in %1: %2")
               .arg(m_program, bindings.enabled ? QStringLiteral("on") : QStringLiteral("off")));
    append(outcome.output, bindings.trigger.isEmpty()
                               ? QStringLiteral("started with: %1 (default)").arg(m_usualTrigger)
                               : QStringLiteral("started with: %1").arg(bindings.trigger));
    appendRing(outcome.output, bindings, m_commands);
    const QStringList tasks = ringsettings::ownRings(values);
    for (const QString &task : tasks) {
        append(outcome.output, QStringLiteral("ring of %1").arg(task));
        appendRing(outcome.output, Bindings::fromSettings(ringsettings::seenIn(values, task)),
                   m_commands);
    }
    return outcome;
}

Outcome SettingsTasks::showBindingsAsJson() const
{
    Outcome outcome;
    outcome.output = bindingsToJson(read(m_file), m_program);
    return outcome;
}

Outcome SettingsTasks::bind(const QString &direction, const QString &command)
{
    const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
    if (std::any_of(command.begin(), command.end(), isControl))
        return Outcome::failure(QStringLiteral("a command's identifier has no control characters"));
    QString wanted;
    if (!command.isEmpty() && command != QLatin1String("none")) {
        const QString complaint = m_commands.resolve(command, m_program, wanted);
        if (!complaint.isEmpty())
            return Outcome::failure(complaint);
    }

    SettingsFile file(m_file);
    QString complaint;
    const bool isDone = file.change([&](const SettingsFile::Values &now) -> SettingsFile::Values {
        if (!m_ring.isEmpty() && !ringsettings::hasOwnRing(now, m_ring)) {
            complaint =
                QStringLiteral("%1 has no ring of its own, see mouse-gestures --ring").arg(m_ring);
            return {};
        }
        const SettingsFile::Values seen = ringsettings::seenIn(now, m_ring);
        Bindings bindings = Bindings::fromSettings(seen);
        const QStringList names = Bindings::directionNames(bindings.scheme);
        const auto index = names.indexOf(direction.toLower());
        if (index < 0) {
            complaint = QStringLiteral("\"%1\" is none of the %2 directions: %3")
                            .arg(direction)
                            .arg(bindings.scheme)
                            .arg(names.join(QStringLiteral(", ")));
            return {};
        }
        QStringList &commands = bindings.commands();
        for (QString &other : commands) {
            if (other == wanted)
                other.clear();
        }
        commands[index] = wanted;
        const SettingsFile::Values changes = bindings.changesFrom(seen);
        return m_ring.isEmpty() ? changes : ringsettings::movedTo(changes, m_ring);
    });
    return complaint.isEmpty() ? outcomeOf(isDone, file) : Outcome::failure(complaint);
}

Outcome SettingsTasks::setRing(const QString &task, const QString &kind,
                               const QHash<QString, QString> &first)
{
    const bool isOwn = kind == QLatin1String("own");
    if (!isOwn && kind != QLatin1String("shared"))
        return Outcome::failure(QStringLiteral("a ring is \"own\" or \"shared\", not \"%1\"").arg(kind));
    SettingsFile file(m_file);
    const bool isDone = file.change([&](const SettingsFile::Values &now) {
        return isOwn ? ringsettings::ownRing(now, task, first, Bindings::fromSettings(now).toSettings())
                     : ringsettings::sharedRing(task);
    });
    return outcomeOf(isDone, file);
}

Outcome SettingsTasks::reset()
{
    SettingsFile file(m_file);
    QString trigger;
    const bool isDone = file.change([&](const SettingsFile::Values &now) {
        Bindings bindings = Bindings::initial();
        bindings.trigger = trigger = Bindings::fromSettings(now).trigger;
        return bindings.toSettings();
    });
    Outcome outcome = outcomeOf(isDone, file);
    if (isDone)
        append(outcome.output, QStringLiteral("gestures are still started with: %1")
                                   .arg(trigger.isEmpty() ? m_usualTrigger : trigger));
    return outcome;
}

Outcome SettingsTasks::exportTo(const QString &path) const
{
    if (!FileWriter(path, FileWriter::Readers::Usual).write(showBindingsAsJson().output))
        return Outcome::failure(QStringLiteral("%1 cannot be written").arg(path));
    return {};
}

Outcome SettingsTasks::importFrom(const QString &path)
{
    const FileContent file = FileContent::read(path, kMaximalImport);
    switch (file.state) {
    case FileContent::State::Read:
        return importText(file.bytes, path);
    case FileContent::State::Missing:
        return Outcome::failure(QStringLiteral("%1: there is no such file").arg(path));
    case FileContent::State::NotAFile:
        return Outcome::failure(QStringLiteral("%1: this is not a file").arg(path));
    case FileContent::State::TooLarge:
        return Outcome::failure(QStringLiteral("%1: this is too long for bindings").arg(path));
    default:
        return Outcome::failure(QStringLiteral("%1: %2").arg(path, file.problem));
    }
}

Outcome SettingsTasks::importText(const QByteArray &text, const QString &source)
{
    if (text.size() > kMaximalImport)
        return Outcome::failure(QStringLiteral("%1: this is too long for bindings").arg(source));
    Bindings bindings;
    QString problem;
    if (!bindingsFromJson(text, m_program, bindings, problem))
        return Outcome::failure(QStringLiteral("%1, %2").arg(source, problem));

    SettingsFile file(m_file);
    const bool isDone =
        file.change([&bindings](const SettingsFile::Values &) { return bindings.toSettings(); },
                    m_file + QLatin1String(".before-import"));
    return isDone ? Outcome()
                  : Outcome::failure(file.problem() + QLatin1String(", so nothing is imported"));
}

Outcome SettingsTasks::setTrigger(const QString &text)
{
    QString wanted;
    if (text != QLatin1String("default")) {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers keys = Qt::NoModifier;
        if (!gesturewidget::parseTrigger(text, button, keys))
            return Outcome::failure(QStringLiteral("\"%1\" names no trigger, such as right, middle or "
                                                   "ctrl+right; \"default\" is the program's usual one")
                                        .arg(text));
        if (!gesturewidget::isUsableTrigger(button, keys))
            return Outcome::failure(
                QStringLiteral("the left button alone is for drawing, add a key to it, "
                               "such as ctrl+left"));
        wanted = gesturewidget::triggerText(button, keys);
    }
    SettingsFile file(m_file);
    SettingsFile::Values values;
    values.insert(SettingsFile::nameOf(gesturewidget::settingsnames::hostSection(),
                                       gesturewidget::settingsnames::triggerKey()),
                  wanted);
    return outcomeOf(file.write(values), file);
}

} // namespace launcher
