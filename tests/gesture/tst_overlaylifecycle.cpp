// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "bindings/MgDonutDataContainer.h"
#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/gesture/GestureBench.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

using tests::CountingDonut;
using tests::GestureBench;

namespace {

// The state of a ring: its flags as one text.
QString stateOf(const MgDonutDialogPVStyleImpl &donut)
{
    QStringList flags;
    if (donut.armed)
        flags += QStringLiteral("armed");
    if (donut.gesturing)
        flags += QStringLiteral("gesturing");
    if (donut.fading)
        flags += QStringLiteral("fading");
    if (donut.justStopped)
        flags += QStringLiteral("stopped");
    if (donut.isVisible())
        flags += QStringLiteral("shown");
    if (QWidget::mouseGrabber() == &donut)
        flags += QStringLiteral("mouse");
    if (QWidget::keyboardGrabber() == &donut)
        flags += QStringLiteral("keyboard");
    return flags.join(QLatin1Char(' '));
}

// Records the state of a ring at each of its events of one type.
class WatchedEvents : public QObject
{
public:
    WatchedEvents(MgDonutDialogPVStyleImpl *donut, QEvent::Type type)
        : m_donut(donut)
        , m_type(type)
    {
        donut->installEventFilter(this);
    }

    QStringList states;
    int grabbers = 0; // mouse and keyboard grabs that Qt held for any widget, over all events

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type) {
            states += stateOf(*m_donut);
            grabbers += (QWidget::mouseGrabber() ? 1 : 0) + (QWidget::keyboardGrabber() ? 1 : 0);
        }
        return false;
    }

private:
    MgDonutDialogPVStyleImpl *m_donut;
    QEvent::Type m_type;
};

const QString kIdle;
const QString kArmed = QStringLiteral("armed");
const QString kGesturing = QStringLiteral("gesturing shown mouse keyboard");
const QString kStopped = QStringLiteral("stopped");

} // namespace

class OverlayLifecycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void startsIdle();
    void windUpTakesCursorAndMode();
    void windUpOfNothingIsIgnored();
    void secondWindUpKeepsTheFirst();
    void windUpIsIgnoredWhileGesturing();
    void startIsIgnoredWhenNotArmed();
    void startIsIgnoredWhileGesturing();
    void startFillsSectors_data();
    void startFillsSectors();
    void startChoosesFromWhereThePointerIs();
    void startForgetsTheLastGesture();
    void theNativeWindowBelongsToTheViewsWindow();
    void aViewWithoutAWindowLeavesTheNativeOne();
    void otherWindowsMayUseOpenGl_data();
    void otherWindowsMayUseOpenGl();
    void otherPlatformsPaintInTheirTime();
    void theProgramsWidgetsGetNoWindowsOfTheirOwn();
    void startFarOutFadesBeforeShowing();
    void releaseAfterAFarStartAccepts();
    void armedIsLeftByStartingOnly();

    void smallMovesChangeNothing_data();
    void smallMovesChangeNothing();
    void longerMovesChooseASector();
    void moveIgnoresTheEventsOwnPosition();
    void fadesBeyond69Pixels_data();
    void fadesBeyond69Pixels();
    void farMoveAccepts();
    void releaseCancels();
    void releasePostsAMoveToTheView();
    void moveIsMeasuredInTheActiveView();
    void pressesAreSwallowed();
    void keysAreSwallowed();
    void shortcutsOfTheHostAreHeldBack();
    void otherFilteredEventsPass();

    void isNotGesturingBeforeItIsShown();
    void hidesAfterItLetGo();
    void justStoppedIsReportedOnce();
    void fadingBlocksForAQuarterOfASecond();
    void stoppingGivesEverythingBack();
    void stoppingTwiceTouchesTheHostOnce();
    void lateEventsChangeNothing();
    void anotherGestureFollows();

    void hidingCancels();
    void closingCancels();
    void modalWindowCancels();
    void aDisabledMainWindowCancels();
    void aDisabledMainWindowOfBeforeLeavesTheRing();
    void destroyedWhileGesturing();
    void destroyedWhileArmed();
    void destroyingClearsTheHostsText();
    void destroyedWithItsMainWindow();

    void withoutActiveDocument();
    void withoutActiveView();
    void viewDestroyedWhileArmed();
    void viewDestroyedWhileGesturing();
    void withoutServices();
    void withoutApplication();
    void withoutTextOutput();

private:
    std::unique_ptr<GestureBench> m_bench;
};

void OverlayLifecycleTest::init()
{
    tests::resetWarnings();
    m_bench = std::make_unique<GestureBench>();
}

