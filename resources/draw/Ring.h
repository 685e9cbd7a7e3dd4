#pragma once

#include <QImage>

// The ring's images, all kRingSize square with a transparent ground.
namespace draw {

// The whole ring, without sectors: the same image serves four and eight of them, and no
// line between sectors would fit both.
[[nodiscard]] QImage ringBackground();

// A sector as it looks when the pointer is in it.
[[nodiscard]] QImage sectorHighlight(int count, int index);

// A sector that is chosen, with a check mark between the inner edge and the label.
[[nodiscard]] QImage sectorChecked(int count, int index);

// A sector at rest.
[[nodiscard]] QImage sectorPlain(int count, int index);

} // namespace draw
