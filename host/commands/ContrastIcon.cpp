// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ContrastIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace gesturewidget {
namespace {

// Out of 255. A pixel with less alpha belongs to the soft edge, not to the shape.
constexpr int kShapeAlpha = 128;
// Logical pixels. Leaves room for the halo. Icons are made for this size at every usual device
// pixel ratio, so they are sharp.
constexpr int kShapeSide = 16;
// Contrast at which a line can be read, by the Web Content Accessibility Guidelines 2.1.
constexpr qreal kReadable = 3;
// If one colour of halo suits this part of the outline or more, the whole halo has that colour.
constexpr qreal kNearlyAll = 0.9;

constexpr QRgb kLight = qRgb(255, 255, 255);
constexpr QRgb kDark = qRgb(0, 0, 0);

QImage drawn(const QIcon &icon, qreal ratio, const QRect &place, QIcon::Mode mode, QIcon::State state)
{
    const int side = qRound(kRingIconSide * ratio);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    icon.paint(&painter, place, Qt::AlignCenter, mode, state);
    return image;
}

int alphaAt(const QImage &image, int x, int y)
{
    return image.valid(x, y) ? qAlpha(image.pixel(x, y)) : 0;
}

bool isOutline(const QImage &shape, int x, int y)
{
    return alphaAt(shape, x, y) >= kShapeAlpha
        && (alphaAt(shape, x - 1, y) < kShapeAlpha || alphaAt(shape, x + 1, y) < kShapeAlpha
            || alphaAt(shape, x, y - 1) < kShapeAlpha || alphaAt(shape, x, y + 1) < kShapeAlpha);
}

// The colours of the halo for a whole shape, or for each part of it.
enum class Halo { Light, Dark, Mixed };

Halo haloFor(const QImage &shape)
{
    int outline = 0;
    int suitsLight = 0;
    int suitsDark = 0;
    for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x) {
            if (!isOutline(shape, x, y))
                continue;
            const qreal own = luminanceOf(shape.pixel(x, y));
            ++outline;
            suitsLight += contrastOf(own, luminanceOf(kLight)) >= kReadable ? 1 : 0;
            suitsDark += contrastOf(own, luminanceOf(kDark)) >= kReadable ? 1 : 0;
        }
    }
    if (suitsLight >= kNearlyAll * outline)
        return Halo::Light;
    return suitsDark >= kNearlyAll * outline ? Halo::Dark : Halo::Mixed;
}

// The effect of one pixel of the shape on the halo around it.
struct Influence
{
    float alpha = 0; // 0 to 1
    // The pixel's contrast with either colour, 0 outside the shape.
    float forLight = 0;
    float forDark = 0;
};

Influence influenceOf(QRgb colour)
{
    Influence influence;
    // Soft edges and lines get a whole halo.
    influence.alpha = std::min(1.0F, 4.0F * static_cast<float>(qAlpha(colour)) / 255);
    if (qAlpha(colour) < kShapeAlpha)
        return influence;
    const qreal own = luminanceOf(colour);
    influence.forLight = static_cast<float>(std::min(kReadable, contrastOf(own, luminanceOf(kLight))));
    influence.forDark = static_cast<float>(std::min(kReadable, contrastOf(own, luminanceOf(kDark))));
    return influence;
}

// The influences of a picture's pixels, with an empty frame around them. Because of the frame, code
// that visits the neighbours of a pixel need not check for the border.
class InfluenceMap
{
public:
    InfluenceMap(const QImage &source, int frame)
        : m_stride(source.width() + 2 * frame)
        , m_frame(frame)
        , m_influences(static_cast<std::size_t>(m_stride * (source.height() + 2 * frame)))
    {
        for (int y = 0; y < source.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(source.constScanLine(y));
            for (int x = 0; x < source.width(); ++x)
                m_influences[static_cast<std::size_t>(placeOf(x, y))] = influenceOf(line[x]);
        }
    }

    [[nodiscard]] int stride() const { return m_stride; }
    // `offset` is a Neighbour's.
    [[nodiscard]] const Influence &near(int x, int y, int offset) const
    {
        const int place = placeOf(x, y) + offset;
        return m_influences[static_cast<std::size_t>(place)];
    }

private:
    [[nodiscard]] int placeOf(int x, int y) const { return (y + m_frame) * m_stride + x + m_frame; }

    int m_stride;
    int m_frame;
    std::vector<Influence> m_influences;
};

struct Neighbour
{
    int offset; // in an InfluenceMap
    float weight; // for its alpha: 1 beside the shape, falling to 0 where the halo ends
    float voice; // for the choice of the colour: the nearest pixels count most
};

std::vector<Neighbour> neighbours(qreal width, int reach, int stride)
{
    std::vector<Neighbour> all;
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            const qreal weight = std::min(1.0, width + 0.5 - std::hypot(x, y));
            if (weight > 0)
                all.push_back({y * stride + x, static_cast<float>(weight),
                               static_cast<float>(weight / (1 + x * x + y * y))});
        }
    }
    return all;
}

// The shape with harder edges: a soft edge would blur into the halo, and a line that is thinner
// than a pixel, or between two, would be too faint.
QImage sharpened(const QImage &source)
{
    constexpr int kNothing = 51; // of 255: alpha below this becomes 0,
    constexpr int kWhole = 153; // alpha from this on 255
    QImage result = source;
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QRgb colour = result.pixel(x, y);
            const int alpha = 255 * (qAlpha(colour) - kNothing) / (kWhole - kNothing);
            result.setPixel(x, y,
                            qRgba(qRed(colour), qGreen(colour), qBlue(colour), qBound(0, alpha, 255)));
        }
    }
    return result;
}

