// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "host/menus/UiCommandItemCollection.h"
#include "host/menus/UiManager.h"
#include "sdk/chx/CHxUIMenu.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/Texts.h"
#include "tests/support/FatalWarnings.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <memory>
#include <new>

using gesturewidget::CommandCatalogue;
using gesturewidget::UiManager;
using tests::DraftWindow;
using tests::text;

namespace {

QStringList captions(const QWidget &menu)
{
    QStringList list;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions)
        list.append(action->text());
    return list;
}

QStringList identifiers(const CHxUIMenuItemCollection &items)
{
    QStringList list;
    for (int i = 0; i < items.GetCount(); ++i)
        list.append(text(items.GetItem(i)->GetIdentifier()));
    return list;
}

// Walks all menus below, as the host itself does some time after a change.
void walk(const CHxUIMenuItemCollection *items)
{
    for (int i = 0; items && i < items->GetCount(); ++i) {
        const CHxUIMenuItem *item = items->GetItem(i);
        QVERIFY(item);
        walk(item->GetSubItems());
    }
}

QStringList words(const char *list)
{
    return QString::fromUtf8(list).split(QLatin1Char(' '));
}

} // namespace

class UiManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_window = std::make_unique<DraftWindow>();
        m_tools = m_window->addMenu("&Tools", "toolsMenu");
        DraftWindow::addAction(m_tools, "&Options...", "toolsOptions");
        start();
    }
    void cleanup()
    {
        m_manager.reset();
        m_catalogue.reset();
        m_window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void oneWorkspaceIsCurrent();
    void menuBarsAreWalked();
    void everyItemNamesItsCommand();
    void anItemFollowsItsAction();
    void topLevelMenusHaveIdentifiers();
    void theToolsMenuIsFound_data();
    void theToolsMenuIsFound();
    void aToolsMenuIsMade();
    void aMadeToolsMenuGivesWayToTheProgramsOwn();
    void readingMakesNoToolsMenu();
    void anEntryIsPutLastAtOnce();
    void anEntryRunsItsCommandsMacro();
    void entriesKeepTheirOrder();
    void anEntryIsInOnePlace();
    void aGoneMenuTakesNoEntry();
    void anEntryIsTakenOut();
    void anEntryCanBeFoundByItsText();
    void strangersAreIgnored();
    void theProgramsOwnItemsAreReadOnly();
    void commandItemsAreFound();
    void commandItemsAreRemoved();
    void theWorkspaceListsItsCommands();
    void anEntrysOwnTipIsShown();
    void anEntryInItsPlaceIsNotMoved();
    void aClearedMenuGetsItsEntryBack();
    void aRefreshReadsWhatNobodyTold();
    void anActionAddedLaterComesBeforeTheEntry();
    void aMenuFilledOnOpeningShowsTheEntryLast();
    void aMenuIsWatchedOnce();
    void aMenuAtTheAddressOfAGoneOneIsWatched();
    void aReplacedToolsMenuGetsTheEntry();
    void aReplacedMenuBarGetsTheEntry();
    void twoWhoWantToBeLastDoNotFight();
    void whoIsLastAtOnceStaysLast();
    void theEntryIsNoCommandOfTheProgram();
    void everythingIsTakenOutAtTheEnd();
    void aWindowTakesOnlyItsOwnMenusAlong();
    void withoutAMenuBarAllIsEmpty();
    void theWindowMayGoFirst();
    void everyPartOfTheMenusIsOneObject();
    void objectsOfGoneMenusAreFreed();
    void objectsOfGoneMenuBarsAreFreed();
    void aWalkOutlivesTheMenusItWalks();
    void changedMenusAreReadBeforeSomebodyAsks();

private:
    void start(const QString &toolsMenu = {})
    {
        m_manager.reset();
        m_catalogue = std::make_unique<CommandCatalogue>(m_window.get(), QHash<QString, QStringList>());
        m_manager = std::make_unique<UiManager>(
            *m_catalogue, toolsMenu,
            [this](const QString &command, QWidget *) { m_run.append(command); });
        m_run.clear();
    }
    CHxUIWorkspace *workspace() const { return m_manager->NewWorkspaceIterator()->Current(); }
    CHxUIMenuItemCollection *menus() const { return workspace()->GetMenuItems(); }
    CHxUIMenuItem *menu(const char *identifier) const
    {
        const CHxUIMenuItemCollection *items = menus();
        for (int i = 0; i < items->GetCount(); ++i) {
            if (items->GetItem(i)->GetIdentifier() == CHxString(identifier))
                return items->GetItem(i);
        }
        return nullptr;
    }
    // Adds an entry to the Tools menu, as a module does.
    CHxUIMenuItem *enter(const char *name = "Gestures...")
    {
        CHxUICommandItem *command = m_manager->FindCommandItem("Default", "_CONFIG");
        if (!command) {
            command = m_manager->CreateCommandItem("_CONFIG", 0);
            command->SetName("Gestures");
            command->SetMacro("^C^C_GESTURE");
            command->SetStatusText("Customizes gestures");
        }
        workspace()->GetCommandItems()->Add(command);
        CHxUIMenuItem *entry = m_manager->CreateMenuItem(0, "", "", "");
        entry->SetCommandItem(command);
        entry->SetText(name);
        menu("ID_MnTools")->GetSubItems()->Append(entry);
        m_manager->Refresh(false);
        return entry;
    }

    std::unique_ptr<DraftWindow> m_window;
    QMenu *m_tools = nullptr;
    std::unique_ptr<CommandCatalogue> m_catalogue;
    std::unique_ptr<UiManager> m_manager;
    QStringList m_run;
};

