// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/CategoryWalk.h"

#include "bindings/SameText.h"

void CategoryWalk::begin()
{
    m_next = 0;
    m_isAsBefore = true;
}

QString CategoryWalk::asBefore(const QString &category) const
{
    if (!m_isAsBefore || m_next >= m_entries.size() || m_entries[m_next].category != category)
        return category;
    return m_entries[m_next].category;
}

void CategoryWalk::file(const QString &command, const QString &category)
{
    if (m_isAsBefore && m_next < m_entries.size() && isSameText(m_entries[m_next].command, command)
        && isSameText(m_entries[m_next].category, category)) {
        ++m_next;
        return;
    }
    leaveTheLastWalk();
    m_entries.push_back({command, category});
    m_map.insert(command, category);
}

QMap<QString, QString> CategoryWalk::end()
{
    // This walk may have found less than the last one.
    if (m_isAsBefore && m_next < m_entries.size())
        leaveTheLastWalk();
    return m_map;
}

// This walk now differs from the last one: start a new map with what it has found so far.
void CategoryWalk::leaveTheLastWalk()
{
    if (!m_isAsBefore)
        return;
    m_isAsBefore = false;
    m_entries.resize(m_next);
    m_map = {};
    for (const Entry &entry : m_entries)
        m_map.insert(entry.command, entry.category);
}
