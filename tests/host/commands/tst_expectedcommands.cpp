// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ExpectedCommands.h"

#include "host/commands/ActionItem.h"
#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandRunner.h"
#include "host/commands/CommandStack.h"
#include "host/files/InstallPaths.h"
#include "host/window/TextOutput.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/Files.h"
#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using gesturewidget::ActionItem;
using gesturewidget::CommandCatalogue;
using gesturewidget::expectedCommands;
using gesturewidget::RememberedCommand;
using tests::DraftWindow;
using WellKnown = QHash<QString, QStringList>;

namespace {

const QString kLine = QStringLiteral("ID_LINE");
const QString kTrim = QStringLiteral("ID_TRIM");

QString id(const ActionItem *item)
{
    return item ? item->GetIdentifier().toQString() : QString();
}

bool isOffered(CommandCatalogue &catalogue, const QString &identifier)
{
    const ActionItem *item = catalogue.find(identifier);
    const auto &groups = catalogue.groups();
    return item && std::any_of(groups.begin(), groups.end(), [item](const auto &group) {
               return std::count(group->items.begin(), group->items.end(), item) > 0;
           });
}

QString caption(const ActionItem *item)
{
    return item ? item->GetCaption().toQString() : QString();
}

} // namespace

// Commands that are offered before any menu has them, commands with several names, and guessed
// commands.
class ExpectedCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_window = std::make_unique<DraftWindow>();
    }
    void cleanup()
    {
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void wellKnownAndBoundOnesAreExpected();
    void anExpectedCommandIsOffered();
    void itTakesNoNameFromOthers();
    void itIsTakenUpByItsAction_data();
    void itIsTakenUpByItsAction();
    void whatIsThereIsNotExpected();
    void anotherNameMayTurnUpLater();
    void theFirstThatCanBeUsedRuns();
    void guessesFillWhatTheProfileLeavesOut();
    void aGuessTakesUpWhatIsExpected();
    void withoutGuessesNothingIsGuessed();
    void guessesStayWhenMenusAreRebuilt();
    void guessesMayComeLate();
    void whatIsLackingIsOfferedOnceItComes();
    void whatNobodyGuessesIsNotLacking();
    void theFirstActionThatTheProfileNamesIsExpected();
    void twoThatAreRememberedWithOneActionAreOne();
    void whatNobodyHasEverSeenIsDropped();
    void whatATaskDoesNotHaveIsDropped();
    void whatHasJustComeIsNotDropped();
    void trustedCommandsStay();
    void theProgramsNameIsThatOfItsProfile_data();
    void theProgramsNameIsThatOfItsProfile();

private:
    std::unique_ptr<DraftWindow> m_window;
};

void ExpectedCommandsTest::wellKnownAndBoundOnesAreExpected()
{
    const gesturewidget::SettingsFile::Values settings{
        {QStringLiteral("GestureWidget/41"), QStringLiteral("Draft_Circle")},
        {QStringLiteral("GestureWidget/87"), QStringLiteral("Draw/Arcs/By centre")},
        {QStringLiteral("GestureWidget/88"), QString()},
        {QStringLiteral("GestureWidget/ActiveScheme"), QStringLiteral("8")},
        {QStringLiteral("GestureWidget/EnableMouseGesture"), QStringLiteral("1")},
        {QStringLiteral("Window/41"), QStringLiteral("large")},
    };
    const QMap<QString, QString> expected =
        expectedCommands({{kLine, {QStringLiteral("Draft_Line")}}}, settings);
    QCOMPARE(expected, (QMap<QString, QString>{
                           {kLine, QStringLiteral("Line")},
                           {QStringLiteral("Draft_Circle"), QStringLiteral("Draft_Circle")},
                           {QStringLiteral("Draw/Arcs/By centre"), QStringLiteral("By centre")}}));
}

void ExpectedCommandsTest::anExpectedCommandIsOffered()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.expect(QStringLiteral("drawSpline"), QStringLiteral("Spline"));
    catalogue.expect(QString(), QStringLiteral("Nothing"));
    const ActionItem *item = catalogue.find(QStringLiteral("drawSpline"));
    QVERIFY(item);
    QCOMPARE(caption(item), QStringLiteral("Spline"));
    QVERIFY(!item->here.isPresent);
    QVERIFY(!item->isUsable());
    int count = 0;
    for (const auto &group : catalogue.groups())
        count += static_cast<int>(std::count(group->items.begin(), group->items.end(), item));
    QCOMPARE(count, 1);
    // Also after the menus have been read.
    catalogue.expect(QStringLiteral("drawHatch"), QStringLiteral("Hatch"));
    QVERIFY(catalogue.find(QStringLiteral("drawHatch")));
    QCOMPARE(catalogue.find(QString()), nullptr);
}

