// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "bindings/MgDonutDataContainer.h"
#include "tests/gesture/TrackerBench.h"
#include "tests/support/FatalWarnings.h"

#include <QPointer>
#include <QTest>

using tests::FakeHitTest;
using tests::OpenTracker;

namespace {

const QStringList kSuppression{
    QStringLiteral("ModalWindowOpen"),  QStringLiteral("PopupOpen"),
    QStringLiteral("MouseGrabbed"),     QStringLiteral("OtherButtonDown"),
    QStringLiteral("ModifierMismatch"), QStringLiteral("OverControl"),
    QStringLiteral("ViewBlocked"),
};

} // namespace

class TrackerTest : public QObject, protected tests::TrackerBench
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void startsEmptyAndAsksNothing();
    void castsByName();
    void drawsNothing();

    void disabledDoesNothing();
    void switchedOnElsewhereItOpensTheRing_data();
    void switchedOnElsewhereItOpensTheRing();
    void suppressionIsAskedInOrder_data();
    void suppressionIsAskedInOrder();
    void aQueryThatThrowsStartsNothing_data();
    void aQueryThatThrowsStartsNothing();
    void suppressedUpdateIsIgnored_data();
    void suppressedUpdateIsIgnored();
    void suppressedUpdateKeepsTheStop();
    void idleCostsEightQueries();
    void pressIsRecorded();
    void dragTestStopsAtTheFirstFailure();
    void dragThreshold_data();
    void dragThreshold();

    void windsUpAroundThePressPoint();
    void cornerIsInTheActiveDocumentsView();
    void showsOnTheFollowingUpdate_data();
    void showsOnTheFollowingUpdate();
    void dragIsNotifiedOnEachQualifyingUpdate();
    void overlayBelongsToTheMainWindow();
    void overlayBelongsToTheDesktop_data();
    void overlayBelongsToTheDesktop();
    void oneOverlayServesAll();
    void overlayDiesWithTheMainWindow();
    void overlayOutlivesTheTracker();
    void stoppedIsReportedBeforeWindingUpAgain();

    void acceptedSectorBecomesTheCommand_data();
    void acceptedSectorBecomesTheCommand();
    void cancelledLeavesNothing();
    void unboundSectorLeavesNothing();
    void indexPastTheLastSectorLeavesNothing();
    void endIsNotifiedWhileTheButtonIsHeld();
    void noSectorLeavesNothing();
    void choiceIsReadBeforeTheEndIsTold();
    void doActionHandsOverAndForgets();
    void wholeGesture();
    void newPressMovesThePressPoint();
    void trackingStaysAfterAReleaseWithoutDrag();

    void withoutServices();
    void withoutActiveView_data();
    void withoutActiveView();
    void withoutDocument();
    void withoutHitTest();

private:
    // Starts a gesture and opens the ring.
    void open(const QPoint &position = QPoint(200, 200));
};

void TrackerTest::init()
{
    tests::resetWarnings();
    setUp();
}

