// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The options that start no program, as a person types them.

#include "host/files/CatalogueFile.h"
#include "host/files/TriggerText.h"
#include "launcher/settings/Bindings.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

using tests::contentOf;
using tests::text;

namespace {

struct Outcome
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

const QString kProgram = QStringLiteral(FIXTURES "/launcher_fixture_direct");

} // namespace

class SettingsOptionsTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        m_file = place(QStringLiteral("gesturewidget/launcher_fixture_direct.ini"));
    }

    void aDayWithBindings()
    {
        expect({text("--bind"), kProgram, text("up-left"), text("DrawArc")},
               "has not run with gestures yet; if it has no command \"DrawArc\", the direction becomes "
               "empty\n");
        QCOMPARE(expect({text("--bind"), kProgram, text("up"), text("ID_LINE")}, ""), QByteArray());
        QCOMPARE(expect({text("--bind"), kProgram, text("up"), text("ID_ZOOM_BOUNDS")}, ""),
                 QByteArray());
        const QByteArray shown = expect({text("--bindings"), kProgram}, "  up-left    DrawArc\n");
        QVERIFY(shown.startsWith("gestures in launcher_fixture_direct: on\n"));
        const QByteArray json =
            expect({text("--bindings"), kProgram, text("--json")}, "\"up-left\": \"DrawArc\"");
        QCOMPARE(expect({text("--export"), kProgram}, ""), json);
        const QString kept = place(QStringLiteral("kept.json"));
        QCOMPARE(expect({text("--export"), kProgram, kept}, ""), QByteArray());
        QCOMPARE(contentOf(kept), json);

        expect({text("--bind"), kProgram, text("up-left"), text("")}, "");
        expect({text("--bindings"), kProgram}, "  up-left    none\n");
        expect({text("--trigger"), kProgram, text("ctrl+right")}, "");
        expect({text("--bindings"), kProgram}, "\nstarted with: ctrl+right\n8 ");
        expect({text("--reset"), kProgram}, "");
        expect({text("--bindings"), kProgram}, "  up-left    ID_OFFSET\n");
        expect({text("--import"), kProgram, kept}, "");
        QCOMPARE(expect({text("--bindings"), kProgram, text("--json")}, ""), json);
        QVERIFY(QFile::exists(m_file + QStringLiteral(".before-import")));
    }

    void aTaskHasItsOwnRingOrTheSharedOne()
    {
        const QStringList own{text("--ring"), kProgram, text("Sketching"), text("own")};
        const QByteArray nothing = run(own).errors;
        QVERIFY2(nothing.contains("the profile of this program knows no tasks"), nothing.constData());
        write("gesturewidget/profiles/launcher_fixture_direct.json",
              R"({"version": 1, "program": "launcher_fixture_direct",
                  "tasks": {"checkedActionBeside": ["Sketching"],
                            "firstBindings": {"Sketching": {"81": "DrawArc"}}}})");
        const Outcome unknown = run({text("--ring"), kProgram, text("Cooking"), text("own")});
        QCOMPARE(unknown.status, 1);
        QVERIFY2(unknown.errors.contains("there is no task \"Cooking\"; known ones are Sketching"),
                 unknown.errors.constData());

        const Outcome odd = run({text("--ring"), kProgram, text("Sketching"), text("mine")});
        QCOMPARE(odd.status, 1);
        QVERIFY2(odd.errors.contains("a ring is \"own\" or \"shared\", not \"mine\""),
                 odd.errors.constData());
        QVERIFY(!QFile::exists(m_file));

        expect(own, "");
        QVERIFY(expect({text("--bindings"), kProgram}, "ring of Sketching\n")
                    .contains("  up         DrawArc\n"));
        expect(
            {text("--bind"), kProgram, text("left"), text("ID_TRIM"), text("--ring"), text("Sketching")},
            "");
        const QByteArray shown = expect({text("--bindings"), kProgram}, "ring of Sketching\n");
        QCOMPARE(shown.count("  left       ID_TRIM"), 1);
        ringsOfTheirOwn();
        expect({text("--ring"), kProgram, text("Sketching"), text("shared")}, "");
        QVERIFY(!expect({text("--bindings"), kProgram}, "").contains("ring of"));
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
            "\"north\" is not one of the 8 directions");
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
        row("a sheet that is no PDF", {text("--print"), kProgram, text("/nowhere/sheet.png")}, 1,
            "/nowhere/sheet.png: a sheet is a PDF, so its file ends in .pdf");
        row("a file that cannot be written", {text("--export"), kProgram, text("/nowhere/kept.json")}, 1,
            "/nowhere/kept.json cannot be written");
    }

    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, says);
        expect({text("--bind"), kProgram, text("up"), text("DrawArc")}, "");
        const QByteArray before = contentOf(m_file);
        QVERIFY(before.contains("81=DrawArc"));
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, status);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(outcome.errors.startsWith("mouse-gestures: "), outcome.errors.constData());
        QVERIFY2(outcome.errors.contains(says), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(contentOf(m_file), before);
        QCOMPARE(
            QDir(place(QStringLiteral("gesturewidget"))).entryList({QStringLiteral("*.ini")}).size(), 1);
    }

    // Somebody may want to keep the settings of a program that was removed.
    void settingsOutliveTheProgram()
    {
        QVERIFY(QDir().mkpath(place(QStringLiteral("gesturewidget"))));
        QFile file(place(QStringLiteral("gesturewidget/no-such-program-here.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("[GestureWidget]\n81=DrawArc\n") > 0);
        file.close();
        expect({text("--export"), text("no-such-program-here")}, "\"up\": \"DrawArc\"");
    }

    // A link means the program that it leads to, unless a profile has the name of the link.
    void aLinkIsTheProgram()
    {
        const QString link = place(QStringLiteral("Draw"));
        QVERIFY(QFile::link(kProgram, link));
        expect({text("--bind"), link, text("up"), text("DrawArc")}, "");
        QVERIFY(QFile::exists(m_file));

        const QString profiles = place(QStringLiteral("gesturewidget/profiles"));
        QVERIFY(QDir().mkpath(profiles));
        QFile profile(profiles + QStringLiteral("/draw.json"));
        QVERIFY(profile.open(QIODevice::WriteOnly));
        profile.close();
        expect({text("--bind"), link, text("up"), text("DrawArc")}, "");
        QVERIFY(QFile::exists(place(QStringLiteral("gesturewidget/draw.ini"))));
    }

    void theDoctor()
    {
        const Outcome outcome = run({text("--doctor"), kProgram});
        QCOMPARE(outcome.status, 1); // there is no display
        QVERIFY2(outcome.output.startsWith("  program:     launcher_fixture_direct, " FIXTURES),
                 outcome.output.constData());
        QVERIFY(outcome.output.contains("\n  Qt:          " + QByteArray::number(QT_MAJOR) + '\n'));
        QVERIFY(outcome.output.contains("\n! display:     none\n"));
        QVERIFY(outcome.output.contains("\n  settings:    " + QFile::encodeName(m_file)));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.startsWith("mouse-gestures: gestures cannot work well in "));

        const Outcome missing = run({text("--doctor"), text("no-such-program-here")});
        QCOMPARE(missing.status, 1);
        QCOMPARE(missing.output, QByteArray("! program:     no-such-program-here, not found\n"));
    }

    // Both streams in one pipe: what is wrong comes last.
    void theDoctorInAPipe()
    {
        const Outcome outcome = run({text("--doctor"), kProgram}, {}, true);
        const QList<QByteArray> lines = outcome.output.split('\n');
        QVERIFY(lines.size() > 5);
        QVERIFY(lines.first().startsWith("  program: "));
        QVERIFY2(
            lines.value(lines.size() - 2).startsWith("mouse-gestures: gestures cannot work well in "),
            outcome.output.constData());
    }

    void standardInputAndOutput()
    {
        expect({text("--bind"), kProgram, text("up-left"), text("DrawArc")}, "");
        const QByteArray json = expect({text("--export"), kProgram, text("-")}, "\"DrawArc\"");
        QCOMPARE(json, expect({text("--export"), kProgram}, ""));
        QVERIFY(!QFile::exists(text("-")));
        expect({text("--reset"), kProgram}, "gestures are still started with: right\n");
        const Outcome taken = run({text("--import"), kProgram, text("-")}, json);
        QCOMPARE(taken.errors, QByteArray());
        QCOMPARE(taken.status, 0);
        QCOMPARE(expect({text("--export"), kProgram}, ""), json);
        const Outcome refused = run({text("--import"), kProgram, text("-")}, "{}");
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.errors.startsWith("mouse-gestures: standard input, line 1: "),
                 refused.errors.constData());
        const Outcome large = run({text("--import"), kProgram, text("-")}, QByteArray(200000, ' '));
        QVERIFY2(large.errors.contains("this is too long"), large.errors.constData());
        QCOMPARE(expect({text("--export"), kProgram}, ""), json);
    }

    void gesturesAreSwitchedOnAgain()
    {
        for (const char *off : {"[Host]\nOffSinceCrash=1\nTrigger=middle\n",
                                "[GestureWidget]\nEnableMouseGesture=0\n[Host]\nTrigger=middle\n"}) {
            QVERIFY(tests::writeFile(m_file, off));
            expect({text("--bindings"), kProgram}, "gestures in launcher_fixture_direct: off\n");
            QCOMPARE(expect({text("--switch-on"), kProgram}, ""), QByteArray());
            expect({text("--bindings"), kProgram},
                   "gestures in launcher_fixture_direct: on\nstarted with: middle\n");
            QVERIFY(!contentOf(m_file).contains("OffSinceCrash"));
        }
        QVERIFY(QFile::remove(m_file));
        QVERIFY(QDir().mkdir(m_file));
        const Outcome refused = run({text("--switch-on"), kProgram});
        QCOMPARE(refused.status, 1);
        QCOMPARE(refused.errors.count('\n'), 1);
    }

    void standardInputAndOutputThatFail()
    {
        expect({text("--bind"), kProgram, text("up-left"), text("DrawArc")}, "");
        const QByteArray json = expect({text("--export"), kProgram}, "");
        QProcess process;
        process.setProcessEnvironment(environment());
        const QString command = text("exec \"$0\" --import \"$1\" - </");
        process.start(text("sh"), {text("-c"), command, QStringLiteral(MOUSE_GESTURES), kProgram});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(process.readAllStandardError(),
                 QByteArray("mouse-gestures: standard input cannot be read\n"));
        QCOMPARE(expect({text("--export"), kProgram}, ""), json);

        process.setStandardOutputFile(text("/dev/full"));
        process.start(QStringLiteral(MOUSE_GESTURES), {text("--export"), kProgram});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(process.readAllStandardError(),
                 QByteArray("mouse-gestures: standard output cannot be written\n"));
    }

    // A workbench of the program is an entry of its menus; one without first bindings is known once
    // the program has shown it.
    void aTaskThatTheProgramHasShown()
    {
        write("gesturewidget/profiles/launcher_fixture_direct.json",
              R"({"version": 1, "program": "launcher_fixture_direct",
                  "tasks": {"checkedActionBeside": ["Sketching"]}})");
        const QStringList own{text("--ring"), kProgram, text("Cooking"), text("own")};
        QCOMPARE(run(own).status, 1);
        gesturewidget::RememberedCommand task;
        task.identifier = text("Cooking");
        task.caption = text("Cooking");
        QVERIFY(gesturewidget::CatalogueFile(
                    place(QStringLiteral("gesturewidget/launcher_fixture_direct.commands.json")))
                    .merge({task}));
        expect(own, "");
        QVERIFY(expect({text("--bindings"), kProgram}, "").contains("ring of Cooking\n"));
    }

    void commandsThatWereShown()
    {
        const Outcome before = run({text("--list-commands"), kProgram});
        QCOMPARE(before.status, 1);
        QVERIFY2(before.errors.contains("no command of launcher_fixture_direct is known yet"),
                 before.errors.constData());
        QCOMPARE(before.errors.count('\n'), 1);

        gesturewidget::CatalogueFile file(
            place(text("gesturewidget/launcher_fixture_direct.commands.json")));
        QVERIFY(file.merge({{text("drawArc"), {}, text("Arc..."), {}, text("Draw"), {}, false}}));
        expect({text("--list-commands"), kProgram}, "Others\n  drawArc  Arc\n");
        expect({text("--list-commands"), kProgram, text("--json")}, "\"identifier\": \"drawArc\"");
        expect({text("--bind"), kProgram, text("up-left"), text("arc")}, "");
        expect({text("--bindings"), kProgram}, "  up-left    drawArc         Arc\n");
        const Outcome never = run({text("--bind"), kProgram, text("up"), text("Circle")});
        QCOMPARE(never.status, 1);
        QCOMPARE(never.errors.count('\n'), 1);
        QVERIFY2(never.errors.contains("--list-commands launcher_fixture_direct"),
                 never.errors.constData());
        expect({text("--bind"), kProgram, text("up"), text("ID_TRIM")}, "");
    }

    void aSheetForTheWall()
    {
        const QString sheet = place(text("sheet.pdf"));
        QCOMPARE(expect({text("--print"), kProgram, sheet}, ""), QByteArray());
        const QByteArray pdf = contentOf(sheet);
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    }

    void theDesktopsMenus()
    {
        const QString entries = place(QStringLiteral("usr/applications"));
        QVERIFY(QDir().mkpath(entries));
        QFile entry(entries + QStringLiteral("/draw.desktop"));
        QVERIFY(entry.open(QIODevice::WriteOnly));
        QVERIFY(entry.write("[Desktop Entry]\nType=Application\nExec=" + QFile::encodeName(kProgram)
                            + " %F\n")
                > 0);
        entry.close();
        const QString copy = place(QStringLiteral("data/applications/draw.desktop"));
        for (int i = 0; i < 2; ++i) {
            expect({text("--enable"), kProgram}, "starts with gestures: " + QFile::encodeName(copy));
            QVERIFY2(contentOf(copy).contains("; exec \\\\\"\\\\$@\\\\\"\" "
                                              + QFile::encodeName(QStringLiteral(MOUSE_GESTURES)) + ' '
                                              + QFile::encodeName(kProgram) + " %F\n"),
                     contentOf(copy).constData());
        }
        expect({text("--disable"), kProgram}, "draw.desktop is removed\n");
        QVERIFY(!QFile::exists(copy));
        expect({text("--disable"), kProgram}, "nothing was there to remove\n");
    }

    void helpNamesThemAll()
    {
        const Outcome help = run({text("--help")});
        // The options that the help names, the manual and the completion name too, and no others.
        const auto optionsIn = [](const QByteArray &page) {
            QSet<QString> options;
            const QRegularExpression option(text("(?<![\\w-])--[a-z][a-z-]*"));
            QRegularExpressionMatchIterator all = option.globalMatch(QString::fromUtf8(page));
            while (all.hasNext())
                options.insert(all.next().captured());
            return options;
        };
        const QSet<QString> options = optionsIn(help.output);
        QVERIFY(options.size() > 12);
        QFile page(QStringLiteral(TESTS_SOURCE_DIR "/../docs/mouse-gestures.1"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QByteArray manual = page.readAll().replace("\\-", "-");
        QFile file(QStringLiteral(TESTS_SOURCE_DIR "/../launcher/desktop/mouse-gestures.bash"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray completion = file.readAll();
        QCOMPARE(optionsIn(manual), options);
        QCOMPARE(optionsIn(completion), options);
        for (const QString &option : options)
            QVERIFY2(option == text("--json") // goes with another option
                         || !run({option}).errors.contains("unknown option"),
                     qPrintable(option));
        // The completion offers exactly what is accepted.
        QStringList triggers = gesturewidget::buttonNames();
        triggers.removeAll(text("left")); // alone it is for drawing
        const QStringList keys = gesturewidget::modifierNames();
        for (const QString &key : keys)
            triggers.append(key + text("+right"));
        triggers.append(text("default"));
        const QByteArray directions =
            launcher::Bindings::directionNames(8).join(QLatin1Char(' ')).toLatin1();
        QVERIFY(completion.contains("directions=\"" + directions + "\"\n"));
        QVERIFY2(
            completion.contains("triggers=\"" + triggers.join(QLatin1Char(' ')).toLatin1() + "\"\n"),
            qPrintable(triggers.join(QLatin1Char(' '))));
        const QList<QByteArray> lines = help.output.split('\n');
        for (const QByteArray &line : lines)
            QVERIFY2(line.size() <= 88, line.constData());
    }

private:
    // The other tasks that can be about one ring.
    void ringsOfTheirOwn()
    {
        const QStringList ofRing{text("--ring"), text("Sketching")};
        const QString kept = place(QStringLiteral("ring.json"));
        expect(QStringList{text("--export"), kProgram, kept} + ofRing, "");
        QCOMPARE(contentOf(kept).count("ID_TRIM"), 1);
        QVERIFY(expect({text("--export"), kProgram}, "\"rings\": {\n        \"Sketching\": {")
                    .contains("ID_TRIM"));
        const QString sheet = place(QStringLiteral("ring.pdf"));
        expect(QStringList{text("--print"), kProgram, sheet} + ofRing, "");
        QProcess reader;
        reader.start(text("pdftotext"), {text("-layout"), sheet, text("-")});
        QVERIFY2(reader.waitForFinished(), "pdftotext, of the package poppler-utils");
        const QByteArray words = reader.readAllStandardOutput();
        QVERIFY2(words.contains(", Sketching\n"), words.constData());
        expect(QStringList{text("--reset"), kProgram} + ofRing, "");
        QVERIFY(!expect({text("--bindings"), kProgram}, "ring of Sketching\n")
                     .contains("  left       ID_TRIM"));
        expect(QStringList{text("--import"), kProgram, kept} + ofRing, "");
        QVERIFY(expect({text("--bindings"), kProgram}, "ring of Sketching\n")
                    .contains("  left       ID_TRIM"));
        for (const char *option : {"--export", "--print", "--reset", "--import"}) {
            QStringList arguments{QLatin1String(option), kProgram};
            if (arguments.first() != text("--reset"))
                arguments.append(arguments.first() == text("--import") ? kept : place(text("x.pdf")));
            const Outcome none = run(arguments + QStringList{text("--ring"), text("Away")});
            QCOMPARE(none.status, 1);
            QVERIFY2(none.errors.contains("Away has no ring of its own"), none.errors.constData());
        }
        QVERIFY(!QFile::exists(place(QStringLiteral("x.pdf"))));
    }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder->path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), place(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), place(QStringLiteral("usr")));
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"})
            environment.remove(QLatin1String(name));
        return environment;
    }

    Outcome run(const QStringList &arguments, const QByteArray &input = {}, bool isMerged = false) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        if (isMerged)
            process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(MOUSE_GESTURES), arguments);
        process.write(input);
        process.closeWriteChannel();
        Outcome outcome;
        if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
            outcome.status = process.exitCode();
        outcome.output = process.readAllStandardOutput();
        if (!isMerged)
            outcome.errors = process.readAllStandardError();
        return outcome;
    }

    // Runs the command. It must succeed and print `says` somewhere. Returns its whole output.
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

    QString m_file;
};

QTEST_GUILESS_MAIN(SettingsOptionsTest)
#include "tst_settingsoptions.moc"
