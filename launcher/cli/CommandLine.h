#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace launcher {

// What the person who typed `mouse-gestures ...` wants.
//
// Only options before the program are the launcher's own; everything after the program
// belongs to the program. Arguments stay bytes, so that they arrive unchanged in any
// locale.
struct CommandLine
{
    enum class Task {
        Run,
        ShowHelp,
        ShowVersion,
        ShowBindings,
        ShowBindingsAsJson,
        ListCommands,
        ListCommandsAsJson,
        Bind, // direction, command
        SetTrigger, // trigger
        Reset,
        Export, // file, or nothing for standard output
        Import, // file
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
    // One line that says what is wrong; only with Task::Complain.
    QString complaint;
    // The program as typed, and its arguments or, with one of the other tasks about a
    // program, what was typed after it.
    QByteArray program;
    QList<QByteArray> arguments;
};

// What `mouse-gestures --help` prints.
[[nodiscard]] QString helpText();

} // namespace launcher
