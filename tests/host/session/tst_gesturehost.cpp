// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/InstallPaths.h"
#include "host/session/GestureHost.h"
#include "host/window/MenuReadiness.h"
#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"
#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/chx/CHxInputPointManager.h"
#include "sdk/chx/CHxMainFrame.h"
#include "sdk/chx/CHxProfileStore.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"
#include "tests/host/session/modules/StubModule.h"
#include "tests/host/support/FakeTracker.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/StandardErrorCapture.h"
#include "tests/host/support/StubModules.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFrame>
#include <QLibrary>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

StubModule::Calls callsOf(const QString &name)
{
    using Function = StubModule::Calls *(*)();
    const auto function =
        reinterpret_cast<Function>(QLibrary::resolve(tests::stubModule(name), "stubCalls"));
    return function ? *function() : StubModule::Calls{};
}

class FrameReactor : public CHxEditorReactor
{
public:
    void mainFrameCreated(QWidget *) override { ++created; }
    void mainFrameDestroyed(QWidget *) override { ++destroyed; }
    int created = 0;
    int destroyed = 0;
};

} // namespace

class GestureHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        m_options = {};
        m_options.program = QStringLiteral("program");
        m_options.moduleFile = tests::stubModule(QStringLiteral("good"));
        m_options.settingsFile = m_folder->filePath(QStringLiteral("program.ini"));
    }
    void cleanup()
    {
        QCOMPARE(GetHxSystemServices(), nullptr);
        QVERIFY(!odedEditor());
        QVERIFY(!odedRegCmds());
        QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void startGivesThePlatform();
    void startAndStopOnce();
    void oneHostAtATime();
    void startWithoutWindow();
    void afterACrashItSaysWhatSwitchesGesturesOn_data();
    void afterACrashItSaysWhatSwitchesGesturesOn();
    void startWithBrokenModule_data();
    void startWithBrokenModule();
    void errorIsOptional();
    void addedViewsBecomeDocuments();
    void profileNamesViews();
    void enableFlagIsRead();
    void theSettingsChooseTheTrigger_data();
    void theFirstStartSaysWhatStartsAGesture();
    void theSettingsChooseTheTrigger();
    void aNewTriggerCountsFromTheNextStart();
    void viewsOfOtherWindows_data();
    void viewsOfOtherWindows();
    void commandsAreRememberedForTheNextStart();
    void frameIsCreatedOnceMenusAreQuiet();
    void menusThatNeverRestGetTheFrameToo();
    void menusMayComeAfterTheWindow();
    void windowWithoutMenuBarGetsNone();
    void destroyedWindowStopsTheHost();
    void hostMayOutliveTheWindowAndItsViews();
    void theFrameIsThereFromTheFirstWindowToTheLast_data();
    void theFrameIsThereFromTheFirstWindowToTheLast();
    void theFirstWindowMayGoBeforeItIsReady();
    void windowsThatJoin_data();
    void windowsThatJoin();
    void aWindowMayGoBeforeItJoins();
    void theActiveDocumentIsInTheCurrentWindow();
    void commandsThatAreOnlyExpectedHaveCaptionsInTheProgramsLanguage();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    gesturewidget::GestureHost::Options m_options;
};

void GestureHostTest::startGivesThePlatform()
{
    QMainWindow window;
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(!host.isRunning());
    QString error;
    QVERIFY2(host.start(&error), qPrintable(error));
    QVERIFY(host.isRunning());
    CHxSystemServices *services = GetHxSystemServices();
    QVERIFY(services);
    QVERIFY(services->GetMainFrame());
    QCOMPARE(services->GetMainFrame()->GetMainWindow(), &window);
    QVERIFY(services->GetApplication());
    QVERIFY(services->GetDocumentManager());
    QVERIFY(odedEditor());
    QVERIFY(odedRegCmds());
}