void OverlayLifecycleTest::cleanup()
{
    m_bench.reset();
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(QWidget::keyboardGrabber(), nullptr);
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void OverlayLifecycleTest::startsIdle()
{
    const CountingDonut donut;
    QCOMPARE(stateOf(donut), kIdle);
    QVERIFY(!donut.accepted);
    QVERIFY(donut.document == nullptr);
    QCOMPARE(donut.origin, QPoint(0, 0));
    QCOMPARE(donut.windUpPos, QPoint(0, 0));
    QCOMPARE(donut.getSize(), QSize(250, 250));
    QCOMPARE(donut.sizeHint(), QSize(250, 250));
    QCOMPARE(donut.getActiveArc(), qint16(-1));
    QCOMPARE(static_cast<int>(donut.windowFlags()), 0x80B);
    QVERIFY(donut.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

void OverlayLifecycleTest::windUpTakesCursorAndMode()
{
    CountingDonut donut;
    m_bench->host.mode = 7;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->pointTo(QPoint(30, 40));
    donut.WindUp(m_bench->document);

    QCOMPARE(stateOf(donut), kArmed);
    QVERIFY(donut.document == m_bench->document);
    QCOMPARE(donut.windUpPos, m_bench->view->mapToGlobal(QPoint(30, 40)));
    QCOMPARE(donut.savedHostMode, qint16(7));
    QCOMPARE(m_bench->host.mode, qint16(1));
    QCOMPARE(donut.savedCursor.shape(), Qt::CrossCursor);
    QCOMPARE(m_bench->view->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("mode 1")));
}

void OverlayLifecycleTest::windUpOfNothingIsIgnored()
{
    CountingDonut donut;
    donut.WindUp(nullptr);
    QCOMPARE(stateOf(donut), kIdle);
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

void OverlayLifecycleTest::secondWindUpKeepsTheFirst()
{
    CountingDonut donut;
    tests::FakeDocument *other = m_bench->openDocument();
    other->view->setCursor(Qt::WaitCursor);
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->host.mode = 7;
    m_bench->pointTo(QPoint(30, 40));
    donut.WindUp(m_bench->document);
    m_bench->pointTo(QPoint(50, 60));
    donut.WindUp(other);

    QCOMPARE(stateOf(donut), kArmed);
    QVERIFY(donut.document == m_bench->document);
    QCOMPARE(donut.savedHostMode, qint16(7));
    QCOMPARE(donut.savedCursor.shape(), Qt::CrossCursor);
    QCOMPARE(donut.windUpPos, m_bench->view->mapToGlobal(QPoint(30, 40)));
    QCOMPARE(other->view->cursor().shape(), Qt::WaitCursor);
    QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("mode 1")));
}

void OverlayLifecycleTest::windUpIsIgnoredWhileGesturing()
{
    CountingDonut donut;
    tests::FakeDocument *other = m_bench->openDocument();
    m_bench->start(donut);
    donut.WindUp(other);
    QCOMPARE(stateOf(donut), kGesturing);
    QVERIFY(donut.document == m_bench->document);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::startIsIgnoredWhenNotArmed()
{
    CountingDonut donut;
    donut.TryStart(QPoint(1, 2));
    QCOMPARE(stateOf(donut), kIdle);
    QCOMPARE(m_bench->host.log.calls, QStringList());

    m_bench->start(donut);
    m_bench->release(donut.origin);
    QCOMPARE(stateOf(donut), kStopped);
    donut.TryStart(QPoint(1, 2));
    QCOMPARE(stateOf(donut), kStopped);
}

void OverlayLifecycleTest::startIsIgnoredWhileGesturing()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->pointTo(donut, -30, 0);
    m_bench->host.log.clear();
    donut.armed = true; // even then
    donut.TryStart(QPoint(1, 2));
    donut.armed = false;
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(m_bench->host.log.calls, QStringList());
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::startFillsSectors_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<double>("keepSpan");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("four") << 4 << 130.0
                          << QStringList{QStringLiteral("ZOOM_BOUNDS"), QStringLiteral("OPEN"),
                                         QStringLiteral("SAVE"), QStringLiteral("LINE")};
    QTest::newRow("eight") << 8 << 65.0
                           << QStringList{QStringLiteral("ZOOM_BOUNDS"), QStringLiteral("OFFSET"),
                                          QStringLiteral("OPEN"),        QStringLiteral("COPY"),
                                          QStringLiteral("SAVE"),        QStringLiteral("DTEXT"),
                                          QStringLiteral("LINE"),        QStringLiteral("TRIM")};
}

void OverlayLifecycleTest::startFillsSectors()
{
    QFETCH(int, sectors);
    QFETCH(double, keepSpan);
    QFETCH(QStringList, names);
    m_bench->setScheme(sectors);
    CountingDonut donut;
    m_bench->start(donut);

    QCOMPARE(stateOf(donut), kGesturing);
    QCOMPARE(static_cast<int>(donut.arcCount), sectors);
    QCOMPARE(donut.keepSpan, keepSpan);
    QStringList shown;
    QStringList tips;
    for (const auto &[kind, value] : donut.sectorVisuals) {
        QCOMPARE(kind, 1);
        shown += value.toString();
    }
    for (const QString &tip : donut.sectorTooltips)
        tips += tip;
    QCOMPARE(shown, names);
    QCOMPARE(tips,
             names.replaceInStrings(QRegularExpression(QStringLiteral("^")), QStringLiteral("Tip of ")));
    QCOMPARE(donut.size(), QSize(250, 250));
    QCOMPARE(donut.geometry().center(), m_bench->view->mapToGlobal(donut.origin) - QPoint(1, 1));
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::startChoosesFromWhereThePointerIs()
{
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    m_bench->pointTo(donut, -13, 2); // nearer than a move has to be
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint(0, 0));
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(donut.distance, std::sqrt(13.0 * 13.0 + 2.0 * 2.0));
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::startForgetsTheLastGesture()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->pointTo(donut, 30, 0);
    QCOMPARE(donut.getActiveArc(), qint16(3));
    m_bench->release(donut.origin);
    // The choice stays until somebody has read it ...
    QCOMPARE(donut.getActiveArc(), qint16(3));
    QVERIFY(donut.JustStopped());
    // ... but the next gesture starts without it.
    donut.origin = QPoint(200, 200);
    m_bench->pointTo(donut, 10, 12);
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QCOMPARE(donut.getActiveArc(), qint16(0));
    QCOMPARE(donut.sectorVisuals.size(), std::size_t(4));
    QCOMPARE(donut.sectorTooltips.size(), std::size_t(4));
    donut.StopGesturing(false);
}

// Its parent is another main window, which may be minimised or blocked by a dialog.
void OverlayLifecycleTest::theNativeWindowBelongsToTheViewsWindow()
{
    QWidget first;
    first.setGeometry(150, 150, 400, 400);
    first.show();
    QVERIFY(QTest::qWaitForWindowExposed(&first));
    CountingDonut donut(&first);
    QDialog dialog(&first);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.show();
    m_bench->start(donut);
    QCOMPARE(stateOf(donut), kGesturing);
    QCOMPARE(donut.windowHandle()->transientParent(), m_bench->view->windowHandle());
    QCOMPARE(donut.parentWidget(), &first);
    donut.StopGesturing(false);
    dialog.close();
    first.hide();
    QVERIFY(donut.JustStopped());
    m_bench->start(donut);
    QCOMPARE(stateOf(donut), kGesturing);
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::aViewWithoutAWindowLeavesTheNativeOne()
{
    CountingDonut donut;
    m_bench->start(donut);
    donut.StopGesturing(false);
    QVERIFY(donut.JustStopped());
    tests::FakeDocument *other = m_bench->openDocument(); // whose view is not shown
    other->view->setGeometry(m_bench->view->geometry());
    QVERIFY(!other->view->windowHandle());
    m_bench->host.documents.active = other;
    m_bench->start(donut);
    QCOMPARE(stateOf(donut), kGesturing);
    QCOMPARE(donut.windowHandle()->transientParent(), m_bench->view->windowHandle());
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::otherWindowsMayUseOpenGl_data()
{
    QTest::addColumn<bool>("isForced");
    QTest::newRow("no choice") << false;
    QTest::newRow("the program paints without") << true;
}

void OverlayLifecycleTest::otherWindowsMayUseOpenGl()
{
    QFETCH(bool, isForced);
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, isForced);
    const CountingDonut donut;
    const bool isForcedNow = QCoreApplication::testAttribute(Qt::AA_ForceRasterWidgets);
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, false);
    QCOMPARE(isForcedNow, isForced);
}

// Only the X server is known to map a window at once.
void OverlayLifecycleTest::otherPlatformsPaintInTheirTime()
{
    QVERIFY(QGuiApplication::platformName() != QLatin1String("xcb"));
    CountingDonut donut;
    m_bench->start(donut);
    QVERIFY(!donut.testAttribute(Qt::WA_Mapped));
    QTRY_VERIFY(donut.testAttribute(Qt::WA_Mapped));
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::theProgramsWidgetsGetNoWindowsOfTheirOwn()
{
    QWidget program;
    const QWidget child(&program);
    program.show();
    CountingDonut donut(&program);
    m_bench->start(donut);
    QVERIFY(donut.isVisible());
    QVERIFY(!child.testAttribute(Qt::WA_NativeWindow));
    QVERIFY(!child.internalWinId());
}

void OverlayLifecycleTest::startFarOutFadesBeforeShowing()
{
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    m_bench->press(donut.origin);
    m_bench->pointTo(donut, 0, -70);
    donut.WindUp(m_bench->document);
    QElapsedTimer timer;
    timer.start();
    donut.TryStart(QPoint());
    QVERIFY(timer.elapsed() >= 250);
    QCOMPARE(stateOf(donut), QStringLiteral("gesturing fading shown mouse keyboard"));
    QCOMPARE(donut.getActiveArc(), qint16(2));

    m_bench->pointTo(donut, 0, -20);
    QCOMPARE(stateOf(donut), QStringLiteral("gesturing fading shown mouse keyboard"));
    m_bench->pointTo(donut, 0, -21);
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(donut.accepted);
    QCOMPARE(donut.getActiveArc(), qint16(2));
}

void OverlayLifecycleTest::releaseAfterAFarStartAccepts()
{
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    m_bench->press(donut.origin);
    m_bench->pointTo(donut, 90, 0);
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    m_bench->view->moves.clear();
    m_bench->release(donut.origin + QPoint(90, 0));
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(donut.accepted);
    QCoreApplication::processEvents();
    QCOMPARE(m_bench->view->moves.size(), std::size_t(0));
}

void OverlayLifecycleTest::armedIsLeftByStartingOnly()
{
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    donut.WindUp(m_bench->document);
    donut.show();
    const QPoint here = donut.rect().center();
    QTest::mouseMove(donut.windowHandle(), here + QPoint(40, 0));
    QTest::mousePress(donut.windowHandle(), Qt::LeftButton, {}, here);
    QTest::mouseRelease(donut.windowHandle(), Qt::LeftButton, {}, here);
    QTest::keyClick(donut.windowHandle(), Qt::Key_Escape);
    m_bench->pointTo(donut, 100, 0);
    donut.hide();
    QCOMPARE(stateOf(donut), kArmed);
    QCOMPARE(m_bench->host.mode, qint16(1));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::ArrowCursor);
    donut.StopGesturing(false);
    QCOMPARE(m_bench->host.mode, qint16(0));
}

void OverlayLifecycleTest::smallMovesChangeNothing_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("20 left") << QPoint(-20, 0);
    QTest::newRow("20 down") << QPoint(0, -20);
    QTest::newRow("20 across and down") << QPoint(-10, -10);
    QTest::newRow("centre") << QPoint(0, 0);
}

