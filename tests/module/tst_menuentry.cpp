// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The entry in the host's Tools menu. The menu is found by its identifier, the entry later by its
// text.

#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/OpenContainer.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FakeTranslator.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <optional>

namespace {

using tests::FakeHost;
using tests::FakeMenuItem;
using tests::FakeTranslator;
using tests::FakeWorkspace;
using tests::OpenModule;

const QString kToolsMenu = QStringLiteral("ID_MnTools");
const QString kCommandItem = QStringLiteral("_PV_MOUSE_GESTURE_CONFIG");
const QString kEntryText = QStringLiteral("Mouse Gestures...");
const QString kMacro = QStringLiteral("^C^C_GESTURE");

// A user-interface manager that has nothing to give.
class BarrenUIManager : public tests::FakeUIManager
{
public:
    using FakeUIManager::FakeUIManager;

    [[nodiscard]] CHxUICommandItem *CreateCommandItem(const CHxString &identifier, int flags) override
    {
        return givesCommandItems ? FakeUIManager::CreateCommandItem(identifier, flags) : nullptr;
    }
    [[nodiscard]] CHxUIMenuItem *CreateMenuItem(int flags, const CHxString &identifier,
                                                const CHxString &text, const CHxString &tip) override
    {
        return givesMenuItems ? FakeUIManager::CreateMenuItem(flags, identifier, text, tip) : nullptr;
    }

    bool givesCommandItems = true;
    bool givesMenuItems = true;
};

class MenulessWorkspace : public FakeWorkspace
{
public:
    using FakeWorkspace::FakeWorkspace;

    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override { return nullptr; }
};

class BarrenHost : public FakeHost
{
public:
    [[nodiscard]] CHxUIManager *GetUIManager() override { return &barren; }

    BarrenUIManager barren{&log};
};

QStringList texts(const FakeMenuItem &menu)
{
    QStringList result;
    for (int i = 0; i < menu.subItems->GetCount(); ++i) {
        const CHxUIMenuItem *item = menu.subItems->GetItem(i);
        result << (item ? item->GetText().toQString() : QStringLiteral("(null)"));
    }
    return result;
}

// The calls that the menu makes, without those of the binding container at the end.
QStringList callsUpToRefresh(const FakeHost &host)
{
    const int end = static_cast<int>(host.log.calls.indexOf(QStringLiteral("ui.refresh false")));
    return host.log.calls.mid(0, end + 1);
}

// Makes the container look as if it had not been created yet.
void forgetContainer()
{
    tests::OpenContainer::_pinstance = nullptr;
}

bool containerWasObtained()
{
    return tests::OpenContainer::_pinstance != nullptr;
}

} // namespace

class MenuEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        forgetContainer();
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void containerReadsTheCompleteMenus();

    void menuIsFoundByIdentifier();
    void menuIdentifierRespectsCase();
    void firstMatchOfAnyWorkspaceWins();
    void subMenusAreNotSearched();
    void nullPlacesAreSkipped();
    void equalNullEndsItsWorkspaceOnly();
    void noMenuIsSearchedForEver();
    void menuWithoutHost();

    void loadGoesInOrder();
    void entryIsTheLastOfTheToolsMenu();
    void commandItemIsFilled();
    void statusTextHasExactlyThreeSpaces();
    void choosingTheEntryRunsTheMacro();
    void loadingTwiceAppendsTwoEntries();
    void foundCommandItemIsLeftAsItIs();
    void itemGoesToTheCurrentWorkspace();
    void loadWithoutCurrentWorkspace();
    void loadWithoutToolsMenu_data();
    void loadWithoutToolsMenu();
    void loadWithoutHost();
    void loadWithBarrenHost();
    void workspacesThatAreNotGivenOut();

    void unloadGoesInOrder();
    void unloadRemovesOneEntryACall();
    void unloadIgnoresCase();
    void unloadTakesTheFirstThatMatches();
    void unloadWithoutEntry();
    void unloadWithoutToolsMenu();
    void unloadWithoutHost();
    void unloadOfAnItemTheHostDoesNotHold();
    void unloadOfAnEntryWithoutCommand();

    void translatedHost();

private:
    tests::OlderSettings m_settings;
};