void GestureHostTest::startAndStopOnce()
{
    const StubModule::Calls before = callsOf(QStringLiteral("good"));
    QMainWindow window;
    gesturewidget::GestureHost host(&window, m_options);
    host.stop();
    QVERIFY(host.start());
    QVERIFY(host.start()); // already running
    host.stop();
    host.stop();
    QVERIFY(!host.isRunning());
    const StubModule::Calls after = callsOf(QStringLiteral("good"));
    QCOMPARE(after.initializations, before.initializations + 1);
    QCOMPARE(after.endings, before.endings + 1);
    // The module object is deleted only when none of its code can be running.
    QCOMPARE(after.deletions, before.deletions);
    QString error;
    QVERIFY(!host.start(&error));
    QCOMPARE(error, QStringLiteral("a host that was stopped cannot start again"));
}

void GestureHostTest::oneHostAtATime()
{
    QMainWindow window;
    auto first = std::make_unique<gesturewidget::GestureHost>(&window, m_options);
    gesturewidget::GestureHost second(&window, m_options);
    QVERIFY(first->start());
    CHxSystemServices *services = GetHxSystemServices();
    QString error;
    QVERIFY(!second.start(&error));
    QCOMPARE(error, QStringLiteral("this program has a host already"));
    QCOMPARE(GetHxSystemServices(), services);
    first.reset();
    QVERIFY(second.start(&error));
    QVERIFY(GetHxSystemServices() != services);
}

void GestureHostTest::startWithoutWindow()
{
    gesturewidget::GestureHost host(nullptr, m_options);
    QString error;
    QVERIFY(!host.start(&error));
    QCOMPARE(error, QStringLiteral("there is no main window to host"));

    auto window = std::make_unique<QMainWindow>();
    gesturewidget::GestureHost late(window.get(), m_options);
    window.reset();
    QVERIFY(!late.start(&error));
}

// The launcher knows its own settings files only.
void GestureHostTest::afterACrashItSaysWhatSwitchesGesturesOn_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("remedy");
    QTest::newRow("a program's own settings")
        << QStringLiteral("program.ini") << QStringLiteral("remove OffSinceCrash from %1");
    QTest::newRow("the launcher's") << QStringLiteral("gesturewidget/program.ini")
                                    << QStringLiteral("mouse-gestures --switch-on program");
}

void GestureHostTest::afterACrashItSaysWhatSwitchesGesturesOn()
{
    QFETCH(QString, file);
    QFETCH(QString, remedy);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->path()));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("gesturewidget")));
    m_options.settingsFile = m_folder->filePath(file);
    tests::writeFile(m_options.settingsFile, "[Host]\nOffSinceCrash=1\n");
    QMainWindow window;
    gesturewidget::GestureHost host(&window, m_options);
    QString error;
    QVERIFY(!host.start(&error));
    qunsetenv("XDG_CONFIG_HOME");
    if (remedy.contains(QStringLiteral("%1")))
        remedy = remedy.arg(m_options.settingsFile);
    QCOMPARE(error, QStringLiteral("gestures are off, since program crashed in their code; to switch "
                                   "them on: ")
                        + remedy);
}

void GestureHostTest::startWithBrokenModule_data()
{
    QTest::addColumn<QString>("module");
    for (const char *name : {"missing", "empty", "newer", "null", "create_throws", "init_throws"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void GestureHostTest::startWithBrokenModule()
{
    QFETCH(QString, module);
    m_options.moduleFile = tests::stubModule(module);
    QMainWindow window;
    QWidget view(&window);
    gesturewidget::GestureHost host(&window, m_options);
    host.addView(&view);
    QString error;
    QVERIFY(!host.start(&error));
    QVERIFY2(error.contains(module), qPrintable(error));
    QVERIFY(!host.isRunning());
    window.show();
    QTest::mouseClick(&view, Qt::RightButton);
}

void GestureHostTest::errorIsOptional()
{
    m_options.moduleFile = tests::stubModule(QStringLiteral("missing"));
    QMainWindow window;
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(!host.start());
    QVERIFY(!host.start(nullptr));
}

void GestureHostTest::addedViewsBecomeDocuments()
{
    QMainWindow window;
    QWidget before(&window);
    QPlainTextEdit scrolled(&window);
    QWidget after(&window);
    gesturewidget::GestureHost host(&window, m_options);
    host.addView(nullptr);
    host.addView(&before);
    host.addView(&before);
    host.addView(&scrolled);
    {
        QWidget gone;
        host.addView(&gone);
    }
    QVERIFY(host.start());
    host.addView(&after);
    QList<QWidget *> views;
    CHxDocumentManager *documents = GetHxSystemServices()->GetDocumentManager();
    for (CHxDocumentIteratorPtr it = documents->NewIterator(); !it->done(); it->next())
        views << it->object()->GetViewWidget();
    const QList<QWidget *> expected{&before, scrolled.viewport(), &after};
    QCOMPARE(views, expected);
    QVERIFY(ACTIVE_DOCUMENT());
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), &before);
    host.stop();
    host.addView(&window); // no more
}

void GestureHostTest::profileNamesViews()
{
    tests::writeFile(m_folder->filePath(QStringLiteral("program.json")),
                     R"({"version": 1, "program": "program", "viewClasses": ["QPlainTextEdit"]})");
    m_options.profileFolders << m_folder->path();
    QMainWindow window;
    auto *view = new QPlainTextEdit(&window);
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    QVERIFY(ACTIVE_DOCUMENT());
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), view->viewport());
}

