// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgCompositorProbe.h"
#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/x11/X11Bench.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

using tests::X11Bench;

namespace {

constexpr int kSize = 250;
constexpr double kRingOpacity = 120.0 / 255.0;

// A drawing whose neighbouring pixels differ, so that a picture at the wrong place is noticed.
class Drawing : public QWidget
{
public:
    explicit Drawing(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(parent->rect());
        show();
    }
    void setColor(const QColor &color)
    {
        m_color = color;
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_color);
        for (int i = 0; i < width(); i += 5) {
            painter.setPen(QColor::fromHsv(i % 360, 200, 230));
            painter.drawLine(i, 0, width() - i, height());
        }
    }

private:
    QColor m_color = Qt::white;
};

int distance(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// Returns what the screen shows if the ring's image lies over `before` at `opacity`.
QImage blended(const QImage &before, const QImage &image, double opacity)
{
    QImage result = before;
    QPainter painter(&result);
    painter.setOpacity(opacity);
    painter.drawImage(0, 0, image);
    return result;
}

} // namespace

// The ring without a compositor: what was under it shows through, as with one. Run it with
// tests/support/with-desktop.sh and DESKTOP_COMPOSITOR=0.
class RingBackdropTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsBlack();
    void lastFrameToo();
    void backdropIsTakenAnew();
    void atTheBorderOfTheMonitor_data();
    void atTheBorderOfTheMonitor();
    void compositorComesAndGoes();
    void offEveryMonitor();
    void theProbeAsksItself();
    void theProbeAsksOnce();
    void theProbeFindsNoServer();
    void compositorGoesUnderAnOpenRing();
    void compositorComesUnderAnOpenRing();

private:
    // Opens the ring with the left sector lit. Returns the screen at the ring's place from
    // before.
    QImage open();
    void end();
    void startCompositor();
    void stopCompositor();
    [[nodiscard]] bool isSeenThrough(const QColor &color);
    [[nodiscard]] QRect whole() const; // of the ring
    [[nodiscard]] QRect place() const; // of the part on the screen
    // The number of pixels where the screen is not what a compositor would show. Leaves out the
    // lit sector and the lines between sectors.
    [[nodiscard]] int wrongPixels(const QImage &before, double opacity);

    std::unique_ptr<X11Bench> m_bench;
    QProcess m_compositor;
    Drawing *m_drawing = nullptr;
    QPoint m_centre;
};

void RingBackdropTest::initTestCase()
{
    tests::failOnWarnings();
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void RingBackdropTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<X11Bench>();
    QVERIFY(!m_bench->peer.hasCompositor());
    // Unbound sectors have no label that could cover a pixel.
    m_bench->bench.host.commands.groups.clear();
    m_bench->bench.setScheme(4);
    m_drawing = new Drawing(m_bench->bench.view);
    m_centre = QPoint(200, 200);
    QTRY_VERIFY(m_bench->isViewInPlace());
    m_bench->settle();
}

void RingBackdropTest::cleanup()
{
    m_bench.reset();
    m_compositor.kill(); // a test that failed leaves it
    m_compositor.waitForFinished();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

QRect RingBackdropTest::whole() const
{
    return {m_bench->global(m_centre) - QPoint(kSize / 2, kSize / 2), QSize(kSize, kSize)};
}

QRect RingBackdropTest::place() const
{
    return whole() & QGuiApplication::primaryScreen()->virtualGeometry();
}

QImage RingBackdropTest::open()
{
    const QImage before = m_bench->peer.screenAt(place());
    m_bench->pressAndDrag(m_centre, QPoint(-30, 0));
    const bool isUp = QTest::qWaitFor([this] { return m_bench->isRingUp(); });
    m_bench->settle();
    return isUp ? before : QImage();
}

void RingBackdropTest::end()
{
    m_bench->release();
    QTRY_VERIFY(!m_bench->ring()->gesturing);
    m_bench->settle();
    m_bench->input->look();
}

int RingBackdropTest::wrongPixels(const QImage &before, double opacity)
{
    const QImage ring(QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png"));
    const QPoint cut = place().topLeft() - whole().topLeft();
    const QImage wanted = blended(before, ring.copy(QRect(cut, place().size())), opacity);
    const QImage found = m_bench->peer.screenAt(place());
    int wrong = 0;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x) {
            const double dx = cut.x() + x + 0.5 - kSize / 2.0;
            const double dy = cut.y() + y + 0.5 - kSize / 2.0;
            const bool inRing = std::hypot(dx, dy) > 60.0;
            // The left quarter with a margin, and the lines between the other quarters.
            const bool lit = inRing && dx < 0 && std::abs(dy) <= -dx + 3.0;
            const bool onLine = inRing && std::abs(std::abs(dx) - std::abs(dy)) < 3.0;
            if (!lit && !onLine && distance(found.pixel(x, y), wanted.pixel(x, y)) > 2)
                ++wrong;
        }
    }
    return wrong;
}

void RingBackdropTest::nothingIsBlack()
{
    for (int gesture = 0; gesture < 3; ++gesture) {
        const QImage before = open();
        QVERIFY(!before.isNull());
        QTRY_COMPARE(wrongPixels(before, kRingOpacity), 0);
        // Corners and hole are untouched.
        const QImage found = m_bench->peer.screenAt(place());
        for (const QPoint &bare : {QPoint(0, 0), QPoint(249, 0), QPoint(0, 249), QPoint(249, 249),
                                   QPoint(20, 20), QPoint(125, 100), QPoint(150, 140)})
            QCOMPARE(QColor(found.pixel(bare)), QColor(before.pixel(bare)));
        end();
        QTRY_COMPARE(m_bench->peer.screenAt(place()), before);
    }
}

