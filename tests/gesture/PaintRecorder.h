#pragma once

#include <QFont>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QTransform>

#include <vector>

namespace tests {

// Something that was painted, in order.
struct Painted
{
    enum Kind { Image, Pixmap, Text };

    Kind kind;
    QImage image; // of Image and Pixmap
    QString text;
    QPointF at; // top left, of a text the start of its baseline; before the transformation
    QTransform transform; // to pixels of the device
    double opacity;
    bool antialiased;
    QFont font; // of a text
    QPen pen;
    QRect clip; // the last clip rectangle that was set
};

// A paint device that notes images, pixmaps and texts in place of painting them.
class PaintRecorder : public QPaintDevice
{
public:
    explicit PaintRecorder(const QSize &size);
    ~PaintRecorder() override;

    [[nodiscard]] QPaintEngine *paintEngine() const override;

    std::vector<Painted> painted;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    QSize m_size;
    Engine *m_engine;
};

} // namespace tests
