#include "resources/draw/Arrow.h"

#include "resources/draw/Palette.h"

#include <QPainter>
#include <QPolygonF>

namespace draw {
namespace {

// Both shapes keep to even coordinates where their edges run along the pixels, so they
// stay sharp when they are shown at half their size. Their heads are right-angled, which
// makes the slanting one's edges run along the pixels too.
const QPolygonF &upShape()
{
    static const QPolygonF shape{
        {{16, 2}, {28, 14}, {28, 16}, {20, 16}, {20, 30}, {12, 30}, {12, 16}, {4, 16}, {4, 14}}};
    return shape;
}

const QPolygonF &upLeftShape()
{
    static const QPolygonF shape{
        {{4, 4}, {22, 4}, {22, 6}, {17, 11}, {28, 22}, {22, 28}, {11, 17}, {6, 22}, {4, 22}}};
    return shape;
}

} // namespace

QImage arrow(int index)
{
    QImage image(kArrowSize, kArrowSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::kArrow);
    // Each pair of directions is the pair before it, a quarter turn counter-clockwise.
    painter.translate(kArrowSize / 2.0, kArrowSize / 2.0);
    painter.rotate(-90.0 * (index / 2));
    painter.translate(-kArrowSize / 2.0, -kArrowSize / 2.0);
    painter.drawPolygon(index % 2 == 0 ? upShape() : upLeftShape());
    return image;
}

} // namespace draw
