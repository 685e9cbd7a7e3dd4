// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Canvas.h"

#include "examples/sketchpad/CommandLine.h"
#include "sdk/QtBridge.h"

#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// The pointer touches what is this near, in pixels.
constexpr double kReach = 8;
constexpr double kWheelFactor = 1.2;
constexpr double kSmallestScale = 1e-6;
constexpr double kLargestScale = 1e6;

const QColor kGround(0x1b, 0x20, 0x28);
const QColor kGrid(0x23, 0x29, 0x33);
const QColor kGridTenth(0x2d, 0x35, 0x42);
const QColor kAxisX(0x7a, 0x3b, 0x42);
const QColor kAxisY(0x3c, 0x6b, 0x4a);
const QColor kSelected(0x5a, 0xa9, 0xff);
const QColor kPreview(0xff, 0xb8, 0x4d);
const QColor kSnap(0x6b, 0xf0, 0x9b);

} // namespace

Canvas::Canvas(Drawing &drawing, QWidget *parent)
    : QWidget(parent)
    , m_drawing(drawing)
    , m_tool(drawing)
{
    setObjectName(QStringLiteral("canvas"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setCursor(Qt::BlankCursor); // paintPointer() draws one that is visible on dark
    setMinimumSize(200, 150);
    // A change of the drawing invalidates the indices.
    connect(&drawing, &Drawing::changed, this, [this] { select({}); });
}

QColor Canvas::color(int index)
{
    static const QRgb named[] = {0xffe6e9ef, 0xffff6b6b, 0xffffd866, 0xff7bd88f, 0xff5ad4e6,
                                 0xff6f9cff, 0xffd68cff, 0xffe6e9ef, 0xff8b94a3, 0xffb9c0cb};
    if (index >= 0 && index < 10)
        return QColor::fromRgb(named[index]);
    if (index < 250) // 24 hues in five shades, each full and pale
        return QColor::fromHsv((index / 10 - 1) * 15 % 360, index % 2 ? 110 : 220,
                               255 - index % 10 / 2 * 32);
    return QColor::fromHsv(0, 0, std::min(110 + (index - 250) * 27, 255));
}

QTransform Canvas::view() const
{
    QTransform transform;
    transform.translate(width() / 2.0, height() / 2.0);
    transform.scale(m_scale, -m_scale);
    transform.translate(-m_centre.x(), -m_centre.y());
    return transform;
}

QPointF Canvas::toDrawing(const QPointF &pixels) const
{
    return view().inverted().map(pixels);
}

QPointF Canvas::toPixels(const QPointF &point) const
{
    return view().map(point);
}

void Canvas::begin(Tool::Kind kind)
{
    m_tool.begin(kind, m_selection);
    m_bandFrom.reset();
    if (kind != Tool::Kind::Copy)
        m_selection.clear();
    Q_EMIT toolChanged();
    update();
}

bool Canvas::type(const QString &text)
{
    if (m_tool.wants() == Tool::Wants::Nothing)
        return false;
    const CommandLine::Input input = CommandLine::parse(text, m_tool.lastPoint());
    if (input.kind == CommandLine::Input::Kind::Nothing) {
        begin(Tool::Kind::Select);
        return true;
    }
    if (m_tool.wants() == Tool::Wants::Words) {
        finishStep(m_tool.words(text));
    } else if (input.kind == CommandLine::Input::Kind::Point) {
        finishStep(m_tool.point(input.point, kReach / m_scale));
    } else if (input.kind == CommandLine::Input::Kind::Number) {
        finishStep(m_tool.number(input.number));
    } else {
        return false;
    }
    return true;
}

void Canvas::setTyped(const QString &text)
{
    m_typed = text;
    update();
}

void Canvas::finishStep(const QString &problem)
{
    Q_EMIT hint(problem);
    Q_EMIT toolChanged();
    update();
}

void Canvas::select(const std::vector<std::size_t> &indices)
{
    m_selection = indices;
    update();
}

void Canvas::selectIn(const QRectF &frame, bool touching, bool adding)
{
    std::vector<std::size_t> found = adding ? m_selection : std::vector<std::size_t>();
    for (std::size_t i = 0; i < m_drawing.entities().size(); ++i) {
        const Entity &entity = m_drawing.entities()[i];
        const QRectF bounds = entity.bounds().adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
        if ((touching ? frame.intersects(bounds) : frame.contains(bounds))
            && m_drawing.isVisible(entity))
            found.push_back(i);
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    select(found);
}

void Canvas::zoomToBounds()
{
    const QRectF bounds = m_drawing.bounds().value_or(QRectF(-100, -75, 200, 150));
    m_centre = bounds.center();
    const double across = width() * 0.9 / std::max(bounds.width(), 1e-3);
    const double upright = height() * 0.9 / std::max(bounds.height(), 1e-3);
    m_scale = std::clamp(std::min(across, upright), kSmallestScale, kLargestScale);
    update();
}

void Canvas::zoom(double factor, const QPointF &fixed)
{
    const QPointF before = toDrawing(fixed);
    m_scale = std::clamp(m_scale * factor, kSmallestScale, kLargestScale);
    m_centre += before - toDrawing(fixed);
    update();
}

void Canvas::setGridShown(bool shown)
{
    m_gridShown = shown;
    update();
}

void Canvas::follow(const QPointF &pixels)
{
    m_pointer = pixels;
    m_cursor = toDrawing(pixels);
    m_snap.reset();
    if (m_snapping && m_tool.wants() == Tool::Wants::Point) {
        double reach = kReach / m_scale;
        for (const Entity &entity : m_drawing.entities()) {
            if (!m_drawing.isVisible(entity))
                continue;
            for (const QPointF &point : entity.snapPoints()) {
                const double distance = QLineF(m_cursor, point).length();
                if (distance <= reach) {
                    reach = distance;
                    m_snap = point;
                }
            }
        }
    }
    m_cursor = m_snap.value_or(m_cursor);
    Q_EMIT cursorMoved(m_cursor);
    update();
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    const QPointF pixels = qtbridge::localPosition(*event);
    follow(pixels);
    if (event->button() == Qt::MiddleButton)
        m_panFrom = pixels;
    if (event->button() != Qt::LeftButton)
        return;
    if (m_tool.wants() == Tool::Wants::Nothing)
        m_bandFrom = m_cursor;
    else
        finishStep(m_tool.point(m_cursor, kReach / m_scale));
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF pixels = qtbridge::localPosition(*event);
    if (m_panFrom) {
        m_centre += toDrawing(*m_panFrom) - toDrawing(pixels);
        m_panFrom = pixels;
    }
    m_pointerIsHere = true;
    follow(pixels);
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointF pixels = qtbridge::localPosition(*event);
    if (event->button() == Qt::MiddleButton)
        m_panFrom.reset();
    if (event->button() != Qt::LeftButton || !m_bandFrom)
        return;
    const QPointF from = toPixels(*m_bandFrom);
    const QRectF frame = QRectF(*m_bandFrom, toDrawing(pixels)).normalized();
    const bool adding = event->modifiers() & Qt::ShiftModifier;
    m_bandFrom.reset();
    if ((from - pixels).manhattanLength() > kReach) {
        // A frame drawn to the left also selects what it only touches.
        selectIn(frame, pixels.x() < from.x(), adding);
        return;
    }
    std::vector<std::size_t> found = adding ? m_selection : std::vector<std::size_t>();
    if (const auto index = m_drawing.nearest(m_cursor, kReach / m_scale)) {
        const auto place = std::lower_bound(found.begin(), found.end(), *index);
        if (place != found.end() && *place == *index)
            found.erase(place);
        else
            found.insert(place, *index);
    }
    select(found);
}

void Canvas::wheelEvent(QWheelEvent *event)
{
    zoom(std::pow(kWheelFactor, event->angleDelta().y() / 120.0), event->position());
    follow(event->position());
}

void Canvas::leaveEvent(QEvent *)
{
    m_pointerIsHere = false;
    update();
}

void Canvas::resizeEvent(QResizeEvent *)
{
    update();
}

void Canvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), kGround);
    if (m_gridShown)
        paintGrid(painter);
    painter.setRenderHint(QPainter::Antialiasing);

    auto selected = m_selection.begin();
    for (std::size_t i = 0; i < m_drawing.entities().size(); ++i) {
        const Entity &entity = m_drawing.entities()[i];
        const bool isSelected = selected != m_selection.end() && *selected == i;
        if (isSelected)
            ++selected;
        const int own =
            entity.color > 255 ? m_drawing.sheet().layers.value(entity.layer).color : entity.color;
        if (m_drawing.isVisible(entity))
            paint(painter, entity, isSelected ? kSelected : color(own), isSelected);
    }
    for (const Entity &entity : m_tool.preview(m_cursor, m_typed))
        paint(painter, entity, kPreview, false);
    if (m_bandFrom && m_pointerIsHere) {
        QColor fill = kSelected;
        fill.setAlpha(40);
        painter.setPen(QPen(kSelected, 1,
                            m_pointer.x() < toPixels(*m_bandFrom).x() ? Qt::DashLine : Qt::SolidLine));
        painter.setBrush(fill);
        painter.drawRect(QRectF(toPixels(*m_bandFrom), m_pointer).normalized());
    }
    if (m_pointerIsHere)
        paintPointer(painter);
}

