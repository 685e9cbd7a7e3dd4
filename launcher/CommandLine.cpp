#include "launcher/CommandLine.h"

namespace launcher {

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

Starts a drafting program with mouse gestures: hold the right button in the drawing,
drag, and move on towards the command you want. "Mouse Gestures..." in the program's
menus says which command lies in which direction.

PROGRAM is any program made with Qt Widgets, 5 or 6. Nothing of it is changed.

  -h, --help     show this text
  -V, --version  show the version
  --             what follows is the program, even if it starts with "-"

Exit status: the program's own; 127 when there is no such program, 126 when it cannot be
run with gestures, 125 when mouse-gestures itself is not set up or not used correctly.
)");
}

} // namespace launcher
