#pragma once

#include <QImage>

namespace draw {

// Side of an arrow's image in pixels: twice the 16 of an ordinary table row, so that the
// same image is sharp there and on screens of double density.
constexpr int kArrowSize = 32;

// An arrow that points to direction `index` of eight: 0 is up, the others follow
// counter-clockwise.
[[nodiscard]] QImage arrow(int index);

} // namespace draw
