// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandRunner.h"
#include "host/commands/CommandStack.h"
#include "host/window/MainWindows.h"
#include "host/window/TextOutput.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/ScriptedCommand.h"
#include "tests/host/support/StubDocuments.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

#include <memory>
#include <utility>

using gesturewidget::CommandRunner;
using tests::DraftWindow;
using tests::ScriptedCommand;

namespace {

// A view that records its keys.
class View : public QWidget
{
public:
    QStringList keys;
    bool diesOfEscape = false;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys.append(QStringLiteral("press %1")
                        .arg(event->key() == Qt::Key_Escape ? QStringLiteral("Escape") : event->text()));
        if (diesOfEscape)
            delete this;
    }
    void keyReleaseEvent(QKeyEvent *event) override
    {
        keys.append(QStringLiteral("release %1")
                        .arg(event->key() == Qt::Key_Escape ? QStringLiteral("Escape") : event->text()));
    }
};

// A dialog that counts how often it is raised.
class Dialog : public QDialog
{
public:
    int raises = 0;

protected:
    bool event(QEvent *event) override
    {
        raises += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return QDialog::event(event);
    }
};

} // namespace

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_window = std::make_unique<DraftWindow>();
        m_view = new View;
        m_window->setCentralWidget(m_view);
        m_window->statusBar();
        m_window->show();
        m_documents = std::make_unique<tests::StubDocuments>();
        m_documents->view = m_view;
        m_stack = std::make_unique<gesturewidget::CommandStack>();
        m_catalogue = std::make_unique<gesturewidget::CommandCatalogue>(
            m_window.get(),
            QHash<QString, QStringList>{{QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")}}});
        m_output = std::make_unique<gesturewidget::TextOutput>(m_window.get());
        m_runner = std::make_unique<CommandRunner>(*m_stack, *m_catalogue, *m_output, m_documents.get());
        m_command = ScriptedCommand::make("GESTURE");
        m_stack->addCommand(m_command.get());
    }
    void cleanup()
    {
        m_runner.reset();
        m_output.reset();
        m_catalogue.reset();
        m_stack.reset();
        m_documents.reset();
        m_window.reset();
        m_command = {};
        QCOMPARE(ScriptedCommand::alive, 0);
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void aMacroCancelsAndRunsACommand();
    void macrosAreReadAsTyped_data();
    void macrosAreReadAsTyped();
    void aMacroOfCancelsOnlyRunsNothing();
    void withoutAViewNothingIsCancelled();
    void anUnknownMacroIsSaid();
    void anActionIsTriggered_data();
    void anActionIsTriggered();
    void aDisabledActionIsSaid();
    void anActionInDisabledPlacesIsSaid_data();
    void anActionInDisabledPlacesIsSaid();
    void menusThatContainEachOtherAreNoTrap();
    void anActionThatIsGoneIsSaid();
    void aRememberedCommandSaysWhereItLives_data();
    void aRememberedCommandSaysWhereItLives();
    void anUnknownCommandIsSaid();
    void withoutWaitingItRunsFromTheEventLoop();
    void whatVanishesBeforeItRunsIsSaid();
    void aRunnerThatEndsRunsNothing();
    void waitingCommandsMayBeDropped();
    void aQueuedCommandRunsInItsWindow();
    void aQueuedCommandGoesWithItsWindow();
    void cancellingMayEndTheView();
    void aCommandMayRemoveItself();
    void aCommandMayEndTheWindow();
    void aCommandMayEndTheRunner();
    void anActionMayEndTheWindow();
    void aCommandThatRunsComesToTheFront();
    void itsDialogComesAboveOtherWindows();
    void aCommandThatRunsWithoutADialogIsNotRunAgain();
    void aTypedCommandRunsFromTheEventLoop();
    void theResultBelongsToTheCaller();

private:
    bool run(const char *command, bool wait = true)
    {
        const CHxCommandResultPtr result = m_runner->run(QString::fromUtf8(command), wait);
        return result && result->IsFound();
    }
    void runIn(gesturewidget::MainWindows &windows)
    {
        m_runner = std::make_unique<CommandRunner>(*m_stack, *m_catalogue, *m_output, m_documents.get(),
                                                   &windows);
    }
    QString said() const { return m_window->statusBar()->currentMessage(); }

    std::unique_ptr<DraftWindow> m_window;
    View *m_view = nullptr;
    std::unique_ptr<tests::StubDocuments> m_documents;
    std::unique_ptr<gesturewidget::CommandStack> m_stack;
    std::unique_ptr<gesturewidget::CommandCatalogue> m_catalogue;
    std::unique_ptr<gesturewidget::TextOutput> m_output;
    std::unique_ptr<CommandRunner> m_runner;
    OdSmartPtr<ScriptedCommand> m_command;
};

void CommandRunnerTest::aMacroCancelsAndRunsACommand()
{
    m_command->body = [this] { m_view->keys.append(QStringLiteral("command")); };
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_view->keys, QStringList({QStringLiteral("press Escape"), QStringLiteral("release Escape"),
                                        QStringLiteral("press Escape"), QStringLiteral("release Escape"),
                                        QStringLiteral("command")}));
    QCOMPARE(said(), QString());
}

void CommandRunnerTest::macrosAreReadAsTyped_data()
{
    QTest::addColumn<QString>("macro");
    QTest::addColumn<int>("escapes");
    QTest::newRow("one cancel") << QStringLiteral("^CGESTURE") << 1;
    QTest::newRow("small letters") << QStringLiteral("^c^c_gesture") << 2;
    QTest::newRow("spaces") << QStringLiteral(" ^C ^C  _GESTURE  ") << 2;
    QTest::newRow("semicolon") << QStringLiteral("^C^C^C_GESTURE;") << 3;
    QTest::newRow("semicolons and spaces") << QStringLiteral("^C^C_GESTURE ; ;") << 2;
    QTest::newRow("newline") << QStringLiteral("^C^C_GESTURE\n") << 2;
}

void CommandRunnerTest::macrosAreReadAsTyped()
{
    QFETCH(QString, macro);
    QFETCH(int, escapes);
    QVERIFY(run(qPrintable(macro)));
    QCOMPARE(m_command->runs, 1);
    QCOMPARE(m_view->keys.size(), 2 * escapes);
}

void CommandRunnerTest::aMacroOfCancelsOnlyRunsNothing()
{
    QVERIFY(run("^C^C"));
    QCOMPARE(m_command->runs, 0);
    QCOMPARE(m_view->keys.size(), 4);
    QCOMPARE(said(), QString());
}

void CommandRunnerTest::withoutAViewNothingIsCancelled()
{
    m_view->hide(); // like a stand-in, which is never shown
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_view->keys, QStringList());
    m_documents->view = nullptr;
    QVERIFY(run("^C^C_GESTURE"));
    m_runner = std::make_unique<CommandRunner>(*m_stack, *m_catalogue, *m_output, nullptr);
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_command->runs, 3);
}

