// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/ProgramProfile.h"
#include "host/files/SettingsFile.h"

#include <QString>
#include <QStringList>

namespace launcher {

// The settings of one program: which command lies in which direction, and the trigger.
struct Bindings
{
    // Direction names by direction index, counter-clockwise from up. `scheme` is 4 or 8.
    [[nodiscard]] static QStringList directionNames(int scheme);
    // "up left" for the name "up-left", in the person's language; any other text as it is.
    [[nodiscard]] static QString directionInWords(const QString &name);

    // Reads the settings of a program. If no direction of a scheme is stored, the scheme has its
    // initial commands. Once one is stored, a missing one is empty.
    [[nodiscard]] static Bindings fromSettings(const gesturewidget::SettingsFile::Values &values);
    // The bindings before anybody has chosen anything. The trigger is the profile's.
    [[nodiscard]] static Bindings initial();
    // Returns everything in the form of the settings.
    [[nodiscard]] gesturewidget::SettingsFile::Values toSettings() const;
    // Returns the values to write so that settings that hold `now` mean these bindings.
    [[nodiscard]] gesturewidget::SettingsFile::Values
    changesFrom(const gesturewidget::SettingsFile::Values &now) const;

    // The commands of the scheme in use.
    [[nodiscard]] QStringList &commands() { return scheme == 4 ? four : eight; }
    [[nodiscard]] const QStringList &commands() const { return scheme == 4 ? four : eight; }
    // Puts a command into a direction of the scheme in use; an empty one empties it. If the command
    // had another direction there, it loses that one.
    void bind(int direction, const QString &command);
    // Exchanges the commands of two directions of the scheme in use.
    void swap(int direction, int other);

    // The trigger if the person chooses none: the profile's, or else the one that the host found to
    // suit the program when it ran. Before the first run, the right button.
    [[nodiscard]] static QString usualTrigger(const gesturewidget::ProgramProfile &profile,
                                              const gesturewidget::SettingsFile::Values &settings);

    // The name of the trigger among the values of the settings.
    [[nodiscard]] static QString triggerName();

    bool enabled = true;
    int scheme = 8; // 4 or 8
    // Identifiers of commands by direction index; empty for none.
    QStringList four;
    QStringList eight;
    // Empty for the trigger of the profile, see host/files/TriggerText.h.
    QString trigger;
};

} // namespace launcher
