// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialog.h"
#include "tests/support/FatalWarnings.h"

#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace {

// The base class, with the least that makes it a widget.
class PlainDonut : public MgDonutDialog
{
public:
    explicit PlainDonut(int sectors = 0, Qt::WindowFlags flags = {})
        : MgDonutDialog(nullptr, flags)
    {
        setSectors(sectors);
    }

    void setSectors(int sectors)
    {
        arcCount = static_cast<quint16>(sectors);
        keepSpan = sectors == 4 ? 130.0 : 65.0;
    }
    [[nodiscard]] QSize getSize() const override { return QSize(1, 2); }
    void paint(QPaintEvent *event) override { paintedRects.push_back(event->rect()); }

    // The sector that a direction chooses while the given one is active.
    int sectorAfter(int previous, double x, double y)
    {
        activeArc = static_cast<qint16>(previous);
        setActiveArc(x, y);
        return activeArc;
    }

    std::vector<QRect> paintedRects;
};

struct Offset
{
    double x;
    double y;
};

// An offset whose angle is exactly this double, or the nearest one found. Rounding skips some
// doubles, so this tries the neighbours of the best guess at several distances.
Offset offsetAt(double angle)
{
    if (angle == 90.0)
        return {0.0, 1.0};
    if (angle == 270.0)
        return {0.0, -1.0};
    const PlainDonut donut;
    const double side = angle > 90.0 && angle < 270.0 ? -1.0 : 1.0;
    const double base = side < 0.0 ? 180.0 : angle < 90.0 ? 0.0 : 360.0;
    Offset nearest{side, 0.0};
    for (int length = 1; length < 1000; ++length) {
        const double x = side * length;
        double y = x * std::tan((angle - base) * 22.0 / 1260.0);
        for (int step = 0; step < 20; ++step)
            y = std::nextafter(y, std::numeric_limits<double>::lowest());
        for (int step = 0; step < 40; ++step) {
            const double miss = std::abs(donut.getAngle(x, y) - angle);
            if (miss < std::abs(donut.getAngle(nearest.x, nearest.y) - angle))
                nearest = {x, y};
            if (miss == 0.0)
                return nearest;
            y = std::nextafter(y, std::numeric_limits<double>::max());
        }
    }
    return nearest;
}

