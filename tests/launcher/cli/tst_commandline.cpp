// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/cli/CommandLine.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

using launcher::CommandLine;
using Task = CommandLine::Task;
using Arguments = QList<QByteArray>;

Q_DECLARE_METATYPE(launcher::CommandLine::Task)

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void tasks_data()
    {
        QTest::addColumn<Arguments>("given");
        QTest::addColumn<Task>("task");
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<Arguments>("arguments");

        const QByteArray nothing;
        QTest::newRow("program") << Arguments{"draw"} << Task::Run << QByteArray("draw") << Arguments{};
        QTest::newRow("arguments") << Arguments{"draw", "a.dxf", "b c"} << Task::Run
                                   << QByteArray("draw") << Arguments{"a.dxf", "b c"};
        QTest::newRow("the program's own options")
            << Arguments{"draw", "--help", "--", "-V"} << Task::Run << QByteArray("draw")
            << Arguments{"--help", "--", "-V"};
        QTest::newRow("empty argument")
            << Arguments{"draw", ""} << Task::Run << QByteArray("draw") << Arguments{""};
        QTest::newRow("bytes of no encoding")
            << Arguments{"draw", "\xff\xfe"} << Task::Run << QByteArray("draw") << Arguments{"\xff\xfe"};
        QTest::newRow("--") << Arguments{"--", "-odd", "x"} << Task::Run << QByteArray("-odd")
                            << Arguments{"x"};
        QTest::newRow("--help") << Arguments{"--help"} << Task::ShowHelp << nothing << Arguments{};
        QTest::newRow("-h") << Arguments{"-h", "draw"} << Task::ShowHelp << nothing << Arguments{};
        QTest::newRow("--version") << Arguments{"--version"} << Task::ShowVersion << nothing
                                   << Arguments{};
        QTest::newRow("-V") << Arguments{"-V"} << Task::ShowVersion << nothing << Arguments{};
        QTest::newRow("--enable") << Arguments{"--enable", "draw"} << Task::Enable << QByteArray("draw")
                                  << Arguments{};
        QTest::newRow("--disable") << Arguments{"--disable", "draw"} << Task::Disable
                                   << QByteArray("draw") << Arguments{};
        QTest::newRow("--list-commands") << Arguments{"--list-commands", "draw"} << Task::ListCommands
                                         << QByteArray("draw") << Arguments{};
        QTest::newRow("--list-commands as JSON")
            << Arguments{"--list-commands", "draw", "--json"} << Task::ListCommands << QByteArray("draw")
            << Arguments{};
        QTest::newRow("--ring") << Arguments{"--ring", "draw", "Sketch", "own"} << Task::SetRing
                                << QByteArray("draw") << Arguments{"Sketch", "own"};
        QTest::newRow("--bind in a ring") << Arguments{"--bind", "draw", "up", "x", "--ring", "Sketch"}
                                          << Task::Bind << QByteArray("draw") << Arguments{"up", "x"};
        QTest::newRow("--bind in no ring") << Arguments{"--bind", "draw", "up", "x", "--ring"}
                                           << Task::Complain << nothing << Arguments{};
        QTest::newRow("--ring alone")
            << Arguments{"--bind", "--ring", "Sketch"} << Task::Complain << nothing << Arguments{};
        QTest::newRow("--print") << Arguments{"--print", "draw", "a b.pdf"} << Task::Print
                                 << QByteArray("draw") << Arguments{"a b.pdf"};
        QTest::newRow("--explain") << Arguments{"--explain", "draw", "--json", "a", ""} << Task::Explain
                                   << QByteArray("draw") << Arguments{"--json", "a", ""};
        QTest::newRow("nothing") << Arguments{} << Task::OpenWindow << nothing << Arguments{};
        QTest::newRow("only --") << Arguments{"--"} << Task::Complain << nothing << Arguments{};
        QTest::newRow("empty program") << Arguments{""} << Task::Complain << nothing << Arguments{};
        QTest::newRow("unknown option")
            << Arguments{"--fast", "draw"} << Task::Complain << nothing << Arguments{};
        QTest::newRow("-") << Arguments{"-"} << Task::Complain << nothing << Arguments{};
    }

    void tasks()
    {
        QFETCH(Arguments, given);
        QFETCH(Task, task);
        QFETCH(QByteArray, program);
        QFETCH(Arguments, arguments);

        const CommandLine line = CommandLine::parse(given);

        QCOMPARE(line.task, task);
        QCOMPARE(line.program, program);
        QCOMPARE(line.arguments, arguments);
        QCOMPARE(line.complaint.isEmpty(), task != Task::Complain && task != Task::OpenWindow);
        QVERIFY(!line.complaint.contains(QLatin1Char('\n')));
    }

    void theRingStandsAnywhere()
    {
        for (const Arguments &given : {Arguments{"--bind", "--ring", "Sketch", "draw", "up", "x"},
                                       Arguments{"--bind", "draw", "--ring", "Sketch", "up", "x"},
                                       Arguments{"--bind", "draw", "up", "x", "--ring", "Sketch"}}) {
            const CommandLine line = CommandLine::parse(given);
            QCOMPARE(line.task, Task::Bind);
            QCOMPARE(line.ring, QByteArray("Sketch"));
            QCOMPARE(line.program, QByteArray("draw"));
            QCOMPARE(line.arguments, (Arguments{"up", "x"}));
        }
        QCOMPARE(CommandLine::parse({"--bind", "draw", "up", "x"}).ring, QByteArray());
    }

    void jsonStandsAnywhere_data()
    {
        QTest::addColumn<Arguments>("given");
        QTest::addColumn<bool>("isJson");
        const auto row = [](const Arguments &given, bool isJson) {
            QTest::newRow(given.join(' ').constData()) << given << isJson;
        };
        for (const char *option : {"--bindings", "--list-commands"}) {
            row({option, "draw"}, false);
            row({option, "draw", "--json"}, true);
            row({option, "--json", "draw"}, true);
            row({"--json", option, "draw"}, true);
        }
    }

    void jsonStandsAnywhere()
    {
        QFETCH(Arguments, given);
        QFETCH(bool, isJson);
        const CommandLine line = CommandLine::parse(given);
        QCOMPARE(line.task, given.contains("--bindings") ? Task::ShowBindings : Task::ListCommands);
        QCOMPARE(line.program, QByteArray("draw"));
        QCOMPARE(line.arguments, Arguments());
        QCOMPARE(line.isJson, isJson);
    }

    void jsonOfNothing()
    {
        for (const Arguments &given :
             {Arguments{"--json"}, Arguments{"--json", "draw"}, Arguments{"--json", "--reset", "draw"},
              Arguments{"--bindings", "--json"}, Arguments{"--reset", "draw", "--json"}})
            QCOMPARE(CommandLine::parse(given).task, Task::Complain);
        const CommandLine line = CommandLine::parse({"draw", "--json"}); // the program's own
        QCOMPARE(line.task, Task::Run);
        QCOMPARE(line.arguments, Arguments{"--json"});
    }

    void complaintNamesTheOption()
    {
        const CommandLine line = CommandLine::parse({"--fast"});
        QVERIFY2(line.complaint.contains(QLatin1String("--fast")), qPrintable(line.complaint));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