void TrackerTest::cleanup()
{
    tearDown();
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void TrackerTest::open(const QPoint &position)
{
    pressAndDrag(position);
    QVERIFY(m_tracker->ring() && m_tracker->ring()->gesturing);
}

void TrackerTest::startsEmptyAndAsksNothing()
{
    m_bench->host.log.clear();
    const OpenTracker tracker;
    QVERIFY(tracker.donut.isNull());
    QVERIFY(!tracker.tracking);
    QVERIFY(tracker.pendingCommand.isEmpty());
    QCOMPARE(tracker.pressPoint, QPoint(0, 0));
    QCOMPARE(tracker.pressGlobalPoint, QPoint(0, 0));
    QVERIFY(tracker.QObject::parent() == nullptr);
    QVERIFY(tracker.menu.parent() == nullptr);
    QVERIFY(tracker.menu.isEmpty());
    QVERIFY(!tracker.IsEager(nullptr));
    QVERIFY(!tracker.CheckRegenAbort(nullptr));
    QVERIFY(tracker.GetName().isEmpty());
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

void TrackerTest::castsByName()
{
    MgMouseGestureTracker *tracker = m_tracker.get();
    QCOMPARE(QLatin1String(tracker->metaObject()->className()), QLatin1String("MgMouseGestureTracker"));
    QVERIFY(tracker->qt_metacast("MgMouseGestureTracker") == static_cast<void *>(tracker));
    QVERIFY(tracker->qt_metacast("CHxTracker")
            == static_cast<void *>(static_cast<CHxTracker *>(tracker)));
    QVERIFY(tracker->qt_metacast("QObject") == static_cast<void *>(static_cast<QObject *>(tracker)));
    QVERIFY(tracker->qt_metacast("QWidget") == nullptr);
    // It has no signals, slots or properties of its own.
    QCOMPARE(tracker->metaObject()->methodCount(), tracker->metaObject()->methodOffset());
}

void TrackerTest::drawsNothing()
{
    m_bench->host.log.clear();
    m_tracker->DrawTracker(nullptr, m_hit.get());
    m_tracker->DrawDDTracker(nullptr, m_hit.get());
    QCOMPARE(m_hit->log.calls, QStringList());
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

void TrackerTest::disabledDoesNothing()
{
    m_bench->setEnabled(false);
    press(QPoint(10, 10));
    QVERIFY(!m_tracker->tracking);
    QCOMPARE(m_tracker->pressPoint, QPoint(0, 0));
    // At a press it looks whether another program has switched gestures on.
    QCOMPARE(m_bench->host.log.calls, (QStringList{QStringLiteral("store.exists EnableMouseGesture"),
                                                   QStringLiteral("store.get EnableMouseGesture 4")}));
    drag(QPoint(100, 100));
    QVERIFY(m_tracker->donut.isNull());
    QCOMPARE(m_bench->host.log.calls.size(), 2);
    QCOMPARE(m_hit->log.calls, QStringList(QStringLiteral("Press")));
}

void TrackerTest::switchedOnElsewhereItOpensTheRing_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("switched on") << QStringLiteral("1");
    QTest::newRow("malformed, which counts as on") << QStringLiteral("yes");
    QTest::newRow("the key removed, which counts as on") << QString();
}

void TrackerTest::switchedOnElsewhereItOpensTheRing()
{
    QFETCH(QString, stored);
    const QString key = QStringLiteral("EnableMouseGesture");
    QMap<QString, QString> &values = m_bench->host.store.values;
    m_bench->setEnabled(false);
    press(QPoint(200, 200));
    drag(QPoint(230, 200));
    QVERIFY(m_tracker->donut.isNull());
    // Another program writes to the store, and nobody reads the settings again before the press.
    values.remove(key);
    if (!stored.isNull())
        values.insert(key, stored);
    m_bench->pointTo(QPoint(200, 200));
    m_bench->press(QPoint(200, 200));
    press(QPoint(200, 200));
    QVERIFY(m_tracker->tracking);
    drag(QPoint(230, 200));
    QVERIFY(!m_tracker->donut.isNull());
    look(QPoint(230, 200));
    QVERIFY(m_tracker->ring()->isVisible());
    QCOMPARE(values.value(key), QStringLiteral("1"));
    m_bench->release(QPoint(200, 200));
    look(QPoint(200, 200));
    QVERIFY(!m_tracker->tracking);
    // The ring has read everything again, so another program can switch gestures off and on once more.
    values.insert(key, QStringLiteral("0"));
    MgDonutDataContainer::instance()->init();
    m_bench->press(QPoint(10, 10));
    press(QPoint(10, 10));
    QVERIFY(!m_tracker->tracking);
    m_bench->release(QPoint(10, 10));
    look(QPoint(10, 10));
    values.insert(key, QStringLiteral("1"));
    m_bench->press(QPoint(10, 10));
    press(QPoint(10, 10));
    QVERIFY(m_tracker->tracking);
    m_bench->release(QPoint(10, 10));
}

void TrackerTest::suppressionIsAskedInOrder_data()
{
    QTest::addColumn<int>("reason");
    for (int reason = 0; reason < kSuppression.size(); ++reason)
        QTest::newRow(qPrintable(kSuppression.at(reason))) << reason;
}

void TrackerTest::suppressionIsAskedInOrder()
{
    QFETCH(int, reason);
    m_hit->suppressed[reason] = true;
    press(QPoint(10, 10));
    QCOMPARE(m_hit->log.calls, QStringList(kSuppression.mid(0, reason + 1)));
}

void TrackerTest::aQueryThatThrowsStartsNothing_data()
{
    QTest::addColumn<QString>("query");
    for (const QString &query : kSuppression)
        QTest::newRow(qPrintable(query)) << query;
    for (const char *query : {"Press", "Motion", "ButtonHeld"})
        QTest::newRow(query) << QString::fromLatin1(query);
}

void TrackerTest::aQueryThatThrowsStartsNothing()
{
    QFETCH(QString, query);
    const bool isOfDrag = query == QLatin1String("Motion") || query == QLatin1String("ButtonHeld");
    m_hit->log.throwOn = query;
    press(QPoint(10, 10));
    QCOMPARE(m_tracker->tracking, isOfDrag);
    // Each would be a drag if the host could say so.
    m_hit->log.throwOn.clear();
    press(QPoint(10, 10));
    m_hit->log.throwOn = query;
    m_hit->position = QPoint(90, 90);
    m_hit->press = false;
    m_hit->motion = query != QLatin1String("Motion");
    m_hit->buttonHeld = query != QLatin1String("ButtonHeld");
    update();
    QCOMPARE(!m_tracker->donut.isNull(), query == QLatin1String("Press"));
}

void TrackerTest::suppressedUpdateIsIgnored_data()
{
    suppressionIsAskedInOrder_data();
}

void TrackerTest::suppressedUpdateIsIgnored()
{
    QFETCH(int, reason);
    m_hit->suppressed[reason] = true;
    press(QPoint(10, 10));
    QVERIFY(!m_tracker->tracking);
    QCOMPARE(m_tracker->pressPoint, QPoint(0, 0));

    m_hit->suppressed[reason] = false;
    press(QPoint(10, 10));
    m_hit->suppressed[reason] = true;
    drag(QPoint(90, 90));
    QVERIFY(m_tracker->donut.isNull());
    QVERIFY(m_tracker->tracking);
    m_hit->suppressed[reason] = false;
    drag(QPoint(90, 90));
    QVERIFY(!m_tracker->donut.isNull());
    QVERIFY(m_tracker->ring()->armed);
    m_hit->suppressed[reason] = true;
    look(QPoint(90, 90));
    QVERIFY(m_tracker->ring()->armed);
    QVERIFY(!m_tracker->ring()->isVisible());
}

void TrackerTest::suppressedUpdateKeepsTheStop()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    QVERIFY(m_tracker->ring()->justStopped);
    m_hit->suppressed[6] = true;
    look(QPoint(280, 200));
    QVERIFY(m_tracker->ring()->justStopped);
    QVERIFY(m_tracker->tracking);
    QVERIFY(!m_tracker->IsEager(nullptr));
    m_hit->suppressed[6] = false;
    look(QPoint(280, 200));
    QVERIFY(!m_tracker->ring()->justStopped);
    QVERIFY(!m_tracker->tracking);
    QVERIFY(m_tracker->IsEager(nullptr));
}

void TrackerTest::idleCostsEightQueries()
{
    const QStringList eight = QStringList(kSuppression) << QStringLiteral("Press");
    m_bench->host.log.clear();
    drag(QPoint(100, 100));
    QCOMPARE(m_hit->log.calls, eight);
    look(QPoint(100, 100));
    QCOMPARE(m_hit->log.calls, eight);
    // The same between gestures, when there is a ring.
    open();
    m_bench->release(QPoint(200, 200));
    look(QPoint(200, 200));
    m_bench->host.log.clear();
    drag(QPoint(300, 300));
    QCOMPARE(m_hit->log.calls, eight);
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

void TrackerTest::pressIsRecorded()
{
    m_bench->pointTo(QPoint(33, 44));
    press(QPoint(31, 41));
    QVERIFY(m_tracker->tracking);
    QCOMPARE(m_tracker->pressPoint, QPoint(31, 41));
    QCOMPARE(m_tracker->pressGlobalPoint, m_bench->view->mapToGlobal(QPoint(33, 44)));
    QVERIFY(m_tracker->donut.isNull());
}

void TrackerTest::dragTestStopsAtTheFirstFailure()
{
    const auto queriesAfterPress = [this] {
        QStringList calls = m_hit->log.calls.mid(kSuppression.size() + 1);
        calls.removeAll(QStringLiteral("Position"));
        return calls;
    };
    press(QPoint(10, 10));
    QCOMPARE(queriesAfterPress(), QStringList(QStringLiteral("Motion")));

    m_hit->position = QPoint(90, 90);
    m_hit->press = false;
    m_hit->motion = false;
    m_hit->buttonHeld = true;
    update();
    QCOMPARE(queriesAfterPress(), QStringList(QStringLiteral("Motion")));
    QVERIFY(m_tracker->donut.isNull());

    m_hit->motion = true;
    m_hit->buttonHeld = false;
    update();
    QCOMPARE(queriesAfterPress(), (QStringList{QStringLiteral("Motion"), QStringLiteral("ButtonHeld")}));
    QVERIFY(m_tracker->donut.isNull());

    drag(QPoint(10, 30));
    QCOMPARE(queriesAfterPress(), (QStringList{QStringLiteral("Motion"), QStringLiteral("ButtonHeld")}));
    QVERIFY(m_tracker->donut.isNull());

    drag(QPoint(10, 31));
    QCOMPARE(queriesAfterPress(),
             (QStringList{QStringLiteral("Motion"), QStringLiteral("ButtonHeld"),
                          QStringLiteral("NotifyDrag"), QStringLiteral("Document")}));
    QVERIFY(!m_tracker->donut.isNull());
}

void TrackerTest::dragThreshold_data()
{
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<bool>("opens");
    QTest::newRow("20 right") << QPoint(20, 0) << false;
    QTest::newRow("20 up") << QPoint(0, -20) << false;
    QTest::newRow("10 and 10") << QPoint(-10, 10) << false;
    QTest::newRow("21 right") << QPoint(21, 0) << true;
    QTest::newRow("21 up") << QPoint(0, -21) << true;
    QTest::newRow("10 and 11") << QPoint(-10, 11) << true;
}

void TrackerTest::dragThreshold()
{
    QFETCH(QPoint, delta);
    QFETCH(bool, opens);
    press(QPoint(150, 150));
    drag(QPoint(150, 150) + delta);
    QCOMPARE(!m_tracker->donut.isNull(), opens);
    QCOMPARE(m_hit->log.calls.contains(QStringLiteral("NotifyDrag")), opens);
    if (opens) {
        QVERIFY(m_tracker->ring()->armed);
        QVERIFY(!m_tracker->ring()->isVisible());
    }
}

void TrackerTest::windsUpAroundThePressPoint()
{
    press(QPoint(180, 190));
    drag(QPoint(150, 190));
    const MgDonutDialogPVStyleImpl *ring = m_tracker->ring();
    QVERIFY(ring->armed);
    QCOMPARE(ring->origin, QPoint(180, 190));
    QVERIFY(ring->document == m_bench->document);
    QCOMPARE(ring->pos(), m_bench->view->mapToGlobal(QPoint(180 - 125, 190 - 125)));
    look(QPoint(150, 190));
    QCOMPARE(ring->pos(), m_bench->view->mapToGlobal(QPoint(180 - 125, 190 - 125)));
    QCOMPARE(ring->size(), QSize(250, 250));
    m_tracker->ring()->StopGesturing(false);
}

void TrackerTest::cornerIsInTheActiveDocumentsView()
{
    tests::FakeDocument *other = m_bench->openDocument();
    m_hit->document = other; // while the first is active
    press(QPoint(180, 190));
    drag(QPoint(150, 190));
    QVERIFY(m_tracker->ring()->document == other);
    QCOMPARE(m_tracker->ring()->pos(), m_bench->view->mapToGlobal(QPoint(55, 65)));
    QVERIFY(m_tracker->ring()->pos() != other->view->mapToGlobal(QPoint(55, 65)));
}

void TrackerTest::showsOnTheFollowingUpdate_data()
{
    QTest::addColumn<bool>("motion");
    QTest::addColumn<bool>("held");
    QTest::newRow("drag") << true << true;
    QTest::newRow("move") << true << false;
    QTest::newRow("release") << false << false;
}

void TrackerTest::showsOnTheFollowingUpdate()
{
    QFETCH(bool, motion);
    QFETCH(bool, held);
    m_bench->pointTo(QPoint(200, 200));
    press(QPoint(200, 200));
    drag(QPoint(221, 200));
    QVERIFY(!m_tracker->ring()->isVisible());
    QVERIFY(!m_tracker->ring()->gesturing);
    m_hit->motion = motion;
    m_hit->buttonHeld = held;
    update();
    QVERIFY(m_tracker->ring()->isVisible());
    QVERIFY(m_tracker->ring()->gesturing);
    QVERIFY(!m_tracker->ring()->armed);
    m_tracker->ring()->StopGesturing(false);
}

void TrackerTest::dragIsNotifiedOnEachQualifyingUpdate()
{
    press(QPoint(100, 100));
    for (int i = 0; i < 3; ++i) {
        drag(QPoint(121 + i, 100));
        QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyDrag")).size(), 1);
    }
    drag(QPoint(120, 100));
    QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyDrag")).size(), 0);
    look(QPoint(150, 100));
    QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyDrag")).size(), 0);
    m_tracker->ring()->StopGesturing(false);
}

void TrackerTest::overlayBelongsToTheMainWindow()
{
    press(QPoint(100, 100));
    drag(QPoint(130, 100));
    QVERIFY(m_tracker->donut->parentWidget() == m_mainWindow);
    QVERIFY(m_tracker->ring() != nullptr);
    QCOMPARE(static_cast<int>(m_tracker->donut->windowFlags()), 0x80B);
}

void TrackerTest::overlayBelongsToTheDesktop_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("main frame") << QStringLiteral("frame");
    QTest::newRow("main window") << QStringLiteral("window");
}

void TrackerTest::overlayBelongsToTheDesktop()
{
    QFETCH(QString, missing);
    if (missing == QLatin1String("frame"))
        m_bench->host.hasMainFrame = false;
    else
        m_bench->host.mainWindow = nullptr;
    press(QPoint(100, 100));
    drag(QPoint(130, 100));
    QVERIFY(m_tracker->donut);
    // Qt gives a window on the desktop no parent.
    QVERIFY(m_tracker->donut->parentWidget() == nullptr);
    delete m_tracker->donut;
}

void TrackerTest::oneOverlayServesAll()
{
    open();
    const MgDonutDialog *first = m_tracker->donut;
    m_bench->release(QPoint(200, 200));
    look(QPoint(200, 200));
    QVERIFY(!m_tracker->tracking);

    tests::FakeDocument *other = m_bench->openDocument();
    m_bench->host.documents.active = other;
    m_hit->document = other;
    press(QPoint(100, 100));
    drag(QPoint(130, 100));
    QVERIFY(m_tracker->donut == first);
    QVERIFY(m_tracker->ring()->armed);
    QVERIFY(m_tracker->ring()->document == other);
    QCOMPARE(m_tracker->ring()->pos(), other->view->mapToGlobal(QPoint(-25, -25)));
}

void TrackerTest::overlayDiesWithTheMainWindow()
{
    open();
    m_bench->release(QPoint(200, 200));
    look(QPoint(200, 200));
    open();
    QWidget *next = new QWidget;
    delete m_mainWindow;
    QVERIFY(m_tracker->donut.isNull());
    QVERIFY(m_tracker->tracking);
    // Updates without a ring do no harm ...
    look(QPoint(200, 200));
    drag(QPoint(205, 200));
    QVERIFY(m_tracker->donut.isNull());
    m_bench->release(QPoint(200, 200));
    // ... and the next drag makes another.
    m_mainWindow = next;
    m_bench->host.mainWindow = next;
    open();
    QVERIFY(m_tracker->donut->parentWidget() == next);
    m_bench->release(QPoint(200, 200));
}

void TrackerTest::overlayOutlivesTheTracker()
{
    open();
    const QPointer<MgDonutDialog> ring = m_tracker->donut;
    m_bench->release(QPoint(200, 200));
    m_tracker.reset();
    QVERIFY(!ring.isNull());
}

void TrackerTest::stoppedIsReportedBeforeWindingUpAgain()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 0, 80);
    QVERIFY(m_tracker->ring()->justStopped);
    // The drag is still far from the press point and held, but this update reports the stop.
    drag(QPoint(200, 120));
    QVERIFY(!m_tracker->ring()->armed);
    QVERIFY(!m_tracker->tracking);
    QVERIFY(m_tracker->IsEager(nullptr));
    // Nothing opens without a new press.
    drag(QPoint(200, 100));
    QVERIFY(!m_tracker->ring()->armed);
}

