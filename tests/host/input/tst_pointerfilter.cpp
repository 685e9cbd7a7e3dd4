// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/DocumentManager.h"
#include "host/input/PointerFilter.h"
#include "sdk/chx/CHxDocumentManagerReactor.h"
#include "sdk/QtBridge.h"
#include "tests/host/support/FakeTracker.h"
#include "tests/host/support/LoggingView.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMetaEnum>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QtTest/qtestspontaneevent.h>
#include <QWheelEvent>

#include <functional>
#include <memory>
#include <utility>

using gesturewidget::PointerFilter;

namespace {

const QPoint kPress(150, 150);

void sendFromOutside(QObject *receiver, QEvent &event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(receiver, &event);
}

// Logs what comes to an object, before the object gets it. For the application: after the filter, if
// it was there first.
class Observer : public QObject
{
public:
    explicit Observer(QObject *observed, std::function<void(QObject *, QEvent *)> see)
        : m_see(std::move(see))
    {
        observed->installEventFilter(this);
    }
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        m_see(receiver, event);
        return false;
    }

private:
    std::function<void(QObject *, QEvent *)> m_see;
};

// Counts the events of some types that come to an object, before the object gets them.
class Counter : public Observer
{
public:
    Counter(QObject *observed, const QList<QEvent::Type> &types)
        : Observer(observed, [this, types](QObject *, const QEvent *event) {
            m_count += types.contains(event->type()) ? 1 : 0;
        })
    {
    }
    [[nodiscard]] int count() const { return m_count; }

private:
    int m_count = 0;
};

QList<QEvent::Type> mouseEvents()
{
    return {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
            QEvent::MouseButtonDblClick};
}

// A tracker that a test may let do anything.
class FreeTracker : public CHxTracker
{
public:
    void Update(CHxTrackerContext *, CHxHitTestInfo *hit) override { onUpdate(++updates, *hit); }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return false; }
    bool DoAction(const CHxHitTestInfo *) override { return false; }

    std::function<void(int update, CHxHitTestInfo &hit)> onUpdate;
    int updates = 0;
};

// A program with one view. A test can add the filter.
class Desk
{
public:
    Desk()
    {
        window.setObjectName(QStringLiteral("window"));
        window.resize(400, 400);
        view = new tests::LoggingView(&window);
        view->setGeometry(20, 20, 300, 300);
        control = new QLineEdit(view);
        control->setGeometry(0, 280, 100, 20);
        window.show();
    }

    void addFilter() { addFilter(tracker); }
    void addFilter(CHxTracker &used)
    {
        document = documents.open(view);
        document->inputPoints().AddTracker(&used, 0);
        filter = std::make_unique<PointerFilter>(documents, trigger,
                                                 [this](const QWidget *) { return isEnabled; });
        qApp->installEventFilter(filter.get());
    }

    // Positions are in pixels of the view.
    void press(QPoint position, Qt::MouseButton button = Qt::RightButton,
               Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(window.windowHandle(), button, modifiers, inWindow(position));
    }
    void move(QPoint position) { QTest::mouseMove(window.windowHandle(), inWindow(position)); }
    void repeatKey(Qt::Key key, bool isMarked = true)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), isMarked);
        sendFromOutside(window.windowHandle(), event);
    }
    void turnWheel(QPoint position)
    {
        const QPoint place = inWindow(position);
        QWheelEvent wheel(place, window.mapToGlobal(place), {}, QPoint(0, 120),
                          QGuiApplication::mouseButtons(), Qt::NoModifier, Qt::NoScrollPhase, false);
        sendFromOutside(window.windowHandle(), wheel);
    }
    void pen(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const QPoint place = inWindow(position);
        const auto event =
            qtbridge::tabletEvent(type, place, window.mapToGlobal(place), button, buttons);
        sendFromOutside(window.windowHandle(), *event);
    }
    // The mouse event that Qt makes from a pen's or a touch.
    void penAsMouse(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const QPointF place = inWindow(position);
        const QPointF global = window.mapToGlobal(inWindow(position));
        QMouseEvent event(type, place, place, global, button, buttons, Qt::NoModifier,
                          Qt::MouseEventSynthesizedByQt);
        sendFromOutside(window.windowHandle(), event);
    }
    // Presses and drags until the overlay has chosen a direction. The button stays down.
    void chooseSector()
    {
        press(kPress);
        move(kPress + QPoint(30, 0));
        move(kPress + QPoint(35, 0));
        move(kPress + QPoint(110, 0));
    }
    void release(QPoint position, Qt::MouseButton button = Qt::RightButton,
                 Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseRelease(window.windowHandle(), button, modifiers, inWindow(position));
    }
    // The window of the overlay; null before the first gesture.
    [[nodiscard]] QWindow *overlayWindow() const { return tracker.overlay->windowHandle(); }
    // What the window system has sent to the overlay, which has gone. The position is on the screen.
    void late(QEvent::Type type, QPoint global, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, overlayWindow()->mapFromGlobal(global), global, button, buttons,
                          Qt::NoModifier);
        sendFromOutside(overlayWindow(), event);
    }
    // Adds a view that is drawn in a window without a widget. Returns that window, not yet exposed.
    QWindow *addBareView(const QRect &place)
    {
        auto *bare = new QWindow;
        QWidget *container = QWidget::createWindowContainer(bare, &window);
        container->setGeometry(place);
        container->show();
        documents.open(container)->inputPoints().AddTracker(&tracker, 0);
        return bare;
    }
    [[nodiscard]] QPoint inWindow(QPoint position) const { return view->mapTo(&window, position); }
    [[nodiscard]] PointerFilter::State state() const { return filter->state(); }

    QWidget window;
    tests::LoggingView *view = nullptr;
    QLineEdit *control = nullptr;
    tests::FakeTracker tracker;
    gesturewidget::Trigger trigger;
    bool isEnabled = true;
    gesturewidget::DocumentManager documents;
    gesturewidget::Document *document = nullptr;
    std::unique_ptr<PointerFilter> filter;
};

using Script = std::function<void(Desk &)>;

QStringList play(const Script &script, bool hasFilter)
{
    Desk desk;
    if (!QTest::qWaitForWindowExposed(&desk.window))
        return {QStringLiteral("no window")};
    // Every test starts like this: no button is pressed, the pointer is outside the view.
    desk.move(QPoint(-10, -10));
    desk.view->log.clear();
    if (hasFilter)
        desk.addFilter();
    script(desk);
    QCoreApplication::processEvents();
    if (hasFilter && desk.state() != PointerFilter::State::Idle)
        return {QStringLiteral("the filter is not idle")};
    return desk.view->log;
}

void dragBy(Desk &desk, QPoint distance)
{
    desk.press(kPress);
    desk.move(kPress + distance / 2);
    desk.move(kPress + distance);
    desk.release(kPress + distance);
}

} // namespace

Q_DECLARE_METATYPE(Script)

class PointerFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup()
    {
        QCOMPARE(QGuiApplication::mouseButtons(), Qt::MouseButtons(Qt::NoButton));
        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void programSeesPlainUseUnchanged_data();
    void programSeesPlainUseUnchanged();
    void contextMenuOpenedByThePressGetsTheRelease();
    void doubleClickWaitsForTheMenu();
    void menuStaysOpenUntilAnswered();
    void buttonsAreReportedAsHeldDuringTheReplay();
    void dialogOpenedByThePressBlocksTheRest();
    void aMovementComesAfterTheRest();
    void aPressAfterTheRestIsHeldBack();
    void theProgramsOwnEventsPass();

    void pressIsHeldBack();
    void keysOfBeforeLetTheGestureBe();
    void unmarkedRepeatsLetTheGestureBe();
    void aKeyPressedAgainGivesBack();
    void aKeyLetGoElsewhereIsForgotten();
    void keyGivesBackAPressThatClosesTheWindow();
    void aPensSideButtonStartsAGesture();
    void aPenThatTheProgramHandlesDoesNot();
    void aTouchIsNotAPen();
    void aPenComesAfterTheHeldPress();
    void aPenAndAWheelOfTheProgramPass();
    void aProgramWithoutDrawingsGetsItsPress();
    void pressIsNotHeldBack_data();
    void pressIsNotHeldBack();
    void twentyPixelsAreNoGesture();
    void gestureIsKeptFromTheProgram();
    void flickWithOneMovementStartsTheOverlay();
    void releaseCancelsWithoutCommand();
    void acceptedGestureRunsOneCommand();
    void restOfAnAcceptedDragIsSwallowed();
    void otherButtonsAreSwallowedUntilAllAreUp();
    void releaseElsewhereEndsTheSwallowing();
    void pressAfterALostReleaseStartsAnew();
    void gesturesFollowEachOther();
    void gestureWithoutOverlayEndsWithTheRelease();
    void endIsToldThoughAPopupIsOpen();
    void aDragWithoutOverlayIsSwallowed();
    void anotherPressEndsAGestureWithoutOverlay();
    void aPressAfterALostReleaseEndsAGestureWithoutOverlay();
    void anOverlayThatComesWithTheEndIsStopped();
    void anOverlayOfBeforeIsLeftAlone();
    void aTrackerMayCancel_data();
    void aTrackerMayCancel();

    void dragGivenToTheProgramStaysThere();
    void pressOfAnotherButtonGivesBack();
    void aMovementAfterALostReleaseGivesBack();
    void lostWindowGivesBack_data();
    void lostWindowGivesBack();
    void windowEventsEndIt_data();
    void windowEventsEndIt();
    void viewClosedWhileHolding();
    void viewClosedDuringTheGesture();
    void windowHiddenDuringTheGesture();
    void dialogDuringTheGestureCancels();
    void cancelLeavesNothingGrabbed();
    void aJumpOfThePointerEndsTheGesture();
    void aJumpOfThePointerGivesBack();
    void cancelKeepsNoKeys();
    void overlayThatIgnoresTheReleaseIsForcedToLetGo();
    void overlayThatLosesTheMouseIsStopped();
    void overlayThatIsDestroyedIsNotReplaced();
    void overlayDestroyedByItsRelease();
    void overlayThatCancelsAtItsRelease();
    void overlayThatComesDuringAnUpdateIsTheOverlay();
    void anOverlayThatStopsEndsTheGesture();
    void aWindowThatHidesLeavesTheGesture_data();
    void aWindowThatHidesLeavesTheGesture();
    void aPostedMovementEndsAStoppedGesture();
    void filterDestroyedDuringTheReplay();
    void filterDestroyedByTheRest();
    void filterDestroyedByAKeyOfBefore();
    void aKeyOfBeforeMayCancelTheGesture();
    void aBegunGestureIsNotGivenBack();

    void trackersSeeMovements();
    void viewLearnsPositionsInItsOwnPixels();
    void nestedWindowOfAView();
    void aWindowWithoutAWidgetIsItsContainers();
    void aWindowWithoutADrawingGetsItsPress();
    void anOverlayGetsWhatCameToAWindowWithoutAWidget();
    void aWindowThatWasPressedDuringTheFading_data();
    void aWindowThatWasPressedDuringTheFading();
    void aSecondButtonDuringTheFading();
    void aWheelDuringTheFading();
    void aKeyDuringTheFading();
    void aKeyOfBeforeIsReleasedInTheProgram();
    void aKeyThatIsNotTheOverlaysIsReleasedOnce();
    void pressActivatesTheDocument();
    void aGestureGivesTheFocusOfAClick_data();
    void aGestureGivesTheFocusOfAClick();
    void aGestureLeavesTheFocusOfItsView();
    void aGestureInAWindowOfItsOwnLeavesTheOther();
    void aGestureMakesItsDrawingCurrent();
    void theFocusMayEndTheGesture();
    void aFocusElsewhereLeavesTheGestureItsDrawing();
    void aScrollAreaGetsTheFocusOfItsView();
    void aDocumentThatClosesWhenItBecomesActive();
};

