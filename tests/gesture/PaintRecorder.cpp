// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/PaintRecorder.h"

#include <QPainterPath>

namespace tests {

class PaintRecorder::Engine : public QPaintEngine
{
public:
    Engine(std::vector<Painted> *painted, qreal ratio)
        : QPaintEngine(AllFeatures)
        , m_painted(painted)
        , m_ratio(ratio)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }

    void updateState(const QPaintEngineState &changed) override
    {
        if (changed.state() & DirtyClipRegion)
            m_clip = changed.clipRegion().boundingRect();
        if (changed.state() & DirtyClipPath)
            m_clip = changed.clipPath().boundingRect().toRect();
    }
    void drawImage(const QRectF &rect, const QImage &image, const QRectF &,
                   Qt::ImageConversionFlags) override
    {
        add(Painted::Image, rect.topLeft()).image = image;
    }
    void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &) override
    {
        add(Painted::Pixmap, rect.topLeft()).image = pixmap.toImage();
    }
    void drawTextItem(const QPointF &baseline, const QTextItem &item) override
    {
        Painted &text = add(Painted::Text, baseline);
        text.text = item.text();
        text.font = item.font();
    }

private:
    Painted &add(Painted::Kind kind, const QPointF &at)
    {
        const QPaintEngineState &now = *state;
        const QTransform toWidget = QTransform::fromScale(1.0 / m_ratio, 1.0 / m_ratio);
        m_painted->push_back({kind, QImage(), QString(), at, now.transform() * toWidget, now.opacity(),
                              now.renderHints().testFlag(QPainter::Antialiasing), QFont(), now.pen(),
                              m_clip});
        return m_painted->back();
    }

    std::vector<Painted> *m_painted;
    qreal m_ratio;
    QRect m_clip;
};

PaintRecorder::PaintRecorder(const QSize &size, qreal ratio)
    : m_size(size)
    , m_ratio(ratio)
    , m_engine(new Engine(&painted, ratio))
{
}

PaintRecorder::~PaintRecorder()
{
    delete m_engine;
}

QPaintEngine *PaintRecorder::paintEngine() const
{
    return m_engine;
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDevicePixelRatio:
        return qRound(m_ratio);
    case PdmDevicePixelRatioScaled:
        return qRound(m_ratio * devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace tests
