// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "resources/draw/Arrow.h"

#include "resources/draw/Palette.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>

namespace draw {
namespace {

// A dark rim around a light filling shows on light, dark and coloured rows.
constexpr double kArrowRimWidth = 2.0;

// The middle of the rim. Edges along the pixels have odd coordinates. The rim's own edges are
// then even and stay sharp when the image is shown at half its size. The heads are
// right-angled, so the slanting one's edges run along the pixels too.
const QPolygonF &upShape()
{
    static const QPolygonF shape{
        {{16, 2.5}, {29, 15.5}, {29, 17}, {21, 17}, {21, 29}, {11, 29}, {11, 17}, {3, 17}, {3, 15.5}}};
    return shape;
}

const QPolygonF &upLeftShape()
{
    static const QPolygonF shape{
        {{3, 3}, {23, 3}, {23, 6}, {18, 11}, {28, 21}, {21, 28}, {11, 18}, {6, 23}, {3, 23}}};
    return shape;
}

} // namespace

QImage arrow(int index, int ratio)
{
    QImage image(kArrowSize * ratio, kArrowSize * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(palette::kArrowRim, kArrowRimWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(palette::kHighlightEdge);
    // Each pair of directions is the pair before it, turned a quarter counter-clockwise.
    painter.translate(kArrowSize / 2.0, kArrowSize / 2.0);
    const int quarter = index / 2;
    painter.rotate(-90.0 * quarter);
    painter.translate(-kArrowSize / 2.0, -kArrowSize / 2.0);
    painter.drawPolygon(index % 2 == 0 ? upShape() : upLeftShape());
    return image;
}

} // namespace draw