void UiManagerTest::oneWorkspaceIsCurrent()
{
    const auto walk = m_manager->NewWorkspaceIterator();
    QVERIFY(!walk->Done());
    QCOMPARE(text(walk->Current()->GetName()), QStringLiteral("Default"));
    QVERIFY(walk->Current()->IsCurrent());
    QVERIFY(walk->Current()->GetCommandItems());
    QVERIFY(walk->Current()->GetMenuItems());
    walk->Next();
    QVERIFY(walk->Done());
    QCOMPARE(walk->Current(), nullptr);
}

void UiManagerTest::menuBarsAreWalked()
{
    const auto walk = m_manager->NewMenuIterator();
    QVERIFY(!walk->Done());
    const CHxUIMenuItemCollection *items = walk->Current()->GetItems();
    QVERIFY(items);
    QStringList texts;
    for (int i = 0; i < items->GetCount(); ++i)
        texts.append(text(items->GetItem(i)->GetText()));
    QCOMPARE(texts, words("&File &Draw &Help &Tools"));
    QCOMPARE(items->GetItem(-1), nullptr);
    QCOMPARE(items->GetItem(4), nullptr);
    walk->Next();
    QVERIFY(walk->Done());

    UiManager &manager = *m_manager;
    QCOMPARE(manager.menuBars().GetCount(), 1);
    QCOMPARE(text(manager.menuBars().GetItem(0)->GetText()), QString());
    QCOMPARE(manager.menuBars().GetItem(0)->GetSubItems(), items);
    QCOMPARE(manager.menuBars().GetItem(0)->GetCommandItem(), nullptr);
    QCOMPARE(manager.menuBars().GetItem(1), nullptr);
    QCOMPARE(manager.menuBars().GetItem(-1), nullptr);
}

void UiManagerTest::everyItemNamesItsCommand()
{
    const CHxUIMenuItem *file = menu("ID_MnFile");
    QVERIFY(file);
    QCOMPARE(file->GetCommandItem(), nullptr);
    const CHxUIMenuItemCollection *items = file->GetSubItems();
    QCOMPARE(items->GetCount(), 4);
    QCOMPARE(text(items->GetItem(0)->GetCommandItem()->GetCommandString()), QStringLiteral("fileNew"));
    QCOMPARE(text(items->GetItem(0)->GetIdentifier()), QStringLiteral("fileNew"));
    QCOMPARE(items->GetItem(0)->GetSubItems(), nullptr);
    QCOMPARE(text(items->GetItem(1)->GetText()), QStringLiteral("&Open...\tCtrl+O"));
    QCOMPARE(items->GetItem(2)->GetCommandItem(), nullptr); // the separator
    QCOMPARE(text(items->GetItem(2)->GetIdentifier()), QString());
    const CHxUIMenuItem *exports = items->GetItem(3);
    QCOMPARE(exports->GetCommandItem(), nullptr);
    QCOMPARE(exports->GetSubItems()->GetCount(), 2);
    QCOMPARE(exports->GetSubItems()->GetItem(0)->GetCommandItem(),
             m_catalogue->find(QStringLiteral("File/Export/Picture...")));
}

// A module that holds an item sees what its action is now.
void UiManagerTest::anItemFollowsItsAction()
{
    const CHxUIMenuItem *circle = menu("ID_MnDraw")->GetSubItems()->GetItem(1);
    const CHxUICommandItem *command = circle->GetCommandItem();
    QVERIFY(command);
    QCOMPARE(command, m_catalogue->find(QStringLiteral("drawCircle")));
    QMenu more;
    more.addAction(QStringLiteral("By &three points"));
    m_window->circle->setMenu(&more);
    QVERIFY(circle->GetSubItems());
    QCOMPARE(circle->GetSubItems()->GetCount(), 1);
    QCOMPARE(circle->GetCommandItem(), nullptr);
    m_window->circle->setMenu(nullptr);
    QCOMPARE(circle->GetCommandItem(), command);
    QCOMPARE(circle->GetSubItems(), nullptr);
    m_window->circle->setVisible(false);
    QCOMPARE(circle->GetCommandItem(), nullptr);
    m_window->circle->setVisible(true);
    QCOMPARE(circle->GetCommandItem(), command);
    m_window->draw->removeAction(m_window->circle);
    QCOMPARE(circle->GetCommandItem(), nullptr);
    m_window->help->addAction(m_window->circle);
    QCOMPARE(circle->GetCommandItem(), command);
    delete m_window->circle;
    QCOMPARE(circle->GetCommandItem(), nullptr);
    QCOMPARE(circle->GetSubItems(), nullptr);
}

void UiManagerTest::topLevelMenusHaveIdentifiers()
{
    m_window->menuBar()->addMenu(QStringLiteral("Power tools!"));
    m_window->addMenu("Second file", "fileMenu");
    m_window->addMenu("Other", "toolsMenu");
    m_window->menuBar()->addAction(QStringLiteral("Quit"))->setObjectName(QStringLiteral("quit"));
    m_window->menuBar()->addSeparator();
    m_window->addMenu("Hidden", "hiddenMenu")->menuAction()->setVisible(false);
    QCOMPARE(
        identifiers(*menus()),
        words("ID_MnFile ID_MnDraw ID_MnHelp ID_MnTools ID_MnPowertools ID_MnFile2 ID_MnTools2 quit"));
}

