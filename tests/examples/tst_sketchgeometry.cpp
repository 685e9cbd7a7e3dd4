// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Geometry.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <cmath>

Q_DECLARE_METATYPE(Entity)

namespace {

bool isAt(const QPointF &point, double x, double y)
{
    return std::abs(point.x() - x) < 1e-9 && std::abs(point.y() - y) < 1e-9;
}

bool isLine(const Entity &entity, double x1, double y1, double x2, double y2)
{
    return entity.kind == Entity::Kind::Line && isAt(entity.origin, x1, y1) && isAt(entity.end, x2, y2);
}

bool isArc(const Entity &entity, double x, double y, double radius, double angle, double sweep)
{
    return entity.kind == Entity::Kind::Arc && isAt(entity.origin, x, y)
        && std::abs(entity.radius - radius) < 1e-9 && std::abs(entity.angle - angle) < 1e-9
        && std::abs(entity.sweep - sweep) < 1e-9;
}

const Entity kLevel = Entity::line({0, 0}, {10, 0});

} // namespace

class SketchGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void linesMeetOnceOrNot()
    {
        const auto points = geometry::intersections(kLevel, Entity::line({3, -2}, {3, 2}));
        QCOMPARE(points.size(), std::size_t(1));
        QVERIFY(isAt(points[0], 3, 0));
        QVERIFY(geometry::intersections(kLevel, Entity::line({3, 1}, {3, 2})).empty());
        QVERIFY(geometry::intersections(kLevel, Entity::line({0, 1}, {10, 1})).empty());
        QVERIFY(geometry::intersections(kLevel, kLevel).empty());
        QVERIFY(geometry::intersections(kLevel, Entity::line({3, 3}, {3, 3})).empty());
        QCOMPARE(geometry::intersections(kLevel, Entity::line({10, 0}, {10, 5})).size(), std::size_t(1));
        QVERIFY(geometry::intersections(kLevel, Entity::label({3, 0}, 5, QStringLiteral("x"))).empty());
    }

    void lineMeetsCircleTwiceOrTouchesIt()
    {
        const auto points = geometry::intersections(kLevel, Entity::circle({5, 3}, 5));
        QCOMPARE(points.size(), std::size_t(2));
        QVERIFY(isAt(points[0], 1, 0) != isAt(points[1], 1, 0));
        QVERIFY(isAt(points[0], 9, 0) != isAt(points[1], 9, 0));
        const auto touching = geometry::intersections(kLevel, Entity::circle({4, 2}, 2));
        QCOMPARE(touching.size(), std::size_t(1));
        QVERIFY(isAt(touching[0], 4, 0));
        QVERIFY(geometry::intersections(kLevel, Entity::circle({4, 3}, 2)).empty());
        // Only crossings with the half of the circle that exists.
        QCOMPARE(geometry::intersections(kLevel, Entity::arc({5, 0}, 2, 90, 180)).size(),
                 std::size_t(1));
    }

    void circlesMeetTwiceTouchOrMiss()
    {
        const Entity one = Entity::circle({0, 0}, 5);
        const auto points = geometry::intersections(one, Entity::circle({8, 0}, 5));
        QCOMPARE(points.size(), std::size_t(2));
        QVERIFY(isAt(points[0], 4, 3) != isAt(points[1], 4, 3));
        QVERIFY(isAt(points[0], 4, -3) != isAt(points[1], 4, -3));
        QCOMPARE(geometry::intersections(one, Entity::circle({10, 0}, 5)).size(), std::size_t(1));
        QVERIFY(geometry::intersections(one, Entity::circle({11, 0}, 5)).empty());
        QVERIFY(geometry::intersections(one, Entity::circle({1, 0}, 2)).empty());
        QVERIFY(geometry::intersections(one, Entity::circle({0, 0}, 5)).empty());
    }

    void offsetMovesALineToTheSideOfThePoint()
    {
        QVERIFY(isLine(*geometry::offset(kLevel, 2, {5, 1}), 0, 2, 10, 2));
        QVERIFY(isLine(*geometry::offset(kLevel, 2, {5, -1}), 0, -2, 10, -2));
        QVERIFY(isLine(*geometry::offset(Entity::line({0, 0}, {3, 4}), 5, {0, 1}), -4, 3, -1, 7));
    }

    void offsetGrowsOrShrinksACircle()
    {
        const Entity circle = Entity::circle({1, 2}, 5);
        QVERIFY(isArc(*geometry::offset(circle, 2, {20, 2}), 1, 2, 7, 0, 360));
        QVERIFY(isArc(*geometry::offset(circle, 2, {1, 3}), 1, 2, 3, 0, 360));
        QVERIFY(isArc(*geometry::offset(Entity::arc({0, 0}, 5, 30, 60), 2, {0, 0}), 0, 0, 3, 30, 60));
        QVERIFY(!geometry::offset(circle, 5, {1, 3}));
        QVERIFY(!geometry::offset(circle, 6, {1, 3}));
    }

    void offsetOfNothingIsNothing()
    {
        QVERIFY(!geometry::offset(kLevel, 0, {5, 1}));
        QVERIFY(!geometry::offset(kLevel, -1, {5, 1}));
        QVERIFY(!geometry::offset(kLevel, qQNaN(), {5, 1}));
        QVERIFY(!geometry::offset(Entity::line({1, 1}, {1, 1}), 1, {5, 1}));
        QVERIFY(!geometry::offset(Entity::label({0, 0}, 5, QStringLiteral("x")), 1, {5, 1}));
    }

    void offsetKeepsTheLayer()
    {
        Entity line = kLevel;
        line.layer = QStringLiteral("WALLS");
        line.color = 3;
        const auto beside = geometry::offset(line, 1, {0, 1});
        QCOMPARE(beside->layer, QStringLiteral("WALLS"));
        QCOMPARE(beside->color, 3);
    }

    void trimCutsTheMiddleOutOfALine()
    {
        const auto pieces = geometry::trim(
            kLevel, {5, 0.1}, {Entity::line({3, -1}, {3, 1}), Entity::line({7, -1}, {7, 1})});
        QVERIFY(pieces);
        QCOMPARE(pieces->size(), std::size_t(2));
        QVERIFY(isLine(pieces->at(0), 0, 0, 3, 0));
        QVERIFY(isLine(pieces->at(1), 7, 0, 10, 0));
    }

    void trimCutsAnEndOffALine()
    {
        const std::vector<Entity> edges{Entity::line({3, -1}, {3, 1}), Entity::line({7, -1}, {7, 1})};
        const auto start = geometry::trim(kLevel, {1, 0}, edges);
        QCOMPARE(start->size(), std::size_t(1));
        QVERIFY(isLine(start->at(0), 3, 0, 10, 0));
        const auto end = geometry::trim(kLevel, {9, 0}, edges);
        QCOMPARE(end->size(), std::size_t(1));
        QVERIFY(isLine(end->at(0), 0, 0, 7, 0));
        // A pick beyond the end counts as the end.
        QVERIFY(isLine(geometry::trim(kLevel, {10.5, 0}, edges)->at(0), 0, 0, 7, 0));
    }

    void trimLeavesAnUncrossedLineAlone()
    {
        QVERIFY(!geometry::trim(kLevel, {5, 0}, {}));
        QVERIFY(!geometry::trim(kLevel, {5, 0}, {Entity::line({3, 1}, {3, 2})}));
        // An edge that meets only the end cuts nothing off.
        QVERIFY(!geometry::trim(kLevel, {5, 0}, {Entity::line({10, -1}, {10, 1})}));
        QVERIFY(!geometry::trim(Entity::label({0, 0}, 5, QStringLiteral("x")), {0, 0}, {kLevel}));
    }

    void trimOpensACircle()
    {
        const Entity circle = Entity::circle({0, 0}, 5);
        const std::vector<Entity> edges{Entity::line({0, -9}, {0, 9})};
        const auto left = geometry::trim(circle, {5, 0}, edges);
        QCOMPARE(left->size(), std::size_t(1));
        QVERIFY(isArc(left->at(0), 0, 0, 5, 90, 180));
        const auto right = geometry::trim(circle, {-5, 0}, edges);
        QCOMPARE(right->size(), std::size_t(1));
        QVERIFY(isArc(right->at(0), 0, 0, 5, 270, 180));
    }

    void trimOfACircleAtItsSeam()
    {
        const Entity circle = Entity::circle({0, 0}, 5);
        const std::vector<Entity> edges{Entity::line({-9, 0}, {9, 0})};
        QVERIFY(isArc(geometry::trim(circle, {0, 5}, edges)->at(0), 0, 0, 5, 180, 180));
        QVERIFY(isArc(geometry::trim(circle, {0, -5}, edges)->at(0), 0, 0, 5, 0, 180));
    }

    void trimNeedsTwoCutsOfACircle()
    {
        const Entity circle = Entity::circle({0, 0}, 5);
        QVERIFY(!geometry::trim(circle, {0, 5}, {Entity::line({0, 0}, {9, 0})}));
        QVERIFY(!geometry::trim(circle, {0, 5}, {Entity::line({-9, 5}, {9, 5})}));
        // Two crossings within the tolerance, on either side of the seam, count as one.
        QVERIFY(!geometry::trim(circle, {0, 5},
                                {Entity::line({0, 0}, {9, 1e-12}), Entity::line({0, 0}, {9, -1e-12})}));
    }

    void trimShortensAnArc()
    {
        const Entity arc = Entity::arc({0, 0}, 5, 270, 180);
        const std::vector<Entity> edges{Entity::line({0, 0}, {9, 0})};
        const auto upper = geometry::trim(arc, {3, 4}, edges);
        QCOMPARE(upper->size(), std::size_t(1));
        QVERIFY(isArc(upper->at(0), 0, 0, 5, 270, 90));
        const auto lower = geometry::trim(arc, {3, -4}, edges);
        QCOMPARE(lower->size(), std::size_t(1));
        QVERIFY(isArc(lower->at(0), 0, 0, 5, 0, 90));
    }

    void distances_data()
    {
        QTest::addColumn<Entity>("entity");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<double>("distance");
        QTest::newRow("beside a line") << kLevel << QPointF(4, 3) << 3.0;
        QTest::newRow("past its end") << kLevel << QPointF(13, 4) << 5.0;
        QTest::newRow("inside a circle") << Entity::circle({1, 1}, 5) << QPointF(1, 3) << 3.0;
        QTest::newRow("outside a circle") << Entity::circle({1, 1}, 5) << QPointF(1, 9) << 3.0;
        QTest::newRow("in the gap of an arc, near its start")
            << Entity::arc({0, 0}, 5, 0, 90) << QPointF(5, -2) << 2.0;
        QTest::newRow("in the gap of an arc, near its end")
            << Entity::arc({0, 0}, 5, 0, 90) << QPointF(-2, 5) << 2.0;
        QTest::newRow("a line of no length") << Entity::line({1, 1}, {1, 1}) << QPointF(4, 5) << 5.0;
    }
    void distances()
    {
        QFETCH(Entity, entity);
        QFETCH(QPointF, point);
        QFETCH(double, distance);
        QVERIFY(std::abs(entity.distanceTo(point) - distance) < 1e-9);
    }

    void boundsReachTheQuadrantsOfAnArc()
    {
        const QRectF bounds = Entity::arc({0, 0}, 10, 315, 90).bounds();
        QVERIFY(isAt(bounds.bottomRight(), 10, 10 * std::sqrt(0.5)));
        QVERIFY(isAt(bounds.topLeft(), 10 * std::sqrt(0.5), -10 * std::sqrt(0.5)));
        QCOMPARE(Entity::circle({1, 2}, 3).bounds(), QRectF(-2, -1, 6, 6));
        QCOMPARE(Entity::line({5, 7}, {1, 2}).bounds(), QRectF(1, 2, 4, 5));
    }

    void outlinesCoverTheirBounds()
    {
        for (const Entity &entity :
             {Entity::arc({3, 4}, 10, 300, 100), Entity::circle({3, 4}, 10), kLevel}) {
            const QRectF drawn = entity.outline().boundingRect();
            const QRectF bounds = entity.bounds();
            QVERIFY(std::abs(drawn.left() - bounds.left()) < 0.01);
            QVERIFY(std::abs(drawn.right() - bounds.right()) < 0.01);
            QVERIFY(std::abs(drawn.top() - bounds.top()) < 0.01);
            QVERIFY(std::abs(drawn.bottom() - bounds.bottom()) < 0.01);
        }
    }

    void capitalsOfATextAreAsHighAsItSays()
    {
        Entity text = Entity::label({10, 20}, 7, QStringLiteral("H"));
        QVERIFY(std::abs(text.bounds().top() - 20) < 0.2);
        QVERIFY(std::abs(text.bounds().height() - 7) < 0.2);
        QVERIFY(text.bounds().left() >= 10);
        text.across = 1;
        text.upright = 2;
        QVERIFY(std::abs(text.bounds().center().x() - 10) < 0.2);
        QVERIFY(std::abs(text.bounds().center().y() - 20) < 0.2);
        text.across = 2;
        text.upright = 3;
        QVERIFY(text.bounds().right() <= 10);
        QVERIFY(std::abs(text.bounds().bottom() - 20) < 0.2);
        text.angle = 90;
        // The text now runs upwards to the anchor, with its top to the left.
        QVERIFY(std::abs(text.bounds().left() - 10) < 0.2);
        QVERIFY(std::abs(text.bounds().width() - 7) < 0.2);
        QVERIFY(text.bounds().bottom() <= 20);
    }

    void snapPointsAreEndsAndCentres()
    {
        QCOMPARE(kLevel.snapPoints(), (std::vector<QPointF>{{0, 0}, {10, 0}}));
        QCOMPARE(Entity::circle({1, 2}, 3).snapPoints(), (std::vector<QPointF>{{1, 2}}));
        const auto points = Entity::arc({0, 0}, 5, 0, 90).snapPoints();
        QCOMPARE(points.size(), std::size_t(3));
        QVERIFY(isAt(points[0], 5, 0) && isAt(points[1], 0, 5) && isAt(points[2], 0, 0));
    }
};

QTEST_MAIN(SketchGeometryTest)
#include "tst_sketchgeometry.moc"
