// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/fakehost/Fault.h"
#include "tests/gesture/TrackerBench.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/HastyClock.h"

#include <QTest>

#include <rapidcheck.h>

#include <utility>
#include <vector>

namespace {

// The press of each gesture, in pixels of the view.
const QPoint kMiddle(200, 200);
// From the press to where the button is let go, or to where the command runs.
const QPoint kCancelled(-40, 0);
const QPoint kAccepted(-80, 0);
// Calls that the host gets in such a gesture.
constexpr int kCallsOfCancelled = 258;
constexpr int kCallsOfAccepted = 256;

} // namespace

// Each call into the host goes wrong in each way, alone and in pairs, in a gesture that is cancelled and
// in one that is accepted. Afterwards nothing is grabbed, no ring is open, and the next gesture is as if
// nothing had been.
class GestureFaultsTest : public QObject, protected tests::TrackerBench
{
    Q_OBJECT

public:
    GestureFaultsTest();
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
    // What is wrong after the gesture; empty if nothing is.
    [[nodiscard]] QString complaint();

    tests::HastyClock m_clock;
    const std::vector<tests::Fault> m_faults;
    bool m_isPair = false; // of faults
    bool m_hasLostTheRing = false;
};

GestureFaultsTest::GestureFaultsTest()
    : m_faults(tests::faultsWith(
        {{"loses the main window", // and the ring with it
          [this] {
              m_hasLostTheRing = m_isPair;
              // Once: while it dies, the host is called as well.
              delete std::exchange(m_mainWindow, nullptr).data();
          }},
         {"loses the view", [this] { delete m_bench->view; }},
         {"loses the active document", [this] { m_bench->host.documents.active = nullptr; }},
         {"handles the release", // in an event loop of its own
          [this] {
              m_bench->release(kMiddle);
              QCoreApplication::processEvents();
          }},
         {"handles a movement", [this] { m_bench->pointTo(kMiddle + kAccepted); }},
         {"updates again", [this] { m_tracker->Update(nullptr, m_hit.get()); }},
         {"reads the bindings again", [] { MgDonutDataContainer::instance()->init(); }},
         {"stops the ring", [this] {
              if (m_tracker->ring())
                  m_tracker->ring()->hide();
          }}}))
{
}

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
    QTest::addColumn<int>("fault"); // place in the list
    QTest::addColumn<int>("first"); // of the calls that go wrong
    QTest::addColumn<int>("calls");
    int place = 0;
    for (const tests::Fault &fault : m_faults) {
        QTest::addRow("cancelled, %s", fault.name) << kCancelled << place << 0 << kCallsOfCancelled;
        // Only its end is different.
        QTest::addRow("accepted, %s", fault.name) << kAccepted << place << 220 << kCallsOfAccepted;
        ++place;
    }
}

void GestureFaultsTest::oneAtATime()
{
    QFETCH(const QPoint, end);
    QFETCH(const int, fault);
    QFETCH(const int, first);
    QFETCH(const int, calls);
    const int stride = tests::faultStride();
    int call = first + fault % stride;
    for (bool isReached = true; isReached; call += stride) {
        {
            const auto one = m_faults[static_cast<std::size_t>(fault)].at(call);
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
        const auto one = *tests::someFault(m_faults, calls);
        const auto other = *tests::someFault(m_faults, calls);
        tearDown();
        tests::resetWarnings();
        setUp();
        m_isPair = true;
        m_hasLostTheRing = false;
        {
            const auto first = one.start();
            const auto second = other.start();
            perform(end);
        }
        RC_ASSERT(complaint().toStdString() == std::string());
        RC_ASSERT(tests::warnings().toStdString() == std::string());
    });
    QVERIFY(holds);
}

QTEST_MAIN(GestureFaultsTest)
#include "tst_gesturefaults.moc"