void OverlayLifecycleTest::smallMovesChangeNothing()
{
    QFETCH(QPoint, offset);
    CountingDonut donut;
    m_bench->start(donut);
    QTRY_VERIFY(donut.paints > 0);
    QCoreApplication::processEvents();
    const int paints = donut.paints;
    m_bench->pointTo(donut, offset.x(), offset.y());
    QCoreApplication::processEvents();
    QCOMPARE(donut.getActiveArc(), qint16(0));
    QCOMPARE(donut.distance, 0.0);
    QCOMPARE(donut.paints, paints);
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::longerMovesChooseASector()
{
    CountingDonut donut;
    m_bench->start(donut);
    QTRY_VERIFY(donut.paints > 0);
    QCoreApplication::processEvents();
    const int paints = donut.paints;
    m_bench->pointTo(donut, -20, -1);
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(donut.distance, std::sqrt(401.0));
    QTRY_VERIFY(donut.paints > paints);
    m_bench->pointTo(donut, 0, -21);
    QCOMPARE(donut.getActiveArc(), qint16(2));
    m_bench->pointTo(donut, 21, 0);
    QCOMPARE(donut.getActiveArc(), qint16(3));
    QCOMPARE(donut.fadingPaints, 0);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::moveIgnoresTheEventsOwnPosition()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->pointTo(donut, -30, 0);
    // The event is on the right, the pointer on the left.
    QTest::mouseMove(donut.windowHandle(), QPoint(125 + 40, 125));
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(donut.distance, 30.0);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::fadesBeyond69Pixels_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("fades");
    QTest::newRow("69") << 69.0 << 0.0 << false;
    QTest::newRow("69 up") << 0.0 << 69.0 << false;
    QTest::newRow("69.01") << 69.01 << 0.0 << true;
    QTest::newRow("the next double") << std::nextafter(69.0, 70.0) << 0.0 << true;
    QTest::newRow("97 across and down, 68.6 straight") << -48.0 << -49.0 << false;
    QTest::newRow("70 across, down and straight") << -42.0 << -56.0 << true;
}

void OverlayLifecycleTest::fadesBeyond69Pixels()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, fades);
    CountingDonut donut;
    m_bench->start(donut);
    donut.mousePositionChanged(x, y);
    QCOMPARE(donut.distance, std::sqrt(x * x + y * y));
    QCOMPARE(donut.fading, fades);
    QCOMPARE(donut.gesturing, true);
    QCOMPARE(donut.justStopped, false);
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::farMoveAccepts()
{
    CountingDonut donut;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->host.mode = 3;
    m_bench->start(donut);
    m_bench->pointTo(donut, 69, 0);
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->view->moves.clear();
    m_bench->pointTo(donut, 69, 2);
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(donut.accepted);
    QCOMPARE(donut.getActiveArc(), qint16(3));
    QCOMPARE(m_bench->host.mode, qint16(3));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
    QCoreApplication::processEvents();
    QCOMPARE(m_bench->view->moves.size(), std::size_t(0));
}

