// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/support/Files.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

// Runs the plug-in in another process: it gets in, gestures work, and the program ends as it would
// without it, whatever is destroyed first.
class InjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void programEndsAsItWould_data();
    void programEndsAsItWould();
    void programSeesWhatItAlwaysSaw_data();
    void programSeesWhatItAlwaysSaw();
    void environmentIsClean();
    void brokenModuleLeavesTheProgramAlone_data();
    void brokenModuleLeavesTheProgramAlone();
    void anotherPluginIsStillLoaded();
    void badFilesLeaveGesturesAlone_data();
    void badFilesLeaveGesturesAlone();
    void filesOfOthersLeaveGesturesAlone_data();
    void filesOfOthersLeaveGesturesAlone();
    void aFullDiskLeavesGesturesAlone();

private:
    struct Result
    {
        bool ended = false;
        int status = -1;
        QStringList output;
        QStringList errors;
    };
    Result run(const QString &mode, const QString &plugins = QStringLiteral(PLUGINS_DIR),
               const QString &keys = QStringLiteral("mousegestures"))
    {
        return run(QStringList(mode), plugins, keys);
    }
    Result run(const QStringList &arguments, const QString &plugins = QStringLiteral(PLUGINS_DIR),
               const QString &keys = QStringLiteral("mousegestures"))
    {
        const QTemporaryDir home;
        return runIn(home.path(), QStringList(QStringLiteral(GUEST)) + arguments, plugins, keys);
    }
    Result runIn(const QString &home, const QStringList &command,
                 const QString &plugins = QStringLiteral(PLUGINS_DIR),
                 const QString &keys = QStringLiteral("mousegestures"));
};

InjectTest::Result InjectTest::runIn(const QString &home, const QStringList &command,
                                     const QString &plugins, const QString &keys)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), keys);
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), plugins);
    // A profile in the home folder wins.
    environment.insert(QStringLiteral("GESTUREWIDGET_PROFILES"),
                       home + QStringLiteral("/own:" TESTS_SOURCE_DIR "/host/inject/guest/profiles"));
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), home);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(command.first(), command.mid(1));
    Result result;
    result.ended = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    result.status = process.exitCode();
    const auto lines = [](const QByteArray &text) {
        QStringList list = QString::fromLocal8Bit(text).split(QLatin1Char('\n'));
        list.removeAll(QString());
        return list;
    };
    result.output = lines(process.readAllStandardOutput());
    result.errors = lines(process.readAllStandardError());
    // The offscreen platform itself prints these.
    for (const char *known : {"This plugin does not support", "QStandardPaths: "}) {
        for (int i = int(result.errors.size()) - 1; i >= 0; --i) {
            if (result.errors.at(i).startsWith(QLatin1String(known)))
                result.errors.removeAt(i);
        }
    }
    return result;
}