void PointerFilterTest::programSeesPlainUseUnchanged_data()
{
    QTest::addColumn<Script>("script");

    const auto row = [](const char *name, const Script &script) { QTest::newRow(name) << script; };
    row("hover", [](Desk &d) {
        d.move(kPress);
        d.move(kPress + QPoint(5, 5));
    });
    row("click", [](Desk &d) {
        d.press(kPress);
        d.release(kPress);
    });
    row("click of another button", [](Desk &d) {
        d.press(kPress, Qt::LeftButton);
        d.release(kPress, Qt::LeftButton);
    });
    row("drag of another button", [](Desk &d) {
        d.press(kPress, Qt::LeftButton);
        d.move(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0), Qt::LeftButton);
    });
    row("click with a modifier", [](Desk &d) {
        d.press(kPress, Qt::RightButton, Qt::ControlModifier);
        d.release(kPress, Qt::RightButton, Qt::ControlModifier);
    });
    row("drag with a modifier", [](Desk &d) {
        d.press(kPress, Qt::RightButton, Qt::ShiftModifier);
        d.move(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0), Qt::RightButton, Qt::ShiftModifier);
    });
    row("short drag", [](Desk &d) { dragBy(d, {8, 4}); });
    row("drag of 20 pixels", [](Desk &d) { dragBy(d, {12, 8}); });
    row("drag refused within the distance", [](Desk &d) {
        d.tracker.takesDrags = false;
        dragBy(d, {40, 0});
    });
    row("drag refused", [](Desk &d) {
        d.tracker.takesDrags = false;
        d.press(kPress);
        for (int x = 5; x <= 100; x += 5)
            d.move(kPress + QPoint(x, x / 2));
        d.release(kPress + QPoint(100, 50));
    });
    row("other button during the press", [](Desk &d) {
        d.press(kPress);
        d.press(kPress, Qt::LeftButton);
        d.move(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0), Qt::LeftButton);
        d.release(kPress + QPoint(60, 0));
    });
    row("trigger during another button", [](Desk &d) {
        d.press(kPress, Qt::MiddleButton);
        d.press(kPress);
        d.move(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0), Qt::MiddleButton);
    });
    row("double click", [](Desk &d) {
        QWindow *window = d.window.windowHandle();
        QTest::mouseDClick(window, Qt::RightButton, {}, d.inWindow(kPress));
    });
    row("double click of another button", [](Desk &d) {
        QWindow *window = d.window.windowHandle();
        QTest::mouseDClick(window, Qt::LeftButton, {}, d.inWindow(kPress));
    });
    row("press in the view, release outside", [](Desk &d) {
        d.tracker.takesDrags = false;
        d.press(kPress);
        d.move(QPoint(-15, 150));
        d.release(QPoint(-15, 150));
    });
    row("press outside, release in the view", [](Desk &d) {
        d.press(QPoint(-15, 150));
        d.move(kPress);
        d.release(kPress);
    });
    row("press on a control in the view", [](Desk &d) {
        d.control->setContextMenuPolicy(Qt::NoContextMenu);
        d.press(QPoint(20, 290));
        d.release(QPoint(20, 290));
    });
    row("wheel and keys", [](Desk &d) {
        d.view->setFocus();
        QTest::keyClick(d.window.windowHandle(), Qt::Key_A);
        d.turnWheel(kPress);
        d.press(kPress);
        d.release(kPress);
        QTest::keyClick(d.window.windowHandle(), Qt::Key_Escape);
    });
    row("key during the press", [](Desk &d) {
        d.view->setFocus();
        d.press(kPress);
        QTest::keyClick(d.window.windowHandle(), Qt::Key_A);
        d.release(kPress);
    });
    row("key let go during the press", [](Desk &d) {
        d.view->setFocus();
        QTest::keyPress(d.window.windowHandle(), Qt::Key_L);
        d.press(kPress);
        d.move(kPress + QPoint(4, 0));
        d.repeatKey(Qt::Key_L);
        QTest::keyRelease(d.window.windowHandle(), Qt::Key_L);
        d.move(kPress + QPoint(8, 0));
        d.release(kPress + QPoint(8, 0));
    });
    row("modifier during the press", [](Desk &d) {
        d.view->setFocus();
        d.press(kPress);
        d.move(kPress + QPoint(5, 5));
        QTest::keyPress(d.window.windowHandle(), Qt::Key_Control);
        d.move(kPress + QPoint(60, 0));
        d.release(kPress + QPoint(60, 0));
        QTest::keyRelease(d.window.windowHandle(), Qt::Key_Control);
    });
    row("wheel during the press", [](Desk &d) {
        d.press(kPress);
        d.turnWheel(kPress);
        d.release(kPress);
    });
    row("wheel during a short drag", [](Desk &d) {
        d.press(kPress);
        d.move(kPress + QPoint(6, 0));
        d.turnWheel(kPress + QPoint(6, 0));
        d.move(kPress + QPoint(70, 0));
        d.release(kPress + QPoint(70, 0));
    });
    row("gestures disabled", [](Desk &d) {
        d.isEnabled = false;
        d.tracker.takesDrags = false;
        dragBy(d, {100, 0});
    });
    row("view disabled", [](Desk &d) {
        d.view->setEnabled(false);
        dragBy(d, {100, 0});
    });
    row("two clicks", [](Desk &d) {
        d.press(kPress);
        d.release(kPress);
        d.move(kPress + QPoint(50, 50));
        d.press(kPress + QPoint(50, 50));
        d.release(kPress + QPoint(50, 50));
    });
}

void PointerFilterTest::programSeesPlainUseUnchanged()
{
    QFETCH(Script, script);
    const QStringList without = play(script, false);
    const QStringList with = play(script, true);
    QCOMPARE(with, without);
}

// A menu opened inside the context-menu event runs an event loop there. With real input
// the release comes while that loop runs, and goes to the menu.
void PointerFilterTest::contextMenuOpenedByThePressGetsTheRelease()
{
    const auto run = [](bool hasFilter) {
        QStringList log;
        Desk desk;
        if (!QTest::qWaitForWindowExposed(&desk.window))
            return QStringList(QStringLiteral("no window"));
        desk.move(QPoint(-10, -10));
        desk.view->log.clear();
        if (hasFilter)
            desk.addFilter();
        QMenu menu;
        menu.addAction(QStringLiteral("first"));

        class ReleaseLog : public QObject
        {
        public:
            explicit ReleaseLog(QStringList &list)
                : m_list(list)
            {
            }
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::MouseButtonRelease)
                    m_list << QStringLiteral("menu: release, visible");
                return false;
            }
            QStringList &m_list;
        };
        ReleaseLog releases(log);
        menu.installEventFilter(&releases);

        bool isReleased = false;
        desk.view->onContextMenu = [&](QPoint global) {
            // With the filter, the release has already happened: it opened the menu.
            QMetaObject::invokeMethod(
                &menu,
                [&] {
                    if (!isReleased)
                        desk.release(kPress);
                    isReleased = true;
                    QMetaObject::invokeMethod(
                        &menu,
                        [&] {
                            log << (menu.isVisible() ? QStringLiteral("menu: open")
                                                     : QStringLiteral("menu: closed"));
                            menu.close();
                        },
                        Qt::QueuedConnection);
                },
                Qt::QueuedConnection);
            menu.exec(global);
            log << QStringLiteral("menu: done");
        };
        desk.press(kPress);
        if (hasFilter) {
            isReleased = true;
            desk.release(kPress);
        }
        return desk.view->log + log;
    };
    const QStringList without = run(false);
    QVERIFY(without.contains(QStringLiteral("menu: release, visible")));
    QCOMPARE(run(true), without);
}

// Qt makes two events of the second press: the one that opens the menu, and the double click. The
// menu must not get the double click, or it would run the entry under the pointer.
void PointerFilterTest::doubleClickWaitsForTheMenu()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QMenu menu;
    int triggered = 0;
    connect(menu.addAction(QStringLiteral("first")), &QAction::triggered, this,
            [&triggered] { ++triggered; });
    const QString done = QStringLiteral("menu: done");
    desk.view->onContextMenu = [&](QPoint global) {
        QTimer::singleShot(0, &menu, &QMenu::close);
        menu.exec(global);
        desk.view->log << done;
    };
    desk.view->log.clear();
    QTest::mouseDClick(desk.window.windowHandle(), Qt::RightButton, {}, desk.inWindow(kPress));
    QCoreApplication::processEvents();
    const QStringList &log = desk.view->log;
    QCOMPARE(log.count(done), 2);
    const QStringList doubleClicks = log.filter(QStringLiteral("MouseButtonDblClick"));
    QCOMPARE(doubleClicks.size(), 1);
    QVERIFY2(log.indexOf(doubleClicks.first()) > log.lastIndexOf(done),
             qPrintable(log.join(QLatin1Char(';'))));
    QCOMPARE(triggered, 0);
    // The release came before the double click, so Qt believes that the button is down until the
    // next event.
    desk.press(kPress, Qt::LeftButton);
    desk.release(kPress, Qt::LeftButton);
}

