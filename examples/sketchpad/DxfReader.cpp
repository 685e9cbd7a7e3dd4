// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfReader.h"

#include <QLineF>
#include <QMap>
#include <QRegularExpression>
#include <QtMath>

#include <cmath>

namespace {

// Newer files are UTF-8, older ones Windows-1252 with \U+XXXX for other characters.
//
// Everything is decoded in one pass, so that a decoded character never becomes part of
// another code: that is how a file can hold the text "\U+0041" itself.
QString decoded(const std::string &bytes)
{
    QString text = QString::fromUtf8(bytes.c_str());
    if (text.contains(QChar::ReplacementCharacter))
        text = QString::fromLatin1(bytes.c_str());
    static const QRegularExpression code(QStringLiteral("\\\\U\\+([0-9A-Fa-f]{4})|%%([dpcDPC])"));
    static const QMap<QString, QChar> signs{{QStringLiteral("d"), QChar(0x00b0)},
                                            {QStringLiteral("p"), QChar(0x00b1)},
                                            {QStringLiteral("c"), QChar(0x2300)}};
    QString result;
    QString::size_type end = 0;
    for (auto matches = code.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        result.append(text.constData() + end, match.capturedStart() - end);
        const QString digits = match.captured(1);
        result += digits.isEmpty() ? signs.value(match.captured(2).toLower())
                                   : QChar(digits.toUShort(nullptr, 16));
        end = match.capturedEnd();
    }
    return result + text.mid(end);
}

// The side of a polyline between two vertices. `bulge` is the tangent of a quarter of the
// side's arc angle; 0 is a straight side.
Entity side(const QPointF &from, const QPointF &to, double bulge)
{
    const QLineF chord(from, to);
    if (std::abs(bulge) < 1e-9 || chord.length() <= 0)
        return Entity::line(from, to);
    const QPointF normal = QPointF(-chord.dy(), chord.dx()) / 2;
    const QPointF centre = chord.center() + normal * (1 - bulge * bulge) / (2 * bulge);
    const QPointF start = bulge > 0 ? from : to;
    const double radius = chord.length() * (1 + bulge * bulge) / (4 * std::abs(bulge));
    const double angle = qRadiansToDegrees(std::atan2(start.y() - centre.y(), start.x() - centre.x()));
    return Entity::arc(centre, radius, angle, qRadiansToDegrees(4 * std::atan(std::abs(bulge))));
}

} // namespace

void DxfReader::addLayer(const DL_LayerData &data)
{
    if (data.name.empty())
        return;
    // A layer that is off has a negative colour in the file.
    const int color = std::abs(attributes.getColor());
    Sheet::Layer layer;
    layer.color = color > 0 && color < 256 ? color : 7;
    layer.lineType = decoded(attributes.getLinetype()).toUpper();
    layer.width = attributes.getWidth();
    layer.flags = data.flags;
    layer.off = data.off || attributes.getColor() < 0;
    m_sheet.layers[decoded(data.name)] = layer;
}

void DxfReader::addLinetypeDash(double length)
{
    m_dashes.append(length);
}

void DxfReader::addLinetype(const DL_LinetypeData &data)
{
    // Names of line types are case-insensitive.
    m_sheet.lineTypes[decoded(data.name).toUpper()] = m_dashes;
    m_dashes.clear();
}

void DxfReader::add(Entity entity)
{
    const QString layer = decoded(attributes.getLayer());
    entity.layer = layer.isEmpty() ? QStringLiteral("0") : layer;
    entity.color =
        attributes.getColor() >= 0 && attributes.getColor() < 256 ? attributes.getColor() : 256;
    entity.lineType = decoded(attributes.getLinetype()).toUpper();
    entity.width = attributes.getWidth();
    m_sheet.layers[entity.layer]; // every layer has an entry, even if the file has none
    m_sheet.entities.push_back(entity);
}

void DxfReader::addLine(const DL_LineData &data)
{
    add(Entity::line({data.x1, data.y1}, {data.x2, data.y2}));
}

void DxfReader::addArc(const DL_ArcData &data)
{
    const double sweep = std::fmod(std::fmod(data.angle2 - data.angle1, 360) + 360, 360);
    add(Entity::arc({data.cx, data.cy}, data.radius, data.angle1, sweep > 0 ? sweep : 360));
}

void DxfReader::addCircle(const DL_CircleData &data)
{
    add(Entity::circle({data.cx, data.cy}, data.radius));
}

void DxfReader::addText(const DL_TextData &data)
{
    // 4 means centred in both directions. An aligned text is placed by its second point.
    const bool middle = data.hJustification == 4;
    const bool aligned = data.hJustification || data.vJustification;
    Entity text = Entity::label(aligned ? QPointF(data.apx, data.apy) : QPointF(data.ipx, data.ipy),
                                data.height, decoded(data.text));
    text.angle = qRadiansToDegrees(data.angle); // the only angle that dxflib gives in radians
    text.across = middle ? 1 : data.hJustification;
    text.upright = middle ? 2 : data.vJustification;
    add(text);
}

void DxfReader::addPolyline(const DL_PolylineData &data)
{
    endSequence();
    m_isClosed = data.flags & 1;
    ++m_sheet.polylines;
}

void DxfReader::addVertex(const DL_VertexData &data)
{
    m_vertices.push_back(data);
}

void DxfReader::endSequence()
{
    const std::size_t sides = m_vertices.size() < 2 ? 0 : m_vertices.size() - (m_isClosed ? 0 : 1);
    for (std::size_t i = 0; i < sides; ++i) {
        const DL_VertexData &from = m_vertices[i];
        const DL_VertexData &to = m_vertices[(i + 1) % m_vertices.size()];
        add(side({from.x, from.y}, {to.x, to.y}, from.bulge));
    }
    m_vertices.clear();
}
