#pragma once

#include "launcher/Outcome.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"

#include <QString>

namespace launcher {

// Shows and changes what is kept for one program, in the file in which the host keeps it. A
// program that is running sees it at its next gesture.
class SettingsTasks
{
public:
    // The program's name, by which its settings are found, their file, and its commands.
    SettingsTasks(const QString &program, const QString &file, const KnownCommands &commands = {});

    // What is kept.
    [[nodiscard]] Bindings bindings() const;
    // Both schemes, the one in use first, with the captions of the commands that are known.
    [[nodiscard]] Outcome showBindings() const;
    [[nodiscard]] Outcome showBindingsAsJson() const;
    // Puts a command, named as KnownCommands has it, into a direction of the scheme in use;
    // "" and "none" empty it. A command that had another direction of that scheme leaves it.
    [[nodiscard]] Outcome bind(const QString &direction, const QString &command);
    // All fourteen values as they are at first. What starts a gesture stays.
    [[nodiscard]] Outcome reset();
    // To a file, in one step.
    [[nodiscard]] Outcome exportTo(const QString &path) const;
    // Takes over a file that exportTo() wrote; the settings as they were are kept beside
    // them as "<file>.before-import".
    [[nodiscard]] Outcome importFrom(const QString &path);
    // What starts a gesture, see host/files/TriggerText.h; "default" is the profile's. Not the
    // left button alone, with which people draw.
    [[nodiscard]] Outcome setTrigger(const QString &text);

private:
    QString m_program;
    QString m_file;
    KnownCommands m_commands;
};

} // namespace launcher