void PointerFilterTest::menuStaysOpenUntilAnswered()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QMenu menu;
    QAction *action = menu.addAction(QStringLiteral("first"));
    QSignalSpy triggered(action, &QAction::triggered);
    desk.view->onContextMenu = [&menu](QPoint global) { menu.popup(global); };
    desk.press(kPress);
    QVERIFY(!menu.isVisible());
    desk.release(kPress);
    QVERIFY(menu.isVisible());
    QCoreApplication::processEvents();
    QVERIFY(menu.isVisible());

    const QPoint onAction = menu.actionGeometry(action).center();
    QTest::mouseMove(menu.windowHandle(), onAction);
    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, onAction);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!menu.isVisible());
}

void PointerFilterTest::buttonsAreReportedAsHeldDuringTheReplay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    Qt::MouseButtons held;
    desk.view->onPress = [&held] { held = QGuiApplication::mouseButtons(); };
    desk.press(kPress);
    desk.release(kPress);
    QCOMPARE(held, Qt::MouseButtons(Qt::RightButton));
    QCOMPARE(QGuiApplication::mouseButtons(), Qt::MouseButtons(Qt::NoButton));
}

// A program that opens a modal dialog in its press handler never gets the release.
void PointerFilterTest::dialogOpenedByThePressBlocksTheRest()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->log.clear();
    QDialog dialog(&desk.window);
    QStringList whileOpen;
    desk.view->onPress = [&] {
        QMetaObject::invokeMethod(
            &dialog,
            [&] {
                whileOpen = desk.view->log.filter(QStringLiteral("Release"));
                dialog.reject();
            },
            Qt::QueuedConnection);
        dialog.exec();
    };
    desk.press(kPress);
    desk.release(kPress);
    QCOMPARE(whileOpen, QStringList());
    QCOMPARE(desk.view->log.filter(QStringLiteral("Release")), QStringList());
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// What the program gets while it handles the press comes after the release that was held with it.
void PointerFilterTest::aMovementComesAfterTheRest()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.view->onPress = [&desk] { desk.move(kPress + QPoint(3, 3)); };
    desk.press(kPress);
    desk.view->log.clear();
    desk.release(kPress);
    QStringList order;
    for (const QString &line : std::as_const(desk.view->log))
        order << line.section(QLatin1Char(' '), 0, 0);
    order.removeAll(QStringLiteral("ContextMenu"));
    order.removeAll(QStringLiteral("FocusIn"));
    QCOMPARE(order, (QStringList{QStringLiteral("MouseButtonPress"),
                                 QStringLiteral("MouseButtonRelease"), QStringLiteral("MouseMove")}));
}

// The filter looks at some events without keeping them.
void PointerFilterTest::aPressAfterTheRestIsHeldBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->onPress = [&desk] {
        desk.view->onPress = {};
        desk.press(kPress);
    };
    desk.press(kPress);
    desk.view->log.clear();
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 1);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonRelease")).size(), 1);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonRelease")).size(), 2);
}

void PointerFilterTest::theProgramsOwnEventsPass()
{
    QStringList log;
    const Observer observer(qApp, [&log](QObject *, const QEvent *event) {
        log << QString::fromLatin1(
            QMetaEnum::fromType<QEvent::Type>().valueToKey(static_cast<int>(event->type())));
    });
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QObject object;
    QLabel label(&desk.window);
    for (const QEvent::Type type :
         {QEvent::Show, QEvent::Hide, QEvent::Close, QEvent::WindowBlocked, QEvent::WindowDeactivate,
          QEvent::ApplicationStateChange, QEvent::ToolTipChange}) {
        for (QObject *receiver : {static_cast<QObject *>(&label), &object}) {
            log.clear();
            QEvent event(type);
            QCoreApplication::sendEvent(receiver, &event);
            QCOMPARE(log, QStringList(QString::fromLatin1(
                              QMetaEnum::fromType<QEvent::Type>().valueToKey(int(type)))));
        }
    }
    for (QObject *receiver : {static_cast<QObject *>(&label), &object}) {
        log.clear();
        QFocusEvent event(QEvent::FocusIn);
        QCoreApplication::sendEvent(receiver, &event);
        QCOMPARE(log.first(), QStringLiteral("FocusIn"));
    }
}

// A fast typist may not have released the last key when the drag begins.
void PointerFilterTest::keysOfBeforeLetTheGestureBe()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    desk.press(kPress);
    desk.view->log.clear();
    desk.repeatKey(Qt::Key_L);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    QCOMPARE(desk.view->log, QStringList());
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    // The keys are not part of the gesture. They were pressed before it.
    QCOMPARE(desk.view->log.size(), 2);
    QVERIFY(desk.view->log.first().startsWith(QStringLiteral("KeyPress spontaneous key 76")));
    QVERIFY(desk.view->log.last().startsWith(QStringLiteral("KeyRelease spontaneous key 76")));
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

// A real X server does not always mark the repeats of a held key, and it may report each as
// a release and a press.
void PointerFilterTest::unmarkedRepeatsLetTheGestureBe()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    desk.press(kPress);
    desk.repeatKey(Qt::Key_L, false);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    desk.repeatKey(Qt::Key_L, false);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
}

// A key that was released before the press counts as new when it is pressed during the press.
void PointerFilterTest::aKeyPressedAgainGivesBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_L);
    desk.press(kPress);
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    desk.release(kPress);
}

// The host does not see a key's release in another program. The key must not count as down for
// ever.
void PointerFilterTest::aKeyLetGoElsewhereIsForgotten()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    QApplicationStateChangeEvent away(Qt::ApplicationInactive);
    QCoreApplication::sendEvent(qApp, &away);
    desk.press(kPress);
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    desk.release(kPress);
}

// A key gives the press back, and the program may do anything with the press.
void PointerFilterTest::keyGivesBackAPressThatClosesTheWindow()
{
    Desk desk;
    auto *window = new QWidget;
    window->resize(300, 300);
    auto *view = new tests::LoggingView(window);
    view->resize(300, 300);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    desk.addFilter();
    desk.documents.open(view)->inputPoints().AddTracker(&desk.tracker, 0);
    const QPointer<QWidget> guard = window;
    view->onPress = [window] {
        window->hide();
        window->deleteLater();
    };
    QTest::mousePress(window->windowHandle(), Qt::RightButton, {}, kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QTest::keyPress(window->windowHandle(), Qt::Key_A);
    QCoreApplication::processEvents();
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QTRY_VERIFY(!guard);
    desk.press(kPress); // updates Qt's record of the pressed buttons
    desk.release(kPress);
}

void PointerFilterTest::pressIsHeldBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->log.clear();
    desk.press(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QCOMPARE(desk.tracker.presses, 1);
    QCOMPARE(desk.view->log.filter(QStringLiteral("Press")), QStringList());
    QCOMPARE(desk.view->log.filter(QStringLiteral("ContextMenu")), QStringList());
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    // The trackers do not see the press again when the program gets it.
    QCOMPARE(desk.tracker.presses, 1);
    QCOMPARE(desk.view->log.filter(QStringLiteral("Press")).size(), 1);
    QCOMPARE(desk.view->log.filter(QStringLiteral("Release")).size(), 1);
}

// Qt sends the pen's own event first, and a mouse event when nobody has taken that.
void PointerFilterTest::aPensSideButtonStartsAGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.view->log.clear();
    desk.pen(QEvent::TabletPress, kPress, Qt::RightButton, Qt::RightButton);
    desk.penAsMouse(QEvent::MouseButtonPress, kPress, Qt::RightButton, Qt::RightButton);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    for (const int step : {15, 30, 50}) {
        const QPoint place = kPress + QPoint(step, 0);
        desk.pen(QEvent::TabletMove, place, Qt::NoButton, Qt::RightButton);
        desk.penAsMouse(QEvent::MouseMove, place, Qt::NoButton, Qt::RightButton);
    }
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QVERIFY(desk.tracker.overlay->isOn);
    const QPoint end = kPress + QPoint(50, 0);
    desk.pen(QEvent::TabletRelease, end, Qt::RightButton, Qt::NoButton);
    desk.penAsMouse(QEvent::MouseButtonRelease, end, Qt::RightButton, Qt::NoButton);
    QTRY_COMPARE(desk.tracker.stops, 1);
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    const QStringList mouse = desk.view->log.filter(QStringLiteral("ouse"));
    QCOMPARE(mouse, QStringList());
}

void PointerFilterTest::aPenThatTheProgramHandlesDoesNot()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.pen(QEvent::TabletPress, kPress, Qt::RightButton, Qt::RightButton);
    desk.pen(QEvent::TabletMove, kPress + QPoint(60, 0), Qt::NoButton, Qt::RightButton);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.drags, 0);
    desk.pen(QEvent::TabletRelease, kPress + QPoint(60, 0), Qt::RightButton, Qt::NoButton);
    for (const char *name : {"TabletPress", "TabletMove", "TabletRelease"})
        QCOMPARE(desk.view->log.filter(QLatin1String(name)).size(), 1);
}

void PointerFilterTest::aTouchIsNotAPen()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.trigger = {Qt::LeftButton, Qt::NoModifier};
    desk.addFilter();
    desk.penAsMouse(QEvent::MouseButtonPress, kPress, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.penAsMouse(QEvent::MouseButtonRelease, kPress, Qt::LeftButton, Qt::NoButton);
}