// A press is held back only while gestures are enabled in the program's own settings.
void GestureHostTest::enableFlagIsRead()
{
    QMainWindow window;
    window.resize(300, 300);
    auto *view = new QWidget;
    window.setCentralWidget(view);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    QSignalSpy menus(view, &QWidget::customContextMenuRequested);
    gesturewidget::GestureHost host(&window, m_options);
    host.addView(view);
    QVERIFY(host.start());
    tests::FakeTracker tracker;
    ACTIVE_DOCUMENT()->GetInputPointManager()->AddTracker(&tracker, 0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto menusOpenedByThePress = [&] {
        menus.clear();
        QTest::mousePress(window.windowHandle(), Qt::RightButton, {}, QPoint(150, 150));
        const auto opened = menus.count();
        QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, QPoint(150, 150));
        return opened;
    };
    CHxProfileStore *store = GetHxSystemServices()->GetProfileStore();
    const auto set = [store](const char *value) {
        const OdResBufPtr buffer = OdResBuf::newString(OdString(QString::fromLatin1(value)));
        store->Set("GestureWidget", "EnableMouseGesture", buffer.get());
    };
    QCOMPARE(menusOpenedByThePress(), 0);
    QCOMPARE(menus.count(), 1);
    set("0");
    QCOMPARE(menusOpenedByThePress(), 1);
    set("1");
    QCOMPARE(menusOpenedByThePress(), 0);
    QCOMPARE(menus.count(), 1);
}

namespace {

// A running program with a view that a tracker watches.
class Drawing
{
public:
    explicit Drawing(const gesturewidget::GestureHost::Options &options)
        : m_host(&m_window, options)
    {
        m_window.resize(300, 300);
        m_view = new PressCounter;
        m_window.setCentralWidget(m_view);
        m_host.addView(m_view);
    }

    bool start()
    {
        if (!m_host.start())
            return false;
        ACTIVE_DOCUMENT()->GetInputPointManager()->AddTracker(&m_tracker, 0);
        m_window.show();
        return QTest::qWaitForWindowExposed(&m_window);
    }
    // Returns true if a press is held back until it is clear whether it is a gesture.
    bool isTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {})
    {
        m_view->presses = 0;
        QTest::mousePress(m_window.windowHandle(), button, modifiers, QPoint(150, 150));
        const bool isHeld = m_view->presses == 0;
        QTest::mouseRelease(m_window.windowHandle(), button, modifiers, QPoint(150, 150));
        if (m_view->presses != 1)
            QTest::qFail("the press did not come through", __FILE__, __LINE__);
        return isHeld;
    }

private:
    class PressCounter : public QWidget
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    };

    tests::FakeTracker m_tracker;
    QMainWindow m_window;
    PressCounter *m_view = nullptr;
    gesturewidget::GestureHost m_host;
};

} // namespace