void TrackerTest::acceptedSectorBecomesTheCommand_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("command");
    const auto text = [](const char *name) { return QString::fromLatin1(name); };
    QTest::newRow("four up") << 4 << 0 << 80 << text("zoom_bounds");
    QTest::newRow("four left") << 4 << -80 << 0 << text("open");
    QTest::newRow("four down") << 4 << 0 << -80 << text("save");
    QTest::newRow("four right") << 4 << 80 << 0 << text("line");
    QTest::newRow("eight up") << 8 << 0 << 80 << text("zoom_bounds");
    QTest::newRow("eight up-left") << 8 << -60 << 60 << text("offset");
    QTest::newRow("eight left") << 8 << -80 << 0 << text("open");
    QTest::newRow("eight down-left") << 8 << -60 << -60 << text("copy");
    QTest::newRow("eight down") << 8 << 0 << -80 << text("save");
    QTest::newRow("eight down-right") << 8 << 60 << -60 << text("dtext");
    QTest::newRow("eight right") << 8 << 80 << 0 << text("line");
    QTest::newRow("eight up-right") << 8 << 60 << 60 << text("trim");
}

void TrackerTest::acceptedSectorBecomesTheCommand()
{
    QFETCH(int, sectors);
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(QString, command);
    m_bench->setScheme(sectors);
    open();
    m_bench->pointTo(*m_tracker->ring(), x, y);
    QVERIFY(!m_tracker->IsEager(nullptr));
    look(QPoint(200, 200));
    QVERIFY(m_tracker->IsEager(m_hit.get()));
    QCOMPARE(m_tracker->pendingCommand.toQString(), command);
}

