// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace draw {

// Side of an arrow's image in pixels, at ratio 1. It is twice the 16 of an ordinary table row,
// so the image is sharp there and on screens of double density.
constexpr int kArrowSize = 32;

// An arrow that points to direction `index` of eight: 0 is up, the others follow
// counter-clockwise. A square of kArrowSize times `ratio` pixels.
[[nodiscard]] QImage arrow(int index, int ratio);

} // namespace draw