void GestureHostTest::theSettingsChooseTheTrigger_data()
{
    QTest::addColumn<QByteArray>("chosen"); // the setting; empty for none
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<int>("button"); // the button that starts gestures
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("isComplaint");
    const QByteArray right = R"({"button": "right", "modifiers": []})";
    const QByteArray middle = R"({"button": "middle", "modifiers": ["shift"]})";
    const auto row = [](const char *name, const char *chosen, const QByteArray &profile,
                        Qt::MouseButton button, Qt::KeyboardModifiers modifiers, bool isComplaint) {
        QTest::newRow(name) << QByteArray(chosen) << profile << int(button) << int(modifiers)
                            << isComplaint;
    };
    row("none", "", right, Qt::RightButton, {}, false);
    row("none, other profile", "", middle, Qt::MiddleButton, Qt::ShiftModifier, false);
    row("right", "right", middle, Qt::RightButton, {}, false);
    row("middle", "middle", right, Qt::MiddleButton, {}, false);
    row("back", "back", right, Qt::BackButton, {}, false);
    row("ctrl+right", "ctrl+right", right, Qt::RightButton, Qt::ControlModifier, false);
    row("shift+alt+left", "Shift+ALT+Left", right, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier,
        false);
    row("no button", "ctrl", right, Qt::RightButton, {}, true);
    row("unknown", "rihgt", middle, Qt::MiddleButton, Qt::ShiftModifier, true);
    row("twice", "ctrl+ctrl+right", right, Qt::RightButton, {}, true);
    row("spaces", "ctrl + right", right, Qt::RightButton, {}, true);
    // People draw with it.
    row("left alone", "left", right, Qt::RightButton, {}, true);
}

