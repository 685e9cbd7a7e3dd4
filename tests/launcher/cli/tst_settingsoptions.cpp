// The options about a program that is not started, as a person types them.

#include "host/files/CatalogueFile.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

struct Outcome
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

const QString kProgram = QStringLiteral(FIXTURES "/launcher_fixture_direct");

} // namespace

class SettingsOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(m_home->isValid());
        m_file = m_home->filePath(QStringLiteral("gesturewidget/launcher_fixture_direct.ini"));
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aDayWithBindings()
    {
        expect({text("--bind"), kProgram, text("up-left"), text("DrawArc")}, "");
        const QByteArray shown = expect({text("--bindings"), kProgram}, "  up-left    DrawArc\n");
        QVERIFY(shown.startsWith("gestures in launcher_fixture_direct: on\n"));
        const QByteArray json =
            expect({text("--bindings"), kProgram, text("--json")}, "\"up-left\": \"DrawArc\"");
        QCOMPARE(expect({text("--export"), kProgram}, ""), json);
        const QString kept = m_home->filePath(QStringLiteral("kept.json"));
        QCOMPARE(expect({text("--export"), kProgram, kept}, ""), QByteArray());
        QCOMPARE(content(kept), json);

        expect({text("--bind"), kProgram, text("up-left"), text("")}, "");
        expect({text("--bindings"), kProgram}, "  up-left    none\n");
        expect({text("--trigger"), kProgram, text("ctrl+right")}, "");
        expect({text("--bindings"), kProgram}, "started with: ctrl+right\n");
        expect({text("--reset"), kProgram}, "");
        expect({text("--bindings"), kProgram}, "  up-left    ID_OFFSET\n");
        expect({text("--import"), kProgram, kept}, "");
        QCOMPARE(expect({text("--bindings"), kProgram, text("--json")}, ""), json);
        QVERIFY(QFile::exists(m_file + QStringLiteral(".before-import")));
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("says");
        const auto row = [](const char *name, const QStringList &arguments, int status,
                            const char *says) {
            QTest::newRow(name) << arguments << status << QByteArray(says);
        };
        for (const char *option : {"--bindings", "--bind", "--trigger", "--reset", "--export",
                                   "--import", "--doctor", "--enable", "--disable"}) {
            const QString typed = QLatin1String(option);
            row(qPrintable(typed + QStringLiteral(" alone")), {typed}, 125, "usage: mouse-gestures --");
            row(qPrintable(typed + QStringLiteral(" and too much")),
                {typed, kProgram, text("up"), text("x"), text("y")}, 125, "usage: mouse-gestures --");
            row(qPrintable(typed + QStringLiteral(" and no name")), {typed, text("")}, 125,
                "usage: mouse-gestures --");
        }
        row("--bind without a command", {text("--bind"), kProgram, text("up")}, 125,
            "DIRECTION COMMAND");
        row("--bindings with another word", {text("--bindings"), kProgram, text("--xml")}, 125,
            "[--json]");
        row("no such program", {text("--bind"), text("/nowhere/draw"), text("up"), text("x")}, 127,
            "/nowhere/draw: there is no such program");
        row("no such program on the path", {text("--reset"), text("no-such-program-here")}, 127,
            "no-such-program-here: there is no such program");
        row("a folder", {text("--bindings"), text("/")}, 127, "there is no such program");
        row("no such program in the menus", {text("--enable"), text("/nowhere/draw")}, 127,
            "/nowhere/draw: there is no such program");
        row("a program without widgets in the menus", {text("--enable"), text("cat")}, 126,
            "cat: gestures need a program made with Qt Widgets");
        row("nothing to explain", {text("--explain"), text("/nowhere/draw")}, 127,
            "/nowhere/draw: there is no such program");
        row("--explain alone", {text("--explain")}, 125, "usage: mouse-gestures --explain PROGRAM");
        row("no desktop entry", {text("--enable"), kProgram}, 1,
            "the desktop has no entry that starts it");
        row("no such direction", {text("--bind"), kProgram, text("north"), text("x")}, 1,
            "\"north\" is none of the 8 directions");
        row("a line end in a direction", {text("--bind"), kProgram, text("a\nb"), text("x")}, 1,
            "\"a?b\"");
        row("no such trigger", {text("--trigger"), kProgram, text("wheel")}, 1,
            "\"wheel\" names no trigger");
        row("no such file", {text("--import"), kProgram, text("/nowhere/kept.json")}, 1,
            "/nowhere/kept.json: there is no such file");
        row("a file of another kind", {text("--import"), kProgram, text("/etc/passwd")}, 1,
            "/etc/passwd, line 1: ");
        row("a sheet that cannot be written", {text("--print"), kProgram, text("/nowhere/sheet.pdf")}, 1,
            "/nowhere/sheet.pdf cannot be written");
        row("a file that cannot be written", {text("--export"), kProgram, text("/nowhere/kept.json")}, 1,
            "/nowhere/kept.json cannot be written");
    }

    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, says);
        expect({text("--bind"), kProgram, text("up"), text("DrawArc")}, "");
        const QByteArray before = content(m_file);
        QVERIFY(before.contains("81=DrawArc"));
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, status);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(outcome.errors.startsWith("mouse-gestures: "), outcome.errors.constData());
        QVERIFY2(outcome.errors.contains(says), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(content(m_file), before);
        QCOMPARE(QDir(m_home->filePath(QStringLiteral("gesturewidget")))
                     .entryList({QStringLiteral("*.ini")})
                     .size(),
                 1);
    }

    // A program that was removed leaves settings behind that somebody may want to keep.
    void settingsOutliveTheProgram()
    {
        QVERIFY(QDir().mkpath(m_home->filePath(QStringLiteral("gesturewidget"))));
        QFile file(m_home->filePath(QStringLiteral("gesturewidget/no-such-program-here.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("[GestureWidget]\n81=DrawArc\n") > 0);
        file.close();
        expect({text("--export"), text("no-such-program-here")}, "\"up\": \"DrawArc\"");
    }

    // A link is the program that it leads to, unless a profile knows it by its own name.
    void aLinkIsTheProgram()
    {
        const QString link = m_home->filePath(QStringLiteral("Draw"));
        QVERIFY(QFile::link(kProgram, link));
        expect({text("--bind"), link, text("up"), text("DrawArc")}, "");
        QVERIFY(QFile::exists(m_file));

        const QString profiles = m_home->filePath(QStringLiteral("gesturewidget/profiles"));
        QVERIFY(QDir().mkpath(profiles));
        QFile profile(profiles + QStringLiteral("/draw.json"));
        QVERIFY(profile.open(QIODevice::WriteOnly));
        profile.close();
        expect({text("--bind"), link, text("up"), text("DrawArc")}, "");
        QVERIFY(QFile::exists(m_home->filePath(QStringLiteral("gesturewidget/draw.ini"))));
    }

    void theDoctor()
    {
        const Outcome outcome = run({text("--doctor"), kProgram});
        QCOMPARE(outcome.status, 1); // there is no display
        QVERIFY2(outcome.output.startsWith("program:     launcher_fixture_direct, " FIXTURES),
                 outcome.output.constData());
        QVERIFY(outcome.output.contains("\nQt:          " + QByteArray::number(QT_MAJOR) + '\n'));
        QVERIFY(outcome.output.contains("\ndisplay:     none\n"));
        QVERIFY(outcome.output.contains("\nsettings:    " + QFile::encodeName(m_file)));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.startsWith("mouse-gestures: gestures cannot work well in "));

        const Outcome missing = run({text("--doctor"), text("no-such-program-here")});
        QCOMPARE(missing.status, 1);
        QVERIFY(missing.output.contains("program:     no-such-program-here, not found\n"));
    }

    void commandsThatWereShown()
    {
        const Outcome before = run({text("--list-commands"), kProgram});
        QCOMPARE(before.status, 1);
        QVERIFY2(before.errors.contains("no command of launcher_fixture_direct is known before"),
                 before.errors.constData());
        QCOMPARE(before.errors.count('\n'), 1);

        gesturewidget::CatalogueFile file(
            m_home->filePath(text("gesturewidget/launcher_fixture_direct.commands.json")));
        QVERIFY(file.merge({{text("drawArc"), {}, text("Arc..."), {}, text("Draw"), {}, false}}));
        expect({text("--list-commands"), kProgram}, "Draw\n  drawArc  Arc...\n");
        expect({text("--list-commands"), kProgram, text("--json")}, "\"identifier\": \"drawArc\"");
        expect({text("--bind"), kProgram, text("up-left"), text("arc")}, "");
        expect({text("--bindings"), kProgram}, "  up-left    drawArc         Arc...\n");
        const Outcome never = run({text("--bind"), kProgram, text("up"), text("Circle")});
        QCOMPARE(never.status, 1);
        QCOMPARE(never.errors.count('\n'), 1);
        QVERIFY2(never.errors.contains("--list-commands launcher_fixture_direct"),
                 never.errors.constData());
        expect({text("--bind"), kProgram, text("up"), text("ID_TRIM")}, "");
    }

    void aSheetForTheWall()
    {
        const QString sheet = m_home->filePath(text("sheet.pdf"));
        QCOMPARE(expect({text("--print"), kProgram, sheet}, ""), QByteArray());
        const QByteArray pdf = content(sheet);
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    }

    void theDesktopsMenus()
    {
        const QString entries = m_home->filePath(QStringLiteral("usr/applications"));
        QVERIFY(QDir().mkpath(entries));
        QFile entry(entries + QStringLiteral("/draw.desktop"));
        QVERIFY(entry.open(QIODevice::WriteOnly));
        QVERIFY(entry.write("[Desktop Entry]\nType=Application\nExec=" + QFile::encodeName(kProgram)
                            + " %F\n")
                > 0);
        entry.close();
        const QString copy = m_home->filePath(QStringLiteral("data/applications/draw.desktop"));
        for (int i = 0; i < 2; ++i) {
            expect({text("--enable"), kProgram}, "starts with gestures: " + QFile::encodeName(copy));
            QVERIFY2(content(copy).contains("\nExec=" + QFile::encodeName(QStringLiteral(MOUSE_GESTURES))
                                            + ' ' + QFile::encodeName(kProgram) + " %F\n"),
                     content(copy).constData());
        }
        expect({text("--disable"), kProgram}, "draw.desktop is removed\n");
        QVERIFY(!QFile::exists(copy));
        expect({text("--disable"), kProgram}, "nothing was there to remove\n");
    }

    void helpNamesThemAll()
    {
        const Outcome help = run({text("--help")});
        QFile page(QStringLiteral(TESTS_SOURCE_DIR "/../docs/mouse-gestures.1"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QByteArray manual = page.readAll().replace("\\-", "-");
        QFile file(QStringLiteral(TESTS_SOURCE_DIR "/../launcher/desktop/mouse-gestures.bash"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray completion = file.readAll();
        for (const char *option : {"--bindings", "--json", "--bind ", "--trigger", "--reset", "--export",
                                   "--import", "--doctor", "--enable", "--disable", "--explain",
                                   "--list-commands", "--help", "--version"}) {
            QVERIFY2(help.output.contains(option), option);
            QVERIFY2(manual.contains(option), option);
            QVERIFY2(completion.contains(option), option);
        }
        const QList<QByteArray> lines = help.output.split('\n');
        for (const QByteArray &line : lines)
            QVERIFY2(line.size() <= 88, line.constData());
    }

private:
    Outcome run(const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home->path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home->filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), m_home->filePath(QStringLiteral("usr")));
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"})
            environment.remove(QLatin1String(name));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(MOUSE_GESTURES), arguments);
        Outcome outcome;
        if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
            outcome.status = process.exitCode();
        outcome.output = process.readAllStandardOutput();
        outcome.errors = process.readAllStandardError();
        return outcome;
    }

    // Runs it, which must go well and print `says` somewhere; returns all that it printed.
    QByteArray expect(const QStringList &arguments, const QByteArray &says) const
    {
        const Outcome outcome = run(arguments);
        const auto holds = [&] {
            QCOMPARE(outcome.errors, QByteArray());
            QCOMPARE(outcome.status, 0);
            QVERIFY2(outcome.output.contains(says), outcome.output.constData());
        };
        holds();
        return outcome.output;
    }

    QByteArray content(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }

    std::unique_ptr<QTemporaryDir> m_home;
    QString m_file;
};

QTEST_GUILESS_MAIN(SettingsOptionsTest)
#include "tst_settingsoptions.moc"
