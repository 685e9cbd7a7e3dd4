// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/cli/CommandLine.h"

#include "launcher/Columns.h"
#include "launcher/Text.h"

#include <limits>

namespace launcher {
namespace {

// A task about one program, and what is typed for it. To add an option: a row here, and what it does
// in main.cpp's perform().
struct TaskOption
{
    const char *name;
    CommandLine::Task task;
    int least; // words after the program
    int most;
    bool mayBeJson;
    const char *usage;
    const char *help; // for --help
};

constexpr TaskOption kTaskOptions[] = {
    {"--bindings", CommandLine::Task::ShowBindings, 0, 0, true, "PROGRAM [--json]",
     QT_TRANSLATE_NOOP("launcher", "show which command lies in which direction")},
    {"--list-commands", CommandLine::Task::ListCommands, 0, 0, true, "PROGRAM [--json]",
     QT_TRANSLATE_NOOP("launcher", "show the commands that the program has shown so far")},
    {"--bind", CommandLine::Task::Bind, 2, 2, false, "PROGRAM DIRECTION COMMAND [--ring TASK]",
     QT_TRANSLATE_NOOP(
         "launcher",
         "put a command into a direction. COMMAND is its identifier or its caption, or \"none\". "
         "DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right "
         "or up-right")},
    {"--ring", CommandLine::Task::SetRing, 2, 2, false, "PROGRAM TASK own|shared",
     QT_TRANSLATE_NOOP("launcher", "give a task, such as FreeCAD's SketcherWorkbench, a ring of its "
                                   "own, or the shared one again")},
    {"--trigger", CommandLine::Task::SetTrigger, 1, 1, false, "PROGRAM TRIGGER",
     QT_TRANSLATE_NOOP("launcher", "choose what starts a gesture: right, middle, ctrl+right, ...; "
                                   "\"default\" is the usual trigger")},
    {"--reset", CommandLine::Task::Reset, 0, 0, false, "PROGRAM [--ring TASK]",
     QT_TRANSLATE_NOOP("launcher", "bring the first bindings back; the trigger stays")},
    {"--switch-on", CommandLine::Task::SwitchOn, 0, 0, false, "PROGRAM",
     QT_TRANSLATE_NOOP("launcher", "switch gestures on again, after a crash or when they are switched "
                                   "off in the settings")},
    {"--export", CommandLine::Task::Export, 0, 1, false, "PROGRAM [FILE] [--ring TASK]",
     QT_TRANSLATE_NOOP("launcher", "write all bindings as JSON")},
    {"--import", CommandLine::Task::Import, 1, 1, false, "PROGRAM FILE [--ring TASK]",
     QT_TRANSLATE_NOOP("launcher", "take over such a file, all of it or nothing")},
    {"--print", CommandLine::Task::Print, 1, 1, false, "PROGRAM FILE.pdf [--ring TASK]",
     QT_TRANSLATE_NOOP("launcher", "draw the ring with its commands, to pin on the wall")},
    {"--doctor", CommandLine::Task::Examine, 0, 0, false, "PROGRAM",
     QT_TRANSLATE_NOOP("launcher", "say whether gestures can work in the program")},
    {"--explain", CommandLine::Task::Explain, 0, std::numeric_limits<int>::max(), false,
     "PROGRAM [ARGUMENTS...]",
     QT_TRANSLATE_NOOP("launcher", "start the program, say what in it is taken for what and why, print "
                                   "that as a profile, end the program")},
    {"--enable", CommandLine::Task::Enable, 0, 0, false, "PROGRAM",
     QT_TRANSLATE_NOOP("launcher", "start it with gestures from the desktop's menus too")},
    {"--disable", CommandLine::Task::Disable, 0, 0, false, "PROGRAM",
     QT_TRANSLATE_NOOP("launcher", "start it from the desktop's menus as before")},
};

constexpr char kJson[] = "--json";
constexpr char kAlways[] = "--always";
constexpr char kRing[] = "--ring";
// At the end of the usage of an option that can be about one task's ring.
constexpr char kRingUsage[] = " [--ring TASK]";
constexpr char kHelp[] = "--help";
constexpr char kVersion[] = "--version";

// `words` is what was typed after the option.
CommandLine parseTask(const TaskOption &option, QList<QByteArray> words)
{
    CommandLine line;
    if (option.mayBeJson)
        line.isJson = words.removeAll(kJson) > 0;
    const bool mayNameRing = QLatin1String(option.usage).endsWith(QLatin1String(kRingUsage));
    if (const auto at = words.indexOf(kRing); mayNameRing && at >= 0) {
        line.ring = words.value(at + 1);
        if (!line.ring.isEmpty()) {
            words.removeAt(at);
            words.removeAt(at);
        }
    }
    const auto count = static_cast<int>(words.size()) - 1; // without the program
    if (words.isEmpty() || count < option.least || count > option.most || words.first().isEmpty()) {
        line.complaint = Text::tr("usage: mouse-gestures %1 %2")
                             .arg(QLatin1String(option.name), QLatin1String(option.usage));
        return line;
    }
    line.task = option.task;
    line.program = words.first();
    line.arguments = words.mid(1);
    return line;
}

} // namespace

CommandLine CommandLine::parse(const QList<QByteArray> &typed)
{
    CommandLine line;
    QList<QByteArray> arguments = typed;
    if (typed.value(0) == kJson && typed.value(1).startsWith("--"))
        arguments.move(0, 1); // behind the option that it belongs to
    int next = 0;
    if (!arguments.isEmpty() && arguments.first().startsWith('-')) {
        const QByteArray &option = arguments.first();
        if (option == kHelp || option == "-h") {
            line.task = Task::ShowHelp;
            return line;
        }
        if (option == kVersion || option == "-V") {
            line.task = Task::ShowVersion;
            return line;
        }
        for (const TaskOption &task : kTaskOptions) {
            if (option == task.name)
                return parseTask(task, arguments.mid(1));
        }
        line.isAlways = option == kAlways;
        if (option != "--" && !line.isAlways) {
            line.complaint = Text::tr("unknown option %1, see mouse-gestures --help")
                                 .arg(QString::fromLocal8Bit(option));
            return line;
        }
        next = 1;
    }

    if (next >= arguments.size() || arguments.at(next).isEmpty()) {
        line.task = arguments.isEmpty() ? Task::OpenWindow : Task::Complain;
        line.complaint = Text::tr("no program given, see mouse-gestures --help");
        return line;
    }
    line.task = Task::Run;
    line.program = arguments.at(next);
    line.arguments = arguments.mid(next + 1);
    return line;
}

QString helpText()
{
    constexpr int kLine = 88;
    constexpr int kUsage = 34; // the column of usages
    QStringList lines;
    const auto addParagraph = [&lines](const QString &text) {
        lines += QString();
        lines += wrapped(text, kLine);
    };
    const auto addRow = [&lines](const QString &name, int width, const QString &help) {
        const QStringList column = wrapped(help, kLine - width - 2);
        for (int i = 0; i < column.size(); ++i)
            lines += QStringLiteral("  ") + padded(i == 0 ? name : QString(), width) + column.at(i);
    };

    const QString usage = Text::tr("Usage:") + QLatin1Char(' ');
    lines += usage + QStringLiteral("mouse-gestures PROGRAM [ARGUMENTS...]");
    for (const char *form : {"mouse-gestures OPTION PROGRAM ...", "mouse-gestures"})
        lines += padded(QString(), columnsOf(usage)) + QLatin1String(form);
    addParagraph(Text::tr("Starts a drafting program with mouse gestures: hold the right button in the "
                          "drawing, drag, and move on towards the command you want. \"Mouse "
                          "Gestures...\" in the program's menus shows which command lies in which "
                          "direction."));
    addParagraph(Text::tr("PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. "
                          "Without a program, a window opens in which a person can do all of this "
                          "with the mouse."));
    lines += QString();
    for (const TaskOption &task : kTaskOptions)
        addRow(QLatin1String(task.name) + QLatin1Char(' ')
                   + QString::fromLatin1(task.usage).remove(QLatin1String(kRingUsage)),
               kUsage, Text::tr(task.help));
    addRow(QStringLiteral("--always PROGRAM [ARGUMENTS...]"), kUsage,
           Text::tr("start it without gestures if it cannot have them"));
    lines += QString();
    constexpr int kGeneral = 15;
    addRow(QStringLiteral("-h, --help"), kGeneral, Text::tr("show this text"));
    addRow(QStringLiteral("-V, --version"), kGeneral, Text::tr("show the version"));
    addRow(QStringLiteral("--"), kGeneral,
           Text::tr("the next word is the program, even if it starts with \"-\""));
    addParagraph(
        Text::tr("With --ring TASK at its end, --bind, --export, --import, --print or --reset is "
                 "about the ring of that task alone."));
    addParagraph(Text::tr("FILE may be \"-\" for standard output or standard input."));
    addParagraph(Text::tr("Exit status of a started program: its own. 127: there is no such program. "
                          "126: it cannot be run with gestures. 125: mouse-gestures is not set up or "
                          "not used correctly. An option exits with 1 when it could not be done; "
                          "nothing is changed then."));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace launcher
