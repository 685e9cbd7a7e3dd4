// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/cli/ProgramTasks.h"

#include "launcher/cli/Report.h"
#include "launcher/desktop/DesktopMenu.h"
#include "launcher/doctor/Doctor.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/Subject.h"
#include "launcher/settings/ProgramSettings.h"
#include "launcher/sheet/SheetTask.h"
#include "launcher/Text.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace launcher {
namespace {

using Task = CommandLine::Task;

// Relative to the launcher's folder.
constexpr char kSheet[] = "/../libexec/gesturewidget/mouse-gestures-sheet";
// Stands for standard input or output in place of a file's name.
constexpr char kStandard[] = "-";

DesktopMenu desktopMenu(const Subject &subject)
{
    const QByteArray searchPath = subject.environment.value("PATH", kDefaultSearchPath);
    return DesktopMenu(DesktopMenu::usualPlaces(searchPath, launcherPath()));
}

Outcome print(const Subject &subject, const QString &path, const ProgramSettings &settings)
{
    const QString called = desktopMenu(subject).nameOf(subject.typed, subject.path);
    const QString task = settings.tasks.task();
    if (!task.isEmpty()) {
        const QString complaint = settings.tasks.exported().complaint; // it has no ring of its own
        if (!complaint.isEmpty())
            return Outcome::failure(complaint);
    }
    const QString title = ringTitle(called.isEmpty() ? subject.name : called, task, settings.commands);
    const SheetContent content =
        sheetContent(title, settings.tasks.bindings(), settings.commands, settings.usualTrigger);
    return printSheet(content, QFile::decodeName(launcherFolder() + kSheet), path);
}

Outcome setRing(ProgramSettings &settings, const CommandLine &line)
{
    const gesturewidget::ProgramProfile &profile = settings.profile;
    if (!profile.knowsTasks())
        return Outcome::failure(Text::tr("the profile of this program knows no tasks"));
    const QString task = QString::fromLocal8Bit(line.arguments.value(0));
    // A program's workbenches are entries of its menus; classes of views are not known here.
    const bool isKnown = profile.isTaskOfView || profile.taskBindings.contains(task)
                      || !settings.commands.captionOf(task).isEmpty();
    if (!isKnown) {
        QStringList known = profile.taskBindings.keys();
        known.sort();
        return Outcome::failure(Text::tr("there is no task \"%1\"; known ones are %2")
                                    .arg(task, known.join(QStringLiteral(", "))));
    }
    const QString kind = QString::fromLocal8Bit(line.arguments.value(1));
    const bool isOwn = kind == QLatin1String("own");
    if (!isOwn && kind != QLatin1String("shared"))
        return Outcome::failure(Text::tr("a ring is \"own\" or \"shared\", not \"%1\"").arg(kind));
    return settings.tasks.setRing(task, isOwn, profile.taskBindings.value(task));
}

Outcome importStandardInput(SettingsTasks &tasks)
{
    QByteArray text(SettingsTasks::kMaximalImport + 1, '\0'); // one more, to notice a longer text
    const std::size_t count = std::fread(text.data(), 1, static_cast<std::size_t>(text.size()), stdin);
    if (std::ferror(stdin) != 0)
        return Outcome::failure(Text::tr("standard input cannot be read"));
    text.truncate(static_cast<int>(count));
    return tasks.importText(text, Text::tr("standard input"));
}

} // namespace

int examineProgram(const CommandLine &line)
{
    const Diagnosis diagnosis = diagnose(Symptoms::of(Subject::of(line.program)));
    Outcome outcome;
    outcome.output = diagnosis.lines().join(QLatin1Char('\n')).toLocal8Bit() + '\n';
    if (!diagnosis.isHealthy())
        outcome.complaint = Text::tr("gestures cannot work well in %1, see the lines with \"!\"")
                                .arg(QString::fromLocal8Bit(line.program));
    return report(outcome);
}

int changeMenus(const CommandLine &line)
{
    const Subject subject = Subject::of(line.program);
    if (line.task == Task::Disable)
        return report(desktopMenu(subject).disable(line.program, subject.path));
    const ProgramCheck check = ProgramCheck::of(line.program, subject.environment, subject.plugins);
    if (check.status != 0)
        return complain(check.complaint, check.status);
    return report(desktopMenu(subject).enable(line.program, check.path));
}

int doSettingsTask(const CommandLine &line)
{
    const Subject subject = Subject::of(line.program);
    // A program that is gone may still have settings, which somebody wants to keep.
    if (subject.path.isEmpty() && !QFileInfo::exists(subject.settingsFile())
        && !QFileInfo::exists(subject.catalogueFile()))
        return complain(
            Text::tr("%1: there is no such program").arg(QString::fromLocal8Bit(line.program)),
            kNotFound);

    ProgramSettings settings = ProgramSettings::of(subject);
    SettingsTasks &tasks = settings.tasks;
    tasks.setTask(QString::fromLocal8Bit(line.ring));
    const QByteArray first = line.arguments.value(0);
    const QString path = QFile::decodeName(first);
    switch (line.task) {
    case Task::ShowBindings:
        return report(line.isJson ? tasks.showBindingsAsJson() : tasks.showBindings());
    case Task::ListCommands:
        return report(line.isJson ? settings.commands.listAsJson(subject.name)
                                  : settings.commands.list(subject.name));
    case Task::Bind:
        return report(
            tasks.bind(QString::fromLocal8Bit(first), QString::fromLocal8Bit(line.arguments.value(1))));
    case Task::SetRing:
        return report(setRing(settings, line));
    case Task::SetTrigger:
        return report(tasks.setTrigger(QString::fromLocal8Bit(first)));
    case Task::Reset:
        return report(tasks.reset(nullptr, settings.profile.taskBindings.value(tasks.task())));
    case Task::SwitchOn:
        return report(tasks.switchOn());
    case Task::Export:
        return report(first.isEmpty() || first == kStandard ? tasks.exported() : tasks.exportTo(path));
    case Task::Import:
        return report(first == kStandard ? importStandardInput(tasks) : tasks.importFrom(path));
    case Task::Print:
        return report(print(subject, path, settings));
    default:
        return complain(QStringLiteral("this is not a task about settings"), kLauncherFailed);
    }
}

} // namespace launcher