void InjectTest::programEndsAsItWould_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output");
    const auto row = [](const char *mode, int status, const char *output) {
        QTest::newRow(mode) << status << QString::fromLatin1(output);
    };
    row("quit", 0, "entry, entry after the event loop: no");
    row("gesture", 0, "entry, ring: yes, lines: 1, entry after the event loop: no");
    row("close", 0, "entry, entry after the event loop: no");
    row("exit", 7, "entry");
    row("exit-with-ring", 7, "entry, ring: yes");
    row("quit-with-ring", 0, "entry, ring: yes, entry after the event loop: no");
    row("close-with-ring", 0, "entry, ring: yes, entry after the event loop: no");
    row("quit-while-holding", 0, "entry, entry after the event loop: no");
    row("view-gone-with-ring", 0,
        "entry, ring: yes, ring after the view: no, entry after the event loop: no");
    const char *const next = "ring: yes, gesture in the next view, entry after the event loop: no";
    const auto rowOfNext = [&](const char *mode, const QByteArray &before) {
        row(mode, 0, QByteArray("entry, " + before + next).constData());
    };
    rowOfNext("view-gone-while-holding", "");
    rowOfNext("view-gone-mid-fade", "ring: yes, view gone, ");
    rowOfNext("view-gone-by-command", "ring: yes, view gone, ");
    rowOfNext("window-hidden-with-ring", "ring: yes, let go, ");
    rowOfNext("new-menu-bar", "entry in the new menu bar, ");
    row("dialog-command", 0,
        "entry, ring: yes, grab in the dialog: no, ring behind the dialog: no, dialog closed, "
        "ring: yes, entry after the event loop: no");
    row("quit-with-dialog", 0, "entry, dialog, entry after the event loop: no");
    row("window-gone-with-dialog", 0, "dialog, window gone");
    row("window-first", 0, "ring: yes, window gone");
    row("window-later", 0, "ring: yes, window gone");
    row("second-window", 0, "entry in the second window, ring: yes");
    const auto rowOfTwo = [&row](const char *mode, const QByteArray &output) {
        row(QByteArray("two-windows-" + QByteArray(mode)).constData(), 0,
            QByteArray("two windows, " + output).constData());
    };
    rowOfTwo("in-turn", "ring: yes, lines: 0 and 1, ring: yes, lines: 1 and 1, "
                        "ring: yes, lines: 1 and 2");
    rowOfTwo("first-destroyed", "ring: yes, lines: 1 and 0, ring: yes, lines: gone and 1");
    rowOfTwo("first-closed", "ring: yes, lines: 1 and 0, ring: yes, lines: 1 and 1, "
                             "ring: yes, lines: 2 and 1");
    rowOfTwo("second-destroyed", "ring: yes, lines: 0 and 1, ring: yes, lines: 1 and gone");
    rowOfTwo("second-again", "two windows, ring: yes, lines: 0 and 1, ring: yes, lines: gone and 2");
    rowOfTwo("gone-with-ring", "ring: yes, ring: no, ring: yes, lines: 1 and gone");
    rowOfTwo("first-gone-with-ring",
             "ring: yes, lines: 1 and 0, ring: yes, ring: no, ring: yes, lines: gone and 1");
    rowOfTwo("gone-while-holding", "ring: yes, lines: 1 and gone");
    rowOfTwo("gone-before-the-command", "ring: yes, ring: yes, lines: 1 and gone");
    rowOfTwo("closed-by-the-command", "ring: yes, lines: 0 and gone, ring: yes, lines: 1 and gone");
    rowOfTwo("gone-with-dialog", "ring: yes, lines: 1 and 0, over the second: yes, dialog gone, "
                                 "ring: yes, lines: 2 and gone");
    rowOfTwo("first-gone-with-dialog", "ring: yes, lines: 1 and 0, over the second: yes, dialog gone, "
                                       "ring: yes, lines: gone and 1");
    rowOfTwo("both-destroyed", "ring: yes, lines: 0 and 1, entry, ring: yes, lines: 1 and gone");
    for (const char *mode : {"before", "at-once", "later", "hidden"})
        row(QByteArray("replaced-" + QByteArray(mode)).constData(), 0,
            "entry in the start window, ring: yes, command");
    row("menus-in-a-child-window", 0, "entry in the child window, ring: yes");
    row("without-event-loop", 0, "entry: yes, ring: yes");
    row("after-bare-application", 0, "entry, unset|unset, entry after the event loop: no");
    row("after-another-application", 0, "entry, unset|unset, entry after the event loop: no");
    row("heap", 0, "");
    row("application-first", 0, "application gone");
    row("static", 0, "");
}

