// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "samples/Pen.h"

#include <QLineF>

void Pen::addLayer(const char *name, int color, int width, const char *lineType)
{
    Sheet::Layer layer;
    layer.color = color;
    layer.width = width;
    layer.lineType = QLatin1String(lineType);
    m_sheet.layers[QLatin1String(name)] = layer;
}

void Pen::add(Entity entity)
{
    entity.layer = m_layer;
    m_sheet.entities.push_back(entity);
}

void Pen::line(double x1, double y1, double x2, double y2)
{
    add(Entity::line({x1, y1}, {x2, y2}));
}

void Pen::lines(const QVector<QPointF> &points, bool closed)
{
    for (int i = 1; i < points.size(); ++i)
        add(Entity::line(points[i - 1], points[i]));
    if (closed)
        add(Entity::line(points.last(), points.first()));
}

void Pen::rectangle(double left, double bottom, double width, double height)
{
    lines({{left, bottom},
           {left + width, bottom},
           {left + width, bottom + height},
           {left, bottom + height}},
          true);
}

void Pen::rounded(double left, double bottom, double width, double height, double radius)
{
    const double right = left + width;
    const double top = bottom + height;
    line(left + radius, bottom, right - radius, bottom);
    line(right, bottom + radius, right, top - radius);
    line(right - radius, top, left + radius, top);
    line(left, top - radius, left, bottom + radius);
    arc(left + radius, bottom + radius, radius, 180, 90);
    arc(right - radius, bottom + radius, radius, 270, 90);
    arc(right - radius, top - radius, radius, 0, 90);
    arc(left + radius, top - radius, radius, 90, 90);
}

void Pen::circle(double x, double y, double radius)
{
    add(Entity::circle({x, y}, radius));
}

void Pen::arc(double x, double y, double radius, double start, double sweep)
{
    add(Entity::arc({x, y}, radius, start, sweep));
}

void Pen::text(double x, double y, double height, const QString &words, int across, int upright,
               double angle)
{
    Entity label = Entity::label({x, y}, height, words);
    label.across = across;
    label.upright = upright;
    label.angle = angle;
    add(label);
}

void Pen::cross(double x, double y, double radius, double beyond)
{
    line(x - radius - beyond, y, x + radius + beyond, y);
    line(x, y - radius - beyond, x, y + radius + beyond);
}

void Pen::arrow(double x, double y, double angle, double length)
{
    for (const double side : {-12.0, 12.0}) {
        const QLineF stroke = QLineF::fromPolar(length, -angle + side);
        line(x, y, x + stroke.x2(), y + stroke.y2());
    }
}

void Pen::across(double x1, double x2, double level, double base, double height, const QString &words)
{
    const double beyond = level > base ? height / 2 : -height / 2;
    line(x1, base + beyond, x1, level + beyond);
    line(x2, base + beyond, x2, level + beyond);
    line(x1, level, x2, level);
    arrow(x1, level, 0, height);
    arrow(x2, level, 180, height);
    text((x1 + x2) / 2, level + height / 2, height, words, 1, 0);
}

void Pen::upright(double y1, double y2, double level, double base, double height, const QString &words)
{
    const double beyond = level > base ? height / 2 : -height / 2;
    line(base + beyond, y1, level + beyond, y1);
    line(base + beyond, y2, level + beyond, y2);
    line(level, y1, level, y2);
    arrow(level, y1, 90, height);
    arrow(level, y2, 270, height);
    text(level - height / 2, (y1 + y2) / 2, height, words, 1, 0, 90);
}
