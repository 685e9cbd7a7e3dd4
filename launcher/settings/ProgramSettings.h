// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/ProgramProfile.h"
#include "launcher/programs/Subject.h"
#include "launcher/settings/KnownCommands.h"
#include "launcher/settings/SettingsTasks.h"

#include <QString>
#include <QStringList>

namespace launcher {

// All that is kept about one program, read from where its host keeps it.
struct ProgramSettings
{
    // `notice` is filled with one line if the settings are damaged or cannot be read. The first reader
    // restores a damaged file and says so. Without `notice`, this is not the first reader: it restores
    // nothing and leaves that to the next one.
    [[nodiscard]] static ProgramSettings of(const Subject &subject, QString *notice = nullptr);
    // Reads everything again but the commands, which are the largest part by far.
    void update(const Subject &subject, QString *notice);

    // The tasks that can have rings of their own, as far as they are known: those for which the
    // profile has first bindings, and the entries of the menu in which the program changes its task.
    [[nodiscard]] QStringList tasksOfProgram() const;

    gesturewidget::ProgramProfile profile;
    QString usualTrigger; // see Bindings::usualTrigger()
    KnownCommands commands;
    SettingsTasks tasks;
};

} // namespace launcher
