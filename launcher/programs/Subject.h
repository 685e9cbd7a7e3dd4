// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace launcher {

// The folder of the running program, where all programs of this project are installed.
[[nodiscard]] QByteArray launcherFolder();
// The full path of mouse-gestures in that folder.
[[nodiscard]] QByteArray launcherPath();

// The profile's file for a program of that name, from the first of `folders` that has one; empty if
// none has.
[[nodiscard]] QString profileFile(const QString &program, const QStringList &folders);

// The program that a person typed, and where everything about it is.
struct Subject
{
    // Looks the program up and starts nothing.
    [[nodiscard]] static Subject of(const QByteArray &typed);

    [[nodiscard]] QString settingsFile() const;
    [[nodiscard]] QString catalogueFile() const;

    QByteArray typed;
    QByteArray path; // empty when there is no such program
    QString name; // by which its host finds its profile and its settings
    bool isScript = false; // which starts the program, see ProgramName
    Environment environment; // of this process
    QStringList profileFolders;
    QList<PluginFolder> plugins; // that are installed, for either Qt
};

} // namespace launcher