void GestureHostTest::theFirstStartSaysWhatStartsAGesture()
{
    tests::writeFile(m_options.settingsFile, "[Host]\nTrigger=ctrl+right\n");
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Open"));
    auto *view = new QFrame;
    window.setCentralWidget(view);
    QSignalSpy messages(window.statusBar(), &QStatusBar::messageChanged);
    gesturewidget::GestureHost host(&window, m_options);
    host.addView(view);
    QVERIFY(host.start());
    window.show();
    const auto isSaid = [&messages] {
        return std::any_of(messages.begin(), messages.end(), [](const QList<QVariant> &message) {
            return message.first().toString().contains(QStringLiteral("Ctrl + right button"));
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(isSaid(), 20000);
}

void GestureHostTest::theSettingsChooseTheTrigger()
{
    QFETCH(QByteArray, chosen);
    QFETCH(QByteArray, profile);
    QFETCH(int, button);
    QFETCH(int, modifiers);
    QFETCH(bool, isComplaint);
    tests::writeFile(m_folder->filePath(QStringLiteral("program.json")),
                     R"({"version": 1, "program": "program", "trigger": )" + profile + "}");
    m_options.profileFolders << m_folder->path();
    if (!chosen.isEmpty())
        tests::writeFile(m_options.settingsFile, "[Host]\nTrigger=" + chosen + "\n");

    tests::StandardErrorCapture errors;
    Drawing drawing(m_options);
    QVERIFY(drawing.start());
    const QStringList lines = errors.lines().filter(QStringLiteral("mouse gestures: "));
    QCOMPARE(lines.size(), isComplaint ? 1 : 0);
    if (isComplaint)
        QVERIFY2(lines.first().contains(QString::fromLatin1(chosen)), qPrintable(lines.first()));
    const Qt::KeyboardModifiers all[] = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier,
                                         Qt::ShiftModifier | Qt::AltModifier};
    for (const Qt::MouseButton each :
         {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::BackButton}) {
        for (const Qt::KeyboardModifiers keys : all)
            QCOMPARE(drawing.isTrigger(each, keys), int(each) == button && int(keys) == modifiers);
    }
}

void GestureHostTest::aNewTriggerCountsFromTheNextStart()
{
    {
        Drawing drawing(m_options);
        QVERIFY(drawing.start());
        QVERIFY(drawing.isTrigger(Qt::RightButton));
        const OdResBufPtr middle = OdResBuf::newString(OdString(QStringLiteral("middle")));
        QVERIFY(GetHxSystemServices()->GetProfileStore()->Set("Host", "Trigger", middle.get()));
        QVERIFY(drawing.isTrigger(Qt::RightButton));
        QVERIFY(!drawing.isTrigger(Qt::MiddleButton));
    }
    QTRY_VERIFY(QFileInfo::exists(m_options.settingsFile));
    {
        Drawing drawing(m_options);
        QVERIFY(drawing.start());
        QVERIFY(drawing.isTrigger(Qt::MiddleButton));
        QVERIFY(!drawing.isTrigger(Qt::RightButton));
        // An empty value resets the choice, as "default" does.
        tests::writeFile(m_options.settingsFile, "[Host]\nTrigger=\n");
        QVERIFY(drawing.isTrigger(Qt::MiddleButton));
    }
    Drawing drawing(m_options);
    QVERIFY(drawing.start());
    QVERIFY(drawing.isTrigger(Qt::RightButton));
    QVERIFY(!drawing.isTrigger(Qt::MiddleButton));
}

void GestureHostTest::viewsOfOtherWindows_data()
{
    QTest::addColumn<bool>("isMainWindow");
    QTest::addColumn<bool>("hasMenuBar");
    QTest::addColumn<bool>("hasMenus");
    QTest::addColumn<bool>("isAdded"); // the program adds the view itself
    QTest::addColumn<bool>("isHeld");
    QTest::addColumn<bool>("isCurrent"); // its window becomes the current one
    QTest::newRow("dialog") << false << false << false << false << true << false;
    QTest::newRow("detached view") << true << false << false << false << true << false;
    QTest::newRow("another drawing") << true << true << true << false << true << true;
    QTest::newRow("another drawing, added") << true << true << true << true << true << true;
    // Its own menus are still to come, and the commands of the first window would be wrong.
    QTest::newRow("before its menus") << true << true << false << false << false << false;
    QTest::newRow("before its menus, added") << true << true << false << true << false << false;
}

// The commands of a gesture are those of the window that it is made in.
void GestureHostTest::viewsOfOtherWindows()
{
    QFETCH(bool, isMainWindow);
    QFETCH(bool, hasMenuBar);
    QFETCH(bool, hasMenus);
    QFETCH(bool, isAdded);
    QFETCH(bool, isHeld);
    QFETCH(bool, isCurrent);
    class View : public QFrame
    {
    public:
        using QFrame::QFrame;
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    };
    tests::writeFile(m_folder->filePath(QStringLiteral("program.json")),
                     R"({"version": 1, "program": "program", "viewClasses": ["QFrame"]})");
    m_options.profileFolders << m_folder->path();
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("Tools"));
    auto *mainWindow = new QMainWindow;
    const std::unique_ptr<QWidget> other(isMainWindow ? mainWindow : new QWidget);
    const std::unique_ptr<QWidget> unused(isMainWindow ? nullptr : mainWindow);
    if (hasMenuBar)
        mainWindow->menuBar()->show();
    if (hasMenus)
        mainWindow->menuBar()->addMenu(QStringLiteral("Tools"));
    other->resize(200, 200);
    auto *view = new View(other.get());
    view->setGeometry(50, 50, 100, 100);
    gesturewidget::GestureHost host(&window, m_options);
    if (isAdded)
        host.addView(view);
    QVERIFY(host.start());
    QVERIFY(ACTIVE_DOCUMENT());
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), view);
    tests::FakeTracker tracker;
    ACTIVE_DOCUMENT()->GetInputPointManager()->AddTracker(&tracker, 0);
    other->show();
    other->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(other.get()));
    QTRY_COMPARE(host.mainWindow() == other.get(), isCurrent);
    QTest::mousePress(other->windowHandle(), Qt::RightButton, {}, QPoint(100, 100));
    QCOMPARE(view->presses == 0, isHeld);
    QTest::mouseRelease(other->windowHandle(), Qt::RightButton, {}, QPoint(100, 100));
    QCOMPARE(view->presses, 1);
}