void CommandRunnerTest::anUnknownMacroIsSaid()
{
    QVERIFY(!run("^C^C_NOTHING"));
    QCOMPARE(m_view->keys.size(), 4);
    QVERIFY2(said().contains(QStringLiteral("_NOTHING")), qPrintable(said()));
    QVERIFY(!run("^C^CdrawLine")); // an action is not a command of the stack
}

void CommandRunnerTest::anActionIsTriggered_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("identifier") << QStringLiteral("ID_LINE");
    QTest::newRow("key") << QStringLiteral("drawLine");
}

void CommandRunnerTest::anActionIsTriggered()
{
    QFETCH(QString, command);
    const QSignalSpy triggered(m_window->line, &QAction::triggered);
    m_window->line->setCheckable(true);
    QVERIFY(run(qPrintable(command)));
    QCOMPARE(triggered.count(), 1);
    QVERIFY(m_window->line->isChecked());
    QCOMPARE(m_view->keys, QStringList());
    QCOMPARE(said(), QString());
}

void CommandRunnerTest::aDisabledActionIsSaid()
{
    const QSignalSpy triggered(m_window->line, &QAction::triggered);
    m_window->line->setEnabled(false);
    QVERIFY(!run("ID_LINE"));
    QCOMPARE(triggered.count(), 0);
    QVERIFY2(said().contains(QStringLiteral("Line")), qPrintable(said()));
    QVERIFY2(said().contains(QStringLiteral("cannot be used")), qPrintable(said()));
}

