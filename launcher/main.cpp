// mouse-gestures PROGRAM [ARGUMENTS...]: starts a program with mouse gestures.

#include "host/InstallPaths.h"
#include "launcher/CommandLine.h"
#include "launcher/Doctor.h"
#include "launcher/LaunchEnvironment.h"
#include "launcher/PluginFolders.h"
#include "launcher/ProgramLookup.h"
#include "launcher/QtWidgetsUse.h"
#include "launcher/SettingsTasks.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <vector>

namespace {

using namespace launcher;

// The statuses that env, nohup and timeout give for the same reasons.
constexpr int kTaskFailed = 1;
constexpr int kLauncherFailed = 125;
constexpr int kCannotRun = 126;
constexpr int kNotFound = 127;

// Where execvp() looks when there is no PATH.
constexpr char kDefaultSearchPath[] = "/bin:/usr/bin";

int complain(QString text, int status)
{
    text.replace(QLatin1Char('\n'), QLatin1Char('?')); // names may hold one; ours is one line
    std::fprintf(stderr, "mouse-gestures: %s\n", qPrintable(text));
    return status;
}

QByteArray executableFolder()
{
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return QByteArray::fromStdString(self.parent_path().string());
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

    const ProgramLookup lookup =
        ProgramLookup::find(line.program, environment.value("PATH", kDefaultSearchPath));
    switch (lookup.result) {
    case ProgramLookup::Result::Missing:
        return complain(QStringLiteral("%1: there is no such program").arg(name), kNotFound);
    case ProgramLookup::Result::NotExecutable:
        return complain(QStringLiteral("%1: the file may not be executed").arg(name), kCannotRun);
    case ProgramLookup::Result::IsFolder:
        return complain(QStringLiteral("%1: this is a folder, not a program").arg(name), kCannotRun);
    case ProgramLookup::Result::Found:
        break;
    }

    const QtWidgetsUse use = qtWidgetsUse(lookup.path, environment.value("LD_LIBRARY_PATH"),
                                          systemLibraryFolders("/etc/ld.so.conf"));
    if (use == QtWidgetsUse::None)
        return complain(QStringLiteral("%1: gestures need a program made with Qt Widgets, "
                                       "which this one is not")
                            .arg(name),
                        kCannotRun);

    const QList<PluginFolder> folders = pluginFolders(executableFolder());
    const int wanted = use == QtWidgetsUse::Qt5 ? 5 : use == QtWidgetsUse::Qt6 ? 6 : 0;
    const bool isThere =
        std::any_of(folders.begin(), folders.end(), [wanted](const PluginFolder &folder) {
            return wanted == 0 || folder.qtMajor == wanted;
        });
    if (!isThere)
        return complain(wanted == 0 ? QStringLiteral("the plug-in libmousegestures is not installed")
                                    : QStringLiteral("%1 uses Qt %2, for which the plug-in "
                                                     "libmousegestures-qt%2.so is not installed")
                                          .arg(name)
                                          .arg(wanted),
                        kLauncherFailed);

    const Environment prepared = withGestures(environment, folders, ::geteuid() == 0);
    if (lacksX11(prepared))
        complain(QStringLiteral("warning: there is no X11 display; under Wayland the ring may open "
                                "away from the pointer"),
                 0);

    replaceBy(lookup.path, line, prepared);
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
        subject.name = host::chooseProgramName(typed, file, profileFolders);
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
    symptoms.settingsFile = host::settingsFile(subject.name);
    const Diagnosis diagnosis = diagnose(symptoms);
    for (const QString &text : diagnosis.lines)
        std::puts(qPrintable(text));
    if (diagnosis.isHealthy)
        return 0;
    return complain(QStringLiteral("gestures cannot work well in %1, see above")
                        .arg(QString::fromLocal8Bit(line.program)),
                    kTaskFailed);
}

// Does what is about a program without starting it.
int doTask(const CommandLine &line)
{
    const Environment environment = readEnvironment(::environ);
    const QStringList profileFolders = host::profileFolders(QDir(QFile::decodeName(executableFolder())));
    const Subject subject = subjectOf(line, environment, profileFolders);
    if (line.task == CommandLine::Task::Examine)
        return examine(subject, line, environment, profileFolders);
    // A program that is gone may still have settings, which somebody wants to keep.
    const QString file = host::settingsFile(subject.name);
    if (subject.path.isEmpty() && !QFileInfo::exists(file))
        return complain(
            QStringLiteral("%1: there is no such program").arg(QString::fromLocal8Bit(line.program)),
            kNotFound);

    SettingsTasks tasks(subject.name, file);
    const QByteArray first = line.arguments.value(0);
    const auto outcome = [&]() -> Outcome {
        switch (line.task) {
        case CommandLine::Task::ShowBindings:
            return tasks.showBindings();
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
    }();
    if (!outcome.isDone())
        return complain(outcome.complaint, kTaskFailed);
    std::fputs(outcome.output.constData(), stdout);
    if (std::fflush(stdout) != 0)
        return complain(QStringLiteral("standard output cannot be written"), kTaskFailed);
    return 0;
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
    default:
        return doTask(line);
    }
}
