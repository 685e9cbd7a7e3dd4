#pragma once

#include "examples/sketchpad/Tool.h"

#include <QTransform>
#include <QWidget>

// The drawing on the screen: shows it, moves over it, and hands the pointer to the tool.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(Drawing &drawing, QWidget *parent = nullptr);

    // Starts a command, with what is selected.
    void begin(Tool::Kind kind);
    [[nodiscard]] const Tool &tool() const { return m_tool; }
    // Gives what was typed to the running command. False if it is not for it: a command's
    // name, perhaps.
    bool type(const QString &text);
    // What is being typed, to be shown where it will stand.
    void setTyped(const QString &text);

    [[nodiscard]] const std::vector<std::size_t> &selection() const { return m_selection; }
    void select(const std::vector<std::size_t> &indices);

    void zoomToBounds();
    // Larger for a factor above 1; the point at `fixed` (pixels) stays where it is.
    void zoom(double factor, const QPointF &fixed);
    [[nodiscard]] QPointF toDrawing(const QPointF &pixels) const;
    [[nodiscard]] QPointF toPixels(const QPointF &point) const;

    void setGridShown(bool shown);
    void setSnapping(bool snapping) { m_snapping = snapping; }
    // A colour index of DXF as it looks on this dark ground.
    [[nodiscard]] static QColor color(int index);

Q_SIGNALS:
    void cursorMoved(const QPointF &point);
    void toolChanged();
    // What is typed over the canvas is meant for the command line.
    void keyPressed(QKeyEvent *event);
    // Something to tell the person in the status bar.
    void hint(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override { Q_EMIT keyPressed(event); }
    void leaveEvent(QEvent *event) override;

private:
    void follow(const QPointF &pixels);
    void finishStep(const QString &problem);
    void selectIn(const QRectF &frame, bool touching, bool adding);
    void paintGrid(QPainter &painter) const;
    void paintPointer(QPainter &painter) const;
    void paint(QPainter &painter, const Entity &entity, const QColor &color, bool selected) const;
    [[nodiscard]] QTransform view() const;

    Drawing &m_drawing;
    Tool m_tool;
    std::vector<std::size_t> m_selection;
    double m_scale = 4; // pixels a unit
    QPointF m_centre; // of the view, in drawing units
    QPointF m_pointer; // in pixels
    QPointF m_cursor; // where the next point falls, in drawing units
    std::optional<QPointF> m_snap;
    std::optional<QPointF> m_panFrom; // in pixels
    std::optional<QPointF> m_bandFrom; // in drawing units
    QString m_typed;
    bool m_pointerIsHere = false;
    bool m_gridShown = true;
    bool m_snapping = true;
};
