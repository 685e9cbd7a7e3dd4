// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"

#include <QHash>
#include <QString>

namespace launcher {

// Shows and changes what is kept for one program, in the file where the host keeps it. A running
// program sees the change at its next gesture. Two tasks at once keep each other's changes.
class SettingsTasks
{
public:
    // `program` is the name by which the settings are found, `file` their file, `commands` are the
    // program's commands, and `usualTrigger` is the trigger of its profile.
    SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands = {},
                  const QString &usualTrigger = QStringLiteral("right"));

    // Lets bind() change the ring that a task has of its own, see host/files/RingSettings.h; empty for
    // the shared ring.
    void chooseRing(const QString &task) { m_ring = task; }

    // Reads the bindings of the shared ring from the file.
    [[nodiscard]] Bindings bindings() const;
    // Both schemes, the one in use first, with the captions of the commands that are known; then the
    // rings of single tasks.
    [[nodiscard]] Outcome showBindings() const;
    [[nodiscard]] Outcome showBindingsAsJson() const;
    // Binds a command to a direction of the scheme in use. KnownCommands::resolve() says how to
    // name the command; "" and "none" empty the direction. If the command had another direction of
    // that scheme, it loses that one.
    [[nodiscard]] Outcome bind(const QString &direction, const QString &command);
    // Gives a task a ring of its own, or lets it use the shared one again. `first` are the profile's
    // first bindings for the task, by key.
    [[nodiscard]] Outcome setRing(const QString &task, const QString &kind,
                                  const QHash<QString, QString> &first);
    // Brings back all fourteen initial values. The trigger stays; the output says so.
    [[nodiscard]] Outcome reset();
    // Writes all bindings as JSON to a file, in one step.
    [[nodiscard]] Outcome exportTo(const QString &path) const;
    // Imports a file that exportTo() wrote. Keeps the old settings beside the new ones as
    // "<file>.before-import".
    [[nodiscard]] Outcome importFrom(const QString &path);
    // The same with a text that came from elsewhere; `source` names it in complaints.
    [[nodiscard]] Outcome importText(const QByteArray &text, const QString &source);
    // Sets the trigger, see host/files/TriggerText.h; "default" is the profile's trigger. Refuses
    // the left button alone, with which people draw.
    [[nodiscard]] Outcome setTrigger(const QString &text);

    // Bytes. Far more than any export has; a longer one is some other file.
    static constexpr int kMaximalImport = 128 * 1024;

private:
    QString m_program;
    QString m_file;
    KnownCommands m_commands;
    QString m_usualTrigger;
    QString m_ring;
};

} // namespace launcher