void OverlayLifecycleTest::releaseCancels()
{
    CountingDonut donut;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->host.mode = 3;
    m_bench->start(donut);
    m_bench->pointTo(donut, -60, 0);
    QCOMPARE(donut.getActiveArc(), qint16(1));
    m_bench->release(donut.origin + QPoint(-60, 0));
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(donut.fadingPaints, 0);
    QCOMPARE(m_bench->view->releases, 0);
    QCOMPARE(m_bench->host.mode, qint16(3));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
}

void OverlayLifecycleTest::releasePostsAMoveToTheView()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->view->moves.clear();

    const QPoint global = m_bench->view->mapToGlobal(QPoint(190, 170));
    QMouseEvent release(QEvent::MouseButtonRelease, donut.mapFromGlobal(global), global, Qt::RightButton,
                        Qt::MiddleButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCoreApplication::sendEvent(&donut, &release);
    QCOMPARE(stateOf(donut), kStopped);
    // It was posted, not sent.
    QCOMPARE(m_bench->view->moves.size(), std::size_t(0));
    QCoreApplication::sendPostedEvents(m_bench->view, QEvent::MouseMove);
    QCOMPARE(m_bench->view->moves.size(), std::size_t(1));
    const tests::NotingView::Move move = m_bench->view->moves.front();
    QCOMPARE(move.position, QPoint(190, 170));
    QCOMPARE(move.global, global);
    QCOMPARE(move.button, Qt::NoButton);
    QCOMPARE(move.buttons, Qt::MouseButtons(Qt::MiddleButton));
    QCOMPARE(move.modifiers, Qt::ControlModifier | Qt::ShiftModifier);
}