void UiManagerTest::theToolsMenuIsFound_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char *name, const char *objectName, const char *title,
                        const char *wanted) {
        QTest::newRow(name) << QString::fromUtf8(objectName) << QString::fromUtf8(title)
                            << QString::fromUtf8(wanted);
    };
    row("by caption", "", "&Tools", "");
    row("by object name", "tools_menu", "&Werkzeuge", "");
    row("by designer's name", "menuTools", "&Outils", "");
    row("by object name with a mnemonic", "&Tools", "&Strumenti", "");
    row("by the profile's object name", "extras", "E&xtras", "extras");
    row("by the profile's caption", "", "E&xtras", "Extras");
    row("in spite of the profile", "toolsMenu", "&Tools", "not there");
}

void UiManagerTest::theToolsMenuIsFound()
{
    QFETCH(QString, objectName);
    QFETCH(QString, title);
    QFETCH(QString, wanted);
    m_tools->setObjectName(objectName);
    m_tools->setTitle(title);
    start(wanted);
    enter();
    QCOMPARE(captions(*m_tools),
             QStringList({QStringLiteral("&Options..."), QStringLiteral("Gestures...")}));
    QCOMPARE(captions(*m_window->menuBar()).size(), 4);
}

void UiManagerTest::aToolsMenuIsMade()
{
    delete m_tools;
    QCOMPARE(identifiers(*menus()), words("ID_MnFile ID_MnDraw ID_MnTools ID_MnHelp"));
    QCOMPARE(captions(*m_window->menuBar()), words("&File &Draw &Tools &Help"));
    const QAction *made = m_window->menuBar()->actions().at(2);
    QVERIFY(!made->isVisible()); // still empty
    CHxUIMenuItem *entry = enter();
    QVERIFY(made->isVisible());
    QCOMPARE(captions(*made->menu()), QStringList(QStringLiteral("Gestures...")));
    made->menu()->clear();
    QTRY_COMPARE(captions(*made->menu()), QStringList(QStringLiteral("Gestures...")));
    menu("ID_MnTools")->GetSubItems()->Remove(entry);
    QVERIFY(!made->isVisible());
    menu("ID_MnTools")->GetSubItems()->Append(entry); // without a refresh
    QVERIFY(made->isVisible());
    m_manager->DestroyMenuItem(entry);
    QVERIFY(!made->isVisible());
    m_manager.reset();
    QCOMPARE(captions(*m_window->menuBar()), words("&File &Draw &Help"));
}

void UiManagerTest::aMadeToolsMenuGivesWayToTheProgramsOwn()
{
    delete m_tools;
    enter();
    m_tools = m_window->addMenu("&Tools", "toolsMenu");
    QTRY_COMPARE(captions(*m_tools), QStringList(QStringLiteral("Gestures...")));
    QCOMPARE(identifiers(*menus()), words("ID_MnFile ID_MnDraw ID_MnHelp ID_MnTools"));
    QVERIFY(!m_window->menuBar()->actions().at(2)->isVisible()); // the made one
    delete m_tools;
    QTRY_VERIFY(m_window->menuBar()->actions().at(2)->isVisible());
    QCOMPARE(captions(*m_window->menuBar()->actions().at(2)->menu()),
             QStringList(QStringLiteral("Gestures...")));
}

void UiManagerTest::readingMakesNoToolsMenu()
{
    delete m_tools;
    QCOMPARE(m_manager->NewMenuIterator()->Current()->GetItems()->GetCount(), 3);
    QCOMPARE(m_manager->menuBars().GetItem(0)->GetSubItems()->GetCount(), 3);
    m_manager->Refresh(true);
    QCOMPARE(m_window->menuBar()->actions().size(), 3);
}

void UiManagerTest::anEntryIsPutLastAtOnce()
{
    CHxUIMenuItem *entry = m_manager->CreateMenuItem(0, "ID_X", "&Text", "Tip");
    QCOMPARE(text(entry->GetIdentifier()), QStringLiteral("ID_X"));
    QCOMPARE(text(entry->GetText()), QStringLiteral("&Text"));
    QCOMPARE(entry->GetSubItems(), nullptr);
    QCOMPARE(entry->GetCommandItem(), nullptr);
    CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    QCOMPARE(items->GetCount(), 1);
    items->Append(entry);
    QCOMPARE(items->GetCount(), 2);
    QCOMPARE(items->GetItem(1), entry);
    QCOMPARE(captions(*m_tools).constLast(), QStringLiteral("&Text"));
    QCOMPARE(m_tools->actions().constLast()->statusTip(), QStringLiteral("Tip"));
    const QSignalSpy changes(m_catalogue.get(), &CommandCatalogue::menusChanged);
    entry->SetText("Gestures...");
    QCOMPARE(captions(*m_tools).constLast(), QStringLiteral("Gestures..."));
    QCOMPARE(changes.count(), 0); // nothing of the program's
    m_tools->actions().constLast()->trigger(); // the entry has no command
    QVERIFY(m_run.isEmpty());
    m_tools->clear(); // it comes back although nobody asked for a refresh
    QTRY_COMPARE(captions(*m_tools), words("Gestures..."));
}

void UiManagerTest::anEntryRunsItsCommandsMacro()
{
    const CHxUIMenuItem *entry = enter();
    QVERIFY(entry->GetCommandItem());
    QCOMPARE(m_tools->actions().constLast()->statusTip(), QStringLiteral("Customizes gestures"));
    m_tools->actions().constLast()->trigger();
    QCOMPARE(m_run, QStringList(QStringLiteral("^C^C_GESTURE")));
}

void UiManagerTest::entriesKeepTheirOrder()
{
    enter("One");
    enter("Two");
    QCOMPARE(captions(*m_tools).mid(1), words("One Two"));
    m_tools->addAction(QStringLiteral("Later"));
    QTRY_COMPARE(captions(*m_tools), QStringList({QStringLiteral("&Options..."), QStringLiteral("Later"),
                                                  QStringLiteral("One"), QStringLiteral("Two")}));
    QCOMPARE(menu("ID_MnTools")->GetSubItems()->GetCount(), 4);
    CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    items->Remove(items->GetItem(3));
    m_tools->addAction(QStringLiteral("Last"));
    QTRY_COMPARE(captions(*m_tools).mid(1), words("Later Last One"));
}