// This test runs first, because a process creates the container only once.
void MenuEntryTest::containerReadsTheCompleteMenus()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    QVERIFY(containerWasObtained());
    // It read the menus after the refresh, with the new entry in them.
    const int refreshed = static_cast<int>(host.log.calls.indexOf(QStringLiteral("ui.refresh false")));
    const int read = static_cast<int>(host.log.calls.indexOf(QStringLiteral("ui.menus")));
    QVERIFY(refreshed >= 0);
    QVERIFY2(read > refreshed, qPrintable(host.log.calls.join(QLatin1Char('\n'))));
    QCOMPARE(MgDonutDataContainer::instance()->getCategory(kMacro), QStringLiteral("Tools"));
    QCOMPARE(texts(*tools), QStringList{kEntryText});
}

void MenuEntryTest::menuIsFoundByIdentifier()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&File"), QStringLiteral("ID_MnFile"));
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), tools);
    QCOMPARE(module.GetMenuItem(CHxString("ID_MnHelp")), nullptr);
    QCOMPARE(host.ui.iteratorsAlive, 0);
}

void MenuEntryTest::menuIdentifierRespectsCase()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), QStringLiteral("id_mntools"));
    OpenModule module;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);
}

void MenuEntryTest::firstMatchOfAnyWorkspaceWins()
{
    FakeHost host;
    FakeWorkspace *first = host.ui.addWorkspace(QStringLiteral("First"), false);
    host.ui.workspaces.push_back(nullptr);
    FakeWorkspace *second = host.ui.addWorkspace(QStringLiteral("Second"), true);
    OpenModule module;

    FakeMenuItem *inSecond = host.ui.addItem(&second->menus, QStringLiteral("b"), true, kToolsMenu);
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), inSecond);

    FakeMenuItem *inFirst = host.ui.addItem(&first->menus, QStringLiteral("a"), true, kToolsMenu);
    host.ui.addItem(&first->menus, QStringLiteral("c"), true, kToolsMenu);
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), inFirst);
    QCOMPARE(host.ui.iteratorsAlive, 0);
}

void MenuEntryTest::subMenusAreNotSearched()
{
    FakeHost host;
    FakeMenuItem *file = host.addTopLevelMenu(QStringLiteral("&File"), QStringLiteral("ID_MnFile"));
    host.ui.addItem(file->subItems.get(), QStringLiteral("Tools"), true, kToolsMenu);
    OpenModule module;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);
}

void MenuEntryTest::nullPlacesAreSkipped()
{
    FakeHost host;
    FakeWorkspace *workspace = host.ui.addWorkspace(QStringLiteral("Default"), true);
    workspace->menus.items.push_back(nullptr);
    FakeMenuItem *tools = host.ui.addItem(&workspace->menus, QStringLiteral("Tools"), true, kToolsMenu);
    OpenModule module;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), tools);
}

void MenuEntryTest::equalNullEndsItsWorkspaceOnly()
{
    FakeHost host;
    FakeWorkspace *first = host.ui.addWorkspace(QStringLiteral("First"), true);
    FakeWorkspace *second = host.ui.addWorkspace(QStringLiteral("Second"), false);
    // A place without an object counts as an empty identifier. The menu after it has an empty one too.
    first->menus.items.push_back(nullptr);
    host.ui.addItem(&first->menus, QStringLiteral("behind"), true);
    FakeMenuItem *other = host.ui.addItem(&second->menus, QStringLiteral("other"), true);
    OpenModule module;

    QCOMPARE(module.GetMenuItem(CHxString()), other);
}

// 100,000 places of a menu are looked at.
void MenuEntryTest::noMenuIsSearchedForEver()
{
    constexpr std::size_t kMost = 100'000;
    FakeHost host;
    FakeWorkspace *workspace = host.ui.addWorkspace(QStringLiteral("Default"), true);
    FakeMenuItem *tools = host.ui.addItem(&workspace->menus, QStringLiteral("Tools"), true, kToolsMenu);
    workspace->menus.items.insert(workspace->menus.items.begin(), kMost, nullptr);
    OpenModule module;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);
    workspace->menus.items.erase(workspace->menus.items.begin());
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), tools);

    tools->subItems->items.assign(kMost, nullptr);
    host.ui.addItem(tools->subItems.get(), kEntryText, false);
    module.UnLoadMenu();
    QCOMPARE(tools->subItems->items.size(), kMost + 1);
    tools->subItems->items.erase(tools->subItems->items.begin());
    module.UnLoadMenu();
    QCOMPARE(tools->subItems->items.size(), kMost - 1);
}

void MenuEntryTest::menuWithoutHost()
{
    OpenModule module;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);

    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.hasUIManager = false;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);
}

