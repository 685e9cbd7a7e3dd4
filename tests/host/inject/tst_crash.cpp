// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CrashNote.h"
#include "tests/host/support/StubModules.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/resource.h>

using gesturewidget::CrashNote;
using tests::contentOf;
using tests::text;

// Lets a program with the plug-in die. If it died in the code of the gestures, it starts without them
// until a person switches them on again.
class CrashTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void aModuleThatAbortsIsLeftOut();
    void onlyCrashesInOurCodeCount_data();
    void onlyCrashesInOurCodeCount();
    void withoutAPlaceForTheMarkNothingIsSaid();

private:
    struct Result
    {
        bool ended = false; // of itself
        int status = -1;
        QStringList output;
        QStringList errors;
    };
    Result run(const char *mode, const QString &plugins = text(PLUGINS_DIR));
    // Makes a plug-in folder whose plug-in loads that module.
    QString pluginsWith(const QString &module) const;
    [[nodiscard]] QString settings() const { return place("home/gesturewidget/guest.ini"); }
    [[nodiscard]] CrashNote note() const { return {text("guest"), settings()}; }
    [[nodiscard]] QStringList pages() const
    {
        return QDir(m_runtime).entryList({text("gesturewidget-*")}, QDir::Files);
    }
    void expectOff(const char *mode, const QString &plugins = text(PLUGINS_DIR));
    void expectOn();

    // In memory, as on a desktop. Some file systems allow no marks.
    std::unique_ptr<QTemporaryDir> m_runtimeFolder;
    QString m_runtime;
    QString m_cache;

protected Q_SLOTS:
    void init()
    {
        FolderTest::init();
        m_runtimeFolder = std::make_unique<QTemporaryDir>(text("/dev/shm/runtime-XXXXXX"));
        QVERIFY(m_runtimeFolder->isValid());
        m_runtime = m_runtimeFolder->path();
        m_cache = place("cache");
        const rlimit none{0, 0}; // no core files of programs that die
        QCOMPARE(::setrlimit(RLIMIT_CORE, &none), 0);
        // For CrashNote in this process.
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime));
    }
};

CrashTest::Result CrashTest::run(const char *mode, const QString &plugins)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("QT_QPA_PLATFORM"), text("offscreen"));
    environment.insert(text("QT_QPA_GENERIC_PLUGINS"), text("mousegestures"));
    environment.insert(text("QT_PLUGIN_PATH"), plugins);
    environment.insert(text("GESTUREWIDGET_PROFILES"),
                       text(TESTS_SOURCE_DIR "/host/inject/guest/profiles"));
    for (const char *name : {"HOME", "XDG_CONFIG_HOME"})
        environment.insert(text(name), place("home"));
    environment.insert(text("XDG_RUNTIME_DIR"), m_runtime);
    environment.insert(text("XDG_CACHE_HOME"), m_cache);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(text(GUEST), {text(mode)});
    Result result;
    result.ended = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    result.status = process.exitCode();
    result.output = QString::fromLocal8Bit(process.readAllStandardOutput())
                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    result.errors = QString::fromLocal8Bit(process.readAllStandardError())
                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                        .filter(text("mouse gestures: "));
    return result;
}

QString CrashTest::pluginsWith(const QString &module) const
{
    const QDir folder(place("other"));
    const auto copy = [&folder](const QString &from, const QString &to) {
        return folder.mkpath(QFileInfo(to).path()) && QFile::copy(from, folder.filePath(to));
    };
    const QDir libraries(text(LIBRARIES_DIR));
    const QStringList names = libraries.entryList({text("libgesturewidget-*.so*")}, QDir::Files);
    const QString plugin = text("generic/libmousegestures-qt%1.so").arg(QT_VERSION_MAJOR);
    bool isCopied = !names.isEmpty() && copy(text(PLUGINS_DIR "/") + plugin, text("plugins/") + plugin)
                 && copy(module, text("lib/gesturewidget-module-qt%1.so").arg(QT_VERSION_MAJOR));
    for (const QString &name : names)
        isCopied = isCopied && copy(libraries.filePath(name), text("lib/") + name);
    return isCopied ? folder.filePath(text("plugins")) : QString();
}

// The program runs as it does without gestures, and says why in one line.
void CrashTest::expectOff(const char *mode, const QString &plugins)
{
    const Result result = run(mode, plugins);
    QCOMPARE(result.output, QStringList(text("clicks: 1")));
    QCOMPARE(result.errors, QStringList(text("mouse gestures: gestures are off, since guest crashed in "
                                             "their code; to switch them on: mouse-gestures "
                                             "--switch-on guest")));
    QVERIFY(result.ended);
    QCOMPARE(result.status, 0);
    QCOMPARE(pages(), QStringList());
    QVERIFY(contentOf(settings()).contains("OffSinceCrash=1"));
}

void CrashTest::expectOn()
{
    const Result result = run("gesture");
    QCOMPARE(result.errors, QStringList());
    QCOMPARE(result.output, QStringList({text("entry"), text("ring: yes"), text("lines: 1"),
                                         text("entry after the event loop: no")}));
    QCOMPARE(result.status, 0);
    QCOMPARE(pages(), QStringList());
    QVERIFY(!contentOf(settings()).contains("OffSinceCrash"));
}

void CrashTest::aModuleThatAbortsIsLeftOut()
{
    const QString plugins = pluginsWith(tests::stubModule(text("init_aborts")));
    QVERIFY(!plugins.isEmpty());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!run("without-module", plugins).ended);
        QCOMPARE(pages().size(), 1);
        QVERIFY(note().isThere());
        // However often it is started, also when another module is there.
        expectOff("without-module", plugins);
        expectOff("without-module", plugins);
        expectOff("without-module");
        QString problem;
        QVERIFY(note().remove(&problem));
    }
    expectOn();
}

void CrashTest::onlyCrashesInOurCodeCount_data()
{
    QTest::addColumn<bool>("isOurs");
    const auto row = [](const char *way, bool isOurs) { QTest::newRow(way) << isOurs; };
    row("icon", true);
    row("search", true);
    row("leave-icon", true); // nothing tells it from a crash
    row("exit-icon", false);
    row("idle", false);
    row("command", false);
    row("menu", false);
    row("ring", false);
    row("dialog", false);
}

void CrashTest::onlyCrashesInOurCodeCount()
{
    QFETCH(bool, isOurs);
    const QByteArray mode = QByteArray("crash-") + QTest::currentDataTag();
    const Result result = run(mode.constData());
    QVERIFY(result.output.contains(text("entry")));
    QVERIFY2(!result.ended || result.status == 3, qPrintable(QString::number(result.status)));
    QCOMPARE(note().isThere(), isOurs);
    if (isOurs) {
        expectOff("without-module");
        QString problem;
        QVERIFY(note().remove(&problem));
    }
    expectOn();
}

void CrashTest::withoutAPlaceForTheMarkNothingIsSaid()
{
    for (const char *folder : {"/proc", "/dev/null", "/nowhere/at/all"}) {
        m_runtime = text(folder);
        m_cache = m_runtime;
        const Result crashed = run("crash-icon");
        QVERIFY(!crashed.ended);
        QCOMPARE(crashed.errors, QStringList());
        QVERIFY(crashed.output.contains(text("entry")));
    }
}

QTEST_GUILESS_MAIN(CrashTest)
#include "tst_crash.moc"
