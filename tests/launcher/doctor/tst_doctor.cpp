// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Tests each finding that --doctor reports about a program.

#include "launcher/doctor/Doctor.h"

#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using launcher::Diagnosis;
using launcher::QtWidgetsUse;
using launcher::Symptoms;

using Change = std::function<void(Symptoms &, const QDir &)>;
Q_DECLARE_METATYPE(Change)

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class DoctorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup()
    {
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_CONFIG_DIRS");
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void aHealthyProgram()
    {
        const QTemporaryDir folder;
        const Diagnosis diagnosis = diagnose(healthy(folder.path()));
        QVERIFY2(diagnosis.isHealthy(), qPrintable(diagnosis.lines().join(QLatin1Char('\n'))));
        const QStringList expected{
            QStringLiteral("  program:     drafter, /opt/drafter"),
            QStringLiteral("  Qt:          5"),
            QStringLiteral("  plug-in:     /plugins/generic/libmousegestures-qt5.so"),
            QStringLiteral("  display:     X11, :7"),
            QStringLiteral("  compositor:  running"),
            QStringLiteral("  profile:     none of its own"),
            QStringLiteral("  views:       looked for in the running program, see --explain"),
            QStringLiteral("  settings:    %1/drafter.ini, not there yet").arg(folder.path()),
            QStringLiteral("  gestures:    on, 8 of them"),
            QStringLiteral("  bindings:    8 in no file"),
            QStringLiteral("  trigger:     right; ctrl+right if OpenGL paints the drawing"),
        };
        QCOMPARE(diagnosis.lines(), expected);
        QVERIFY(
            !QFile::exists(folder.filePath(QStringLiteral("drafter.ini")))); // --doctor writes nothing
    }

    void findings_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("isHealthy");
        QTest::addColumn<QString>("says");
        const auto row = [](const char *name, bool isHealthy, const char *says, const Change &change) {
            QTest::newRow(name) << change << isHealthy << QString::fromLatin1(says);
        };
        row("no program", false, "\n! program:     drafter, not found",
            [](Symptoms &symptoms, const QDir &) { symptoms.path.clear(); });
        row("no Qt Widgets", false, "\n! Qt:          none;",
            [](Symptoms &symptoms, const QDir &) { symptoms.use = QtWidgetsUse::None; });
        row("a script", true, "\n  Qt:          not known",
            [](Symptoms &symptoms, const QDir &) { symptoms.use = QtWidgetsUse::Unknown; });
        row("plug-in for the other Qt only", false, "\n! plug-in:     not installed for Qt 6",
            [](Symptoms &symptoms, const QDir &) { symptoms.use = QtWidgetsUse::Qt6; });
        row("no plug-in", false, "\n! plug-in:     not installed", [](Symptoms &symptoms, const QDir &) {
            symptoms.use = QtWidgetsUse::Unknown;
            symptoms.plugins.clear();
        });
        row("no display", false, "\n! display:     none",
            [](Symptoms &symptoms, const QDir &) { symptoms.environment.clear(); });
        row("Wayland with X11", true, "\n  display:     Wayland; the program will use X11, :7",
            [](Symptoms &symptoms, const QDir &) {
                symptoms.environment.insert("WAYLAND_DISPLAY", "wayland-0");
            });
        row("Wayland by its session", true, "\n  display:     Wayland; the program will use X11, :7",
            [](Symptoms &symptoms, const QDir &) {
                symptoms.environment.insert("XDG_SESSION_TYPE", "wayland");
            });
        row("plug-in for Qt 6", true, "/libmousegestures-qt6.so\n",
            [](Symptoms &symptoms, const QDir &) {
                symptoms.use = QtWidgetsUse::Qt6;
                symptoms.plugins.append({"/plugins6", 6});
            });
        row("Wayland without X11", false, "\n! display:     Wayland without X11",
            [](Symptoms &symptoms, const QDir &) {
                symptoms.environment = {{"WAYLAND_DISPLAY", "wayland-0"}};
            });
        row("no compositor", true, "\n  compositor:  none",
            [](Symptoms &symptoms, const QDir &) { symptoms.compositor = Symptoms::Compositor::None; });
        row("compositor not known", true, "\n  compositor:  not known",
            [](Symptoms &symptoms, const QDir &) {
                symptoms.compositor = Symptoms::Compositor::Unknown;
            });
        row("profile", true, "drafter.json", [](Symptoms &symptoms, const QDir &folder) {
            writeFile(folder.filePath(QStringLiteral("drafter.json")),
                      R"({"version": 1, "program": "drafter"})");
            symptoms.profileFolders = QStringList{folder.path()};
        });
        row("no folder for profiles of one's own", true, "/drafter.json\n",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.json")),
                          R"({"version": 1, "program": "drafter"})");
                symptoms.profileFolders = QStringList{QString(), folder.path()};
            });
        row("views of the profile", true, "\n  views:       Canvas, Sheet, by the profile",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.json")),
                          R"({"version": 1, "program": "drafter",)"
                          R"("viewClasses": ["Canvas", "Sheet"]})");
                symptoms.profileFolders = QStringList{folder.path()};
            });
        row("trigger of the profile", true, "\n  trigger:     shift+middle",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.json")),
                          R"({"version": 1, "program": "drafter",)"
                          R"("trigger": {"button": "middle", "modifiers": ["shift"]}})");
                symptoms.profileFolders = QStringList{folder.path()};
            });
        row("broken profile", false, "\n! profile:     the profile ",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.json")), "{");
                symptoms.profileFolders = QStringList{folder.path()};
            });
        row("profile with capitals in its name", false,
            "Drafter.json is not used: its name must be drafter.json\n",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("Drafter.json")),
                          R"({"version": 1, "program": "drafter"})");
                symptoms.profileFolders = QStringList{folder.path()};
            });
        row("profile with capitals behind the one that counts", true, "/drafter.json\n",
            [](Symptoms &symptoms, const QDir &folder) {
                for (const char *name : {"drafter.json", "Drafter.json"})
                    writeFile(folder.filePath(QString::fromLatin1(name)),
                              R"({"version": 1, "program": "drafter"})");
                symptoms.profileFolders = QStringList{folder.path()};
            });
        row("trigger of the settings", true, "\n  trigger:     ctrl+right",
            [](Symptoms &, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.ini")),
                          "[Host]\nTrigger=ctrl+right\n");
            });
        row("trigger that suits the drawings", true,
            "\n  trigger:     ctrl+right, as suits the drawings", [](Symptoms &, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.ini")),
                          "[Host]\nUsualTrigger=ctrl+right\n");
            });
        row("the site's settings", true, "site/gesturewidget/drafter.ini\n  bindings:    1 by ",
            [](Symptoms &symptoms, const QDir &folder) {
                const auto place = [&folder](const char *name) {
                    return folder.filePath(QLatin1String(name));
                };
                QVERIFY(folder.mkpath(QStringLiteral("own/gesturewidget")));
                QVERIFY(folder.mkpath(QStringLiteral("site/gesturewidget")));
                qputenv("XDG_CONFIG_HOME", QFile::encodeName(place("own")));
                qputenv("XDG_CONFIG_DIRS", QFile::encodeName(place("site")));
                symptoms.settingsFile = place("own/gesturewidget/drafter.ini");
                writeFile(symptoms.settingsFile, "[GestureWidget]\n81=drawArc\n");
                writeFile(place("site/gesturewidget/drafter.ini"),
                          "[GestureWidget]\nActiveScheme=8\nEnableMouseGesture=1\n81=a\n82=b\n");
            });
        row("switched off", false, "\n! gestures:    switched off", [](Symptoms &, const QDir &folder) {
            writeFile(folder.filePath(QStringLiteral("drafter.ini")),
                      "[GestureWidget]\nEnableMouseGesture=0\n");
        });
        row("off since a crash", false,
            "\n! gestures:    off since drafter crashed in their code; to switch them on: "
            "mouse-gestures --switch-on drafter\n",
            [](Symptoms &, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("drafter.ini")), "[Host]\nOffSinceCrash=1\n");
            });
        row("a folder in place of the settings", false, "cannot be written",
            [](Symptoms &, const QDir &folder) {
                QVERIFY(folder.mkpath(QStringLiteral("drafter.ini")));
            });
        row("a file in place of their folder", false, "cannot be written",
            [](Symptoms &symptoms, const QDir &folder) {
                writeFile(folder.filePath(QStringLiteral("file")), "x");
                symptoms.settingsFile = folder.filePath(QStringLiteral("file/drafter.ini"));
            });
        row("a link into a folder that is not there", false, "cannot be written",
            [](Symptoms &, const QDir &folder) {
                QVERIFY(QFile::link(folder.filePath(QStringLiteral("none/drafter.ini")),
                                    folder.filePath(QStringLiteral("drafter.ini"))));
            });
        row("a link to a file that is made when needed", true, "not there yet",
            [](Symptoms &, const QDir &folder) {
                QVERIFY(QFile::link(folder.filePath(QStringLiteral("other.ini")),
                                    folder.filePath(QStringLiteral("drafter.ini"))));
            });
        row("a folder that is made when needed", true, "not there yet",
            [](Symptoms &symptoms, const QDir &folder) {
                symptoms.settingsFile = folder.filePath(QStringLiteral("a/b/drafter.ini"));
            });
    }

    void findings()
    {
        QFETCH(Change, change);
        QFETCH(bool, isHealthy);
        QFETCH(QString, says);
        const QTemporaryDir folder;
        Symptoms symptoms = healthy(folder.path());
        change(symptoms, QDir(folder.path()));
        const Diagnosis diagnosis = diagnose(symptoms);
        const QString lines = QLatin1Char('\n') + diagnosis.lines().join(QLatin1Char('\n'));
        QVERIFY2(lines.contains(says), qPrintable(lines));
        QCOMPARE(diagnosis.isHealthy(), isHealthy);
        QCOMPARE(lines.contains(QStringLiteral("\n! ")), !isHealthy);
    }

    void ofNoProgramNothingElseIsSaid()
    {
        const QTemporaryDir folder;
        Symptoms symptoms = healthy(folder.path());
        symptoms.path.clear();
        QCOMPARE(diagnose(symptoms).lines(),
                 QStringList(QStringLiteral("! program:     drafter, not found")));
    }

    void aDisplayThatDoesNotAnswer()
    {
        QCOMPARE(launcher::findCompositor(QByteArray()), Symptoms::Compositor::Unknown);
        QCOMPARE(launcher::findCompositor(":9999"), Symptoms::Compositor::Unknown);
    }

private:
    static Symptoms healthy(const QString &folder)
    {
        Symptoms symptoms;
        symptoms.program = QStringLiteral("drafter");
        symptoms.path = "/opt/drafter";
        symptoms.use = QtWidgetsUse::Qt5;
        symptoms.plugins = {{"/plugins", 5}};
        symptoms.environment.insert("DISPLAY", ":7");
        symptoms.compositor = Symptoms::Compositor::Running;
        symptoms.settingsFile = folder + QStringLiteral("/drafter.ini");
        return symptoms;
    }
};

QTEST_GUILESS_MAIN(DoctorTest)
#include "tst_doctor.moc"
