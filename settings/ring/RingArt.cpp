// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/RingArt.h"

#include "launcher/sheet/RingPicture.h"
#include "resources/draw/RingGeometry.h"

#include <QImage>
#include <QPixmapCache>
#include <QString>

#include <array>
#include <cmath>

namespace settings::ringart {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

// Direction 0 is up, and its image has the number 3.
QString highlightName(int count, int direction)
{
    static constexpr const char *kFour[] = {"_top", "_left", "_bottom", "_right"};
    return QLatin1String("gestureregion")
         + (count == 4 ? QString::fromLatin1(kFour[direction])
                       : QString::number((direction + 2) % 8 + 1));
}

// The image with three pixels for each of the ring's is the only one that is large enough for every
// size here.
QPixmap scaled(const QString &name, int side, qreal ratio)
{
    const int pixels = qRound(side * ratio);
    const QString key = QStringLiteral("ring/%1/%2").arg(name).arg(pixels);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        const QImage image(QStringLiteral(":/gesturewidgetimages/Resources/%1@3x.png").arg(name));
        pixmap = QPixmap::fromImage(
            image.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

Part partAt(const QPointF &point, double side)
{
    const double scale = side / draw::kRingSize;
    const double radius = std::hypot(point.x() - side / 2.0, point.y() - side / 2.0);
    if (radius < draw::kInnerRadius * scale)
        return Part::Middle;
    return radius <= draw::kOuterRadius * scale ? Part::Band : Part::Outside;
}

int directionAt(const QPointF &point, double side, int count)
{
    const double up = side / 2.0 - point.y();
    const double angle = std::atan2(up, point.x() - side / 2.0) * kDegrees;
    const double fromUp = angle - draw::sectorCentre(count, 0) + draw::sectorWidth(count) / 2.0;
    return static_cast<int>(std::floor(fromUp / draw::sectorWidth(count)) + 2 * count) % count;
}

QRectF labelBox(double side, int count, int direction)
{
    // Those of four sectors come first.
    static constexpr auto placeOf = [](int size, int sector) {
        return static_cast<std::size_t>(size == 8 ? sector + 4 : sector);
    };
    // Finding the largest boxes takes milliseconds.
    static const auto boxes = [] {
        std::array<QRectF, 12> all;
        for (const int size : {4, 8}) {
            for (int i = 0; i < size; ++i)
                all.at(placeOf(size, i)) = sheet::RingPicture::labelBox(size, i);
        }
        return all;
    }();
    const double scale = side / draw::kRingSize;
    const QRectF box = boxes.at(placeOf(count, direction));
    return {box.topLeft() * scale, box.size() * scale};
}

QRectF middleBox(double side)
{
    const double radius = (draw::kInnerRadius - 16.0) * side / draw::kRingSize;
    return {side / 2.0 - radius, side / 2.0 - radius, 2.0 * radius, 2.0 * radius};
}

QPixmap ring(int side, qreal ratio)
{
    return scaled(QStringLiteral("gesture_widget"), side, ratio);
}

QPixmap highlight(int count, int direction, int side, qreal ratio)
{
    return scaled(highlightName(count, direction), side, ratio);
}

} // namespace settings::ringart
