// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Sheet.h"

// Draws on a sheet, on one layer at a time.
class Pen
{
public:
    // Adds a layer. `color` is a DXF colour index, `width` in hundredths of a millimetre.
    void addLayer(const char *name, int color, int width, const char *lineType = "CONTINUOUS");
    // Sets the layer for everything drawn from now on.
    void take(const char *layer) { m_layer = QLatin1String(layer); }

    void line(double x1, double y1, double x2, double y2);
    // Lines from point to point, and back to the first if `closed`.
    void lines(const QVector<QPointF> &points, bool closed = false);
    void rectangle(double left, double bottom, double width, double height);
    // A rectangle with corners of this radius.
    void rounded(double left, double bottom, double width, double height, double radius);
    void circle(double x, double y, double radius);
    void arc(double x, double y, double radius, double start, double sweep);
    // `across` and `upright` align the words at the point, see Entity.
    void text(double x, double y, double height, const QString &words, int across = 1, int upright = 2,
              double angle = 0);
    // Two centre lines that reach `beyond` past a circle.
    void cross(double x, double y, double radius, double beyond);
    // A dimension of a horizontal or vertical distance: its line at `level`, reached from
    // `base`, with arrows and text of this height.
    void across(double x1, double x2, double level, double base, double height, const QString &words);
    void upright(double y1, double y2, double level, double base, double height, const QString &words);

    [[nodiscard]] Sheet &sheet() { return m_sheet; }

private:
    void add(Entity entity);
    void arrow(double x, double y, double angle, double length);

    Sheet m_sheet;
    QString m_layer = QStringLiteral("0");
};
