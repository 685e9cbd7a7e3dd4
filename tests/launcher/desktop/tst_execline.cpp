// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

// The command of a desktop entry: how it is split, and how the launcher is put into it.

#include "launcher/desktop/ExecLine.h"

#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using launcher::ExecLine;
using Words = QList<QByteArray>;

namespace {

// The text before the launcher's path.
const QByteArray kStart =
    R"(/bin/sh -c "[ -x \\"\\$0\\" ] && exec \\"\\$0\\" --always \\"\\$@\\"; exec \\"\\$@\\"" )";

} // namespace

class ExecLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void reads_data();
    void reads();
    void whatIsNoCommand_data();
    void whatIsNoCommand();
    void anArgumentComesBack_data();
    void anArgumentComesBack();
    void startsTheProgramAlone();
    void anyTextIsOneLine();
    void anotherScriptIsNotOurs();
};

void ExecLineTest::reads_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<QByteArray>("started"); // by /usr/bin/mg
    const auto row = [](const char *name, const char *value, const char *program, const Words &arguments,
                        const char *started) {
        QTest::newRow(name) << QByteArray(value) << QByteArray(program) << arguments
                            << QByteArray(started);
    };
    row("name alone", "draw", "draw", {}, "/usr/bin/mg draw");
    row("field codes", "draw --new %F %i %c %k", "draw", {"--new", "%F", "%i", "%c", "%k"},
        "/usr/bin/mg draw --new %F %i %c %k");
    row("spaces around", "  draw   %f ", "draw", {"%f"}, "  /usr/bin/mg draw   %f ");
    row("quoted program", "\"/opt/My Draw/draw\" %F", "/opt/My Draw/draw", {"%F"},
        "/usr/bin/mg \"/opt/My Draw/draw\" %F");
    row("escaped in quotes", R"("/opt/a\\$b/dr\\"aw" %u)", "/opt/a$b/dr\"aw", {"%u"},
        R"(/usr/bin/mg "/opt/a\\$b/dr\\"aw" %u)");
    row("a backslash in quotes", R"("a\\\\b" x)", "a\\b", {"x"}, R"(/usr/bin/mg "a\\\\b" x)");
    row("a space as every value may have it", R"(draw\s-x)", "draw", {"-x"}, R"(/usr/bin/mg draw\s-x)");
    row("per cent", "/opt/50%%/draw %%x", "/opt/50%/draw", {"%%x"}, "/usr/bin/mg /opt/50%%/draw %%x");
    row("single quotes", "draw 'a b'", "draw", {"a b"}, "/usr/bin/mg draw 'a b'");
    row("joined parts", "dr\"a\"w --x=\"1 2\"", "draw", {"--x=1 2"}, "/usr/bin/mg dr\"a\"w --x=\"1 2\"");
    row("an empty argument", "draw \"\" x", "draw", {"", "x"}, "/usr/bin/mg draw \"\" x");
    row("env", "env LANG=C draw %F", "draw", {"%F"}, "env LANG=C /usr/bin/mg draw %F");
    row("env with options", "/usr/bin/env -u A -i \"B=c d\" draw", "draw", {},
        "/usr/bin/env -u A -i \"B=c d\" /usr/bin/mg draw");
    row("env with long options", "env --unset A --chdir /tmp draw", "draw", {},
        "env --unset A --chdir /tmp /usr/bin/mg draw");
    row("env in a folder", "env -C /tmp draw %F", "draw", {"%F"}, "env -C /tmp /usr/bin/mg draw %F");
    row("white space as every value may have it", R"(draw\t-x\n-y\r-z)", "draw", {"-x", "-y", "-z"},
        R"(/usr/bin/mg draw\t-x\n-y\r-z)");
    row("white space in quotes", R"(draw "a\tb\nc\rd" "'")", "draw", {"a\tb\nc\rd", "'"},
        R"(/usr/bin/mg draw "a\tb\nc\rd" "'")");
    row("a backslash in single quotes", R"(draw 'a\\b"')", "draw", {R"(a\b")"},
        R"(/usr/bin/mg draw 'a\\b"')");
    row("a backslash that quotes nothing", R"(draw "a\\qb")", "draw", {R"(a\qb)"},
        R"(/usr/bin/mg draw "a\\qb")");
    row("a backslash before a space", R"(draw a\\ b)", "draw", {"a b"}, R"(/usr/bin/mg draw a\\ b)");
    row("a backslash at the end", R"(draw a\)", "draw", {R"(a\)"}, R"(/usr/bin/mg draw a\)");
    row("an unknown escape", R"(draw \q)", "draw", {"q"}, R"(/usr/bin/mg draw \q)");
    row("bytes of no encoding", "draw \xff\xfe", "draw", {"\xff\xfe"}, "/usr/bin/mg draw \xff\xfe");
}

void ExecLineTest::reads()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, program);
    QFETCH(Words, arguments);
    QFETCH(QByteArray, started);
    const ExecLine line = ExecLine::parse(value);
    QVERIFY(line.isValid);
    QCOMPARE(line.program, program);
    QCOMPARE(line.arguments, arguments);
    started.replace("/usr/bin/mg ", kStart + "/usr/bin/mg ");
    QCOMPARE(line.startedBy("/usr/bin/mg"), started);
    // The program is a shell now. It gets the launcher, the program and its arguments.
    const ExecLine after = ExecLine::parse(started);
    QVERIFY(after.isValid);
    QCOMPARE(after.program, QByteArray("/bin/sh"));
    QCOMPARE(after.arguments.value(2), QByteArray("/usr/bin/mg"));
    QCOMPARE(after.startedProgram(), program);
    QCOMPARE(after.arguments.mid(4), arguments);
    // Copies of earlier versions have another script, or start the launcher itself.
    QByteArray old = started;
    old.replace(" --always", "");
    QVERIFY(old != started);
    QCOMPARE(ExecLine::parse(old).startedProgram(), program);
    QCOMPARE(ExecLine::parse("/usr/bin/mg " + ExecLine::encoded(program)).startedProgram(), program);
}

