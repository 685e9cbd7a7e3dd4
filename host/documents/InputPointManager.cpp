// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/InputPointManager.h"

#include "sdk/chx/CHxTracker.h"

#include <algorithm>

namespace gesturewidget {

InputPointManager::InputPointManager() = default;
InputPointManager::~InputPointManager() = default;

void InputPointManager::AddTracker(CHxTracker *tracker, int)
{
    if (tracker && std::find(m_trackers.begin(), m_trackers.end(), tracker) == m_trackers.end())
        m_trackers.push_back(tracker);
}

void InputPointManager::RemoveTracker(CHxTracker *tracker)
{
    const auto it = std::find(m_trackers.begin(), m_trackers.end(), tracker);
    if (!tracker || it == m_trackers.end())
        return;
    if (m_dispatches == 0) {
        m_trackers.erase(it);
        return;
    }
    *it = nullptr;
    m_hasGaps = true;
}

bool InputPointManager::hasTrackers() const
{
    return std::any_of(m_trackers.begin(), m_trackers.end(),
                       [](CHxTracker *tracker) { return tracker; });
}

void InputPointManager::dispatch(CHxHitTestInfo &hit)
{
    ++m_dispatches;
    const std::size_t count = m_trackers.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (CHxTracker *tracker = m_trackers[i])
            tracker->Update(nullptr, &hit);
        CHxTracker *tracker = m_trackers[i]; // gone if it was removed meanwhile
        if (tracker && tracker->IsEager(&hit))
            tracker->DoAction(&hit);
    }
    if (--m_dispatches > 0 || !m_hasGaps)
        return;
    m_hasGaps = false;
    m_trackers.erase(std::remove(m_trackers.begin(), m_trackers.end(), nullptr), m_trackers.end());
}

} // namespace gesturewidget
