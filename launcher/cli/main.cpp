// mouse-gestures PROGRAM [ARGUMENTS...]: starts a program with mouse gestures.

#include "host/files/CatalogueFile.h"
#include "host/files/InstallPaths.h"
#include "host/files/ProgramProfile.h"
#include "host/files/TriggerText.h"
#include "launcher/cli/CommandLine.h"
#include "launcher/desktop/DesktopMenu.h"
#include "launcher/doctor/Doctor.h"
#include "launcher/explain/ProgramExplainer.h"
#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "launcher/settings/Bindings.h"
#include "launcher/settings/KnownCommands.h"
#include "launcher/settings/SettingsTasks.h"
#include "launcher/sheet/SheetTask.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QString>

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <vector>

namespace {

using namespace launcher;

constexpr int kTaskFailed = 1;
// From the folder of the launcher.
constexpr char kSheet[] = "/../libexec/gesturewidget/mouse-gestures-sheet";

int complain(QString text, int status)
{
    text.replace(QLatin1Char('\n'), QLatin1Char('?')); // names may hold one; ours is one line
    std::fprintf(stderr, "mouse-gestures: %s\n", qPrintable(text));
    return status;
}

QByteArray executablePath()
{
    std::error_code error;
    return QByteArray::fromStdString(std::filesystem::read_symlink("/proc/self/exe", error).string());
}

QByteArray executableFolder()
{
    const QByteArray path = executablePath();
    return path.left(path.lastIndexOf('/'));
}

// Replaces this process, so that signals and the exit status need no passing on. Returns
// only when that failed, with the reason in errno.
void replaceBy(const QByteArray &path, const CommandLine &line, const Environment &environment)
{
    const auto pointers = [](const QList<QByteArray> &strings) {
        std::vector<char *> result;
        for (const QByteArray &string : strings)
            result.push_back(
                const_cast<char *>(string.constData())); // exec's interface, it writes nothing
        result.push_back(nullptr);
        return result;
    };
    const QList<QByteArray> arguments = QList<QByteArray>{line.program} + line.arguments;
    const QList<QByteArray> entries = environmentEntries(environment);
    // The "p" is for scripts without a "#!" line, which it hands to the shell.
    ::execvpe(path.constData(), pointers(arguments).data(), pointers(entries).data());
}

int run(const CommandLine &line)
{
    const QString name = QString::fromLocal8Bit(line.program);
    const Environment environment = readEnvironment(::environ);

    const QList<PluginFolder> folders = pluginFolders(executableFolder());
    const ProgramCheck check = ProgramCheck::of(line.program, environment, folders);
    if (check.status != 0)
        return complain(check.complaint, check.status);

    const Environment prepared = withGestures(environment, folders, ::geteuid() == 0);
    if (lacksX11(prepared))
        complain(QStringLiteral("warning: there is no X11 display; under Wayland the ring may open "
                                "away from the pointer"),
                 0);

    replaceBy(check.path, line, prepared);
    const int reason = errno;
    return complain(QStringLiteral("%1: %2").arg(name, QString::fromLocal8Bit(std::strerror(reason))),
                    reason == ENOENT ? kNotFound : kCannotRun);
}

// What is known of a program that is not to be started.
struct Subject
{
    QString name; // by which its host finds its profile and its settings
    QByteArray path; // empty when there is no such program
};

Subject subjectOf(const CommandLine &line, const Environment &environment,
                  const QStringList &profileFolders)
{
    const ProgramLookup lookup =
        ProgramLookup::find(line.program, environment.value("PATH", kDefaultSearchPath));
    const QString typed = QFile::decodeName(line.program);
    Subject subject;
    if (lookup.result == ProgramLookup::Result::Found) {
        subject.path = lookup.path;
        const QString file = QFileInfo(QFile::decodeName(lookup.path)).canonicalFilePath();
        subject.name = gesturewidget::chooseProgramName(typed, file, profileFolders);
    } else {
        subject.name = QFileInfo(typed).fileName().toLower();
    }
    return subject;
}

int examine(const Subject &subject, const CommandLine &line, const Environment &environment,
            const QStringList &profileFolders)
{
    Symptoms symptoms;
    symptoms.program = subject.name;
    symptoms.path = subject.path;
    if (!subject.path.isEmpty())
        symptoms.use = qtWidgetsUse(subject.path, environment.value("LD_LIBRARY_PATH"),
                                    systemLibraryFolders("/etc/ld.so.conf"));
    symptoms.plugins = pluginFolders(executableFolder());
    symptoms.environment = environment;
    symptoms.compositor = findCompositor(environment.value("DISPLAY"));
    symptoms.profileFolders = profileFolders;
    symptoms.settingsFile = gesturewidget::settingsFile(subject.name);
    const Diagnosis diagnosis = diagnose(symptoms);
    for (const QString &text : diagnosis.lines)
        std::puts(qPrintable(text));
    if (diagnosis.isHealthy)
        return 0;
    return complain(QStringLiteral("gestures cannot work well in %1, see above")
                        .arg(QString::fromLocal8Bit(line.program)),
                    kTaskFailed);
}

int report(const Outcome &outcome)
{
    if (!outcome.isDone())
        return complain(outcome.complaint, kTaskFailed);
    std::fputs(outcome.output.constData(), stdout);
    if (std::fflush(stdout) != 0)
        return complain(QStringLiteral("standard output cannot be written"), kTaskFailed);
    return 0;
}

// What is taken for what in a program goes to standard output as a profile, and for the
// person to standard error.
int explain(const CommandLine &line)
{
    const QString name = QString::fromLocal8Bit(line.program);
    const Environment environment = readEnvironment(::environ);
    const QList<PluginFolder> folders = pluginFolders(executableFolder());
    const ProgramCheck check = ProgramCheck::of(line.program, environment, folders);
    if (check.status != 0)
        return complain(check.complaint, check.status);

    ProgramExplainer explainer(check.path, QList<QByteArray>{line.program} + line.arguments,
                               withGestures(environment, folders, ::geteuid() == 0));
    const ProgramExplanation found = explainer.run();
    if (found.signal != 0)
        return ::raise(found.signal); // ends this too, as it would have without a program
    if (!found.complaint.isEmpty())
        return complain(QStringLiteral("%1: %2").arg(name, found.complaint), kTaskFailed);
    for (const QString &text : found.lines)
        std::fprintf(stderr, "%s\n", qPrintable(text));
    const QString program = found.profile.value(QStringLiteral("program")).toString();
    std::fprintf(stderr, "To change any of it, keep the profile, edited, as %s\n",
                 qPrintable(gesturewidget::ownProfileFile(program)));
    return report({QJsonDocument(found.profile).toJson(), {}});
}

DesktopMenu desktopMenu()
{
    const QByteArray searchPath = readEnvironment(::environ).value("PATH", kDefaultSearchPath);
    return DesktopMenu(DesktopMenu::usualPlaces(searchPath, executablePath()));
}

// Puts the program with gestures into the desktop's menus, or takes it out again.
int changeMenus(const CommandLine &line)
{
    const Environment environment = readEnvironment(::environ);
    const DesktopMenu menu = desktopMenu();
    if (line.task == CommandLine::Task::Disable) {
        const ProgramLookup lookup =
            ProgramLookup::find(line.program, environment.value("PATH", kDefaultSearchPath));
        const bool isFound = lookup.result == ProgramLookup::Result::Found;
        return report(menu.disable(line.program, isFound ? lookup.path : QByteArray()));
    }
    const ProgramCheck check =
        ProgramCheck::of(line.program, environment, pluginFolders(executableFolder()));
    if (check.status != 0)
        return complain(check.complaint, check.status);
    return report(menu.enable(line.program, check.path));
}

Outcome print(const Subject &subject, const CommandLine &line, const Bindings &bindings,
              const KnownCommands &commands, const gesturewidget::ProgramProfile &profile)
{
    const QString called = desktopMenu().nameOf(line.program, subject.path);
    const SheetContent content =
        sheetContent(called.isEmpty() ? subject.name : called, bindings, commands,
                     gesturewidget::triggerText(profile.triggerButton, profile.triggerModifiers));
    return printSheet(content, QFile::decodeName(executableFolder() + kSheet),
                      QFile::decodeName(line.arguments.value(0)));
}

// Does what is about a program without starting it.
int doTask(const CommandLine &line)
{
    const Environment environment = readEnvironment(::environ);
    const QStringList profileFolders =
        gesturewidget::profileFolders(QDir(QFile::decodeName(executableFolder())));
    const Subject subject = subjectOf(line, environment, profileFolders);
    if (line.task == CommandLine::Task::Examine)
        return examine(subject, line, environment, profileFolders);
    // A program that is gone may still have settings, which somebody wants to keep.
    const QString file = gesturewidget::settingsFile(subject.name);
    if (subject.path.isEmpty() && !QFileInfo::exists(file)
        && !QFileInfo::exists(gesturewidget::catalogueFile(subject.name)))
        return complain(
            QStringLiteral("%1: there is no such program").arg(QString::fromLocal8Bit(line.program)),
            kNotFound);

    const gesturewidget::ProgramProfile profile =
        gesturewidget::ProgramProfile::forProgram(subject.name, profileFolders, nullptr);
    QStringList wellKnown = Bindings::initial().eight;
    std::copy(profile.wellKnownCommands.keyBegin(), profile.wellKnownCommands.keyEnd(),
              std::back_inserter(wellKnown));
    const KnownCommands commands(
        gesturewidget::CatalogueFile(gesturewidget::catalogueFile(subject.name)).read(), wellKnown);
    SettingsTasks tasks(subject.name, file, commands);
    const QByteArray first = line.arguments.value(0);
    return report([&]() -> Outcome {
        switch (line.task) {
        case CommandLine::Task::ShowBindings:
            return tasks.showBindings();
        case CommandLine::Task::ListCommands:
            return commands.list(subject.name);
        case CommandLine::Task::ListCommandsAsJson:
            return commands.listAsJson(subject.name);
        case CommandLine::Task::Print:
            return print(subject, line, tasks.bindings(), commands, profile);
        case CommandLine::Task::Bind:
            return tasks.bind(QString::fromLocal8Bit(first),
                              QString::fromLocal8Bit(line.arguments.value(1)));
        case CommandLine::Task::SetTrigger:
            return tasks.setTrigger(QString::fromLocal8Bit(first));
        case CommandLine::Task::Reset:
            return tasks.reset();
        case CommandLine::Task::Export:
            return line.arguments.isEmpty() ? tasks.showBindingsAsJson()
                                            : tasks.exportTo(QFile::decodeName(first));
        case CommandLine::Task::Import:
            return tasks.importFrom(QFile::decodeName(first));
        default:
            return tasks.showBindingsAsJson();
        }
    }());
}

} // namespace

int main(int argc, char **argv)
{
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);

    const CommandLine line = CommandLine::parse(arguments);
    switch (line.task) {
    case CommandLine::Task::ShowHelp:
        std::fputs(qPrintable(helpText()), stdout);
        return 0;
    case CommandLine::Task::ShowVersion:
        std::puts("mouse-gestures " GESTUREWIDGET_VERSION);
        return 0;
    case CommandLine::Task::Complain:
        return complain(line.complaint, kLauncherFailed);
    case CommandLine::Task::Run:
        return run(line);
    case CommandLine::Task::Explain:
        return explain(line);
    case CommandLine::Task::Enable:
    case CommandLine::Task::Disable:
        return changeMenus(line);
    default:
        return doTask(line);
    }
}
