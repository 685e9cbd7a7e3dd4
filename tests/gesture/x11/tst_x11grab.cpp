#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/GestureBench.h"
#include "tests/gesture/x11/ViewInput.h"
#include "tests/gesture/x11/X11Peer.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QTest>
#include <QWindow>

#include <atomic>
#include <cmath>
#include <memory>
#include <random>
#include <thread>

#include <X11/keysym.h>

using tests::CountingDonut;
using tests::GestureBench;
using tests::ViewInput;
using tests::X11Peer;

// What the X server really does for the ring, under a window manager and a compositor: a
// second client looks. To be run by tests/support/with-desktop.sh.
class tst_X11Grab : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void probeSeesItsOwnGrabs();
    void heldDuringEveryGesture();
    void ringLiesAroundThePress_data();
    void ringLiesAroundThePress();
    void wheelAndKeysStayAway();
    void givenBackAfterEveryEnd_data();
    void givenBackAfterEveryEnd();
    void exposedWithoutGestureGrabsNothing();
    void nothingStaysAfterRandomGestures();
    void fadingFrameIsSeenDuringTheWait();

private:
    // Presses at a place in the view and drags by an offset, in one go.
    void pressAndDrag(const QPoint &centre, const QPoint &offset);
    void release();
    // Until everything that the server and the window manager were asked has come back.
    void settle();
    [[nodiscard]] bool isRingUp() const;
    [[nodiscard]] QPoint global(const QPoint &viewPosition) const;

    std::unique_ptr<X11Peer> m_peer;
    std::unique_ptr<GestureBench> m_bench;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<ViewInput> m_input;
    bool m_pressed = false;
};

void tst_X11Grab::initTestCase()
{
    tests::failOnWarnings();
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    m_peer = std::make_unique<X11Peer>();
    m_peer->awaitWindowManager();
}

void tst_X11Grab::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<GestureBench>();
    m_window = std::make_unique<QMainWindow>();
    m_bench->host.mainWindow = m_window.get();
    m_input = std::make_unique<ViewInput>(*m_bench);
    // The window manager may move the view while it takes it over.
    QTRY_COMPARE(m_bench->view->mapToGlobal(QPoint()), m_peer->originOf(m_bench->view->winId()));
    settle();
}

