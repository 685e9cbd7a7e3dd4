// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Geometry.h"

#include <algorithm>
#include <cmath>

namespace geometry {
namespace {

// Lengths below this share of a curve count as 0.
constexpr double kTolerance = 1e-9;

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

double length(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

std::vector<QPointF> lineMeetsLine(const Entity &a, const Entity &b)
{
    const QPointF u = a.end - a.origin;
    const QPointF v = b.end - b.origin;
    const double turn = cross(u, v);
    if (std::abs(turn) <= kTolerance * length(u) * length(v))
        return {};
    return {a.at(cross(b.origin - a.origin, v) / turn)};
}

// The two points that are `along` the unit vector from `base` and then to either side of it,
// by the square root of `squaredAside`.
std::vector<QPointF> mirrored(const QPointF &base, const QPointF &unit, double along,
                              double squaredAside, double scale)
{
    if (squaredAside < -kTolerance * scale * scale)
        return {};
    const QPointF foot = base + along * unit;
    if (squaredAside < kTolerance * scale * scale)
        return {foot};
    const QPointF aside = std::sqrt(squaredAside) * QPointF(-unit.y(), unit.x());
    return {foot + aside, foot - aside};
}

std::vector<QPointF> lineMeetsArc(const Entity &line, const Entity &arc)
{
    const QPointF along = line.end - line.origin;
    if (length(along) <= 0)
        return {};
    const QPointF normal = QPointF(along.y(), -along.x()) / length(along);
    const double distance = QPointF::dotProduct(line.origin - arc.origin, normal);
    return mirrored(arc.origin, normal, distance, arc.radius * arc.radius - distance * distance,
                    arc.radius);
}

std::vector<QPointF> arcMeetsArc(const Entity &a, const Entity &b)
{
    const double distance = length(b.origin - a.origin);
    if (distance <= kTolerance * a.radius)
        return {};
    const double along =
        (distance * distance + a.radius * a.radius - b.radius * b.radius) / (2 * distance);
    return mirrored(a.origin, (b.origin - a.origin) / distance, along,
                    a.radius * a.radius - along * along, a.radius);
}

bool reaches(const Entity &curve, const QPointF &point)
{
    const double parameter = curve.parameterAt(point);
    return parameter >= -kTolerance && parameter <= 1 + kTolerance;
}

} // namespace

std::vector<QPointF> intersections(const Entity &a, const Entity &b)
{
    if (!a.isCurve() || !b.isCurve())
        return {};
    std::vector<QPointF> points;
    if (a.kind == Entity::Kind::Line)
        points = b.kind == Entity::Kind::Line ? lineMeetsLine(a, b) : lineMeetsArc(a, b);
    else
        points = b.kind == Entity::Kind::Line ? lineMeetsArc(b, a) : arcMeetsArc(a, b);
    points.erase(
        std::remove_if(points.begin(), points.end(),
                       [&](const QPointF &point) { return !reaches(a, point) || !reaches(b, point); }),
        points.end());
    return points;
}

std::optional<Entity> offset(const Entity &entity, double distance, const QPointF &side)
{
    if (!entity.isCurve() || !(distance > 0))
        return std::nullopt;
    Entity beside = entity;
    if (entity.kind == Entity::Kind::Arc) {
        const bool outside = length(side - entity.origin) >= entity.radius;
        beside.radius += outside ? distance : -distance;
        if (beside.radius <= 0)
            return std::nullopt;
        return beside;
    }
    const QPointF along = entity.end - entity.origin;
    if (length(along) <= 0)
        return std::nullopt;
    const double left = cross(along, side - entity.origin) >= 0 ? distance : -distance;
    return beside.translated(left / length(along) * QPointF(-along.y(), along.x()));
}

std::optional<std::vector<Entity>> trim(const Entity &entity, const QPointF &pick,
                                        const std::vector<Entity> &edges)
{
    if (!entity.isCurve())
        return std::nullopt;
    std::vector<double> cuts;
    for (const Entity &edge : edges) {
        for (const QPointF &point : intersections(entity, edge)) {
            const double cut = entity.parameterAt(point);
            const bool inside = cut > kTolerance && cut < 1 - kTolerance;
            if (inside || entity.isCircle())
                cuts.push_back(inside ? cut : 0);
        }
    }
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(
        std::unique(cuts.begin(), cuts.end(), [](double a, double b) { return b - a < kTolerance; }),
        cuts.end());

    const double picked = entity.parameterAt(pick);
    const auto next = std::upper_bound(cuts.begin(), cuts.end(), picked);
    if (entity.isCircle()) {
        if (cuts.size() < 2)
            return std::nullopt;
        // The part may include parameter 0, where a circle starts only by convention.
        const bool wraps = next == cuts.begin() || next == cuts.end();
        return wraps ? std::vector<Entity>{entity.part(cuts.front(), cuts.back())}
                     : std::vector<Entity>{entity.part(*next, *(next - 1) + 1)};
    }
    if (cuts.empty())
        return std::nullopt;
    std::vector<Entity> pieces;
    if (next != cuts.begin())
        pieces.push_back(entity.part(0, *(next - 1)));
    if (next != cuts.end())
        pieces.push_back(entity.part(*next, 1));
    return pieces;
}

} // namespace geometry
