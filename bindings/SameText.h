// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// True if two texts are equal. Fast for copies of one string: a host returns the same strings
// at each reading.
[[nodiscard]] inline bool isSameText(const QString &a, const QString &b)
{
    return a.size() == b.size() && (a.constData() == b.constData() || a == b);
}
