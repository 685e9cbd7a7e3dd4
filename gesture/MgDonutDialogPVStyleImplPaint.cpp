// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The painting half of MgDonutDialogPVStyleImpl.

#include "bindings/DonutHelperData.h"
#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "sdk/QtBridge.h"

#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QPaintEngine>
#include <QPainter>
#include <QPaintEvent>
#include <QPen>
#include <QPixmap>

#include <cmath>

namespace {

// From the window's edge to the circle of the labels' centres, in pixels.
constexpr double kLabelInset = 32.0;
// A full turn in radians. Pi is 22/7, as in MgDonutDialog.
constexpr double kFullTurnInRadians = 6.285714285714286;
// The background's opacity. Highlight and labels are opaque.
constexpr double kRingOpacity = 120.0 / 255.0;

// Texts wider than this, in pixels, are cut ...
constexpr int kTextLimit = 50;
// ... to this many characters. One fewer in the active sector, deliberately.
constexpr int kCutLength = 8;
constexpr int kActiveCutLength = 7;
// From a label's point down to its text's baseline, in pixels.
constexpr double kBaseline = 3.0;
constexpr int kIconSize = 20;

// Pixels of the device for each pixel of the widget. QPainter::device() would be the widget, even
// when it is painted somewhere else.
qreal deviceRatio(const QPainter &painter)
{
    return painter.paintEngine()->paintDevice()->devicePixelRatioF();
}

// The path of an image in the embedded resources.
QString imagePath(const QString &name)
{
    return QLatin1String(":/gesturewidgetimages/Resources/") + name + QLatin1String(".png");
}

// The name of a highlight. `composedName` is "targetDonut_" with the number of sectors and the
// index, one digit each. Empty if there is no such sector.
QString regionName(const QString &composedName)
{
    const auto digits = composedName.indexOf(QLatin1Char('_')) + 1;
    const int scheme = composedName.at(digits).digitValue();
    const int index = composedName.at(digits + 1).digitValue();
    if (scheme == 4) {
        switch (index) {
        case 0:
            return QStringLiteral("gestureregion_top");
        case 1:
            return QStringLiteral("gestureregion_left");
        case 2:
            return QStringLiteral("gestureregion_bottom");
        case 3:
            return QStringLiteral("gestureregion_right");
        default:
            return {};
        }
    }
    // The images are numbered from the right.
    if (scheme == 8 && index >= 0 && index < 8)
        return QStringLiteral("gestureregion%1").arg((index + 2) % 8 + 1);
    return {};
}

// Names no image for an index that is no sector; nothing is drawn then.
QString highlightPath(int sectorCount, int index)
{
    return imagePath(regionName(QStringLiteral("targetDonut_%1%2").arg(sectorCount).arg(index)));
}

// Moves logical (0, 0) to the window's centre.
void centrePainter(QPainter *painter, int width, int height)
{
    painter->setViewport(0, 0, width, height);
    painter->setWindow(-(width / 2), -(height / 2), width, height);
}

// The painter's origin is the label's point.
void drawText(QPainter *painter, const QString &whole, double rotation, int cutLength)
{
    painter->setPen(QPen(Qt::SolidLine));
    const QFont font(QStringLiteral("TAHOMA"), 10);
    painter->setFont(font);
    const QFontMetrics metrics(font);
    QString text = whole;
    int width = metrics.horizontalAdvance(text);
    if (width > kTextLimit) {
        text = text.left(cutLength) + QLatin1String("..");
        width = metrics.horizontalAdvance(text);
    }
    painter->rotate(rotation);
    const int half = width / 2; // whole pixels
    painter->drawText(QPointF(-half, kBaseline), text);
}

void drawIcon(QPainter *painter, const QIcon &icon)
{
    const qreal ratio = deviceRatio(*painter);
    const QPixmap pixmap = qtbridge::pixmapOf(icon, QSize(kIconSize, kIconSize), ratio); // or null
    // An icon without an image of this density is enlarged; any other is painted pixel by pixel.
    if (pixmap.devicePixelRatio() < ratio)
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize size = pixmap.size() / pixmap.devicePixelRatio();
    painter->drawPixmap(QPoint(-(size.width() / 2), -(size.height() / 2)), pixmap);
}

} // namespace

