// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"

#include <QString>
#include <QStringList>

namespace launcher {

// What is kept for one program: which command lies in which direction, and what starts a gesture.
struct Bindings
{
    // Direction names by direction index, counter-clockwise from up. `scheme` is 4 or 8.
    [[nodiscard]] static QStringList directionNames(int scheme);

    // Reads the settings of a program. If no direction of a scheme is stored, the scheme has its
    // initial commands. Once one is stored, a missing one is empty.
    [[nodiscard]] static Bindings fromSettings(const gesturewidget::SettingsFile::Values &values);
    // The bindings before anybody has chosen anything. The trigger is the profile's.
    [[nodiscard]] static Bindings initial();
    // All of it as the settings hold it.
    [[nodiscard]] gesturewidget::SettingsFile::Values toSettings() const;
    // What has to be written so that the settings, which hold `now`, mean this.
    [[nodiscard]] gesturewidget::SettingsFile::Values
    changesFrom(const gesturewidget::SettingsFile::Values &now) const;

    [[nodiscard]] QStringList &commands() { return scheme == 4 ? four : eight; }

    bool enabled = true;
    int scheme = 8; // 4 or 8
    // Identifiers of commands by direction index; empty for none.
    QStringList four;
    QStringList eight;
    // Empty for the trigger of the profile, see host/files/TriggerText.h.
    QString trigger;
};

} // namespace launcher
