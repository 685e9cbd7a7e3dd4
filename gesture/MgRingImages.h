// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCache>
#include <QImage>
#include <QString>

// The ring's embedded images, decoded. Painting asks for an image by its name in every frame.
// A copy of it stays here, because decoding a PNG takes longer than painting the whole ring.
//
// Qt's own pixmap cache would not do: it drops what was not used for a while, and big images
// would push out those of the program.
class MgRingImages
{
public:
    MgRingImages();

    // The image of a path in the embedded resources, for a device with `ratio` pixels for each
    // pixel of the widget. Qt's names "@2x" and "@3x" are tried and the best one is scaled to
    // fit, so it is painted pixel by pixel. Null if there is no such image.
    [[nodiscard]] QImage image(const QString &path, qreal ratio);

private:
    qreal m_ratio = 0.0; // of all images kept
    QCache<QString, QImage> m_images; // costs in bytes
};
