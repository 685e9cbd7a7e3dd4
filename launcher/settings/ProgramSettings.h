// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/ProgramProfile.h"
#include "launcher/programs/Subject.h"
#include "launcher/settings/KnownCommands.h"
#include "launcher/settings/SettingsTasks.h"

#include <QString>

namespace launcher {

// All that is kept about one program, read from where its host keeps it.
struct ProgramSettings
{
    // `notice` is filled with one line if the settings are damaged or cannot be read. A damaged file
    // is restored by the first who reads it. So without `notice`, nothing is restored here: whoever
    // reads the file next says the line.
    [[nodiscard]] static ProgramSettings of(const Subject &subject, QString *notice = nullptr);

    gesturewidget::ProgramProfile profile;
    QString usualTrigger; // see Bindings::usualTrigger()
    KnownCommands commands;
    SettingsTasks tasks;
};

} // namespace launcher