void tst_X11Grab::cleanup()
{
    release();
    m_input.reset();
    m_window.reset();
    m_bench.reset();
    settle();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

QPoint tst_X11Grab::global(const QPoint &viewPosition) const
{
    return m_bench->view->mapToGlobal(viewPosition);
}

void tst_X11Grab::pressAndDrag(const QPoint &centre, const QPoint &offset)
{
    m_peer->movePointer(global(centre));
    m_peer->setButton(X11Peer::kRight, true);
    m_pressed = true;
    m_peer->movePointer(global(centre + offset));
}

void tst_X11Grab::release()
{
    if (m_pressed)
        m_peer->setButton(X11Peer::kRight, false);
    m_pressed = false;
}

void tst_X11Grab::settle()
{
    // Twice: what Qt does about the first answers may call for more.
    for (int round = 0; round < 2; ++round) {
        static_cast<void>(QCursor::pos()); // asks the server, and so sends all there is
        m_peer->awaitWindowManager();
        static_cast<void>(QCursor::pos()); // and has its answers arrive
        QCoreApplication::processEvents();
    }
}

bool tst_X11Grab::isRingUp() const
{
    const MgDonutDialogPVStyleImpl *ring = m_input->ring();
    return ring && ring->gesturing && ring->windowHandle()->isExposed();
}

void tst_X11Grab::probeSeesItsOwnGrabs()
{
    QVERIFY(!m_peer->isPointerGrabbed());
    QVERIFY(!m_peer->isKeyboardGrabbed());
    m_bench->view->grabMouse();
    m_bench->view->grabKeyboard();
    QVERIFY(m_peer->isPointerGrabbed());
    QVERIFY(m_peer->isKeyboardGrabbed());
    m_bench->view->releaseMouse();
    m_bench->view->releaseKeyboard();
    static_cast<void>(QCursor::pos());
    QVERIFY(!m_peer->isPointerGrabbed());
    QVERIFY(!m_peer->isKeyboardGrabbed());
}

void tst_X11Grab::heldDuringEveryGesture()
{
    int pointer = 0;
    int keyboard = 0;
    int free = 0;
    const int gestures = 40;
    for (int gesture = 0; gesture < gestures; ++gesture) {
        pressAndDrag(QPoint(150 + gesture, 200), QPoint(0, 25));
        QTRY_VERIFY(isRingUp());
        settle();
        pointer += m_peer->isPointerGrabbed();
        keyboard += m_peer->isKeyboardGrabbed();
        release();
        QTRY_VERIFY(!m_input->ring()->gesturing);
        settle();
        free += !m_peer->isPointerGrabbed() && !m_peer->isKeyboardGrabbed();
    }
    qInfo("of %d gestures: pointer held %d, keyboard held %d, both free afterwards %d", gestures,
          pointer, keyboard, free);
    QCOMPARE(pointer, gestures);
    QCOMPARE(keyboard, gestures);
    QCOMPARE(free, gestures);
}

void tst_X11Grab::ringLiesAroundThePress_data()
{
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("in the middle") << QPoint(500, 300);
    QTest::newRow("at the screen's top left") << QPoint(0, 0);
}

void tst_X11Grab::ringLiesAroundThePress()
{
    QFETCH(QPoint, corner);
    m_bench->view->move(corner);
    settle();
    QTRY_COMPARE(m_bench->view->mapToGlobal(QPoint()), m_peer->originOf(m_bench->view->winId()));
    const QPoint centre(200, 180);
    pressAndDrag(centre, QPoint(0, 25));
    QTRY_VERIFY(isRingUp());
    settle();
    QCOMPARE(m_peer->originOf(m_input->ring()->winId()), global(centre) - QPoint(125, 125));
    QCOMPARE(m_input->ring()->size(), QSize(250, 250));
}

void tst_X11Grab::wheelAndKeysStayAway()
{
    for (int gesture = 0; gesture < 20; ++gesture) {
        pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        QTRY_VERIFY(isRingUp());
        settle();
        m_peer->clickWheel();
        m_peer->typeKey(XK_Escape);
        m_peer->typeKey(XK_a);
        settle();
        QVERIFY(m_input->ring()->gesturing);
        release();
        QTRY_VERIFY(!m_input->ring()->gesturing);
        settle();
    }
    QCOMPARE(m_input->wheels, 0);
    QCOMPARE(m_input->keys, 0);
}

void tst_X11Grab::givenBackAfterEveryEnd_data()
{
    QTest::addColumn<QString>("end");
    for (const char *end :
         {"release", "accept", "hide", "close", "modal window", "destroyed", "stopped"})
        QTest::newRow(end) << QString::fromLatin1(end);
}

void tst_X11Grab::givenBackAfterEveryEnd()
{
    QFETCH(QString, end);
    QDialog modal;
    modal.setModal(true);
    for (int gesture = 0; gesture < 5; ++gesture) {
        pressAndDrag(QPoint(200, 200), QPoint(0, 25));
        // The odd ones end before the ring is on the screen.
        if (gesture % 2 == 0) {
            QTRY_VERIFY(isRingUp());
            settle();
            QVERIFY(m_peer->isKeyboardGrabbed());
        } else {
            QTRY_VERIFY(m_input->ring() && m_input->ring()->gesturing);
        }
        if (end == QLatin1String("release"))
            release();
        else if (end == QLatin1String("accept"))
            m_peer->movePointer(global(QPoint(200, 290)));
        else if (end == QLatin1String("hide"))
            m_input->ring()->hide();
        else if (end == QLatin1String("close"))
            m_input->ring()->close();
        else if (end == QLatin1String("stopped"))
            m_input->ring()->StopGesturing(false);
        else if (end == QLatin1String("destroyed"))
            delete m_input->ring();
        else
            modal.show();
        QTRY_VERIFY(!m_input->ring() || !m_input->ring()->gesturing);
        if (m_input->ring())
            QCOMPARE(m_input->ring()->accepted, end == QLatin1String("accept"));
        settle();
        release(); // a button that is held is a grab of its own
        settle();
        QVERIFY(!m_peer->isPointerGrabbed());
        QVERIFY(!m_peer->isKeyboardGrabbed());
        modal.hide();
        settle();
        m_input->look();
    }
}

void tst_X11Grab::exposedWithoutGestureGrabsNothing()
{
    pressAndDrag(QPoint(200, 200), QPoint(0, 25));
    QTRY_VERIFY(isRingUp());
    release();
    QTRY_VERIFY(!m_input->ring()->gesturing);
    settle();
    // Shown by somebody else: the window that was watched is exposed once more.
    m_input->ring()->show();
    QTRY_VERIFY(m_input->ring()->windowHandle()->isExposed());
    settle();
    QVERIFY(!m_peer->isPointerGrabbed());
    QVERIFY(!m_peer->isKeyboardGrabbed());
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    m_input->ring()->hide();
}

void tst_X11Grab::nothingStaysAfterRandomGestures()
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
        m_peer->movePointer(global(centre));
        m_peer->setButton(X11Peer::kRight, true);
        pass(2);
        // Some let go at once, some go far, some linger.
        const double direction = upTo(359) * 3.14159265 / 180.0;
        const double length = 15 + upTo(upTo(2) == 0 ? 90 : 45);
        const int steps = 1 + upTo(4);
        for (int step = 1; step <= steps; ++step) {
            const double part = length * step / steps;
            const QPoint offset(static_cast<int>(std::lround(std::cos(direction) * part)),
                                static_cast<int>(std::lround(std::sin(direction) * part)));
            m_peer->movePointer(global(centre + offset));
            pass(upTo(1) * 3);
        }
        pass(upTo(2) * 4);
        m_peer->setButton(X11Peer::kRight, false);
        settle();
        QTRY_VERIFY(!m_input->ring() || !m_input->ring()->gesturing);
        settle();
        if (m_input->ring() && m_input->ring()->windUpPos != QPoint()) {
            ++opened;
            accepted += m_input->ring()->accepted;
            m_input->ring()->windUpPos = QPoint();
        }
        // By the server's word, and by Qt's, which hands all input to whom it believes in.
        if (m_peer->isPointerGrabbed() || m_peer->isKeyboardGrabbed() || QWidget::mouseGrabber()
            || QWidget::keyboardGrabber()) {
            ++stuck;
            // Let go for the ones that follow.
            m_input->ring()->releaseMouse();
            m_input->ring()->releaseKeyboard();
            m_input->ring()->windowHandle()->setMouseGrabEnabled(false);
            m_input->ring()->windowHandle()->setKeyboardGrabEnabled(false);
            settle();
        }
        m_input->look();
    }
    qInfo("of %d gestures %d opened the ring, %d chose a sector, %d left something grabbed (seed %u)",
          gestures, opened, accepted, stuck, seed);
    QCOMPARE(stuck, 0);
    QVERIFY(opened > gestures / 2);
    QVERIFY(accepted > 0 && accepted < opened);
}