// The window gets a pen's event first, and a program may handle it there.
void PointerFilterTest::aPenComesAfterTheHeldPress()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    int pressesBefore = -1;
    const Observer observer(desk.window.windowHandle(), [&](QObject *, const QEvent *event) {
        if (event->type() == QEvent::TabletPress)
            pressesBefore = int(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size());
    });
    desk.press(kPress);
    desk.view->log.clear();
    desk.pen(QEvent::TabletPress, kPress, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(pressesBefore, 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.pen(QEvent::TabletRelease, kPress, Qt::LeftButton, Qt::NoButton);
    desk.release(kPress);
}

// A program may send events to its own widgets. They come from no device, so they do not wait for the
// press.
void PointerFilterTest::aPenAndAWheelOfTheProgramPass()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.view->log.clear();
    const auto pen =
        qtbridge::tabletEvent(QEvent::TabletPress, kPress, kPress, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::sendEvent(desk.view, pen.get());
    QWheelEvent wheel(kPress, kPress, {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(desk.view, &wheel);
    QCOMPARE(desk.view->log.size(), 2);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.release(kPress);
}

void PointerFilterTest::aProgramWithoutDrawingsGetsItsPress()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.filter = std::make_unique<PointerFilter>(desk.documents, desk.trigger,
                                                  [](const QWidget *) { return true; });
    qApp->installEventFilter(desk.filter.get());
    desk.press(kPress);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.release(kPress);
}

void PointerFilterTest::pressIsNotHeldBack_data()
{
    QTest::addColumn<Script>("prepare");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("position");

    const Script nothing = [](Desk &) {};
    const int right = Qt::RightButton;
    QTest::newRow("another button") << nothing << int(Qt::LeftButton) << 0 << kPress;
    QTest::newRow("a modifier") << nothing << right << int(Qt::AltModifier) << kPress;
    QTest::newRow("outside the view") << nothing << right << 0 << QPoint(-10, 10);
    QTest::newRow("a control in the view") << nothing << right << 0 << QPoint(20, 290);
    QTest::newRow("no tracker") << Script([](Desk &d) {
        d.document->inputPoints().RemoveTracker(&d.tracker);
    }) << right << 0 << kPress;
    QTest::newRow("disabled in the settings")
        << Script([](Desk &d) { d.isEnabled = false; }) << right << 0 << kPress;
    QTest::newRow("view disabled") << Script([](Desk &d) { d.view->setEnabled(false); }) << right << 0
                                   << kPress;
    QTest::newRow("something holds the mouse")
        << Script([](Desk &d) { d.control->grabMouse(); }) << right << 0 << kPress;
}

void PointerFilterTest::pressIsNotHeldBack()
{
    QFETCH(Script, prepare);
    QFETCH(int, button);
    QFETCH(int, modifiers);
    QFETCH(QPoint, position);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.control->setContextMenuPolicy(Qt::NoContextMenu);
    prepare(desk);
    desk.press(position, Qt::MouseButton(button), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.move(position + QPoint(60, -60));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.drags, 0);
    desk.release(position, Qt::MouseButton(button), Qt::KeyboardModifiers(modifiers));
    desk.control->releaseMouse();
}

void PointerFilterTest::twentyPixelsAreNoGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(10, -10));
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.move(kPress + QPoint(10, -11));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    desk.release(kPress + QPoint(10, -11));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::gestureIsKeptFromTheProgram()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.view->setFocus(); // or the gesture would give it the focus
    desk.view->log.clear();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    QCOMPARE(desk.tracker.document, static_cast<CHxDocument *>(desk.document));
    desk.move(kPress + QPoint(50, 0));
    QCOMPARE(desk.tracker.overlay->log, QStringList(QStringLiteral("move")));
    desk.release(kPress + QPoint(50, 0));
    QTRY_COMPARE(desk.tracker.stops, 1);
    QCoreApplication::processEvents();
    QCOMPARE(desk.view->log, QStringList());
}

void PointerFilterTest::flickWithOneMovementStartsTheOverlay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(0, -90));
    QCOMPARE(desk.tracker.starts, 1);
    QVERIFY(desk.tracker.overlay->isOn);
    desk.release(kPress + QPoint(0, -90));
    QTRY_COMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::releaseCancelsWithoutCommand()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 0);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::acceptedGestureRunsOneCommand()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.chooseSector();
    // This needs no further movement.
    QTRY_COMPARE(desk.tracker.commands, 1);
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.release(kPress + QPoint(110, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.move(kPress + QPoint(120, 0));
    QCoreApplication::processEvents();
    QCOMPARE(desk.tracker.commands, 1);
}

void PointerFilterTest::restOfAnAcceptedDragIsSwallowed()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.view->setFocus(); // or the gesture would give it the focus
    desk.view->log.clear();
    desk.chooseSector();
    QTRY_COMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.move(kPress + QPoint(60, 20));
    desk.move(kPress + QPoint(10, 20));
    desk.release(kPress + QPoint(10, 20));
    QCOMPARE(desk.view->log, QStringList());
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.move(kPress + QPoint(10, 25));
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseMove")).size(), 1);
}

void PointerFilterTest::otherButtonsAreSwallowedUntilAllAreUp()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.view->setFocus(); // or the gesture would give it the focus
    desk.view->log.clear();
    desk.chooseSector();
    QTRY_COMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.press(kPress, Qt::LeftButton);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.move(kPress + QPoint(5, 5));
    desk.release(kPress, Qt::LeftButton);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log, QStringList());
}

void PointerFilterTest::releaseElsewhereEndsTheSwallowing()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.chooseSector();
    QTRY_COMPARE(desk.state(), PointerFilter::State::Swallowing);
    // The release went to another program, so the next movement comes without buttons.
    const QPoint position = desk.inWindow(kPress);
    QMouseEvent hover(QEvent::MouseMove, position, desk.window.mapToGlobal(position), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    desk.view->log.clear();
    QCoreApplication::sendEvent(desk.window.windowHandle(), &hover);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QVERIFY(!desk.view->log.filter(QStringLiteral("MouseMove")).isEmpty());
    desk.release(kPress);
}

void PointerFilterTest::pressAfterALostReleaseStartsAnew()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.chooseSector();
    QTRY_COMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.press(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QCOMPARE(desk.tracker.presses, 2);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::gesturesFollowEachOther()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    for (int i = 1; i <= 5; ++i) {
        desk.chooseSector();
        desk.release(kPress + QPoint(110, 0));
        // The next press may come before the event loop runs.
    }
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.starts, 5);
    QCOMPARE(desk.tracker.commands, 5);
    QCOMPARE(desk.tracker.stops, 5);
}

