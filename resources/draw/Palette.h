// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

// The colours of all images. The overlay lays the ring over the drawing at 120/255 and black
// labels over the ring. On a black drawing the labels need a ring that is white under them
// (contrast 4.7 to 1). On a white drawing only the ring's darker edges show where it is.
namespace draw::palette {

constexpr QColor kBandMiddle{250, 252, 255};
constexpr QColor kBandEdge{222, 231, 242};
constexpr QColor kRim{22, 34, 48};
constexpr QColor kGleam{255, 255, 255};
// At 120/255 only a colour this dark has a contrast of 3 to 1 on a white drawing.
constexpr QColor kMark{4, 8, 14};
// Visible on the ring, but fainter than anything that has a meaning.
constexpr QColor kSeparator{22, 34, 48, 64};
constexpr QColor kShadow{10, 18, 28, 150};

// The one strong colour, light enough for black text and for icons of any colour.
constexpr QColor kHighlightMiddle{255, 206, 92};
constexpr QColor kHighlightEdge{255, 176, 32};
constexpr QColor kHighlightRim{160, 88, 0};
constexpr QColor kHighlightGleam{255, 232, 168};

// A sector that is chosen but not pointed at.
constexpr QColor kCheckedMiddle{255, 243, 214};
constexpr QColor kCheckedEdge{255, 228, 168};

constexpr QColor kArrowRim{58, 40, 8};

} // namespace draw::palette
