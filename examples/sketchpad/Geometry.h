// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Entity.h"

#include <optional>
#include <vector>

// Geometry of curves. All lengths are in drawing units.
namespace geometry {

// The points where two curves meet, at most two. Curves that lie on each other do not meet.
[[nodiscard]] std::vector<QPointF> intersections(const Entity &a, const Entity &b);

// The curve parallel to `entity` at `distance`, on the side where the point `side` is. None
// for a text, for a distance of 0 or less, and inside a circle that is too small.
[[nodiscard]] std::optional<Entity> offset(const Entity &entity, double distance, const QPointF &side);

// Cuts out the part of `entity` around `pick`, up to where `edges` cross it, and returns the
// pieces that stay: none, one or two. Returns nullopt if no edge crosses it, or, for a circle,
// if there is only one crossing.
[[nodiscard]] std::optional<std::vector<Entity>> trim(const Entity &entity, const QPointF &pick,
                                                      const std::vector<Entity> &edges);

} // namespace geometry
