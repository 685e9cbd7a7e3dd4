// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QPointF>
#include <QRectF>

// Geometry and images of the ring at any size. All points and rectangles are in pixels of the
// square that shows the ring, from its corner. Directions are indices as in
// launcher::Bindings::directionNames(); `count` is 4 or 8.
namespace settings::ringart {

// The part of the ring at a point.
enum class Part { Middle, Band, Outside };

[[nodiscard]] Part partAt(const QPointF &point, double side);
// The direction of a point, wherever it is.
[[nodiscard]] int directionAt(const QPointF &point, double side, int count);
// The room for a direction's label.
[[nodiscard]] QRectF labelBox(double side, int count, int direction);
// The circle in the middle, with a margin.
[[nodiscard]] QRectF middleBox(double side);

// The embedded images, smoothly scaled: the ring, and the highlight of a direction.
[[nodiscard]] QPixmap ring(int side, qreal ratio);
[[nodiscard]] QPixmap highlight(int count, int direction, int side, qreal ratio);

} // namespace settings::ringart
