// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <cstddef>
#include <vector>

// Files commands under categories, in the order of a walk through all menus. Every walk reads
// everything; one that finds what the last walk found does not build the map again, which would
// take most of the time of opening the ring.
class CategoryWalk
{
public:
    void begin();
    // Returns the text or, while the walk finds what the last one found, that walk's equal text for the
    // next command. file() recognises such a text by its address.
    [[nodiscard]] QString asBefore(const QString &category) const;
    // A later call for the same command replaces an earlier one.
    void file(const QString &command, const QString &category);
    // Ends the walk and gives the map from command strings to categories.
    [[nodiscard]] QMap<QString, QString> end();

    // True if the last walk found the same as the walk before it.
    [[nodiscard]] bool isAsBefore() const { return m_isAsBefore; }

private:
    struct Entry
    {
        QString command;
        QString category;
    };
    void leaveTheLastWalk();

    std::vector<Entry> m_entries; // of the last walk; while as before, those from m_next on lie ahead
    std::size_t m_next = 0;
    bool m_isAsBefore = false;
    QMap<QString, QString> m_map;
};