void OverlayLifecycleTest::moveIsMeasuredInTheActiveView()
{
    // The document given to WindUp() has another view, far away.
    tests::FakeDocument *active = m_bench->openDocument();
    QVERIFY(active->view->pos() != m_bench->view->pos());
    m_bench->host.documents.active = active;
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    const auto pointTo = [&](const QPoint &offset) {
        QCursor::setPos(active->view->mapToGlobal(donut.origin + offset));
        QCoreApplication::processEvents();
    };
    pointTo(QPoint(0, 30));
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QCOMPARE(donut.getActiveArc(), qint16(2));
    QCOMPARE(donut.distance, 30.0);

    pointTo(QPoint(-40, 0));
    QMouseEvent move(QEvent::MouseMove, QPoint(1, 1), donut.mapToGlobal(QPoint(1, 1)), Qt::NoButton,
                     Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&donut, &move);
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QCOMPARE(donut.distance, 40.0);
    QVERIFY(donut.gesturing);
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::pressesAreSwallowed()
{
    CountingDonut donut;
    m_bench->start(donut);
    QTest::mousePress(m_bench->view->windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(stateOf(donut), kGesturing);
    QCOMPARE(m_bench->view->presses, 1); // the press that began the gesture
    QTest::mouseRelease(m_bench->view->windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(stateOf(donut), kStopped);

    // QWidget's own handler would ignore the press.
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), donut.mapToGlobal(QPoint(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&donut, &press);
    QVERIFY(press.isAccepted());
}

void OverlayLifecycleTest::keysAreSwallowed()
{
    CountingDonut donut;
    m_bench->start(donut);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_A, Qt::Key_Tab, Qt::Key_F4}) {
        QTest::keyClick(donut.windowHandle(), key);
        QCOMPARE(stateOf(donut), kGesturing);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&donut, &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::shortcutsOfTheHostAreHeldBack()
{
    int activations = 0;
    QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+S")), m_bench->view);
    shortcut.setContext(Qt::ApplicationShortcut);
    connect(&shortcut, &QShortcut::activated, this, [&activations] { ++activations; });
    CountingDonut donut;

    m_bench->view->activateWindow();
    QTRY_VERIFY(m_bench->view->isActiveWindow());
    QTest::keyClick(m_bench->view->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(activations, 1);

    m_bench->start(donut);
    QTest::keyClick(donut.windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(activations, 1);
    m_bench->release(donut.origin);

    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    event.ignore();
    QVERIFY(QCoreApplication::sendEvent(&donut, &event));
    QVERIFY(event.isAccepted());
}

void OverlayLifecycleTest::otherFilteredEventsPass()
{
    CountingDonut donut;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_S, Qt::NoModifier);
    QVERIFY(!donut.eventFilter(&donut, &press));
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_S, Qt::NoModifier);
    override.ignore();
    QVERIFY(!donut.eventFilter(m_bench->view, &override));
    QVERIFY(!override.isAccepted());
    QVERIFY(donut.eventFilter(&donut, &override));
    QVERIFY(override.isAccepted());
}

void OverlayLifecycleTest::isNotGesturingBeforeItIsShown()
{
    CountingDonut donut;
    WatchedEvents events(&donut, QEvent::Show);
    m_bench->start(donut);
    QCOMPARE(events.states, QStringList(QStringLiteral("armed shown")));
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::hidesAfterItLetGo()
{
    CountingDonut donut;
    m_bench->start(donut);
    WatchedEvents events(&donut, QEvent::Hide);
    // The button is not released here, because Qt would then release its mouse grab by itself.
    donut.StopGesturing(false);
    QCOMPARE(events.states, QStringList(QStringLiteral("stopped")));
    QCOMPARE(events.grabbers, 0);
    m_bench->release(donut.origin);
}

void OverlayLifecycleTest::justStoppedIsReportedOnce()
{
    CountingDonut donut;
    QVERIFY(!donut.JustStopped());
    for (int gesture = 0; gesture < 2; ++gesture) {
        m_bench->start(donut);
        QVERIFY(!donut.JustStopped());
        m_bench->release(donut.origin);
        QVERIFY(donut.JustStopped());
        QCOMPARE(stateOf(donut), kIdle);
        QVERIFY(!donut.JustStopped());
    }
}

void OverlayLifecycleTest::fadingBlocksForAQuarterOfASecond()
{
    CountingDonut donut;
    m_bench->start(donut);
    QTRY_VERIFY(donut.paints > 0);
    bool processed = false;
    QTimer::singleShot(0, &donut, [&processed] { processed = true; });
    QMetaObject::invokeMethod(
        &donut, [&processed] { processed = true; }, Qt::QueuedConnection);

    const int paints = donut.paints;
    QElapsedTimer timer;
    timer.start();
    donut.doFading();
    QVERIFY2(timer.elapsed() >= 250, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!processed);
    // It painted at once, and only the last frame.
    QCOMPARE(donut.paints, paints + 1);
    QCOMPARE(donut.fadingPaints, 1);
    QCOMPARE(stateOf(donut), QStringLiteral("gesturing fading shown mouse keyboard"));
    QTRY_VERIFY(processed);
    m_bench->release(donut.origin);
    QVERIFY(donut.accepted);
}

void OverlayLifecycleTest::stoppingGivesEverythingBack()
{
    for (const bool accepted : {false, true}) {
        CountingDonut donut;
        m_bench->view->setCursor(Qt::CrossCursor);
        m_bench->host.mode = 5;
        m_bench->start(donut);
        donut.fading = true;
        m_bench->host.log.clear();
        donut.StopGesturing(accepted);
        QCOMPARE(stateOf(donut), kStopped);
        QCOMPARE(donut.accepted, accepted);
        QCOMPARE(m_bench->host.log.calls,
                 (QStringList{QStringLiteral("mode 5"), QStringLiteral("text  false")}));
        QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
        m_bench->release(donut.origin);
    }
}

void OverlayLifecycleTest::stoppingTwiceTouchesTheHostOnce()
{
    CountingDonut donut;
    m_bench->start(donut);
    donut.StopGesturing(true);
    QVERIFY(donut.JustStopped());
    m_bench->host.mode = 9;
    m_bench->view->setCursor(Qt::WaitCursor);
    m_bench->host.log.clear();
    donut.StopGesturing(false);
    QCOMPARE(m_bench->host.log.calls, QStringList());
    QVERIFY(!donut.accepted);
    QCOMPARE(m_bench->host.mode, qint16(9));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::WaitCursor);
    QCOMPARE(stateOf(donut), kStopped);

    CountingDonut never;
    never.StopGesturing(true);
    QCOMPARE(stateOf(never), kStopped);
    QCOMPARE(m_bench->host.mode, qint16(9));
}

// Moves and the release often arrive after a quick gesture has ended.
void OverlayLifecycleTest::lateEventsChangeNothing()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->pointTo(donut, 0, 80);
    QVERIFY(donut.accepted);
    QVERIFY(donut.justStopped);

    const QPoint global = m_bench->view->mapToGlobal(donut.origin + QPoint(0, -95));
    QMouseEvent move(QEvent::MouseMove, donut.mapFromGlobal(global), global, Qt::NoButton,
                     Qt::RightButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, donut.mapFromGlobal(global), global, Qt::RightButton,
                        Qt::NoButton, Qt::NoModifier);
    // The fading would block for 250 ms each time; a busy machine delays one of the times.
    qint64 fastest = std::numeric_limits<qint64>::max();
    for (int times = 0; times < 4; ++times) {
        QCoreApplication::sendPostedEvents(m_bench->view, QEvent::MouseMove);
        m_bench->view->moves.clear();
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::sendEvent(&donut, &move);
        QCoreApplication::sendEvent(&donut, &release);
        fastest = std::min(fastest, timer.elapsed());
    }
    QVERIFY2(fastest < 250, qPrintable(QString::number(fastest)));
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(donut.accepted);
    // The view learns where the button was released, and its tracker of the end.
    QCoreApplication::sendPostedEvents(m_bench->view, QEvent::MouseMove);
    QCOMPARE(m_bench->view->moves.size(), std::size_t(1));
    QCOMPARE(m_bench->view->moves.front().position, donut.origin + QPoint(0, -95));

    // The same after the end was reported.
    QVERIFY(donut.JustStopped());
    QCoreApplication::sendEvent(&donut, &move);
    QCoreApplication::sendEvent(&donut, &release);
    QVERIFY(!donut.JustStopped());
}

void OverlayLifecycleTest::anotherGestureFollows()
{
    CountingDonut donut;
    for (int gesture = 0; gesture < 3; ++gesture) {
        m_bench->setScheme(gesture % 2 ? 4 : 8);
        m_bench->host.mode = static_cast<qint16>(gesture);
        m_bench->start(donut, QPoint(150 + gesture, 160));
        QCOMPARE(stateOf(donut), kGesturing);
        QCOMPARE(static_cast<int>(donut.arcCount), gesture % 2 ? 4 : 8);
        QCOMPARE(donut.sectorVisuals.size(), std::size_t(gesture % 2 ? 4 : 8));
        m_bench->release(donut.origin);
        QVERIFY(donut.JustStopped());
        QCOMPARE(m_bench->host.mode, static_cast<qint16>(gesture));
    }
}

void OverlayLifecycleTest::hidingCancels()
{
    CountingDonut donut;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->start(donut);
    donut.hide();
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(m_bench->host.mode, qint16(0));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
}

void OverlayLifecycleTest::closingCancels()
{
    CountingDonut donut;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->start(donut);
    donut.close();
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);

    QVERIFY(donut.JustStopped());
    m_bench->start(donut);
    QVERIFY(donut.windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint));
    donut.windowHandle()->close();
    QTRY_COMPARE(stateOf(donut), kStopped);

    QVERIFY(donut.JustStopped());
    m_bench->start(donut);
    QVERIFY(donut.windowHandle()->flags().testFlag(Qt::BypassWindowManagerHint));
    donut.reject();
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
}

