// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandStack.h"
#include "host/files/ProgramProfile.h"
#include "host/services/SystemServices.h"
#include "host/window/MainWindows.h"
#include "sdk/chx/CHxTextOutput.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenu.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/ScriptedCommand.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using gesturewidget::MainWindows;
using gesturewidget::SystemServices;
using tests::DraftWindow;
using tests::ScriptedCommand;

namespace {

// A main window that counts how often its line command ran.
class CountingWindow : public DraftWindow
{
public:
    explicit CountingWindow(bool hasTools = true)
    {
        statusBar();
        if (hasTools)
            tools = addMenu("&Tools", "toolsMenu");
        connect(line, &QAction::triggered, this, [this] { ++lines; });
    }

    [[nodiscard]] QStringList captions() const
    {
        QStringList all;
        const QList<QAction *> actions = tools->actions();
        for (const QAction *action : actions)
            all.append(action->text());
        return all;
    }
    [[nodiscard]] QString said() const { return statusBar()->currentMessage(); }
    // The menu whose caption is "Tools"; null if there is none on screen.
    [[nodiscard]] QMenu *madeTools() const
    {
        const QList<QAction *> actions = menuBar()->actions();
        for (const QAction *action : actions) {
            if (action->text() == QLatin1String("&Tools") && action->isVisible())
                return action->menu();
        }
        return nullptr;
    }

    QMenu *tools = nullptr;
    int lines = 0;
};

} // namespace