void tst_X11Grab::fadingFrameIsSeenDuringTheWait()
{
    QPalette plain = m_bench->view->palette();
    plain.setColor(QPalette::Window, Qt::white);
    m_bench->view->setPalette(plain);
    m_bench->view->setAutoFillBackground(true);
    CountingDonut donut;
    const QPoint centre(200, 200);
    m_peer->movePointer(global(centre));
    settle();
    donut.origin = centre;
    donut.move(global(centre) - QPoint(125, 125));
    m_peer->setButton(X11Peer::kRight, true);
    m_pressed = true;
    settle();
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QTRY_VERIFY(donut.windowHandle()->isExposed() && donut.paints > 0);

    // On the ring, aside of labels: to the left, which will be chosen, and to the right.
    const QPoint left = global(centre) + QPoint(-93, 30);
    const QPoint right = global(centre) + QPoint(93, 30);
    const QPoint outside = global(centre) + QPoint(0, 140);
    const QColor bare = m_peer->colorAt(outside);
    QCOMPARE(bare, QColor(Qt::white));
    m_peer->movePointer(global(centre) + QPoint(-40, 0));
    // A highlight is yellow and the ring greys the drawing.
    const auto isHighlight = [](const QColor &color) { return color.blue() < color.red() - 80; };
    QTRY_VERIFY(isHighlight(m_peer->colorAt(left)));
    QTRY_VERIFY(m_peer->colorAt(right) != bare);

    // Looks at the screen while this thread is busy with the fading.
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
    settle();
    QTRY_COMPARE(m_peer->colorAt(left), bare);
}

QTEST_MAIN(tst_X11Grab)
#include "tst_x11grab.moc"
