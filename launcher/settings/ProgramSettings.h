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
    [[nodiscard]] static ProgramSettings of(const Subject &subject);

    gesturewidget::ProgramProfile profile;
    QString usualTrigger; // see Bindings::usualTrigger()
    KnownCommands commands;
    SettingsTasks tasks;
};

} // namespace launcher
