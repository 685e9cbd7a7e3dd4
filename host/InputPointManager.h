#pragma once

#include "sdk/chx/CHxInputPointManager.h"

#include <QVector>

class CHxHitTestInfo;

namespace host {

// The trackers of one document.
class InputPointManager : public CHxInputPointManager
{
public:
    InputPointManager();
    ~InputPointManager() override;

    // Null is ignored.
    void AddTracker(CHxTracker *tracker, int flags) override;
    void RemoveTracker(CHxTracker *tracker) override;

    [[nodiscard]] bool hasTrackers() const { return !m_trackers.isEmpty(); }
    // Shows the event to every tracker in turn and lets those that are eager act.
    // Allocates nothing; trackers may come and go meanwhile, and one that went is not
    // called any more.
    void dispatch(CHxHitTestInfo &hit) const;

private:
    QVector<CHxTracker *> m_trackers;
};

} // namespace host
