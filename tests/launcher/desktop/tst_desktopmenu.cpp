// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

// Starting a program with gestures from the desktop's menus, in folders of the test.

#include "launcher/desktop/DesktopMenu.h"

#include "launcher/desktop/DesktopFile.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

using launcher::DesktopFile;
using launcher::DesktopMenu;
using launcher::Outcome;

namespace {

// The text before the launcher's path.
const QByteArray kStart =
    R"(/bin/sh -c "[ -x \\"\\$0\\" ] && exec \\"\\$0\\" --always \\"\\$@\\"; exec \\"\\$@\\"" )";

const QByteArray kEntry = "# drafting\n"
                          "[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Draw\n"
                          "Name[de]=Zeichnen\n"
                          "Exec=draw --new %F\n"
                          "Exec[de]=nothing that counts\n"
                          "Actions=Empty;Web;\n"
                          "\n"
                          "[Desktop Action Empty]\n"
                          "Name=Empty\n"
                          "Exec = env A=\"b c\" draw --empty\n"
                          "\n"
                          "[Desktop Action Web]\n"
                          "Exec=browse http://draw\n"
                          "[X-Other]\n"
                          "Exec=draw\n";

const QByteArray kCopy = "# drafting\n"
                         "[Desktop Entry]\n"
                         "Type=Application\n"
                         "Name=Draw\n"
                         "Name[de]=Zeichnen\n"
                         "Exec="
                       + kStart
                       + "\"/opt/my tools/mouse-gestures\" draw --new %F\n"
                         "Exec[de]=nothing that counts\n"
                         "Actions=Empty;Web;\n"
                         "TryExec=draw\n"
                         "X-MouseGestures=true\n"
                         "\n"
                         "[Desktop Action Empty]\n"
                         "Name=Empty\n"
                         "Exec=env A=\"b c\" "
                       + kStart
                       + "\"/opt/my tools/mouse-gestures\" draw --empty\n"
                         "\n"
                         "[Desktop Action Web]\n"
                         "Exec=browse http://draw\n"
                         "[X-Other]\n"
                         "Exec=draw\n";

QByteArray entryFor(const QByteArray &exec, const QByteArray &more = {})
{
    return "[Desktop Entry]\nType=Application\nName=x\nExec=" + exec + '\n' + more;
}

} // namespace

class DesktopMenuTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aCopyStartsItByTheLauncher();
    void twiceIsOnce();
    void aNewerEntryIsCopiedAnew();
    void anEntryOfAnotherName();
    void theOnlyEntryIsSomebodysOwn();
    void ownEntriesOfOtherPrograms_data();
    void ownEntriesOfOtherPrograms();
    void somebodysOwnFileStays_data();
    void somebodysOwnFileStays();
    void tryExecIsKept();
    void tryExecIsOneLine();
    void twoEntriesThatLookTheSameAreOne();
    void aCopyOfAnotherProgramNameGoesWithItsEntry();
    void anEntryOfTheSameIdentifierStays();
    void allCopiesOrNone();
    void aNewCopyGoesIfTheNextCannotBeWritten();
    void aProgramThatIsStartedByTheBus();
    void foundByItsFile_data();
    void foundByItsFile();
    void theNameThatWasTypedCounts();
    void theFirstFolderCounts();
    void anEntryThatStartsAScript();
    void notFound_data();
    void notFound();
    void whatCannotBeWrittenIsSaid();
    void aFullDiskKeepsTheOldCopy();
    void aProgramThatIsGone();
    void aProgramThatIsNotInstalled();
    void itsNameIsThatOfItsEntry();
    void whatIsNoEntryIsPassedOver();
    void damagedLinesStay();
    void onlyItsOwnCopiesAreRemoved();
    void theProgramStillOpensItsFiles();

