// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace launcher {

// The task that a person has typed as `mouse-gestures ...`.
//
// Only options before the program are the launcher's own; everything after the program
// belongs to the program. Arguments stay bytes, so that they arrive unchanged in any
// locale.
struct CommandLine
{
    enum class Task {
        Run,
        OpenWindow, // the settings program; `complaint` is for where there is no display
        ShowHelp,
        ShowVersion,
        ShowBindings, // may be JSON
        ListCommands, // may be JSON
        Bind, // direction, command
        SetTrigger, // trigger
        SetRing, // task, "own" or "shared"
        Reset,
        SwitchOn,
        Export, // file; "-" or nothing for standard output
        Import, // file; "-" for standard input
        Print, // file
        Examine,
        Explain, // the program's own arguments
        Enable,
        Disable,
        Complain
    };

    // `arguments` without the launcher's own name.
    [[nodiscard]] static CommandLine parse(const QList<QByteArray> &arguments);

    Task task = Task::Complain;
    // One line that says what is wrong; only with Task::Complain and Task::OpenWindow.
    QString complaint;
    // The program as typed.
    QByteArray program;
    // With Task::Run and Task::Explain the program's arguments; with other tasks what was typed
    // after the program.
    QList<QByteArray> arguments;
    bool isJson = false; // the output is wanted as JSON
    bool isAlways = false; // with Task::Run: start the program without gestures if need be
    // The task whose own ring is meant; empty for the shared ring. With Task::Bind, Export, Import,
    // Print and Reset.
    QByteArray ring;
};

// Returns the text that `mouse-gestures --help` prints.
[[nodiscard]] QString helpText();

} // namespace launcher