// The same rules in another form, to compare every offset with: tables of ranges instead of
// formulas, and lines through the centre instead of arctangents.
namespace restated {

// -1, 0 or 1 if the angle of an offset is below, at or above `degrees`. Draws a line through
// the centre in that direction, with pi as 22/7, and looks on which side the offset lies.
int sideOf(int x, int y, long double degrees)
{
    if (x == 0) {
        const long double own = y < 0 ? 270.0L : 90.0L;
        return (own > degrees) - (own < degrees);
    }
    // Angles of each half plane are counted from its axis.
    const long double axis = x < 0 ? 180.0L : y < 0 ? 360.0L : 0.0L;
    const long double turn = (degrees - axis) * 11.0L / 630.0L;
    const long double quarter = std::acos(-1.0L) / 2.0L;
    if (turn >= quarter)
        return -1;
    if (turn <= -quarter)
        return 1;
    const long double along = x < 0 ? -1.0L : 1.0L;
    const long double cross =
        along
        * (std::cos(turn) * static_cast<long double>(y) - std::sin(turn) * static_cast<long double>(x));
    // An offset can lie exactly on a line only on an axis; no other line meets a grid point.
    if (y == 0 && degrees == axis)
        return 0;
    return cross > 0.0L ? 1 : -1;
}

struct Range
{
    long double from;
    long double to;
    bool bordersBelong;
};

bool contains(const Range &range, int x, int y)
{
    const int low = sideOf(x, y, range.from);
    const int high = sideOf(x, y, range.to);
    return range.bordersBelong ? low >= 0 && high <= 0 : low > 0 && high < 0;
}

// The ranges in which each sector stays active. Includes the index past the last sector.
const std::vector<std::vector<Range>> &keepRanges(int sectors)
{
    static const std::vector<std::vector<Range>> four{
        {{25.0L, 155.0L, true}},  {{115.0L, 245.0L, true}},
        {{205.0L, 335.0L, true}}, {{0.0L, 65.0L, false}, {295.0L, 360.0L, false}},
        {{0.0L, 155.0L, false}},
    };
    static const std::vector<std::vector<Range>> eight{
        {{57.5L, 122.5L, true}},
        {{102.5L, 167.5L, true}},
        {{147.5L, 212.5L, true}},
        {{192.5L, 257.5L, true}},
        {{237.5L, 302.5L, true}},
        {{282.5L, 347.5L, true}},
        {{0.0L, 32.5L, false}, {327.5L, 360.0L, false}},
        {{0.0L, 77.5L, false}},
        {{0.0L, 122.5L, false}},
    };
    return sectors == 4 ? four : eight;
}

// Counting starts at the first border and goes counter-clockwise. One sector crosses the axis to
// the right.
const std::vector<long double> &borders(int sectors)
{
    static const std::vector<long double> four{45.0L, 135.0L, 225.0L, 315.0L};
    static const std::vector<long double> eight{67.5L,  112.5L, 157.5L, 202.5L,
                                                247.5L, 292.5L, 337.5L, 22.5L};
    return sectors == 4 ? four : eight;
}

// True if something changes at exactly this angle.
bool isBorder(int sectors, double angle)
{
    for (const long double border : borders(sectors)) {
        if (border == angle)
            return true;
    }
    for (const std::vector<Range> &ranges : keepRanges(sectors)) {
        for (const Range &range : ranges) {
            if (range.from == angle || range.to == angle)
                return true;
        }
    }
    return false;
}

int freshSector(int sectors, int x, int y)
{
    if (sectors == 4) {
        if (sideOf(x, y, 315.0L) >= 0 || sideOf(x, y, 45.0L) < 0)
            return 3;
        if (sideOf(x, y, 45.0L) == 0)
            return 4;
    } else {
        if (sideOf(x, y, 337.5L) >= 0 || sideOf(x, y, 22.5L) < 0)
            return 6;
        if (sideOf(x, y, 67.5L) < 0)
            return 7;
        if (sideOf(x, y, 67.5L) == 0)
            return 8;
    }
    int sector = 0;
    while (sideOf(x, y, borders(sectors).at(static_cast<std::size_t>(sector) + 1)) >= 0)
        ++sector;
    return sector;
}

int sectorAfter(int sectors, int previous, int x, int y)
{
    if (previous >= 0) {
        for (const Range &range : keepRanges(sectors).at(static_cast<std::size_t>(previous))) {
            if (contains(range, x, y))
                return previous;
        }
    }
    return freshSector(sectors, x, y);
}

} // namespace restated

} // namespace

class DonutGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void startsWithoutSectorAndSize();
    void windowFlagsAreReplaced_data();
    void windowFlagsAreReplaced();
    void paintEventOnlyCallsPaint();
    void pointerChoosesAndPaints();
    void commandEndedIsDeclared();

    void angle_data();
    void angle();
    void anglesOffTheAxesStayOffThem();
    void sectorFromAngle_data();
    void sectorFromAngle();
    void sectorNumberConvention_data();
    void sectorNumberConvention();
    void distancePlaysNoPart();
    void withoutSectorsNothingIsChosen();
    void bordersOfTheRangeThatIsKept();
    void everyOffset_data();
    void everyOffset();
};

void DonutGeometryTest::startsWithoutSectorAndSize()
{
    const PlainDonut donut;
    QCOMPARE(donut.getActiveArc(), qint16(-1));
    QCOMPARE(donut.donutSize, QSize(-1, -1));
    QCOMPARE(donut.sizeHint(), QSize(-1, -1));
    QVERIFY(donut.sectorVisuals.empty());
    QVERIFY(donut.sectorTooltips.empty());
    QVERIFY(donut.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!donut.isVisible());

    PlainDonut sized;
    sized.donutSize = QSize(250, 250);
    QCOMPARE(sized.sizeHint(), QSize(250, 250));
}

void DonutGeometryTest::windowFlagsAreReplaced_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("none") << 0;
    QTest::newRow("popup") << static_cast<int>(Qt::Popup);
    QTest::newRow("dialog on top") << static_cast<int>(Qt::Dialog | Qt::WindowStaysOnTopHint);
}