// Commands of one caption are told apart by their menus, but nobody knows the menu of this one.
void ExpectedCommandsTest::itTakesNoNameFromOthers()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.expect(QStringLiteral("sketchLine"), QStringLiteral("Line"));
    QVERIFY(isOffered(catalogue, QStringLiteral("sketchLine")));
    QCOMPARE(caption(catalogue.find(QStringLiteral("drawLine"))), QStringLiteral("Line"));
    QCOMPARE(caption(catalogue.find(QStringLiteral("sketchLine"))), QStringLiteral("Line"));
}

void ExpectedCommandsTest::itIsTakenUpByItsAction_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<WellKnown>("wellKnown");
    QTest::newRow("by object name") << QStringLiteral("drawSpline") << WellKnown();
    QTest::newRow("well known, by object name")
        << kLine << WellKnown{{kLine, {QStringLiteral("drawSpline")}}};
    QTest::newRow("well known, by captions")
        << kLine << WellKnown{{kLine, {QStringLiteral("Draw/Spline")}}};
    QTest::newRow("well known, by its second name")
        << kLine << WellKnown{{kLine, {QStringLiteral("none"), QStringLiteral("drawSpline")}}};
}

void ExpectedCommandsTest::itIsTakenUpByItsAction()
{
    QFETCH(QString, identifier);
    QFETCH(WellKnown, wellKnown);
    CommandCatalogue catalogue(m_window.get(), wellKnown);
    catalogue.expect(identifier, QStringLiteral("Expected"));
    ActionItem *item = catalogue.find(identifier);
    QVERIFY(item);
    QAction *spline = DraftWindow::addAction(m_window->draw, "&Spline", "drawSpline");
    QCOMPARE(catalogue.find(identifier), item);
    QCOMPARE(catalogue.find(QStringLiteral("drawSpline")), item);
    QCOMPARE(catalogue.itemOf(spline), item);
    QCOMPARE(id(item), identifier);
    QCOMPARE(caption(item), QStringLiteral("Spline"));
    QVERIFY(item->isUsable());
}

void ExpectedCommandsTest::whatIsThereIsNotExpected()
{
    CommandCatalogue catalogue(m_window.get(), {});
    const ActionItem *line = catalogue.find(QStringLiteral("drawLine"));
    catalogue.expect(QStringLiteral("drawLine"), QStringLiteral("Expected"));
    QCOMPARE(catalogue.find(QStringLiteral("drawLine")), line);
    QCOMPARE(caption(line), QStringLiteral("Line"));
}

// The second name takes the identifier. When the first one appears, it is a separate command.
void ExpectedCommandsTest::anotherNameMayTurnUpLater()
{
    CommandCatalogue catalogue(m_window.get(),
                               {{kLine, {QStringLiteral("sketchLine"), QStringLiteral("drawLine")}}});
    catalogue.expect(kLine, QStringLiteral("Line"));
    QCOMPARE(id(catalogue.itemOf(m_window->line)), kLine);
    QAction *sketch = DraftWindow::addAction(m_window->file, "Sketch line", "sketchLine");
    QCOMPARE(id(catalogue.itemOf(sketch)), QStringLiteral("sketchLine"));
    QCOMPARE(catalogue.find(QStringLiteral("sketchLine")), catalogue.itemOf(sketch));
    QCOMPARE(id(catalogue.itemOf(m_window->line)), kLine);
}

void ExpectedCommandsTest::theFirstThatCanBeUsedRuns()
{
    QAction *sketch = DraftWindow::addAction(m_window->file, "Sketch line", "sketchLine");
    CommandCatalogue catalogue(m_window.get(),
                               {{kLine, {QStringLiteral("sketchLine"), QStringLiteral("drawLine")}}});
    gesturewidget::CommandStack stack;
    gesturewidget::TextOutput output(m_window.get());
    gesturewidget::CommandRunner runner(stack, catalogue, output, nullptr);
    QSignalSpy sketches(sketch, &QAction::triggered);
    QSignalSpy lines(m_window->line, &QAction::triggered);
    const auto ran = [&] { return qMakePair(int(sketches.count()), int(lines.count())); };

    QVERIFY(runner.run(kLine, true)->IsFound());
    QCOMPARE(ran(), qMakePair(1, 0));
    sketch->setEnabled(false);
    QVERIFY(runner.run(kLine, true)->IsFound());
    QCOMPARE(ran(), qMakePair(1, 1));
    sketch->setEnabled(true);
    QVERIFY(runner.run(kLine, true)->IsFound());
    QCOMPARE(ran(), qMakePair(2, 1));
    m_window->file->removeAction(sketch);
    QVERIFY(runner.run(kLine, true)->IsFound());
    QCOMPARE(ran(), qMakePair(2, 2));
    m_window->line->setEnabled(false);
    QVERIFY(!runner.run(kLine, true)->IsFound());
    QCOMPARE(ran(), qMakePair(2, 2));
}