// The program starts with other menus than the last time.
void GestureHostTest::commandsAreRememberedForTheNextStart()
{
    const auto offered = [] {
        QStringList commands;
        CHxUICommandManager *manager = GetHxSystemServices()->GetUICommandManager();
        for (const auto groups = manager->NewGroupIterator(); !groups->Done(); groups->Next()) {
            for (const auto it = groups->Current()->NewCommandIterator(); !it->Done(); it->Next())
                commands << it->Current()->GetIdentifier().toQString();
        }
        return commands;
    };
    const QString file = gesturewidget::catalogueFileBeside(m_options.settingsFile);
    {
        QMainWindow window;
        QMenu *menu = window.menuBar()->addMenu(QStringLiteral("Sketch"));
        menu->addAction(QStringLiteral("Line"))->setObjectName(QStringLiteral("sketchLine"));
        gesturewidget::GestureHost host(&window, m_options);
        QVERIFY(host.start());
        QVERIFY(!QFileInfo::exists(file));
        window.show();
        QTRY_VERIFY(QFileInfo::exists(file));
    }
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("Mesh"));
    menu->addAction(QStringLiteral("Cut"))->setObjectName(QStringLiteral("meshCut"));
    window.statusBar();
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    QCOMPARE(offered(), QStringList({QStringLiteral("meshCut"), QStringLiteral("sketchLine")}));
    QVERIFY(!GetHxSystemServices()->RunCommand("sketchLine", true)->IsFound());
    QCOMPARE(window.statusBar()->currentMessage(),
             QStringLiteral("Line: not available at the moment. "
                            "It belongs to the menu \"Sketch\", which is not there now."));
}

void GestureHostTest::frameIsCreatedOnceMenusAreQuiet()
{
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("Tools"));
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    FrameReactor reactor;
    odedEditor()->addReactor(&reactor);
    window.show();
    QElapsedTimer elapsed;
    elapsed.start();
    // The program goes on filling its menus for a while.
    qint64 lastAdded = 0;
    QTimer filling;
    connect(&filling, &QTimer::timeout, this, [&] {
        menu->addAction(QStringLiteral("entry"));
        lastAdded = elapsed.elapsed();
        if (menu->actions().size() == 5)
            filling.stop();
    });
    filling.start(gesturewidget::MenuReadiness::kQuietTime / 2);
    QTRY_COMPARE(reactor.created, 1);
    QCOMPARE(menu->actions().size(), 5);
    QVERIFY(elapsed.elapsed() - lastAdded >= gesturewidget::MenuReadiness::kQuietTime * 9 / 10);
    menu->addAction(QStringLiteral("later"));
    host.stop();
    QCOMPARE(reactor.created, 1);
    QCOMPARE(reactor.destroyed, 1);
}

// A menu may show the time, or a list that a device keeps changing.
void GestureHostTest::menusThatNeverRestGetTheFrameToo()
{
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("Tools"));
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    FrameReactor reactor;
    odedEditor()->addReactor(&reactor);
    window.show();
    QTimer refilling;
    connect(&refilling, &QTimer::timeout, menu, [menu] {
        menu->clear();
        menu->addAction(QStringLiteral("entry"));
    });
    refilling.start(200);
    QTRY_COMPARE_WITH_TIMEOUT(reactor.created, 1, 2 * gesturewidget::QuietWait::kLongestTime);
    host.stop();
}

void GestureHostTest::menusMayComeAfterTheWindow()
{
    QMainWindow window;
    window.show();
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    FrameReactor reactor;
    odedEditor()->addReactor(&reactor);
    gesturewidget::MenuReadiness other(&window); // settles when the host's own does
    QSignalSpy settled(&other, &gesturewidget::MenuReadiness::settled);
    other.start();
    window.menuBar()->addMenu(QStringLiteral("Tools"));
    QTRY_COMPARE(settled.count(), 1);
    QTRY_COMPARE(reactor.created, 1);
    host.stop();
    QCOMPARE(reactor.destroyed, 1);
}

void GestureHostTest::windowWithoutMenuBarGetsNone()
{
    QMainWindow window;
    window.show();
    gesturewidget::MenuReadiness watch(&window);
    QSignalSpy settled(&watch, &gesturewidget::MenuReadiness::settled);
    watch.start();
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(gesturewidget::MenuReadiness::kQuietTime * 2);
    QTRY_VERIFY(!patience.isActive());
    QCOMPARE(settled.count(), 0);
    QCOMPARE(window.menuWidget(), nullptr);
}

void GestureHostTest::destroyedWindowStopsTheHost()
{
    auto window = std::make_unique<QMainWindow>();
    window->menuBar()->addMenu(QStringLiteral("Tools"));
    gesturewidget::GestureHost host(window.get(), m_options);
    QVERIFY(host.start());
    window.reset();
    QVERIFY(!host.isRunning());
    QCOMPARE(GetHxSystemServices(), nullptr);

    auto *later = new QMainWindow;
    gesturewidget::GestureHost second(later, m_options);
    QVERIFY(second.start());
    later->deleteLater();
    QTRY_VERIFY(!second.isRunning());
}

