// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/fakehost/FakeFault.h"
#include "tests/gesture/TrackerBench.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/HastyClock.h"

#include <QTest>

#include <rapidcheck.h>

#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

using tests::FakeFault;
using tests::Misdeed;

namespace {

// The press of each gesture, in pixels of the view.
const QPoint kMiddle(200, 200);
// From the press to where the button is let go, or to where the command runs.
const QPoint kCancelled(-40, 0);
const QPoint kAccepted(-80, 0);
// Calls that the host gets in such a gesture.
constexpr int kCallsOfCancelled = 258;
constexpr int kCallsOfAccepted = 256;

// What goes wrong.
enum Fault {
    Throws,
    GivesNothing,
    GivesTooLittle,
    GivesTooMuch,
    LosesTheMainWindow, // and the ring with it
    LosesTheView,
    LosesTheActiveDocument,
    HandlesTheRelease, // in an event loop of its own
    HandlesAMovement,
    UpdatesAgain,
    ReadsTheBindingsAgain,
    StopsTheRing,
};
constexpr int kFaults = StopsTheRing + 1;

const char *nameOf(Fault fault)
{
    static const char *const names[kFaults] = {"throws",
                                               "gives nothing",
                                               "gives too little",
                                               "gives too much",
                                               "loses the main window",
                                               "loses the view",
                                               "loses the active document",
                                               "handles the release",
                                               "handles a movement",
                                               "updates again",
                                               "reads the bindings again",
                                               "stops the ring"};
    return names[fault];
}

struct FaultAt
{
    Fault fault;
    int call;
};

std::ostream &operator<<(std::ostream &out, const FaultAt &one)
{
    return out << "call " << one.call << ' ' << nameOf(one.fault);
}

} // namespace

Q_DECLARE_METATYPE(Fault)

// Each call into the host goes wrong in each way, alone and in pairs, in a gesture that is cancelled and
// in one that is accepted. Afterwards nothing is grabbed, no ring is open, and the next gesture is as if
// nothing had been.
class GestureFaultsTest : public QObject, protected tests::TrackerBench
{
    Q_OBJECT

public:
    static void initMain() { tests::HastyClock::keepTestsRunning(); }

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void oneAtATime_data();
    void oneAtATime();
    void twoAtATime_data();
    void twoAtATime();

private:
    // A whole gesture. Runs its command if the tracker has one.
    void perform(const QPoint &end);
    [[nodiscard]] std::unique_ptr<FakeFault> faultOf(const FaultAt &one);
    void act(Fault fault);
    // What is wrong after the gesture; empty if nothing is.
    [[nodiscard]] QString complaint();

    tests::HastyClock m_clock;
    bool m_isPair = false; // of faults
    bool m_hasLostTheRing = false;
};

void GestureFaultsTest::init()
{
    tests::resetWarnings();
    setUp();
}

