// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Entity.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLineF>
#include <QtMath>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

QPointF polar(double radius, double degrees)
{
    return {radius * std::cos(qDegreesToRadians(degrees)),
            radius * std::sin(qDegreesToRadians(degrees))};
}

// The direction from `centre` in degrees, 0 <= direction < 360.
double directionTo(const QPointF &centre, const QPointF &point)
{
    const double degrees = qRadiansToDegrees(std::atan2(point.y() - centre.y(), point.x() - centre.x()));
    return degrees < 0 ? degrees + 360 : degrees;
}

} // namespace

Entity Entity::line(const QPointF &from, const QPointF &to)
{
    Entity entity;
    entity.origin = from;
    entity.end = to;
    return entity;
}

Entity Entity::circle(const QPointF &centre, double radius)
{
    return arc(centre, radius, 0, 360);
}

Entity Entity::arc(const QPointF &centre, double radius, double start, double sweep)
{
    Entity entity;
    entity.kind = Kind::Arc;
    entity.origin = centre;
    entity.radius = radius;
    entity.angle = std::fmod(std::fmod(start, 360) + 360, 360);
    entity.sweep = sweep;
    return entity;
}

Entity Entity::label(const QPointF &anchor, double height, const QString &words)
{
    Entity entity;
    entity.kind = Kind::Text;
    entity.origin = anchor;
    entity.height = height;
    entity.words = words;
    return entity;
}

QPointF Entity::at(double parameter) const
{
    if (kind == Kind::Arc)
        return origin + polar(radius, angle + parameter * sweep);
    return origin + parameter * (end - origin);
}

double Entity::parameterAt(const QPointF &point) const
{
    if (kind == Kind::Arc) {
        double along = directionTo(origin, point) - angle;
        if (along < 0)
            along += 360;
        // Half of the gap belongs to the start, so that a point just before the start is just
        // below 0.
        if (along > sweep + (360 - sweep) / 2)
            along -= 360;
        return along / sweep;
    }
    const QPointF direction = end - origin;
    const double squared = QPointF::dotProduct(direction, direction);
    return squared > 0 ? QPointF::dotProduct(point - origin, direction) / squared : 0;
}

Entity Entity::part(double from, double to) const
{
    Entity piece = *this;
    if (kind == Kind::Arc) {
        piece.angle = std::fmod(angle + from * sweep + 360, 360);
        piece.sweep = (to - from) * sweep;
    } else {
        piece.origin = at(from);
        piece.end = at(to);
    }
    return piece;
}

Entity Entity::translated(const QPointF &by) const
{
    Entity moved = *this;
    moved.origin += by;
    moved.end += by;
    return moved;
}

double Entity::distanceTo(const QPointF &point) const
{
    if (!isCurve()) {
        const QRectF frame = bounds();
        const QPointF nearest(std::clamp(point.x(), frame.left(), frame.right()),
                              std::clamp(point.y(), frame.top(), frame.bottom()));
        return QLineF(point, nearest).length();
    }
    return QLineF(point, at(std::clamp(parameterAt(point), 0.0, 1.0))).length();
}

QRectF Entity::bounds() const
{
    if (kind == Kind::Text)
        return outline().boundingRect();
    std::vector<QPointF> reached{at(0), at(1)};
    if (kind == Kind::Arc) {
        for (int quadrant = 0; quadrant < 360; quadrant += 90) {
            const QPointF extreme = origin + polar(radius, quadrant);
            const double parameter = parameterAt(extreme);
            if (parameter >= 0 && parameter <= 1)
                reached.push_back(extreme);
        }
    }
    QPointF low = reached.front();
    QPointF high = low;
    for (const QPointF &point : reached) {
        low = {std::min(low.x(), point.x()), std::min(low.y(), point.y())};
        high = {std::max(high.x(), point.x()), std::max(high.y(), point.y())};
    }
    return {low, high};
}

std::vector<QPointF> Entity::snapPoints() const
{
    if (kind == Kind::Text || isCircle())
        return {origin};
    if (kind == Kind::Arc)
        return {at(0), at(1), origin};
    return {origin, end};
}

QPainterPath Entity::outline() const
{
    QPainterPath path;
    if (kind == Kind::Line) {
        path.moveTo(origin);
        path.lineTo(end);
    } else if (kind == Kind::Arc) {
        // Qt's angles are clockwise if y points upwards.
        const QRectF square(origin - QPointF(radius, radius), origin + QPointF(radius, radius));
        path.arcMoveTo(square, -angle);
        path.arcTo(square, -angle, -sweep);
    } else {
        QFont font;
        font.setPixelSize(100);
        font.setHintingPreference(QFont::PreferNoHinting);
        const QFontMetricsF metrics(font);
        const double right = metrics.horizontalAdvance(words);
        const double rise[] = {0, -metrics.descent(), metrics.capHeight() / 2, metrics.capHeight()};
        const double scale = height / metrics.capHeight();
        path.addText(-right * across / 2, rise[upright], font, words);
        QTransform place;
        place.translate(origin.x(), origin.y());
        place.rotate(angle);
        place.scale(scale, -scale);
        path = place.map(path);
    }
    return path;
}
