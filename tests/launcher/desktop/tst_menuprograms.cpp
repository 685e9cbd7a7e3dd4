// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Which programs of the desktop's menus can have gestures.

#include "launcher/desktop/MenuPrograms.h"

#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using launcher::DesktopMenu;
using launcher::MenuProgram;
using launcher::MenuPrograms;
using tests::text;

class MenuProgramsTest : public tests::FolderTest
{
    Q_OBJECT

    void copy(const char *fixture, const char *name) const
    {
        QDir().mkpath(place("bin"));
        QVERIFY(QFile::copy(QStringLiteral(FIXTURES "/launcher_fixture_") + text(fixture),
                            place(QStringLiteral("bin/") + text(name))));
    }
    void script(const char *name) const
    {
        const QString path = place(QStringLiteral("bin/") + text(name));
        write(path, "#!/bin/sh\n");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    void entry(const char *file, const QByteArray &content) const
    {
        write(place(text(file)), "[Desktop Entry]\nType=Application\n" + content);
    }
    // "name typed" of each program that is found, sorted.
    [[nodiscard]] QStringList found(const QString &locale = {}) const
    {
        DesktopMenu::Places places;
        places.own = place("own");
        places.installed = QStringList{place("first"), place("second")};
        places.searchPath = QFile::encodeName(place("bin"));
        places.launcher = QFile::encodeName(place("bin/mouse-gestures"));
        QStringList lines;
        int last = -1;
        int all = -1;
        MenuPrograms(places, {{"PATH", places.searchPath}}, {place("profiles")}, locale)
            .find(
                [&lines](const MenuProgram &program) {
                    lines.append(program.name + QLatin1Char(' ') + QString::fromLatin1(program.typed));
                },
                [&](int done, int total) {
                    last = done;
                    all = total;
                    return true;
                });
        if (last != all)
            lines.append(text("the progress did not reach its end"));
        lines.sort();
        return lines;
    }

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(place("config")));
        copy("direct", "draw");
        copy("plain", "plain");
    }

    void findsWhatIsMadeWithQtWidgets()
    {
        entry("first/draw.desktop", "Name=Draw\nExec=draw %F\n");
        entry("first/plain.desktop", "Name=Plain\nExec=plain\n");
        entry("first/missing.desktop", "Name=Missing\nExec=missing\n");
        QCOMPARE(found(), QStringList{text("Draw draw")});
    }

    void leavesOutWhatMenusDoNotShow_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("hidden") << QByteArray("Hidden=true");
        QTest::newRow("not displayed") << QByteArray("NoDisplay=true");
        QTest::newRow("in a terminal") << QByteArray("Terminal=true");
        QTest::newRow("no application") << QByteArray("Type=Link");
        QTest::newRow("no command") << QByteArray("Exec=");
    }
    void leavesOutWhatMenusDoNotShow()
    {
        QFETCH(QByteArray, line);
        entry("first/draw.desktop", "Name=Draw\nExec=draw\n" + line + '\n');
        QCOMPARE(found(), QStringList());
    }

    void anEntryInAnEarlierFolderCounts()
    {
        entry("first/draw.desktop", "Name=First\nExec=draw\n");
        entry("second/draw.desktop", "Name=Second\nExec=draw\n");
        QCOMPARE(found(), QStringList{text("First draw")});
        entry("own/draw.desktop", "Name=Own\nExec=draw\n");
        QCOMPARE(found(), QStringList{text("Own draw")});
        entry("own/draw.desktop", "Name=Own\nHidden=true\nExec=draw\n");
        QCOMPARE(found(), QStringList());
    }

    void behindACopyIsTheInstalledEntry()
    {
        entry("first/draw.desktop", "Name=Draw\nExec=draw\n");
        entry("own/draw.desktop", "Name=Copy\nExec=mouse-gestures draw\nX-MouseGestures=true\n");
        QCOMPARE(found(), QStringList{text("Draw draw")});
    }

    void twoEntriesOfAProgramAreOne()
    {
        entry("first/a.desktop", "Name=Draw\nExec=draw %F\n");
        entry("first/b.desktop", "Name=Draw Anew\nExec=draw --new\n");
        QCOMPARE(found(), QStringList{text("Draw draw")});
        // A link of another name is another program.
        QVERIFY(QFile::link(place("bin/draw"), place("bin/pen")));
        entry("first/c.desktop", "Name=Pen\nExec=pen\n");
        QCOMPARE(found(), (QStringList{text("Draw draw"), text("Pen pen")}));
    }

    void aScriptNeedsASign()
    {
        script("run");
        entry("first/run.desktop", "Name=Run\nExec=run\n");
        QCOMPARE(found(), QStringList());
        entry("first/run.desktop", "Name=Run\nExec=run\nCategories=Graphics;Qt;\n");
        QCOMPARE(found(), QStringList{text("Run run")});
        entry("first/run.desktop", "Name=Run\nExec=run\n");
        write("profiles/run.json", "{}");
        QCOMPARE(found(), QStringList{text("Run run")});
        QVERIFY(QFile::remove(place("profiles/run.json")));
        write("config/gesturewidget/run.ini", "[GestureWidget]\n");
        QCOMPARE(found(), QStringList{text("Run run")});
    }

    void itsOwnProgramsAreNotInIt()
    {
        copy("direct", "mouse-gestures-settings");
        entry("first/mouse-gestures.desktop", "Name=Mouse Gestures\nExec=mouse-gestures-settings\n");
        QCOMPARE(found(), QStringList());
        // Another copy of it is installed, too.
        QDir().mkpath(place("other"));
        QVERIFY(QFile::copy(place("bin/draw"), place("other/mouse-gestures-settings")));
        entry("first/other.desktop",
              "Name=Other\nExec=" + QFile::encodeName(place("other/mouse-gestures-settings")) + '\n');
        QCOMPARE(found(), QStringList());
        // A program of somebody else may have such a name.
        QDir().mkpath(place("games"));
        QVERIFY(QFile::copy(place("bin/draw"), place("games/mouse-gestures-maze")));
        const QByteArray maze = QFile::encodeName(place("games/mouse-gestures-maze"));
        entry("first/maze.desktop", "Name=Maze\nExec=" + maze + '\n');
        QCOMPARE(found(), QStringList(text("Maze ") + place("games/mouse-gestures-maze")));
    }

    void whatIsNoEntryIsPassedOver()
    {
        write("first/a.desktop", "Exec=draw\n");
        entry("first/b.desktop", "Name=Draw\nExec=draw\n");
        QCOMPARE(found(), QStringList{text("Draw draw")});
    }

    void namesAreInTheLanguage()
    {
        entry("first/draw.desktop", "Name=Draw\nName[de]=Zeichnen\nName[de_AT]=Zeichnen\\sWien\n"
                                    "Exec=draw\n");
        QCOMPARE(found(text("de_DE")), QStringList{text("Zeichnen draw")});
        QCOMPARE(found(text("de_AT")), QStringList{text("Zeichnen Wien draw")});
        QCOMPARE(found(text("fr")), QStringList{text("Draw draw")});
    }

    void aBackslashInANameStays()
    {
        entry("first/draw.desktop", "Name=Draw\\\\share\\tand\\sline\nExec=draw\n");
        QCOMPARE(found(), QStringList{text("Draw\\share and line draw")});
    }

    void stopsWhenItIsNotWanted()
    {
        entry("first/draw.desktop", "Name=Draw\nExec=draw\n");
        DesktopMenu::Places places;
        places.own = place("own");
        places.installed = QStringList{place("first")};
        places.searchPath = QFile::encodeName(place("bin"));
        int calls = 0;
        MenuPrograms(places, {}, {}, {})
            .find([](const MenuProgram &) { QFAIL("nothing is wanted"); },
                  [&calls](int, int) {
                      ++calls;
                      return false;
                  });
        QCOMPARE(calls, 1);
    }
};

QTEST_MAIN(MenuProgramsTest)
#include "tst_menuprograms.moc"