void MenuEntryTest::loadGoesInOrder()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    const QStringList expected{QStringLiteral("ui.workspaces"), // for the current one
                               QStringLiteral("ui.workspaces"), // for the Tools menu
                               QStringLiteral("ui.find Default ") + kCommandItem,
                               QStringLiteral("ui.createCommandItem %1 0").arg(kCommandItem),
                               QStringLiteral("workspace.addCommandItem ") + kCommandItem,
                               QStringLiteral("ui.createMenuItem 0"),
                               QStringLiteral("ui.refresh false")};
    QCOMPARE(callsUpToRefresh(host), expected);
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.refresh")).size(), 1);
    QVERIFY(containerWasObtained());
    QCOMPARE(host.ui.iteratorsAlive, 0);
}

void MenuEntryTest::entryIsTheLastOfTheToolsMenu()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.ui.addItem(tools->subItems.get(), QStringLiteral("Options"), false);
    tools->subItems->items.push_back(nullptr);
    host.ui.addItem(tools->subItems.get(), QStringLiteral("About"), false);
    OpenModule module;

    module.LoadMenu();

    const QStringList expected{QStringLiteral("Options"), QStringLiteral("(null)"),
                               QStringLiteral("About"), kEntryText};
    QCOMPARE(texts(*tools), expected);
    const auto *entry = static_cast<FakeMenuItem *>(tools->subItems->items.back());
    QVERIFY(entry->identifier.isEmpty());
    QVERIFY(!entry->subItems);
    QCOMPARE(entry->GetCommandItem(), host.ui.commandItems.front().get());
}

void MenuEntryTest::commandItemIsFilled()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    QCOMPARE(host.ui.commandItems.size(), std::size_t(1));
    const tests::FakeCommandItem &item = *host.ui.commandItems.front();
    QCOMPARE(item.identifier, kCommandItem);
    QCOMPARE(item.caption, QStringLiteral("Mouse Gestures"));
    QCOMPARE(item.command, kMacro);
}

void MenuEntryTest::statusTextHasExactlyThreeSpaces()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    QCOMPARE(host.ui.commandItems.front()->tip, QStringLiteral("Customizes mouse gestures:   GESTURE"));
}

void MenuEntryTest::choosingTheEntryRunsTheMacro()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    host.log.clear();

    // Does what a host does with a chosen entry: runs the macro of its command item.
    const CHxUIMenuItem *entry = tools->subItems->GetItem(tools->subItems->GetCount() - 1);
    QVERIFY(entry && entry->GetCommandItem());
    host.RunCommand(entry->GetCommandItem()->GetCommandString(), false);

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("run ^C^C_GESTURE false")});
    // After the two cancels the macro names the module's command.
    QCOMPARE(host.stack.lookupCommand(OdString(kMacro.mid(4))), &module.command);
}

void MenuEntryTest::loadingTwiceAppendsTwoEntries()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();
    module.LoadMenu();

    const QStringList expected{kEntryText, kEntryText};
    QCOMPARE(texts(*tools), expected);
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.createCommandItem")).size(), 1);
    QCOMPARE(host.log.startingWith(QStringLiteral("workspace.addCommandItem")).size(), 2);
    QCOMPARE(tools->subItems->GetItem(0)->GetCommandItem(),
             tools->subItems->GetItem(1)->GetCommandItem());
}

void MenuEntryTest::foundCommandItemIsLeftAsItIs()
{
    FakeHost host;
    host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    CHxUICommandItem *item = host.ui.CreateCommandItem(CHxString(kCommandItem), 0);
    item->SetName(CHxString("A name of old"));
    item->SetMacro(CHxString("old"));
    host.log.clear();
    OpenModule module;

    module.LoadMenu();

    QCOMPARE(host.log.startingWith(QStringLiteral("ui.createCommandItem")), QStringList());
    QCOMPARE(host.ui.commandItems.front()->caption, QStringLiteral("A name of old"));
    QCOMPARE(host.ui.commandItems.front()->command, QStringLiteral("old"));
    // It is added to the workspace anyway.
    QCOMPARE(host.log.startingWith(QStringLiteral("workspace.addCommandItem")).size(), 1);
}

void MenuEntryTest::itemGoesToTheCurrentWorkspace()
{
    FakeHost host;
    FakeWorkspace *first = host.ui.addWorkspace(QStringLiteral("First"), false);
    host.ui.workspaces.push_back(nullptr);
    FakeWorkspace *second = host.ui.addWorkspace(QStringLiteral("Second"), true);
    FakeWorkspace *third = host.ui.addWorkspace(QStringLiteral("Third"), true);
    FakeMenuItem *tools = host.ui.addItem(&first->menus, QStringLiteral("Tools"), true, kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    // The menu is the first one in any workspace. The command item belongs to the first current
    // workspace.
    QCOMPARE(texts(*tools), QStringList{kEntryText});
    QVERIFY(first->commandItems.empty());
    QCOMPARE(second->commandItems.size(), std::size_t(1));
    QVERIFY(third->commandItems.empty());
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.find")),
             QStringList{QStringLiteral("ui.find Second ") + kCommandItem});
}