void PointerFilterTest::gestureWithoutOverlayEndsWithTheRelease()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    desk.addFilter();
    desk.tracker.showsOverlay = false;
    FreeTracker tracker;
    bool isHeld = false;
    tracker.onUpdate = [&isHeld](int, CHxHitTestInfo &hit) { isHeld = hit.IsButtonHeld(); };
    desk.document->inputPoints().AddTracker(&tracker, 0);
    desk.view->setFocus(); // or the gesture would give it the focus
    desk.view->log.clear();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.move(kPress + QPoint(60, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    isHeld = false;
    int releases = 0; // that the program's window gets
    const Observer observer(desk.window.windowHandle(), [&releases](QObject *, const QEvent *event) {
        releases += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
    });
    desk.release(kPress + QPoint(60, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QVERIFY(isHeld); // the release ends it
    QCOMPARE(releases, 0);
    QCOMPARE(desk.view->log, QStringList());
}

void PointerFilterTest::endIsToldThoughAPopupIsOpen()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QMenu menu;
    menu.addAction(QStringLiteral("first"));
    desk.chooseSector();
    menu.popup(desk.window.mapToGlobal(QPoint(0, 0)));
    QTRY_COMPARE(desk.tracker.commands, 1);
    menu.close();
    desk.release(kPress + QPoint(110, 0));
}

// The press was not the program's, so the rest of the drag is not either.
void PointerFilterTest::aDragWithoutOverlayIsSwallowed()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.tracker.showsOverlay = false;
    desk.addFilter();
    desk.press(kPress);
    desk.view->setFocus(); // or the gesture would give it the focus
    desk.view->log.clear();
    int moves = 0; // that the program's window gets
    const Observer observer(desk.window.windowHandle(), [&moves](QObject *, const QEvent *event) {
        moves += event->type() == QEvent::MouseMove ? 1 : 0;
    });
    desk.move(kPress + QPoint(30, 0));
    desk.move(kPress + QPoint(40, 0));
    desk.move(kPress + QPoint(50, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QCOMPARE(moves, 0);
    QCOMPARE(desk.view->log, QStringList());
    desk.release(kPress + QPoint(50, 0));
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::anotherPressEndsAGestureWithoutOverlay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.tracker.showsOverlay = false;
    desk.addFilter();
    desk.press(kPress);
    desk.view->log.clear();
    desk.move(kPress + QPoint(30, 0));
    desk.press(kPress + QPoint(30, 0), Qt::LeftButton);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.release(kPress + QPoint(30, 0), Qt::LeftButton);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
}

// No button was held before it, as the tracker learns.
void PointerFilterTest::aPressAfterALostReleaseEndsAGestureWithoutOverlay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    FreeTracker tracker;
    QVector<bool> held;
    tracker.onUpdate = [&held](int, CHxHitTestInfo &hit) {
        held << hit.IsButtonHeld();
        if (hit.IsMotion())
            hit.NotifyDrag();
    };
    desk.addFilter(tracker);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    held.clear();
    desk.press(kPress + QPoint(30, 0));
    QCOMPARE(held, (QVector<bool>{false, true})); // the end, and the new press
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// It would wait for a release that has already happened.
void PointerFilterTest::anOverlayThatComesWithTheEndIsStopped()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    FreeTracker slow;
    tests::FakeOverlay overlay;
    slow.onUpdate = [&](int update, CHxHitTestInfo &hit) {
        if (hit.IsMotion() && hit.IsButtonHeld())
            hit.NotifyDrag();
        if (update == 4) // after the press, the drag, and the start of the gesture
            overlay.start();
    };
    desk.addFilter(slow);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(slow.updates, 5); // it learns that its overlay has stopped
    QVERIFY(!overlay.isVisible());
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// Its widget may be shown for something else when the next gesture ends without an overlay.
void PointerFilterTest::anOverlayOfBeforeIsLeftAlone()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    FreeTracker slow;
    tests::FakeOverlay overlay;
    slow.onUpdate = [&overlay](int update, CHxHitTestInfo &hit) {
        if (hit.IsMotion() && hit.IsButtonHeld())
            hit.NotifyDrag();
        if (update == 4) // after the press, the drag, and the start of the gesture
            overlay.start();
    };
    desk.addFilter(slow);
    desk.view->setFocus();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.release(kPress + QPoint(30, 0));
    QVERIFY(overlay.hasStopped);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);

    overlay.setAttribute(Qt::WA_ShowWithoutActivating);
    overlay.show();
    overlay.log.clear();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    const Observer observer(desk.view, [&desk](QObject *, const QEvent *event) {
        if (event->type() == QEvent::KeyRelease)
            desk.filter->cancel();
    });
    desk.press(kPress);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    desk.move(kPress + QPoint(30, 0)); // the gesture begins, and the key cancels it
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    QVERIFY(overlay.isVisible());
    QCOMPARE(overlay.log, QStringList());
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// A tracker may run anything of the host, and so end the gesture that is being shown to it.
void PointerFilterTest::aTrackerMayCancel_data()
{
    QTest::addColumn<int>("update");
    QTest::newRow("at the press") << 1;
    QTest::newRow("at the drag") << 2;
    QTest::newRow("at the start of the gesture") << 3;
}

void PointerFilterTest::aTrackerMayCancel()
{
    QFETCH(int, update);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    FreeTracker tracker;
    tracker.onUpdate = [&](int number, CHxHitTestInfo &hit) {
        if (hit.IsMotion())
            hit.NotifyDrag();
        if (number == update)
            desk.filter->cancel();
    };
    desk.addFilter(tracker);
    desk.press(kPress);
    int moves = 0; // that the program's window gets
    const Observer observer(desk.window.windowHandle(), [&moves](QObject *, const QEvent *event) {
        moves += event->type() == QEvent::MouseMove ? 1 : 0;
    });
    desk.move(kPress + QPoint(30, 0));
    // Only a movement after the end is the program's.
    QCOMPARE(moves, update == 1 ? 1 : 0);
    QCOMPARE(desk.state(), update == 3 ? PointerFilter::State::Swallowing : PointerFilter::State::Idle);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QVERIFY(!QWidget::mouseGrabber());
}

void PointerFilterTest::dragGivenToTheProgramStaysThere()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.tracker.takesDrags = false;
    desk.press(kPress);
    desk.move(kPress + QPoint(40, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.move(kPress + QPoint(41, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    // A tracker that changes its mind does not get the drag either.
    desk.tracker.takesDrags = true;
    desk.move(kPress + QPoint(60, 0));
    QCOMPARE(desk.tracker.drags, 0);
    desk.release(kPress + QPoint(60, 0));
}

void PointerFilterTest::pressOfAnotherButtonGivesBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->log.clear();
    desk.press(kPress);
    desk.press(kPress, Qt::LeftButton);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 2);
    desk.move(kPress + QPoint(60, 0));
    QCOMPARE(desk.tracker.drags, 0);
    desk.release(kPress, Qt::LeftButton);
    desk.release(kPress);
}

void PointerFilterTest::aMovementAfterALostReleaseGivesBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.view->log.clear();
    desk.penAsMouse(QEvent::MouseMove, kPress + QPoint(1, 0), Qt::NoButton, Qt::NoButton);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 1);
    desk.release(kPress);
}

void PointerFilterTest::lostWindowGivesBack_data()
{
    QTest::addColumn<Script>("happens");
    QTest::addColumn<bool>("isSeen");
    QTest::newRow("deactivated") << Script([](Desk &d) {
        QEvent event(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(&d.window, &event);
    }) << false;
    QTest::newRow("popup opened") << Script([](Desk &d) {
        auto *popup = new QWidget(&d.window, Qt::Popup);
        popup->show();
        popup->close();
    }) << true;
    QTest::newRow("window hidden") << Script([](Desk &d) { d.window.hide(); }) << true;
    QTest::newRow("window closed") << Script([](Desk &d) { d.window.close(); }) << true;
    QTest::newRow("another widget hidden") << Script([](Desk &d) { d.control->hide(); }) << false;
    QTest::newRow("modal dialog opened") << Script([](Desk &d) {
        auto *dialog = new QDialog(&d.window);
        dialog->open();
    }) << false;
    QTest::newRow("window without a view deactivated") << Script([](Desk &d) {
        QEvent event(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(d.control, &event);
    }) << false;
}

void PointerFilterTest::lostWindowGivesBack()
{
    QFETCH(Script, happens);
    QFETCH(bool, isSeen);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->log.clear();
    desk.press(kPress);
    happens(desk);
    // The press is given back from the event loop, not during the call.
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QCoreApplication::processEvents();
    QCOMPARE(!desk.view->log.filter(QStringLiteral("MouseButtonPress")).isEmpty(), isSeen);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::windowEventsEndIt_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isGesture");
    QTest::addColumn<bool>("ends");
    const auto types = QMetaEnum::fromType<QEvent::Type>();
    for (const char *receiver : {"view", "window", "control", "popup"}) {
        const bool isOfView = qstrcmp(receiver, "view") == 0 || qstrcmp(receiver, "window") == 0;
        const bool isPopup = qstrcmp(receiver, "popup") == 0;
        for (const QEvent::Type type : {QEvent::Show, QEvent::Hide, QEvent::Close, QEvent::WindowBlocked,
                                        QEvent::WindowDeactivate}) {
            const bool isLost =
                type == QEvent::Hide || type == QEvent::Close || type == QEvent::WindowBlocked;
            const bool ends = (isOfView && isLost) || (isPopup && type == QEvent::Show);
            for (const bool isGesture : {false, true})
                QTest::addRow("%s of %s, %s", types.valueToKey(type), receiver,
                              isGesture ? "gesture" : "held press")
                    << QString::fromLatin1(receiver) << int(type) << isGesture << ends;
        }
    }
}

// The events alone, without what makes them.
void PointerFilterTest::windowEventsEndIt()
{
    QFETCH(QString, receiver);
    QFETCH(int, type);
    QFETCH(bool, isGesture);
    QFETCH(bool, ends);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QWidget popup(&desk.window, Qt::Popup);
    const QMap<QString, QWidget *> receivers{{QStringLiteral("view"), desk.view},
                                             {QStringLiteral("window"), &desk.window},
                                             {QStringLiteral("control"), desk.control},
                                             {QStringLiteral("popup"), &popup}};
    desk.press(kPress);
    if (isGesture)
        desk.move(kPress + QPoint(30, 0));
    const PointerFilter::State before = desk.state();
    QCOMPARE(before, isGesture ? PointerFilter::State::Gesturing : PointerFilter::State::Holding);
    std::unique_ptr<QEvent> event;
    if (type == QEvent::Show)
        event = std::make_unique<QShowEvent>();
    else if (type == QEvent::Hide)
        event = std::make_unique<QHideEvent>();
    else if (type == QEvent::Close)
        event = std::make_unique<QCloseEvent>();
    else
        event = std::make_unique<QEvent>(QEvent::Type(type));
    QCoreApplication::sendEvent(receivers.value(receiver), event.get());
    QCOMPARE(desk.state(), before); // the sender may be in the middle of something
    QCoreApplication::processEvents();
    const PointerFilter::State after =
        isGesture ? PointerFilter::State::Swallowing : PointerFilter::State::Idle;
    QCOMPARE(desk.state(), ends ? after : before);
    QCOMPARE(desk.tracker.overlay->isOn, isGesture && !ends);
    desk.release(kPress);
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::viewClosedWhileHolding()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    delete desk.view;
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QTest::mouseRelease(desk.window.windowHandle(), Qt::RightButton, {}, QPoint(170, 170));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::viewClosedDuringTheGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    delete desk.view;
    QVERIFY(!desk.tracker.overlay->isOn);
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 0);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    QTest::mouseRelease(desk.window.windowHandle(), Qt::RightButton, {}, QPoint(170, 170));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::windowHiddenDuringTheGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.window.hide();
    QTRY_COMPARE(desk.tracker.stops, 1);
    QVERIFY(!desk.tracker.overlay->isOn);
    QCOMPARE(desk.tracker.commands, 0);
    desk.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::dialogDuringTheGestureCancels()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QDialog dialog(&desk.window);
    dialog.open();
    QTRY_COMPARE(desk.tracker.stops, 1);
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(desk.tracker.commands, 0);
    dialog.close();
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::cancelLeavesNothingGrabbed()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.filter->cancel();
    QCOMPARE(desk.state(), PointerFilter::State::Idle);

    desk.view->log.clear();
    desk.press(kPress);
    desk.filter->cancel();
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.release(kPress);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());

    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.filter->cancel();
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(desk.tracker.stops, 1);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::aJumpOfThePointerEndsTheGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.filter->pointerJumped();
    QCOMPARE(desk.state(), PointerFilter::State::Idle);

    desk.view->log.clear();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.filter->pointerJumped();
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(desk.tracker.stops, 1);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
}

void PointerFilterTest::aJumpOfThePointerGivesBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->log.clear();
    desk.press(kPress);
    desk.filter->pointerJumped();
    // Not during the call: the program may end the window.
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
    QTRY_COMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.release(kPress);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonRelease")).size(), 1);
}

void PointerFilterTest::cancelKeepsNoKeys()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    desk.press(kPress);
    desk.view->log.clear();
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    desk.filter->cancel();
    // Nothing is sent at once, because the caller may be destroying the view.
    QCOMPARE(desk.view->log, QStringList());
    QTRY_COMPARE(desk.view->log.filter(QStringLiteral("KeyRelease")).size(), 1);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")).size(), 0);
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::overlayThatIgnoresTheReleaseIsForcedToLetGo()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.tracker.overlay->isOn = false; // does not react any more
    desk.tracker.overlay->grabKeyboard();
    desk.filter->cancel();
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    QVERIFY(!desk.tracker.overlay->isVisible());
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::overlayThatLosesTheMouseIsStopped()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    FreeTracker tracker;
    bool isHeld = false;
    tracker.onUpdate = [&isHeld](int, CHxHitTestInfo &hit) { isHeld = hit.IsButtonHeld(); };
    desk.document->inputPoints().AddTracker(&tracker, 0);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    isHeld = false;
    desk.control->grabMouse(); // takes Qt's grab away
    desk.move(kPress + QPoint(35, 0));
    QVERIFY(!desk.tracker.overlay->isVisible());
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 0);
    QVERIFY(isHeld); // at the end
    QCOMPARE(QWidget::mouseGrabber(), desk.control);
    desk.control->releaseMouse();
    desk.release(kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// An overlay goes with the main window that it belongs to, and the view may be in another one.
void PointerFilterTest::overlayThatIsDestroyedIsNotReplaced()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isVisible());
    desk.tracker.overlay = std::make_unique<tests::FakeOverlay>();
    desk.release(kPress + QPoint(30, 0));
    desk.move(kPress + QPoint(35, 0));
    QVERIFY(!desk.tracker.overlay->isVisible());
    QCOMPARE(desk.tracker.starts, 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.tracker.starts, 2);
    desk.release(kPress + QPoint(30, 0));
}

