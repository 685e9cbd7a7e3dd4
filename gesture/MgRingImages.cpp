// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgRingImages.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// All images of a scheme at ratio 1 take 2.3 MB, at ratio 2 9 MB. At ratio 3 the background and
// the last four highlights fit.
constexpr int kMostBytes = 12 * 1024 * 1024;
// The largest ratio that images were drawn for.
constexpr int kLargestRatio = 3;

// The file that Qt would choose for this ratio: the smallest one that has enough pixels.
QString fileFor(const QString &path, qreal ratio)
{
    const auto dot = path.lastIndexOf(QLatin1Char('.'));
    const int wanted = static_cast<int>(std::ceil(std::min<qreal>(ratio, kLargestRatio)));
    for (int n = wanted; n > 1; --n) {
        QString file = path.left(dot) + QStringLiteral("@%1x").arg(n) + path.mid(dot);
        if (QFile::exists(file))
            return file;
    }
    return path;
}

// In the format that is painted fastest. QImage::convertToFormat() would do it with several threads,
// and starting them takes longer than all the rest.
QImage premultiplied(QImage image)
{
    if (image.format() != QImage::Format_ARGB32)
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != 0) // most pixels of a highlight are
                line[x] = qPremultiply(line[x]);
        }
    }
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return image;
}

QImage decoded(const QString &path, qreal ratio)
{
    QImage image(fileFor(path, ratio));
    if (image.isNull())
        return {};
    const QSize wanted = QImageReader(path).size() * ratio;
    if (image.size() != wanted)
        image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image = premultiplied(std::move(image));
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace

MgRingImages::MgRingImages()
    : m_images(kMostBytes)
{
}

QImage MgRingImages::image(const QString &path, qreal ratio)
{
    if (ratio != m_ratio) {
        m_images.clear();
        m_ratio = ratio;
    }
    if (const QImage *kept = m_images.object(path))
        return *kept;
    QImage image = decoded(path, ratio);
    m_images.insert(path, new QImage(image), std::max(static_cast<int>(image.sizeInBytes()), 1));
    return image;
}