void MenuEntryTest::loadWithoutCurrentWorkspace()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    static_cast<FakeWorkspace *>(host.ui.workspaces.front())->current = false;
    OpenModule module;

    module.LoadMenu();

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("ui.workspaces")});
    QCOMPARE(tools->subItems->GetCount(), 0);
    QVERIFY(!containerWasObtained());
    QCOMPARE(host.ui.iteratorsAlive, 0);
}

void MenuEntryTest::loadWithoutToolsMenu_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::newRow("other menus only") << QStringLiteral("ID_MnFile");
    QTest::newRow("other case") << QStringLiteral("ID_MNTOOLS");
    QTest::newRow("longer") << QStringLiteral("ID_MnToolsX");
}

void MenuEntryTest::loadWithoutToolsMenu()
{
    QFETCH(QString, identifier);

    FakeHost host;
    FakeMenuItem *menu = host.addTopLevelMenu(QStringLiteral("&Tools"), identifier);
    OpenModule module;

    module.LoadMenu();

    const QStringList expected{QStringLiteral("ui.workspaces"), QStringLiteral("ui.workspaces"),
                               QStringLiteral("ui.refresh false")};
    QCOMPARE(callsUpToRefresh(host), expected);
    QCOMPARE(menu->subItems->GetCount(), 0);
    QVERIFY(host.ui.commandItems.empty());
    QVERIFY(containerWasObtained());
}

void MenuEntryTest::loadWithoutHost()
{
    OpenModule module;
    module.LoadMenu();
    QVERIFY(!containerWasObtained());

    FakeHost host;
    host.hasUIManager = false;
    module.LoadMenu();
    QCOMPARE(host.log.calls, QStringList());
    QVERIFY(!containerWasObtained());
}

void MenuEntryTest::workspacesThatAreNotGivenOut()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    host.ui.hasWorkspaceIterator = false;
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), nullptr);
    module.LoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 0);
    QVERIFY(host.ui.commandItems.empty());

    // A workspace may have no menus.
    MenulessWorkspace menuless(&host.log);
    host.ui.hasWorkspaceIterator = true;
    host.ui.workspaces.insert(host.ui.workspaces.begin(), &menuless);
    QCOMPARE(module.GetMenuItem(CHxString(kToolsMenu)), tools);
    module.LoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 1);
    module.UnLoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 0);
}

void MenuEntryTest::loadWithBarrenHost()
{
    BarrenHost host;
    FakeWorkspace *workspace = host.barren.addWorkspace(QStringLiteral("Default"), true);
    FakeMenuItem *tools =
        host.barren.addItem(&workspace->menus, QStringLiteral("Tools"), true, kToolsMenu);
    OpenModule module;

    host.barren.givesCommandItems = false;
    module.LoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 0);
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.refresh")).size(), 1);

    host.barren.givesCommandItems = true;
    host.barren.givesMenuItems = false;
    module.LoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 0);
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.refresh")).size(), 2);

    tools->subItems.reset(); // an entry of that identifier that opens no menu
    module.LoadMenu();
    module.UnLoadMenu();
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.refresh")).size(), 3);
    QVERIFY(containerWasObtained());
}

void MenuEntryTest::unloadGoesInOrder()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.LoadMenu();
    host.log.clear();

    module.UnLoadMenu();

    // Nothing is refreshed.
    const QStringList expected{QStringLiteral("ui.workspaces"),
                               QStringLiteral("ui.removeCommandItem ") + kCommandItem,
                               QStringLiteral("ui.destroyMenuItem ") + kEntryText};
    QCOMPARE(host.log.calls, expected);
    QCOMPARE(tools->subItems->GetCount(), 0);
    QVERIFY(host.ui.commandItems.empty());
    QCOMPARE(host.ui.iteratorsAlive, 0);
}

void MenuEntryTest::unloadRemovesOneEntryACall()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.LoadMenu();
    module.LoadMenu();
    host.log.clear();

    module.UnLoadMenu();
    QCOMPARE(texts(*tools), QStringList{kEntryText});
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.removeCommandItem")).size(), 1);

    // The command item of the second entry is gone already, so the host no longer holds it.
    module.UnLoadMenu();
    QCOMPARE(texts(*tools), QStringList());
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.removeCommandItem")).size(), 1);
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.destroyMenuItem")).size(), 2);

    module.UnLoadMenu();
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.destroyMenuItem")).size(), 2);
}