void ExpectedCommandsTest::guessesFillWhatTheProfileLeavesOut()
{
    QAction *trim = DraftWindow::addAction(m_window->draw, "Trim", "cutOff");
    CommandCatalogue catalogue(m_window.get(), {{kLine, {QStringLiteral("drawCircle")}}});
    catalogue.guessWellKnown();
    QCOMPARE(id(catalogue.itemOf(m_window->fileOpen)), QStringLiteral("ID_OPEN"));
    QCOMPARE(id(catalogue.itemOf(trim)), QStringLiteral("ID_TRIM"));
    QCOMPARE(catalogue.reasonFor(QStringLiteral("ID_TRIM")).english(),
             QStringLiteral("caption \"Trim\""));
    // Nothing is guessed that the profile says.
    QCOMPARE(id(catalogue.itemOf(m_window->circle)), kLine);
    QCOMPARE(id(catalogue.itemOf(m_window->line)), QStringLiteral("drawLine"));
    QVERIFY(catalogue.reasonFor(kLine).isEmpty());
    QCOMPARE(catalogue.find(QStringLiteral("fileOpen")), catalogue.find(QStringLiteral("ID_OPEN")));
}

void ExpectedCommandsTest::aGuessTakesUpWhatIsExpected()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.guessWellKnown();
    catalogue.expect(QStringLiteral("ID_TRIM"), QStringLiteral("Trim"));
    const ActionItem *expected = catalogue.find(QStringLiteral("ID_TRIM"));
    QVERIFY(expected && !expected->here.isPresent);
    QAction *trim = DraftWindow::addAction(m_window->draw, "Trim", "cutOff");
    QCOMPARE(catalogue.itemOf(trim), expected);
    QAction *second = DraftWindow::addAction(m_window->draw, "Trim", "cutMore");
    QCOMPARE(id(catalogue.itemOf(second)), QStringLiteral("cutMore"));
}

void ExpectedCommandsTest::withoutGuessesNothingIsGuessed()
{
    CommandCatalogue catalogue(m_window.get(), {});
    QCOMPARE(id(catalogue.itemOf(m_window->line)), QStringLiteral("drawLine"));
    QCOMPARE(catalogue.find(kLine), nullptr);
}

void ExpectedCommandsTest::guessesStayWhenMenusAreRebuilt()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.guessWellKnown();
    const ActionItem *line = catalogue.find(kLine);
    QVERIFY(line);
    QCOMPARE(line->action(), m_window->line);
    delete m_window->line;
    m_window->line = nullptr;
    QCOMPARE(catalogue.find(kLine), line);
    QVERIFY(!line->isUsable());
    QAction *again = DraftWindow::addAction(m_window->draw, "&Line", "drawLine");
    QCOMPARE(catalogue.itemOf(again), line);
    QCOMPARE(id(line), kLine);
    QVERIFY(line->isUsable());
}

// A program may show only some of its menus until a drawing is open.
void ExpectedCommandsTest::guessesMayComeLate()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.guessWellKnown();
    QVERIFY(isOffered(catalogue, kTrim));
    QCOMPARE(caption(catalogue.find(kTrim)), QStringLiteral("Trim"));
    QAction *trim = DraftWindow::addAction(m_window->draw, "Trim", "cutOff");
    QCOMPARE(id(catalogue.itemOf(trim)), kTrim);
    catalogue.endGuessing();
    QVERIFY(isOffered(catalogue, kTrim));
    QVERIFY(isOffered(catalogue, kLine));
    // As when a menu is rebuilt.
    delete trim;
    QVERIFY(isOffered(catalogue, kTrim));
}