void InjectTest::programEndsAsItWould()
{
    QFETCH(int, status);
    QFETCH(QString, output);
    const Result result = run(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(result.errors.join(QLatin1Char('\n')), QString());
    QCOMPARE(result.output.join(QStringLiteral(", ")), output);
    QVERIFY(result.ended);
    QCOMPARE(result.status, status);
}

void InjectTest::programSeesWhatItAlwaysSaw_data()
{
    QTest::addColumn<int>("lines"); // the least number of lines that the program logs
    QTest::newRow("hover") << 3;
    QTest::newRow("clicks") << 11;
    QTest::newRow("double-clicks") << 9;
    QTest::newRow("drags") << 29;
    QTest::newRow("several-buttons") << 10;
    QTest::newRow("wheel") << 5;
    QTest::newRow("keys") << 10;
    QTest::newRow("pen") << 11;
    QTest::newRow("pen-as-mouse") << 6;
    QTest::newRow("control") << 3;
    QTest::newRow("menu") << 8;
    QTest::newRow("eating-view") << 5;
    QTest::newRow("eating-application") << 10;
    QTest::newRow("greedy-application") << 10;
}

// Compares a process with the plug-in and one without, event by event.
void InjectTest::programSeesWhatItAlwaysSaw()
{
    QFETCH(int, lines);
    const QString script = QString::fromLatin1(QTest::currentDataTag());
    const Result without =
        run({QStringLiteral("events"), script, QStringLiteral("alone")}, QString(), QString());
    QCOMPARE(without.errors, QStringList());
    QCOMPARE(without.status, 0);
    QVERIFY2(without.output.size() >= lines, qPrintable(without.output.join(QLatin1Char('\n'))));
    const Result with = run({QStringLiteral("events"), script});
    QCOMPARE(with.errors, QStringList());
    QCOMPARE(with.status, 0);
    QCOMPARE(with.output, without.output);
}

void InjectTest::environmentIsClean()
{
    const Result result = run(QStringLiteral("environment"), QStringLiteral("/nowhere:" PLUGINS_DIR),
                              QStringLiteral("mousegestures,unknownplugin"));
    QVERIFY(result.output.contains(QStringLiteral("unknownplugin|/nowhere")));
    QCOMPARE(result.status, 0);

    // A program without widgets has no gestures, and programs that it starts do not get the
    // variables.
    const Result bare = run(QStringLiteral("without-widgets"));
    QCOMPARE(bare.errors, QStringList());
    QCOMPARE(bare.output, QStringList(QStringLiteral("unset|unset")));
    QCOMPARE(bare.status, 0);
}

void InjectTest::brokenModuleLeavesTheProgramAlone_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("expected");
    const QString stubs = QStringLiteral(STUB_MODULES_DIR "/%1.so");
    QTest::newRow("missing") << QString() << QStringLiteral("there is no module");
    QTest::newRow("other version") << stubs.arg(QStringLiteral("newer"))
                                   << QStringLiteral("is for version 4.0.0.0 of the platform");
    QTest::newRow("throws") << stubs.arg(QStringLiteral("init_throws"))
                            << QStringLiteral("could not start: no start today");
    QTest::newRow("no library") << QStringLiteral(TESTS_SOURCE_DIR "/host/inject/guest/main.cpp")
                                << QStringLiteral("it is not a library");
}

