// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

// The geometry of the ring's images, in pixels of the smallest size. Angles are in degrees,
// counter-clockwise from the right, as QPainterPath takes them.
namespace draw {

// The side of every ring image, at ratio 1.
constexpr int kRingSize = 250;
constexpr double kCentre = kRingSize / 2.0;

// The overlay centres its labels on a circle of radius 93, the band's middle. A gesture is
// accepted at 69 pixels, just inside the band, so moving into the band runs the command.
constexpr double kInnerRadius = 66.0;
constexpr double kOuterRadius = 120.0;
constexpr double kLabelRadius = (kInnerRadius + kOuterRadius) / 2.0;

// The soft edge reaches this far from the band to either side.
constexpr double kShadowWidth = 5.0;
static_assert(kOuterRadius + kShadowWidth <= kCentre, "the soft edge ends inside the image");

// Sector `index` of `count`: sector 0 is up and the others follow counter-clockwise.
[[nodiscard]] constexpr double sectorWidth(int count)
{
    return 360.0 / count;
}

[[nodiscard]] constexpr double sectorCentre(int count, int index)
{
    return 90.0 + index * sectorWidth(count);
}

[[nodiscard]] inline QRectF circle(double radius)
{
    return {kCentre - radius, kCentre - radius, 2.0 * radius, 2.0 * radius};
}

// The whole band between two radii.
[[nodiscard]] inline QPainterPath bandPath(double innerRadius, double outerRadius)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addEllipse(circle(outerRadius));
    path.addEllipse(circle(innerRadius));
    return path;
}

// One sector of the band between two radii.
[[nodiscard]] inline QPainterPath sectorPath(int count, int index, double innerRadius,
                                             double outerRadius)
{
    const double width = sectorWidth(count);
    const double start = sectorCentre(count, index) - width / 2.0;
    QPainterPath path;
    path.arcMoveTo(circle(outerRadius), start);
    path.arcTo(circle(outerRadius), start, width);
    path.arcTo(circle(innerRadius), start + width, -width);
    path.closeSubpath();
    return path;
}

} // namespace draw
