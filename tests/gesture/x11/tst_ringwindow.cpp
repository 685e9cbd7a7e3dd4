// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/x11/X11Bench.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <vector>

#include <X11/keysym.h>

using tests::X11Bench;

// Tests what the desktop does with the ring's window: it lies on the press point, and nothing else
// on the desktop changes. Run it with tests/support/with-desktop.sh, under any window manager.
class RingWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void widgetFlagsStay();
    void ringLiesOnThePressPoint_data();
    void ringLiesOnThePressPoint();
    void sizeIsRightAtTheFirstMap();
    void firstFrameWaitsForNoEvent();
    void everyGestureRuns_data();
    void everyGestureRuns();
    void activeWindowAndFocusStay();
    void noSecondTaskBarEntry();
    void keysReachTheViewAfterwards();

private:
    // Lets the view cover the whole screen, so that a press can be near its edges.
    void coverTheScreen();

    std::unique_ptr<X11Bench> m_bench;
};

void RingWindowTest::initTestCase()
{
    tests::failOnWarnings();
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void RingWindowTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<X11Bench>();
    m_bench->bench.view->activateWindow();
    QTRY_VERIFY(m_bench->isViewInPlace());
    m_bench->settle();
}

void RingWindowTest::cleanup()
{
    m_bench.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void RingWindowTest::coverTheScreen()
{
    QWidget *view = m_bench->bench.view;
    view->showFullScreen();
    QTRY_COMPARE(view->geometry(), view->screen()->geometry());
    QTRY_VERIFY(m_bench->isViewInPlace());
    QTRY_COMPARE(m_bench->peer.sizeOf(view->winId()), view->screen()->size());
    m_bench->settle();
}

void RingWindowTest::widgetFlagsStay()
{
    const MgDonutDialogPVStyleImpl ring(nullptr, Qt::WindowFlags());
    QCOMPARE(static_cast<int>(ring.windowFlags()), 0x80B);
    QVERIFY(ring.windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint));
    QVERIFY(!m_bench->peer.isViewable(ring.winId()));
}

void RingWindowTest::ringLiesOnThePressPoint_data()
{
    QTest::addColumn<double>("across"); // -1 left edge, 0 middle, 1 right edge
    QTest::addColumn<double>("down");
    QTest::newRow("middle") << 0.0 << 0.0;
    QTest::newRow("top left") << -1.0 << -1.0;
    QTest::newRow("top") << 0.0 << -1.0;
    QTest::newRow("top right") << 1.0 << -1.0;
    QTest::newRow("right") << 1.0 << 0.0;
    QTest::newRow("bottom right") << 1.0 << 1.0;
    QTest::newRow("bottom") << 0.0 << 1.0;
    QTest::newRow("bottom left") << -1.0 << 1.0;
    QTest::newRow("left") << -1.0 << 0.0;
}

void RingWindowTest::ringLiesOnThePressPoint()
{
    QFETCH(double, across);
    QFETCH(double, down);
    coverTheScreen();
    const QRect screen = m_bench->bench.view->rect();
    constexpr int kFromEdge = 10; // pixels
    const QPoint press = screen.center()
                       + QPoint(static_cast<int>(across * (screen.width() / 2.0 - kFromEdge)),
                                static_cast<int>(down * (screen.height() / 2.0 - kFromEdge)));
    const QPoint inward(across > 0 ? -25 : 25, 0);
    for (int gesture = 0; gesture < 3; ++gesture) {
        m_bench->pressAndDrag(press, inward);
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        const auto window = m_bench->ring()->winId();
        QVERIFY(m_bench->peer.isViewable(window));
        QCOMPARE(m_bench->peer.originOf(window), m_bench->global(press) - QPoint(125, 125));
        QCOMPARE(m_bench->peer.sizeOf(window), QSize(250, 250));
        QVERIFY(m_bench->peer.isPointerGrabbed());
        QVERIFY(m_bench->peer.isKeyboardGrabbed());
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
        QVERIFY(!m_bench->peer.isViewable(window));
        QVERIFY(!m_bench->peer.isPointerGrabbed());
        QVERIFY(!m_bench->peer.isKeyboardGrabbed());
        m_bench->input->look();
    }
}

