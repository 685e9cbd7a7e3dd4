// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "samples/Drawings.h"
#include "samples/Pen.h"

#include <QLineF>
#include <QtMath>

#include <cmath>

namespace samples {
namespace {

// The part, in millimetres.
constexpr double kLength = 160;
constexpr double kDepth = 70;
constexpr double kBase = 18; // thickness of the foot
constexpr double kAxis = 90; // height of the bore
constexpr double kBoss = 32; // radius
constexpr double kBore = 18; // radius
constexpr double kBossDepth = 54;
constexpr double kWeb = 30; // thickness of the upright
constexpr double kFoot = 120; // length of the upright where it meets the foot
constexpr double kHole = 5.5; // radius
constexpr double kSink = 9; // radius of the holes' counterbore
constexpr double kHolesApart = 130;
constexpr double kHolesDeep = 44;
constexpr double kText = 3.5;

const QChar kDiameter(0x2300);

void drawFront(Pen &pen, double x, double y)
{
    const double middle = x + kLength / 2;
    const double axis = y + kAxis;
    pen.take("OUTLINE");
    pen.lines({{x, y}, {x + kLength, y}, {x + kLength, y + kBase - 3}});
    pen.arc(x + kLength - 3, y + kBase - 3, 3, 0, 90);
    pen.line(x + kLength - 3, y + kBase, x + 3, y + kBase);
    pen.arc(x + 3, y + kBase - 3, 3, 90, 90);
    pen.line(x, y + kBase - 3, x, y);
    pen.circle(middle, axis, kBore);
    pen.circle(middle, axis, kBore + 2);

    // On either side, the upright runs from the foot to the boss as a tangent.
    const double run = kFoot / 2;
    const double rise = kAxis - kBase;
    const double away = std::hypot(run, rise);
    const double touch = std::atan2(-rise, run) + std::acos(kBoss / away);
    const QPointF contact(kBoss * std::cos(touch), kBoss * std::sin(touch));
    pen.line(middle + run, y + kBase, middle + contact.x(), axis + contact.y());
    pen.line(middle - run, y + kBase, middle - contact.x(), axis + contact.y());
    pen.circle(middle, axis, kBoss);
    // The window in the upright.
    const QPointF low(kFoot / 2 - 20, kBase + 10);
    pen.arc(middle, axis, kBoss + 6, 270 - 42, 84);
    const double corner = qDegreesToRadians(270.0 + 42);
    const QPointF high((kBoss + 6) * std::cos(corner), kAxis + (kBoss + 6) * std::sin(corner));
    pen.lines({{middle - high.x(), y + high.y()},
               {middle - low.x(), y + low.y()},
               {middle + low.x(), y + low.y()},
               {middle + high.x(), y + high.y()}});

    pen.take("HIDDEN");
    for (const double side : {-1.0, 1.0}) {
        const double hole = middle + side * kHolesApart / 2;
        pen.line(hole - kHole, y, hole - kHole, y + kBase - 6);
        pen.line(hole + kHole, y, hole + kHole, y + kBase - 6);
        pen.lines({{hole - kSink, y + kBase},
                   {hole - kSink, y + kBase - 6},
                   {hole + kSink, y + kBase - 6},
                   {hole + kSink, y + kBase}});
    }
    pen.line(middle - 3, axis + kBore, middle - 3, axis + kBoss);
    pen.line(middle + 3, axis + kBore, middle + 3, axis + kBoss);

    pen.take("CENTER");
    pen.line(middle - kBoss - 8, axis, middle + kBoss + 8, axis);
    pen.line(middle, y - 8, middle, axis + kBoss + 8);
    pen.line(middle - kHolesApart / 2, y - 6, middle - kHolesApart / 2, y + kBase + 6);
    pen.line(middle + kHolesApart / 2, y - 6, middle + kHolesApart / 2, y + kBase + 6);

    pen.take("DIM");
    pen.upright(y, axis, x - 14, x, kText, QStringLiteral("90"));
    pen.upright(y, y + kBase, x + kLength + 12, x + kLength, kText, QStringLiteral("18"));
    // Leaders to the bore and to the boss.
    const QLineF bore = QLineF::fromPolar(kBore, 40).translated(middle, axis);
    pen.lines({{bore.x2(), 2 * axis - bore.y2()}, {middle + 44, axis + 40}, {middle + 62, axis + 40}});
    pen.text(middle + 45, axis + 41.5, kText, kDiameter + QStringLiteral("36 H7"), 0, 0);
    const QLineF boss = QLineF::fromPolar(kBoss, 140).translated(middle, axis);
    pen.lines({{boss.x2(), 2 * axis - boss.y2()}, {middle - 44, axis + 40}, {middle - 58, axis + 40}});
    pen.text(middle - 45, axis + 41.5, kText, QStringLiteral("R32"), 2, 0);
}

void drawSide(Pen &pen, double x, double y)
{
    const double middle = x + kDepth / 2;
    const double axis = y + kAxis;
    const double web = kWeb / 2;
    const double boss = kBossDepth / 2;
    pen.take("OUTLINE");
    pen.rectangle(x, y, kDepth, kBase);
    for (const double side : {-1.0, 1.0}) {
        pen.line(middle + side * web, y + kBase + 5, middle + side * web, axis - kBoss);
        pen.arc(middle + side * (web + 5), y + kBase + 5, 5, side > 0 ? 180 : 270, 90);
    }
    pen.rectangle(middle - boss, axis - kBoss, kBossDepth, 2 * kBoss);
    pen.take("HIDDEN");
    pen.line(middle - web, y + kBase + 10, middle + web, y + kBase + 10);
    pen.line(middle - web, axis - kBoss - 6, middle + web, axis - kBoss - 6);
    for (const double side : {-1.0, 1.0}) {
        pen.line(middle - boss + 2, axis + side * kBore, middle + boss - 2, axis + side * kBore);
        pen.line(middle - boss, axis + side * (kBore + 2), middle - boss + 2, axis + side * kBore);
        pen.line(middle + boss, axis + side * (kBore + 2), middle + boss - 2, axis + side * kBore);
        pen.line(middle + side * 3, axis + kBore, middle + side * 3, axis + kBoss);
        const double hole = middle + side * kHolesDeep / 2;
        pen.line(hole - kHole, y, hole - kHole, y + kBase - 6);
        pen.line(hole + kHole, y, hole + kHole, y + kBase - 6);
        pen.lines({{hole - kSink, y + kBase},
                   {hole - kSink, y + kBase - 6},
                   {hole + kSink, y + kBase - 6},
                   {hole + kSink, y + kBase}});
    }
    pen.take("CENTER");
    pen.line(middle - boss - 8, axis, middle + boss + 8, axis);
    pen.line(middle, y - 8, middle, axis + kBoss + 8);
    pen.line(middle - kHolesDeep / 2, y - 6, middle - kHolesDeep / 2, y + kBase + 6);
    pen.line(middle + kHolesDeep / 2, y - 6, middle + kHolesDeep / 2, y + kBase + 6);
    pen.take("DIM");
    pen.across(middle - boss, middle + boss, axis + kBoss + 14, axis + kBoss, kText,
               QStringLiteral("54"));
    pen.across(x, x + kDepth, y - 14, y, kText, QStringLiteral("70"));
    pen.upright(y, axis + kBoss, x + kDepth + 14, x + kDepth, kText, QStringLiteral("122"));
}

void drawTop(Pen &pen, double x, double y)
{
    const double middle = x + kLength / 2;
    const double level = y + kDepth / 2;
    pen.take("OUTLINE");
    pen.rounded(x, y, kLength, kDepth, 10);
    pen.lines({{middle - kBoss, level - kWeb / 2},
               {middle - kFoot / 2, level - kWeb / 2},
               {middle - kFoot / 2, level + kWeb / 2},
               {middle - kBoss, level + kWeb / 2}});
    pen.lines({{middle + kBoss, level - kWeb / 2},
               {middle + kFoot / 2, level - kWeb / 2},
               {middle + kFoot / 2, level + kWeb / 2},
               {middle + kBoss, level + kWeb / 2}});
    pen.rectangle(middle - kBoss, level - kBossDepth / 2, 2 * kBoss, kBossDepth);
    pen.circle(middle, level, 3);
    for (const double across : {-1.0, 1.0}) {
        for (const double deep : {-1.0, 1.0}) {
            pen.take("OUTLINE");
            pen.circle(middle + across * kHolesApart / 2, level + deep * kHolesDeep / 2, kHole);
            pen.circle(middle + across * kHolesApart / 2, level + deep * kHolesDeep / 2, kSink);
            pen.take("CENTER");
            pen.cross(middle + across * kHolesApart / 2, level + deep * kHolesDeep / 2, kSink, 3);
        }
    }
    pen.take("HIDDEN");
    pen.line(middle - kBore, level - kBossDepth / 2, middle - kBore, level + kBossDepth / 2);
    pen.line(middle + kBore, level - kBossDepth / 2, middle + kBore, level + kBossDepth / 2);
    pen.line(middle - kFoot / 2 + 20, level - kWeb / 2, middle - kFoot / 2 + 20, level + kWeb / 2);
    pen.line(middle + kFoot / 2 - 20, level - kWeb / 2, middle + kFoot / 2 - 20, level + kWeb / 2);
    pen.take("CENTER");
    pen.line(x - 8, level, x + kLength + 8, level);
    pen.line(middle, y - 8, middle, y + kDepth + 8);
    pen.take("DIM");
    pen.across(middle - kHolesApart / 2, middle + kHolesApart / 2, y - 13, y, kText,
               QStringLiteral("130"));
    pen.across(x, x + kLength, y - 22, y, kText, QStringLiteral("160"));
    pen.upright(level - kHolesDeep / 2, level + kHolesDeep / 2, x - 14, x, kText, QStringLiteral("44"));
    pen.lines({{middle + kHolesApart / 2 + 6.4, level + kHolesDeep / 2 + 6.4},
               {x + kLength + 8, y + kDepth + 8},
               {x + kLength + 44, y + kDepth + 8}});
    pen.text(x + kLength + 9, y + kDepth + 9.5, kText,
             QStringLiteral("4 \u00d7 ") + kDiameter + QStringLiteral("11, sunk ") + kDiameter
                 + QStringLiteral("18"),
             0, 0);
}

void drawFrame(Pen &pen)
{
    pen.take("FRAME");
    pen.rectangle(0, 0, 420, 297);
    pen.rectangle(10, 10, 400, 277);
    for (int i = 1; i < 8; ++i) {
        pen.line(i * 52.5, 0, i * 52.5, 10);
        pen.line(i * 52.5, 287, i * 52.5, 297);
    }
    for (int i = 1; i < 6; ++i) {
        pen.line(0, i * 49.5, 10, i * 49.5);
        pen.line(410, i * 49.5, 420, i * 49.5);
    }
    pen.rectangle(270, 10, 140, 56);
    for (const double level : {24.0, 38.0, 52.0})
        pen.line(270, level, 410, level);
    pen.line(340, 10, 340, 38);
    pen.take("TEXT");
    for (int i = 0; i < 8; ++i) {
        pen.text(26.25 + i * 52.5, 5, 3.5, QString::number(i + 1));
        pen.text(26.25 + i * 52.5, 292, 3.5, QString::number(i + 1));
    }
    for (int i = 0; i < 6; ++i) {
        pen.text(5, 272.25 - i * 49.5, 3.5, QString(QLatin1Char(char('A' + i))));
        pen.text(415, 272.25 - i * 49.5, 3.5, QString(QLatin1Char(char('A' + i))));
    }
    pen.text(275, 59, 5, QStringLiteral("BEARING BRACKET"), 0);
    pen.text(275, 45, 3.5, QStringLiteral("General tolerances \u00b10.2, fillets R5"), 0);
    pen.text(275, 31, 3.5, QStringLiteral("Scale 1:1"), 0);
    pen.text(345, 31, 3.5, QStringLiteral("Sheet 1 of 1"), 0);
    pen.text(275, 17, 3.5, QStringLiteral("Cast iron"), 0);
    pen.text(345, 17, 3.5, QStringLiteral("All sizes in mm"), 0);
    // The symbol of first-angle projection: a truncated cone and its view from the left.
    pen.take("OUTLINE");
    pen.lines({{381, 41}, {391, 42.5}, {391, 47.5}, {381, 49}}, true);
    pen.circle(401, 45, 4);
    pen.circle(401, 45, 2.5);
    pen.take("CENTER");
    pen.line(379, 45, 393, 45);
    pen.cross(401, 45, 4, 1.5);
}

} // namespace

Sheet bracket()
{
    Pen pen;
    pen.sheet().units = 4;
    pen.sheet().lineTypes[QStringLiteral("HIDDEN")] = {3, -1.5};
    pen.sheet().lineTypes[QStringLiteral("CENTER")] = {9, -1.5, 1.5, -1.5};
    pen.addLayer("OUTLINE", 7, 50);
    pen.addLayer("HIDDEN", 3, 25, "HIDDEN");
    pen.addLayer("CENTER", 1, 18, "CENTER");
    pen.addLayer("DIM", 4, 18);
    pen.addLayer("TEXT", 2, 25);
    pen.addLayer("FRAME", 8, 35);
    drawFrame(pen);
    drawFront(pen, 52, 142);
    drawSide(pen, 290, 142);
    drawTop(pen, 52, 45);
    return pen.sheet();
}

} // namespace samples