private:
    QByteArray draw() const { return QFile::encodeName(place("bin/draw")); }
    DesktopMenu menu() const { return DesktopMenu(m_places); }
    void writeProgram(const char *name, const QByteArray &content = "#!/bin/sh\n") const
    {
        write(name, content);
        QVERIFY(
            QFile::setPermissions(place(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QByteArray content(const char *name) const { return tests::contentOf(place(name)); }
    QStringList ownFiles() const { return QDir(m_places.own).entryList(QDir::Files | QDir::Hidden); }
    void expectEnabled() const
    {
        const Outcome outcome = menu().enable("draw", draw());
        QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));
    }

    DesktopMenu::Places m_places;
};

void DesktopMenuTest::init()
{
    FolderTest::init();
    m_places.own = place("home/applications");
    m_places.installed = QStringList{place("local/applications"), place("usr/applications")};
    m_places.searchPath = QFile::encodeName(place("bin"));
    m_places.launcher = "/opt/my tools/mouse-gestures";
    writeProgram("bin/draw");
    writeProgram("bin/browse");
}

void DesktopMenuTest::aCopyStartsItByTheLauncher()
{
    write("usr/applications/org.draw.desktop", kEntry);
    write("usr/applications/other.desktop", entryFor("browse"));
    const Outcome outcome = menu().enable("draw", draw());
    QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));
    QCOMPARE(content("home/applications/org.draw.desktop"), kCopy);
    QCOMPARE(ownFiles(), QStringList(QStringLiteral("org.draw.desktop")));
    QCOMPARE(outcome.output,
             "starts with gestures: " + QFile::encodeName(place("home/applications/org.draw.desktop"))
                 + '\n');
    QCOMPARE(content("usr/applications/org.draw.desktop"), kEntry);

    const Outcome back = menu().disable("draw", draw());
    QVERIFY(back.isDone());
    QVERIFY(back.output.contains("org.draw.desktop is removed"));
    QCOMPARE(ownFiles(), QStringList());
    QCOMPARE(menu().disable("draw", draw()).output, QByteArray("draw: nothing was there to remove\n"));
}

void DesktopMenuTest::twiceIsOnce()
{
    write("usr/applications/draw.desktop", kEntry);
    expectEnabled();
    // If it were written again, it would have another time.
    QFile copy(place("home/applications/draw.desktop"));
    QVERIFY(copy.setPermissions(QFile::ReadOwner));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    const QDateTime before(QDate(2001, 2, 3), QTime(4, 5));
    QVERIFY(copy.setFileTime(before, QFileDevice::FileModificationTime));
    copy.close();
    expectEnabled();
    QCOMPARE(QFileInfo(copy.fileName()).lastModified(), before);
    QCOMPARE(content("home/applications/draw.desktop"), kCopy);
}

void DesktopMenuTest::aNewerEntryIsCopiedAnew()
{
    write("usr/applications/draw.desktop", kEntry);
    expectEnabled();
    write("usr/applications/draw.desktop", entryFor("draw --better"));
    expectEnabled();
    QVERIFY(content("home/applications/draw.desktop").contains("mouse-gestures\" draw --better\n"));
}

void DesktopMenuTest::anEntryOfAnotherName()
{
    write("usr/applications/draw.desktop", kEntry);
    write("home/applications/mine.desktop", entryFor("draw --mine"));
    expectEnabled();
    QVERIFY(QFile::rename(place("usr/applications/draw.desktop"),
                          place("usr/applications/org.draw.desktop")));
    expectEnabled();
    QCOMPARE(ownFiles(),
             QStringList({QStringLiteral("mine.desktop"), QStringLiteral("org.draw.desktop")}));
}

void DesktopMenuTest::theOnlyEntryIsSomebodysOwn()
{
    write("home/applications/mine.desktop", entryFor("draw --mine"));
    const Outcome outcome = menu().enable("draw", draw());
    QVERIFY2(outcome.complaint.contains(QStringLiteral("mine.desktop is your own and stays")),
             qPrintable(outcome.complaint));
    QCOMPARE(content("home/applications/mine.desktop"), entryFor("draw --mine"));
}

// None of them is in the way, and none starts the program.
void DesktopMenuTest::ownEntriesOfOtherPrograms_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::newRow("another program") << entryFor("browse");
    QTest::newRow("a program that is missing") << entryFor("erased");
    QTest::newRow("a command that cannot be read") << entryFor("\"draw");
    QTest::newRow("a copy of ours") << entryFor("browse", "X-MouseGestures=true\n");
    QTest::newRow("no entry") << QByteArray("draw\n");
}

void DesktopMenuTest::ownEntriesOfOtherPrograms()
{
    QFETCH(QByteArray, own);
    write("home/applications/own.desktop", own);
    QCOMPARE(menu().enable("draw", draw()).complaint,
             QStringLiteral("draw: the desktop has no entry that starts it"));
    write("usr/applications/draw.desktop", kEntry);
    expectEnabled();
    QCOMPARE(content("home/applications/own.desktop"), own);
}