void GestureFaultsTest::cleanup()
{
    tearDown();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void GestureFaultsTest::perform(const QPoint &end)
{
    pressAndDrag(kMiddle);
    m_bench->pointTo(kMiddle + end);
    look(kMiddle + end);
    m_bench->release(kMiddle + end);
    look(kMiddle + end);
    if (m_tracker->IsEager(m_hit.get()))
        m_tracker->DoAction(m_hit.get());
}

std::unique_ptr<FakeFault> GestureFaultsTest::faultOf(const FaultAt &one)
{
    switch (one.fault) {
    case Throws:
        return std::make_unique<FakeFault>(one.call, Misdeed::Throws);
    case GivesNothing:
        return std::make_unique<FakeFault>(one.call, Misdeed::GivesNothing);
    case GivesTooLittle:
        return std::make_unique<FakeFault>(one.call, Misdeed::GivesTooLittle);
    case GivesTooMuch:
        return std::make_unique<FakeFault>(one.call, Misdeed::GivesTooMuch);
    default:
        return std::make_unique<FakeFault>(one.call, [this, one] { act(one.fault); });
    }
}

void GestureFaultsTest::act(Fault fault)
{
    switch (fault) {
    case LosesTheMainWindow:
        m_hasLostTheRing = m_isPair;
        // Once: while it dies, the host is called as well.
        delete std::exchange(m_mainWindow, nullptr).data();
        return;
    case LosesTheView:
        delete m_bench->view;
        return;
    case LosesTheActiveDocument:
        m_bench->host.documents.active = nullptr;
        return;
    case HandlesTheRelease:
        m_bench->release(kMiddle);
        QCoreApplication::processEvents();
        return;
    case HandlesAMovement:
        m_bench->pointTo(kMiddle + kAccepted);
        return;
    case UpdatesAgain:
        m_tracker->Update(nullptr, m_hit.get());
        return;
    case ReadsTheBindingsAgain:
        MgDonutDataContainer::instance()->init();
        return;
    case StopsTheRing:
        if (m_tracker->ring())
            m_tracker->ring()->hide();
        return;
    default:
        return;
    }
}

QString GestureFaultsTest::complaint()
{
    m_bench->releaseIfPressed();
    // A ring opens on the update after the one that armed it, also if the button is up by then. A host
    // ends it.
    if (QWidget::mouseGrabber())
        m_bench->release(kMiddle);
    if (QWidget::mouseGrabber() || QWidget::keyboardGrabber())
        return QStringLiteral("something is grabbed");
    if (m_tracker->ring() && m_tracker->ring()->isVisible())
        return QStringLiteral("the ring is open");
    // The host recovers.
    m_bench->host.documents.active = m_bench->document;
    if (!m_bench->view)
        m_bench->makeView();
    if (!m_mainWindow)
        m_mainWindow = new QWidget;
    m_bench->host.mainWindow = m_mainWindow;
    look(kMiddle); // reports a stop that was not reported
    m_tracker->pendingCommand = CHxString();
    pressAndDrag(kMiddle);
    const bool isOpen = m_tracker->ring() && m_tracker->ring()->gesturing && m_bench->host.mode == 1;
    m_bench->release(kMiddle + QPoint(22, 0));
    look(kMiddle + QPoint(22, 0));
    if (!isOpen)
        return QStringLiteral("the next gesture does not open");
    // If a ring was destroyed just when the host failed, nobody can tell what the mode was.
    const bool isModeLost = m_hasLostTheRing && m_bench->host.mode == 1;
    if (m_tracker->ring()->isVisible() || (m_bench->host.mode == 1 && !isModeLost))
        return QStringLiteral("the next gesture does not end");
    // The ring has no parent if the host could not name its main window.
    if (!m_tracker->donut->parent())
        delete m_tracker->donut;
    return {};
}

void GestureFaultsTest::oneAtATime_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("first"); // of the calls that go wrong
    QTest::addColumn<int>("calls");
    for (int number = 0; number < kFaults; ++number) {
        const auto fault = static_cast<Fault>(number);
        QTest::addRow("cancelled, %s", nameOf(fault)) << kCancelled << fault << 0 << kCallsOfCancelled;
        // Only its end is different.
        QTest::addRow("accepted, %s", nameOf(fault)) << kAccepted << fault << 220 << kCallsOfAccepted;
    }
}

void GestureFaultsTest::oneAtATime()
{
    QFETCH(const QPoint, end);
    QFETCH(const Fault, fault);
    QFETCH(const int, first);
    QFETCH(const int, calls);
    const int stride = tests::faultStride();
    int call = first + int(fault) % stride;
    for (bool isReached = true; isReached && call <= calls; call += stride) {
        {
            const std::unique_ptr<FakeFault> one = faultOf({fault, call});
            perform(end);
            isReached = one->wasReached();
        }
        const QString wrong = complaint();
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after call %1: %2").arg(call).arg(wrong)));
        tearDown();
        setUp();
    }
    // A call that is new needs a look at what it does when it goes wrong.
    if (stride == 1)
        QCOMPARE(call - 1, calls);
}

void GestureFaultsTest::twoAtATime_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<int>("calls");
    QTest::newRow("cancelled") << kCancelled << kCallsOfCancelled;
    QTest::newRow("accepted") << kAccepted << kCallsOfAccepted;
}

void GestureFaultsTest::twoAtATime()
{
    QFETCH(const QPoint, end);
    QFETCH(const int, calls);
    const bool holds = rc::check([&] {
        const auto someFault = rc::gen::build<FaultAt>(
            rc::gen::set(&FaultAt::fault, rc::gen::cast<Fault>(rc::gen::inRange(0, kFaults))),
            rc::gen::set(&FaultAt::call, rc::gen::inRange(0, calls)));
        const auto one = *someFault;
        const auto other = *someFault;
        tearDown();
        tests::resetWarnings();
        setUp();
        m_isPair = true;
        m_hasLostTheRing = false;
        {
            const std::unique_ptr<FakeFault> first = faultOf(one);
            const std::unique_ptr<FakeFault> second = faultOf(other);
            perform(end);
        }
        RC_ASSERT(complaint().toStdString() == std::string());
        RC_ASSERT(tests::warnings().toStdString() == std::string());
    });
    QVERIFY(holds);
}

QTEST_MAIN(GestureFaultsTest)
#include "tst_gesturefaults.moc"