void RingWindowTest::sizeIsRightAtTheFirstMap()
{
    const MgDonutDialogPVStyleImpl ring(nullptr, Qt::WindowFlags());
    static_cast<void>(QCursor::pos()); // sends what Qt has asked the server
    QCOMPARE(m_bench->peer.sizeOf(ring.winId()), QSize(250, 250));
}

// The program's own events, such as the drawing after a press, can keep it busy for long.
void RingWindowTest::firstFrameWaitsForNoEvent()
{
    tests::CountingDonut ring(m_bench->window.get());
    for (int gesture = 0; gesture < 2; ++gesture) {
        ring.paints = 0;
        m_bench->bench.start(ring);
        QCOMPARE(ring.paints, 1);
        m_bench->settle(); // the server asks for a frame of its own
        ring.StopGesturing(false);
        m_bench->settle();
    }
}

void RingWindowTest::everyGestureRuns_data()
{
    QTest::addColumn<QPoint>("direction");
    QTest::addColumn<QString>("command");
    QTest::newRow("up") << QPoint(0, -1) << QStringLiteral("zoom_bounds");
    QTest::newRow("up-left") << QPoint(-1, -1) << QStringLiteral("offset");
    QTest::newRow("left") << QPoint(-1, 0) << QStringLiteral("open");
    QTest::newRow("down-left") << QPoint(-1, 1) << QStringLiteral("copy");
    QTest::newRow("down") << QPoint(0, 1) << QStringLiteral("save");
    QTest::newRow("down-right") << QPoint(1, 1) << QStringLiteral("dtext");
    QTest::newRow("right") << QPoint(1, 0) << QStringLiteral("line");
    QTest::newRow("up-right") << QPoint(1, -1) << QStringLiteral("trim");
}

void RingWindowTest::everyGestureRuns()
{
    QFETCH(QPoint, direction);
    QFETCH(QString, command);
    m_bench->bench.setScheme(8);
    const QPoint centre(200, 200);
    for (int gesture = 0; gesture < 5; ++gesture) {
        m_bench->bench.host.log.clear();
        m_bench->pressAndDrag(centre, direction * 25);
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->peer.movePointer(m_bench->global(centre + direction * 80));
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        QVERIFY(m_bench->ring()->accepted);
        m_bench->settle();
        m_bench->input->look();
        QCOMPARE(m_bench->bench.host.log.startingWith(QStringLiteral("run")),
                 QStringList(QStringLiteral("run %1 false").arg(command)));
    }
}

void RingWindowTest::activeWindowAndFocusStay()
{
    QTRY_COMPARE(m_bench->peer.activeWindow(), m_bench->bench.view->winId());
    const unsigned long focused = m_bench->peer.focusedWindow();
    for (int gesture = 0; gesture < 5; ++gesture) {
        m_bench->pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        QCOMPARE(m_bench->peer.activeWindow(), m_bench->bench.view->winId());
        QCOMPARE(m_bench->peer.focusedWindow(), focused);
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
        QCOMPARE(m_bench->peer.activeWindow(), m_bench->bench.view->winId());
        QCOMPARE(m_bench->peer.focusedWindow(), focused);
        QTRY_VERIFY(m_bench->bench.view->isActiveWindow());
        m_bench->input->look();
    }
}

void RingWindowTest::noSecondTaskBarEntry()
{
    const auto isManaged = [this](unsigned long window) {
        const std::vector<unsigned long> managed = m_bench->peer.managedWindows();
        return std::find(managed.begin(), managed.end(), window) != managed.end();
    };
    QTRY_VERIFY(isManaged(m_bench->bench.view->winId()));
    for (int gesture = 0; gesture < 3; ++gesture) {
        m_bench->pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        QVERIFY(!isManaged(m_bench->ring()->winId()));
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
        m_bench->input->look();
    }
}

void RingWindowTest::keysReachTheViewAfterwards()
{
    QTRY_VERIFY(m_bench->bench.view->isActiveWindow());
    for (int gesture = 0; gesture < 5; ++gesture) {
        m_bench->pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        m_bench->peer.typeKey(XK_a);
        m_bench->settle();
        QCOMPARE(m_bench->input->keys, gesture);
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
        m_bench->peer.typeKey(XK_a);
        QTRY_COMPARE(m_bench->input->keys, gesture + 1);
        m_bench->input->look();
    }
}

QTEST_MAIN(RingWindowTest)
#include "tst_ringwindow.moc"