void DonutGeometryTest::windowFlagsAreReplaced()
{
    QFETCH(int, flags);
    const PlainDonut donut(4, Qt::WindowFlags(flags));
    QCOMPARE(static_cast<int>(donut.windowFlags()), 0x80B);
    QCOMPARE(donut.windowFlags(), Qt::Tool | Qt::FramelessWindowHint);
}

void DonutGeometryTest::paintEventOnlyCallsPaint()
{
    PlainDonut donut;
    QPaintEvent event(QRect(1, 2, 3, 4));
    QCoreApplication::sendEvent(&donut, &event);
    QCOMPARE(donut.paintedRects.size(), std::size_t(1));
    QCOMPARE(donut.paintedRects.front(), QRect(1, 2, 3, 4));
}

void DonutGeometryTest::pointerChoosesAndPaints()
{
    PlainDonut donut(4);
    donut.resize(50, 50);
    donut.show();
    QTRY_VERIFY(!donut.paintedRects.empty());
    donut.paintedRects.clear();
    donut.mousePositionChanged(-30, 1);
    QCOMPARE(donut.getActiveArc(), qint16(1));
    QTRY_VERIFY(!donut.paintedRects.empty());
}

void DonutGeometryTest::commandEndedIsDeclared()
{
    PlainDonut donut(4);
    QSignalSpy ended(&donut, &MgDonutDialog::commandEnded);
    QVERIFY(ended.isValid());
    donut.mousePositionChanged(50, 50);
    QCOMPARE(ended.count(), 0);
}

void DonutGeometryTest::angle_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("degrees");

    QTest::newRow("centre is up") << 0.0 << 0.0 << 90.0;
    QTest::newRow("up") << 0.0 << 7.0 << 90.0;
    QTest::newRow("down") << 0.0 << -5.0 << 270.0;
    QTest::newRow("right") << 9.0 << 0.0 << 0.0;
    QTest::newRow("left") << -5.0 << 0.0 << 180.0;
    QTest::newRow("up-right") << 1.0 << 1.0 << 44.981894813;
    QTest::newRow("up-left") << -1.0 << 1.0 << 135.018105187;
    QTest::newRow("down-left") << -1.0 << -1.0 << 224.981894813;
    QTest::newRow("down-right") << 5.0 << -5.0 << 315.018105187;
    QTest::newRow("steeply up, on the right") << 1e-12 << 1.0 << 89.963789625;
    QTest::newRow("steeply up, on the left") << -1e-12 << 1.0 << 90.036210375;
    QTest::newRow("steeply down, on the left") << -1e-12 << -1.0 << 269.963789625;
    QTest::newRow("steeply down, on the right") << 1e-12 << -1.0 << 270.036210375;
}

void DonutGeometryTest::angle()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, degrees);
    const double found = PlainDonut().getAngle(x, y);
    const bool onAxis = x == 0.0 || y == 0.0;
    if (onAxis)
        QVERIFY2(found == degrees, qPrintable(QString::number(found, 'g', 17)));
    else
        QVERIFY2(std::abs(found - degrees) < 1e-9, qPrintable(QString::number(found, 'g', 17)));
    if (x == 1.0 && y == 1.0)
        QVERIFY(found == std::atan(1.0) * 7.0 * 180.0 / 22.0);
}

void DonutGeometryTest::anglesOffTheAxesStayOffThem()
{
    const PlainDonut donut;
    double nearest = 1.0;
    for (int x = -2000; x <= 2000; ++x) {
        if (x == 0)
            continue;
        for (const int y : {-2000, 2000, -1999, 1999}) {
            const double angle = donut.getAngle(x, y);
            nearest = std::min({nearest, std::abs(angle - 90.0), std::abs(angle - 270.0)});
        }
    }
    QVERIFY(nearest > 0.0362);
}