void TrackerTest::cancelledLeavesNothing()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 60, 0);
    QCOMPARE(m_tracker->ring()->getActiveArc(), qint16(3));
    m_bench->release(QPoint(260, 200));
    look(QPoint(260, 200));
    QVERIFY(!m_tracker->tracking);
    QVERIFY(!m_tracker->IsEager(nullptr));
    QVERIFY(m_tracker->pendingCommand.isEmpty());
}

void TrackerTest::unboundSectorLeavesNothing()
{
    m_bench->host.store.values.insert(QStringLiteral("44"), QString());
    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    QVERIFY(m_tracker->ring()->accepted);
    QCOMPARE(m_tracker->ring()->getActiveArc(), qint16(3));
    look(QPoint(280, 200));
    QVERIFY(!m_tracker->tracking);
    QVERIFY(!m_tracker->IsEager(nullptr));
}

void TrackerTest::indexPastTheLastSectorLeavesNothing()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    m_tracker->ring()->activeArc = 4;
    look(QPoint(280, 200));
    QVERIFY(!m_tracker->IsEager(nullptr));
}

void TrackerTest::noSectorLeavesNothing()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    m_tracker->ring()->activeArc = -1;
    look(QPoint(280, 200));
    QVERIFY(!m_tracker->tracking);
    QVERIFY(!m_tracker->IsEager(nullptr));
}