void GestureHostTest::hostMayOutliveTheWindowAndItsViews()
{
    auto window = std::make_unique<QMainWindow>();
    auto *view = new QWidget(window.get());
    auto host = std::make_unique<gesturewidget::GestureHost>(window.get(), m_options);
    host->addView(view);
    QVERIFY(host->start());
    CHxDocument *document = ACTIVE_DOCUMENT();
    delete view;
    QVERIFY(document->GetViewWidget());
    QCOMPARE(ACTIVE_DOCUMENT(), document);
    host.reset();
    window.reset();
}

namespace {

// A main window with menus, and a view if a test wants one.
class DocumentWindow : public QMainWindow
{
    Q_OBJECT

public:
    DocumentWindow()
    {
        resize(300, 300);
        menuBar()->addMenu(QStringLiteral("Tools"))->addAction(QStringLiteral("Options"));
    }
    // Adds a view for a profile that names QFrame.
    void addView()
    {
        view = new QFrame;
        setCentralWidget(view);
        view->show();
    }

    QFrame *view = nullptr;
};

// Help, for example.
class OtherWindow : public DocumentWindow
{
    Q_OBJECT
};

} // namespace

void GestureHostTest::theFrameIsThereFromTheFirstWindowToTheLast_data()
{
    QTest::addColumn<bool>("isFirstGone"); // before the second
    QTest::addColumn<bool>("isLater"); // from the event loop
    QTest::newRow("first, at once") << true << false;
    QTest::newRow("first, later") << true << true;
    QTest::newRow("second, at once") << false << false;
    QTest::newRow("second, later") << false << true;
}

void GestureHostTest::theFrameIsThereFromTheFirstWindowToTheLast()
{
    QFETCH(bool, isFirstGone);
    QFETCH(bool, isLater);
    auto first = std::make_unique<DocumentWindow>();
    auto second = std::make_unique<DocumentWindow>();
    gesturewidget::GestureHost host(first.get(), m_options);
    QVERIFY(host.start());
    FrameReactor reactor;
    odedEditor()->addReactor(&reactor);
    first->show();
    QTRY_COMPARE(reactor.created, 1);
    second->show();
    QTRY_COMPARE(host.mainWindow(), second.get());
    QCOMPARE(GetHxSystemServices()->GetMainFrame()->GetMainWindow(), second.get());
    std::unique_ptr<DocumentWindow> &goes = isFirstGone ? first : second;
    std::unique_ptr<DocumentWindow> &stays = isFirstGone ? second : first;
    const auto end = [isLater](std::unique_ptr<DocumentWindow> &window) {
        if (isLater)
            window.release()->deleteLater();
        else
            window.reset();
    };
    QPointer<QWidget> gone = goes.get();
    end(goes);
    QTRY_VERIFY(!gone);
    QVERIFY(host.isRunning());
    QCOMPARE(host.mainWindow(), stays.get());
    QCOMPARE(GetHxSystemServices()->GetMainFrame()->GetMainWindow(), stays.get());
    QCOMPARE(reactor.destroyed, 0);
    FrameReactor late;
    odedEditor()->addReactor(&late);
    QTRY_COMPARE(late.created, 1);
    end(stays);
    QTRY_VERIFY(!host.isRunning());
    QCOMPARE(reactor.created, 1);
    QCOMPARE(reactor.destroyed, 1);
    QCOMPARE(late.destroyed, 1);
    QCOMPARE(host.mainWindow(), nullptr);
}

// A start window that closes as soon as the real one is there.
void GestureHostTest::theFirstWindowMayGoBeforeItIsReady()
{
    auto first = std::make_unique<QMainWindow>();
    first->menuBar(); // never filled
    DocumentWindow second;
    second.addView();
    FrameReactor reactor; // outlives the host, which tells it of the end
    gesturewidget::GestureHost host(first.get(), m_options);
    host.addView(second.view);
    QVERIFY(host.start());
    odedEditor()->addReactor(&reactor);
    first->show();
    second.show();
    QTRY_COMPARE(reactor.created, 1);
    first.reset();
    QVERIFY(host.isRunning());
    QCOMPARE(host.mainWindow(), &second);
    QCOMPARE(reactor.destroyed, 0);
    QCOMPARE(reactor.created, 1);
}