void ExpectedCommandsTest::whatIsLackingIsOfferedOnceItComes()
{
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.expect(kTrim, QStringLiteral("Trim")); // bound at the last start
    catalogue.guessWellKnown();
    catalogue.endGuessing();
    QVERIFY(!isOffered(catalogue, kTrim));
    QVERIFY(!isOffered(catalogue, QStringLiteral("ID_OFFSET")));
    QVERIFY(isOffered(catalogue, kLine));
    QAction *trim = DraftWindow::addAction(m_window->draw, "Trim", "cutOff");
    QCOMPARE(id(catalogue.itemOf(trim)), kTrim);
    QVERIFY(isOffered(catalogue, kTrim));
}

void ExpectedCommandsTest::whatNobodyGuessesIsNotLacking()
{
    CommandCatalogue described(m_window.get(), {{kTrim, {QStringLiteral("modifyTrim")}}});
    described.expect(kTrim, QStringLiteral("Trim"));
    described.guessWellKnown();
    described.endGuessing();
    QVERIFY(isOffered(described, kTrim));
    CommandCatalogue unguessed(m_window.get(), {});
    unguessed.expect(kTrim, QStringLiteral("Trim"));
    unguessed.endGuessing();
    QVERIFY(isOffered(unguessed, kTrim));
}

void ExpectedCommandsTest::theFirstActionThatTheProfileNamesIsExpected()
{
    const QString trim = QStringLiteral("ID_TRIM");
    CommandCatalogue catalogue(m_window.get(),
                               {{trim, {QStringLiteral("modifyTrim"), QStringLiteral("editTrim")}}});
    catalogue.expect(trim, trim);
    QCOMPARE(catalogue.find(trim)->key(), QStringLiteral("modifyTrim"));
}

// Somebody may have edited the list.
void ExpectedCommandsTest::twoThatAreRememberedWithOneActionAreOne()
{
    CommandCatalogue catalogue(m_window.get(), {});
    RememberedCommand first;
    first.identifier = QStringLiteral("first");
    first.command = QStringLiteral("drawSpline");
    RememberedCommand second = first;
    second.identifier = QStringLiteral("second");
    QVERIFY(!isOffered(catalogue, QStringLiteral("first")));
    catalogue.remember({first, second});
    QVERIFY(isOffered(catalogue, QStringLiteral("first"))); // at once
    QVERIFY(!catalogue.find(QStringLiteral("second")));
}

// Such as a typing error before the first start.
void ExpectedCommandsTest::whatNobodyHasEverSeenIsDropped()
{
    const QString mistyped = QStringLiteral("drawArcc");
    const QString remembered = QStringLiteral("drawSpline");
    CommandCatalogue catalogue(m_window.get(), {});
    RememberedCommand spline;
    spline.identifier = remembered;
    catalogue.remember({spline});
    for (const QString &identifier : {mistyped, remembered, QStringLiteral("drawArc")})
        catalogue.expect(identifier, identifier);
    QSignalSpy dropped(&catalogue, &CommandCatalogue::dropped);
    QVERIFY(isOffered(catalogue, mistyped)); // more menus may come
    catalogue.endGuessing();
    QVERIFY(!isOffered(catalogue, mistyped));
    QVERIFY(isOffered(catalogue, remembered));
    QVERIFY(isOffered(catalogue, QStringLiteral("drawArc")));
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().toStringList(), QStringList(mistyped));
    catalogue.endGuessing();
    QCOMPARE(dropped.count(), 1);
    // It was right, and came late.
    QAction *arc = DraftWindow::addAction(m_window->draw, "Arcc", "drawArcc");
    QCOMPARE(id(catalogue.itemOf(arc)), mistyped);
    QVERIFY(isOffered(catalogue, mistyped));
}

