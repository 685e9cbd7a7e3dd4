// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "launcher/programs/Subject.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace launcher {

// The facts that decide whether gestures work in a program.
struct Symptoms
{
    // Gathers the facts about a program. Starts nothing.
    [[nodiscard]] static Symptoms of(const Subject &subject);

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

// One thing that was looked at, and how it is.
struct Finding
{
    enum class Matter {
        Program,
        Qt,
        PlugIn,
        Display,
        Compositor,
        Profile,
        Views,
        Settings,
        Gestures,
        Crash, // instead of Gestures, if the program died in their code
        Bindings,
        Trigger
    };

    // "what: how it is". The line begins with "!" if it is a problem.
    [[nodiscard]] QString line() const;

    Matter matter = Matter::Program;
    QString text; // how it is
    bool isProblem = false; // it prevents gestures
};

struct Diagnosis
{
    [[nodiscard]] QStringList lines() const;
    [[nodiscard]] bool isHealthy() const; // there is no problem

    QList<Finding> findings;
};

[[nodiscard]] Diagnosis diagnose(const Symptoms &symptoms);

// Asks the X server that `display` names, as DISPLAY does, for the owner of its
// compositor's selection. Unknown when no server answers or libX11 is not installed.
[[nodiscard]] Symptoms::Compositor findCompositor(const QByteArray &display);

} // namespace launcher