void PointerFilterTest::overlayDestroyedByItsRelease()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    // The program may destroy windows at any event.
    class Destroyer : public QObject
    {
    public:
        explicit Destroyer(Desk &desk)
            : m_desk(desk)
        {
            qApp->installEventFilter(this);
        }
        bool eventFilter(QObject *receiver, QEvent *event) override
        {
            if (receiver != m_desk.tracker.overlay.get() || event->type() != QEvent::MouseButtonRelease)
                return false;
            m_desk.tracker.overlay = std::make_unique<tests::FakeOverlay>();
            return true;
        }

    private:
        Desk &m_desk;
    } destroyer(desk);
    desk.filter->cancel();
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!desk.tracker.overlay->isVisible());
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// What the program or the overlay does at the release may end the gesture too.
void PointerFilterTest::overlayThatCancelsAtItsRelease()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    bool isCancelled = false;
    const Observer observer(desk.tracker.overlay.get(), [&](QObject *, const QEvent *event) {
        if (event->type() == QEvent::MouseButtonRelease && !std::exchange(isCancelled, true))
            desk.filter->cancel();
    });
    desk.filter->cancel();
    QVERIFY(isCancelled);
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!desk.tracker.overlay->isVisible());
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 0);
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// A tracker may run an event loop. If the overlay comes there, what grabs the mouse afterwards is
// not the overlay.
void PointerFilterTest::overlayThatComesDuringAnUpdateIsTheOverlay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(kPress);
    FreeTracker tracker;
    tests::FakeOverlay overlay;
    tracker.onUpdate = [&](int update, CHxHitTestInfo &hit) {
        if (hit.IsMotion())
            hit.NotifyDrag();
        if (update == 3) { // the start of the gesture
            desk.move(kPress + QPoint(32, 0));
            desk.control->grabMouse();
        } else if (update == 4) {
            overlay.start();
        }
    };
    desk.addFilter(tracker);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QVERIFY(overlay.isOn);
    desk.move(kPress + QPoint(35, 0));
    QVERIFY(!overlay.isVisible());
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    QCOMPARE(QWidget::mouseGrabber(), desk.control);
    desk.control->releaseMouse();
    desk.release(kPress + QPoint(35, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// Also if no event of the mouse follows.
void PointerFilterTest::anOverlayThatStopsEndsTheGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    desk.tracker.overlay->stop(true);
    QTRY_COMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 1);
    QVERIFY(!desk.tracker.overlay->log.contains(QStringLiteral("release"))); // nobody stops it again
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// A window of the program, such as a tool tip, may go at any time.
void PointerFilterTest::aWindowThatHidesLeavesTheGesture_data()
{
    QTest::addColumn<bool>("showsOverlay");
    QTest::newRow("with an overlay") << true;
    QTest::newRow("without an overlay") << false;
}

void PointerFilterTest::aWindowThatHidesLeavesTheGesture()
{
    QFETCH(bool, showsOverlay);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.tracker.showsOverlay = showsOverlay;
    QLabel tip(&desk.window, Qt::ToolTip);
    tip.show();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    tip.hide();
    QCoreApplication::processEvents();
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QCOMPARE(desk.tracker.overlay->isOn, showsOverlay);
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

// The overlay posts a movement to the view when it stops, in case no other event follows.
void PointerFilterTest::aPostedMovementEndsAStoppedGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    const auto post = [&desk] {
        QMouseEvent event(QEvent::MouseMove, kPress, kPress, kPress, Qt::NoButton, Qt::RightButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(desk.view, &event);
    };
    const int updates = desk.tracker.updates;
    post(); // too early: the overlay is still on
    QCOMPARE(desk.tracker.updates, updates); // the ring has the mouse, the trackers do not
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QCOMPARE(desk.tracker.stops, 0);
    desk.tracker.overlay->stop(true);
    post();
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 1);
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::filterDestroyedDuringTheReplay()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->onPress = [&desk] { desk.filter.reset(); };
    desk.press(kPress);
    desk.release(kPress);
    QVERIFY(!desk.filter);
    // The press that the program got was followed by its release.
    QCOMPARE(desk.view->log.filter(QStringLiteral("Release")).size(), 1);
}

// An event that comes while the program handles the press brings the rest, and what the program does
// with that may destroy the filter. The event is then the program's.
void PointerFilterTest::filterDestroyedByTheRest()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    const Observer observer(desk.view, [&desk](QObject *, const QEvent *event) {
        if (event->type() == QEvent::MouseButtonRelease)
            desk.filter.reset();
    });
    desk.view->onPress = [&desk] {
        desk.view->onPress = {};
        desk.press(kPress, Qt::LeftButton);
    };
    desk.press(kPress);
    desk.view->log.clear();
    desk.release(kPress);
    QVERIFY(!desk.filter);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonPress")).size(), 2);
    desk.release(kPress, Qt::LeftButton);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButtonRelease")).size(), 2);
}

// The keys of before go to the program when the gesture begins.
void PointerFilterTest::filterDestroyedByAKeyOfBefore()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    const Observer observer(desk.view, [&desk](QObject *, const QEvent *event) {
        if (event->type() == QEvent::KeyRelease)
            desk.filter.reset();
    });
    desk.press(kPress);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    QVERIFY(desk.filter);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(!desk.filter);
    QCOMPARE(desk.tracker.starts, 0);
    QVERIFY(!desk.tracker.overlay->isVisible());
    desk.release(kPress + QPoint(30, 0));
}

// The program may handle such a key by something that ends the gesture.
void PointerFilterTest::aKeyOfBeforeMayCancelTheGesture()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_L);
    const Observer observer(desk.view, [&desk](QObject *, const QEvent *event) {
        if (event->type() == QEvent::KeyRelease)
            desk.filter->cancel();
    });
    desk.press(kPress);
    QTest::keyRelease(desk.window.windowHandle(), Qt::Key_L);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    desk.move(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Swallowing);
    QVERIFY(!desk.tracker.overlay->isVisible());
    desk.release(kPress + QPoint(30, 0));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.commands, 0);
}

// The filter handles a window event later. By then the drag may have become a gesture.
void PointerFilterTest::aBegunGestureIsNotGivenBack()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.press(kPress);
    desk.view->log.clear();
    QHideEvent hidden;
    QCoreApplication::sendEvent(&desk.window, &hidden);
    desk.move(kPress + QPoint(30, 0));
    QCoreApplication::processEvents();
    QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
    QVERIFY(desk.tracker.overlay->isOn);
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
}

void PointerFilterTest::trackersSeeMovements()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(QPoint(-10, -10));
    desk.addFilter();
    desk.move(kPress);
    desk.move(kPress + QPoint(1, 1));
    QCOMPARE(desk.tracker.updates, 2);
    QCOMPARE(desk.tracker.suppressed, 0);
    desk.move(QPoint(-10, -10));
    QCOMPARE(desk.tracker.updates, 2);
    desk.move(kPress);
    QCOMPARE(desk.tracker.updates, 3);
    // This button does not start gestures.
    desk.press(kPress, Qt::LeftButton);
    desk.move(kPress + QPoint(60, 0));
    QCOMPARE(desk.tracker.updates, 5);
    QCOMPARE(desk.tracker.suppressed, 2);
    desk.release(kPress, Qt::LeftButton);
}

void PointerFilterTest::viewLearnsPositionsInItsOwnPixels()
{
    class PositionTracker : public CHxTracker
    {
    public:
        void Update(CHxTrackerContext *, CHxHitTestInfo *hit) override
        {
            positions << hit->GetPosition();
        }
        void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
        void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
        [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return false; }
        bool DoAction(const CHxHitTestInfo *) override { return false; }
        QVector<QPoint> positions;
    };
    PositionTracker tracker;
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.move(QPoint(-10, -10));
    desk.addFilter();
    desk.document->inputPoints().AddTracker(&tracker, 0);
    desk.move(kPress); // seen by the view
    desk.press(kPress); // seen by its window
    desk.move(kPress + QPoint(3, -4));
    const QVector<QPoint> expected{kPress, kPress, kPress + QPoint(3, -4)};
    QCOMPARE(tracker.positions, expected);
    desk.release(kPress);
}

// A view with a window of its own, as OpenGL views have.
void PointerFilterTest::nestedWindowOfAView()
{
    Desk desk;
    desk.view->setAttribute(Qt::WA_NativeWindow);
    desk.view->winId();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QWindow *nested = desk.view->windowHandle();
    QVERIFY(nested);
    desk.view->log.clear();
    QTest::mousePress(nested, Qt::RightButton, {}, kPress);
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QTest::mouseRelease(nested, Qt::RightButton, {}, kPress);
    const QStringList presses = desk.view->log.filter(QStringLiteral("MouseButtonPress"));
    QCOMPARE(presses.size(), 1);
    QVERIFY(presses.first().contains(QStringLiteral("at 150,150 ")));

    QTest::mousePress(nested, Qt::RightButton, {}, kPress);
    QTest::mouseMove(nested, kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    QTest::mouseRelease(nested, Qt::RightButton, {}, kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.tracker.stops, 1);
}

// A program may draw in a window that no widget has, inside of one that has.
// It may have no widget, or nothing on the screen, which then stays so.
void PointerFilterTest::aWindowWithoutADrawingGetsItsPress()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QWindow bare;
    bare.resize(100, 100);
    bare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bare));
    QWindow unseen;
    const QPointF place(10, 10);
    for (QWindow *window : {&bare, &unseen}) {
        int presses = 0;
        const Observer observer(window, [&presses](QObject *, const QEvent *event) {
            presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        });
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, place, place, Qt::RightButton,
                              type == QEvent::MouseButtonPress ? Qt::RightButton : Qt::NoButton,
                              Qt::NoModifier);
            sendFromOutside(window, event);
        }
        QCOMPARE(desk.state(), PointerFilter::State::Idle);
        QCOMPARE(presses, 1);
    }
    QVERIFY(!unseen.handle());
}

