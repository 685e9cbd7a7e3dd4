// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Tool.h"

#include <QTransform>
#include <QWidget>

// The view of the drawing: shows it, zooms and pans, and passes the pointer to the tool.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(Drawing &drawing, QWidget *parent = nullptr);

    // Starts a command with the selection.
    void begin(Tool::Kind kind);
    [[nodiscard]] const Tool &tool() const { return m_tool; }
    // Passes typed text to the running command. Returns false if the command cannot use it,
    // for instance because it is the name of a command.
    bool type(const QString &text);
    // Shows the text that is being typed where it will be placed.
    void setTyped(const QString &text);

    [[nodiscard]] const std::vector<std::size_t> &selection() const { return m_selection; }
    void select(const std::vector<std::size_t> &indices);

    void zoomToBounds();
    // Enlarges by a factor above 1. The point at `fixed` (pixels) keeps its place.
    void zoom(double factor, const QPointF &fixed);
    [[nodiscard]] QPointF toDrawing(const QPointF &pixels) const;
    [[nodiscard]] QPointF toPixels(const QPointF &point) const;

    void setGridShown(bool shown);
    void setSnapping(bool snapping) { m_snapping = snapping; }
    // The colour of a DXF colour index on this dark ground.
    [[nodiscard]] static QColor color(int index);

Q_SIGNALS:
    void cursorMoved(const QPointF &point);
    void toolChanged();
    // Keys typed over the canvas are for the command line.
    void keyPressed(QKeyEvent *event);
    // A message for the status bar.
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
    double m_scale = 4; // pixels per unit
    QPointF m_centre; // of the view, in drawing units
    QPointF m_pointer; // in pixels
    QPointF m_cursor; // the next point, in drawing units
    std::optional<QPointF> m_snap;
    std::optional<QPointF> m_panFrom; // in pixels
    std::optional<QPointF> m_bandFrom; // in drawing units
    QString m_typed;
    bool m_pointerIsHere = false;
    bool m_gridShown = true;
    bool m_snapping = true;
};
