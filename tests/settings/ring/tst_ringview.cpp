// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The ring as a person uses it: by mouse, by keys, and by a screen reader.

#include "settings/ring/RingView.h"

#include "settings/ring/CommandDrag.h"
#include "settings/ring/RingArt.h"
#include "tests/support/FatalWarnings.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>
#include <QVBoxLayout>

using settings::CommandDrag;
using settings::RingView;
using settings::ShownCommand;
namespace ringart = settings::ringart;

namespace {

QVector<ShownCommand> eight()
{
    QVector<ShownCommand> commands;
    for (int i = 0; i < 8; ++i)
        commands.append({QStringLiteral("ID_%1").arg(i), QStringLiteral("Command %1").arg(i), {}});
    commands[3] = {};
    return commands;
}

// A page with a ring and something that a drag can begin in, as the window has it.
struct Page : QWidget
{
    Page()
    {
        list->setText(QStringLiteral("list"));
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(ring, 1);
        layout->addWidget(list);
        resize(500, 600);
        ring->setCommands(eight());
        drag = new CommandDrag(ring, this);
        connect(ring, &RingView::dragBegun, this, [this](int direction, QWidget *source) {
            drag->begin(ring->commands().at(direction), direction, source);
        });
        show();
    }

    [[nodiscard]] QWidget *sector(const char *name) const
    {
        return ring->findChild<QWidget *>(QLatin1String("sector_") + QLatin1String(name));
    }
    // The middle of a direction's label, in pixels of the page.
    [[nodiscard]] QPoint middle(int direction) const
    {
        const QRect square = ring->square();
        const QPointF point =
            ringart::labelBox(square.width(), static_cast<int>(ring->commands().size()), direction)
                .center();
        return ring->mapTo(this, square.topLeft() + point.toPoint());
    }
    void move(const QPoint &to) { QTest::mouseMove(windowHandle(), to); }
    void press(const QPoint &at)
    {
        QTest::mousePress(windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    }
    void release(const QPoint &at)
    {
        QTest::mouseRelease(windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    }
    // Drags with the mouse without letting go.
    void dragTo(const QPoint &from, const QPoint &to)
    {
        press(from);
        move(from + QPoint(30, 0));
        move((from + to) / 2);
        move(to);
    }

    RingView *ring = new RingView(this);
    QLabel *list = new QLabel(this);
    CommandDrag *drag = nullptr;
};

} // namespace

class RingViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void arrowKeysGoTheShorterWay_data()
    {
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<int>("direction");
        QTest::newRow("one step to the right") << QVector<int>{Qt::Key_Right} << 7;
        QTest::newRow("two steps") << QVector<int>{Qt::Key_Right, Qt::Key_Right} << 6;
        QTest::newRow("no further") << QVector<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Right} << 6;
        QTest::newRow("left") << QVector<int>{Qt::Key_Left} << 1;
        QTest::newRow("down by the right") << QVector<int>{Qt::Key_Down} << 7;
        QTest::newRow("round") << QVector<int>{Qt::Key_PageUp, Qt::Key_PageUp} << 2;
        QTest::newRow("round, clockwise") << QVector<int>{Qt::Key_PageDown} << 7;
    }
    void arrowKeysGoTheShorterWay()
    {
        QFETCH(QVector<int>, keys);
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page));
        page.sector("up")->setFocus();
        for (const int key : keys)
            QTest::keyClick(page.windowHandle(), static_cast<Qt::Key>(key));
        QTEST(page.ring->currentDirection(), "direction");
        QVERIFY(page.focusWidget()->hasFocus());
    }

    void tabReachesTheRingOnce()
    {
        Page page;
        int stops = 0;
        const auto sectors = page.ring->findChildren<QWidget *>();
        for (const QWidget *sector : sectors)
            stops += (sector->focusPolicy() & Qt::TabFocus) == Qt::TabFocus ? 1 : 0;
        QCOMPARE(stops, 1);
    }

    void keysActivateEmptyAndExchange()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QSignalSpy activated(page.ring, &RingView::activated);
        QSignalSpy emptied(page.ring, &RingView::emptied);
        QSignalSpy exchanged(page.ring, &RingView::exchanged);
        page.sector("right")->setFocus();
        const auto press = [&](Qt::Key key) { QTest::keyClick(page.windowHandle(), key); };
        press(Qt::Key_Return);
        QCOMPARE(activated, (QList<QVariantList>{{6}}));
        press(Qt::Key_Delete);
        QCOMPARE(emptied, (QList<QVariantList>{{6}}));
        press(Qt::Key_Space);
        press(Qt::Key_Up);
        press(Qt::Key_Space);
        QCOMPARE(exchanged, (QList<QVariantList>{{6, 7}}));
        press(Qt::Key_Space);
        press(Qt::Key_Escape);
        press(Qt::Key_Up);
        press(Qt::Key_Space); // picks this one up
        press(Qt::Key_Space); // and puts it back
        QCOMPARE(exchanged.count(), 1);
        QCOMPARE(activated.count(), 1);
    }

    void nothingCannotBePickedUp()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QSignalSpy exchanged(page.ring, &RingView::exchanged);
        page.sector("down-left")->setFocus();
        QTest::keyClick(page.windowHandle(), Qt::Key_Space);
        QTest::keyClick(page.windowHandle(), Qt::Key_Down);
        QTest::keyClick(page.windowHandle(), Qt::Key_Space);
        QCOMPARE(exchanged.count(), 0);
    }

    void aClickActivates()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy activated(page.ring, &RingView::activated);
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, Qt::NoModifier, page.middle(5));
        QCOMPARE(activated, (QList<QVariantList>{{5}}));
        // In the middle and in the corner there is no direction.
        const QRect square = page.ring->square().translated(page.ring->pos());
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, Qt::NoModifier, square.center());
        QTest::mouseClick(page.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          square.topLeft() + QPoint(3, 3));
        QCOMPARE(activated.count(), 1);
    }

    void aSectorDraggedToAnotherIsExchanged()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy exchanged(page.drag, &CommandDrag::exchanged);
        QSignalSpy activated(page.ring, &RingView::activated);
        page.dragTo(page.middle(6), page.middle(2));
        QVERIFY(page.drag->isUnderWay());
        QCOMPARE(page.ring->target(), 2);
        page.release(page.middle(2));
        QCOMPARE(exchanged, (QList<QVariantList>{{6, 2}}));
        QVERIFY(!page.drag->isUnderWay());
        QCOMPARE(page.ring->target(), -1);
        QCOMPARE(activated.count(), 0);
    }

    void whereASectorIsDropped_data()
    {
        QTest::addColumn<int>(
            "place"); // 0 its own, 1 the middle, 2 beside the ring, 3 beside the window
        QTest::addColumn<bool>("isTakenOff");
        QTest::newRow("its own sector") << 0 << false;
        QTest::newRow("the middle") << 1 << false;
        QTest::newRow("beside the ring") << 2 << true;
        QTest::newRow("beside the window") << 3 << true;
    }
    void whereASectorIsDropped()
    {
        QFETCH(int, place);
        QFETCH(bool, isTakenOff);
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy exchanged(page.drag, &CommandDrag::exchanged);
        QSignalSpy takenOff(page.drag, &CommandDrag::takenOff);
        const QRect square = page.ring->square().translated(page.ring->pos());
        const QPoint places[] = {page.middle(6), square.center(), square.topLeft() + QPoint(3, 3),
                                 QPoint(-200, 300)};
        page.dragTo(page.middle(6), places[place]);
        page.release(places[place]);
        QCOMPARE(exchanged.count(), 0);
        QCOMPARE(takenOff.count(), isTakenOff ? 1 : 0);
    }

    void escapeGivesADragUp()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QSignalSpy exchanged(page.drag, &CommandDrag::exchanged);
        page.dragTo(page.middle(6), page.middle(2));
        QTest::keyClick(page.windowHandle(), Qt::Key_Escape);
        QVERIFY(!page.drag->isUnderWay());
        page.release(page.middle(2));
        QCOMPARE(exchanged.count(), 0);
    }

    void anEmptyDirectionCannotBeDragged()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        page.dragTo(page.middle(3), page.middle(2));
        QVERIFY(!page.drag->isUnderWay());
        page.release(page.middle(2));
    }

    void aCommandOfTheListIsDroppedOnADirection()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy bound(page.drag, &CommandDrag::bound);
        QSignalSpy takenOff(page.drag, &CommandDrag::takenOff);
        const QPoint list = page.list->geometry().center();
        const auto begin = [&] {
            page.press(list);
            page.drag->begin({QStringLiteral("NEW"), QStringLiteral("New"), {}}, -1, page.list);
        };
        begin();
        page.move(page.middle(3));
        QCOMPARE(page.ring->target(), 3);
        page.release(page.middle(3));
        QCOMPARE(bound, (QList<QVariantList>{{QStringLiteral("NEW"), 3}}));
        begin();
        page.move(list + QPoint(50, 0));
        page.release(list + QPoint(50, 0));
        QCOMPARE(bound.count(), 1);
        QCOMPARE(takenOff.count(), 0);
    }

    void aRingThatChangesUnderADragEndsIt()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QSignalSpy exchanged(page.drag, &CommandDrag::exchanged);
        page.dragTo(page.middle(6), page.middle(2));
        page.ring->setCommands(eight().mid(0, 4)); // its button is gone
        page.move(page.middle(1));
        page.release(page.middle(1));
        QCOMPARE(exchanged.count(), 0);
        QVERIFY(!page.drag->isUnderWay());
        QVERIFY(!QApplication::overrideCursor());
    }

    void screenReadersReadEachDirection()
    {
        Page page;
        const auto nameOf = [&](const char *sector) {
            return QAccessible::queryAccessibleInterface(page.sector(sector))->text(QAccessible::Name);
        };
        QCOMPARE(nameOf("right"), QStringLiteral("right: Command 6"));
        QCOMPARE(nameOf("down-left"), QStringLiteral("down left: nothing"));
        const QAccessibleInterface *up = QAccessible::queryAccessibleInterface(page.sector("up"));
        QCOMPARE(up->role(), QAccessible::Button);
        QVERIFY(!up->text(QAccessible::Description).isEmpty());
        QVERIFY(up->state().focusable);
    }

    void aTakenAwayWindowDoesNotKeepTheCursor()
    {
        {
            Page page;
            QVERIFY(QTest::qWaitForWindowExposed(&page));
            page.dragTo(page.middle(6), page.middle(2));
            QVERIFY(QApplication::overrideCursor());
        }
        QVERIFY(!QApplication::overrideCursor());
    }
};

QTEST_MAIN(RingViewTest)
#include "tst_ringview.moc"
