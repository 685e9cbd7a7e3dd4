// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QString>

// One command of the host that can be bound to a gesture: a plain value, copied freely.
class MgCommandDS
{
public:
    MgCommandDS(const QString &id, const QString &command, const QString &displayName,
                const QString &category, const QString &tooltip, const QIcon &icon,
                unsigned char fourDirection, unsigned char eightDirection);

    // Compares categories only. Records of one category are equivalent: sorting gives them no
    // particular order.
    [[nodiscard]] bool operator<(const MgCommandDS &other) const;
    // True if `id` equals the string. A stored setting finds its record this way.
    [[nodiscard]] bool operator==(const QString &otherId) const;

    QString id; // the host's identifier, such as "ID_LINE"; the value kept in the settings
    QString command; // what the host is asked to run; never empty
    QString displayName; // the caption; the sector's text when there is no icon
    QString category; // caption of the top-level menu that holds the command, or "Others"
    QString tooltip;
    QIcon icon; // may be null
    unsigned char fourDirection; // 0 unbound, else direction index + 1: 1 to 4
    unsigned char eightDirection; // 0 unbound, else direction index + 1: 1 to 8
};