void TrackerTest::choiceIsReadBeforeTheEndIsTold()
{
    // A host may clean up when it learns of the end.
    class CleaningHitTest : public FakeHitTest
    {
    public:
        explicit CleaningHitTest(OpenTracker *tracker)
            : m_tracker(tracker)
        {
        }
        void NotifyEnd() override
        {
            FakeHitTest::NotifyEnd();
            m_tracker->ring()->accepted = false;
            m_tracker->ring()->activeArc = -1;
            delete m_tracker->ring();
        }

    private:
        OpenTracker *m_tracker;
    };

    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    CleaningHitTest hit(m_tracker.get());
    hit.document = m_bench->document;
    hit.position = QPoint(280, 200);
    hit.motion = hit.buttonHeld = true;
    m_tracker->Update(nullptr, &hit);
    QCOMPARE(hit.log.startingWith(QStringLiteral("NotifyEnd")).size(), 1);
    QVERIFY(m_tracker->donut.isNull());
    QCOMPARE(m_tracker->pendingCommand.toQString(), QStringLiteral("line"));
    m_bench->release(QPoint(280, 200));
}

void TrackerTest::endIsNotifiedWhileTheButtonIsHeld()
{
    open();
    m_bench->pointTo(*m_tracker->ring(), 80, 0);
    drag(QPoint(280, 200));
    QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyEnd")).size(), 1);
    drag(QPoint(281, 200));
    QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyEnd")).size(), 0);
    m_bench->release(QPoint(281, 200));

    // A cancelled gesture counts too, if a button is still held.
    open();
    m_tracker->ring()->StopGesturing(false);
    drag(QPoint(200, 200));
    QCOMPARE(m_hit->log.startingWith(QStringLiteral("NotifyEnd")).size(), 1);
    m_bench->release(QPoint(200, 200));

    open();
    m_bench->release(QPoint(200, 200));
    look(QPoint(200, 200));
    QCOMPARE(m_hit->log.calls.last(), QStringLiteral("ButtonHeld"));
    QVERIFY(!m_tracker->tracking);
}