void GestureHostTest::windowsThatJoin_data()
{
    QTest::addColumn<bool>("isAlike"); // of the first window's class
    QTest::addColumn<bool>("hasView");
    QTest::addColumn<bool>("joins");
    QTest::newRow("alike, with a view") << true << true << true;
    QTest::newRow("alike, before a drawing is open") << true << false << true;
    QTest::newRow("another one with a view") << false << true << true;
    QTest::newRow("help") << false << false << false;
}

void GestureHostTest::windowsThatJoin()
{
    QFETCH(bool, isAlike);
    QFETCH(bool, hasView);
    QFETCH(bool, joins);
    tests::writeFile(m_folder->filePath(QStringLiteral("program.json")),
                     R"({"version": 1, "program": "program", "viewClasses": ["QFrame"]})");
    m_options.profileFolders << m_folder->path();
    DocumentWindow first;
    const std::unique_ptr<DocumentWindow> second(isAlike ? new DocumentWindow : new OtherWindow);
    gesturewidget::GestureHost host(&first, m_options);
    QVERIFY(host.start());
    if (hasView)
        second->addView();
    second->show();
    second->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(second.get()));
    gesturewidget::MenuReadiness other(second.get()); // settles when the host's own would
    QSignalSpy settled(&other, &gesturewidget::MenuReadiness::settled);
    other.start();
    QTRY_COMPARE(settled.count(), 1);
    if (!joins) {
        // One more round: the host's may settle a moment later.
        gesturewidget::MenuReadiness another(second.get());
        QSignalSpy again(&another, &gesturewidget::MenuReadiness::settled);
        another.start();
        QTRY_COMPARE(again.count(), 1);
    }
    QTRY_COMPARE(host.mainWindow() == second.get(), joins);
    // A drawing that is opened later makes any window one of them.
    if (!joins) {
        second->addView();
        QTRY_COMPARE(host.mainWindow(), second.get());
    }
}

void GestureHostTest::aWindowMayGoBeforeItJoins()
{
    DocumentWindow first;
    gesturewidget::GestureHost host(&first, m_options);
    QVERIFY(host.start());
    FrameReactor reactor;
    odedEditor()->addReactor(&reactor);
    first.show();
    QTRY_COMPARE(reactor.created, 1);
    for (int i = 0; i < 3; ++i) {
        DocumentWindow second;
        second.addView();
        host.addView(second.view);
        second.show();
        QVERIFY(QTest::qWaitForWindowActive(&second));
        if (i == 2) {
            host.stop();
            QVERIFY(!host.isRunning());
        } else {
            QCOMPARE(host.mainWindow(), &first);
        }
    }
    QCOMPARE(reactor.destroyed, 1);
}

// A macro sends Escape to the active document.
void GestureHostTest::theActiveDocumentIsInTheCurrentWindow()
{
    DocumentWindow first;
    DocumentWindow second;
    gesturewidget::GestureHost host(&first, m_options);
    for (DocumentWindow *window : {&first, &second}) {
        window->addView();
        host.addView(window->view);
    }
    QVERIFY(host.start());
    first.show();
    second.show();
    QTRY_COMPARE(host.mainWindow(), &second);
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), second.view);
    first.activateWindow();
    QTRY_COMPARE(host.mainWindow(), &first);
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), first.view);
}

void GestureHostTest::commandsThatAreOnlyExpectedHaveCaptionsInTheProgramsLanguage()
{
    QMainWindow window;
    for (const char *menu : {"Datei", "Bearbeiten", "Ansicht"})
        window.menuBar()->addMenu(QString::fromUtf8(menu));
    m_options.guesses = true;
    gesturewidget::GestureHost host(&window, m_options);
    QVERIFY(host.start());
    const CHxUICommandItem *item =
        GetHxSystemServices()->GetUIManager()->FindCommandItem("Default", "ID_SAVE");
    QVERIFY(item);
    QCOMPARE(item->GetCaption().toQString(), QStringLiteral("Speichern"));
}

QTEST_MAIN(GestureHostTest)
#include "tst_gesturehost.moc"
