// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

// The ring's images on a transparent ground. Each is a square of kRingSize times `ratio`
// pixels; `ratio` is 1 or more and the image's device pixel ratio.
namespace draw {

// The whole ring without sectors. Four and eight sectors share it, so it shows no borders.
[[nodiscard]] QImage ringBackground(int ratio);

// Only one sector, as it looks when the pointer is in it.
[[nodiscard]] QImage sectorHighlight(int count, int index, int ratio);

// The same with quiet lines between all other sectors. The overlay always shows one of these
// above the background, so the lines are always those of the scheme in use.
[[nodiscard]] QImage sectorHighlightWithSeparators(int count, int index, int ratio);

// A sector that is chosen, with a check mark between the inner edge and the label.
[[nodiscard]] QImage sectorChecked(int count, int index, int ratio);

// A sector at rest.
[[nodiscard]] QImage sectorPlain(int count, int index, int ratio);

} // namespace draw