void CommandRunnerTest::anActionInDisabledPlacesIsSaid_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("disabled");
    QTest::addColumn<bool>("runs");
    const auto row = [](const char *title, const char *command, const QStringList &disabled, bool runs) {
        QTest::newRow(title) << QString::fromLatin1(command) << disabled << runs;
    };
    const QString menu = QStringLiteral("menu");
    const QString entry = QStringLiteral("entry");
    const QString outer = QStringLiteral("outer");
    const QString bar = QStringLiteral("bar");
    const QString toolBar = QStringLiteral("toolbar");
    row("a menu", "drawCircle", {menu}, false);
    row("the entry of a menu", "drawCircle", {entry}, false);
    row("the menu around its menu", "exportPicture", {outer}, false);
    row("the menu bar", "drawCircle", {bar}, false);
    row("the menu bar of a menu in a menu", "exportPicture", {bar}, false);
    row("the toolbar", "drawArc", {toolBar}, false);
    row("one of two places", "ID_LINE", {menu}, true);
    row("the other one", "ID_LINE", {toolBar}, true);
    row("both places", "ID_LINE", {menu, toolBar}, false);
    row("another menu", "drawCircle", {outer, toolBar}, true);
}

void CommandRunnerTest::anActionInDisabledPlacesIsSaid()
{
    QFETCH(QString, command);
    QFETCH(QStringList, disabled);
    QFETCH(bool, runs);
    m_window->exportPicture->setObjectName(QStringLiteral("exportPicture"));
    const auto *item = m_catalogue->find(command);
    QVERIFY(item && item->action());
    const QSignalSpy triggered(item->action(), &QAction::triggered);
    const auto setEnabled = [&](bool isEnabled) {
        for (const QString &place : std::as_const(disabled)) {
            if (place == QLatin1String("menu"))
                m_window->draw->setEnabled(isEnabled);
            else if (place == QLatin1String("entry"))
                m_window->draw->menuAction()->setEnabled(isEnabled);
            else if (place == QLatin1String("outer"))
                m_window->file->setEnabled(isEnabled);
            else if (place == QLatin1String("bar"))
                m_window->menuBar()->setEnabled(isEnabled);
            else
                m_window->toolBar->setEnabled(isEnabled);
        }
    };
    setEnabled(false);
    QCOMPARE(run(qPrintable(command)), runs);
    QCOMPARE(triggered.count(), runs ? 1 : 0);
    QCOMPARE(said().contains(QStringLiteral("cannot be used")), !runs);
    setEnabled(true);
    QVERIFY(run(qPrintable(command)));
    QCOMPARE(triggered.count(), runs ? 2 : 1);
}

void CommandRunnerTest::menusThatContainEachOtherAreNoTrap()
{
    QVERIFY(m_catalogue->find(QStringLiteral("drawCircle")));
    const QSignalSpy triggered(m_window->circle, &QAction::triggered);
    m_window->draw->addMenu(m_window->file);
    m_window->file->addMenu(m_window->draw);
    // As its children they would be disabled with the menu bar.
    for (QMenu *menu : {m_window->draw, m_window->file})
        menu->setParent(m_window.get(), menu->windowFlags());
    m_window->menuBar()->setEnabled(false);
    QVERIFY(m_window->draw->isEnabled());
    QVERIFY(!run("drawCircle"));
    m_window->menuBar()->setEnabled(true);
    QVERIFY(run("drawCircle"));
    QCOMPARE(triggered.count(), 1);
}

void CommandRunnerTest::anActionThatIsGoneIsSaid()
{
    QVERIFY(m_catalogue->find(QStringLiteral("ID_LINE")));
    const QSignalSpy triggered(m_window->circle, &QAction::triggered);
    m_window->draw->removeAction(m_window->circle);
    QVERIFY(!run("drawCircle"));
    QCOMPARE(triggered.count(), 0);
    QVERIFY2(said().contains(QStringLiteral("Circle")), qPrintable(said()));
    QVERIFY2(said().contains(QStringLiteral("not available")), qPrintable(said()));
    delete m_window->line;
    QVERIFY(!run("ID_LINE"));
    QVERIFY2(said().contains(QStringLiteral("Line: not available")), qPrintable(said()));
}