void DesktopMenuTest::somebodysOwnFileStays_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::newRow("an entry") << entryFor("draw --mine");
    QTest::newRow("marked as not ours") << entryFor("draw", "X-MouseGestures=false\n");
    QTest::newRow("marked in another group")
        << entryFor("draw", "[Desktop Action x]\nX-MouseGestures=true\n");
    QTest::newRow("hidden") << entryFor("draw", "Hidden=true\n");
    QTest::newRow("something else") << QByteArray("\0\1x", 3);
    QTest::newRow("nothing") << QByteArray();
}

void DesktopMenuTest::somebodysOwnFileStays()
{
    QFETCH(QByteArray, own);
    write("usr/applications/draw.desktop", kEntry);
    write("home/applications/draw.desktop", own);
    const Outcome outcome = menu().enable("draw", draw());
    QVERIFY2(outcome.complaint.contains(QStringLiteral("draw.desktop is your own and stays as it is")),
             qPrintable(outcome.complaint));
    QCOMPARE(content("home/applications/draw.desktop"), own);
    QVERIFY(menu().disable("draw", draw()).output.contains("nothing was there"));
    QCOMPARE(content("home/applications/draw.desktop"), own);

    // A link that leads nowhere is the user's own too.
    QVERIFY(QFile::remove(place("home/applications/draw.desktop")));
    QVERIFY(QFile::link(place("nowhere"), place("home/applications/draw.desktop")));
    QVERIFY(!menu().enable("draw", draw()).isDone());
    QVERIFY(QFileInfo(place("home/applications/draw.desktop")).isSymLink());
}

void DesktopMenuTest::tryExecIsKept()
{
    write("usr/applications/draw.desktop", entryFor("draw", "TryExec=/somewhere/draw\n"));
    expectEnabled();
    const QByteArray copy = content("home/applications/draw.desktop");
    QCOMPARE(copy.count("TryExec"), 1);
    QVERIFY(copy.contains("TryExec=/somewhere/draw\n"));
}

// A line end in a path must not begin a line of the entry.
void DesktopMenuTest::tryExecIsOneLine()
{
    const QByteArray folder = QFile::encodeName(place("bin/a\nHidden=true\nx\\y"));
    writeProgram("bin/a\nHidden=true\nx\\y/draw");
    const QByteArray escaped = QByteArray(folder).replace('\\', "\\\\").replace("\n", "\\n");
    // Quotes double a backslash, and the value doubles each of the two again.
    const QByteArray quoted = QByteArray(folder).replace("\\", "\\\\\\\\").replace("\n", "\\n");
    write("usr/applications/draw.desktop", entryFor('"' + quoted + "/draw\" %F"));
    const Outcome outcome = menu().enable("draw", folder + "/draw");
    QVERIFY2(outcome.isDone(), qPrintable(outcome.complaint));
    const QByteArray copy = content("home/applications/draw.desktop");
    QVERIFY2(copy.contains("\nTryExec=" + escaped + "/draw\n"), copy.constData());
    DesktopFile file;
    QVERIFY(file.read(place("home/applications/draw.desktop")));
    QVERIFY(file.isApplication());
    QVERIFY(file.value("Hidden").isNull());
    QCOMPARE(file.exec().startedProgram(), folder + "/draw");
}

void DesktopMenuTest::twoEntriesThatLookTheSameAreOne()
{
    write("local/applications/org.draw.desktop", kEntry);
    write("usr/applications/draw.desktop", kEntry);
    write("usr/applications/other.desktop", entryFor("draw --other"));
    write("usr/applications/types.desktop",
          QByteArray(kEntry).replace("Name=Draw", "NoDisplay=true\nName=Draw"));
    expectEnabled();
    QCOMPARE(ownFiles(), QStringList({tests::text("draw.desktop"), tests::text("org.draw.desktop"),
                                      tests::text("other.desktop"), tests::text("types.desktop")}));
    int shown = 0;
    for (const char *name : {"draw", "org.draw", "other", "types"})
        shown += !content(qPrintable(tests::text("home/applications/%1.desktop").arg(tests::text(name))))
                      .contains("NoDisplay=true\n");
    QCOMPARE(shown, 2); // one of the two that look the same, and "other"
    QVERIFY(!content("home/applications/org.draw.desktop").contains("NoDisplay"));
    expectEnabled();
    QVERIFY(menu().disable("draw", draw()).isDone());
    QCOMPARE(ownFiles(), QStringList());
}

