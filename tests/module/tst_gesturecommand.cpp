// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The command GESTURE: its names, what it opens over which window, and what it returns.

#include "dialog/MgDonutDialogManager.h"
#include "module/CHxGestureCommand.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FatalWarnings.h"

#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

using tests::FakeHost;
using tests::OpenModule;

// Acts once on the dialog that a call is about to open.
class WhileOpen : public QObject
{
public:
    explicit WhileOpen(std::function<void(MgDonutDialogManager *)> act)
        : m_act(std::move(act))
    {
        connect(&m_timer, &QTimer::timeout, this, &WhileOpen::look);
        m_timer.start(0);
    }

    // The number of dialogs seen; 1 after the call.
    int met = 0;
    // The dialog; null after its destruction.
    QPointer<MgDonutDialogManager> dialog;

private:
    void look()
    {
        auto *open = qobject_cast<MgDonutDialogManager *>(QApplication::activeModalWidget());
        if (!open || open == dialog)
            return;
        ++met;
        dialog = open;
        m_act(open);
    }

    std::function<void(MgDonutDialogManager *)> m_act;
    QTimer m_timer;
};

// Does what a host does with "^C^C_GESTURE": cancels the running command twice, then types the rest.
void typeMacro(FakeHost &host, QString macro)
{
    while (macro.startsWith(QLatin1String("^C")))
        macro.remove(0, 2);
    OdEdCommand *command = host.stack.lookupCommand(OdString(macro));
    QVERIFY(command);
    command->execute(nullptr);
}

} // namespace

class GestureCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void names();
    void everythingElseIsTheHostsOwn();
    void livesByValue();
    void returnsTheSameForEveryAnswer_data();
    void returnsTheSameForEveryAnswer();
    void dialogIsModalAndGone();
    void dialogsParent_data();
    void dialogsParent();
    void typingTheNameOpensTheDialog_data();
    void typingTheNameOpensTheDialog();
    void choosingTheEntryOpensTheDialog();
    void mainWindowGoesWhileTheDialogIsOpen();
    void hostThrowsWhileTheDialogIsMade();
    void runsWithoutAnyHost();

private:
    tests::OlderSettings m_settings;
};

void GestureCommandTest::names()
{
    const OdStaticRxObject<CHxGestureCommand> command;
    QCOMPARE(command.globalName().toQString(), QStringLiteral("_GESTURE"));
    QCOMPARE(command.localName().toQString(), QStringLiteral("GESTURE"));
}

void GestureCommandTest::everythingElseIsTheHostsOwn()
{
    const OdStaticRxObject<CHxGestureCommand> command;
    QCOMPARE(command.groupName().toQString(), QStringLiteral("HX_COMMANDS"));
    QCOMPARE(command.flags(), 0L);
    QCOMPARE(command.GetHelpId(), 0);
    QCOMPARE(command.module(), nullptr);
}

void GestureCommandTest::livesByValue()
{
    OdStaticRxObject<CHxGestureCommand> command;
    for (int i = 0; i < 3; ++i)
        command.release();
    command.addRef();
    QCOMPARE(command.numRefs(), 1L);
    QCOMPARE(command.localName().toQString(), QStringLiteral("GESTURE"));
}

void GestureCommandTest::returnsTheSameForEveryAnswer_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("accepted") << static_cast<int>(QDialog::Accepted);
    QTest::newRow("cancelled") << static_cast<int>(QDialog::Rejected);
    QTest::newRow("something else") << 77;
}

void GestureCommandTest::returnsTheSameForEveryAnswer()
{
    QFETCH(int, answer);

    FakeHost host;
    OdStaticRxObject<CHxGestureCommand> command;
    const WhileOpen opened([answer](MgDonutDialogManager *dialog) { dialog->done(answer); });

    QCOMPARE(command.Execute(nullptr), 5100);
    QCOMPARE(opened.met, 1);
}

void GestureCommandTest::dialogIsModalAndGone()
{
    FakeHost host;
    OdStaticRxObject<CHxGestureCommand> command;
    bool modal = false;
    const WhileOpen opened([&modal](MgDonutDialogManager *dialog) {
        modal = dialog->isModal() && dialog->isVisible();
        dialog->reject();
    });

    static_cast<void>(command.Execute(nullptr));

    QVERIFY(modal);
    QCOMPARE(opened.met, 1);
    QVERIFY(opened.dialog.isNull()); // destroyed before the command returned
}

