// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/doctor/Doctor.h"

#include "host/files/CrashNote.h"
#include "host/files/PluginNames.h"
#include "host/files/ProgramProfile.h"
#include "host/files/SettingsFile.h"
#include "host/files/SettingsNames.h"
#include "host/files/SiteSettings.h"
#include "launcher/Columns.h"
#include "launcher/settings/Bindings.h"
#include "launcher/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>

namespace launcher {
namespace {

namespace names = gesturewidget::settingsnames;

// Beginnings of the lines.
constexpr char kFine[] = "  ";
constexpr char kProblem[] = "! ";

using Matter = Finding::Matter;

constexpr int kNameColumns = 12;

const char *nameOf(Matter matter)
{
    switch (matter) {
    case Matter::Program:
        return QT_TRANSLATE_NOOP("launcher", "program");
    case Matter::Qt:
        return QT_TRANSLATE_NOOP("launcher", "Qt");
    case Matter::PlugIn:
        return QT_TRANSLATE_NOOP("launcher", "plug-in");
    case Matter::Display:
        return QT_TRANSLATE_NOOP("launcher", "display");
    case Matter::Compositor:
        return QT_TRANSLATE_NOOP("launcher", "compositor");
    case Matter::Profile:
        return QT_TRANSLATE_NOOP("launcher", "profile");
    case Matter::Views:
        return QT_TRANSLATE_NOOP("launcher", "views");
    case Matter::Settings:
        return QT_TRANSLATE_NOOP("launcher", "settings");
    case Matter::Gestures:
    case Matter::Crash:
        return QT_TRANSLATE_NOOP("launcher", "gestures");
    case Matter::Bindings:
        return QT_TRANSLATE_NOOP("launcher", "bindings");
    case Matter::Trigger:
        return QT_TRANSLATE_NOOP("launcher", "trigger");
    }
    return "";
}

class Report
{
public:
    void add(Matter matter, const QString &text) { m_diagnosis.findings.append({matter, text, false}); }
    void addProblem(Matter matter, const QString &text)
    {
        m_diagnosis.findings.append({matter, text, true});
    }
    [[nodiscard]] Diagnosis diagnosis() const { return m_diagnosis; }

private:
    Diagnosis m_diagnosis;
};

void reportProgram(const Symptoms &symptoms, Report &report)
{
    if (symptoms.path.isEmpty()) {
        report.addProblem(Matter::Program, Text::tr("%1, not found").arg(symptoms.program));
        return;
    }
    report.add(Matter::Program,
               Text::tr("%1, %2").arg(symptoms.program, QFile::decodeName(symptoms.path)));
    switch (symptoms.use) {
    case QtWidgetsUse::Qt5:
        report.add(Matter::Qt, QStringLiteral("5"));
        break;
    case QtWidgetsUse::Qt6:
        report.add(Matter::Qt, QStringLiteral("6"));
        break;
    case QtWidgetsUse::Unknown:
        report.add(Matter::Qt, Text::tr("not known before it runs: a script"));
        break;
    case QtWidgetsUse::None:
        report.addProblem(Matter::Qt, Text::tr("none; gestures need a program made with Qt Widgets"));
        break;
    }
}

void reportPlugin(const Symptoms &symptoms, Report &report)
{
    const int wanted = symptoms.use == QtWidgetsUse::Qt5 ? 5 : symptoms.use == QtWidgetsUse::Qt6 ? 6 : 0;
    QStringList found;
    for (const PluginFolder &folder : symptoms.plugins) {
        if (wanted == 0 || folder.qtMajor == wanted)
            found.append(QFile::decodeName(folder.path) + QLatin1Char('/')
                         + gesturewidget::pluginFile(folder.qtMajor));
    }
    if (found.isEmpty())
        report.addProblem(Matter::PlugIn, wanted == 0 ? Text::tr("not installed")
                                                      : Text::tr("not installed for Qt %1").arg(wanted));
    else
        report.add(Matter::PlugIn, found.join(QStringLiteral(", ")));
}

void reportDisplay(const Symptoms &symptoms, Report &report)
{
    const Environment prepared = withGestures(symptoms.environment, symptoms.plugins, false);
    const QString display = QString::fromLocal8Bit(symptoms.environment.value("DISPLAY"));
    const QString wayland = QString::fromLocal8Bit(symptoms.environment.value("WAYLAND_DISPLAY"));
    const bool isWayland =
        !wayland.isEmpty() || symptoms.environment.value("XDG_SESSION_TYPE") == "wayland";
    if (lacksX11(prepared))
        report.addProblem(Matter::Display, Text::tr("Wayland without X11; the ring may open away "
                                                    "from the pointer"));
    else if (display.isEmpty())
        report.addProblem(Matter::Display, Text::tr("none"));
    else if (isWayland)
        report.add(Matter::Display, Text::tr("Wayland; the program will use X11, %1").arg(display));
    else
        report.add(Matter::Display, Text::tr("X11, %1").arg(display));

    switch (symptoms.compositor) {
    case Symptoms::Compositor::Running:
        report.add(Matter::Compositor, Text::tr("running"));
        break;
    case Symptoms::Compositor::None:
        // Gestures work without one, so this is no problem.
        report.add(Matter::Compositor,
                   Text::tr("none; the ring shows what was under it when it opened"));
        break;
    case Symptoms::Compositor::Unknown:
        report.add(Matter::Compositor, Text::tr("not known"));
        break;
    }
}

// Returns a file that would be the program's profile if its name were in lower case; empty if there is
// none, or if a real profile counts before it.
QString profileInOtherCase(const QString &program, const QStringList &folders)
{
    const QString wanted = program + QLatin1String(".json");
    for (const QString &folder : folders) {
        if (folder.isEmpty())
            continue;
        const QStringList names = QDir(folder).entryList(QDir::Files);
        if (names.contains(wanted))
            return {};
        for (const QString &name : names) {
            if (name.compare(wanted, Qt::CaseInsensitive) == 0)
                return QDir(folder).filePath(name);
        }
    }
    return {};
}

gesturewidget::ProgramProfile reportProfile(const Symptoms &symptoms, Report &report)
{
    QString message;
    gesturewidget::ProgramProfile profile =
        gesturewidget::ProgramProfile::forProgram(symptoms.program, symptoms.profileFolders, &message);
    const QString file = profileFile(symptoms.program, symptoms.profileFolders);
    const QString inOtherCase = profileInOtherCase(symptoms.program, symptoms.profileFolders);
    if (!inOtherCase.isEmpty())
        report.addProblem(Matter::Profile,
                          Text::tr("the profile %1 is not used: its name must be %2")
                              .arg(inOtherCase, symptoms.program + QLatin1String(".json")));
    else if (!message.isEmpty())
        report.addProblem(Matter::Profile, message);
    else
        report.add(Matter::Profile, file.isEmpty() ? Text::tr("none of its own") : file);
    if (profile.viewClasses.isEmpty())
        report.add(Matter::Views, Text::tr("looked for in the running program, see --explain"));
    else
        report.add(Matter::Views,
                   Text::tr("%1, by the profile").arg(profile.viewClasses.join(QStringLiteral(", "))));
    return profile;
}

bool isWritable(const QString &path, int how)
{
    return ::access(QFile::encodeName(path).constData(), how) == 0;
}

// The sources of the values.
struct Sources
{
    QString ownFile;
    gesturewidget::SettingsFile::Values own;
    gesturewidget::SiteSettings site;

