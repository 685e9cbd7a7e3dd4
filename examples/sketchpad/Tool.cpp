// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Tool.h"

#include "examples/sketchpad/Geometry.h"

#include <QLineF>

void Tool::begin(Kind kind, const std::vector<std::size_t> &selection)
{
    m_kind = kind;
    m_points.clear();
    m_picked.clear();
    if (kind == Kind::Copy) {
        for (const std::size_t index : selection)
            m_picked.push_back(m_drawing.entities()[index]);
    }
}

Tool::Wants Tool::wants() const
{
    switch (m_kind) {
    case Kind::Select:
        return Wants::Nothing;
    case Kind::Text:
        return m_points.empty() ? Wants::Point : Wants::Words;
    case Kind::Offset:
    case Kind::Copy:
        return m_picked.empty() ? Wants::Entity : Wants::Point;
    case Kind::Trim:
        return Wants::Entity;
    default:
        return Wants::Point;
    }
}

QString Tool::prompt() const
{
    switch (m_kind) {
    case Kind::Line:
        return m_points.empty() ? tr("Line: first point") : tr("Line: next point, Enter to end");
    case Kind::Circle:
        return m_points.empty() ? tr("Circle: centre") : tr("Circle: point on it, or its radius");
    case Kind::Text:
        return m_points.empty() ? tr("Text: place, or a height other than %1").arg(m_height)
                                : tr("Text: words");
    case Kind::Offset:
        return m_picked.empty() ? tr("Offset: pick a curve, or a distance other than %1").arg(m_distance)
                                : tr("Offset: on which side?");
    case Kind::Copy:
        if (m_picked.empty())
            return tr("Copy: pick what to copy");
        return m_points.empty() ? tr("Copy: base point") : tr("Copy: target point, Enter to end");
    case Kind::Trim:
        return tr("Trim: pick the part to cut out, Enter to end");
    default:
        return tr("Command:");
    }
}

QString Tool::point(const QPointF &point, double reach)
{
    if (wants() == Wants::Entity)
        return pick(point, reach);
    if (wants() != Wants::Point)
        return {};
    if (m_points.empty() && m_kind != Kind::Offset) {
        m_points.push_back(point);
        return {};
    }
    const std::vector<Entity> drawn = preview(point, {});
    if (drawn.empty())
        return tr("The curve does not fit on that side.");
    m_drawing.change({}, drawn);
    if (m_kind == Kind::Line)
        m_points = {point};
    else if (m_kind == Kind::Offset)
        m_picked.clear();
    else if (m_kind != Kind::Copy)
        begin(Kind::Select);
    return {};
}

QString Tool::pick(const QPointF &point, double reach)
{
    const auto index = m_drawing.nearest(point, reach);
    if (!index)
        return tr("There is nothing here.");
    const Entity entity = m_drawing.entities()[*index];
    if (!entity.isCurve() && m_kind != Kind::Copy)
        return tr("This command does not work on text.");
    if (m_kind != Kind::Trim) {
        m_picked = {entity};
        return {};
    }
    std::vector<Entity> edges;
    for (std::size_t i = 0; i < m_drawing.entities().size(); ++i) {
        if (i != *index && m_drawing.isVisible(m_drawing.entities()[i]))
            edges.push_back(m_drawing.entities()[i]);
    }
    const auto pieces = geometry::trim(entity, point, edges);
    if (!pieces)
        return tr("No other curve crosses it.");
    m_drawing.change({*index}, *pieces);
    return {};
}

QString Tool::number(double value)
{
    if (m_kind == Kind::Circle && !m_points.empty())
        return value > 0 ? point(m_points.back() + QPointF(value, 0), 0)
                         : tr("The radius must be more than 0.");
    const bool sets =
        (m_kind == Kind::Offset && m_picked.empty()) || (m_kind == Kind::Text && m_points.empty());
    if (!sets)
        return tr("This step does not take a number.");
    if (!(value > 0))
        return tr("It must be more than 0.");
    (m_kind == Kind::Text ? m_height : m_distance) = value;
    return {};
}

QString Tool::words(const QString &words)
{
    if (wants() == Wants::Words) {
        m_drawing.add(Entity::label(m_points.back(), m_height, words));
        begin(Kind::Select);
    }
    return {};
}

std::vector<Entity> Tool::preview(const QPointF &cursor, const QString &typed) const
{
    if (m_kind == Kind::Text)
        return {Entity::label(m_points.empty() ? cursor : m_points.back(), m_height,
                              typed.isEmpty() ? tr("Text") : typed)};
    if (m_kind == Kind::Offset && !m_picked.empty()) {
        const auto beside = geometry::offset(m_picked.front(), m_distance, cursor);
        return beside ? std::vector<Entity>{*beside} : std::vector<Entity>{};
    }
    if (m_points.empty() || cursor == m_points.back())
        return {};
    if (m_kind == Kind::Line)
        return {Entity::line(m_points.back(), cursor)};
    if (m_kind == Kind::Circle)
        return {Entity::circle(m_points.back(), QLineF(m_points.back(), cursor).length())};
    std::vector<Entity> copies = m_picked;
    for (Entity &copy : copies)
        copy = copy.translated(cursor - m_points.back());
    return copies;
}