void PointerFilterTest::aWindowWithoutAWidgetIsItsContainers()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QWindow *bare = desk.addBareView(QRect(330, 20, 60, 60));
    QVERIFY(QTest::qWaitForWindowExposed(bare));
    QTest::mousePress(bare, Qt::RightButton, {}, QPoint(10, 10));
    QCOMPARE(desk.state(), PointerFilter::State::Holding);
    QCOMPARE(desk.tracker.presses, 1);
    QTest::mouseRelease(bare, Qt::RightButton, {}, QPoint(10, 10));
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
}

// What was queued for the window when the overlay took the mouse still comes to the window.
void PointerFilterTest::anOverlayGetsWhatCameToAWindowWithoutAWidget()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QWindow *bare = desk.addBareView(QRect(20, 20, 300, 300));
    QVERIFY(QTest::qWaitForWindowExposed(bare));
    QTest::mousePress(bare, Qt::RightButton, {}, kPress);
    QTest::mouseMove(bare, kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    const Counter others(bare, mouseEvents());
    QTest::mouseMove(bare, kPress + QPoint(40, 0));
    QTest::mouseRelease(bare, Qt::RightButton, {}, kPress + QPoint(40, 0));
    QCOMPARE(desk.tracker.overlay->log,
             QStringList({QStringLiteral("move"), QStringLiteral("release")}));
    QVERIFY(!desk.tracker.overlay->isVisible());
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.stops, 1);
    QCOMPARE(desk.tracker.commands, 0);
    QCOMPARE(others.count(), 0);
}

void PointerFilterTest::aWindowThatWasPressedDuringTheFading_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isDrag");
    QTest::newRow("click") << int(Qt::RightButton) << false;
    QTest::newRow("click of another button") << int(Qt::LeftButton) << false;
    QTest::newRow("gesture") << int(Qt::RightButton) << true;
    QTest::newRow("drag of another button") << int(Qt::LeftButton) << true;
}

// The window system has sent it to the overlay, which had the mouse until then.
void PointerFilterTest::aWindowThatWasPressedDuringTheFading()
{
    QFETCH(const int, button);
    QFETCH(const bool, isDrag);
    const auto used = Qt::MouseButton(button);
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.chooseSector();
    QVERIFY(desk.overlayWindow() && !desk.overlayWindow()->isVisible());
    desk.view->log.clear();
    // Qt itself gives a movement to the widget that has the button.
    const Counter missed(desk.overlayWindow(), {QEvent::MouseButtonPress, QEvent::MouseButtonRelease});
    desk.release(kPress + QPoint(110, 0));
    const QPoint place = desk.view->mapToGlobal(kPress);
    desk.late(QEvent::MouseButtonPress, place, used, used);
    desk.late(QEvent::MouseMove, place + QPoint(isDrag ? 30 : 2, 0), Qt::NoButton, used);
    if (used == Qt::RightButton && isDrag) {
        QCOMPARE(desk.tracker.starts, 2);
        QVERIFY(desk.tracker.overlay->isOn);
        desk.tracker.overlay->stop(false);
        desk.move(kPress + QPoint(31, 0));
        desk.release(kPress + QPoint(31, 0));
    } else {
        desk.late(QEvent::MouseButtonRelease, place, used, Qt::NoButton);
        QStringList seen = desk.view->log.filter(QStringLiteral("Mouse"));
        for (QString &line : seen)
            line = line.section(QLatin1Char(' '), 0, 3);
        QCOMPARE(seen,
                 (QStringList{QStringLiteral("MouseButtonPress spontaneous at 150,150"),
                              QStringLiteral("MouseMove spontaneous at %1,150").arg(isDrag ? 180 : 152),
                              QStringLiteral("MouseButtonRelease spontaneous at 150,150")}));
    }
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.commands, 1);
    QCOMPARE(missed.count(), 0);
}

