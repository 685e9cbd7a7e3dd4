#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxTracker;

// Hands the pointer input of one document to its trackers, in the order in which they
// were added. Owned by its document.
class SDK_EXPORT CHxInputPointManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxInputPointManager)
    virtual ~CHxInputPointManager();

    // The tracker is not owned. `flags` is 0; no other value has a meaning yet. Adding a
    // tracker a second time does nothing.
    virtual void AddTracker(CHxTracker *tracker, int flags) = 0;
    // Removing a tracker that is not there does nothing.
    virtual void RemoveTracker(CHxTracker *tracker) = 0;

protected:
    CHxInputPointManager() = default;
};