    // ", by FILE"; empty if no file has the value.
    [[nodiscard]] QString of(const QString &section, const QString &key) const
    {
        const QString file = fileOf(section, key);
        return file.isEmpty() ? QString() : Text::tr(", by %1").arg(file);
    }
    [[nodiscard]] QString fileOf(const QString &section, const QString &key) const
    {
        const QString name = gesturewidget::SettingsFile::nameOf(section, key);
        return own.contains(name) ? ownFile : site.fileOf(name);
    }
};

// "5 by FILE, 3 in no file" for the directions of the scheme in use.
QString sourcesOfBindings(const Sources &sources, int scheme)
{
    QMap<QString, int> counts;
    for (int number = 1; number <= scheme; ++number)
        ++counts[sources.fileOf(names::moduleSection(), QString::number(10 * scheme + number))];
    const int inNone = counts.take(QString());
    QStringList texts;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        texts.append(Text::tr("%1 by %2").arg(it.value()).arg(it.key()));
    if (inNone > 0)
        texts.append(Text::tr("%1 in no file").arg(inNone));
    return texts.join(QStringLiteral(", "));
}

void reportChoices(const QString &program, const Sources &sources,
                   const gesturewidget::ProgramProfile &profile, Report &report)
{
    const gesturewidget::SettingsFile::Values values = sources.site.under(sources.own);
    const Bindings bindings = Bindings::fromSettings(values);
    const QString enabledBy = sources.of(names::moduleSection(), names::enabledKey());
    if (gesturewidget::CrashNote(program, sources.ownFile).isThere())
        report.addProblem(Matter::Crash, Text::tr("off since %1 crashed in their code; to switch them "
                                                  "on: mouse-gestures --switch-on %1")
                                             .arg(program));
    else if (!bindings.enabled)
        report.addProblem(Matter::Gestures, Text::tr("switched off in the settings") + enabledBy);
    else
        report.add(Matter::Gestures, Text::tr("on, %1 of them").arg(bindings.scheme) + enabledBy);
    report.add(Matter::Bindings, sourcesOfBindings(sources, bindings.scheme));

    const QString usual = Bindings::usualTrigger(profile, values);
    const QString found = sources.of(names::hostSection(), names::usualTriggerKey());
    if (!bindings.trigger.isEmpty())
        report.add(Matter::Trigger,
                   bindings.trigger + sources.of(names::hostSection(), names::triggerKey()));
    else if (profile.hasTrigger)
        report.add(Matter::Trigger, Text::tr("%1, by the profile").arg(usual));
    else if (!found.isEmpty())
        report.add(Matter::Trigger, Text::tr("%1, as suits the drawings").arg(usual));
    else
        report.add(Matter::Trigger, Text::tr("%1; ctrl+right if OpenGL paints the drawing").arg(usual));
}

// Returns the folder that somebody must be allowed to write into before the file can be kept.
QString folderToWriteInto(const QFileInfo &file)
{
    if (file.isSymLink())
        return QFileInfo(file.symLinkTarget()).path(); // nobody makes it
    // The nearest existing folder. The ones below it are made when something is kept.
    QString folder = file.absolutePath();
    while (!QFileInfo::exists(folder) && folder != QFileInfo(folder).path())
        folder = QFileInfo(folder).path();
    return folder;
}

void reportSettings(const Symptoms &symptoms, const gesturewidget::ProgramProfile &profile,
                    Report &report)
{
    const QFileInfo file(symptoms.settingsFile);
    const QString folder = folderToWriteInto(file);
    const bool canWrite =
        QFileInfo(folder).isDir() && isWritable(folder, W_OK | X_OK)
        && (!file.exists() || (file.isFile() && isWritable(file.filePath(), R_OK | W_OK)));
    if (!canWrite)
        report.addProblem(Matter::Settings,
                          Text::tr("%1, cannot be written").arg(symptoms.settingsFile));
    else
        report.add(Matter::Settings, file.exists()
                                         ? symptoms.settingsFile
                                         : Text::tr("%1, not there yet").arg(symptoms.settingsFile));

    const gesturewidget::SettingsFile::Values own =
        canWrite && file.exists() ? gesturewidget::SettingsFile(symptoms.settingsFile).read()
                                  : gesturewidget::SettingsFile::Values();
    reportChoices(symptoms.program,
                  {symptoms.settingsFile, own, gesturewidget::SiteSettings(symptoms.settingsFile)},
                  profile, report);
}

} // namespace

QString Finding::line() const
{
    return QStringLiteral("%1%2 %3").arg(
        QLatin1String(isProblem ? kProblem : kFine),
        padded(Text::tr(nameOf(matter)) + QLatin1Char(':'), kNameColumns), text);
}

QStringList Diagnosis::lines() const
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(finding.line());
    return lines;
}