// The module is searched beside the host library, so use a copy of the libraries without it, or
// with another one in its place.
void InjectTest::brokenModuleLeavesTheProgramAlone()
{
    QFETCH(QString, module);
    QFETCH(QString, expected);
    QTemporaryDir root;
    const QDir folder(root.path());
    QVERIFY(folder.mkpath(QStringLiteral("lib")) && folder.mkpath(QStringLiteral("plugins/generic")));
    const QDir libraries(QStringLiteral(LIBRARIES_DIR));
    const QStringList names =
        libraries.entryList({QStringLiteral("libgesturewidget-*.so*")}, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QVERIFY(QFile::copy(libraries.filePath(name), folder.filePath(QStringLiteral("lib/") + name)));
    const QString plugin = QStringLiteral("generic/libmousegestures-qt%1.so").arg(QT_VERSION_MAJOR);
    QVERIFY(QFile::copy(QDir(QStringLiteral(PLUGINS_DIR)).filePath(plugin),
                        folder.filePath(QStringLiteral("plugins/") + plugin)));
    if (!module.isEmpty()) {
        const QString name = QStringLiteral("lib/gesturewidget-module-qt%1.so").arg(QT_VERSION_MAJOR);
        QVERIFY(QFile::copy(module, folder.filePath(name)));
    }

    const Result result =
        run(QStringLiteral("without-module"), folder.filePath(QStringLiteral("plugins")));
    QCOMPARE(result.output, QStringList(QStringLiteral("clicks: 1")));
    QCOMPARE(result.errors.size(), 1);
    QVERIFY2(result.errors.first().startsWith(QStringLiteral("mouse gestures: ")),
             qPrintable(result.errors.first()));
    QVERIFY2(result.errors.first().contains(expected), qPrintable(result.errors.first()));
    QVERIFY(result.ended);
    QCOMPARE(result.status, 0);
}

void InjectTest::anotherPluginIsStillLoaded()
{
    // Qt complains about an unknown plug-in, and still loads this one.
    const Result result = run(QStringLiteral("quit"), QStringLiteral(PLUGINS_DIR),
                              QStringLiteral("unknownplugin,mousegestures"));
    QVERIFY(result.output.contains(QStringLiteral("entry")));
    QCOMPARE(result.status, 0);

    // Another plug-in that somebody asked for is loaded too, and passed on to other programs.
    for (const char *keys : {"otherplugin:left/a,mousegestures", "mousegestures,otherplugin:left/a"}) {
        const Result both =
            run(QStringLiteral("environment"), QStringLiteral(OTHER_PLUGINS_DIR ":" PLUGINS_DIR),
                QString::fromLatin1(keys));
        QCOMPARE(both.errors, QStringList());
        QCOMPARE(both.output,
                 QStringList({QStringLiteral("otherplugin: left/a"), QStringLiteral("entry"),
                              QStringLiteral("otherplugin:left/a|" OTHER_PLUGINS_DIR),
                              QStringLiteral("entry after the event loop: no")}));
        QCOMPARE(both.status, 0);
    }
}

namespace {

const QString kSettings = QStringLiteral("gesturewidget/guest.ini");
const QString kCatalogue = QStringLiteral("gesturewidget/guest.commands.json");
const QString kProfile = QStringLiteral("own/guest.json");

const QStringList &gestureWorks()
{
    static const QStringList output{QStringLiteral("entry"), QStringLiteral("ring: yes"),
                                    QStringLiteral("lines: 1"),
                                    QStringLiteral("entry after the event loop: no")};
    return output;
}

// Root can read and write every file, so run the program without that privilege.
QStringList unprivileged(const QStringList &command)
{
    if (::getuid() != 0)
        return command;
    const QString capabilities = QStringLiteral("-dac_override,-dac_read_search");
    return QStringList{QStringLiteral("setpriv"), QStringLiteral("--bounding-set"), capabilities,
                       QStringLiteral("--inh-caps"), capabilities}
         + command;
}

} // namespace

void InjectTest::badFilesLeaveGesturesAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("lines"); // on standard error
    const auto row = [](const char *name, const QString &file, const QByteArray &text, int lines) {
        QTest::newRow(name) << file << text << lines;
    };
    const QByteArray garbage("\x00\x01\xff\xfe[{\"\n=;\x80", 12);
    row("settings of garbage", kSettings, garbage, 1);
    row("settings cut off", kSettings, "[GestureWidget]\n41=ID_", 0); // a person may write this
    row("settings with nothing in them", kSettings, "", 0);
    row("settings zeroed", kSettings, QByteArray(200, '\0'), 1);
    row("settings of values that mean nothing", kSettings,
        "[GestureWidget]\nActiveScheme=12\nEnableMouseGesture=perhaps\n87=\"ID_LINE\"\n"
        "[Host]\nTrigger=elbow\n",
        1);
    // Two lines: it can be neither read nor written.
    row("settings too large", kSettings, QByteArray(5 * 1024 * 1024, ';'), 2);
    row("catalogue of garbage", kCatalogue, garbage, 1);
    row("catalogue cut off", kCatalogue, R"({"version": 1, "commands": [{"identifier": "ID_L)", 1);
    row("catalogue of a later version", kCatalogue, R"({"version": 2, "commands": []})", 1);
    row("catalogue of another program", kCatalogue, R"({"colour": "red"})", 1);
    row("catalogue too large", kCatalogue, QByteArray(33 * 1024 * 1024, ' '), 1);
    row("catalogue of lies", kCatalogue,
        R"({"version": 1, "commands": [{"identifier": "ID_LINE", "command": "fileOpen",
            "caption": "<b>&%1%2", "group": "%3", "icon": "iVBORw0KGgo="},
            {"identifier": "drawLine", "command": "ID_LINE"}]})",
        0);
    // Without a valid profile, the host guesses.
    row("profile of garbage", kProfile, garbage, 1);
    row("profile cut off", kProfile, R"({"version": 1, "program": "guest", "viewCl)", 1);
    row("profile of a later version", kProfile, R"({"version": 2, "program": "guest"})", 1);
    row("profile too large", kProfile, QByteArray(2 * 1024 * 1024, ' '), 1);
}

