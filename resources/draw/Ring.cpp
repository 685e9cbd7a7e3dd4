#include "resources/draw/Ring.h"

#include "resources/draw/Palette.h"
#include "resources/draw/RingGeometry.h"

#include <QPainter>
#include <QPen>
#include <QRadialGradient>

#include <cmath>

namespace draw {
namespace {

constexpr double kRimWidth = 1.2;

[[nodiscard]] QImage emptyImage()
{
    QImage image(kRingSize, kRingSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

[[nodiscard]] double atRadius(double radius)
{
    return radius / kCentre;
}

[[nodiscard]] QRadialGradient gradientFromCentre()
{
    return QRadialGradient(QPointF(kCentre, kCentre), kCentre);
}

[[nodiscard]] QColor faded(QColor color, double factor)
{
    color.setAlphaF(color.alphaF() * factor);
    return color;
}

// `middle` around the labels, turning into `edge` towards both rims.
[[nodiscard]] QRadialGradient bandGradient(const QColor &middle, const QColor &edge)
{
    constexpr double kFlat = 14.0; // half the width that stays even, for labels of 20 pixels
    QRadialGradient gradient = gradientFromCentre();
    gradient.setColorAt(atRadius(kInnerRadius), edge);
    gradient.setColorAt(atRadius(kLabelRadius - kFlat), middle);
    gradient.setColorAt(atRadius(kLabelRadius + kFlat), middle);
    gradient.setColorAt(atRadius(kOuterRadius), edge);
    return gradient;
}

// The soft dark edge outside and inside the band, which sets it off from a light drawing.
void paintShadow(QPainter &painter)
{
    // A quarter of the strength at half the way looks like a blur.
    constexpr double kHalfway = 0.3;
    const QColor dark = palette::kShadow;
    QRadialGradient gradient = gradientFromCentre();
    gradient.setColorAt(atRadius(kInnerRadius - kShadowWidth), faded(dark, 0.0));
    gradient.setColorAt(atRadius(kInnerRadius - kShadowWidth / 2.0), faded(dark, kHalfway));
    gradient.setColorAt(atRadius(kInnerRadius), dark);
    gradient.setColorAt(atRadius(kOuterRadius), dark);
    gradient.setColorAt(atRadius(kOuterRadius + kShadowWidth / 2.0), faded(dark, kHalfway));
    gradient.setColorAt(atRadius(kOuterRadius + kShadowWidth), faded(dark, 0.0));
    painter.fillPath(bandPath(kInnerRadius - kShadowWidth, kOuterRadius + kShadowWidth), gradient);
}

[[nodiscard]] QImage sector(int count, int index, const QColor &middle, const QColor &edge,
                            const QColor &rim)
{
    QImage image = emptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = sectorPath(count, index, kInnerRadius, kOuterRadius);
    painter.fillPath(path, bandGradient(middle, edge));
    // Clipped to the sector, the inner half of a line of twice the width remains: no
    // pixel of the rim falls into a neighbour.
    painter.setClipPath(path);
    painter.strokePath(path, QPen(rim, 2.0 * kRimWidth));
    return image;
}

} // namespace

QImage ringBackground()
{
    QImage image = emptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter);
    painter.fillPath(bandPath(kInnerRadius, kOuterRadius),
                     bandGradient(palette::kBandMiddle, palette::kBandEdge));
    painter.setPen(QPen(palette::kRim, kRimWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle(kInnerRadius + kRimWidth / 2.0));
    painter.drawEllipse(circle(kOuterRadius - kRimWidth / 2.0));
    return image;
}

QImage sectorHighlight(int count, int index)
{
    return sector(count, index, palette::kHighlightMiddle, palette::kHighlightEdge,
                  palette::kHighlightRim);
}

QImage sectorChecked(int count, int index)
{
    QImage image =
        sector(count, index, palette::kCheckedMiddle, palette::kCheckedEdge, palette::kHighlightRim);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // Upright in every sector, between the inner rim and the label.
    constexpr double kMarkRadius = 75.0;
    const double angle = sectorCentre(count, index) * std::acos(-1.0) / 180.0;
    painter.translate(kCentre + std::cos(angle) * kMarkRadius, kCentre - std::sin(angle) * kMarkRadius);
    painter.setPen(QPen(palette::kHighlightRim, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF mark[] = {{-4.0, 0.0}, {-1.0, 3.0}, {4.5, -3.5}};
    painter.drawPolyline(mark, 3);
    return image;
}

QImage sectorPlain(int count, int index)
{
    return sector(count, index, palette::kBandMiddle, palette::kBandEdge, palette::kRim);
}

} // namespace draw