bool Diagnosis::isHealthy() const
{
    return std::none_of(findings.begin(), findings.end(),
                        [](const Finding &finding) { return finding.isProblem; });
}

Symptoms Symptoms::of(const Subject &subject)
{
    Symptoms symptoms;
    symptoms.program = subject.name;
    symptoms.path = subject.path;
    if (!subject.path.isEmpty())
        symptoms.use = qtWidgetsUse(subject.path, subject.environment.value("LD_LIBRARY_PATH"),
                                    systemLibraryFolders("/etc/ld.so.conf"));
    symptoms.plugins = subject.plugins;
    symptoms.environment = subject.environment;
    symptoms.compositor = findCompositor(subject.environment.value("DISPLAY"));
    symptoms.profileFolders = subject.profileFolders;
    symptoms.settingsFile = subject.settingsFile();
    return symptoms;
}

Diagnosis diagnose(const Symptoms &symptoms)
{
    Report report;
    reportProgram(symptoms, report);
    if (symptoms.path.isEmpty())
        return report.diagnosis(); // without a program there is nothing more to say
    reportPlugin(symptoms, report);
    reportDisplay(symptoms, report);
    const gesturewidget::ProgramProfile profile = reportProfile(symptoms, report);
    reportSettings(symptoms, profile, report);
    return report.diagnosis();
}

Symptoms::Compositor findCompositor(const QByteArray &display)
{
    using Result = Symptoms::Compositor;
    if (display.isEmpty())
        return Result::Unknown;
    // Loaded by name: the launcher itself needs no X11.
    void *library = ::dlopen("libX11.so.6", RTLD_NOW | RTLD_LOCAL);
    if (!library)
        return Result::Unknown;
    using Open = void *(*)(const char *);
    using Close = int (*)(void *);
    using Screen = int (*)(void *);
    using Intern = unsigned long (*)(void *, const char *, int);
    using Owner = unsigned long (*)(void *, unsigned long);
    const auto open = reinterpret_cast<Open>(::dlsym(library, "XOpenDisplay"));
    const auto close = reinterpret_cast<Close>(::dlsym(library, "XCloseDisplay"));
    const auto screen = reinterpret_cast<Screen>(::dlsym(library, "XDefaultScreen"));
    const auto intern = reinterpret_cast<Intern>(::dlsym(library, "XInternAtom"));
    const auto owner = reinterpret_cast<Owner>(::dlsym(library, "XGetSelectionOwner"));
    void *server = open && close && screen && intern && owner ? open(display.constData()) : nullptr;
    Result result = Result::Unknown;
    if (server) {
        const QByteArray selection = "_NET_WM_CM_S" + QByteArray::number(screen(server));
        result = owner(server, intern(server, selection.constData(), 0)) != 0 ? Result::Running
                                                                              : Result::None;
        close(server);
    }
    ::dlclose(library);
    return result;
}

} // namespace launcher