void OverlayLifecycleTest::modalWindowCancels()
{
    CountingDonut donut;
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->start(donut);
    QDialog message;
    message.setModal(true);
    message.show();
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(m_bench->host.mode, qint16(0));
    message.close();
    m_bench->release(donut.origin);
}

// Qt would keep the release from the ring.
void OverlayLifecycleTest::aDisabledMainWindowCancels()
{
    QWidget main;
    CountingDonut donut(&main);
    m_bench->start(donut);
    main.setEnabled(false);
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(QWidget::keyboardGrabber(), nullptr);
    QCOMPARE(m_bench->host.mode, qint16(0));
    m_bench->release(donut.origin);
}

// The ring belongs to the main window of the first gesture. Later ones may be in another window.
void OverlayLifecycleTest::aDisabledMainWindowOfBeforeLeavesTheRing()
{
    QWidget main;
    CountingDonut donut(&main);
    main.setEnabled(false);
    m_bench->start(donut);
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->release(donut.origin);
    QCOMPARE(stateOf(donut), kStopped);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QVERIFY(donut.JustStopped());
    m_bench->start(donut);
    main.setEnabled(true); // is no end either
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->release(donut.origin);
    QCOMPARE(stateOf(donut), kStopped);
}

void OverlayLifecycleTest::destroyedWhileGesturing()
{
    auto donut = std::make_unique<CountingDonut>();
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->host.mode = 6;
    m_bench->start(*donut);
    m_bench->host.log.clear();
    donut.reset();
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(QWidget::keyboardGrabber(), nullptr);
    QCOMPARE(m_bench->host.mode, qint16(6));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(m_bench->host.log.calls,
             (QStringList{QStringLiteral("mode 6"), QStringLiteral("text  false"),
                          QStringLiteral("text  true")}));
}