void CommandRunnerTest::aRememberedCommandSaysWhereItLives_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("isInToolBar");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *name, const char *group, bool isInToolBar, const char *line) {
        QTest::newRow(name) << QString::fromLatin1(group) << isInToolBar << QString::fromLatin1(line);
    };
    const char *const plain = "Fillet 100%2: not available at the moment.";
    row("nowhere", "", false, plain);
    row("menu of another task", "Sketch %1", false,
        "Fillet 100%2: not available at the moment. "
        "It belongs to the menu \"Sketch %1\", which is not there now.");
    row("menu that is there", "Draw", false,
        "Fillet 100%2: not available at the moment. The menu \"Draw\" does not have it now.");
    row("toolbar of another task", "Sketch tools", true,
        "Fillet 100%2: not available at the moment. "
        "It belongs to the toolbar \"Sketch tools\", which is not there now.");
    row("toolbar that is there", "Drawing", true,
        "Fillet 100%2: not available at the moment. The toolbar \"Drawing\" does not have it now.");
}

void CommandRunnerTest::aRememberedCommandSaysWhereItLives()
{
    QFETCH(QString, group);
    QFETCH(bool, isInToolBar);
    QFETCH(QString, line);
    m_catalogue->remember(
        {{QStringLiteral("sketchFillet"), QStringLiteral("sketchFillet"), QStringLiteral("Fillet 100%2"),
          QString(), group, QByteArray(), isInToolBar}});
    QVERIFY(!run("sketchFillet"));
    QCOMPARE(said(), line);
}

void CommandRunnerTest::anUnknownCommandIsSaid()
{
    for (const char *command : {"nothing", "GESTURE", "_GESTURE", "&Line"}) {
        QVERIFY(!run(command));
        QVERIFY2(said().contains(QString::fromUtf8(command)), qPrintable(said()));
    }
    QVERIFY(!run(""));
    QCOMPARE(m_command->runs, 0);
}

void CommandRunnerTest::withoutWaitingItRunsFromTheEventLoop()
{
    const QSignalSpy triggered(m_window->line, &QAction::triggered);
    QVERIFY(run("^C^C_GESTURE", false));
    QVERIFY(run("ID_LINE", false));
    QVERIFY(!run("nothing", false));
    QCOMPARE(m_command->runs, 0);
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(m_view->keys, QStringList());
    QCOMPARE(said(), QString());
    QTRY_VERIFY(!said().isEmpty()); // the last of the three
    QCOMPARE(m_command->runs, 1);
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(m_view->keys.size(), 4);
}

void CommandRunnerTest::whatVanishesBeforeItRunsIsSaid()
{
    QVERIFY(run("^C^C_GESTURE", false));
    m_stack->removeCommand(m_command.get());
    QTRY_VERIFY(said().contains(QStringLiteral("_GESTURE")));
    QCOMPARE(m_command->runs, 0);
    QVERIFY(run("ID_LINE", false));
    delete m_window->line;
    QTRY_VERIFY(said().contains(QStringLiteral("Line: not available")));
}

void CommandRunnerTest::aRunnerThatEndsRunsNothing()
{
    QVERIFY(run("^C^C_GESTURE", false));
    m_runner.reset();
    QCoreApplication::processEvents();
    QCOMPARE(m_command->runs, 0);
}

void CommandRunnerTest::waitingCommandsMayBeDropped()
{
    QVERIFY(run("^C^C_GESTURE", false));
    m_runner->dropWaiting();
    QCoreApplication::processEvents();
    QCOMPARE(m_command->runs, 0);

    QVERIFY(run("^C^C_GESTURE", false)); // a later one
    QTRY_COMPARE(m_command->runs, 1);

    m_runner->runStackCommand(QStringLiteral("GESTURE")); // a typed one is not dropped
    m_runner->dropWaiting();
    QTRY_COMPARE(m_command->runs, 2);
}

void CommandRunnerTest::aQueuedCommandRunsInItsWindow()
{
    QVERIFY(QTest::qWaitForWindowActive(m_window.get())); // later, this would make it current
    DraftWindow other;
    gesturewidget::MainWindows windows(m_window.get());
    windows.add(&other);
    runIn(windows);
    const QWidget *window = nullptr;
    m_command->body = [&] { window = windows.current(); };
    QVERIFY(run("^C^C_GESTURE", false));
    windows.makeCurrent(&other);
    QTRY_COMPARE(m_command->runs, 1);
    QCOMPARE(window, m_window.get());
    QCOMPARE(windows.current(), &other);
    m_runner.reset();
}