void TrackerTest::doActionHandsOverAndForgets()
{
    m_tracker->pendingCommand = CHxString("^C^C_Mixed Case  ");
    m_bench->host.log.clear();
    QVERIFY(m_tracker->IsEager(m_hit.get()));
    QVERIFY(m_tracker->DoAction(m_hit.get()));
    QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("run ^C^C_Mixed Case   false")));
    QCOMPARE(m_bench->host.resultsAlive, 0);
    QVERIFY(!m_tracker->IsEager(nullptr));
    QVERIFY(m_tracker->pendingCommand.isEmpty());
    QCOMPARE(m_hit->log.calls, QStringList());

    // It runs an empty command too, and a result may be missing.
    m_bench->host.hasCommandResult = false;
    m_bench->host.log.clear();
    QVERIFY(m_tracker->DoAction(nullptr));
    QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("run  false")));
}

void TrackerTest::wholeGesture()
{
    for (int gesture = 0; gesture < 2; ++gesture) {
        open();
        m_bench->pointTo(*m_tracker->ring(), -80, 0);
        m_bench->release(QPoint(120, 200));
        look(QPoint(120, 200));
        m_bench->host.log.clear();
        QVERIFY(m_tracker->IsEager(m_hit.get()));
        QVERIFY(m_tracker->DoAction(m_hit.get()));
        QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("run open false")));
        QVERIFY(!m_tracker->IsEager(m_hit.get()));
        look(QPoint(120, 200));
        QVERIFY(!m_tracker->IsEager(m_hit.get()));
    }
}

