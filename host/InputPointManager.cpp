#include "host/InputPointManager.h"

#include "sdk/chx/CHxTracker.h"

namespace host {

InputPointManager::InputPointManager() = default;
InputPointManager::~InputPointManager() = default;

void InputPointManager::AddTracker(CHxTracker *tracker, int)
{
    if (tracker && !m_trackers.contains(tracker))
        m_trackers.append(tracker);
}

void InputPointManager::RemoveTracker(CHxTracker *tracker)
{
    m_trackers.removeAll(tracker);
}

void InputPointManager::dispatch(CHxHitTestInfo &hit) const
{
    const QVector<CHxTracker *> trackers = m_trackers; // shared, copied only if it changes
    for (CHxTracker *tracker : trackers) {
        if (!m_trackers.contains(tracker))
            continue;
        tracker->Update(nullptr, &hit);
        if (m_trackers.contains(tracker) && tracker->IsEager(&hit))
            tracker->DoAction(&hit);
    }
}

} // namespace host
