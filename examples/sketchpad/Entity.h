#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

// One thing in a drawing: a line, an arc or circle, or a line of text. Coordinates are in
// drawing units with y upwards, angles in degrees counter-clockwise from east.
struct Entity
{
    enum class Kind { Line, Arc, Text };

    static Entity line(const QPointF &from, const QPointF &to);
    static Entity circle(const QPointF &centre, double radius);
    // `sweep` is more than 0 and at most 360.
    static Entity arc(const QPointF &centre, double radius, double start, double sweep);
    static Entity label(const QPointF &anchor, double height, const QString &words);

    [[nodiscard]] bool isCircle() const { return kind == Kind::Arc && sweep >= 360; }
    // A line or an arc is a curve that is walked from parameter 0 to 1.
    [[nodiscard]] bool isCurve() const { return kind != Kind::Text; }
    [[nodiscard]] QPointF at(double parameter) const;
    // The parameter of the point of the endless line or the full circle that is nearest to
    // `point`: below 0 or above 1 when the curve does not reach there.
    [[nodiscard]] double parameterAt(const QPointF &point) const;
    // The stretch of the curve between two parameters.
    [[nodiscard]] Entity part(double from, double to) const;

    [[nodiscard]] Entity translated(const QPointF &by) const;
    // From the point to the curve; 0 inside the frame of a text.
    [[nodiscard]] double distanceTo(const QPointF &point) const;
    [[nodiscard]] QRectF bounds() const;
    // Ends, and centres of arcs: what the pointer snaps to.
    [[nodiscard]] std::vector<QPointF> snapPoints() const;
    // To stroke for a curve, to fill for a text.
    [[nodiscard]] QPainterPath outline() const;

    Kind kind = Kind::Line;
    QPointF origin; // start of a line, centre of an arc, anchor of a text
    QPointF end; // of a line
    double radius = 0;
    double angle = 0; // where an arc starts, how a text slopes
    double sweep = 0; // of an arc
    QString words;
    double height = 0; // of a capital letter of a text
    int across = 0; // the anchor is 0 left, 1 in the middle, 2 right of the text
    int upright = 0; // and 0 on its base line, 1 at its bottom, 2 in the middle, 3 at its top

    QString layer = QStringLiteral("0");
    int color = 256; // colour index of DXF; 256 is the layer's
    QString lineType = QStringLiteral("BYLAYER");
    int width = -1; // in hundredths of a millimetre; -1 is the layer's
};