// The answers that a module gets from the host of a program with several main windows.
class SeveralWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_first = std::make_unique<CountingWindow>();
        m_second = std::make_unique<CountingWindow>();
        gesturewidget::ProgramProfile profile;
        profile.wellKnownCommands.insert(QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")});
        m_services = std::make_unique<SystemServices>(m_first.get(), profile, &m_documents,
                                                      m_folder->filePath(QStringLiteral("drafter.ini")));
        m_command = ScriptedCommand::make("GESTURE");
        m_services->commandStack().addCommand(m_command.get());
    }
    void cleanup()
    {
        m_services.reset();
        m_command = {};
        m_second.reset();
        m_first.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void menusAreThoseOfTheCurrentWindow();
    void itemsOfAnotherWindowHaveNoCommand();
    void theEntryIsInEveryToolsMenu();
    void aWindowThatComesLaterGetsTheEntry();
    void aToolsMenuIsMadeForEachWindow();
    void anEntryElsewhereStaysInItsMenu();
    void theEntryComesBackInEveryWindow();
    void theEntryRunsWhereItWasChosen();
    void anEntryOutlivesAWindow();
    void aWalkOutlivesItsWindow();
    void aCommandRunsInTheCurrentWindow();
    void aQueuedCommandRunsWhereItWasChosen();
    void aQueuedCommandWhoseWindowIsGoneRunsNowhere();
    void aQueuedCommandMayLackAnActionInItsWindow();
    void theWindowStaysWhileADialogIsOpen();
    void textsGoToTheCurrentWindow();
    void messagesBelongToTheCurrentWindow();
    void windowsGoInAnyOrder_data();
    void windowsGoInAnyOrder();

private:
    MainWindows &windows() { return m_services->windows(); }
    void addSecond() { windows().add(m_second.get()); }
    CHxUIMenuItemCollection *toolsOfCurrent()
    {
        CHxUIWorkspace *workspace = m_services->GetUIManager()->NewWorkspaceIterator()->Current();
        CHxUIMenuItemCollection *menus = workspace->GetMenuItems();
        for (int i = 0; i < menus->GetCount(); ++i) {
            if (menus->GetItem(i)->GetIdentifier() == CHxString("ID_MnTools"))
                return menus->GetItem(i)->GetSubItems();
        }
        return nullptr;
    }
    // Adds an entry as modules do.
    CHxUIMenuItem *addEntry()
    {
        CHxUIManager *manager = m_services->GetUIManager();
        CHxUICommandItem *command = manager->CreateCommandItem("_ENTRY", 0);
        command->SetMacro("^C^C_GESTURE");
        CHxUIMenuItem *entry = manager->CreateMenuItem(0, "", "", "");
        entry->SetCommandItem(command);
        entry->SetText("Gestures...");
        toolsOfCurrent()->Append(entry);
        manager->Refresh(false);
        return entry;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CountingWindow> m_first;
    std::unique_ptr<CountingWindow> m_second;
    tests::StubDocuments m_documents;
    OdSmartPtr<ScriptedCommand> m_command;
    std::unique_ptr<SystemServices> m_services;
};

void SeveralWindowsTest::menusAreThoseOfTheCurrentWindow()
{
    m_second->file->setTitle(QStringLiteral("Second"));
    addSecond();
    const auto firstMenu = [this] {
        const QString bar =
            m_services->GetMenuItems()->GetItem(0)->GetSubItems()->GetItem(0)->GetText().toQString();
        const auto menus = m_services->GetUIManager()->NewMenuIterator();
        return bar + QLatin1Char(' ') + menus->Current()->GetItems()->GetItem(0)->GetText().toQString();
    };
    QCOMPARE(firstMenu(), QStringLiteral("&File &File"));
    windows().makeCurrent(m_second.get());
    QCOMPARE(firstMenu(), QStringLiteral("Second Second"));
    m_second.reset();
    QCOMPARE(firstMenu(), QStringLiteral("&File &File"));
}

void SeveralWindowsTest::itemsOfAnotherWindowHaveNoCommand()
{
    addSecond();
    const auto fileNew = [this] {
        const auto menus = m_services->GetUIManager()->NewMenuIterator();
        return menus->Current()->GetItems()->GetItem(0)->GetSubItems()->GetItem(0);
    };
    const CHxUIMenuItem *inFirst = fileNew();
    const CHxUICommandItem *command = inFirst->GetCommandItem();
    QVERIFY(command);
    windows().makeCurrent(m_second.get());
    const CHxUIMenuItem *inSecond = fileNew();
    QVERIFY(inSecond != inFirst);
    QCOMPARE(inSecond->GetCommandItem(), command);
    QCOMPARE(inFirst->GetCommandItem(), nullptr);
    windows().makeCurrent(m_first.get());
    QCOMPARE(inFirst->GetCommandItem(), command);
    QCOMPARE(inSecond->GetCommandItem(), nullptr);
}

void SeveralWindowsTest::theEntryIsInEveryToolsMenu()
{
    addSecond();
    CHxUIMenuItem *entry = addEntry();
    QCOMPARE(m_first->captions(), QStringList{QStringLiteral("Gestures...")});
    QCOMPARE(m_second->captions(), QStringList{QStringLiteral("Gestures...")});
    QVERIFY(m_first->tools->actions().constFirst() != m_second->tools->actions().constFirst());
    // The module sees its one entry in each window.
    QCOMPARE(toolsOfCurrent()->GetItem(0), entry);
    windows().makeCurrent(m_second.get());
    QCOMPARE(toolsOfCurrent()->GetItem(0), entry);
    entry->SetText("Renamed");
    QCOMPARE(m_first->captions(), QStringList{QStringLiteral("Renamed")});
    QCOMPARE(m_second->captions(), QStringList{QStringLiteral("Renamed")});
    toolsOfCurrent()->Remove(entry);
    QCOMPARE(m_first->captions(), QStringList());
    QCOMPARE(m_second->captions(), QStringList());
    toolsOfCurrent()->Append(entry);
    QCOMPARE(m_first->captions(), QStringList{QStringLiteral("Renamed")});
    m_services->GetUIManager()->DestroyMenuItem(entry);
    QCOMPARE(m_first->captions(), QStringList());
    QCOMPARE(m_second->captions(), QStringList());
}

void SeveralWindowsTest::aWindowThatComesLaterGetsTheEntry()
{
    addEntry();
    m_second->tools->addAction(QStringLiteral("Options"));
    addSecond();
    QCOMPARE(m_second->captions(),
             QStringList({QStringLiteral("Options"), QStringLiteral("Gestures...")}));
    const QAction *action = m_second->tools->actions().constLast();
    QCOMPARE(action->statusTip(), m_first->tools->actions().constLast()->statusTip());
}

void SeveralWindowsTest::aToolsMenuIsMadeForEachWindow()
{
    m_second = std::make_unique<CountingWindow>(false);
    addSecond();
    QVERIFY(!m_second->madeTools());
    CHxUIMenuItem *entry = addEntry();
    QVERIFY(m_second->madeTools());
    QCOMPARE(m_second->madeTools()->actions().size(), 1);
    m_services->GetUIManager()->DestroyMenuItem(entry);
    QVERIFY(!m_second->madeTools());
}

void SeveralWindowsTest::anEntryElsewhereStaysInItsMenu()
{
    addSecond();
    CHxUIMenuItem *entry = addEntry();
    CHxUIWorkspace *workspace = m_services->GetUIManager()->NewWorkspaceIterator()->Current();
    CHxUIMenuItemCollection *file = workspace->GetMenuItems()->GetItem(0)->GetSubItems();
    const int before = file->GetCount();
    file->Append(entry);
    QCOMPARE(file->GetCount(), before + 1);
    QCOMPARE(m_first->captions(), QStringList());
    QCOMPARE(m_second->captions(), QStringList());
    QCOMPARE(m_second->file->actions().size(), before);
}

void SeveralWindowsTest::theEntryComesBackInEveryWindow()
{
    addSecond();
    addEntry();
    for (const CountingWindow *window : {m_first.get(), m_second.get()}) {
        windows().makeCurrent(m_second.get());
        static_cast<void>(m_services->GetUICommandManager()->NewGroupIterator()); // reads its menus
        window->tools->clear();
        window->tools->addAction(QStringLiteral("New"));
        QTRY_COMPARE(window->captions(),
                     QStringList({QStringLiteral("New"), QStringLiteral("Gestures...")}));
    }
}

void SeveralWindowsTest::theEntryRunsWhereItWasChosen()
{
    addSecond();
    addEntry();
    QWidget *ranIn = nullptr;
    m_command->body = [&] { ranIn = windows().current(); };
    m_second->tools->actions().constFirst()->trigger();
    QTRY_COMPARE(m_command->runs, 1);
    QCOMPARE(ranIn, m_second.get());
    m_first->tools->actions().constFirst()->trigger();
    QTRY_COMPARE(m_command->runs, 2);
    QCOMPARE(ranIn, m_first.get());
}

void SeveralWindowsTest::anEntryOutlivesAWindow()
{
    addSecond();
    CHxUIMenuItem *entry = addEntry();
    m_first.reset();
    QCOMPARE(windows().current(), m_second.get());
    QCOMPARE(m_second->captions(), QStringList{QStringLiteral("Gestures...")});
    QCOMPARE(toolsOfCurrent()->GetItem(0), entry);
    m_second->tools->actions().constFirst()->trigger();
    QTRY_COMPARE(m_command->runs, 1);
    m_services->GetUIManager()->DestroyMenuItem(entry);
    QCOMPARE(m_second->captions(), QStringList());
}

// A module may be in the middle of a walk, in a loop of its own.
void SeveralWindowsTest::aWalkOutlivesItsWindow()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    CHxUIMenuItemCollection *tools = toolsOfCurrent();
    const auto menus = m_services->GetUIManager()->NewMenuIterator();
    const CHxUIMenuItem *bar = m_services->GetMenuItems()->GetItem(0);
    m_second.reset();
    QCOMPARE(tools->GetCount(), 0);
    QCOMPARE(menus->Current()->GetItems()->GetCount(), 0);
    QCOMPARE(bar->GetSubItems()->GetCount(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(toolsOfCurrent()->GetCount(), 0);
}

void SeveralWindowsTest::aCommandRunsInTheCurrentWindow()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    QVERIFY(m_services->RunCommand("ID_LINE", true)->IsFound());
    QCOMPARE(m_second->lines, 1);
    QCOMPARE(m_first->lines, 0);
}

void SeveralWindowsTest::aQueuedCommandRunsWhereItWasChosen()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    QVERIFY(m_services->RunCommand("ID_LINE", false)->IsFound());
    windows().makeCurrent(m_first.get());
    windows().setBusy([] { return true; }); // a gesture has begun in the first window
    QTRY_COMPARE(m_second->lines, 1);
    QCOMPARE(m_first->lines, 0);
    QCOMPARE(windows().current(), m_first.get());
}

