// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SiteSettings.h"
#include "launcher/Outcome.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <functional>

namespace launcher {

// A change of the settings by one task, kept so that it can be taken back.
struct SettingsChange
{
    [[nodiscard]] bool isEmpty() const { return after.isEmpty() && ringsAfter.isEmpty(); }

    // The values that changed. A value that was not stored has its initial value in `before`.
    gesturewidget::SettingsFile::Values before;
    gesturewidget::SettingsFile::Values after;
    QString task; // whose ring it was, see SettingsTasks::setTask()
    // Changed values of the rings of tasks, as the file has them; null for none. An import changes
    // several rings at once.
    gesturewidget::SettingsFile::Values ringsBefore;
    gesturewidget::SettingsFile::Values ringsAfter;
};

// Shows and changes what is kept for one program, in the file where the host keeps it. A running
// program sees the change at its next gesture. Two tasks at once keep each other's changes.
class SettingsTasks
{
public:
    // `program` is the name by which the settings are found, `file` their file, `commands` are the
    // program's commands, and `usualTrigger` is the trigger of its profile.
    SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands = {},
                  const QString &usualTrigger = QStringLiteral("right"));

    // The tasks that have rings of their own, see host/files/RingSettings.h.
    [[nodiscard]] QStringList tasks() const;
    // From now on, bindings(), edit(), reset(), exports and imports are about the ring of a task alone;
    // empty for the shared ring. All other functions are always about the shared one.
    void setTask(const QString &task) { m_task = task; }
    [[nodiscard]] const QString &task() const { return m_task; }

    // Reads the bindings from the file.
    [[nodiscard]] Bindings bindings() const;
    // Gives `edit` the bindings as they are in the file now, and writes what it changes. No other
    // program writes in between. `edit` returns an empty text, or a line that says why nothing is
    // to be changed. `made` is filled with what changed; it may be null.
    [[nodiscard]] Outcome edit(const std::function<QString(Bindings &)> &edit,
                               SettingsChange *made = nullptr);
    // Takes a change back, or makes it again. Fails and changes nothing if somebody else has
    // changed one of its values since.
    [[nodiscard]] Outcome takeBack(const SettingsChange &change);
    [[nodiscard]] Outcome makeAgain(const SettingsChange &change);
    // Both schemes, the one in use first, with the captions of the commands that are known; then the
    // rings of single tasks.
    [[nodiscard]] Outcome showBindings() const;
    [[nodiscard]] Outcome showBindingsAsJson() const;
    // Binds a command to a direction of the scheme in use. KnownCommands::resolve() says how to
    // name the command; "" and "none" empty the direction. If the command had another direction of
    // that scheme, it loses that one.
    [[nodiscard]] Outcome bind(const QString &direction, const QString &command);
    // Gives a task a ring of its own, or lets it use the shared one again. Its own ring is kept then
    // and comes back later. `first` are the profile's first bindings for the task, by key.
    [[nodiscard]] Outcome setRing(const QString &task, bool isOwn, const QHash<QString, QString> &first);
    // Brings back all fourteen initial values, which are the administrator's where there are some.
    // The trigger stays; the output says so. With a task, brings back the first bindings of its ring:
    // those of a ring that the administrator gave it, else `first`, see setRing(), and the shared ring's
    // where those are missing.
    [[nodiscard]] Outcome reset(SettingsChange *made = nullptr,
                                const QHash<QString, QString> &first = {});
    // Switches gestures on: in the settings, and after the program has crashed in their code.
    [[nodiscard]] Outcome switchOn(SettingsChange *made = nullptr);
    // All bindings as JSON, with the rings of tasks; with a task, its ring alone, in the form of a
    // shared one. Fails if the settings cannot be read, since what counts then is not the person's.
    [[nodiscard]] Outcome exported() const;
    // Writes that to a file, in one step.
    [[nodiscard]] Outcome exportTo(const QString &path) const;
    // Imports a file that exportTo() wrote. The rings of tasks that the file does not name stay. With a
    // task, only its ring changes: it becomes the file's shared one. Keeps the old settings beside the
    // new ones as "<file>.before-import".
    [[nodiscard]] Outcome importFrom(const QString &path, SettingsChange *made = nullptr);
    // The same with a text that came from elsewhere; `source` names it in complaints.
    [[nodiscard]] Outcome importText(const QByteArray &text, const QString &source,
                                     SettingsChange *made = nullptr);
    // Reads the bindings that importFrom() would import, and the rings of tasks by their names. Changes
    // nothing.
    [[nodiscard]] Outcome readImport(const QString &path, Bindings &bindings,
                                     QMap<QString, Bindings> &rings) const;
    // The ring of a task; the shared one if it has none of its own.
    [[nodiscard]] Bindings ringOf(const QString &task) const;
    // Sets the trigger, see host/files/TriggerText.h; "default" is the profile's trigger. Refuses
    // the left button alone, with which people draw.
    [[nodiscard]] Outcome setTrigger(const QString &text, SettingsChange *made = nullptr);

    // Bytes. Far more than any export has; a longer one is some other file.
    static constexpr int kMaximalImport = 128 * 1024;

private:
    [[nodiscard]] Outcome parseImport(const QByteArray &text, const QString &source, Bindings &bindings,
                                      QMap<QString, Bindings> &rings) const;
    // Returns why the task's ring cannot be changed; empty without a task.
    [[nodiscard]] QString obstacle(const gesturewidget::SettingsFile::Values &all) const;
    [[nodiscard]] Outcome resetRing(const QHash<QString, QString> &first, SettingsChange *made);
    // Writes `to` where the file means `from`. In the rings of tasks, writes `ringsTo` where the file
    // has `ringsFrom`.
    [[nodiscard]] Outcome replace(const gesturewidget::SettingsFile::Values &from,
                                  const gesturewidget::SettingsFile::Values &to, const QString &task,
                                  const gesturewidget::SettingsFile::Values &ringsFrom,
                                  const gesturewidget::SettingsFile::Values &ringsTo);

    QString m_program;
    QString m_file;
    gesturewidget::SiteSettings m_site;
    KnownCommands m_commands;
    QString m_usualTrigger;
    QString m_task;
};

} // namespace launcher