// Draws an icon as the program has it, but with a halo for the ring.
class ContrastIconEngine : public QIconEngine
{
public:
    explicit ContrastIconEngine(const QIcon &icon)
        : m_icon(icon)
    {
    }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state) override
    {
        if (!painter->isActive())
            return;
        const qreal ratio = painter->device()->devicePixelRatioF();
        if (place.size() == QSize(kRingIconSide, kRingIconSide))
            painter->drawPixmap(place, ringPixmap(ratio, mode, state));
        else
            m_icon.paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = ratioOf(size, 1);
        return ratio > 0 ? ringPixmap(ratio, mode, state) : m_icon.pixmap(size, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return ratioOf(size, 1) > 0 ? size : m_icon.actualSize(size, mode, state);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new ContrastIconEngine(m_icon); }

    // Qt 5 and Qt 6 both make these requests through this function.
    void virtual_hook(int id, void *data) override
    {
        if (id == QIconEngine::IsNullHook) {
            *static_cast<bool *>(data) = m_icon.isNull();
        } else if (id == QIconEngine::ScaledPixmapHook) {
            auto &wanted = *static_cast<ScaledPixmapArgument *>(data);
            const qreal ratio = ratioOf(wanted.size, wanted.scale);
            // QIcon::pixmap() multiplies the size by the application's ratio.
            wanted.pixmap = ratio > 0 ? ringPixmap(ratio, wanted.mode, wanted.state)
                                      : m_icon.pixmap(wanted.size / qGuiApp->devicePixelRatio(),
                                                      wanted.mode, wanted.state);
        } else {
            QIconEngine::virtual_hook(id, data);
        }
    }

private:
    // Returns the device pixel ratio at which the ring's icon has `size` device pixels; 0 if the
    // size is not one of the ring's. `scale` is the ratio that Qt gives. Qt 5 gives 1 unless the
    // program has asked for high-density pixmaps, so the ratios of the screens are tried too.
    static qreal ratioOf(const QSize &size, qreal scale)
    {
        const auto isRing = [&size](qreal ratio) {
            const int side = qRound(kRingIconSide * ratio);
            return size == QSize(side, side);
        };
        if (isRing(scale))
            return scale;
        const QList<QScreen *> screens =
            qFuzzyCompare(scale, 1) ? QGuiApplication::screens() : QList<QScreen *>();
        for (const QScreen *screen : screens) {
            if (isRing(screen->devicePixelRatio()))
                return screen->devicePixelRatio();
        }
        return 0;
    }

    // In device pixels with ratio 1, as icon engines return pixmaps. The caller sets the ratio.
    const QPixmap &ringPixmap(qreal ratio, QIcon::Mode mode, QIcon::State state)
    {
        if (m_pixmap.isNull() || !qFuzzyCompare(ratio, m_ratio) || mode != m_mode || state != m_state) {
            QImage image = withHalo(ringShape(m_icon, ratio, mode, state), ratio);
            image.setDevicePixelRatio(1);
            m_pixmap = QPixmap::fromImage(image);
            m_ratio = ratio;
            m_mode = mode;
            m_state = state;
        }
        return m_pixmap;
    }

    QIcon m_icon;
    QPixmap m_pixmap; // the last one that the ring asked for
    qreal m_ratio = 0;
    QIcon::Mode m_mode = QIcon::Normal;
    QIcon::State m_state = QIcon::Off;
};

} // namespace

QIcon contrastIcon(const QIcon &icon)
{
    // isNull() would look for the files of a theme's icon.
    return icon.cacheKey() == 0 ? QIcon() : QIcon(new ContrastIconEngine(icon));
}

QImage ringShape(const QIcon &icon, qreal ratio, QIcon::Mode mode, QIcon::State state)
{
    const int margin = (kRingIconSide - kShapeSide) / 2;
    return drawn(icon, ratio, QRect(margin, margin, kShapeSide, kShapeSide), mode, state);
}

QImage withHalo(const QImage &shape, qreal ratio)
{
    QImage source = shape.convertToFormat(QImage::Format_ARGB32);
    source.setDevicePixelRatio(1);
    QImage result(source.size(), QImage::Format_ARGB32_Premultiplied);
    const Halo halo = haloFor(source);
    const qreal width = kHaloWidth * ratio;
    const int reach = static_cast<int>(std::ceil(width));
    const InfluenceMap map(source, reach);
    const std::vector<Neighbour> around = neighbours(width, reach, map.stride());
    for (int y = 0; y < source.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            float strength = 0;
            float forLight = 0;
            float forDark = 0;
            for (const Neighbour &place : around) {
                const Influence &influence = map.near(x, y, place.offset);
                strength = std::max(strength, place.weight * influence.alpha);
                forLight += place.voice * influence.forLight;
                forDark += place.voice * influence.forDark;
            }
            const bool isLight = halo == Halo::Light || (halo == Halo::Mixed && forLight > forDark);
            const QRgb colour = isLight ? kLight : kDark;
            line[x] =
                qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), qRound(255 * strength)));
        }
    }
    QPainter(&result).drawImage(0, 0, sharpened(source));
    result.setDevicePixelRatio(ratio);
    return result;
}

qreal luminanceOf(QRgb colour)
{
    static const std::array<qreal, 256> linear = [] {
        std::array<qreal, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            const qreal part = static_cast<qreal>(i) / 255;
            values[i] = part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    const auto of = [](int part) { return linear[static_cast<std::size_t>(part)]; };
    return 0.2126 * of(qRed(colour)) + 0.7152 * of(qGreen(colour)) + 0.0722 * of(qBlue(colour));
}

qreal contrastOf(qreal luminance, qreal other)
{
    return (std::max(luminance, other) + 0.05) / (std::min(luminance, other) + 0.05);
}

} // namespace gesturewidget
