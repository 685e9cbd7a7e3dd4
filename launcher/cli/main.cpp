// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// mouse-gestures PROGRAM [ARGUMENTS...]: starts a program with mouse gestures, or does one of the
// other tasks that CommandLine.cpp lists.

#include "launcher/cli/CommandLine.h"
#include "launcher/cli/ProgramTasks.h"
#include "launcher/cli/Report.h"
#include "launcher/cli/StartTasks.h"
#include "launcher/Language.h"
#include "launcher/programs/ProgramCheck.h"

namespace {

int perform(const launcher::CommandLine &line)
{
    using Task = launcher::CommandLine::Task;
    switch (line.task) {
    case Task::ShowHelp:
        return launcher::report({launcher::helpText().toLocal8Bit(), {}});
    case Task::ShowVersion:
        return launcher::report({"mouse-gestures " GESTUREWIDGET_VERSION "\n", {}});
    case Task::Complain:
        return launcher::complain(line.complaint, launcher::kLauncherFailed);
    case Task::OpenWindow:
        return launcher::openWindow(line);
    case Task::Run:
        return launcher::startProgram(line);
    case Task::Explain:
        return launcher::explainProgram(line);
    case Task::Examine:
        return launcher::examineProgram(line);
    case Task::Enable:
    case Task::Disable:
        return launcher::changeMenus(line);
    default:
        return launcher::doSettingsTask(line);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const launcher::Language language(argv[0]);
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);
    return perform(launcher::CommandLine::parse(arguments));
}
