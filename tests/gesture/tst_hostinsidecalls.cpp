// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/fakehost/FakeFault.h"
#include "tests/gesture/GestureBench.h"
#include "tests/support/FatalWarnings.h"

#include <QEvent>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <new>

using tests::CountingDonut;
using tests::FakeFault;
using tests::GestureBench;

namespace {

// The place of one ring. Its bytes are filled when the ring is destroyed, and kept.
class Grave
{
public:
    static void *take(std::size_t size)
    {
        if (size > s_bytes.size() || s_isTaken)
            throw std::bad_alloc();
        s_isTaken = true;
        return s_bytes.data();
    }
    static void fill()
    {
        s_isTaken = false;
        std::memset(s_bytes.data(), kFill, s_bytes.size());
    }
    // True if nothing was written since.
    static bool isUntouched()
    {
        return std::all_of(s_bytes.begin(), s_bytes.end(),
                           [](unsigned char byte) { return byte == kFill; });
    }

private:
    static constexpr unsigned char kFill = 0x55;
    alignas(std::max_align_t) static inline std::array<unsigned char, 4096> s_bytes;
    static inline bool s_isTaken = false;
};

class MortalDonut : public CountingDonut
{
public:
    static void *operator new(std::size_t size) { return Grave::take(size); }
    static void operator delete(void *) { Grave::fill(); }
};

} // namespace

// A host that ends the gesture, destroys the ring or loses the view inside each of the calls that the
// ring makes. What the ring does next takes that into account.
class HostInsideCallsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void aGestureThatIsOverIsNotStartedAgain();
    void aViewThatIsLostLeavesNothingArmed();
    void withoutAViewLittleIsAsked();
    void aGestureThatIsOverIsNotAccepted();
    void aRingThatDiesIsNotAccepted();
    void aRingThatDiesWhileBlockedHasSeenTheEvent();
    void nothingIsWrittenIntoADestroyedRing_data();
    void nothingIsWrittenIntoADestroyedRing();

private:
    // Arms a ring around the middle of the view, with the pointer there.
    void arm(MgDonutDialogPVStyleImpl &donut);
    // Makes all anew.
    void restart();

    std::unique_ptr<GestureBench> m_bench;
};

void HostInsideCallsTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<GestureBench>();
}

void HostInsideCallsTest::cleanup()
{
    m_bench.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(QWidget::keyboardGrabber(), nullptr);
}

void HostInsideCallsTest::restart()
{
    m_bench.reset();
    m_bench = std::make_unique<GestureBench>();
}

void HostInsideCallsTest::arm(MgDonutDialogPVStyleImpl &donut)
{
    donut.origin = QPoint(200, 200);
    m_bench->pointTo(donut.origin);
    donut.WindUp(m_bench->document);
}

void HostInsideCallsTest::aGestureThatIsOverIsNotStartedAgain()
{
    int calls = 0;
    for (bool isReached = true; isReached; ++calls) {
        CountingDonut donut;
        arm(donut);
        {
            const FakeFault whole(calls, [&donut] {
                donut.TryStart(QPoint());
                donut.StopGesturing(false);
            });
            donut.TryStart(QPoint());
            isReached = whole.wasReached();
        }
        QVERIFY2(donut.gesturing == !isReached, qPrintable(QString::number(calls)));
        QCOMPARE(donut.isVisible(), !isReached);
        donut.StopGesturing(false);
    }
    QVERIFY(calls > 100);
}

void HostInsideCallsTest::aViewThatIsLostLeavesNothingArmed()
{
    int calls = 0;
    for (bool isReached = true; isReached; ++calls) {
        CountingDonut donut;
        arm(donut);
        {
            const FakeFault loss(calls, [this] { delete m_bench->view; });
            donut.TryStart(QPoint());
            isReached = loss.wasReached();
        }
        QVERIFY2(!donut.armed, qPrintable(QString::number(calls)));
        QCOMPARE(m_bench->host.mode, qint16(donut.gesturing ? 1 : 0));
        donut.StopGesturing(false);
        restart();
    }
    QVERIFY(calls > 100);
}

