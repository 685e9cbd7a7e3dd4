// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

// Icons that can be read on any drawing. The ring lies over the drawing at a fixed opacity, so
// what is under an icon may be dark, light or anything between, and no plate suits every icon.
namespace gesturewidget {

// Logical pixels: the side of the square in which the ring shows an icon. At this size, times
// the device pixel ratio, an icon has a halo. Dialog and print ask for other sizes and get the
// icon as the program has it.
inline constexpr int kRingIconSide = 20;
// Logical pixels: how far the halo reaches beyond the shape. Enough to part the shape from
// drawing lines, and too little to look like a button.
inline constexpr qreal kHaloWidth = 1.5;

// The same icon with a halo of the opposite lightness where the ring shows it. Cheap: the icon
// is drawn only when somebody asks for its picture, and the last picture is kept. Null for a
// null icon.
[[nodiscard]] QIcon contrastIcon(const QIcon &icon);

// The icon's picture inside the ring's square without the halo: a shape that would leave no
// room for the halo is drawn a little smaller. `ratio`: device pixels for one logical pixel.
[[nodiscard]] QImage ringShape(const QIcon &icon, qreal ratio, QIcon::Mode mode = QIcon::Normal,
                               QIcon::State state = QIcon::Off);
// The shape over its halo, light around what is dark and dark around what is light. An icon
// gets one colour of halo if that suits nearly all of its outline, else each part gets its own.
[[nodiscard]] QImage withHalo(const QImage &shape, qreal ratio);

// Relative luminance of an opaque colour, 0 for black to 1 for white, and the contrast ratio of
// two of them, 1 to 21; both as the Web Content Accessibility Guidelines 2.1 define them.
[[nodiscard]] qreal luminanceOf(QRgb colour);
[[nodiscard]] qreal contrastOf(qreal luminance, qreal other);

} // namespace gesturewidget
