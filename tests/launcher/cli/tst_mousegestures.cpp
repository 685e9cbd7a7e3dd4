// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The command itself, copied into a folder with plug-in folders of the test.

#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

struct Outcome
{
    int status = -1;
    QProcess::ExitStatus how = QProcess::CrashExit;
    QByteArray output;
    QByteArray errors;
};

const QString kPluginFile = QStringLiteral("plugins/generic/libmousegestures-qt%1.so");

} // namespace

class MouseGesturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        tests::failOnWarnings();
        QVERIFY(m_prefix.isValid());
        QVERIFY(QDir(m_prefix.path()).mkpath(QStringLiteral("bin")));
        QVERIFY(QDir(m_prefix.path()).mkpath(QStringLiteral("plugins/generic")));
        m_command = m_prefix.filePath(QStringLiteral("bin/mouse-gestures"));
        QVERIFY(QFile::copy(QStringLiteral(MOUSE_GESTURES), m_command));
    }

    void init()
    {
        tests::resetWarnings();
        QVERIFY(QFile(m_prefix.filePath(kPluginFile.arg(QT_MAJOR))).open(QIODevice::WriteOnly));
    }

    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("says");

        const auto list = [](std::initializer_list<const char *> texts) {
            QStringList arguments;
            for (const char *text : texts)
                arguments.append(QLatin1String(text));
            return arguments;
        };
        QTest::newRow("nothing") << list({}) << 125 << QByteArray("no program given");
        QTest::newRow("unknown option") << list({"--fast", "x"}) << 125 << QByteArray("--fast");
        QTest::newRow("missing") << list({"no-such-program-here"}) << 127
                                 << QByteArray("no-such-program-here: there is no such program");
        QTest::newRow("missing path")
            << list({"/nowhere/draw"}) << 127 << QByteArray("/nowhere/draw: there is no such program");
        QTest::newRow("a name with a line end")
            << list({"/nowhere/a\nb"}) << 127 << QByteArray("/nowhere/a?b");
        QTest::newRow("not executable") << list({TESTS_SOURCE_DIR "/launcher/cli/tst_mousegestures.cpp"})
                                        << 126 << QByteArray("the file may not be executed");
        QTest::newRow("folder") << list({"/"}) << 126 << QByteArray("/: this is a folder");
        QTest::newRow("no Qt Widgets") << list({FIXTURES "/launcher_fixture_core"}) << 126
                                       << QByteArray("gestures need a program made with Qt Widgets");
        QTest::newRow("no Qt Widgets, on the path")
            << list({"cat"}) << 126 << QByteArray("cat: gestures need a program made with Qt Widgets");
    }

    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, says);
        const Outcome outcome = run(arguments, {QStringLiteral("DISPLAY=")});
        QCOMPARE(outcome.how, QProcess::NormalExit);
        QCOMPARE(outcome.status, status);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(outcome.errors.startsWith("mouse-gestures: "), outcome.errors.constData());
        QVERIFY2(outcome.errors.contains(says), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.endsWith('\n'));
    }

    void missingPlugin()
    {
        QVERIFY(QFile::remove(m_prefix.filePath(kPluginFile.arg(QT_MAJOR))));
        const Outcome direct = run({QStringLiteral(FIXTURES "/launcher_fixture_direct")});
        QCOMPARE(direct.status, 125);
        QCOMPARE(direct.errors.count('\n'), 1);
        const QByteArray file =
            "libmousegestures-qt" + QByteArray::number(QT_MAJOR) + ".so is not installed";
        QVERIFY2(direct.errors.contains(file), direct.errors.constData());

        // A menu's entry must start the program all the same.
        const Outcome always =
            run({QStringLiteral("--always"), makeScript("echo $QT_PLUGIN_PATH; exit 7"),
                 QStringLiteral("--always")});
        QCOMPARE(always.status, 7);
        QCOMPARE(always.output, QByteArray("\n"));
        QVERIFY2(always.errors.contains("is not installed"), always.errors.constData());
        const Outcome nothing =
            run({QStringLiteral("--always"), QStringLiteral("no-such-program-here")});
        QCOMPARE(nothing.status, 127);

        const Outcome script = run({makeScript("exit 0")});
        QCOMPARE(script.status, 125);
        QVERIFY2(script.errors.contains("libmousegestures is not installed"), script.errors.constData());
    }

    void pluginOfTheOtherQtOnly()
    {
        QVERIFY(QFile::remove(m_prefix.filePath(kPluginFile.arg(QT_MAJOR))));
        const QString other = m_prefix.filePath(kPluginFile.arg(11 - QT_MAJOR));
        QVERIFY(QFile(other).open(QIODevice::WriteOnly));
        const Outcome direct = run({QStringLiteral(FIXTURES "/launcher_fixture_direct")});
        const Outcome script = run({makeScript("exit 0")});
        QVERIFY(QFile::remove(other));
        QCOMPARE(direct.status, 125);
        QCOMPARE(script.status, 0);
    }

    void withoutArgumentsTheWindowOpensOnADisplay()
    {
        const QStringList none;
        const QString window = m_prefix.filePath(QStringLiteral("bin/mouse-gestures-settings"));
        QCOMPARE(run(none, {QStringLiteral("DISPLAY=:990")}).status, 125); // not installed
        QVERIFY(QFile::copy(makeScript("echo window; exit 3"), window));
        const Outcome x11 = run(none, {QStringLiteral("DISPLAY=:990")});
        QCOMPARE(x11.output, QByteArray("window\n"));
        QCOMPARE(x11.status, 3);
        const Outcome wayland =
            run(none, {QStringLiteral("DISPLAY="), QStringLiteral("WAYLAND_DISPLAY=wayland-0")});
        QCOMPARE(wayland.output, QByteArray("window\n"));
        const Outcome nothing = run(none, {QStringLiteral("DISPLAY=")});
        QCOMPARE(nothing.status, 125);
        QVERIFY(QFile::remove(window));
    }

    void aProgramRuns()
    {
        for (const char *name : {"direct", "indirect"}) {
            const Outcome outcome =
                run({QLatin1String(FIXTURES "/launcher_fixture_") + QLatin1String(name)});
            QCOMPARE(outcome.status, 0);
            QCOMPARE(outcome.errors, QByteArray());
        }
    }

    void exitStatusAndStreamsPass()
    {
        const Outcome outcome = run({makeScript("cat; echo \"$1|$2\"; echo oops >&2; exit 42"),
                                     QStringLiteral("a b"), QStringLiteral("--help")},
                                    {}, "from outside\n");
        QCOMPARE(outcome.status, 42);
        QCOMPARE(outcome.output, QByteArray("from outside\na b|--help\n"));
        QCOMPARE(outcome.errors, QByteArray("oops\n"));
    }

    // The program replaces the launcher's process, so it gets the signals.
    void signalsReachTheProgram()
    {
        QProcess process;
        process.start(m_command, {makeScript("trap 'exit 7' TERM; echo up; while :; do read x; done")});
        QTRY_VERIFY(process.canReadLine());
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 7);

        const Outcome killed = run({makeScript("kill -9 $$")});
        QCOMPARE(killed.how, QProcess::CrashExit);
        QCOMPARE(killed.status, SIGKILL);
    }

    void environmentOfTheProgram()
    {
        const Outcome outcome =
            run({makeScript("echo \"$QT_QPA_GENERIC_PLUGINS\"; echo \"$QT_PLUGIN_PATH\"; "
                            "echo \"$QT_QPA_PLATFORM\"")},
                {QStringLiteral("QT_QPA_GENERIC_PLUGINS=evdevkeyboard"),
                 QStringLiteral("QT_PLUGIN_PATH=/a"), QStringLiteral("DISPLAY=:7"),
                 QStringLiteral("WAYLAND_DISPLAY=wayland-0"), QStringLiteral("QT_QPA_PLATFORM=")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray("evdevkeyboard,mousegestures\n")
                                     + QFile::encodeName(m_prefix.filePath(QStringLiteral("plugins")))
                                     + ":/a\nxcb\n");
        QCOMPARE(outcome.errors, QByteArray());
    }

    void waylandWithoutX11IsToldOf()
    {
        const Outcome outcome =
            run({makeScript("exit 0")}, {QStringLiteral("DISPLAY="), QStringLiteral("WAYLAND_DISPLAY=w"),
                                         QStringLiteral("QT_QPA_PLATFORM=")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY2(outcome.errors.contains("warning: there is no X11 display"),
                 outcome.errors.constData());
    }

    void aScriptWithoutInterpreterLine()
    {
        const QString path = makeFile("bare", "echo bare; exit 3\n");
        const Outcome outcome = run({path});
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.output, QByteArray("bare\n"));
    }

    void aScriptWhoseInterpreterIsMissing()
    {
        const Outcome outcome = run({makeFile("broken", "#!/nowhere/shell\n")});
        QCOMPARE(outcome.status, 127);
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY2(outcome.errors.contains("broken"), outcome.errors.constData());
    }

    void helpAndVersion()
    {
        const Outcome help = run({QStringLiteral("--help")});
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.startsWith("Usage: mouse-gestures PROGRAM"));
        QCOMPARE(help.errors, QByteArray());
        const Outcome version = run({QStringLiteral("--version")});
        QCOMPARE(version.status, 0);
        QVERIFY2(QRegularExpression(QStringLiteral("^mouse-gestures \\d+\\.\\d+\\.\\d+\n$"))
                     .match(QString::fromLatin1(version.output))
                     .hasMatch(),
                 version.output.constData());
    }

private:
    Outcome run(const QStringList &arguments, const QStringList &variables = {},
                const QByteArray &input = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_GENERIC_PLUGINS"));
        environment.remove(QStringLiteral("QT_PLUGIN_PATH"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        for (const QString &variable : variables)
            environment.insert(variable.section(QLatin1Char('='), 0, 0),
                               variable.section(QLatin1Char('='), 1));
        process.setProcessEnvironment(environment);
        process.start(m_command, arguments);
        process.write(input);
        process.closeWriteChannel();
        Outcome outcome;
        if (!process.waitForFinished())
            return outcome;
        outcome.status = process.exitCode();
        outcome.how = process.exitStatus();
        outcome.output = process.readAllStandardOutput();
        outcome.errors = process.readAllStandardError();
        return outcome;
    }

    QString makeFile(const char *name, const QByteArray &text)
    {
        QString path = m_prefix.filePath(QLatin1String(name));
        QFile::remove(path);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
            || !file.setPermissions(QFile::ReadOwner | QFile::ExeOwner))
            return {};
        return path;
    }

    QString makeScript(const QByteArray &body)
    {
        return makeFile("script", "#!/bin/sh\n" + body + '\n');
    }

    QTemporaryDir m_prefix;
    QString m_command;
};

QTEST_GUILESS_MAIN(MouseGesturesTest)
#include "tst_mousegestures.moc"