void RingBackdropTest::lastFrameToo()
{
    const QImage before = open();
    QVERIFY(!before.isNull());
    m_bench->ring()->doFading();
    QTRY_COMPARE(wrongPixels(before, 0.0), 0);
    end();
}

void RingBackdropTest::backdropIsTakenAnew()
{
    for (const QColor &color : {QColor(Qt::black), QColor(Qt::darkCyan), QColor(Qt::white)}) {
        m_drawing->setColor(color);
        m_bench->settle();
        const QImage before = open();
        QVERIFY(!before.isNull());
        QTRY_COMPARE(wrongPixels(before, kRingOpacity), 0);
        end();
    }
}

void RingBackdropTest::atTheBorderOfTheMonitor_data()
{
    QTest::addColumn<int>("inside"); // pixels of the press from the border
    QTest::newRow("inside") << 40;
    if (QGuiApplication::screens().size() > 1)
        QTest::newRow("on the monitor beside") << -40;
}

// One part of the ring is off the monitor, or on the one beside.
void RingBackdropTest::atTheBorderOfTheMonitor()
{
    QFETCH(int, inside);
    QWidget *view = m_bench->bench.view;
    const QPoint corner = QGuiApplication::screens().constLast()->geometry().topLeft();
    view->move(corner + QPoint(-200, 100));
    QTRY_VERIFY(m_bench->isViewInPlace());
    m_bench->settle();
    m_centre = QPoint(view->mapFromGlobal(corner).x() + inside, 200);
    QVERIFY(view->rect().contains(m_centre));
    const QImage before = open();
    QVERIFY(!before.isNull());
    QTRY_COMPARE(wrongPixels(before, kRingOpacity), 0);
    end();
    QTRY_COMPARE(m_bench->peer.screenAt(place()), before);
}

void RingBackdropTest::offEveryMonitor()
{
    tests::CountingDonut ring;
    m_bench->bench.start(ring, QPoint(-3000, -3000));
    QVERIFY(!QGuiApplication::screenAt(ring.geometry().center()));
    QVERIFY(ring.gesturing);
    ring.StopGesturing(false);
    m_bench->bench.releaseIfPressed();
    m_bench->settle();
}

void RingBackdropTest::startCompositor()
{
    m_compositor.start(QStringLiteral("picom"),
                       {QStringLiteral("--backend"), QStringLiteral("xrender"),
                        QStringLiteral("--config"), QStringLiteral("/dev/null")});
    QVERIFY(m_compositor.waitForStarted());
    QTRY_VERIFY(m_bench->peer.hasCompositor());
}

void RingBackdropTest::stopCompositor()
{
    m_compositor.terminate();
    QVERIFY(m_compositor.waitForFinished());
    QTRY_VERIFY(!m_bench->peer.hasCompositor());
    m_bench->settle();
}

// What is on the screen under an open ring changes, and shows through.
bool RingBackdropTest::isSeenThrough(const QColor &color)
{
    const QPoint place = m_centre + QPoint(40, 33);
    m_drawing->setColor(color);
    const QColor changed = m_drawing->grab().toImage().pixelColor(place);
    return QTest::qWaitFor([&] { return m_bench->peer.colorAt(m_bench->global(place)) == changed; });
}

void RingBackdropTest::compositorComesAndGoes()
{
    for (const QColor &color : {QColor(Qt::darkBlue), QColor(Qt::darkRed)}) {
        startCompositor();
        QVERIFY(!open().isNull());
        QVERIFY(isSeenThrough(color));
        end();

        stopCompositor();
        const QImage before = open();
        QVERIFY(!before.isNull());
        QTRY_COMPARE(wrongPixels(before, kRingOpacity), 0);
        end();
    }
}

void RingBackdropTest::theProbeAsksItself()
{
    const auto openFiles = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
    const auto before = openFiles();
    {
        MgCompositorProbe probe;
        QVERIFY(!probe.isCompositing());
        QVERIFY(!probe.isCompositing());
    }
    QCOMPARE(openFiles(), before); // its connection is closed
}

void RingBackdropTest::theProbeAsksOnce()
{
    MgCompositorProbe probe;
    probe.ask();
    startCompositor();
    probe.ask();
    QVERIFY(!probe.isCompositing()); // when it asked first
    QVERIFY(probe.isCompositing());
    stopCompositor();
}

void RingBackdropTest::theProbeFindsNoServer()
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4711");
    MgCompositorProbe probe;
    probe.ask();
    const bool isCompositing = probe.isCompositing();
    qputenv("DISPLAY", display);
    QVERIFY(isCompositing);
    QVERIFY(probe.isCompositing()); // it does not look for another server
}

void RingBackdropTest::compositorGoesUnderAnOpenRing()
{
    startCompositor();
    const QImage before = open();
    QVERIFY(!before.isNull());
    stopCompositor();
    QVERIFY(m_bench->isRingUp());
    end();
    QTRY_COMPARE(m_bench->peer.screenAt(place()), before);
    QVERIFY(!open().isNull());
    QTRY_COMPARE(wrongPixels(before, kRingOpacity), 0);
    end();
    QTRY_COMPARE(m_bench->peer.screenAt(place()), before);
}

void RingBackdropTest::compositorComesUnderAnOpenRing()
{
    const QImage before = open();
    QVERIFY(!before.isNull());
    startCompositor();
    QVERIFY(m_bench->isRingUp());
    end();
    QTRY_COMPARE(m_bench->peer.screenAt(place()), before);
    QVERIFY(!open().isNull());
    QVERIFY(isSeenThrough(Qt::darkGreen));
    end();
    stopCompositor();
}

QTEST_MAIN(RingBackdropTest)
#include "tst_ringbackdrop.moc"
