#pragma once

#include "examples/sketchpad/Entity.h"

#include <optional>
#include <vector>

// What drafting asks of curves. Everything is in drawing units.
namespace geometry {

// Where two curves meet, at most twice. Curves that lie on one another do not meet.
[[nodiscard]] std::vector<QPointF> intersections(const Entity &a, const Entity &b);

// The curve `distance` beside `entity`, on the side of `side`. None for a text, for a
// distance that is not positive, and inside a circle that is too small.
[[nodiscard]] std::optional<Entity> offset(const Entity &entity, double distance, const QPointF &side);

// What stays of `entity` (nothing, one or two pieces) when the stretch around `pick` is cut
// out, up to where `edges` cross it. None if no edge crosses it, or only one a circle.
[[nodiscard]] std::optional<std::vector<Entity>> trim(const Entity &entity, const QPointF &pick,
                                                      const std::vector<Entity> &edges);

} // namespace geometry
