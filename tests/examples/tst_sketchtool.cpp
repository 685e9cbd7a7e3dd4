// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Tool.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

using Kind = Tool::Kind;
using Wants = Tool::Wants;

// Every command, from its first step to its last.
class SketchToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void lineGoesOnFromPointToPoint()
    {
        Drawing drawing;
        Tool tool(drawing);
        tool.begin(Kind::Line);
        QCOMPARE(tool.wants(), Wants::Point);
        QVERIFY(tool.preview({5, 5}, {}).empty());
        QVERIFY(tool.point({1, 2}, 1).isEmpty());
        QCOMPARE(tool.lastPoint(), QPointF(1, 2));
        QCOMPARE(tool.preview({5, 5}, {}).at(0).end, QPointF(5, 5));
        QVERIFY(drawing.entities().empty());
        QVERIFY(tool.point({3, 4}, 1).isEmpty());
        QVERIFY(tool.point({5, 4}, 1).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(2));
        QCOMPARE(drawing.entities()[1].origin, QPointF(3, 4));
        QCOMPARE(drawing.entities()[1].end, QPointF(5, 4));
        // A line of length 0 is not drawn.
        QVERIFY(!tool.point({5, 4}, 1).isEmpty());
        QVERIFY(!tool.number(3).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(2));
        QCOMPARE(tool.wants(), Wants::Point);
    }

    void circleTakesAPointOrARadius()
    {
        Drawing drawing;
        Tool tool(drawing);
        tool.begin(Kind::Circle);
        QVERIFY(!tool.number(3).isEmpty());
        QVERIFY(tool.point({1, 1}, 1).isEmpty());
        QVERIFY(!tool.number(0).isEmpty());
        QVERIFY(!tool.number(-3).isEmpty());
        QVERIFY(tool.number(3).isEmpty());
        QCOMPARE(tool.kind(), Kind::Select);
        tool.begin(Kind::Circle);
        QVERIFY(tool.point({0, 0}, 1).isEmpty());
        QVERIFY(tool.point({3, 4}, 1).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(2));
        QCOMPARE(drawing.entities()[0].radius, 3.0);
        QCOMPARE(drawing.entities()[1].radius, 5.0);
        QVERIFY(drawing.entities()[1].isCircle());
    }

    void textTakesAHeightAPlaceAndWords()
    {
        Drawing drawing;
        Tool tool(drawing);
        tool.begin(Kind::Text);
        QVERIFY(!tool.number(0).isEmpty());
        QVERIFY(tool.number(8).isEmpty());
        QVERIFY(tool.prompt().contains(QStringLiteral("8")));
        QVERIFY(tool.point({1, 2}, 1).isEmpty());
        QCOMPARE(tool.wants(), Wants::Words);
        QCOMPARE(tool.preview({50, 50}, QStringLiteral("Ga")).at(0).words, QStringLiteral("Ga"));
        QCOMPARE(tool.preview({50, 50}, QStringLiteral("Ga")).at(0).origin, QPointF(1, 2));
        QVERIFY(tool.point({7, 7}, 1).isEmpty());
        QVERIFY(tool.words(QStringLiteral("Gate")).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(1));
        QCOMPARE(drawing.entities()[0].words, QStringLiteral("Gate"));
        QCOMPARE(drawing.entities()[0].origin, QPointF(1, 2));
        QCOMPARE(drawing.entities()[0].height, 8.0);
        QCOMPARE(tool.kind(), Kind::Select);
    }

    void offsetKeepsItsDistance()
    {
        Drawing drawing;
        drawing.add(Entity::line({0, 0}, {10, 0}));
        drawing.add(Entity::label({0, 50}, 5, QStringLiteral("text")));
        Tool tool(drawing);
        tool.begin(Kind::Offset);
        QCOMPARE(tool.wants(), Wants::Entity);
        QVERIFY(!tool.number(-1).isEmpty());
        QVERIFY(tool.number(2).isEmpty());
        QVERIFY(!tool.point({5, 20}, 1).isEmpty());
        QVERIFY(!tool.point({3, 52}, 1).isEmpty());
        QVERIFY(tool.point({5, 0.5}, 1).isEmpty());
        QCOMPARE(tool.wants(), Wants::Point);
        QVERIFY(!tool.number(7).isEmpty());
        QCOMPARE(tool.preview({5, 9}, {}).at(0).origin, QPointF(0, 2));
        QVERIFY(tool.point({5, 9}, 1).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(3));
        QCOMPARE(drawing.entities()[2].origin, QPointF(0, 2));
        // Again, with the same distance.
        QCOMPARE(tool.wants(), Wants::Entity);
        QVERIFY(tool.point({5, 2}, 1).isEmpty());
        QVERIFY(tool.point({5, 9}, 1).isEmpty());
        QCOMPARE(drawing.entities()[3].origin, QPointF(0, 4));
    }

    void offsetSaysWhenThereIsNoRoom()
    {
        Drawing drawing;
        drawing.add(Entity::circle({0, 0}, 3));
        Tool tool(drawing);
        tool.begin(Kind::Offset);
        QVERIFY(tool.number(5).isEmpty());
        QVERIFY(tool.point({3, 0}, 1).isEmpty());
        QVERIFY(!tool.point({0, 1}, 1).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(1));
        QVERIFY(tool.point({5, 0}, 1).isEmpty());
        QCOMPARE(drawing.entities()[1].radius, 8.0);
    }

    void copyTakesTheSelectionOrAPick()
    {
        Drawing drawing;
        drawing.add(Entity::line({0, 0}, {10, 0}));
        drawing.add(Entity::circle({0, 20}, 3));
        Tool tool(drawing);
        tool.begin(Kind::Copy, {0, 1});
        QCOMPARE(tool.wants(), Wants::Point);
        QVERIFY(tool.point({1, 1}, 1).isEmpty());
        QVERIFY(tool.point({101, 1}, 1).isEmpty());
        QVERIFY(tool.point({1, 51}, 1).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(6));
        QCOMPARE(drawing.entities()[2].end, QPointF(110, 0));
        QCOMPARE(drawing.entities()[5].origin, QPointF(0, 70));
        tool.begin(Kind::Copy);
        QCOMPARE(tool.wants(), Wants::Entity);
        QVERIFY(tool.point({5, 0}, 1).isEmpty());
        QCOMPARE(tool.wants(), Wants::Point);
    }

    void trimCutsWithEverythingThatIsVisible()
    {
        Drawing drawing;
        Sheet sheet;
        Sheet::Layer off;
        off.off = true;
        sheet.layers[QStringLiteral("OFF")] = off;
        sheet.entities = {Entity::line({0, 0}, {10, 0}), Entity::line({4, -1}, {4, 1}),
                          Entity::line({6, -1}, {6, 1})};
        sheet.entities[2].layer = QStringLiteral("OFF");
        drawing.setSheet(sheet);
        Tool tool(drawing);
        tool.begin(Kind::Trim);
        QVERIFY(tool.point({5, 0}, 0.5).isEmpty());
        QCOMPARE(drawing.entities().size(), std::size_t(3));
        QCOMPARE(drawing.entities()[2].end, QPointF(4, 0));
        QCOMPARE(tool.wants(), Wants::Entity);
        // Only the end of the rest meets the edge.
        QVERIFY(!tool.point({2, 0}, 0.5).isEmpty());
        drawing.undo();
        QCOMPARE(drawing.entities()[0].end, QPointF(10, 0));
    }

    void nothingHappensWithoutACommand()
    {
        Drawing drawing;
        Tool tool(drawing);
        QCOMPARE(tool.wants(), Wants::Nothing);
        QVERIFY(tool.point({1, 1}, 1).isEmpty());
        QVERIFY(!tool.number(1).isEmpty());
        QVERIFY(tool.words(QStringLiteral("x")).isEmpty());
        QVERIFY(tool.preview({1, 1}, {}).empty());
        QVERIFY(drawing.entities().empty());
    }
};

QTEST_MAIN(SketchToolTest)
#include "tst_sketchtool.moc"
