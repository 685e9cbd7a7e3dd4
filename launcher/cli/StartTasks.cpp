// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/cli/StartTasks.h"

#include "host/files/InstallPaths.h"
#include "launcher/cli/Report.h"
#include "launcher/explain/ProgramExplainer.h"
#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/ProgramName.h"
#include "launcher/programs/Subject.h"
#include "launcher/Text.h"

#include <QFile>
#include <QJsonDocument>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <vector>

namespace launcher {
namespace {

// Everything that is needed to start a program.
struct Start
{
    // If the program cannot be started with gestures, complains and sets `status` to other than 0.
    explicit Start(const CommandLine &line)
        : arguments(QList<QByteArray>{line.program} + line.arguments)
    {
        const Environment own = readEnvironment(::environ);
        const ProgramCheck check = ProgramCheck::of(line.program, own, pluginFolders(launcherFolder()));
        status = check.status;
        path = check.path;
        if (status != 0)
            complain(check.complaint, status);
        else
            environment = named(withGestures(own, check.plugins, ::geteuid() == 0));
    }

    // Tells a program that a script starts which name its settings have. A script that gets a
    // program as its argument starts many programs, and each has its own name.
    [[nodiscard]] Environment named(Environment variables) const
    {
        variables.remove(gesturewidget::kNameVariable);
        const Subject subject = Subject::of(arguments.first());
        if (subject.isScript && !startsAnother(subject))
            variables.insert(gesturewidget::kNameVariable, QFile::encodeName(subject.name));
        return variables;
    }

    [[nodiscard]] bool startsAnother(const Subject &script) const
    {
        const QByteArray searchPath = script.environment.value("PATH", kDefaultSearchPath);
        return std::any_of(arguments.begin() + 1, arguments.end(), [&](const QByteArray &argument) {
            const ProgramLookup lookup = ProgramLookup::find(argument, searchPath);
            return lookup.result == ProgramLookup::Result::Found && isProgram(lookup.path);
        });
    }

    // Prepares to start the program without gestures if it cannot have them. Returns false if there
    // is no such program either.
    bool preparePlain(const QByteArray &program)
    {
        if (status == 0)
            return false;
        path = Subject::of(program).path;
        environment = readEnvironment(::environ);
        return !path.isEmpty();
    }

    int status = 0;
    QByteArray path;
    QList<QByteArray> arguments; // the first is the program as typed
    Environment environment;
};

// Returns only on failure, with the reason in errno. Because the process is replaced, nobody has to
// forward signals and the exit status.
void replaceProcess(const Start &start)
{
    const auto pointers = [](const QList<QByteArray> &strings) {
        std::vector<char *> result;
        for (const QByteArray &string : strings)
            result.push_back(
                const_cast<char *>(string.constData())); // exec's interface, it writes nothing
        result.push_back(nullptr);
        return result;
    };
    const QList<QByteArray> entries = environmentEntries(start.environment);
    // The variant with "p" passes scripts without a "#!" line to the shell.
    ::execvpe(start.path.constData(), pointers(start.arguments).data(), pointers(entries).data());
}

// In the launcher's folder.
constexpr char kWindow[] = "/mouse-gestures-settings";

} // namespace

int startProgram(const CommandLine &line)
{
    Start start(line);
    const bool mayBePlain = line.isAlways && start.preparePlain(line.program);
    if (start.status != 0 && !mayBePlain)
        return start.status;
    if (start.status == 0 && lacksX11(start.environment))
        complain(Text::tr("warning: there is no X11 display; under Wayland the ring may open "
                          "away from the pointer"),
                 0);
    replaceProcess(start);
    const int reason = errno;
    return complain(Text::tr("%1: %2").arg(QString::fromLocal8Bit(line.program),
                                           QString::fromLocal8Bit(std::strerror(reason))),
                    reason == ENOENT ? kNotFound : kCannotRun);
}

int openWindow(const CommandLine &line)
{
    const Environment environment = readEnvironment(::environ);
    const bool hasDisplay =
        !environment.value("DISPLAY").isEmpty() || !environment.value("WAYLAND_DISPLAY").isEmpty();
    const QByteArray window = launcherFolder() + kWindow;
    if (hasDisplay)
        ::execl(window.constData(), window.constData(), static_cast<char *>(nullptr));
    return complain(line.complaint, kLauncherFailed);
}

int explainProgram(const CommandLine &line)
{
    const Start start(line);
    if (start.status != 0)
        return start.status;
    ProgramExplainer explainer(start.path, start.arguments, start.environment);
    const ProgramExplanation found = explainer.run();
    if (found.signal != 0)
        return ::raise(found.signal); // ends the launcher too, as the signal should
    if (!found.complaint.isEmpty())
        return complain(Text::tr("%1: %2").arg(QString::fromLocal8Bit(line.program), found.complaint),
                        kTaskFailed);
    for (const QString &text : found.lines)
        std::fprintf(stderr, "%s\n", qPrintable(text));
    const QString program = found.profile.value(QStringLiteral("program")).toString();
    std::fprintf(stderr, "%s\n",
                 qPrintable(Text::tr("To change any of it, edit this profile and keep it as %1")
                                .arg(gesturewidget::ownProfileFile(program))));
    return report({QJsonDocument(found.profile).toJson(), {}});
}

} // namespace launcher