void GestureCommandTest::dialogsParent_data()
{
    QTest::addColumn<bool>("services");
    QTest::addColumn<bool>("frame");
    QTest::addColumn<bool>("window");
    QTest::newRow("main window") << true << true << true;
    QTest::newRow("no main window") << true << true << false;
    QTest::newRow("no main frame") << true << false << true;
    QTest::newRow("no services") << false << true << true;
}

void GestureCommandTest::dialogsParent()
{
    QFETCH(bool, services);
    QFETCH(bool, frame);
    QFETCH(bool, window);

    FakeHost host;
    QWidget mainWindow;
    if (window)
        host.mainWindow = &mainWindow;
    host.hasMainFrame = frame;
    host.setPresent(services);
    OdStaticRxObject<CHxGestureCommand> command;
    QWidget *parent = nullptr;
    const WhileOpen opened([&parent](MgDonutDialogManager *dialog) {
        parent = dialog->parentWidget();
        dialog->reject();
    });

    QCOMPARE(command.Execute(nullptr), 5100);

    QCOMPARE(opened.met, 1);
    const bool complete = services && frame && window;
    // Qt does not keep the desktop widget as a parent, so the dialog has none.
    QCOMPARE(parent, complete ? &mainWindow : nullptr);
}

void GestureCommandTest::typingTheNameOpensTheDialog_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("local") << QStringLiteral("GESTURE");
    QTest::newRow("global") << QStringLiteral("_GESTURE");
    QTest::newRow("small letters") << QStringLiteral("gesture");
}

void GestureCommandTest::typingTheNameOpensTheDialog()
{
    QFETCH(QString, typed);

    FakeHost host;
    OpenModule module;
    module.initApp();
    const WhileOpen opened([](MgDonutDialogManager *dialog) { dialog->reject(); });

    OdEdCommand *command = host.stack.lookupCommand(OdString(typed));
    QVERIFY(command);
    command->execute(nullptr);

    QCOMPARE(opened.met, 1);
    module.mainFrameDestroyed(nullptr);
    QVERIFY(!host.stack.lookupCommand(OdString(typed)));
}

void GestureCommandTest::choosingTheEntryOpensTheDialog()
{
    FakeHost host;
    tests::FakeMenuItem *tools =
        host.addTopLevelMenu(QStringLiteral("&Tools"), QStringLiteral("ID_MnTools"));
    OpenModule module;
    module.initApp();
    module.mainFrameCreated(nullptr);
    const WhileOpen opened([](MgDonutDialogManager *dialog) { dialog->accept(); });

    const CHxUIMenuItem *entry = tools->subItems->GetItem(0);
    QVERIFY(entry && entry->GetCommandItem());
    typeMacro(host, entry->GetCommandItem()->GetCommandString().toQString());

    QCOMPARE(opened.met, 1);
}

void GestureCommandTest::mainWindowGoesWhileTheDialogIsOpen()
{
    FakeHost host;
    auto window = std::make_unique<QWidget>();
    host.mainWindow = window.get();
    OdStaticRxObject<CHxGestureCommand> command;
    const WhileOpen opened([&window](MgDonutDialogManager *) { window.reset(); });

    QCOMPARE(command.Execute(nullptr), 5100);

    QCOMPARE(opened.met, 1);
    QVERIFY(opened.dialog.isNull());
}

void GestureCommandTest::hostThrowsWhileTheDialogIsMade()
{
    FakeHost host;
    QWidget window;
    host.mainWindow = &window;
    OdStaticRxObject<CHxGestureCommand> command;
    class ThrowingHost : public FakeHost
    {
    public:
        [[nodiscard]] CHxMainFrame *GetMainFrame() override { throw std::runtime_error("told to"); }
    } throwing;

    QCOMPARE(command.Execute(nullptr), 5100);
    QCOMPARE(window.findChildren<QDialog *>().size(), 0);
}

void GestureCommandTest::runsWithoutAnyHost()
{
    OdStaticRxObject<CHxGestureCommand> command;
    const WhileOpen opened([](MgDonutDialogManager *dialog) { dialog->accept(); });
    QCOMPARE(command.Execute(nullptr), 5100);
    QCOMPARE(opened.met, 1);
}

QTEST_MAIN(GestureCommandTest)
#include "tst_gesturecommand.moc"