void DesktopMenuTest::aCopyOfAnotherProgramNameGoesWithItsEntry()
{
    QVERIFY(QFile::link(place("bin/draw"), place("bin/drafter")));
    write("usr/applications/old.desktop", entryFor("drafter"));
    expectEnabled();
    QCOMPARE(ownFiles(), QStringList(tests::text("old.desktop")));
    QVERIFY(QFile::remove(place("usr/applications/old.desktop")));
    write("usr/applications/new.desktop", entryFor("draw"));
    expectEnabled();
    QCOMPARE(ownFiles(), QStringList(tests::text("new.desktop")));
}

void DesktopMenuTest::anEntryOfTheSameIdentifierStays()
{
    write("usr/applications/kde/draw.desktop", kEntry);
    write("home/applications/kde-draw.desktop", entryFor("draw --mine"));
    const Outcome outcome = menu().enable("draw", draw());
    QVERIFY2(outcome.complaint.contains(tests::text("kde-draw.desktop is your own and stays")),
             qPrintable(outcome.complaint));
    QCOMPARE(content("home/applications/kde-draw.desktop"), entryFor("draw --mine"));
    QVERIFY(!QFileInfo::exists(place("home/applications/kde/draw.desktop")));
}

void DesktopMenuTest::allCopiesOrNone()
{
    write("usr/applications/a.desktop", entryFor("draw --old"));
    expectEnabled();
    const QByteArray before = content("home/applications/a.desktop");
    write("usr/applications/a.desktop", entryFor("draw --new"));
    write("usr/applications/b.desktop", entryFor("draw --b"));
    write("usr/applications/sub/c.desktop", entryFor("draw --c"));
    write("home/applications/sub", "a file in place of the folder");
    const Outcome outcome = menu().enable("draw", draw());
    QCOMPARE(outcome.complaint,
             place("home/applications/sub/c.desktop") + QStringLiteral(" cannot be written"));
    QCOMPARE(content("home/applications/a.desktop"), before);
    QCOMPARE(ownFiles(), QStringList({tests::text("a.desktop"), tests::text("sub")}));
}

void DesktopMenuTest::aNewCopyGoesIfTheNextCannotBeWritten()
{
    write("usr/applications/a.desktop", entryFor("draw --a"));
    write("usr/applications/sub/c.desktop", entryFor("draw --c"));
    write("home/applications/sub", "a file in place of the folder");
    QVERIFY(!menu().enable("draw", draw()).isDone());
    QCOMPARE(ownFiles(), QStringList(tests::text("sub")));
}

void DesktopMenuTest::aProgramThatIsStartedByTheBus()
{
    write("usr/applications/draw.desktop", entryFor("draw", "DBusActivatable=true\n"));
    expectEnabled();
    const QByteArray copy = content("home/applications/draw.desktop");
    QCOMPARE(copy.count("DBusActivatable"), 1);
    QVERIFY(copy.contains("DBusActivatable=false\n"));
}

void DesktopMenuTest::foundByItsFile_data()
{
    QTest::addColumn<QByteArray>("exec");
    QTest::newRow("path") << QFile::encodeName(QStringLiteral("%1/bin/draw")) + " %F";
    QTest::newRow("link") << QByteArray("drafter %F");
    QTest::newRow("env") << QByteArray("env A=b drafter %F");
    QTest::newRow("quoted") << QByteArray("\"draw\" %F");
}

void DesktopMenuTest::foundByItsFile()
{
    QFETCH(QByteArray, exec);
    QVERIFY(QFile::link(place("bin/draw"), place("bin/drafter")));
    exec.replace("%1", QFile::encodeName(m_folder->path()));
    write("usr/applications/sub/x.desktop", entryFor(exec));
    expectEnabled();
    DesktopFile copy;
    QVERIFY(copy.read(place("home/applications/sub/x.desktop")));
    QVERIFY(copy.isOurs());
    QCOMPARE(copy.exec().arguments.value(2), m_places.launcher);
    QVERIFY(menu().disable("draw", draw()).output.contains("sub/x.desktop is removed"));
    QVERIFY(!QFileInfo::exists(place("home/applications/sub/x.desktop")));
}

