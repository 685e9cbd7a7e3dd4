// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"
#include "launcher/programs/QtWidgetsUse.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace launcher {

// The facts that decide whether gestures work in a program. The caller gathers them.
struct Symptoms
{
    QString program; // its name, by which profile and settings are found
    QByteArray path; // empty when there is no such program
    QtWidgetsUse use = QtWidgetsUse::Unknown;
    QList<PluginFolder> plugins;
    Environment environment;
    // Says whether a compositor is running on the X11 display.
    enum class Compositor { Running, None, Unknown } compositor = Compositor::Unknown;
    QStringList profileFolders;
    QString settingsFile;
};

struct Diagnosis
{
    // "what: how it is", one line each. A line that begins with "!" names a problem that prevents
    // gestures.
    QStringList lines;
    bool isHealthy = true; // there is no such line
};

[[nodiscard]] Diagnosis diagnose(const Symptoms &symptoms);

// Asks the X server that `display` names, as DISPLAY does, for the owner of its
// compositor's selection. Unknown when no server answers or libX11 is not installed.
[[nodiscard]] Symptoms::Compositor findCompositor(const QByteArray &display);

} // namespace launcher