// In a program that changes its menus, only the task that a command belongs to can tell.
void ExpectedCommandsTest::whatATaskDoesNotHaveIsDropped()
{
    const QString mistyped = QStringLiteral("draw_Arcc");
    const QString ofAnother = QStringLiteral("solid_Pad");
    const QString remembered = QStringLiteral("draw_Spline");
    const QString imported = QStringLiteral("draw_Wire");
    const QString described = QStringLiteral("draw_Trim");
    CommandCatalogue catalogue(m_window.get(), {{described, {QStringLiteral("modify_Trim")}}});
    RememberedCommand spline;
    spline.identifier = remembered;
    catalogue.remember({spline});
    const QStringList others{ofAnother, remembered, imported, described};
    const auto identifiers = others + QStringList(mistyped);
    for (const QString &identifier : identifiers)
        catalogue.expect(identifier, identifier);
    catalogue.trust({imported});
    catalogue.trustAll();
    QSignalSpy dropped(&catalogue, &CommandCatalogue::dropped);
    catalogue.endGuessing();
    QVERIFY(isOffered(catalogue, mistyped)); // its task was not on yet
    catalogue.dropUnseen(QStringLiteral("solid_Other"));
    QCOMPARE(dropped.count(), 0);
    catalogue.dropUnseen(QStringLiteral("draw_"));
    QVERIFY(!isOffered(catalogue, mistyped));
    for (const QString &identifier : others)
        QVERIFY2(isOffered(catalogue, identifier), qPrintable(identifier));
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().toStringList(), QStringList(mistyped));
    catalogue.dropUnseen(QStringLiteral("draw_"));
    QCOMPARE(dropped.count(), 1);
    // It was right, and came late.
    DraftWindow::addAction(m_window->draw, "Arcc", "draw_Arcc");
    QVERIFY(isOffered(catalogue, mistyped));
}

// The menus may have changed since they were last read.
void ExpectedCommandsTest::whatHasJustComeIsNotDropped()
{
    const QString spline = QStringLiteral("drawSpline");
    for (const bool isByTask : {false, true}) {
        CommandCatalogue catalogue(m_window.get(), {});
        catalogue.expect(spline, spline);
        QVERIFY(isOffered(catalogue, spline));
        const QSignalSpy dropped(&catalogue, &CommandCatalogue::dropped);
        const std::unique_ptr<QAction> action(
            DraftWindow::addAction(m_window->draw, "Spline", "drawSpline"));
        if (isByTask)
            catalogue.dropUnseen(QStringLiteral("draw"));
        else
            catalogue.endGuessing();
        QCOMPARE(dropped.count(), 0);
        QVERIFY(isOffered(catalogue, spline));
    }
}

void ExpectedCommandsTest::trustedCommandsStay()
{
    const QString imported = QStringLiteral("Sketch/Line");
    CommandCatalogue catalogue(m_window.get(), {});
    catalogue.expect(imported, QStringLiteral("Line"));
    catalogue.trust(gesturewidget::trustedCommands(
        {{QStringLiteral("Host/Imported"), QStringLiteral("drawArc\nSketch/Line")}}));
    catalogue.endGuessing();
    QVERIFY(isOffered(catalogue, imported));
    CommandCatalogue other(m_window.get(), {});
    other.expect(imported, QStringLiteral("Line"));
    other.trustAll(); // the list of remembered commands cannot be read
    other.endGuessing();
    QVERIFY(isOffered(other, imported));
}

void ExpectedCommandsTest::theProgramsNameIsThatOfItsProfile_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *title, const char *typed, const char *file, const char *name) {
        QTest::newRow(title) << QString::fromLatin1(typed) << QString::fromLatin1(file)
                             << QString::fromLatin1(name);
    };
    row("typed", "drafter", "/usr/lib/drafter/bin/drafter-5", "drafter");
    row("typed with folder", "/usr/bin/Drafter", "/usr/lib/drafter/bin/drafter-5", "drafter");
    row("file", "start", "/opt/Drafter", "drafter");
    row("both", "sketcher", "/opt/drafter", "sketcher");
    row("neither", "start", "/opt/Painter", "painter");
    row("started by a script", "/usr/bin/painter", "/usr/bin/painter.bin", "painter");
    row("of a profile, started by a script", "/usr/bin/drafter", "/usr/lib/drafter-bin", "drafter");
    row("its other file", "start", "/opt/drafter.real", "drafter");
    row("nothing but the ending", "start", "/opt/.bin", ".bin");
    row("a script", "/usr/bin/plotter", "/usr/bin/python3.11", "plotter");
    row("a script with its ending", "src/Plotter.py", "/usr/bin/python3", "plotter");
    row("a script of the shell", "src/Plotter.sh", "/usr/bin/python3", "plotter");
    row("an interpreter alone", "", "/usr/bin/python3", "python3");
    row("nothing typed", "", "/opt/drafter", "drafter");
}

void ExpectedCommandsTest::theProgramsNameIsThatOfItsProfile()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, name);
    QTemporaryDir folder;
    for (const char *profile : {"drafter.json", "sketcher.json"})
        tests::writeFile(folder.filePath(QLatin1String(profile)), {});
    QCOMPARE(gesturewidget::chooseProgramName(typed, file, {QString(), folder.path()}), name);
}

QTEST_MAIN(ExpectedCommandsTest)
#include "tst_expectedcommands.moc"
