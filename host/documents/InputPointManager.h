// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxInputPointManager.h"

#include <vector>

class CHxHitTestInfo;

namespace gesturewidget {

// The trackers of one document.
class InputPointManager : public CHxInputPointManager
{
public:
    InputPointManager();
    ~InputPointManager() override;

    // Null is ignored.
    void AddTracker(CHxTracker *tracker, int flags) override;
    void RemoveTracker(CHxTracker *tracker) override;

    [[nodiscard]] bool hasTrackers() const;
    // Shows the event to each tracker in turn and lets the eager ones act. Allocates nothing.
    // Trackers may be added and removed meanwhile: a removed tracker is not called again, an added
    // one gets the next event.
    void dispatch(CHxHitTestInfo &hit);

private:
    std::vector<CHxTracker *> m_trackers; // null for one removed during a dispatch
    int m_dispatches = 0; // in progress
    bool m_hasGaps = false;
};

} // namespace gesturewidget