void HostInsideCallsTest::withoutAViewLittleIsAsked()
{
    CountingDonut donut;
    arm(donut);
    delete m_bench->view;
    const FakeFault many(20, tests::Misdeed::None);
    donut.TryStart(QPoint());
    QVERIFY(!donut.armed);
    QVERIFY(!many.wasReached());
}

void HostInsideCallsTest::aGestureThatIsOverIsNotAccepted()
{
    int calls = 0;
    int ended = 0;
    for (bool isReached = true; isReached; ++calls) {
        CountingDonut donut;
        m_bench->start(donut);
        QCursor::setPos(m_bench->view->mapToGlobal(donut.origin + QPoint(80, 0)));
        bool isEnded = false;
        {
            const FakeFault end(calls, [&] {
                isEnded = donut.gesturing;
                if (isEnded)
                    donut.StopGesturing(false);
            });
            // The pointer is told by an event, as in a program.
            QTest::mouseMove(donut.windowHandle(), QPoint(125 + 80, 125));
            isReached = end.wasReached();
        }
        // Later calls come when the choice is made.
        QVERIFY2(donut.accepted == !isEnded, qPrintable(QString::number(calls)));
        QCOMPARE(donut.fading, false);
        QVERIFY(!donut.gesturing);
        ended += isEnded ? 1 : 0;
        m_bench->release(donut.origin);
    }
    QVERIFY(ended > 2);
    QVERIFY(calls > ended);
}

void HostInsideCallsTest::aRingThatDiesIsNotAccepted()
{
    auto *donut = new CountingDonut;
    m_bench->start(*donut);
    bool isAccepted = true;
    {
        const FakeFault look(0, [&] { isAccepted = donut->accepted; });
        delete donut;
        QVERIFY(look.wasReached());
    }
    QVERIFY(!isAccepted);
}

void HostInsideCallsTest::aRingThatDiesWhileBlockedHasSeenTheEvent()
{
    QPointer<CountingDonut> donut = new CountingDonut;
    m_bench->start(*donut);
    const FakeFault death(0, [&donut] { delete donut; });
    QEvent blocked(QEvent::WindowBlocked);
    QVERIFY(QCoreApplication::sendEvent(donut, &blocked));
    QVERIFY(death.wasReached());
    QVERIFY(donut.isNull());
}

void HostInsideCallsTest::nothingIsWrittenIntoADestroyedRing_data()
{
    QTest::addColumn<int>("steps"); // before the one in which it dies
    QTest::addColumn<bool>("losesView"); // at the same time
    for (const bool losesView : {false, true}) {
        const char *how = losesView ? ", and the view is lost" : "";
        QTest::addRow("arming%s", how) << 0 << losesView;
        QTest::addRow("starting%s", how) << 1 << losesView;
        QTest::addRow("moving%s", how) << 2 << losesView;
        QTest::addRow("choosing%s", how) << 3 << losesView;
        QTest::addRow("stopping%s", how) << 4 << losesView;
    }
}

void HostInsideCallsTest::nothingIsWrittenIntoADestroyedRing()
{
    QFETCH(int, steps);
    QFETCH(bool, losesView);
    using Step = std::function<void(MgDonutDialogPVStyleImpl &)>;
    const std::array<Step, 5> all{
        [this](auto &donut) { arm(donut); },
        [](auto &donut) { donut.TryStart(QPoint()); },
        [](auto &donut) { donut.mousePositionChanged(0, -40); },
        [](auto &donut) { donut.mousePositionChanged(-80, 0); },
        [](auto &donut) { donut.StopGesturing(true); },
    };
    int calls = 0;
    for (bool isReached = true; isReached; ++calls) {
        QPointer<MortalDonut> donut = new MortalDonut;
        for (int step = 0; step < steps; ++step)
            all.at(std::size_t(step))(*donut);
        {
            const FakeFault death(calls, [&] {
                delete donut;
                if (losesView)
                    delete m_bench->view;
            });
            all.at(std::size_t(steps))(*donut);
            isReached = death.wasReached();
        }
        QCOMPARE(donut.isNull(), isReached);
        QVERIFY2(!isReached || Grave::isUntouched(), qPrintable(QString::number(calls)));
        delete donut;
        restart();
    }
    QVERIFY(calls > 1);
}

QTEST_MAIN(HostInsideCallsTest)
#include "tst_hostinsidecalls.moc"