void MgDonutDialogPVStyleImpl::paint(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(event->rect());
    // Has no effect and is kept.
    painter.save();
    painter.restore();
    // Without a compositor, what lies under the window is painted here, in both kinds of frame.
    if (!m_backdrop.isNull())
        painter.drawPixmap(QPoint(0, 0), m_backdrop);

    if (fading) {
        // A widget allows one painter at a time.
        painter.end();
        doFadingPaint();
        return;
    }

    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    painter.save();
    painter.setOpacity(kRingOpacity);
    painter.drawImage(QPoint(0, 0),
                      m_images.image(imagePath(QStringLiteral("gesture_widget")), deviceRatio(painter)));
    painter.restore();

    if (activeArc == -1)
        return;

    painter.save();
    centrePainter(&painter, width(), height());
    const int sectors = static_cast<int>(sectorVisuals.size());
    for (int i = 0; i < sectors; ++i) {
        if (i == activeArc)
            continue;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing); // on already; meant
        drawLabelOf(&painter, i, kCutLength);
        painter.restore();
    }
    painter.restore();

    drawHighlight(&painter);
    centrePainter(&painter, width(), height());
    drawLabelOf(&painter, activeArc, kActiveCutLength);
}

void MgDonutDialogPVStyleImpl::doFadingPaint()
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    drawHighlight(&painter);
    painter.save();
    centrePainter(&painter, width(), height());
    drawLabelOf(&painter, activeArc, kActiveCutLength);
    painter.restore();
}

double MgDonutDialogPVStyleImpl::setPainterOrigin(QPainter *painter, int sectorCount, int index,
                                                  bool &lowerHalf) const
{
    lowerHalf = true;
    const double radius = width() * 0.5 - kLabelInset;
    const int sectorWidth = sectorCount == 8 ? 45 : 90;
    const int degrees = index * sectorWidth + 90;
    // Subtracted from a full turn, because the screen's y axis points down.
    const double angle = kFullTurnInRadians - (degrees * 22.0) / 1260.0;
    painter->translate(std::cos(angle) * radius, std::sin(angle) * radius);

    // Texts run along the ring and are never upside down.
    if (sectorCount == 8) {
        switch (index) {
        case 1:
            return -45.0;
        case 2:
            return -90.0;
        case 3:
            lowerHalf = false;
            return 45.0;
        case 4:
            lowerHalf = false;
            return 0.0;
        case 5:
            lowerHalf = false;
            return -45.0;
        case 6:
            return 90.0;
        case 7:
            return 45.0;
        default:
            return 0.0;
        }
    }
    switch (index) {
    case 0:
        return 0.0;
    case 2:
        lowerHalf = false;
        return 0.0;
    case 3:
        return 90.0;
    default:
        return -90.0;
    }
}

void MgDonutDialogPVStyleImpl::drawHighlight(QPainter *painter)
{
    const QImage highlight = m_images.image(highlightPath(arcCount, activeArc), deviceRatio(*painter));
    painter->drawImage(QPoint(0, 0), highlight);
}

void MgDonutDialogPVStyleImpl::drawLabelOf(QPainter *painter, int index, int cutLength) const
{
    bool lowerHalf = true;
    const double rotation = setPainterOrigin(painter, arcCount, index, lowerHalf);
    if (index < 0 || index >= static_cast<int>(sectorVisuals.size()))
        return;
    const auto &[kind, value] = sectorVisuals[static_cast<std::size_t>(index)];
    if (kind == DonutHelperData::kIcon)
        drawIcon(painter, value.value<QIcon>());
    else
        drawText(painter, value.toString(), rotation, cutLength);
}
