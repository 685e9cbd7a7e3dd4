// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/RememberedIcon.h"

#include <QBuffer>
#include <QIconEngine>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

namespace gesturewidget {
namespace {

// A small file can claim to be a picture of gigabytes.
constexpr quint32 kMaximalSide = 256; // pixels

// True if the file begins as a PNG file of reasonable size. This is checked first, because Qt's
// reader prints its complaints to standard error.
bool isAcceptable(const QByteArray &file)
{
    const auto sideAt = [&file](int place) { return qFromBigEndian<quint32>(file.constData() + place); };
    constexpr int kHeaderSize = 33; // signature and first chunk, with its checksum
    return file.size() > kHeaderSize && file.startsWith("\x89PNG\r\n\x1a\n")
        && sideAt(16) <= kMaximalSide && sideAt(20) <= kMaximalSide;
}

QPixmap pixmapFromPng(const QByteArray &file)
{
    QPixmap pixmap;
    if (isAcceptable(file))
        pixmap.loadFromData(file, "PNG");
    return pixmap;
}

// Reads the file when it is painted: programs have a thousand commands, and eight are painted.
class LazyIconEngine : public QIconEngine
{
public:
    explicit LazyIconEngine(const QByteArray &file)
        : m_file(file)
    {
    }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    [[nodiscard]] QIconEngine *clone() const override { return new LazyIconEngine(m_file); }

private:
    const QIcon &icon()
    {
        if (!m_wasRead)
            m_icon = QIcon(pixmapFromPng(m_file));
        m_wasRead = true;
        return m_icon;
    }

    QByteArray m_file;
    QIcon m_icon;
    bool m_wasRead = false;
};

} // namespace

QByteArray iconToPng(const QIcon &icon)
{
    const QSize size(kRememberedIconSize, kRememberedIconSize);
    const QImage image = icon.isNull() ? QImage() : icon.pixmap(size).toImage();
    if (image.isNull())
        return {};
    QByteArray file;
    QBuffer buffer(&file);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") ? file : QByteArray();
}

QIcon iconFromPng(const QByteArray &file)
{
    return file.isEmpty() ? QIcon() : QIcon(new LazyIconEngine(file));
}

} // namespace gesturewidget
