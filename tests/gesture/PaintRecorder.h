// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QTransform>

#include <vector>

namespace tests {

// Something that was painted.
struct Painted
{
    enum Kind { Image, Pixmap, Text };

    Kind kind;
    QImage image; // of an Image or a Pixmap
    QString text;
    QPointF at; // top left, or the start of a text's baseline; before the transformation
    QTransform transform; // to pixels of the widget
    double opacity;
    bool antialiased;
    QFont font; // of a text
    QPen pen;
    QRect clip; // the last clip rectangle that was set
};

// A paint device that writes images, pixmaps and texts down instead of painting them. It has
// `ratio` pixels for each pixel of a widget.
class PaintRecorder : public QPaintDevice
{
public:
    explicit PaintRecorder(const QSize &size, qreal ratio = 1.0);
    ~PaintRecorder() override;

    [[nodiscard]] QPaintEngine *paintEngine() const override;

    std::vector<Painted> painted;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    QSize m_size;
    qreal m_ratio;
    Engine *m_engine;
};

} // namespace tests