void MenuEntryTest::unloadIgnoresCase()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.LoadMenu();
    tools->subItems->GetItem(0)->SetText(CHxString("MOUSE gestures..."));

    module.UnLoadMenu();

    QCOMPARE(texts(*tools), QStringList());
}

void MenuEntryTest::unloadTakesTheFirstThatMatches()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    tools->subItems->items.push_back(nullptr);
    host.ui.addItem(tools->subItems.get(), QStringLiteral("Mouse Gestures"), false);
    host.ui.addItem(tools->subItems.get(), QStringLiteral("mouse gestures..."), false);
    module.LoadMenu();

    module.UnLoadMenu();

    const QStringList expected{QStringLiteral("(null)"), QStringLiteral("Mouse Gestures"), kEntryText};
    QCOMPARE(texts(*tools), expected);
    // The first had no command item; the module's own stays with its entry.
    QCOMPARE(host.ui.commandItems.size(), std::size_t(1));
}

void MenuEntryTest::unloadWithoutEntry()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.ui.addItem(tools->subItems.get(), QStringLiteral("Options"), false);
    OpenModule module;

    module.UnLoadMenu();

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("ui.workspaces")});
    QCOMPARE(texts(*tools), QStringList{QStringLiteral("Options")});
}

void MenuEntryTest::unloadWithoutToolsMenu()
{
    FakeHost host;
    FakeMenuItem *file = host.addTopLevelMenu(QStringLiteral("&File"), QStringLiteral("ID_MnFile"));
    host.ui.addItem(file->subItems.get(), kEntryText, false);
    OpenModule module;

    module.UnLoadMenu();

    QCOMPARE(host.log.calls, QStringList{QStringLiteral("ui.workspaces")});
    QCOMPARE(texts(*file), QStringList{kEntryText});
}

void MenuEntryTest::unloadWithoutHost()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;
    module.LoadMenu();
    host.log.clear();

    host.setPresent(false);
    module.UnLoadMenu();
    host.setPresent(true);
    host.hasUIManager = false;
    module.UnLoadMenu();

    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(texts(*tools), QStringList{kEntryText});
}

void MenuEntryTest::unloadOfAnItemTheHostDoesNotHold()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    tests::FakeCommandItem foreign;
    host.ui.addItem(tools->subItems.get(), kEntryText, false, QString(), &foreign);
    OpenModule module;

    module.UnLoadMenu();

    QCOMPARE(host.log.startingWith(QStringLiteral("ui.removeCommandItem")), QStringList());
    QCOMPARE(host.log.startingWith(QStringLiteral("ui.destroyMenuItem")).size(), 1);
    QCOMPARE(texts(*tools), QStringList());
}

void MenuEntryTest::unloadOfAnEntryWithoutCommand()
{
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    host.ui.addItem(tools->subItems.get(), kEntryText, false);
    OpenModule module;

    module.UnLoadMenu();

    QCOMPARE(host.log.startingWith(QStringLiteral("ui.removeCommandItem")), QStringList());
    QCOMPARE(texts(*tools), QStringList());
}

void MenuEntryTest::translatedHost()
{
    std::optional<FakeTranslator> translator;
    const auto translate = [&translator] {
        translator.emplace();
        translator->add("QObject", "Mouse Gestures...", QStringLiteral("Mausgesten ..."));
        translator->add("QObject",
                        "Customizes mouse gestures:", QStringLiteral("Richtet Mausgesten ein:"));
        translator->add("QObject", "Mouse Gestures", QStringLiteral("never asked for"));
    };
    translate();
    FakeHost host;
    FakeMenuItem *tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
    OpenModule module;

    module.LoadMenu();

    const tests::FakeCommandItem &item = *host.ui.commandItems.front();
    QCOMPARE(texts(*tools), QStringList{QStringLiteral("Mausgesten ...")});
    // Only the first part of the status text is translated, and the name is not.
    QCOMPARE(item.tip, QStringLiteral("Richtet Mausgesten ein:   GESTURE"));
    QCOMPARE(item.caption, QStringLiteral("Mouse Gestures"));
    QCOMPARE(item.command, kMacro);

    // The entry is found by its text, so only in the same language.
    translator.reset();
    module.UnLoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 1);
    translate();
    module.UnLoadMenu();
    QCOMPARE(tools->subItems->GetCount(), 0);
}

QTEST_MAIN(MenuEntryTest)
#include "tst_menuentry.moc"