void Canvas::paint(QPainter &painter, const Entity &entity, const QColor &color, bool selected) const
{
    const Sheet &sheet = m_drawing.sheet();
    const Sheet::Layer layer = sheet.layers.value(entity.layer);
    const QPainterPath path = view().map(entity.outline());
    if (!path.boundingRect().adjusted(-1, -1, 1, 1).intersects(rect()))
        return;
    if (!entity.isCurve()) {
        painter.fillPath(path, color);
        return;
    }
    const int width = entity.width >= 0 ? entity.width : layer.width;
    QPen pen(color, width > 25 ? width / 25.0 : 1.2);
    if (selected)
        pen.setWidthF(pen.widthF() + 1);
    pen.setCapStyle(Qt::RoundCap);
    const bool byLayer = entity.lineType.compare(QLatin1String("BYLAYER"), Qt::CaseInsensitive) == 0;
    QVector<qreal> dashes;
    for (const double dash : sheet.lineTypes.value(byLayer ? layer.lineType : entity.lineType))
        dashes.append(std::max(std::abs(dash) * m_scale / pen.widthF(), 0.1));
    // Skip a pattern that is so fine that it looks grey and takes long to paint. Qt takes only
    // patterns of an even length.
    const double pixels = std::accumulate(dashes.begin(), dashes.end(), 0.0) * pen.widthF();
    if (!dashes.isEmpty() && dashes.size() % 2 == 0 && pixels > 4) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(dashes);
    }
    painter.strokePath(path, pen);
    if (selected) {
        for (const QPointF &grip : entity.snapPoints())
            painter.fillRect(QRectF(toPixels(grip) - QPointF(3.5, 3.5), QSizeF(7, 7)), kSelected);
    }
}