void TrackerTest::newPressMovesThePressPoint()
{
    press(QPoint(100, 100));
    press(QPoint(300, 300));
    QCOMPARE(m_tracker->pressPoint, QPoint(300, 300));
    drag(QPoint(310, 300));
    QVERIFY(m_tracker->donut.isNull());
    drag(QPoint(330, 300));
    QCOMPARE(m_tracker->ring()->origin, QPoint(300, 300));
}

void TrackerTest::trackingStaysAfterAReleaseWithoutDrag()
{
    press(QPoint(100, 100));
    look(QPoint(100, 100)); // let go
    QVERIFY(m_tracker->tracking);
    m_hit->motion = true;
    m_hit->position = QPoint(200, 200);
    update(); // a move without the button
    QVERIFY(m_tracker->donut.isNull());
    QVERIFY(m_tracker->tracking);
    press(QPoint(150, 150));
    QCOMPARE(m_tracker->pressPoint, QPoint(150, 150));
}

void TrackerTest::withoutServices()
{
    m_tracker->pendingCommand = CHxString("line");
    m_bench->host.setPresent(false);
    QVERIFY(m_tracker->DoAction(nullptr));
    QVERIFY(!m_tracker->IsEager(nullptr));
    press(QPoint(100, 100));
    drag(QPoint(150, 100));
    QVERIFY(m_tracker->donut);
    QVERIFY(m_tracker->donut->parentWidget() == nullptr);
    QVERIFY(!m_tracker->ring()->armed); // no view to open it in
    delete m_tracker->donut;
    m_bench->host.setPresent(true);
}