void DonutGeometryTest::sectorFromAngle_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("previous");
    QTest::addColumn<double>("angle");
    QTest::addColumn<int>("expected");

    QTest::newRow("four: 135 begins the left") << 4 << -1 << 135.0 << 1;
    QTest::newRow("four: just below is up") << 4 << -1 << 134.99 << 0;
    QTest::newRow("four: the start itself is one past the last") << 4 << -1 << 45.0 << 4;
    QTest::newRow("four: just above the start is up") << 4 << -1 << 45.01 << 0;
    QTest::newRow("four: just below the start is right") << 4 << -1 << 44.99 << 3;
    QTest::newRow("eight: the start itself is one past the last") << 8 << -1 << 67.5 << 8;
    QTest::newRow("eight: just above the start is up") << 8 << -1 << 67.51 << 0;
    QTest::newRow("eight: just below the start is up-right") << 8 << -1 << 67.49 << 7;
    QTest::newRow("eight: 112.5 begins up-left") << 8 << -1 << 112.5 << 1;

    QTest::newRow("four: up kept at 150") << 4 << 0 << 150.0 << 0;
    QTest::newRow("four: up kept at its border") << 4 << 0 << 155.0 << 0;
    QTest::newRow("four: up lost past its border") << 4 << 0 << 155.1 << 1;
    QTest::newRow("four: up kept at its other border") << 4 << 0 << 25.0 << 0;
    QTest::newRow("four: up lost past its other border") << 4 << 0 << 24.9 << 3;
    QTest::newRow("four: right kept at 10") << 4 << 3 << 10.0 << 3;
    QTest::newRow("four: right chosen again at 0") << 4 << 3 << 0.0 << 3;
    QTest::newRow("four: right lost at its border") << 4 << 3 << 65.0 << 0;
    QTest::newRow("four: right kept below its border") << 4 << 3 << 64.9 << 3;
    QTest::newRow("four: right lost at its lower border") << 4 << 3 << 295.0 << 2;
    QTest::newRow("four: right kept above its lower border") << 4 << 3 << 295.1 << 3;
    QTest::newRow("four: one past the last is kept too") << 4 << 4 << 100.0 << 4;
    QTest::newRow("four: one past the last is lost") << 4 << 4 << 155.0 << 1;

    QTest::newRow("eight: up-right kept in the upper half of right") << 8 << 7 << 10.0 << 7;
    QTest::newRow("eight: right chosen afresh there") << 8 << -1 << 10.0 << 6;
    QTest::newRow("eight: up-right lost at exactly right") << 8 << 7 << 0.0 << 6;
    QTest::newRow("eight: up-right lost below right") << 8 << 7 << 359.0 << 6;
    QTest::newRow("eight: up-right kept below its border") << 8 << 7 << 77.4 << 7;
    // No offset lies exactly on its border, 77.5.
    QTest::newRow("eight: up-right lost past its border") << 8 << 7 << 77.6 << 0;
    QTest::newRow("eight: right kept on its upper side") << 8 << 6 << 32.4 << 6;
    QTest::newRow("eight: right lost at its upper border") << 8 << 6 << 32.5 << 7;
    QTest::newRow("eight: right kept on its lower side") << 8 << 6 << 327.6 << 6;
    QTest::newRow("eight: right lost at its lower border") << 8 << 6 << 327.5 << 5;
    QTest::newRow("eight: down kept at its border") << 8 << 4 << 302.5 << 4;
    QTest::newRow("eight: down lost past its border") << 8 << 4 << 302.6 << 5;
    QTest::newRow("eight: one past the last is kept too") << 8 << 8 << 100.0 << 8;
    QTest::newRow("eight: one past the last is lost") << 8 << 8 << 122.5 << 1;
}

void DonutGeometryTest::sectorFromAngle()
{
    QFETCH(int, sectors);
    QFETCH(int, previous);
    QFETCH(double, angle);
    QFETCH(int, expected);

    PlainDonut donut(sectors);
    const Offset offset = offsetAt(angle);
    const double found = donut.getAngle(offset.x, offset.y);
    if (restated::isBorder(sectors, angle))
        QVERIFY(found == angle);
    else
        QVERIFY(std::abs(found - angle) < 1e-9);
    QCOMPARE(donut.sectorAfter(previous, offset.x, offset.y), expected);
}