void UiManagerTest::anEntryIsInOnePlace()
{
    CHxUIMenuItem *entry = enter();
    menu("ID_MnTools")->GetSubItems()->Append(entry);
    QCOMPARE(m_tools->actions().size(), 2);
    menu("ID_MnDraw")->GetSubItems()->Append(entry);
    QCOMPARE(m_tools->actions().size(), 1);
    QCOMPARE(captions(*m_window->draw).constLast(), QStringLiteral("Gestures..."));
    menu("ID_MnTools")->GetSubItems()->Remove(entry); // no effect: it is not there
    QCOMPARE(captions(*m_window->draw).constLast(), QStringLiteral("Gestures..."));
    m_tools->clear(); // the entry does not come back
    m_manager->Refresh(false);
    QVERIFY(m_tools->actions().isEmpty());
    menus()->Append(entry);
    QCOMPARE(captions(*m_window->menuBar()).constLast(), QStringLiteral("Gestures..."));
    QCOMPARE(menus()->GetItem(menus()->GetCount() - 1), entry);
    m_window->menuBar()->actions().constLast()->trigger();
    QCOMPARE(m_run.size(), 1);
}

void UiManagerTest::aGoneMenuTakesNoEntry()
{
    CHxUIMenuItem *entry = enter();
    CHxUIMenuItemCollection *draw = menu("ID_MnDraw")->GetSubItems();
    delete m_window->draw;
    draw->Append(entry);
    QCOMPARE(captions(*m_tools).constLast(), QStringLiteral("Gestures..."));
    // Nor does it give one away, even if the entry's own menu has just gone.
    delete m_tools;
    draw->Remove(entry);
    m_tools = m_window->addMenu("&Tools", "toolsMenu");
    QTRY_COMPARE(captions(*m_tools), words("Gestures..."));
}

void UiManagerTest::anEntryIsTakenOut()
{
    CHxUIMenuItem *entry = enter();
    CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    items->Remove(entry);
    QCOMPARE(m_tools->actions().size(), 1);
    QCOMPARE(items->GetCount(), 1);
    items->Remove(entry);
    m_tools->addAction(QStringLiteral("Later"));
    QCoreApplication::processEvents();
    QCOMPARE(m_tools->actions().size(), 2);
    items->Append(entry);
    QCOMPARE(m_tools->actions().size(), 3);
    m_manager->DestroyMenuItem(entry);
    QCOMPARE(m_tools->actions().size(), 2);
    QCOMPARE(items->GetCount(), 2);
}

void UiManagerTest::anEntryCanBeFoundByItsText()
{
    const CHxUIMenuItem *entry = enter();
    const CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    const CHxUIMenuItem *found = nullptr;
    for (int i = 0; i < items->GetCount() && !found; ++i) {
        if (items->GetItem(i)->GetText().CompareNoCase("GESTURES...") == 0)
            found = items->GetItem(i);
    }
    QCOMPARE(found, entry);
    QCOMPARE(text(found->GetCommandItem()->GetIdentifier()), QStringLiteral("_CONFIG"));
}

void UiManagerTest::strangersAreIgnored()
{
    CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    const CHxUIMenuItem *own = items->GetItem(0);
    CHxUIMenuItem *dead = m_manager->CreateMenuItem(0, {}, {}, {});
    m_manager->DestroyMenuItem(dead);
    for (CHxUIMenuItem *item :
         {static_cast<CHxUIMenuItem *>(nullptr), const_cast<CHxUIMenuItem *>(own), dead}) {
        items->Append(item);
        QCOMPARE(items->GetCount(), 1);
        items->Remove(item);
        m_manager->DestroyMenuItem(item);
        m_manager->menuBars().Append(item);
        m_manager->menuBars().Remove(item);
    }
    QCOMPARE(items->GetCount(), 1);
    QCOMPARE(items->GetItem(0), own);
    QCOMPARE(captions(*m_tools), QStringList(QStringLiteral("&Options...")));
    workspace()->GetCommandItems()->Add(nullptr);
}

void UiManagerTest::theProgramsOwnItemsAreReadOnly()
{
    CHxUIMenuItem *own = menu("ID_MnTools")->GetSubItems()->GetItem(0);
    CHxUICommandItem *command = own->GetCommandItem();
    own->SetText("Changed");
    own->SetCommandItem(nullptr);
    command->SetName("Changed");
    command->SetMacro("Changed");
    command->SetStatusText("Changed");
    QCOMPARE(text(own->GetText()), QStringLiteral("&Options..."));
    QCOMPARE(own->GetCommandItem(), command);
    QCOMPARE(text(command->GetCaption()), QStringLiteral("Options"));
    QCOMPARE(text(command->GetCommandString()), QStringLiteral("toolsOptions"));
    m_manager->RemoveCommandItem(command);
    QVERIFY(m_manager->Contains(command));
    QCOMPARE(own->GetCommandItem(), command);
}

