// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

#include <map>
#include <utility>

// The contents of the ring by direction. Directions count the sectors counter-clockwise from
// the top, from 0. The maps hold every direction below sectorCount.
struct DonutHelperData
{
    // Values of the first half of a sector's pair: they tell what the second half is.
    static constexpr int kIcon = 0; // a QIcon to draw in the sector
    static constexpr int kText = 1; // a QString to write in the sector; empty when unbound

    int sectorCount = 0; // 4 or 8
    std::map<int, std::pair<int, QVariant>> sectorVisuals;
    std::map<int, QString> sectorTooltips;
    // The captions of the commands, also of those that show an icon; empty when unbound.
    std::map<int, QString> sectorNames;
};
