// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "samples/Drawings.h"
#include "samples/Pen.h"

#include <QLineF>
#include <QPainterPath>

namespace samples {
namespace {

void drawWalls(Pen &pen)
{
    // The walls as rectangles, then the openings in them.
    const QVector<QRectF> walls{
        {0, 0, 11400, 300},      {0, 8100, 11400, 300},   {0, 0, 300, 8400},
        {11100, 0, 300, 8400}, // outside
        {5600, 300, 150, 7800},  {300, 4900, 5300, 150}, // living room and kitchen
        {5750, 3700, 5350, 150}, {7400, 3850, 150, 4250}, {7550, 5600, 3550, 150}, // around the hall
    };
    const QVector<QRectF> openings{
        {1200, 0, 3200, 300},    {7200, 0, 2400, 300},    {0, 1500, 300, 2200},
        {0, 6000, 300, 1400},    {1500, 8100, 1800, 300}, {11100, 6300, 300, 1200},
        {11100, 4400, 300, 600}, // windows
        {6100, 8100, 1000, 300}, {5600, 3950, 150, 800},  {5600, 5700, 150, 800},
        {6200, 3700, 800, 150},  {7400, 4300, 150, 700},  {7400, 6500, 150, 800},
        {3700, 4900, 1400, 150}, // doors
    };
    QPainterPath path;
    for (const QRectF &wall : walls) {
        QPainterPath one;
        one.addRect(wall);
        path = path.united(one);
    }
    for (const QRectF &opening : openings) {
        QPainterPath one;
        one.addRect(opening.height() > opening.width() ? opening.adjusted(-10, 0, 10, 0)
                                                       : opening.adjusted(0, -10, 0, 10));
        path = path.subtracted(one);
    }
    pen.take("WALLS");
    const QList<QPolygonF> outlines = path.simplified().toSubpathPolygons();
    for (QPolygonF outline : outlines) {
        // One line from corner to corner: the path also has points where walls met.
        outline.removeLast();
        QVector<QPointF> corners;
        for (int i = 0; i < outline.size(); ++i) {
            const QPointF before = outline[(i + outline.size() - 1) % outline.size()];
            const QPointF after = outline[(i + 1) % outline.size()];
            const bool straight =
                qFuzzyCompare(before.x(), after.x()) || qFuzzyCompare(before.y(), after.y());
            if (!straight)
                corners.append(outline[i]);
        }
        pen.lines(corners, true);
    }
}

void drawWindow(Pen &pen, double x, double y, double width, double height)
{
    pen.rectangle(x, y, width, height);
    if (width > height) {
        pen.line(x, y + height / 2 - 40, x + width, y + height / 2 - 40);
        pen.line(x, y + height / 2 + 40, x + width, y + height / 2 + 40);
    } else {
        pen.line(x + width / 2 - 40, y, x + width / 2 - 40, y + height);
        pen.line(x + width / 2 + 40, y, x + width / 2 + 40, y + height);
    }
}

// A door with its hinge at (x, y). Closed, it points to `closed` degrees; it is open by a
// quarter turn to the left or, if `turn` is negative, to the right.
void drawDoor(Pen &pen, double x, double y, double width, double closed, double turn)
{
    const QLineF leaf = QLineF::fromPolar(width, -(closed + turn)).translated(x, y);
    pen.lines({leaf.p1(), leaf.p2()});
    pen.arc(x, y, width, turn > 0 ? closed : closed + turn, 90);
}

void drawOpenings(Pen &pen)
{
    pen.take("WINDOWS");
    drawWindow(pen, 1200, 0, 3200, 300);
    drawWindow(pen, 7200, 0, 2400, 300);
    drawWindow(pen, 0, 1500, 300, 2200);
    drawWindow(pen, 0, 6000, 300, 1400);
    drawWindow(pen, 1500, 8100, 1800, 300);
    drawWindow(pen, 11100, 6300, 300, 1200);
    drawWindow(pen, 11100, 4400, 300, 600);
    pen.take("DOORS");
    drawDoor(pen, 6100, 8100, 1000, 0, -90);
    drawDoor(pen, 5600, 3950, 800, 90, 90);
    drawDoor(pen, 5600, 6500, 800, 270, -90);
    drawDoor(pen, 7000, 3700, 800, 180, 90);
    drawDoor(pen, 7550, 5000, 700, 270, 90);
    drawDoor(pen, 7550, 7300, 800, 270, 90);
}

void drawLiving(Pen &pen)
{
    pen.take("FURNITURE");
    // Sofa with three cushions, table, shelf with a screen.
    pen.rounded(500, 900, 950, 2600, 120);
    pen.line(750, 1080, 750, 3320);
    for (int i = 0; i < 3; ++i)
        pen.rounded(770, 1090 + i * 745, 640, 720, 80);
    pen.rounded(1850, 1650, 700, 1100, 60);
    pen.rectangle(5180, 1000, 420, 2400);
    pen.rectangle(5230, 1450, 60, 1500);
    // Dining table with six chairs.
    pen.rounded(1700, 3950, 1800, 800, 60);
    for (int i = 0; i < 3; ++i)
        pen.rounded(1800 + i * 560, 3540, 440, 380, 100);
    pen.rounded(1280, 4150, 340, 420, 100);
    pen.rounded(3580, 4150, 340, 420, 100);
    pen.take("PLANTS");
    for (const QPointF &place : {QPointF(4950, 640), QPointF(640, 4500), QPointF(8400, 3330)}) {
        pen.circle(place.x(), place.y(), 240);
        pen.circle(place.x(), place.y(), 70);
        for (int i = 0; i < 8; ++i) {
            const QLineF leaf = QLineF::fromPolar(240, i * 45).translated(place);
            const QLineF stem = QLineF::fromPolar(70, i * 45 + 22).translated(place);
            pen.lines({stem.p2(), leaf.p2()});
        }
    }
}

void drawKitchen(Pen &pen)
{
    pen.take("FURNITURE");
    pen.lines({{5000, 8100}, {5000, 7500}, {900, 7500}, {900, 5650}, {300, 5650}});
    pen.rectangle(5000, 7450, 600, 650);
    pen.lines({{5000, 7450}, {5600, 8100}});
    pen.rounded(3350, 5500, 1100, 700, 60);
    for (const double x : {3500.0, 4000.0})
        pen.rounded(x, 6230, 330, 330, 90);
    pen.take("SANITARY");
    pen.rounded(1900, 7580, 480, 420, 80);
    pen.rounded(2420, 7580, 480, 420, 80);
    pen.circle(2140, 7790, 35);
    pen.circle(2660, 7790, 35);
    pen.rounded(350, 6300, 500, 580, 40);
    for (const QPointF &ring :
         {QPointF(475, 6450), QPointF(725, 6450), QPointF(475, 6730), QPointF(725, 6730)}) {
        pen.circle(ring.x(), ring.y(), 100);
        pen.circle(ring.x(), ring.y(), 50);
    }
}

void drawBedroom(Pen &pen)
{
    pen.take("FURNITURE");
    pen.rounded(9000, 1000, 2100, 1800, 60);
    pen.rounded(10550, 1080, 450, 760, 100);
    pen.rounded(10550, 1960, 450, 760, 100);
    pen.lines({{10350, 1000}, {10350, 2800}});
    pen.arc(10350, 1000, 700, 90, 90);
    pen.rectangle(10700, 500, 400, 420);
    pen.rectangle(10700, 2880, 400, 420);
    pen.circle(10900, 710, 110);
    // Wardrobe with its rail and hangers.
    pen.rectangle(5750, 500, 600, 2600);
    pen.line(6050, 560, 6050, 3040);
    for (int i = 0; i < 12; ++i)
        pen.line(5850, 640 + i * 205, 6250, 700 + i * 205);
}

void drawStudy(Pen &pen)
{
    pen.take("FURNITURE");
    pen.rounded(10350, 6150, 700, 1500, 40);
    pen.circle(9950, 6900, 260);
    pen.arc(9950, 6900, 320, 110, 140);
    pen.rounded(8100, 5800, 2000, 900, 60);
    pen.rounded(8170, 5880, 380, 740, 100);
    pen.rectangle(8500, 7780, 2600, 320);
    for (int i = 1; i < 6; ++i)
        pen.line(8500 + i * 433, 7780, 8500 + i * 433, 8100);
}

void drawBath(Pen &pen)
{
    pen.take("SANITARY");
    pen.rounded(9300, 3850, 1800, 800, 60);
    pen.rounded(9380, 3930, 1640, 640, 280);
    pen.circle(10800, 4250, 40);
    // Basin and toilet against the study's wall.
    pen.rounded(8400, 5150, 650, 450, 100);
    pen.arc(8725, 5420, 200, 180, 180);
    pen.line(8525, 5420, 8925, 5420);
    pen.circle(8725, 5350, 25);
    pen.rounded(9600, 5440, 400, 160, 40);
    pen.arc(9800, 5180, 190, 180, 180);
    pen.lines({{9610, 5180}, {9630, 5440}});
    pen.lines({{9990, 5180}, {9970, 5440}});
}

void drawRoom(Pen &pen, double x, double y, const QString &name, const QString &area)
{
    pen.take("TEXT");
    pen.text(x, y + 190, 230, name);
    pen.text(x, y - 160, 160, area + QStringLiteral(" m\u00b2"));
}

void drawNotes(Pen &pen)
{
    drawRoom(pen, 4000, 2300, QStringLiteral("LIVING ROOM"), QStringLiteral("24.4"));
    drawRoom(pen, 2050, 6350, QStringLiteral("KITCHEN"), QStringLiteral("16.2"));
    drawRoom(pen, 6570, 5650, QStringLiteral("HALL"), QStringLiteral("7.0"));
    drawRoom(pen, 7700, 1900, QStringLiteral("BEDROOM"), QStringLiteral("18.2"));
    drawRoom(pen, 8800, 7250, QStringLiteral("STUDY"), QStringLiteral("8.3"));
    drawRoom(pen, 8650, 4550, QStringLiteral("BATH"), QStringLiteral("6.2"));

    pen.take("DIM");
    pen.across(0, 11400, -1500, 0, 180, QStringLiteral("11.40"));
    pen.across(300, 5600, -850, 0, 180, QStringLiteral("5.30"));
    pen.across(5750, 11100, -850, 0, 180, QStringLiteral("5.35"));
    pen.upright(0, 8400, -1500, 0, 180, QStringLiteral("8.40"));
    pen.upright(300, 4900, -850, 0, 180, QStringLiteral("4.60"));
    pen.upright(5050, 8100, -850, 0, 180, QStringLiteral("3.05"));

    const double columns[] = {150, 5675, 11250};
    const double rows[] = {150, 4975, 8250};
    for (int i = 0; i < 3; ++i) {
        pen.take("AXES");
        pen.line(columns[i], -450, columns[i], 8900);
        pen.line(-450, rows[i], 12100, rows[i]);
        pen.take("TEXT");
        pen.circle(columns[i], 9150, 250);
        pen.text(columns[i], 9150, 220, QString(QLatin1Char(char('A' + i))));
        pen.circle(12350, rows[i], 250);
        pen.text(12350, rows[i], 220, QString::number(i + 1));
    }

    // North, and a scale of five metres.
    pen.text(13400, 7650, 300, QStringLiteral("N"));
    pen.lines({{13400, 7350}, {13150, 6450}, {13400, 6650}, {13650, 6450}}, true);
    pen.line(13400, 7350, 13400, 6650);
    pen.circle(13400, 6850, 620);
    for (int metre = 0; metre < 5; ++metre) {
        pen.rectangle(6400 + metre * 1000, -2700, 1000, 120);
        pen.text(6400 + metre * 1000, -2450, 150, QString::number(metre), 1, 0);
    }
    pen.line(6400, -2640, 7400, -2640);
    pen.line(8400, -2640, 9400, -2640);
    pen.line(10400, -2640, 11400, -2640);
    pen.text(11400, -2450, 150, QStringLiteral("5 m"), 1, 0);
    pen.text(0, -2680, 350, QStringLiteral("GROUND FLOOR  1:50"), 0, 0);
}

} // namespace

Sheet floorPlan()
{
    Pen pen;
    pen.sheet().units = 4;
    pen.sheet().lineTypes[QStringLiteral("CENTER")] = {500, -100, 100, -100};
    pen.addLayer("AXES", 8, 13, "CENTER");
    pen.addLayer("WALLS", 7, 50);
    pen.addLayer("WINDOWS", 4, 25);
    pen.addLayer("DOORS", 2, 25);
    pen.addLayer("FURNITURE", 9, 18);
    pen.addLayer("PLANTS", 3, 18);
    pen.addLayer("SANITARY", 5, 18);
    pen.addLayer("TEXT", 7, 18);
    pen.addLayer("DIM", 1, 13);
    drawWalls(pen);
    drawOpenings(pen);
    drawLiving(pen);
    drawKitchen(pen);
    drawBedroom(pen);
    drawStudy(pen);
    drawBath(pen);
    drawNotes(pen);
    return pen.sheet();
}

} // namespace samples
