// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgMouseGestureTracker.h"
#include "tests/fakehost/FakeHitTest.h"
#include "tests/gesture/GestureBench.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace tests {

// Makes the members of the tracker public.
class OpenTracker : public MgMouseGestureTracker
{
public:
    using MgMouseGestureTracker::donut;
    using MgMouseGestureTracker::menu;
    using MgMouseGestureTracker::pendingCommand;
    using MgMouseGestureTracker::pressGlobalPoint;
    using MgMouseGestureTracker::pressPoint;
    using MgMouseGestureTracker::tracking;

    [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const
    {
        return qobject_cast<MgDonutDialogPVStyleImpl *>(donut.data());
    }
};

// A tracker, the events that it is told, and everything that its gestures need. The base of tests that
// make all of it anew for each of their functions.
class TrackerBench
{
protected:
    void setUp();
    void tearDown();

    // One update for each kind of event. The hit test's log then holds its queries.
    void press(const QPoint &position);
    void drag(const QPoint &position);
    void look(const QPoint &position);
    void update();
    // A press, and enough of a drag to open the ring.
    void pressAndDrag(const QPoint &position);

    std::unique_ptr<GestureBench> m_bench;
    std::unique_ptr<OpenTracker> m_tracker;
    std::unique_ptr<FakeHitTest> m_hit;
    QPointer<QWidget> m_mainWindow;
};

} // namespace tests
