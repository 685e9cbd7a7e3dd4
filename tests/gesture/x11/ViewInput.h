// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgMouseGestureTracker.h"
#include "tests/fakehost/FakeHitTest.h"
#include "tests/gesture/GestureBench.h"

#include <QObject>

namespace tests {

// Hands the pointer events of a view to a tracker, as hosts do. An update that winds the ring up
// is given twice, so the ring opens before the button can be released.
class ViewInput : public QObject
{
public:
    explicit ViewInput(GestureBench &bench);

    // The tracker's ring; null before the first gesture.
    [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const { return m_tracker.ring(); }
    // Reports the end of the last gesture, as the next move in the view does.
    void look();

    int wheels = 0; // wheel events that the view got
    int keys = 0; // key presses that the view got

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Tracker : public MgMouseGestureTracker
    {
    public:
        [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const
        {
            return qobject_cast<MgDonutDialogPVStyleImpl *>(donut.data());
        }
    };

    void update(const QPoint &position, bool press, bool motion, bool held);

    GestureBench &m_bench;
    Tracker m_tracker;
};

} // namespace tests