void DonutGeometryTest::sectorNumberConvention_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("expected");

    QTest::newRow("four: centre") << 4 << 0.0 << 0.0 << 0;
    QTest::newRow("four: up") << 4 << 0.0 << 30.0 << 0;
    QTest::newRow("four: left") << 4 << -30.0 << 0.0 << 1;
    QTest::newRow("four: down") << 4 << 0.0 << -30.0 << 2;
    QTest::newRow("four: right") << 4 << 30.0 << 0.0 << 3;
    // With pi as 22/7 the diagonal is a little less than 45 degrees.
    QTest::newRow("four: the diagonal is right") << 4 << 1.0 << 1.0 << 3;
    QTest::newRow("eight: centre") << 8 << 0.0 << 0.0 << 0;
    QTest::newRow("eight: up") << 8 << 0.0 << 30.0 << 0;
    QTest::newRow("eight: up-left") << 8 << -30.0 << 30.0 << 1;
    QTest::newRow("eight: left") << 8 << -30.0 << 0.0 << 2;
    QTest::newRow("eight: down-left") << 8 << -30.0 << -30.0 << 3;
    QTest::newRow("eight: down") << 8 << 0.0 << -30.0 << 4;
    QTest::newRow("eight: down-right") << 8 << 30.0 << -30.0 << 5;
    QTest::newRow("eight: right") << 8 << 30.0 << 0.0 << 6;
    QTest::newRow("eight: up-right") << 8 << 30.0 << 30.0 << 7;
}

void DonutGeometryTest::sectorNumberConvention()
{
    QFETCH(int, sectors);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, expected);
    PlainDonut donut(sectors);
    QCOMPARE(donut.sectorAfter(-1, x, y), expected);
    QCOMPARE(donut.getActiveArc(), qint16(expected));
}

void DonutGeometryTest::distancePlaysNoPart()
{
    PlainDonut donut(8);
    for (const double scale : {1e-9, 1.0, 1e9}) {
        QCOMPARE(donut.sectorAfter(-1, -3 * scale, 4 * scale), 1);
        QCOMPARE(donut.sectorAfter(0, -1 * scale, 2 * scale), 0);
    }
}

void DonutGeometryTest::withoutSectorsNothingIsChosen()
{
    PlainDonut donut(0);
    QCOMPARE(donut.sectorAfter(-1, 10, 10), -1);
    QCOMPARE(donut.sectorAfter(2, 10, 10), 2);
}

// The sectors' own ranges have no border at 360 degrees; a wider one may.
void DonutGeometryTest::bordersOfTheRangeThatIsKept()
{
    PlainDonut donut(4);
    donut.keepSpan = 180.0;
    QCOMPARE(donut.sectorAfter(2, -5, 0), 2); // 180 degrees, of 180 to 360
    QCOMPARE(donut.sectorAfter(2, -5, 1), 1);

    donut.setSectors(8);
    donut.keepSpan = 130.0;
    QCOMPARE(donut.getAngle(1e17, -1), 360.0);
    QCOMPARE(donut.sectorAfter(7, 1e17, -1), 6); // of 340 to 360 and 0 to 110
    QCOMPARE(donut.sectorAfter(7, 5, -1), 7);
}

void DonutGeometryTest::everyOffset_data()
{
    QTest::addColumn<int>("sectors");
    QTest::newRow("four") << 4;
    QTest::newRow("eight") << 8;
}

void DonutGeometryTest::everyOffset()
{
    QFETCH(int, sectors);
    PlainDonut donut(sectors);
    int compared = 0;
    for (int x = -100; x <= 100; ++x) {
        for (int y = -100; y <= 100; ++y) {
            for (int previous = -1; previous <= sectors; ++previous) {
                const int found = donut.sectorAfter(previous, x, y);
                const int expected = restated::sectorAfter(sectors, previous, x, y);
                if (found != expected)
                    QFAIL(qPrintable(QStringLiteral("(%1, %2) after %3: %4 in place of %5")
                                         .arg(x)
                                         .arg(y)
                                         .arg(previous)
                                         .arg(found)
                                         .arg(expected)));
                ++compared;
            }
        }
    }
    QCOMPARE(compared, 201 * 201 * (sectors + 2));
}

QTEST_MAIN(DonutGeometryTest)
#include "tst_donutgeometry.moc"
