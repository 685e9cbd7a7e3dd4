#include "launcher/cli/CommandLine.h"

#include <limits>

namespace launcher {
namespace {

// A task about a program that is not started.
struct TaskOption
{
    const char *name;
    CommandLine::Task task;
    int least; // of what follows the program
    int most;
    const char *usage;
};

constexpr TaskOption kTaskOptions[] = {
    {"--bindings", CommandLine::Task::ShowBindings, 0, 1, "PROGRAM [--json]"},
    {"--list-commands", CommandLine::Task::ListCommands, 0, 1, "PROGRAM [--json]"},
    {"--bind", CommandLine::Task::Bind, 2, 2, "PROGRAM DIRECTION COMMAND"},
    {"--trigger", CommandLine::Task::SetTrigger, 1, 1, "PROGRAM TRIGGER"},
    {"--reset", CommandLine::Task::Reset, 0, 0, "PROGRAM"},
    {"--export", CommandLine::Task::Export, 0, 1, "PROGRAM [FILE]"},
    {"--import", CommandLine::Task::Import, 1, 1, "PROGRAM FILE"},
    {"--print", CommandLine::Task::Print, 1, 1, "PROGRAM FILE.pdf"},
    {"--doctor", CommandLine::Task::Examine, 0, 0, "PROGRAM"},
    {"--explain", CommandLine::Task::Explain, 0, std::numeric_limits<int>::max(),
     "PROGRAM [ARGUMENTS...]"},
    {"--enable", CommandLine::Task::Enable, 0, 0, "PROGRAM"},
    {"--disable", CommandLine::Task::Disable, 0, 0, "PROGRAM"},
};

CommandLine parseTask(const TaskOption &option, const QList<QByteArray> &words)
{
    CommandLine line;
    const auto count = static_cast<int>(words.size()) - 1; // without the program
    const bool mayBeJson =
        option.task == CommandLine::Task::ShowBindings || option.task == CommandLine::Task::ListCommands;
    if (count < option.least || count > option.most || words.first().isEmpty()
        || (mayBeJson && count == 1 && words.last() != "--json")) {
        line.complaint = QStringLiteral("usage: mouse-gestures %1 %2")
                             .arg(QLatin1String(option.name), QLatin1String(option.usage));
        return line;
    }
    line.task = option.task;
    if (mayBeJson && count == 1)
        line.task = option.task == CommandLine::Task::ShowBindings
                      ? CommandLine::Task::ShowBindingsAsJson
                      : CommandLine::Task::ListCommandsAsJson;
    line.program = words.first();
    line.arguments = words.mid(1);
    return line;
}

} // namespace

CommandLine CommandLine::parse(const QList<QByteArray> &arguments)
{
    CommandLine line;
    int next = 0;
    if (!arguments.isEmpty() && arguments.first().startsWith('-')) {
        const QByteArray &option = arguments.first();
        if (option == "--help" || option == "-h") {
            line.task = Task::ShowHelp;
            return line;
        }
        if (option == "--version" || option == "-V") {
            line.task = Task::ShowVersion;
            return line;
        }
        for (const TaskOption &task : kTaskOptions) {
            if (option == task.name)
                return parseTask(task, arguments.mid(1));
        }
        if (option != "--") {
            line.complaint = QStringLiteral("unknown option %1, see mouse-gestures --help")
                                 .arg(QString::fromLocal8Bit(option));
            return line;
        }
        next = 1;
    }

    if (next >= arguments.size() || arguments.at(next).isEmpty()) {
        line.complaint = QStringLiteral("no program given, see mouse-gestures --help");
        return line;
    }
    line.task = Task::Run;
    line.program = arguments.at(next);
    line.arguments = arguments.mid(next + 1);
    return line;
}

QString helpText()
{
    return QStringLiteral(R"(Usage: mouse-gestures PROGRAM [ARGUMENTS...]
       mouse-gestures OPTION PROGRAM ...

Starts a drafting program with mouse gestures: hold the right button in the drawing,
drag, and move on towards the command you want. "Mouse Gestures..." in the program's
menus says which command lies in which direction.

PROGRAM is any program made with Qt Widgets, 5 or 6. Nothing of it is changed.

  --bindings PROGRAM [--json]       show which command lies in which direction
  --list-commands PROGRAM [--json]  show the commands that the program has shown so far
  --bind PROGRAM DIRECTION COMMAND  put a command, by identifier or caption, or none
                                    into a direction: up, left, down, right; of eight
                                    also up-left, down-left, down-right, up-right
  --trigger PROGRAM TRIGGER         what starts a gesture: right, middle, ctrl+right,
                                    and so on; default for what is usual
  --reset PROGRAM                   bring the first bindings back
  --export PROGRAM [FILE]           write all bindings as JSON
  --import PROGRAM FILE             take such a file over, as a whole or not at all
  --print PROGRAM FILE.pdf          draw the ring with its commands, to pin on the wall
  --doctor PROGRAM                  say whether gestures can work in the program
  --explain PROGRAM [ARGUMENTS...]  start it, say what in it is taken for what and why,
                                    print that as a profile, and end it
  --enable PROGRAM                  start it with gestures from the desktop's menus too
  --disable PROGRAM                 start it from there as before

  -h, --help     show this text
  -V, --version  show the version
  --             what follows is the program, even if it starts with "-"

Exit status: the program's own; 127 when there is no such program, 126 when it cannot be
run with gestures, 125 when mouse-gestures itself is not set up or not used correctly.
With one of the upper options: 1 when it could not be done, and nothing is changed then.
)");
}

} // namespace launcher
