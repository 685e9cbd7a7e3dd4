// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Entries of lists are no commands: the catalogue does not offer them.

#include "host/commands/CommandCatalogue.h"
#include "host/commands/ListEntries.h"
#include "tests/host/support/Texts.h"
#include "tests/support/FatalWarnings.h"

#include <QActionGroup>
#include <QDialog>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QUndoStack>

#include <functional>
#include <vector>

using gesturewidget::ActionItem;
using gesturewidget::CommandCatalogue;
using tests::text;

namespace {

// A program with the command "&Close" in its menu "&Window".
struct Program
{
    Program()
    {
        window.setWindowTitle(QStringLiteral("plan[*] - Draft"));
        window.setCentralWidget(&area);
        menu = window.menuBar()->addMenu(QStringLiteral("&Window"));
        menu->addAction(QStringLiteral("&Close"));
    }
    ~Program() { area.setParent(nullptr); }
    Q_DISABLE_COPY_MOVE(Program)

    QMenu *submenu(const char *title) { return menu->addMenu(QString::fromUtf8(title)); }

    QMainWindow window;
    QMdiArea area;
    QMenu *menu = nullptr;
};

// "name | name | ..." of the commands that are offered.
QString offered(CommandCatalogue &catalogue)
{
    QStringList names;
    for (const auto &group : catalogue.groups()) {
        for (const auto *item : group->items)
            names.append(text(item->GetCaption()));
    }
    return names.join(QStringLiteral(" | "));
}

class Step : public QUndoCommand
{
public:
    explicit Step(const char *name)
        : QUndoCommand(QString::fromUtf8(name))
    {
    }
};

using Fill = std::function<void(Program &)>;

} // namespace

Q_DECLARE_METATYPE(Fill)

class ListEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void menus_data();
    void menus();
    void anActionThatBecomesADocument();
    void aBoundEntryIsOffered();
    void undoHasOneName();
    void aCaptionLastsWithoutItsDocument_data();
    void aCaptionLastsWithoutItsDocument();
    void aStepIsKnownByItsShortcut();
};

