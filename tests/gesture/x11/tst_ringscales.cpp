// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/x11/X11Bench.h"
#include "tests/support/FatalWarnings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <memory>

using tests::X11Bench;
using tests::X11Peer;

// The ring on two monitors of different scale, in a window that may lie on both. Places are pixels of
// the X server here, not Qt's. Run it with tests/support/with-desktop.sh, DESKTOP_COMPOSITOR=0 and the
// DESKTOP_MONITORS of CMakeLists.txt.
class RingScalesTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCREEN_SCALE_FACTORS", "VNC-0=1;VNC-1=2"); }

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void ringLiesOnThePressPoint_data();
    void ringLiesOnThePressPoint();

private:
    std::unique_ptr<X11Bench> m_bench;
};

void RingScalesTest::initTestCase()
{
    tests::failOnWarnings();
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    QCOMPARE(screens[0]->devicePixelRatio(), 1.0);
    QCOMPARE(screens[0]->geometry(), QRect(0, 0, 900, 1000));
    QCOMPARE(screens[1]->devicePixelRatio(), 2.0);
    QCOMPARE(screens[1]->geometry(), QRect(900, 150, 350, 400));
}

void RingScalesTest::init()
{
    tests::resetWarnings();
}

void RingScalesTest::cleanup()
{
    m_bench.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void RingScalesTest::ringLiesOnThePressPoint_data()
{
    QTest::addColumn<QPoint>("corner"); // of the view
    QTest::addColumn<int>("viewScale");
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<int>("ringScale");
    QTest::newRow("on the first monitor") << QPoint(200, 300) << 1 << QPoint(300, 500) << 1;
    QTest::newRow("on the second monitor") << QPoint(920, 200) << 2 << QPoint(1200, 600) << 2;
    QTest::newRow("on both, pressed on the first") << QPoint(650, 300) << 1 << QPoint(800, 500) << 1;
    QTest::newRow("on both, pressed on the second") << QPoint(650, 300) << 1 << QPoint(1000, 500) << 2;
    // Qt 6.4 itself maps places wrongly in a window that has its corner on another monitor than most of
    // it.
    if (QT_VERSION_MAJOR == 5) {
        QTest::newRow("more on the second, pressed on the first")
            << QPoint(800, 220) << 2 << QPoint(860, 500) << 1;
    }
}

void RingScalesTest::ringLiesOnThePressPoint()
{
    QFETCH(QPoint, corner);
    QFETCH(int, viewScale);
    QFETCH(QPoint, press);
    QFETCH(int, ringScale);
    // On the monitor that has most of the view later, so that Qt scales it once.
    m_bench = std::make_unique<X11Bench>(
        QGuiApplication::screens().at(viewScale - 1)->geometry().topLeft() + QPoint(30, 40));
    X11Peer &peer = m_bench->peer;
    const QWidget *view = m_bench->bench.view;
    QTRY_COMPARE(peer.sizeOf(view->winId()), QSize(400, 400) * viewScale);
    peer.moveWindow(view->winId(), corner);
    constexpr int kFrame = 40; // at most, in pixels
    QTRY_VERIFY((peer.originOf(view->winId()) - corner).manhattanLength() < kFrame);
    m_bench->settle();
    QVERIFY(QRect(peer.originOf(view->winId()), QSize(400, 400) * viewScale).contains(press));
    const QRect place(press - QPoint(125, 125) * ringScale, QSize(250, 250) * ringScale);
    for (int gesture = 0; gesture < 2; ++gesture) {
        const QImage before = peer.screenAt(place);
        peer.movePointer(press);
        peer.setButton(X11Peer::kRight, true);
        peer.movePointer(press + QPoint(25, 0) * viewScale);
        QTRY_VERIFY(m_bench->isRingUp());
        m_bench->settle();
        const unsigned long window = m_bench->ring()->winId();
        const QImage shown = peer.screenAt(place);
        const QRect ring(peer.originOf(window), peer.sizeOf(window));
        peer.movePointer(press + QPoint(50, 0) * viewScale);
        m_bench->settle();
        const qint16 sector = m_bench->ring()->getActiveArc();
        const double distance = m_bench->ring()->distance;
        peer.setButton(X11Peer::kRight, false);
        QTRY_VERIFY(!m_bench->ring()->gesturing);
        m_bench->input->look();
        QCOMPARE(ring.size(), QSize(250, 250) * ringScale);
        const QPoint miss = ring.topLeft() + QPoint(125, 125) * ringScale - press;
        QVERIFY2(miss.manhattanLength() < 2 * ringScale,
                 qPrintable(QStringLiteral("by %1,%2").arg(miss.x()).arg(miss.y())));
        QCOMPARE(sector, qint16(3)); // right
        // Corners and hole are as they were.
        for (const QPoint &bare : {QPoint(0, 0), QPoint(249, 0), QPoint(0, 249), QPoint(249, 249),
                                   QPoint(20, 20), QPoint(125, 100), QPoint(150, 140)})
            QCOMPARE(QColor(shown.pixel(bare * ringScale)), QColor(before.pixel(bare * ringScale)));
        QVERIFY2(qAbs(distance - 50) <= 2, qPrintable(QString::number(distance)));
    }
}

QTEST_MAIN(RingScalesTest)
#include "tst_ringscales.moc"
