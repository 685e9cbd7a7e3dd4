// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace launcher {

// The exit statuses that env, nohup and timeout have for the same reasons.
constexpr int kLauncherFailed = 125;
constexpr int kCannotRun = 126;
constexpr int kNotFound = 127;

// The folders where execvp() looks when there is no PATH.
constexpr char kDefaultSearchPath[] = "/bin:/usr/bin";

// Says whether a program can be started with gestures.
struct ProgramCheck
{
    // `program` as typed; `plugins` are the folders that hold the plug-in.
    [[nodiscard]] static ProgramCheck of(const QByteArray &program, const Environment &environment,
                                         const QList<PluginFolder> &plugins);

    int status = 0; // one of the above when it cannot
    QString complaint; // one line then
    QByteArray path;
    // The folders for the program's Qt. All of them if that is not known: a Qt that meets a
    // plug-in for another version says so on standard error.
    QList<PluginFolder> plugins;
};

} // namespace launcher