void ListEntriesTest::menus_data()
{
    QTest::addColumn<Fill>("fill");
    QTest::addColumn<QString>("commands");
    const auto row = [](const char *name, const Fill &fill, const char *commands) {
        QTest::newRow(name) << fill << QString::fromUtf8(commands);
    };
    const auto entries = [](const std::vector<const char *> &captions) {
        return [captions](Program &p) {
            for (const char *caption : captions)
                p.menu->addAction(QString::fromUtf8(caption));
        };
    };
    row("a command", entries({"&Tile"}), "Close | Tile");
    row("a document", entries({"plan.dxf"}), "Close");
    row("a path", entries({"/home/anna/plan"}), "Close");
    row(
        "a document with a name of its own",
        [](Program &p) {
            p.menu->addAction(QStringLiteral("plan.dxf"))->setObjectName(QStringLiteral("recent1"));
        },
        "Close");
    row("numbers that begin with one", entries({"&1 house", "&2 garden"}), "Close");
    row(
        "no number",
        [](Program &p) {
            p.menu->actions().constFirst()->setData(4);
            p.menu->addAction(QStringLiteral("Tile"))->setData(5);
        },
        "Close | Tile");
    row("two lists that begin with one", entries({"&1 house", "&1 garden"}), "Close");
    row("numbers that begin with nought", entries({"&0 house", "&1 garden"}), "Close");
    row("nought behind one", entries({"&1 house", "&0 garden"}), "Close");
    row(
        "a title behind a number, and one that has a number",
        [](Program &p) {
            p.area.addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("House"));
            p.area.addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("12 Garden"));
            p.menu->addAction(QStringLiteral("11 House"));
            p.menu->addAction(QStringLiteral("12 Garden"));
        },
        "Close");
    row("numbers among which are documents", entries({"&1 plan.dxf", "&2 garden"}), "Close");
    row("numbers that are captions", entries({"&2 Points", "&3 Points", "1 Stud"}),
        "Close | 2 Points | 3 Points | 1 Stud");
    row(
        "numbers of named actions",
        [](Program &p) {
            p.menu->addAction(QStringLiteral("&1 Point"))->setObjectName(QStringLiteral("point1"));
            p.menu->addAction(QStringLiteral("&2 Points"))->setObjectName(QStringLiteral("point2"));
        },
        "Close | 1 Point | 2 Points");
    row("the title of the window", entries({"plan - Draft"}), "Close");
    row(
        "the title of a dialog",
        [](Program &p) {
            (new QDialog(&p.window))->setWindowTitle(QStringLiteral("Options"));
            p.menu->addAction(QStringLiteral("Options"));
        },
        "Close | Options");
    for (const bool isLongEnough : {true, false}) {
        const QString title = isLongEnough ? QStringLiteral("Hut") : QStringLiteral("Up");
        row(
            isLongEnough ? "a title of three letters" : "a title of two letters",
            [title](Program &p) {
                p.area.addSubWindow(new QWidget)->setWindowTitle(title);
                p.menu->addAction(title);
            },
            isLongEnough ? "Close" : "Close | Up");
    }
    row(
        "a window inside that holds nothing",
        [](Program &p) {
            p.area.addSubWindow(new QMdiSubWindow)->setWindowTitle(QStringLiteral("Untitled project"));
            p.menu->addAction(QStringLiteral("Untitled project"));
        },
        "Close");
    row(
        "a title that begins with the mark of a change",
        [](Program &p) {
            p.window.setWindowTitle(QStringLiteral("**Untitled project"));
            p.menu->addAction(QStringLiteral("Untitled project"));
            p.menu->addAction(QStringLiteral("*Untitled project*"));
            p.menu->addAction(QStringLiteral("*Untitled project**"));
        },
        "Close");
    row(
        "a command with an icon alone, among recent documents",
        [](Program &p) {
            QAction *clear = p.submenu("Open &Recent")->addAction(QString());
            clear->setToolTip(QStringLiteral("Clear"));
            clear->setObjectName(QStringLiteral("clearRecent"));
        },
        "Close | Open Recent > Clear");
    row(
        "a command with an icon alone and without a name",
        [](Program &p) {
            p.submenu("Open &Recent")->addAction(QString())->setToolTip(QStringLiteral("Clear"));
        },
        "Close | Open Recent > Clear");
    row(
        "a window inside with another title than its widget",
        [](Program &p) {
            auto *widget = new QWidget;
            QMdiSubWindow *around = p.area.addSubWindow(widget);
            widget->setWindowTitle(QStringLiteral("Untitled project"));
            around->setWindowTitle(QStringLiteral("First window"));
            p.menu->addAction(QStringLiteral("Untitled project"));
        },
        "Close");
    row(
        "numbers without a mnemonic",
        [](Program &p) {
            p.menu->addAction(QStringLiteral("1 house"))->setData(1);
            p.menu->addAction(QStringLiteral("2 garden"))->setData(2);
        },
        "Close");
    row(
        "the title of a window inside",
        [](Program &p) {
            p.area.addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("Untitled project[*]"));
            p.menu->addAction(QStringLiteral("Untitled project *"));
        },
        "Close");
    row(
        "a menu for one window",
        [](Program &p) {
            p.area.addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("Untitled"));
            p.submenu("Untitled")->addAction(QStringLiteral("Main window"));
        },
        "Close");
    row(
        "a menu for one document",
        [](Program &p) { p.submenu("streets.osm")->addAction(QStringLiteral("Zoom")); }, "Close");
    row(
        "a menu with an icon for one window",
        [](Program &p) {
            p.area.addSubWindow(new QWidget)->setWindowTitle(QStringLiteral("Untitled"));
            QMenu *menu = p.submenu("Untitled");
            QPixmap icon(16, 16);
            icon.fill(Qt::black);
            menu->setIcon(QIcon(icon));
            menu->addAction(QStringLiteral("Main window"));
        },
        "Close");
    row(
        "recent documents",
        [](Program &p) {
            QMenu *recent = p.submenu("Open &Recent");
            recent->addAction(QStringLiteral("plan"));
            recent->addAction(QStringLiteral("Clear List"))->setObjectName(QStringLiteral("clear"));
        },
        "Close | Open Recent > Clear List");
    row(
        "recent documents in German",
        [](Program &p) { p.submenu("&Zuletzt geöffnet")->addAction(QStringLiteral("plan")); }, "Close");
    row(
        "layers",
        [](Program &p) {
            QMenu *layers = p.submenu("Send to &Layer");
            layers->addAction(QStringLiteral("Background"))->setCheckable(true);
            layers->addAction(QStringLiteral("New Layer..."));
        },
        "Close | Send to Layer > New Layer");
    row(
        "steps to undo",
        [](Program &p) {
            auto *bar = p.window.addToolBar(QStringLiteral("Edit"));
            auto *steps = new QMenu(QStringLiteral("&Undo"), bar);
            steps->addAction(QStringLiteral("Add Property"));
            steps->addAction(QStringLiteral("Move 0 Object(s)"));
            bar->addAction(steps->menuAction());
        },
        "Close");
}

void ListEntriesTest::menus()
{
    QFETCH(Fill, fill);
    QFETCH(QString, commands);
    Program program;
    fill(program);
    CommandCatalogue catalogue(&program.window, {});
    QCOMPARE(offered(catalogue), commands);
}

// Some programs keep an action for each recent document.
void ListEntriesTest::anActionThatBecomesADocument()
{
    Program program;
    QAction *slot = program.menu->addAction(QStringLiteral("Recent 1"));
    slot->setObjectName(QStringLiteral("recent1"));
    CommandCatalogue catalogue(&program.window, {});
    QCOMPARE(offered(catalogue), QStringLiteral("Close | Recent 1"));
    slot->setText(QStringLiteral("~/plan.dxf"));
    QCOMPARE(offered(catalogue), QStringLiteral("Close"));
    slot->setText(QStringLiteral("Recent 1"));
    QCOMPARE(offered(catalogue), QStringLiteral("Close | Recent 1"));
}