void UiManagerTest::commandItemsAreFound()
{
    QCOMPARE(m_manager->FindCommandItem("Default", "_CONFIG"), nullptr);
    CHxUICommandItem *command = m_manager->CreateCommandItem("_CONFIG", 0);
    QCOMPARE(text(command->GetIdentifier()), QStringLiteral("_CONFIG"));
    QCOMPARE(text(command->GetCommandString()), QString());
    QCOMPARE(m_manager->FindCommandItem("Default", "_CONFIG"), command);
    QCOMPARE(m_manager->FindCommandItem("Other", "_CONFIG"), nullptr);
    QCOMPARE(m_manager->FindCommandItem("Default", "_config"), nullptr);
    QCOMPARE(m_manager->FindCommandItem("Default", "drawLine"),
             m_catalogue->find(QStringLiteral("drawLine")));
    QVERIFY(m_manager->Contains(command));
    QVERIFY(m_manager->Contains(m_catalogue->find(QStringLiteral("drawLine"))));
    QVERIFY(!m_manager->Contains(nullptr));
}

void UiManagerTest::commandItemsAreRemoved()
{
    CHxUIMenuItem *entry = enter();
    CHxUICommandItem *command = entry->GetCommandItem();
    m_manager->RemoveCommandItem(command);
    QVERIFY(!m_manager->Contains(command));
    QCOMPARE(entry->GetCommandItem(), nullptr);
    QCOMPARE(m_manager->FindCommandItem("Default", "_CONFIG"), nullptr);
    m_tools->actions().constLast()->trigger();
    QVERIFY(m_run.isEmpty());
    m_manager->RemoveCommandItem(command); // again: no effect
    m_manager->RemoveCommandItem(nullptr);
    QVERIFY(!m_manager->Contains(command));
}

void UiManagerTest::theWorkspaceListsItsCommands()
{
    const auto *items =
        static_cast<gesturewidget::UiCommandItemCollection *>(workspace()->GetCommandItems());
    CHxUICommandItem *one = m_manager->CreateCommandItem("_ONE", 0);
    CHxUICommandItem *two = m_manager->CreateCommandItem("_TWO", 0);
    for (CHxUICommandItem *item : {one, two, one, static_cast<CHxUICommandItem *>(nullptr)})
        workspace()->GetCommandItems()->Add(item);
    QCOMPARE(items->items(), std::vector<CHxUICommandItem *>({one, two}));
    m_manager->RemoveCommandItem(one);
    QCOMPARE(items->items(), std::vector<CHxUICommandItem *>({two}));
}

// An entry without a tip shows that of its command.
void UiManagerTest::anEntrysOwnTipIsShown()
{
    CHxUICommandItem *command = m_manager->CreateCommandItem("_CONFIG", 0);
    command->SetStatusText("The command's tip");
    CHxUIMenuItem *entry = m_manager->CreateMenuItem(0, {}, "Entry", "The entry's tip");
    CHxUIMenuItem *plain = m_manager->CreateMenuItem(0, {}, "Plain", {});
    for (CHxUIMenuItem *item : {entry, plain}) {
        item->SetCommandItem(command);
        menu("ID_MnTools")->GetSubItems()->Append(item);
    }
    const auto tips = [this] {
        QStringList found;
        const QList<QAction *> entries = m_tools->actions().mid(1);
        for (const QAction *action : entries)
            found.append(action->statusTip());
        return found;
    };
    QCOMPARE(tips(),
             QStringList({QStringLiteral("The entry's tip"), QStringLiteral("The command's tip")}));
    plain->SetCommandItem(nullptr);
    QCOMPARE(tips(), QStringList({QStringLiteral("The entry's tip"), QString()}));
}

void UiManagerTest::anEntryInItsPlaceIsNotMoved()
{
    class Removals : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::ActionRemoved ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    enter("One");
    enter("Two");
    Removals removals;
    m_tools->installEventFilter(&removals);
    for (int i = 0; i < 20; ++i)
        m_manager->Refresh(i % 2 == 0);
    QCOMPARE(removals.count, 0);
    QCOMPARE(captions(*m_tools).mid(1), words("One Two"));

    delete m_tools->actions().constFirst(); // the entries are alone now
    removals.count = 0;
    for (int i = 0; i < 20; ++i)
        m_manager->Refresh(i % 2 == 0);
    QCOMPARE(removals.count, 0);
    QCOMPARE(captions(*m_tools), words("One Two"));
}

void UiManagerTest::aClearedMenuGetsItsEntryBack()
{
    const CHxUIMenuItem *entry = enter();
    m_tools->clear();
    QVERIFY(m_tools->actions().isEmpty());
    QTRY_COMPARE(captions(*m_tools), QStringList(QStringLiteral("Gestures...")));
    QCOMPARE(menu("ID_MnTools")->GetSubItems()->GetItem(0), entry);
    m_tools->actions().constLast()->trigger();
    QCOMPARE(m_run.size(), 1);
}

// Nobody can tell by events that this menu has changed.
void UiManagerTest::aRefreshReadsWhatNobodyTold()
{
    class Silence : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            return event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved;
        }
    };
    enter();
    const CHxUIMenuItemCollection *items = menu("ID_MnTools")->GetSubItems();
    QCOMPARE(items->GetCount(), 2);
    Silence silence;
    m_tools->installEventFilter(&silence);
    m_tools->clear();
    DraftWindow::addAction(m_tools, "More", "more");
    QCOMPARE(items->GetItem(1)->GetCommandItem(), m_manager->FindCommandItem("Default", "_CONFIG"));
    m_manager->Refresh(false);
    QCOMPARE(captions(*m_tools), words("More Gestures...")); // at once
    QCOMPARE(items->GetCount(), 2);
    QCOMPARE(text(items->GetItem(0)->GetText()), QStringLiteral("More"));
    QCOMPARE(items->GetItem(0)->GetCommandItem(), nullptr);
    m_manager->Refresh(true);
    QVERIFY(items->GetItem(0)->GetCommandItem());
}

