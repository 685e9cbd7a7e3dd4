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
    enum class Task { Run, ShowHelp, ShowVersion, Complain };

    // `arguments` without the launcher's own name.
    [[nodiscard]] static CommandLine parse(const QList<QByteArray> &arguments);

    Task task = Task::Complain;
    // One line that says what is wrong; only with Task::Complain.
    QString complaint;
    // The program as typed and its arguments; only with Task::Run.
    QByteArray program;
    QList<QByteArray> arguments;
};

// What `mouse-gestures --help` prints.
[[nodiscard]] QString helpText();

} // namespace launcher