void InjectTest::badFilesLeaveGesturesAlone()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(int, lines);
    const QTemporaryDir home;
    tests::writeFile(home.filePath(file), text);
    const Result result = runIn(home.path(), {QStringLiteral(GUEST), QStringLiteral("gesture")});
    QCOMPARE(result.output, gestureWorks());
    QCOMPARE(result.status, 0);
    QVERIFY2(result.errors.size() == lines, qPrintable(result.errors.join(QLatin1Char('\n'))));
    for (const QString &line : result.errors)
        QVERIFY2(line.startsWith(QStringLiteral("mouse gestures: ")), qPrintable(line));
}

void InjectTest::filesOfOthersLeaveGesturesAlone_data()
{
    QTest::addColumn<QString>("closed"); // this person may not read or write it
    QTest::addColumn<QString>("complaint"); // the expected complaint
    QTest::newRow("settings") << kSettings << QStringLiteral("cannot be read");
    QTest::newRow("catalogue") << kCatalogue << QStringLiteral("cannot be read");
    QTest::newRow("profile") << kProfile << QStringLiteral("is not used");
    QTest::newRow("folder") << QStringLiteral("gesturewidget") << QStringLiteral("cannot be");
    QTest::newRow("home") << QStringLiteral(".") << QStringLiteral("cannot be written");
}

void InjectTest::filesOfOthersLeaveGesturesAlone()
{
    QFETCH(QString, closed);
    QFETCH(QString, complaint);
    const QTemporaryDir home;
    const QString path = home.filePath(closed);
    const bool isFile = closed.contains(QLatin1Char('/'));
    if (isFile)
        tests::writeFile(path, "{}");
    else
        QVERIFY(QDir().mkpath(path));
    const QFile::Permissions before = QFile::permissions(path);
    QVERIFY(
        QFile::setPermissions(path, isFile ? QFile::Permissions() : QFile::ReadOwner | QFile::ExeOwner));
    const Result result =
        runIn(home.path(), unprivileged({QStringLiteral(GUEST), QStringLiteral("gesture")}));
    QVERIFY(QFile::setPermissions(path, before));
    QCOMPARE(result.output, gestureWorks());
    QCOMPARE(result.status, 0);
    QVERIFY(!result.errors.filter(complaint).isEmpty());
    // For each such file there is one line, or one for reading and one for writing.
    QVERIFY2(result.errors.size() <= 2, qPrintable(result.errors.join(QLatin1Char('\n'))));
    for (const QString &line : result.errors)
        QVERIFY2(line.startsWith(QStringLiteral("mouse gestures: ")), qPrintable(line));
}

void InjectTest::aFullDiskLeavesGesturesAlone()
{
    const QTemporaryDir home;
    // No file may grow, not even by a byte, until the program's main() ends.
    const Result result =
        runIn(home.path(), {QStringLiteral("bash"), QStringLiteral("-c"),
                            QStringLiteral("trap '' XFSZ; ulimit -S -f 0; exec \"$@\""),
                            QStringLiteral("full"), QStringLiteral(GUEST), QStringLiteral("gesture")});
    QCOMPARE(result.output, gestureWorks());
    QCOMPARE(result.status, 0);
    QVERIFY2(result.errors.size() <= 2, qPrintable(result.errors.join(QLatin1Char('\n'))));
    QVERIFY(!result.errors.filter(kSettings.section(QLatin1Char('/'), -1)).isEmpty());
    for (const QString &line : result.errors)
        QVERIFY2(line.contains(QStringLiteral("cannot be written")), qPrintable(line));
}

QTEST_GUILESS_MAIN(InjectTest)
#include "tst_inject.moc"