void SeveralWindowsTest::aQueuedCommandWhoseWindowIsGoneRunsNowhere()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    QVERIFY(m_services->RunCommand("ID_LINE", false)->IsFound());
    QVERIFY(m_services->RunCommand("^C^C_GESTURE", false)->IsFound());
    m_second.reset();
    QVERIFY(m_services->RunCommand("ID_LINE", false)->IsFound());
    QTRY_COMPARE(m_first->lines, 1);
    QCOMPARE(m_command->runs, 0);
    QCOMPARE(m_first->said(), QString());
}

void SeveralWindowsTest::aQueuedCommandMayLackAnActionInItsWindow()
{
    delete m_second->line;
    addSecond();
    QVERIFY(m_services->RunCommand("ID_LINE", true)->IsFound()); // known from the first window
    windows().makeCurrent(m_second.get());
    QVERIFY(!m_services->RunCommand("ID_LINE", false)->IsFound());
    windows().makeCurrent(m_first.get());
    QTRY_VERIFY(m_second->said().startsWith(QStringLiteral("Line: not available at the moment.")));
    QCOMPARE(m_first->lines, 1);
    QCOMPARE(m_first->said(), QString());
}

void SeveralWindowsTest::theWindowStaysWhileADialogIsOpen()
{
    addSecond();
    m_first->show();
    m_second->show();
    m_second->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_second.get()));
    QCOMPARE(windows().current(), m_second.get());
    m_command->body = [this] {
        QEvent event(QEvent::WindowActivate);
        QCoreApplication::sendEvent(m_first.get(), &event);
        windows().makeCurrent(m_first.get());
        QCOMPARE(windows().current(), m_second.get());
        m_second.reset();
        QCOMPARE(windows().current(), m_first.get());
    };
    QVERIFY(m_services->RunCommand("^C^C_GESTURE", true)->IsFound());
    QCOMPARE(m_command->runs, 1);
    QCOMPARE(windows().current(), m_first.get());
}

