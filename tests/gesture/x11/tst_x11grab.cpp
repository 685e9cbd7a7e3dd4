// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/x11/X11Bench.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

#include <atomic>
#include <cmath>
#include <memory>
#include <random>
#include <thread>

#include <X11/keysym.h>

using tests::CountingDonut;
using tests::X11Bench;
using tests::X11Peer;

// The grabs that the X server really gives the ring, under a window manager and a compositor. A
// second client looks. Run it with tests/support/with-desktop.sh.
class X11GrabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void probeSeesItsOwnGrabs();
    void heldDuringEveryGesture();
    void wheelAndKeysStayAway();
    void givenBackAfterEveryEnd_data();
    void givenBackAfterEveryEnd();
    void nothingStaysAfterRandomGestures();
    void fadingFrameIsSeenDuringTheWait();

private:
    std::unique_ptr<X11Bench> m_bench;
};

void X11GrabTest::initTestCase()
{
    tests::failOnWarnings();
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    X11Peer().awaitWindowManager();
}

void X11GrabTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<X11Bench>();
    QTRY_VERIFY(m_bench->isViewInPlace());
    m_bench->settle();
}

void X11GrabTest::cleanup()
{
    m_bench.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void X11GrabTest::probeSeesItsOwnGrabs()
{
    QVERIFY(!m_bench->peer.isPointerGrabbed());
    QVERIFY(!m_bench->peer.isKeyboardGrabbed());
    m_bench->bench.view->grabMouse();
    m_bench->bench.view->grabKeyboard();
    QVERIFY(m_bench->peer.isPointerGrabbed());
    QVERIFY(m_bench->peer.isKeyboardGrabbed());
    m_bench->bench.view->releaseMouse();
    m_bench->bench.view->releaseKeyboard();
    static_cast<void>(QCursor::pos());
    QVERIFY(!m_bench->peer.isPointerGrabbed());
    QVERIFY(!m_bench->peer.isKeyboardGrabbed());
}

void X11GrabTest::heldDuringEveryGesture()
{
    int pointer = 0;
    int keyboard = 0;
    int free = 0;
    const int gestures = 40;
    for (int gesture = 0; gesture < gestures; ++gesture) {
        m_bench->pressAndDrag(QPoint(150 + gesture, 200), QPoint(0, 25));
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        pointer += m_bench->peer.isPointerGrabbed();
        keyboard += m_bench->peer.isKeyboardGrabbed();
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
        free += !m_bench->peer.isPointerGrabbed() && !m_bench->peer.isKeyboardGrabbed();
    }
    qInfo("of %d gestures: pointer held %d, keyboard held %d, both free afterwards %d", gestures,
          pointer, keyboard, free);
    QCOMPARE(pointer, gestures);
    QCOMPARE(keyboard, gestures);
    QCOMPARE(free, gestures);
}

void X11GrabTest::wheelAndKeysStayAway()
{
    for (int gesture = 0; gesture < 20; ++gesture) {
        m_bench->pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        m_bench->peer.clickWheel();
        m_bench->peer.typeKey(XK_Escape);
        m_bench->peer.typeKey(XK_a);
        m_bench->settle();
        QVERIFY(m_bench->ring()->gesturing);
        m_bench->release();
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->settle();
    }
    QCOMPARE(m_bench->input->wheels, 0);
    QCOMPARE(m_bench->input->keys, 0);
}

void X11GrabTest::givenBackAfterEveryEnd_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end :
         {"release", "accept", "hide", "close", "modal window", "destroyed", "stopped"})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void X11GrabTest::givenBackAfterEveryEnd()
{
    QFETCH(QString, end);
    QDialog modal;
    modal.setModal(true);
    for (int gesture = 0; gesture < 5; ++gesture) {
        m_bench->pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        // Every other gesture ends before the ring is on the screen.
        if (gesture % 2 == 0) {
            QTRY_VERIFY(m_bench->isRingUp());
            m_bench->settle();
            QVERIFY(m_bench->peer.isKeyboardGrabbed());
        } else {
            QTRY_VERIFY(m_bench->ring() && m_bench->ring()->gesturing);
        }
        if (end == QLatin1String("release"))
            m_bench->release();
        else if (end == QLatin1String("accept"))
            m_bench->peer.movePointer(m_bench->global(QPoint(200, 290)));
        else if (end == QLatin1String("hide"))
            m_bench->ring()->hide();
        else if (end == QLatin1String("close"))
            m_bench->ring()->close();
        else if (end == QLatin1String("stopped"))
            m_bench->ring()->StopGesturing(false);
        else if (end == QLatin1String("destroyed"))
            delete m_bench->ring();
        else
            modal.show();
        QTRY_VERIFY(!m_bench->ring() || !m_bench->ring()->gesturing);
        if (m_bench->ring())
            QCOMPARE(m_bench->ring()->accepted, end == QLatin1String("accept"));
        m_bench->settle();
        m_bench->release(); // a button that is held is a grab of its own
        m_bench->settle();
        QVERIFY(!m_bench->peer.isPointerGrabbed());
        QVERIFY(!m_bench->peer.isKeyboardGrabbed());
        modal.hide();
        m_bench->settle();
        m_bench->input->look();
    }
}