void ExecLineTest::whatIsNoCommand_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"", "   ", "\"draw", "draw 'x", "\"\" x", "env", "env A=b",
                              "env -S 'draw x'", "env --split-string='draw x'", "env -u", R"("draw\\")"})
        QTest::newRow(*value ? value : "nothing") << QByteArray(value);
}

void ExecLineTest::whatIsNoCommand()
{
    QFETCH(QByteArray, value);
    QVERIFY(!ExecLine::parse(value).isValid);
}

void ExecLineTest::anArgumentComesBack_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *argument, const char *expected) {
        QTest::newRow(argument) << QByteArray(argument) << QByteArray(expected);
    };
    row("/usr/bin/mouse-gestures", "/usr/bin/mouse-gestures");
    row("/opt/my tools/mg", "\"/opt/my tools/mg\"");
    row("/opt/a$b`c\"d\\e/mg", R"("/opt/a\\$b\\`c\\"d\\\\e/mg")");
    row("/opt/100%/mg", "/opt/100%%/mg");
    row("/opt/%F here/mg", "\"/opt/%%F here/mg\"");
    row("/opt/a\nb\tc/mg", "\"/opt/a\\nb\\tc/mg\"");
    row("/opt/(x)/mg", "\"/opt/(x)/mg\"");
    row("/home/j\xc3\xb6rg/mg", "/home/j\xc3\xb6rg/mg");
}

void ExecLineTest::anArgumentComesBack()
{
    QFETCH(QByteArray, argument);
    QFETCH(QByteArray, expected);
    QCOMPARE(ExecLine::encoded(argument), expected);
    const ExecLine line = ExecLine::parse(ExecLine::encoded(argument) + " %F");
    QVERIFY(line.isValid);
    QCOMPARE(line.program, argument);
}

void ExecLineTest::startsTheProgramAlone()
{
    const QTemporaryDir folder;
    const auto script = [&folder](const char *name, const QByteArray &body) {
        QFile file(folder.filePath(QLatin1String(name)));
        const QByteArray text = "#!/bin/sh\n" + body + '\n';
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()
            || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            return QByteArray();
        return QFile::encodeName(file.fileName());
    };
    const QByteArray program = script("a $b", R"(echo "program|$1|$2"; exit 7)");
    const QByteArray launcher = script("the launcher", R"(echo "launcher|$1|$2|$3|$4"; exit 9)");
    const ExecLine started =
        ExecLine::parse(ExecLine::parse(ExecLine::encoded(program) + " \"x y\" z").startedBy(launcher));
    QVERIFY(started.isValid);
    const auto run = [&started](int &status) {
        QStringList arguments;
        for (const QByteArray &argument : started.arguments)
            arguments.append(QFile::decodeName(argument));
        QProcess process;
        process.start(QFile::decodeName(started.program), arguments);
        process.waitForFinished();
        status = process.exitCode();
        return process.readAllStandardOutput();
    };
    int status = 0;
    QCOMPARE(run(status), "launcher|--always|" + program + "|x y|z\n");
    QCOMPARE(status, 9);
    QVERIFY(QFile::remove(QFile::decodeName(launcher)));
    QCOMPARE(run(status), QByteArray("program|x y|z\n"));
    QCOMPARE(status, 7);
}

void ExecLineTest::anyTextIsOneLine()
{
    QCOMPARE(ExecLine::escaped("/opt/a\nb\\c\td\re"), QByteArray(R"(/opt/a\nb\\c\td\re)"));
    QCOMPARE(ExecLine::escaped(" x"), QByteArray(R"(\sx)"));
    QCOMPARE(ExecLine::escaped("/usr/bin/draw"), QByteArray("/usr/bin/draw"));
}

// A person's own line starts a shell too; what comes after its script is not a program.
void ExecLineTest::anotherScriptIsNotOurs()
{
    const ExecLine line = ExecLine::parse(R"(/bin/sh -c "exec draw" name /opt/draw)");
    QVERIFY(line.isValid);
    QCOMPARE(line.startedProgram(), QByteArray("-c"));
}

QTEST_GUILESS_MAIN(ExecLineTest)
#include "tst_execline.moc"