void Canvas::paintGrid(QPainter &painter) const
{
    // The smallest power of ten whose lines are at least 12 pixels apart.
    const double step = std::pow(10, std::ceil(std::log10(12 / m_scale)));
    const QRectF seen(toDrawing({0.0, double(height())}), toDrawing({double(width()), 0.0}));
    for (const bool tenth : {false, true}) {
        const double gap = tenth ? step * 10 : step;
        painter.setPen(tenth ? kGridTenth : kGrid);
        // Lines are counted: far from the origin, adding a small step may change nothing.
        const double left = std::ceil(seen.left() / gap);
        const double bottom = std::ceil(seen.top() / gap);
        for (int i = 0; i <= width() / 12 + 1; ++i)
            painter.drawLine(QLineF(toPixels({(left + i) * gap, seen.top()}),
                                    toPixels({(left + i) * gap, seen.bottom()})));
        for (int i = 0; i <= height() / 12 + 1; ++i)
            painter.drawLine(QLineF(toPixels({seen.left(), (bottom + i) * gap}),
                                    toPixels({seen.right(), (bottom + i) * gap})));
    }
    painter.setPen(kAxisX);
    painter.drawLine(QLineF(toPixels({seen.left(), 0}), toPixels({seen.right(), 0})));
    painter.setPen(kAxisY);
    painter.drawLine(QLineF(toPixels({0, seen.top()}), toPixels({0, seen.bottom()})));
}

void Canvas::paintPointer(QPainter &painter) const
{
    const QPointF at = m_snap ? toPixels(*m_snap) : m_pointer;
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(255, 255, 255, 60));
    painter.drawLine(QLineF(0, at.y(), width(), at.y()));
    painter.drawLine(QLineF(at.x(), 0, at.x(), height()));
    painter.setPen(QColor(255, 255, 255, 200));
    if (m_tool.wants() == Tool::Wants::Entity || m_tool.wants() == Tool::Wants::Nothing)
        painter.drawRect(QRectF(at - QPointF(5, 5), QSizeF(10, 10)));
    painter.drawLine(QLineF(at - QPointF(14, 0), at + QPointF(14, 0)));
    painter.drawLine(QLineF(at - QPointF(0, 14), at + QPointF(0, 14)));
    if (m_snap) {
        painter.setPen(QPen(kSnap, 2));
        painter.drawRect(QRectF(at - QPointF(6, 6), QSizeF(12, 12)));
    }
}