void X11GrabTest::nothingStaysAfterRandomGestures()
{
    const unsigned seed = 20240229;
    std::mt19937 random(seed);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    const auto pass = [&](int most) {
        for (int round = upTo(most); round > 0; --round) {
            static_cast<void>(QCursor::pos());
            QCoreApplication::processEvents();
        }
    };

    const int gestures = 300;
    int opened = 0;
    int accepted = 0;
    int stuck = 0;
    for (int gesture = 0; gesture < gestures; ++gesture) {
        const QPoint centre(130 + upTo(140), 130 + upTo(140));
        m_bench->peer.movePointer(m_bench->global(centre));
        m_bench->peer.setButton(X11Peer::kRight, true);
        pass(2);
        // Some release at once, some go far, some wait.
        const double direction = upTo(359) * 3.14159265 / 180.0;
        const double length = 15 + upTo(upTo(2) == 0 ? 90 : 45);
        const int steps = 1 + upTo(4);
        for (int step = 1; step <= steps; ++step) {
            const double part = length * step / steps;
            const QPoint offset(static_cast<int>(std::lround(std::cos(direction) * part)),
                                static_cast<int>(std::lround(std::sin(direction) * part)));
            m_bench->peer.movePointer(m_bench->global(centre + offset));
            pass(upTo(1) * 3);
        }
        pass(upTo(2) * 4);
        m_bench->peer.setButton(X11Peer::kRight, false);
        m_bench->settle();
        QTRY_VERIFY(!m_bench->ring() || !m_bench->ring()->gesturing);
        m_bench->settle();
        if (m_bench->ring() && m_bench->ring()->windUpPos != QPoint()) {
            ++opened;
            accepted += m_bench->ring()->accepted;
            m_bench->ring()->windUpPos = QPoint();
        }
        // Asks the server and Qt. Qt hands all input to the widget that it believes has a grab.
        if (m_bench->peer.isPointerGrabbed() || m_bench->peer.isKeyboardGrabbed()
            || QWidget::mouseGrabber() || QWidget::keyboardGrabber()) {
            ++stuck;
            // Release everything for the next gestures.
            m_bench->ring()->releaseMouse();
            m_bench->ring()->releaseKeyboard();
            m_bench->ring()->windowHandle()->setMouseGrabEnabled(false);
            m_bench->ring()->windowHandle()->setKeyboardGrabEnabled(false);
            m_bench->settle();
        }
        m_bench->input->look();
    }
    qInfo("of %d gestures %d opened the ring, %d chose a sector, %d left something grabbed (seed %u)",
          gestures, opened, accepted, stuck, seed);
    QCOMPARE(stuck, 0);
    QVERIFY(opened > gestures / 2);
    QVERIFY(accepted > 0 && accepted < opened);
}

void X11GrabTest::fadingFrameIsSeenDuringTheWait()
{
    QPalette plain = m_bench->bench.view->palette();
    plain.setColor(QPalette::Window, Qt::white);
    m_bench->bench.view->setPalette(plain);
    m_bench->bench.view->setAutoFillBackground(true);
    CountingDonut donut;
    const QPoint centre(200, 200);
    donut.origin = centre;
    donut.move(m_bench->global(centre) - QPoint(125, 125));
    m_bench->press(centre);
    m_bench->settle();
    donut.WindUp(m_bench->bench.document);
    donut.TryStart(QPoint());
    QTRY_VERIFY(donut.windowHandle()->isExposed() && donut.paints > 0);

    // Two places on the ring beside labels: left, which will be chosen, and right.
    const QPoint left = m_bench->global(centre) + QPoint(-93, 30);
    const QPoint right = m_bench->global(centre) + QPoint(93, 30);
    const QPoint outside = m_bench->global(centre) + QPoint(0, 140);
    const QColor bare(Qt::white);
    QTRY_COMPARE(m_bench->peer.colorAt(outside), bare);
    m_bench->peer.movePointer(m_bench->global(centre) + QPoint(-40, 0));
    // A highlight is yellow, the rest of the ring is grey.
    const auto isHighlight = [](const QColor &color) { return color.blue() < color.red() - 80; };
    QTRY_VERIFY(isHighlight(m_bench->peer.colorAt(left)));
    QTRY_VERIFY(m_bench->peer.colorAt(right) != bare);

    // Looks at the screen while the fading keeps this thread busy.
    std::atomic<bool> ended{false};
    std::atomic<int> framesWithRing{0};
    std::atomic<int> fadingFrames{0};
    std::thread watcher([&] {
        X11Peer eye;
        while (!ended) {
            const bool highlight = isHighlight(eye.colorAt(left));
            const bool ring = eye.colorAt(right) != bare;
            if (ended)
                break;
            framesWithRing += highlight && ring;
            fadingFrames += highlight && !ring;
        }
    });
    donut.mousePositionChanged(-75, 0);
    ended = true;
    watcher.join();
    QVERIFY(donut.fading);
    QCOMPARE(donut.fadingPaints, 1);
    qInfo("looked at the screen during the wait: still the ring %d times, the last frame %d times",
          framesWithRing.load(), fadingFrames.load());
    QVERIFY(fadingFrames > 0);
    donut.StopGesturing(true);
    m_bench->settle();
    QTRY_COMPARE(m_bench->peer.colorAt(left), bare);
}

QTEST_MAIN(X11GrabTest)
#include "tst_x11grab.moc"
