// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "resources/draw/Ring.h"

#include "resources/draw/Palette.h"
#include "resources/draw/RingGeometry.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QRadialGradient>

namespace draw {
namespace {

constexpr double kRimWidth = 1.2;
constexpr double kGleamWidth = 1.0;
// The marks that point outwards lie between the inner rim and the labels.
constexpr double kMarkRadius = 72.5;
// At this width some pixels lie wholly inside the line, at any slant.
constexpr double kChevronWidth = 2.4;
constexpr double kSeparatorWidth = 1.2;

// All painting is in pixels of the smallest image; the painter enlarges by the ratio.
[[nodiscard]] QImage emptyImage(int ratio)
{
    QImage image(kRingSize * ratio, kRingSize * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
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
    color.setAlpha(qRound(color.alpha() * factor));
    return color;
}

// `middle` around the labels, which turns into `edge` towards both rims.
[[nodiscard]] QRadialGradient bandGradient(const QColor &middle, const QColor &edge)
{
    constexpr double kFlat = 14.0; // half the width of the even part, for labels of 20 pixels
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
    // To look like a blur, it has less than half its strength at half its width.
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

// A thin bright line along the inside of both rims, which lifts the band off a dark drawing.
void paintGleam(QPainter &painter, const QColor &color)
{
    painter.setPen(QPen(color, kGleamWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle(kInnerRadius + kRimWidth + kGleamWidth / 2.0));
    painter.drawEllipse(circle(kOuterRadius - kRimWidth - kGleamWidth / 2.0));
}

// Turns the painter so that `angle` points up, and moves its origin to the mark.
void moveToMark(QPainter &painter, double angle)
{
    painter.translate(kCentre, kCentre);
    painter.rotate(90.0 - angle);
    painter.translate(0.0, -kMarkRadius);
}

// A small angle that points outwards.
void paintChevron(QPainter &painter, double angle, const QColor &color)
{
    painter.save();
    moveToMark(painter, angle);
    painter.setPen(QPen(color, kChevronWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF chevron[] = {{-3.5, 1.5}, {0.0, -2.0}, {3.5, 1.5}};
    painter.drawPolyline(chevron, 3);
    painter.restore();
}

void paintDot(QPainter &painter, double angle, const QColor &color)
{
    painter.save();
    moveToMark(painter, angle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(0.0, 0.0), 1.3, 1.3);
    painter.restore();
}

[[nodiscard]] QImage sector(int count, int index, int ratio, const QColor &middle, const QColor &edge,
                            const QColor &rim, const QColor &gleam)
{
    const QPainterPath path = sectorPath(count, index, kInnerRadius, kOuterRadius);
    QImage mask = emptyImage(ratio);
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.fillPath(path, Qt::black);
    maskPainter.end();

    QImage image = emptyImage(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(0, 0, kRingSize, kRingSize, bandGradient(middle, edge));
    paintGleam(painter, gleam);
    // The mask leaves only the inner half of a line along the border, so it is twice as wide.
    painter.strokePath(path, QPen(rim, 2.0 * kRimWidth));
    // Cut out once, at the end. An edge pixel is then as opaque as the sector covers it, and
    // neighbours together are exactly the ring.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    return image;
}

[[nodiscard]] QImage withChevron(QImage image, int count, int index, const QColor &color)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintChevron(painter, sectorCentre(count, index), color);
    painter.end();
    return image;
}

} // namespace

QImage ringBackground(int ratio)
{
    QImage image = emptyImage(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter);
    painter.fillPath(bandPath(kInnerRadius, kOuterRadius),
                     bandGradient(palette::kBandMiddle, palette::kBandEdge));
    painter.setPen(QPen(palette::kRim, kRimWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle(kInnerRadius + kRimWidth / 2.0));
    painter.drawEllipse(circle(kOuterRadius - kRimWidth / 2.0));
    paintGleam(painter, palette::kGleam);
    // Four and eight sectors share the directions along the axes. A diagonal is the middle of
    // a sector of eight and a border of four.
    for (int i = 0; i < 8; ++i) {
        if (i % 2 == 0)
            paintChevron(painter, sectorCentre(8, i), palette::kMark);
        else
            paintDot(painter, sectorCentre(8, i), palette::kMark);
    }
    return image;
}

QImage sectorHighlight(int count, int index, int ratio)
{
    return withChevron(sector(count, index, ratio, palette::kHighlightMiddle, palette::kHighlightEdge,
                              palette::kHighlightRim, palette::kHighlightGleam),
                       count, index, palette::kHighlightRim);
}

QImage sectorHighlightWithSeparators(int count, int index, int ratio)
{
    QImage image = emptyImage(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette::kSeparator, kSeparatorWidth, Qt::SolidLine, Qt::FlatCap));
    for (int i = 0; i < count; ++i) {
        // The line after sector i. The lit sector has a rim of its own.
        if (i == index || (i + 1) % count == index)
            continue;
        QLineF line = QLineF::fromPolar(kOuterRadius - kRimWidth,
                                        sectorCentre(count, i) + sectorWidth(count) / 2.0);
        line.setP1(line.pointAt(kInnerRadius / kOuterRadius));
        painter.drawLine(line.translated(kCentre, kCentre));
    }
    painter.drawImage(0, 0, sectorHighlight(count, index, ratio));
    return image;
}

QImage sectorChecked(int count, int index, int ratio)
{
    QImage image = sector(count, index, ratio, palette::kCheckedMiddle, palette::kCheckedEdge,
                          palette::kHighlightRim, palette::kGleam);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    moveToMark(painter, sectorCentre(count, index));
    painter.rotate(sectorCentre(count, index) - 90.0); // the mark stands upright everywhere
    painter.setPen(QPen(palette::kHighlightRim, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF mark[] = {{-3.5, 0.5}, {-1.0, 3.0}, {4.0, -3.0}};
    painter.drawPolyline(mark, 3);
    return image;
}

QImage sectorPlain(int count, int index, int ratio)
{
    return withChevron(sector(count, index, ratio, palette::kBandMiddle, palette::kBandEdge,
                              palette::kRim, palette::kGleam),
                       count, index, palette::kMark);
}

} // namespace draw
