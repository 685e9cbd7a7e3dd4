#pragma once

#include <QColor>

// The colours of all images. The overlay lays the ring over the drawing at 120/255, and
// black labels over the ring: on a black drawing only a ring that is white where the
// labels are leaves them readable (contrast 4.7 to 1), and on a white drawing only its
// darker edges show where it is.
namespace draw::palette {

constexpr QColor kBandMiddle{255, 255, 255};
constexpr QColor kBandEdge{216, 226, 236};
constexpr QColor kRim{22, 34, 48};
constexpr QColor kShadow{10, 18, 28, 120};

// The one strong colour, light enough for black text and for icons of any colour.
constexpr QColor kHighlightMiddle{255, 206, 92};
constexpr QColor kHighlightEdge{255, 176, 32};
constexpr QColor kHighlightRim{168, 96, 0};

// A sector that is chosen but not pointed at.
constexpr QColor kCheckedMiddle{255, 243, 214};
constexpr QColor kCheckedEdge{255, 228, 168};

constexpr QColor kArrow{28, 104, 178};

} // namespace draw::palette