void OverlayLifecycleTest::destroyedWhileArmed()
{
    auto donut = std::make_unique<CountingDonut>();
    m_bench->view->setCursor(Qt::CrossCursor);
    m_bench->host.mode = 6;
    donut->WindUp(m_bench->document);
    donut.reset();
    QCOMPARE(m_bench->host.mode, qint16(6));
    QCOMPARE(m_bench->view->cursor().shape(), Qt::CrossCursor);
}

void OverlayLifecycleTest::destroyingClearsTheHostsText()
{
    auto donut = std::make_unique<CountingDonut>();
    m_bench->host.text = QStringLiteral("a hint");
    donut.reset();
    QCOMPARE(m_bench->host.text, QString());
    QCOMPARE(m_bench->host.log.calls, QStringList(QStringLiteral("text  true")));
}

void OverlayLifecycleTest::destroyedWithItsMainWindow()
{
    // The view is destroyed before the ring.
    auto window = std::make_unique<QWidget>();
    auto *view = new tests::NotingView;
    view->setParent(window.get());
    delete m_bench->document->view;
    m_bench->document->view = view;
    m_bench->view = view;
    view->setGeometry(0, 0, 400, 400);
    window->setGeometry(150, 150, 400, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));

    QPointer<CountingDonut> donut = new CountingDonut(window.get());
    donut->origin = QPoint(200, 200);
    QCursor::setPos(view->mapToGlobal(donut->origin));
    donut->WindUp(m_bench->document);
    donut->TryStart(QPoint());
    QCOMPARE(stateOf(*donut), kGesturing);
    window.reset();
    QVERIFY(donut.isNull());
    m_bench->view = nullptr;
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(QWidget::keyboardGrabber(), nullptr);
    QCOMPARE(m_bench->host.mode, qint16(0));
}