void TrackerTest::withoutActiveView_data()
{
    QTest::addColumn<bool>("document");
    QTest::newRow("no active document") << false;
    QTest::newRow("active document without view") << true;
}

void TrackerTest::withoutActiveView()
{
    QFETCH(bool, document);
    tests::FakeDocument *blind = m_bench->openDocument();
    delete blind->view;
    m_bench->host.documents.active = document ? blind : nullptr;
    press(QPoint(100, 100));
    drag(QPoint(150, 100));
    QVERIFY(!m_tracker->ring()->armed);
    QCOMPARE(m_bench->host.mode, qint16(0));
    // The same drag opens it once there is a view.
    m_bench->host.documents.active = m_bench->document;
    drag(QPoint(151, 100));
    QVERIFY(m_tracker->ring()->armed);
}

void TrackerTest::withoutDocument()
{
    m_hit->document = nullptr;
    press(QPoint(100, 100));
    drag(QPoint(150, 100));
    QVERIFY(!m_tracker->ring()->armed);
    look(QPoint(150, 100));
    QVERIFY(!m_tracker->ring()->isVisible());
    QCOMPARE(m_bench->host.mode, qint16(0));
}

void TrackerTest::withoutHitTest()
{
    m_tracker->Update(nullptr, nullptr);
    QVERIFY(!m_tracker->tracking);
}

QTEST_MAIN(TrackerTest)
#include "tst_tracker.moc"