void UiManagerTest::anActionAddedLaterComesBeforeTheEntry()
{
    enter();
    m_tools->addAction(QStringLiteral("Later"));
    QTRY_COMPARE(captions(*m_tools), QStringList({QStringLiteral("&Options..."), QStringLiteral("Later"),
                                                  QStringLiteral("Gestures...")}));
}

// Some programs fill a menu just before it opens. A person still sees the complete menu.
void UiManagerTest::aMenuFilledOnOpeningShowsTheEntryLast()
{
    m_manager.reset();
    connect(m_tools, &QMenu::aboutToShow, m_tools, [this] {
        m_tools->clear();
        m_tools->addAction(QStringLiteral("Now"));
    });
    start();
    // Before anybody asks for a refresh.
    menu("ID_MnTools")->GetSubItems()->Append(m_manager->CreateMenuItem(0, {}, "Entry", {}));
    Q_EMIT m_tools->aboutToShow();
    QCOMPARE(captions(*m_tools), words("Now Entry"));
    m_manager->DestroyMenuItem(menu("ID_MnTools")->GetSubItems()->GetItem(1));
    enter();
    for (int i = 0; i < 20; ++i) { // also when a person opens it again and again
        Q_EMIT m_tools->aboutToShow();
        QCOMPARE(captions(*m_tools), words("Now Gestures..."));
    }
}

void UiManagerTest::aMenuIsWatchedOnce()
{
    class Menu : public QMenu
    {
    public:
        using QMenu::QMenu;
        [[nodiscard]] int watchers() const { return receivers(SIGNAL(aboutToShow())); }
    };
    delete m_tools;
    m_manager.reset();
    Menu tools(QStringLiteral("&Tools"));
    m_window->menuBar()->addMenu(&tools);
    start();
    const int before = tools.watchers();
    enter();
    QCOMPARE(tools.watchers(), before + 1);
    for (int i = 0; i < 3; ++i)
        m_manager->Refresh(true);
    enter();
    QCOMPARE(tools.watchers(), before + 1);
    QCOMPARE(captions(tools), words("Gestures... Gestures..."));
}

void UiManagerTest::aMenuAtTheAddressOfAGoneOneIsWatched()
{
    delete m_tools;
    alignas(QMenu) std::array<unsigned char, sizeof(QMenu)> memory;
    for (int i = 0; i < 2; ++i) {
        auto *tools = new (memory.data()) QMenu(QStringLiteral("&Tools"));
        m_window->menuBar()->addMenu(tools);
        connect(tools, &QMenu::aboutToShow, tools, [tools] {
            tools->clear();
            tools->addAction(QStringLiteral("Now"));
        });
        if (i == 0)
            enter();
        QTRY_COMPARE(captions(*tools), words("Gestures..."));
        Q_EMIT tools->aboutToShow();
        QCOMPARE(captions(*tools), words("Now Gestures..."));
        tools->~QMenu();
    }
}

void UiManagerTest::aReplacedToolsMenuGetsTheEntry()
{
    CHxUIMenuItem *entry = enter();
    delete m_tools;
    m_tools = m_window->addMenu("&Tools", "toolsMenu");
    DraftWindow::addAction(m_tools, "&New options", "newOptions");
    QTRY_COMPARE(captions(*m_tools),
                 QStringList({QStringLiteral("&New options"), QStringLiteral("Gestures...")}));
    QCOMPARE(menu("ID_MnTools")->GetSubItems()->GetItem(1), entry);
    m_tools->addAction(QStringLiteral("Later"));
    QTRY_COMPARE(captions(*m_tools).constLast(), QStringLiteral("Gestures..."));
    QCOMPARE(m_tools->actions().size(), 3);
    menu("ID_MnTools")->GetSubItems()->Remove(entry);
    QCOMPARE(captions(*m_tools).constLast(), QStringLiteral("Later"));
}

void UiManagerTest::aReplacedMenuBarGetsTheEntry()
{
    m_window->show();
    enter();
    m_window->setMenuBar(new QMenuBar);
    m_tools = m_window->addMenu("&Tools", "toolsMenu");
    QTRY_COMPARE(captions(*m_tools), QStringList(QStringLiteral("Gestures...")));
    QTRY_COMPARE(identifiers(*menus()), words("ID_MnTools"));
}

void UiManagerTest::twoWhoWantToBeLastDoNotFight()
{
    class Rival : public QObject
    {
    public:
        explicit Rival(QMenu *menu)
            : m_menu(menu)
        {
            menu->installEventFilter(this);
            m_menu->addAction(&action);
        }
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::ActionAdded)
                QMetaObject::invokeMethod(
                    this, [this] { beLast(); }, Qt::QueuedConnection);
            return false;
        }
        void beLast()
        {
            if (m_menu->actions().constLast() == &action)
                return;
            m_menu->removeAction(&action);
            m_menu->addAction(&action);
            ++moves;
        }
        QAction action{QStringLiteral("Rival")};
        int moves = 0;

    private:
        QMenu *m_menu;
    };
    enter();
    Rival rival(m_tools);
    QElapsedTimer timer;
    timer.start();
    int idle = 0; // turns of the event loop in which nobody moved an entry
    while (idle < 100 && timer.elapsed() < 5000) {
        const int moves = rival.moves;
        QCoreApplication::processEvents();
        idle = moves == rival.moves ? idle + 1 : 0;
    }
    QCOMPARE(idle, 100);
    // The entry is moved back eight times in a second.
    QVERIFY(rival.moves >= 8);
    QVERIFY2(rival.moves <= 8 * (1 + timer.elapsed() / 1000), qPrintable(QString::number(rival.moves)));
    QVERIFY(captions(*m_tools).contains(QStringLiteral("Gestures...")));
    QCOMPARE(m_tools->actions().size(), 3);
    // Later it is moved back again.
    const auto isLastAgain = [this] {
        m_tools->addAction(QStringLiteral("Later"));
        QCoreApplication::processEvents();
        return captions(*m_tools).constLast() == QLatin1String("Gestures...");
    };
    m_tools->removeEventFilter(&rival);
    QVERIFY(!isLastAgain() || timer.elapsed() >= 1000);
    QTRY_VERIFY(isLastAgain());
}

