// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

// One object in a drawing: a line, an arc or circle, or a line of text. Coordinates are in
// drawing units with y upwards, angles in degrees counter-clockwise from the x axis.
struct Entity
{
    enum class Kind { Line, Arc, Text };

    static Entity line(const QPointF &from, const QPointF &to);
    static Entity circle(const QPointF &centre, double radius);
    // `sweep` is more than 0 and at most 360.
    static Entity arc(const QPointF &centre, double radius, double start, double sweep);
    static Entity label(const QPointF &anchor, double height, const QString &words);

    [[nodiscard]] bool isCircle() const { return kind == Kind::Arc && sweep >= 360; }
    // Lines and arcs are curves: parameter 0 is the start, 1 the end.
    [[nodiscard]] bool isCurve() const { return kind != Kind::Text; }
    [[nodiscard]] QPointF at(double parameter) const;
    // The parameter of the point nearest to `point` on the infinite line or the full circle.
    // It is below 0 or above 1 if the curve does not reach that point.
    [[nodiscard]] double parameterAt(const QPointF &point) const;
    // The part of the curve between two parameters.
    [[nodiscard]] Entity part(double from, double to) const;

    [[nodiscard]] Entity translated(const QPointF &by) const;
    // The distance from the point to the curve; 0 inside the bounds of a text.
    [[nodiscard]] double distanceTo(const QPointF &point) const;
    [[nodiscard]] QRectF bounds() const;
    // The points that the pointer snaps to: ends, and centres of arcs.
    [[nodiscard]] std::vector<QPointF> snapPoints() const;
    // The path to paint: stroke it for a curve, fill it for a text.
    [[nodiscard]] QPainterPath outline() const;

    Kind kind = Kind::Line;
    QPointF origin; // start of a line, centre of an arc, anchor of a text
    QPointF end; // of a line
    double radius = 0;
    double angle = 0; // of an arc's start, or of a text's base line
    double sweep = 0; // of an arc
    QString words;
    double height = 0; // of a capital letter of a text
    int across = 0; // the anchor is at a text's 0 left end, 1 middle, 2 right end
    int upright = 0; // and at its 0 base line, 1 bottom, 2 middle, 3 top

    QString layer = QStringLiteral("0");
    int color = 256; // DXF colour index; 256 is the layer's colour
    QString lineType = QStringLiteral("BYLAYER");
    int width = -1; // in hundredths of a millimetre; -1 is the layer's width
};