void OverlayLifecycleTest::withoutActiveDocument()
{
    CountingDonut donut;
    donut.origin = QPoint(200, 200);
    m_bench->pointTo(donut, 0, 0);
    donut.WindUp(m_bench->document);
    m_bench->host.documents.active = nullptr;
    donut.TryStart(QPoint());
    QCOMPARE(stateOf(donut), kIdle);
    QCOMPARE(m_bench->host.mode, qint16(0));

    m_bench->host.documents.active = m_bench->document;
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QCOMPARE(stateOf(donut), kGesturing);

    m_bench->host.hasDocumentManager = false;
    m_bench->pointTo(donut, 90, 0);
    QCOMPARE(stateOf(donut), kGesturing);
    QCOMPARE(donut.getActiveArc(), qint16(0));
    donut.StopGesturing(false);
}

void OverlayLifecycleTest::withoutActiveView()
{
    CountingDonut donut;
    tests::FakeDocument *other = m_bench->openDocument();
    delete other->view;
    m_bench->host.documents.active = other;
    const QCursor cursor = m_bench->view->cursor();
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QCOMPARE(stateOf(donut), kIdle);
    QCOMPARE(m_bench->host.mode, qint16(0));
    QCOMPARE(m_bench->view->cursor().shape(), cursor.shape());

    // WindUp() accepts a document without a view.
    CountingDonut second;
    m_bench->host.documents.active = m_bench->document;
    second.WindUp(other);
    QCOMPARE(stateOf(second), kArmed);
    m_bench->start(second);
    QCOMPARE(stateOf(second), kGesturing);
    m_bench->release(second.origin);
    QCOMPARE(stateOf(second), kStopped);
}

void OverlayLifecycleTest::viewDestroyedWhileArmed()
{
    CountingDonut donut;
    donut.WindUp(m_bench->document);
    delete m_bench->view;
    m_bench->view = nullptr;
    donut.TryStart(QPoint());
    QCOMPARE(stateOf(donut), kIdle);
    QCOMPARE(m_bench->host.mode, qint16(0));
}

void OverlayLifecycleTest::viewDestroyedWhileGesturing()
{
    CountingDonut donut;
    m_bench->start(donut);
    m_bench->release(QPoint(5, 5)); // so that Qt sees the button up
    QVERIFY(donut.JustStopped());
    donut.WindUp(m_bench->document);
    donut.TryStart(QPoint());
    QCOMPARE(stateOf(donut), kGesturing);
    delete m_bench->view;
    m_bench->view = nullptr;
    QTest::mouseMove(donut.windowHandle(), QPoint(3, 3));
    QCOMPARE(stateOf(donut), kGesturing);
    QTest::mouseRelease(donut.windowHandle(), Qt::RightButton, {}, QPoint(3, 3));
    QCOMPARE(stateOf(donut), kStopped);
    QVERIFY(!donut.accepted);
    QCOMPARE(m_bench->host.mode, qint16(0));
}

void OverlayLifecycleTest::withoutServices()
{
    auto donut = std::make_unique<CountingDonut>();
    m_bench->host.setPresent(false);
    donut->WindUp(m_bench->document);
    QCOMPARE(stateOf(*donut), kArmed);
    donut->TryStart(QPoint());
    QCOMPARE(stateOf(*donut), kIdle); // no active document without services
    donut.reset();
    QCOMPARE(m_bench->host.log.calls, QStringList());
    m_bench->host.setPresent(true);
}

void OverlayLifecycleTest::withoutApplication()
{
    CountingDonut donut;
    m_bench->host.hasApplication = false;
    m_bench->start(donut);
    QCOMPARE(stateOf(donut), kGesturing);
    m_bench->release(donut.origin);
    QCOMPARE(stateOf(donut), kStopped);
    QCOMPARE(m_bench->host.log.startingWith(QStringLiteral("mode")), QStringList());
}

void OverlayLifecycleTest::withoutTextOutput()
{
    auto donut = std::make_unique<CountingDonut>();
    m_bench->host.hasTextOutput = false;
    donut.reset();
    QCOMPARE(m_bench->host.log.calls, QStringList());
}

QTEST_MAIN(OverlayLifecycleTest)
#include "tst_overlaylifecycle.moc"