// The host does not move its entry again when the program answers the host's own move.
void UiManagerTest::whoIsLastAtOnceStaysLast()
{
    class Rival : public QObject
    {
    public:
        explicit Rival(QMenu *menu)
            : m_menu(menu)
        {
            m_menu->addAction(&action);
            menu->installEventFilter(this);
        }
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::ActionAdded
                && static_cast<QActionEvent *>(event)->action() != &action) {
                ++moves;
                m_menu->removeAction(&action);
                m_menu->addAction(&action);
            }
            return false;
        }
        QAction action{QStringLiteral("Rival")};
        int moves = 0;

    private:
        QMenu *m_menu;
    };
    QCoreApplication::processEvents(); // the making of the window has posted some
    Rival rival(m_tools);
    const QStringList first{QStringLiteral("&Options...")};
    enter("One");
    CHxUIMenuItem *two = enter("Two");
    const int moves = rival.moves;
    QCoreApplication::processEvents();
    QCOMPARE(rival.moves, moves);
    QCOMPARE(captions(*m_tools), first + words("One Two Rival"));
    menu("ID_MnTools")->GetSubItems()->Remove(two);
    QCoreApplication::processEvents();
    QCOMPARE(rival.moves, moves);
    m_tools->addAction(QStringLiteral("Later"));
    QTRY_COMPARE(captions(*m_tools), first + words("Later One Rival"));
    QCoreApplication::processEvents();
    QCOMPARE(rival.moves, moves + 2); // for the new action and for the entry
}

void UiManagerTest::theEntryIsNoCommandOfTheProgram()
{
    enter();
    QCOMPARE(m_catalogue->itemOf(m_tools->actions().constLast()), nullptr);
    QCOMPARE(m_catalogue->find(QStringLiteral("Tools/Gestures...")), nullptr);
    QCOMPARE(m_manager->moduleCommands().size(), std::size_t(1));
    QCOMPARE(text(m_manager->moduleCommands().front()->GetIdentifier()), QStringLiteral("_CONFIG"));
}

void UiManagerTest::everythingIsTakenOutAtTheEnd()
{
    enter();
    m_manager.reset();
    QCOMPARE(captions(*m_tools), QStringList(QStringLiteral("&Options...")));
    m_tools->clear();
    QCoreApplication::processEvents();
    QVERIFY(m_tools->actions().isEmpty());
}

void UiManagerTest::aWindowTakesOnlyItsOwnMenusAlong()
{
    std::array<DraftWindow, 2> others;
    std::array<QMenu *, 3> tools{m_tools};
    for (std::size_t i = 0; i < others.size(); ++i) {
        tools[i + 1] = others[i].addMenu("&Tools", "toolsMenu");
        m_catalogue->addWindow(&others[i]);
        m_manager->addWindow(&others[i]);
    }
    const auto entries = [&tools] {
        QVector<int> found;
        for (const QMenu *menu : tools)
            found.append(static_cast<int>(captions(*menu).count(QStringLiteral("Gestures..."))));
        return found;
    };
    enter();
    QCOMPARE(entries(), QVector<int>({1, 1, 1}));
    m_catalogue->setCurrentWindow(&others[1]);
    m_manager->setCurrentWindow(&others[1]);
    m_manager->removeWindow(&others[0]);
    QCoreApplication::processEvents();
    QCOMPARE(entries(), QVector<int>({1, 0, 1}));
    // An entry that is destroyed does not come to a window that opens later.
    CHxUIMenuItem *gone = enter("Gone");
    m_manager->DestroyMenuItem(gone);
    DraftWindow later;
    const QMenu *laterTools = later.addMenu("&Tools", "toolsMenu");
    m_catalogue->addWindow(&later);
    m_manager->addWindow(&later);
    QCOMPARE(captions(*laterTools), words("Gestures..."));
    m_manager->removeWindow(&later);
    QCoreApplication::processEvents();
    QVERIFY(laterTools->actions().isEmpty());
    m_manager->removeWindow(&others[1]); // the current one stays
    QCoreApplication::processEvents();
    QCOMPARE(entries(), QVector<int>({1, 0, 1}));
    enter();
    QCOMPARE(entries(), QVector<int>({2, 0, 2}));
    m_manager.reset();
    m_catalogue.reset();
}

void UiManagerTest::withoutAMenuBarAllIsEmpty()
{
    QMainWindow bare;
    CommandCatalogue catalogue(&bare, {});
    UiManager manager(catalogue, {}, [](const QString &, QWidget *) {});
    QVERIFY(manager.NewMenuIterator()->Done());
    const auto walk = manager.NewWorkspaceIterator();
    QVERIFY(!walk->Done());
    CHxUIMenuItemCollection *items = walk->Current()->GetMenuItems();
    QVERIFY(items);
    QCOMPARE(items->GetCount(), 0);
    QCOMPARE(items->GetItem(0), nullptr);
    CHxUIMenuItem *entry = manager.CreateMenuItem(0, {}, "A", {});
    items->Append(entry);
    QCOMPARE(items->GetCount(), 0);
    items->Remove(entry);
    manager.Refresh(false);
    manager.Refresh(true);
    QCOMPARE(manager.menuBars().GetCount(), 0);
    QVERIFY(bare.findChildren<QMenuBar *>().isEmpty());
    // What was put nowhere is nowhere, also when there are menus.
    items->Append(entry);
    const QMenu *tools = bare.menuBar()->addMenu(QStringLiteral("&Tools"));
    manager.Refresh(true);
    QVERIFY(tools->actions().isEmpty());
    manager.DestroyMenuItem(entry);
}