// The window that got the press gets what follows, also over another one.
void PointerFilterTest::aSecondButtonDuringTheFading()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    QWidget palette;
    palette.setGeometry(desk.window.x() + 600, desk.window.y(), 100, 100);
    palette.show();
    QVERIFY(QTest::qWaitForWindowExposed(&palette));
    desk.addFilter();
    desk.chooseSector();
    desk.release(kPress + QPoint(110, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    const Counter others(palette.windowHandle(), mouseEvents());
    const QPoint inView = desk.view->mapToGlobal(kPress);
    const QPoint outside = palette.mapToGlobal(QPoint(50, 50));
    desk.view->log.clear();
    desk.late(QEvent::MouseButtonPress, inView, Qt::LeftButton, Qt::LeftButton);
    desk.late(QEvent::MouseButtonPress, outside, Qt::MiddleButton, Qt::LeftButton | Qt::MiddleButton);
    desk.late(QEvent::MouseButtonRelease, outside, Qt::MiddleButton, Qt::LeftButton);
    desk.late(QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")).size(), 4);
    QCOMPARE(others.count(), 0);

    // A window that is no view gets its clicks, too, and another program's are nobody's here.
    const Counter clicks(&desk.window, {QEvent::MouseButtonPress});
    const QPoint beside = desk.window.mapToGlobal(QPoint(390, 390));
    desk.late(QEvent::MouseButtonPress, beside, Qt::LeftButton, Qt::LeftButton);
    desk.late(QEvent::MouseButtonRelease, beside, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(clicks.count(), 1);
    const QPoint nowhere(-5000, -5000);
    desk.view->log.clear();
    desk.late(QEvent::MouseButtonPress, nowhere, Qt::LeftButton, Qt::LeftButton);
    desk.late(QEvent::MouseButtonRelease, nowhere, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(others.count(), 0);
    QCOMPARE(desk.view->log.filter(QStringLiteral("MouseButton")), QStringList());
}

void PointerFilterTest::aWheelDuringTheFading()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.chooseSector();
    desk.release(kPress + QPoint(110, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QWindow *gone = desk.overlayWindow();
    QVERIFY(gone && !gone->isVisible());
    desk.view->log.clear();
    const QPoint global = desk.view->mapToGlobal(kPress);
    QWheelEvent wheel(gone->mapFromGlobal(global), global, {}, QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    wheel.setTimestamp(1234);
    ulong timestamp = 0;
    const Observer atView(desk.view, [&timestamp](QObject *, const QEvent *event) {
        if (event->type() == QEvent::Wheel)
            timestamp = static_cast<const QWheelEvent *>(event)->timestamp();
    });
    const Counter missed(gone, {QEvent::Wheel});
    sendFromOutside(gone, wheel);
    QCOMPARE(missed.count(), 0);
    QCOMPARE(timestamp, ulong(1234));
    QCOMPARE(desk.view->log.filter(QStringLiteral("Wheel")),
             QStringList(QStringLiteral("Wheel spontaneous at 150,150 by 120 buttons 0")));
}

void PointerFilterTest::aKeyDuringTheFading()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    desk.chooseSector();
    desk.release(kPress + QPoint(110, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QWindow *gone = desk.overlayWindow();
    QVERIFY(gone && !gone->isVisible());
    desk.view->log.clear();
    const Counter missed(gone, {QEvent::KeyPress, QEvent::KeyRelease});
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_L, Qt::NoModifier, QStringLiteral("l"));
        sendFromOutside(gone, key);
    }
    QCOMPARE(desk.view->log.filter(QStringLiteral("Key")).size(), 2);
    QCOMPARE(missed.count(), 0);
}

// A program that counts Ctrl by itself would hold it for ever.
void PointerFilterTest::aKeyOfBeforeIsReleasedInTheProgram()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.view->setFocus();
    QTest::keyPress(desk.window.windowHandle(), Qt::Key_A);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    tests::FakeOverlay &overlay = *desk.tracker.overlay;
    QVERIFY(overlay.isOn);
    overlay.grabKeyboard();
    desk.view->log.clear();
    const Counter releases(&overlay, {QEvent::KeyRelease});
    QTest::keyPress(overlay.windowHandle(), Qt::Key_B); // the overlay's
    QTest::keyRelease(overlay.windowHandle(), Qt::Key_B);
    QCOMPARE(desk.view->log, QStringList());
    QTest::keyRelease(overlay.windowHandle(), Qt::Key_A);
    QCOMPARE(desk.view->log,
             QStringList(QStringLiteral("KeyRelease spontaneous key 65 text \"a\" modifiers 0")));
    QTest::keyPress(overlay.windowHandle(), Qt::Key_A); // again: the overlay's
    QTest::keyRelease(overlay.windowHandle(), Qt::Key_A);
    QCOMPARE(desk.view->log.size(), 1);
    QCOMPARE(releases.count(), 3);
    overlay.releaseKeyboard();
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

// Then Qt gives it to the program, or to whom the keyboard belongs.
void PointerFilterTest::aKeyThatIsNotTheOverlaysIsReleasedOnce()
{
    for (const bool isGrabbed : {false, true}) {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
        desk.tracker.showsOverlay = isGrabbed;
        desk.addFilter();
        desk.view->setFocus();
        QTest::keyPress(desk.window.windowHandle(), Qt::Key_A);
        desk.press(kPress);
        desk.move(kPress + QPoint(30, 0));
        QCOMPARE(desk.state(), PointerFilter::State::Gesturing);
        tests::LoggingView other(&desk.window);
        if (isGrabbed)
            other.grabKeyboard();
        desk.view->log.clear();
        QTest::keyRelease(desk.window.windowHandle(), Qt::Key_A);
        QCOMPARE(desk.view->log.filter(QStringLiteral("Key")).size(), isGrabbed ? 0 : 1);
        QCOMPARE(other.log.filter(QStringLiteral("Key")).size(), isGrabbed ? 1 : 0);
        other.releaseKeyboard();
        desk.release(kPress + QPoint(30, 0));
        QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    }
}

void PointerFilterTest::aGestureGivesTheFocusOfAClick_data()
{
    // The gesture does what a click in the view does.
    QTest::addColumn<int>("ofView");
    QTest::addColumn<int>("ofFrame");
    QTest::newRow("view") << int(Qt::ClickFocus) << int(Qt::NoFocus);
    QTest::newRow("view by wheel too") << int(Qt::WheelFocus) << int(Qt::NoFocus);
    QTest::newRow("what is around the view") << int(Qt::NoFocus) << int(Qt::StrongFocus);
    QTest::newRow("not by the Tab key alone") << int(Qt::TabFocus) << int(Qt::StrongFocus);
    QTest::newRow("the view before what is around it") << int(Qt::ClickFocus) << int(Qt::StrongFocus);
    QTest::newRow("none") << int(Qt::NoFocus) << int(Qt::NoFocus);
}

void PointerFilterTest::aGestureGivesTheFocusOfAClick()
{
    QFETCH(const int, ofView);
    QFETCH(const int, ofFrame);
    using Case = std::pair<bool, bool>;
    for (const auto &[hasProxy, isActive] :
         {Case{false, true}, Case{true, true}, Case{false, false}, Case{true, false}}) {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
        QWidget frame(&desk.window);
        frame.setGeometry(desk.view->geometry());
        desk.view->setParent(&frame);
        desk.view->move(0, 0);
        desk.view->setFocusPolicy(Qt::FocusPolicy(ofView));
        frame.setFocusPolicy(Qt::FocusPolicy(ofFrame));
        QLineEdit proxy(&frame);
        proxy.setGeometry(200, 280, 50, 20);
        proxy.setFocusPolicy(Qt::NoFocus); // which stops the widget that it stands for
        if (hasProxy)
            desk.view->setFocusProxy(&proxy);
        QLineEdit other(&desk.window);
        other.setGeometry(20, 340, 100, 20);
        frame.show();
        desk.view->show();
        other.show();
        desk.addFilter();
        QWidget aside;
        aside.show();
        QWidget *active = isActive ? &desk.window : &aside;
        active->activateWindow();
        QTRY_VERIFY(active->isActiveWindow());

        other.setFocus();
        desk.press(kPress, Qt::LeftButton);
        desk.release(kPress, Qt::LeftButton);
        const QWidget *byClick = desk.window.focusWidget();
        other.setFocus();
        desk.press(kPress);
        desk.move(kPress + QPoint(30, 0));
        QVERIFY(desk.tracker.overlay->isOn);
        QCOMPARE(desk.window.focusWidget(), byClick);
        desk.release(kPress + QPoint(30, 0));
        QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
        QCOMPARE(desk.window.focusWidget(), byClick);
    }
}

// Neither does a click take the focus from a widget that does not get it by clicks.
void PointerFilterTest::aGestureLeavesTheFocusOfItsView()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    desk.window.setFocusPolicy(Qt::StrongFocus);
    desk.view->setFocusPolicy(Qt::NoFocus);
    desk.window.activateWindow();
    QTRY_VERIFY(desk.window.isActiveWindow());
    desk.view->setFocus();
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    QCOMPARE(desk.window.focusWidget(), desk.view);
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
}

void PointerFilterTest::aGestureInAWindowOfItsOwnLeavesTheOther()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    QWidget main;
    main.setFocusPolicy(Qt::StrongFocus);
    desk.view->setFocusPolicy(Qt::NoFocus);
    desk.window.setParent(&main, Qt::Tool);
    desk.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QLineEdit other(&main);
    other.setFocus();
    QCOMPARE(main.focusWidget(), &other);
    desk.press(kPress);
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    QCOMPARE(main.focusWidget(), &other);
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    desk.window.setParent(nullptr);
}

// As in LibreCAD, where the view does not take the focus, but the window around it does.
void PointerFilterTest::aGestureMakesItsDrawingCurrent()
{
    Desk desk;
    QMdiArea area(&desk.window);
    area.setGeometry(0, 0, 400, 400);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QList<QMdiSubWindow *> drawings;
    for (int i = 0; i < 2; ++i) {
        auto *view = new tests::LoggingView;
        view->setFocusPolicy(Qt::NoFocus);
        drawings << area.addSubWindow(view);
        drawings.last()->setGeometry(200 * i, 0, 200, 400);
        drawings.last()->show();
        desk.documents.open(view)->inputPoints().AddTracker(&desk.tracker, 0);
    }
    QCOMPARE(area.activeSubWindow(), drawings.at(1));
    QMdiSubWindow *atCommand = nullptr;
    desk.tracker.onCommand = [&] { atCommand = area.activeSubWindow(); };
    for (QMdiSubWindow *drawing : qAsConst(drawings)) {
        // The offscreen platform leaves the window inactive after an overlay.
        desk.window.activateWindow();
        QTRY_VERIFY(desk.window.isActiveWindow());
        const QPoint place = drawing->mapTo(&desk.window, QPoint(50, 200));
        QWindow *window = desk.window.windowHandle();
        QTest::mousePress(window, Qt::RightButton, {}, place);
        QTest::mouseMove(window, place + QPoint(30, 0));
        QTest::mouseMove(window, place + QPoint(35, 0));
        QTest::mouseMove(window, place + QPoint(110, 0));
        QTest::mouseRelease(window, Qt::RightButton, {}, place + QPoint(110, 0));
        QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
        QCOMPARE(atCommand, drawing);
    }
    QCOMPARE(desk.tracker.commands, 2);
}

void PointerFilterTest::theFocusMayEndTheGesture()
{
    for (const bool destroys : {false, true}) {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
        desk.addFilter();
        desk.window.activateWindow();
        QTRY_VERIFY(desk.window.isActiveWindow());
        QLineEdit other(&desk.window);
        other.show();
        other.setFocus();
        int calls = 0;
        connect(qApp, &QApplication::focusChanged, &desk.window,
                [&](const QWidget *, const QWidget *now) {
                    if (now != desk.view)
                        return;
                    ++calls;
                    if (destroys)
                        desk.filter.reset();
                    else
                        desk.filter->cancel();
                });
        desk.press(kPress);
        desk.move(kPress + QPoint(30, 0));
        QCOMPARE(calls, 1);
        QVERIFY(!desk.tracker.overlay->isVisible());
        QVERIFY(!QWidget::mouseGrabber());
        desk.release(kPress + QPoint(30, 0));
        QVERIFY(destroys || desk.state() == PointerFilter::State::Idle);
    }
}

// The ring would measure in the other drawing.
void PointerFilterTest::aFocusElsewhereLeavesTheGestureItsDrawing()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    tests::LoggingView other(&desk.window);
    other.setGeometry(330, 20, 60, 60);
    other.show();
    desk.addFilter();
    gesturewidget::Document *second = desk.documents.open(&other);
    desk.press(kPress);
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(&other, &focus); // late
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(desk.document));
    desk.move(kPress + QPoint(30, 0));
    QVERIFY(desk.tracker.overlay->isOn);
    QCoreApplication::sendEvent(&other, &focus);
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(desk.document));
    desk.release(kPress + QPoint(30, 0));
    QTRY_COMPARE(desk.state(), PointerFilter::State::Idle);
    QCoreApplication::sendEvent(&other, &focus);
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(second));
}

void PointerFilterTest::pressActivatesTheDocument()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    tests::LoggingView other(&desk.window);
    other.setGeometry(330, 20, 60, 60);
    other.setFocusPolicy(Qt::NoFocus); // or the focus would activate it
    other.show();
    desk.addFilter();
    gesturewidget::Document *second = desk.documents.open(&other);
    second->inputPoints().AddTracker(&desk.tracker, 0);
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(desk.document));
    QTest::mouseClick(desk.window.windowHandle(), Qt::LeftButton, {}, QPoint(350, 50));
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(second));
    desk.press(kPress);
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(desk.document));
    desk.release(kPress);
    other.setFocus();
    QTRY_COMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(second));
}

// The area gets the focus, and its viewport is the view.
void PointerFilterTest::aScrollAreaGetsTheFocusOfItsView()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    desk.addFilter();
    QScrollArea area(&desk.window);
    area.setGeometry(330, 20, 60, 60);
    area.show();
    gesturewidget::Document *second = desk.documents.open(area.viewport());
    desk.press(kPress, Qt::LeftButton);
    desk.release(kPress, Qt::LeftButton);
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(desk.document));
    area.setFocus();
    QTRY_COMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(second));
    // Other widgets have no document.
    desk.control->setFocus();
    QScrollArea other(&desk.window);
    other.show();
    other.setFocus();
    QTRY_VERIFY(other.hasFocus());
    QCOMPARE(desk.documents.GetActiveDocument(), static_cast<CHxDocument *>(second));
}

// A listener may close the view. Then the program gets the press.
void PointerFilterTest::aDocumentThatClosesWhenItBecomesActive()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
    auto *other = new tests::LoggingView(&desk.window);
    other->setGeometry(330, 20, 60, 60);
    other->show();
    desk.addFilter();
    gesturewidget::Document *second = desk.documents.open(other);
    second->inputPoints().AddTracker(&desk.tracker, 0);
    desk.press(kPress, Qt::LeftButton);
    desk.release(kPress, Qt::LeftButton);
    class Closer : public CHxDocumentManagerReactor
    {
    public:
        void DocumentActivated(CHxDocument *document) override
        {
            if (document == second)
                delete view;
        }
        CHxDocument *second = nullptr;
        QPointer<QWidget> view;
    } closer;
    closer.second = second;
    closer.view = other;
    desk.documents.AddReactor(&closer);
    QTest::mouseMove(desk.window.windowHandle(), QPoint(350, 50));
    const int presses = desk.tracker.presses;
    int seen = 0;
    const Observer observer(&desk.window, [&seen](QObject *, const QEvent *event) {
        seen += event->type() == QEvent::MouseButtonPress ? 1 : 0;
    });
    QTest::mousePress(desk.window.windowHandle(), Qt::RightButton, {}, QPoint(350, 50));
    desk.documents.RemoveReactor(&closer);
    QVERIFY(!closer.view);
    QCOMPARE(desk.state(), PointerFilter::State::Idle);
    QCOMPARE(desk.tracker.presses, presses);
    QCOMPARE(seen, 1);
    QTest::mouseRelease(desk.window.windowHandle(), Qt::RightButton, {}, QPoint(350, 50));
}

QTEST_MAIN(PointerFilterTest)
#include "tst_pointerfilter.moc"