void ListEntriesTest::aBoundEntryIsOffered()
{
    Program program;
    QAction *plan = program.submenu("Open Recent")->addAction(QStringLiteral("plan.dxf"));
    CommandCatalogue catalogue(&program.window, {});
    catalogue.expect(QStringLiteral("Window/Open Recent/plan.dxf"), QStringLiteral("plan.dxf"));
    const ActionItem *item = catalogue.find(QStringLiteral("Window/Open Recent/plan.dxf"));
    QVERIFY(item);
    QCOMPARE(item->action(), plan);
    QVERIFY(item->isUsable());
    QVERIFY(item->here.isListEntry); // so it is not remembered
    QCOMPARE(offered(catalogue), QStringLiteral("Close | Open Recent > plan.dxf"));
}

void ListEntriesTest::undoHasOneName()
{
    Program program;
    QUndoStack stack;
    stack.push(new Step("Add Property"));
    QAction *undo = stack.createUndoAction(&program.window);
    if (!undo->inherits("QUndoAction"))
        undo->setShortcut(QKeySequence::Undo); // Qt 6 has no such class, but programs set the key
    QAction *other = new QAction(QStringLiteral("Undo Everything"), &program.window);
    program.menu->addAction(undo);
    program.menu->addAction(other);
    CommandCatalogue catalogue(&program.window, {});
    QCOMPARE(offered(catalogue), QStringLiteral("Close | Undo | Undo Everything"));
    stack.push(new Step("Move 0 Object(s)"));
    QCOMPARE(offered(catalogue), QStringLiteral("Close | Undo | Undo Everything"));
    const ActionItem *item = catalogue.itemOf(undo);
    QVERIFY(item);
    QCOMPARE(text(item->GetIdentifier()), QStringLiteral("Window/Undo"));
}

void ListEntriesTest::aCaptionLastsWithoutItsDocument_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("lasting");
    QTest::newRow("a document") << "Close \"plan.dxf\""
                                << "Close";
    QTest::newRow("English marks") << QString::fromUtf8("Close “plan.dxf”") << "Close";
    QTest::newRow("German marks") << QString::fromUtf8("„plan.dxf“ schließen")
                                  << QString::fromUtf8("schließen");
    QTest::newRow("German marks at the end")
        << QString::fromUtf8("Schließen von „plan.dxf“") << QString::fromUtf8("Schließen von");
    QTest::newRow("marks that point inwards")
        << QString::fromUtf8("»plan.dxf« schließen") << QString::fromUtf8("schließen");
    QTest::newRow("an apostrophe inside") << QString::fromUtf8("Close “Anna's plan.dxf”") << "Close";
    QTest::newRow("a typographic apostrophe inside")
        << QString::fromUtf8("Close ‘Anna’s plan.dxf’") << "Close";
    QTest::newRow("French marks") << QString::fromUtf8("Fermer « plan.dxf »") << "Fermer";
    QTest::newRow("French marks with narrow spaces")
        << QString::fromUtf8("Fermer «\u202fplan.dxf\u202f»") << "Fermer";
    QTest::newRow("Japanese marks") << QString::fromUtf8("「plan.dxf」を閉じる")
                                    << QString::fromUtf8("を閉じる");
    QTest::newRow("in the middle") << "Save \"plan.dxf\" as template"
                                   << "Save as template";
    QTest::newRow("behind something else") << "Insert \"Title\" from \"frame.dxf\""
                                           << "Insert \"Title\" from";
    QTest::newRow("an apostrophe") << "Don't save 'plan.dxf'"
                                   << "Don't save";
    QTest::newRow("nothing else") << "\"plan.dxf\""
                                  << "\"plan.dxf\"";
    QTest::newRow("something else") << "Insert \"Title\" from frame.dxf"
                                    << "Insert \"Title\" from frame.dxf";
    QTest::newRow("no document") << "Insert \"Title\""
                                 << "Insert \"Title\"";
}

void ListEntriesTest::aCaptionLastsWithoutItsDocument()
{
    QFETCH(QString, caption);
    const QAction action(caption);
    QTEST(gesturewidget::lastingCaption(action, caption), "lasting");
}

void ListEntriesTest::aStepIsKnownByItsShortcut()
{
    const QString caption = QStringLiteral("Undo Line");
    QAction action(caption);
    QCOMPARE(gesturewidget::lastingCaption(action, caption), caption);
    action.setShortcut(QKeySequence(Qt::Key_F5));
    QCOMPARE(gesturewidget::lastingCaption(action, caption), caption);
    action.setShortcut(QKeySequence::Undo);
    QCOMPARE(gesturewidget::lastingCaption(action, caption), QStringLiteral("Undo"));
    for (const char *other : {"Undo", "Undoing", "Back Two Steps", "B", ""})
        QCOMPARE(gesturewidget::lastingCaption(action, QLatin1String(other)), QLatin1String(other));
}

QTEST_MAIN(ListEntriesTest)
#include "tst_listentries.moc"