void UiManagerTest::theWindowMayGoFirst()
{
    CHxUIMenuItem *entry = enter();
    CHxUIMenuItem *tools = menu("ID_MnTools");
    CHxUIMenuItemCollection *items = tools->GetSubItems();
    CHxUIMenuItem *bar = m_manager->menuBars().GetItem(0);
    m_window.reset();
    QCOMPARE(items->GetCount(), 0);
    QCOMPARE(items->GetItem(0), nullptr);
    QCOMPARE(tools->GetSubItems(), nullptr);
    QCOMPARE(text(tools->GetText()), QString());
    QCOMPARE(bar->GetSubItems()->GetCount(), 0);
    QCOMPARE(menus()->GetCount(), 0);
    items->Append(entry);
    items->Remove(entry);
    QCoreApplication::processEvents();
    m_manager->RemoveCommandItem(entry->GetCommandItem());
    m_manager->DestroyMenuItem(entry);
    m_manager->Refresh(true);
}

void UiManagerTest::everyPartOfTheMenusIsOneObject()
{
    walk(menus());
    const std::size_t before = m_manager->mirror().size();
    walk(menus());
    QCOMPARE(m_manager->mirror().size(), before);
    static_cast<void>(m_manager->NewMenuIterator());
    QCOMPARE(m_manager->mirror().size(), before + 1); // the bar as a menu
    QVERIFY(m_manager->menuBars().GetItem(0));
    QCOMPARE(m_manager->mirror().size(), before + 2); // the bar as an item
    QMenu *more = m_window->addMenu("&More", "moreMenu");
    for (const char *name : {"one", "two", "three"})
        DraftWindow::addAction(more, name, name);
    walk(menus());
    QCOMPARE(m_manager->mirror().size(), before + 7); // three actions, the menu and its list
}

void UiManagerTest::objectsOfGoneMenusAreFreed()
{
    enter();
    const CHxUIMenuItemCollection *kept = menus(); // a module need not ask for it again
    const auto rebuild = [this] {
        m_window->draw->clear();
        for (int i = 0; i < 20; ++i)
            DraftWindow::addAction(m_window->draw, "Command", qPrintable(QString::number(i)));
    };
    rebuild();
    walk(kept);
    QCoreApplication::processEvents();
    const std::size_t before = m_manager->mirror().size();
    for (int i = 0; i < 50; ++i) {
        rebuild();
        walk(kept);
        QCoreApplication::processEvents();
    }
    QCOMPARE(m_manager->mirror().size(), before);
}

void UiManagerTest::objectsOfGoneMenuBarsAreFreed()
{
    const auto rebuild = [this] {
        delete m_window->menuWidget();
        DraftWindow::addAction(m_window->addMenu("&File", "fileMenu"), "&New", "fileNew");
        static_cast<void>(m_manager->NewMenuIterator()->Current()->GetItems());
        walk(m_manager->menuBars().GetItem(0)->GetSubItems());
        QCoreApplication::processEvents();
    };
    rebuild();
    rebuild();
    const std::size_t before = m_manager->mirror().size();
    for (int i = 0; i < 10; ++i)
        rebuild();
    QCOMPARE(m_manager->mirror().size(), before);
}

void UiManagerTest::aWalkOutlivesTheMenusItWalks()
{
    const CHxUIMenuItem *draw = menu("ID_MnDraw");
    const CHxUIMenuItemCollection *items = draw->GetSubItems();
    const CHxUIMenuItem *line = items->GetItem(0);
    QCOMPARE(text(line->GetText()), QStringLiteral("&Line"));
    delete m_window->draw;
    QCOMPARE(menus()->GetCount(), 3); // lists the menus again; the old items are retired
    QCOMPARE(items->GetCount(), 0);
    QCOMPARE(draw->GetSubItems(), nullptr);
    QCOMPARE(text(line->GetText()), QString());
    QCOMPARE(line->GetCommandItem(), nullptr);
}

void UiManagerTest::changedMenusAreReadBeforeSomebodyAsks()
{
    static_cast<void>(m_manager->NewMenuIterator()); // the first reading
    const QSignalSpy prepared(m_catalogue.get(), &CommandCatalogue::prepared);
    const std::size_t before = m_manager->mirror().size();
    QMenu *more = m_window->addMenu("&More", "moreMenu");
    for (const char *name : {"one", "two", "three"})
        DraftWindow::addAction(more, name, name);
    more->addMenu(m_window->draw); // menus may contain each other
    m_window->draw->addMenu(more);
    QTRY_VERIFY(!prepared.isEmpty());
    const std::size_t after = m_manager->mirror().size();
    QVERIFY(after >= before + 4);
    // Nothing is left to read.
    for (const char *name : {"File", "Draw", "Tools", "Help", "More"}) {
        const CHxUIMenuItem *top = menu((QByteArray("ID_Mn") + name).constData());
        for (int i = 0; i < top->GetSubItems()->GetCount(); ++i) {
            if (CHxUIMenuItemCollection *items = top->GetSubItems()->GetItem(i)->GetSubItems())
                static_cast<void>(items->GetCount());
        }
    }
    QCOMPARE(m_manager->mirror().size(), after);
}

QTEST_MAIN(UiManagerTest)
#include "tst_uimanager.moc"
