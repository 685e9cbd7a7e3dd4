// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Drawing.h"

#include <algorithm>
#include <utility>

void Drawing::setSheet(Sheet sheet)
{
    m_sheet = std::move(sheet);
    m_undone = {};
    m_modified = false;
    Q_EMIT changed();
}

void Drawing::setSaved()
{
    m_sheet.unread.clear();
    m_modified = false;
    Q_EMIT changed();
}

void Drawing::change(const std::vector<std::size_t> &indices, const std::vector<Entity> &added)
{
    if (indices.empty() && added.empty())
        return;
    m_undone.past.push_back(m_sheet.entities);
    m_undone.future.clear();
    for (auto index = indices.rbegin(); index != indices.rend(); ++index)
        m_sheet.entities.erase(m_sheet.entities.begin() + static_cast<std::ptrdiff_t>(*index));
    m_sheet.entities.insert(m_sheet.entities.end(), added.begin(), added.end());
    m_modified = true;
    Q_EMIT changed();
}

void Drawing::step(States &from, States &to)
{
    if (from.empty())
        return;
    to.push_back(std::exchange(m_sheet.entities, std::move(from.back())));
    from.pop_back();
    m_modified = true;
    Q_EMIT changed();
}

bool Drawing::isVisible(const Entity &entity) const
{
    return m_sheet.layers.value(entity.layer).isVisible();
}

std::optional<std::size_t> Drawing::nearest(const QPointF &point, double reach) const
{
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < entities().size(); ++i) {
        const double distance = entities()[i].distanceTo(point);
        if (distance <= reach && isVisible(entities()[i])) {
            reach = distance;
            found = i;
        }
    }
    return found;
}

std::optional<QRectF> Drawing::bounds() const
{
    std::optional<QRectF> all;
    for (const Entity &entity : entities()) {
        if (!isVisible(entity))
            continue;
        // QRectF::united ignores a rectangle of height 0, such as that of a horizontal line.
        const QRectF one = entity.bounds();
        all = !all ? one
                   : QRectF(QPointF(std::min(all->left(), one.left()), std::min(all->top(), one.top())),
                            QPointF(std::max(all->right(), one.right()),
                                    std::max(all->bottom(), one.bottom())));
    }
    return all;
}
