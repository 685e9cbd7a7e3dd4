#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

// The plug-in in a program of its own process: that it gets in, that gestures work there,
// and that the program ends as it would without it, whatever is destroyed first.
class tst_Inject : public QObject
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
               const QString &keys = QStringLiteral("mousegestures"));
};

tst_Inject::Result tst_Inject::run(const QStringList &arguments, const QString &plugins,
                                   const QString &keys)
{
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), keys);
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), plugins);
    environment.insert(QStringLiteral("GESTUREWIDGET_PROFILES"),
                       QStringLiteral(TESTS_SOURCE_DIR "/host/guest/profiles"));
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(name), home.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(GUEST), arguments);
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
    // The platform without a screen says these of itself.
    for (const char *known : {"This plugin does not support", "QStandardPaths: "}) {
        for (int i = int(result.errors.size()) - 1; i >= 0; --i) {
            if (result.errors.at(i).startsWith(QLatin1String(known)))
                result.errors.removeAt(i);
        }
    }
    return result;
}

void tst_Inject::programEndsAsItWould_data()
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
    row("second-window", 0, "entry in the second window: no");
    row("without-event-loop", 0, "entry: yes, ring: yes");
    row("heap", 0, "");
    row("application-first", 0, "application gone");
    row("static", 0, "");
}

void tst_Inject::programEndsAsItWould()
{
    QFETCH(int, status);
    QFETCH(QString, output);
    const Result result = run(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(result.errors, QStringList());
    QCOMPARE(result.output.join(QStringLiteral(", ")), output);
    QVERIFY(result.ended);
    QCOMPARE(result.status, status);
}

void tst_Inject::programSeesWhatItAlwaysSaw_data()
{
    QTest::addColumn<int>("lines"); // that the program logs at least
    QTest::newRow("hover") << 3;
    QTest::newRow("clicks") << 11;
    QTest::newRow("double-clicks") << 9;
    QTest::newRow("drags") << 29;
    QTest::newRow("several-buttons") << 10;
    QTest::newRow("wheel") << 5;
    QTest::newRow("keys") << 10;
    QTest::newRow("pen") << 3;
    QTest::newRow("control") << 3;
    QTest::newRow("menu") << 8;
    QTest::newRow("eating-view") << 5;
    QTest::newRow("eating-application") << 10;
    QTest::newRow("greedy-application") << 10;
}

// Event by event: a process with the plug-in and one without.
void tst_Inject::programSeesWhatItAlwaysSaw()
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

void tst_Inject::environmentIsClean()
{
    const Result result = run(QStringLiteral("environment"), QStringLiteral("/nowhere:" PLUGINS_DIR),
                              QStringLiteral("mousegestures,unknownplugin"));
    QVERIFY(result.output.contains(QStringLiteral("unknownplugin|/nowhere")));
    QCOMPARE(result.status, 0);

    // A program without widgets has no gestures and does not hand them on either.
    const Result bare = run(QStringLiteral("without-widgets"));
    QCOMPARE(bare.errors, QStringList());
    QCOMPARE(bare.output, QStringList(QStringLiteral("unset|unset")));
    QCOMPARE(bare.status, 0);
}

void tst_Inject::brokenModuleLeavesTheProgramAlone_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("expected");
    const QString stubs = QStringLiteral(STUB_MODULES_DIR "/%1.so");
    QTest::newRow("missing") << QString() << QStringLiteral("there is no module");
    QTest::newRow("other version") << stubs.arg(QStringLiteral("newer"))
                                   << QStringLiteral("is for version 4.0.0.0 of the platform");
    QTest::newRow("throws") << stubs.arg(QStringLiteral("init_throws"))
                            << QStringLiteral("could not start: no start today");
    QTest::newRow("no library") << QStringLiteral(TESTS_SOURCE_DIR "/host/guest/main.cpp")
                                << QStringLiteral("it is no library");
}

// The module is looked for beside the host library: a copy of the libraries without it, or
// with another one in its place.
void tst_Inject::brokenModuleLeavesTheProgramAlone()
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

void tst_Inject::anotherPluginIsStillLoaded()
{
    // Qt itself complains of a plug-in that it does not know; ours is loaded all the same.
    const Result result = run(QStringLiteral("quit"), QStringLiteral(PLUGINS_DIR),
                              QStringLiteral("unknownplugin,mousegestures"));
    QVERIFY(result.output.contains(QStringLiteral("entry")));
    QCOMPARE(result.status, 0);

    // One that somebody had asked for before is loaded, and handed on to other programs.
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

QTEST_GUILESS_MAIN(tst_Inject)
#include "tst_inject.moc"