// One file may be several programs, depending on the name that starts it.
void DesktopMenuTest::theNameThatWasTypedCounts()
{
    QVERIFY(QFile::link(place("bin/draw"), place("bin/paint")));
    write("usr/applications/a.desktop", entryFor("paint"));
    write("usr/applications/b.desktop", entryFor("draw"));
    write("usr/applications/c.desktop", entryFor("draw --large"));
    expectEnabled();
    const QStringList ofDraw{QStringLiteral("b.desktop"), QStringLiteral("c.desktop")};
    QCOMPARE(ownFiles(), ofDraw);
    QVERIFY(menu().enable("paint", QFile::encodeName(place("bin/paint"))).isDone());
    expectEnabled();
    QCOMPARE(ownFiles(), QStringList(QStringLiteral("a.desktop")) + ofDraw);
    QVERIFY(menu().disable("paint", QFile::encodeName(place("bin/paint"))).isDone());
    QCOMPARE(ownFiles(), ofDraw);
}

void DesktopMenuTest::theFirstFolderCounts()
{
    write("local/applications/draw.desktop", entryFor("draw --local"));
    write("usr/applications/draw.desktop", entryFor("draw --usr"));
    write("local/applications/deleted.desktop", entryFor("draw", "Hidden=true\n"));
    write("usr/applications/deleted.desktop", entryFor("draw"));
    expectEnabled();
    QVERIFY(content("home/applications/draw.desktop").contains(" draw --local\n"));
    QCOMPARE(ownFiles(), QStringList(QStringLiteral("draw.desktop")));
}

void DesktopMenuTest::anEntryThatStartsAScript()
{
    writeProgram("bin/start-drawing");
    write("usr/applications/draw.desktop", entryFor("start-drawing %F"));
    expectEnabled();
    QVERIFY(content("home/applications/draw.desktop")
                .contains("Exec=" + kStart + "\"/opt/my tools/mouse-gestures\" start-drawing %F\n"));
    QVERIFY(menu().disable("draw", draw()).output.contains("draw.desktop is removed"));
}

void DesktopMenuTest::notFound_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("another program") << entryFor("browse");
    QTest::newRow("no command") << QByteArray("[Desktop Entry]\nType=Application\nName=x\n");
    QTest::newRow("a link") << QByteArray("[Desktop Entry]\nType=Link\nExec=draw\n");
    QTest::newRow("hidden") << entryFor("draw", "Hidden=true\n");
    QTest::newRow("a command that cannot be read") << entryFor("\"draw");
    QTest::newRow("a shell") << entryFor("/bin/sh -c draw");
    QTest::newRow("of another group")
        << QByteArray("[Desktop Entry]\nType=Application\n[x]\nExec=draw\n");
    QTest::newRow("nothing") << QByteArray();
}

void DesktopMenuTest::notFound()
{
    QFETCH(QByteArray, entry);
    const bool isNamedSo = QByteArray(QTest::currentDataTag()) != "another program";
    write(isNamedSo ? "usr/applications/draw.desktop" : "usr/applications/other.desktop", entry);
    const Outcome outcome = menu().enable("draw", draw());
    QCOMPARE(outcome.complaint, QStringLiteral("draw: the desktop has no entry that starts it"));
    QVERIFY(!QFileInfo::exists(m_places.own));
}

void DesktopMenuTest::whatCannotBeWrittenIsSaid()
{
    write("usr/applications/draw.desktop", kEntry);
    write("home", "a file in place of the folder");
    const Outcome outcome = menu().enable("draw", draw());
    QCOMPARE(outcome.complaint,
             place("home/applications/draw.desktop") + QStringLiteral(" cannot be written"));
}

void DesktopMenuTest::aFullDiskKeepsTheOldCopy()
{
    write("usr/applications/draw.desktop", entryFor("draw --old"));
    expectEnabled();
    const QByteArray before = content("home/applications/draw.desktop");
    write("usr/applications/draw.desktop", entryFor("draw --new"));
    Outcome outcome;
    {
        const tests::FileSizeLimit fullDisk(10);
        outcome = menu().enable("draw", draw());
    }
    QCOMPARE(outcome.complaint,
             place("home/applications/draw.desktop") + QStringLiteral(" cannot be written"));
    QCOMPARE(content("home/applications/draw.desktop"), before);
    QCOMPARE(ownFiles(), QStringList(tests::text("draw.desktop")));
}