void SeveralWindowsTest::textsGoToTheCurrentWindow()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    m_services->GetTextOutput()->SetText("Shown", false);
    QCOMPARE(m_second->said(), QStringLiteral("Shown"));
    QCOMPARE(m_first->said(), QString());
    m_second.reset();
    m_services->GetTextOutput()->SetText("In the first", true);
    QCOMPARE(m_first->said(), QStringLiteral("In the first"));
}

void SeveralWindowsTest::messagesBelongToTheCurrentWindow()
{
    addSecond();
    windows().makeCurrent(m_second.get());
    const QWidget *parent = nullptr;
    QTimer::singleShot(0, this, [&parent] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        parent = box->parentWidget();
        box->accept();
    });
    m_services->ShowMessage("Text", "Caption", 0);
    QCOMPARE(parent, m_second.get());
    QVERIFY(!m_services->UsesLargeIcons());
    m_second->setIconSize(QSize(32, 32));
    QVERIFY(m_services->UsesLargeIcons());
}

void SeveralWindowsTest::windowsGoInAnyOrder_data()
{
    QTest::addColumn<bool>("isFirst"); // goes first
    QTest::addColumn<bool>("isSecondCurrent");
    for (const bool isFirst : {false, true}) {
        for (const bool isSecondCurrent : {false, true})
            QTest::addRow("%s first, %s current", isFirst ? "first" : "second",
                          isSecondCurrent ? "second" : "first")
                << isFirst << isSecondCurrent;
    }
}

void SeveralWindowsTest::windowsGoInAnyOrder()
{
    QFETCH(bool, isFirst);
    QFETCH(bool, isSecondCurrent);
    addSecond();
    CHxUIMenuItem *entry = addEntry();
    windows().makeCurrent(isSecondCurrent ? m_second.get() : m_first.get());
    static_cast<void>(m_services->GetUICommandManager()->NewGroupIterator());
    std::unique_ptr<CountingWindow> &goes = isFirst ? m_first : m_second;
    std::unique_ptr<CountingWindow> &stays = isFirst ? m_second : m_first;
    goes.reset();
    QCOMPARE(windows().current(), stays.get());
    QVERIFY(m_services->RunCommand("ID_LINE", true)->IsFound());
    QCOMPARE(stays->lines, 1);
    stays.reset();
    QCOMPARE(windows().current(), nullptr);
    // Everything still answers, although the session has ended.
    QVERIFY(!m_services->RunCommand("ID_LINE", true)->IsFound());
    QCOMPARE(m_services->GetMenuItems()->GetCount(), 0);
    m_services->GetTextOutput()->SetText("Nowhere", true);
    m_services->GetUIManager()->DestroyMenuItem(entry);
    QCoreApplication::processEvents();
}

QTEST_MAIN(SeveralWindowsTest)
#include "tst_severalwindows.moc"
