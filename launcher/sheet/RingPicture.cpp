// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/RingPicture.h"

#include "launcher/sheet/FittedText.h"
#include "launcher/Text.h"
#include "resources/draw/Palette.h"
#include "resources/draw/RingGeometry.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace sheet {
namespace {

using namespace draw;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
// Between a label and its sector's edges.
constexpr double kMargin = 3.0;
// The place of the marks that point outwards, and how far labels stay away from the inner rim to
// leave room for them.
constexpr double kMarkRadius = kInnerRadius + 5.0;
constexpr double kLabelStart = kInnerRadius + 7.0;
constexpr double kIconSize = 14.0;
constexpr double kLargestText = 9.6;
constexpr double kSmallestText = 4.4;

// Returns whether a sector less its margin holds the box. Both are relative to the ring's centre,
// y upward.
bool isInside(const QRectF &box, int count, int index)
{
    const double half = sectorWidth(count) / 2.0 * kDegree;
    const double middle = sectorCentre(count, index) * kDegree;
    const std::array corners{box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
    for (const QPointF &corner : corners) {
        const double along = corner.x() * std::cos(middle) + corner.y() * std::sin(middle);
        const double across = std::abs(corner.x() * std::sin(middle) - corner.y() * std::cos(middle));
        // Distance from the sector's straight edge.
        if (along * std::sin(half) - across * std::cos(half) < kMargin
            || std::hypot(corner.x(), corner.y()) > kOuterRadius - kMargin)
            return false;
    }
    const double x = std::clamp(0.0, box.left(), box.right());
    const double y = std::clamp(0.0, box.top(), box.bottom());
    return std::hypot(x, y) >= kLabelStart;
}

QRadialGradient bandGradient(const QColor &middle, const QColor &edge)
{
    QRadialGradient gradient(QPointF(kCentre, kCentre), kCentre);
    gradient.setColorAt(kInnerRadius / kCentre, edge);
    gradient.setColorAt((kLabelRadius - 14.0) / kCentre, middle);
    gradient.setColorAt((kLabelRadius + 14.0) / kCentre, middle);
    gradient.setColorAt(kOuterRadius / kCentre, edge);
    return gradient;
}

} // namespace

RingPicture::RingPicture(const launcher::SheetContent &content, const QFont &font)
    : m_content(content)
    , m_font(font)
{
}

QRectF RingPicture::labelBox(int count, int index)
{
    const double angle = sectorCentre(count, index) * kDegree;
    QRectF best;
    double bestValue = 0.0;
    for (double height = 20.0; height <= 44.0; height += 1.0) {
        for (double radius = kLabelRadius - 8.0; radius <= kLabelRadius + 8.0; radius += 0.5) {
            const QPointF centre(radius * std::cos(angle), radius * std::sin(angle));
            double width = height;
            const auto box = [&](double wide) {
                return QRectF(centre.x() - wide / 2.0, centre.y() - height / 2.0, wide, height);
            };
            if (!isInside(box(width), count, index))
                continue;
            while (width < 90.0 && isInside(box(width + 1.0), count, index))
                width += 1.0;
            // Labels are words: width counts more than height.
            const double value = width * std::sqrt(height);
            if (value > bestValue) {
                bestValue = value;
                best = box(width);
            }
        }
    }
    // Converts from the centre with y upward to the image's corner with y downward.
    return {kCentre + best.left(), kCentre - best.bottom(), best.width(), best.height()};
}

void RingPicture::paint(QPainter &painter, const QRectF &square) const
{
    const double unit = square.width() / kRingSize;
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(unit, unit);
    paintBand(painter);
    painter.restore();
    const auto count = static_cast<int>(m_content.commands.size());
    const auto placed = [&](const QRectF &box) {
        return QRectF(square.left() + box.left() * unit, square.top() + box.top() * unit,
                      box.width() * unit, box.height() * unit);
    };
    for (int i = 0; i < count; ++i)
        paintLabel(painter, placed(labelBox(count, i)), m_content.commands.at(i), unit);
    paintMiddle(painter, placed(circle(kInnerRadius - 4.0)), unit);
}

void RingPicture::paintBand(QPainter &painter) const
{
    const auto count = static_cast<int>(m_content.commands.size());
    for (int i = 0; i < count; ++i) {
        const bool isBound = !m_content.commands.at(i).caption.isEmpty();
        const QPainterPath path = sectorPath(count, i, kInnerRadius, kOuterRadius);
        if (isBound)
            painter.fillPath(path, bandGradient(palette::kBandMiddle, palette::kBandEdge));
        painter.setPen(QPen(palette::kBandEdge.darker(115), 0.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
        if (!isBound)
            continue;
        painter.save();
        painter.translate(kCentre, kCentre);
        painter.rotate(90.0 - sectorCentre(count, i));
        painter.translate(0.0, -kMarkRadius);
        painter.setPen(QPen(palette::kHighlightEdge, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF chevron[] = {{-3.0, 1.4}, {0.0, -1.6}, {3.0, 1.4}};
        painter.drawPolyline(chevron, 3);
        painter.restore();
    }
    painter.setPen(QPen(palette::kRim, 0.9));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle(kInnerRadius));
    painter.drawEllipse(circle(kOuterRadius));
}

void RingPicture::paintLabel(QPainter &painter, const QRectF &box,
                             const launcher::SheetContent::Command &command, double unit) const
{
    if (command.caption.isEmpty())
        return;
    const QImage icon = QImage::fromData(command.icon, "PNG");
    const double iconSize = icon.isNull() ? 0.0 : kIconSize * unit;
    const QSizeF room(box.width(), box.height() - iconSize);
    // The table has the whole name.
    const auto text = FittedText::ofName(command.caption, m_font, room, qRound(kLargestText * unit),
                                         qRound(kSmallestText * unit), 4);
    // Icon and text together are centred.
    const double top = box.center().y() - (iconSize + text.size.height()) / 2.0;
    if (!icon.isNull()) {
        const QSizeF size = QSizeF(icon.size()).scaled(iconSize, iconSize, Qt::KeepAspectRatio);
        painter.drawImage(QRectF(box.center().x() - size.width() / 2.0,
                                 top + (iconSize - size.height()) / 2.0, size.width(), size.height()),
                          icon);
    }
    painter.setPen(palette::kRim);
    text.paint(painter, QRectF(box.left(), top + iconSize, box.width(), text.size.height()),
               Qt::AlignHCenter);
}

// The text about making a gesture is in the middle, where the gesture begins.
void RingPicture::paintMiddle(QPainter &painter, const QRectF &inner, double unit) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::kHighlightEdge);
    painter.drawEllipse(inner.center() - QPointF(0.0, 30.0 * unit), 4.0 * unit, 4.0 * unit);
    const QRectF box(inner.center().x() - 46.0 * unit, inner.center().y() - 20.0 * unit, 92.0 * unit,
                     46.0 * unit);
    const FittedText text(launcher::Text::tr("Hold %1 and drag. Move on towards a command, "
                                             "or let go to do nothing.")
                              .arg(m_content.triggerInWords()),
                          m_font, box.size(), qRound(8.4 * unit), qRound(5.0 * unit), 5);
    painter.setPen(palette::kMark);
    text.paint(painter, box, Qt::AlignHCenter);
}

} // namespace sheet