void CommandRunnerTest::aQueuedCommandGoesWithItsWindow()
{
    auto other = std::make_unique<DraftWindow>();
    gesturewidget::MainWindows windows(m_window.get());
    windows.add(other.get());
    runIn(windows);
    windows.makeCurrent(other.get());
    QVERIFY(run("^C^C_GESTURE", false));
    other.reset();
    QCOMPARE(windows.current(), m_window.get());
    QCoreApplication::processEvents();
    QCOMPARE(m_command->runs, 0);
    m_runner.reset();
}

void CommandRunnerTest::cancellingMayEndTheView()
{
    auto *mortal = new View;
    mortal->diesOfEscape = true;
    m_window->setCentralWidget(mortal);
    mortal->show();
    m_documents->view = mortal;
    connect(mortal, &QObject::destroyed, this, [this] { m_documents->view = nullptr; });
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_documents->view, nullptr);
    QCOMPARE(m_command->runs, 1);
}

void CommandRunnerTest::aCommandMayRemoveItself()
{
    m_command->body = [stack = m_stack.get(), command = m_command.get()] {
        stack->removeCommand(command);
    };
    m_command = {}; // the stack's reference is the only one now
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(ScriptedCommand::alive, 0);
}

void CommandRunnerTest::aCommandMayEndTheWindow()
{
    m_command->body = [this] {
        m_documents->view = nullptr;
        m_window.reset();
    };
    QVERIFY(run("^C^C_GESTURE"));
    QVERIFY(!m_window);
    m_runner->run(QStringLiteral("ID_LINE"), true); // there is nobody to tell
    m_runner->run(QStringLiteral("^C^C_NOTHING"), true);
}

void CommandRunnerTest::aCommandMayEndTheRunner()
{
    m_command->body = [this] { m_runner.reset(); };
    QVERIFY(run("^C^C_GESTURE"));
    QVERIFY(!m_runner);
}

void CommandRunnerTest::anActionMayEndTheWindow()
{
    connect(m_window->line, &QAction::triggered, this, [this] {
        m_documents->view = nullptr;
        m_runner.reset();
        m_window.reset();
    });
    QVERIFY(run("ID_LINE", false));
    QTRY_VERIFY(!m_window);
}

void CommandRunnerTest::aCommandThatRunsComesToTheFront()
{
    int raised = 0;
    m_command->body = [&] {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        dialog.showMinimized();
        m_runner->run(QStringLiteral("^C^C_GESTURE"), true); // as somebody types it again
        raised += dialog.isMinimized() ? 0 : 1;
    };
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_command->runs, 1);
    QCOMPARE(raised, 1);
    m_command->body = nullptr;
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_command->runs, 2);
}

void CommandRunnerTest::itsDialogComesAboveOtherWindows()
{
    bool isAbove = false;
    bool isActive = false;
    m_command->body = [&] {
        Dialog dialog;
        dialog.setModal(true);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        dialog.raises = 0;
        m_runner->run(QStringLiteral("^C^C_GESTURE"), true);
        isAbove = dialog.raises == 1;
        isActive = QTest::qWaitForWindowActive(&dialog);
    };
    QVERIFY(run("^C^C_GESTURE"));
    QVERIFY(isAbove);
    QVERIFY(isActive);
}

void CommandRunnerTest::aCommandThatRunsWithoutADialogIsNotRunAgain()
{
    m_command->body = [this] { QVERIFY(run("^C^C_GESTURE")); };
    QVERIFY(run("^C^C_GESTURE"));
    QCOMPARE(m_command->runs, 1);
}

void CommandRunnerTest::aTypedCommandRunsFromTheEventLoop()
{
    m_runner->runStackCommand(QStringLiteral("gesture"));
    QCOMPARE(m_command->runs, 0);
    QTRY_COMPARE(m_command->runs, 1);
    QCOMPARE(m_view->keys, QStringList());
}

void CommandRunnerTest::theResultBelongsToTheCaller()
{
    const CHxCommandResultPtr result = m_runner->run(QStringLiteral("ID_LINE"), true);
    QVERIFY(result);
    QCOMPARE(result->numRefs(), 1L);
    m_runner.reset();
    QVERIFY(result->IsFound());
}

QTEST_MAIN(CommandRunnerTest)
#include "tst_commandrunner.moc"
