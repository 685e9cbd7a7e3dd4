#pragma once

#include <QString>

// Whether two texts are equal. Quick for copies of one string, which is what a host hands out
// from one reading to the next.
[[nodiscard]] inline bool isSameText(const QString &a, const QString &b)
{
    return a.size() == b.size() && (a.constData() == b.constData() || a == b);
}