void DesktopMenuTest::aProgramThatIsGone()
{
    write("usr/applications/org.draw.desktop", kEntry);
    expectEnabled();
    QVERIFY(QFile::remove(place("bin/draw")));
    QVERIFY(menu().disable("draw", {}).output.contains("org.draw.desktop is removed"));
    QCOMPARE(ownFiles(), QStringList());
}

void DesktopMenuTest::aProgramThatIsNotInstalled()
{
    write("usr/applications/draw.desktop", entryFor("paint"));
    write("usr/applications/browse.desktop", entryFor("browse"));
    const Outcome outcome = menu().enable("draw", {});
    QCOMPARE(outcome.complaint, QStringLiteral("draw: the desktop has no entry that starts it"));
    QVERIFY(!QFileInfo::exists(m_places.own));
    QVERIFY(!menu().isEnabled("draw", {}));
}

void DesktopMenuTest::itsNameIsThatOfItsEntry()
{
    QCOMPARE(menu().nameOf("draw", draw()), QString());
    write("usr/applications/draw.desktop", kEntry);
    QCOMPARE(menu().nameOf("draw", draw()), QStringLiteral("Draw"));
    QVERIFY(!menu().isEnabled("draw", draw()));
    expectEnabled();
    QVERIFY(menu().isEnabled("draw", draw()));
}

void DesktopMenuTest::whatIsNoEntryIsPassedOver()
{
    write("usr/applications/a.desktop", "draw\n");
    write("usr/applications/b.desktop", "[Desktop Entry]\nType=Directory\nExec=draw\n");
    write("usr/applications/c.desktop", entryFor("draw", "NoDisplay=true\n"));
    write("usr/applications/d.desktop", entryFor("draw"));
    expectEnabled();
    QCOMPARE(ownFiles(), QStringList({tests::text("c.desktop"), tests::text("d.desktop")}));
    // The hidden one is not the shown one's double: one stays in the menu.
    QVERIFY(!content("home/applications/d.desktop").contains("NoDisplay"));
}

// Damaged lines of an entry stay as they are.
void DesktopMenuTest::damagedLinesStay()
{
    const QByteArray damage = "no key\n[half a group\nalso ]\n#Exec=draw\n";
    write("usr/applications/draw.desktop", entryFor("draw", damage));
    expectEnabled();
    const QByteArray copy = content("home/applications/draw.desktop");
    QVERIFY2(copy.contains(damage), copy.constData());
    // What is added belongs to the entry.
    DesktopFile file;
    QVERIFY(file.read(place("home/applications/draw.desktop")));
    QVERIFY(file.isOurs());
    // Without a group for it, nothing can be added.
    write("other.desktop", "Name=x\n");
    DesktopFile other;
    QVERIFY(!other.read(place("other.desktop")));
    other.setValue("Name", "y");
    QCOMPARE(other.content(), QByteArray("Name=x\n"));
}

void DesktopMenuTest::onlyItsOwnCopiesAreRemoved()
{
    write("usr/applications/draw.desktop", kEntry);
    write("usr/applications/browse.desktop", entryFor("browse"));
    expectEnabled();
    QVERIFY(menu().enable("browse", QFile::encodeName(place("bin/browse"))).isDone());
    write("home/applications/mine.desktop", entryFor("draw"));
    QVERIFY(menu().disable("draw", draw()).isDone());
    QCOMPARE(ownFiles(),
             QStringList({QStringLiteral("browse.desktop"), QStringLiteral("mine.desktop")}));
}

void DesktopMenuTest::theProgramStillOpensItsFiles()
{
    write("usr/applications/draw.desktop", entryFor("draw %f", "MimeType=image/vnd.dxf;\n"));
    m_places.searchPath += ":/usr/bin"; // with desktop-file-utils
    expectEnabled();
    QVERIFY(content("home/applications/mimeinfo.cache").contains("image/vnd.dxf=draw.desktop;"));
    QVERIFY(menu().disable("draw", draw()).isDone());
    QVERIFY(!content("home/applications/mimeinfo.cache").contains("draw.desktop"));
}

QTEST_GUILESS_MAIN(DesktopMenuTest)
#include "tst_desktopmenu.moc"
