// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxTracker;

// Passes the pointer input of one document to its trackers, in the order in which they were
// added. The document owns it.
class GESTUREWIDGET_SDK_EXPORT CHxInputPointManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxInputPointManager)
    virtual ~CHxInputPointManager();

    // The manager does not own trackers. Ignores null and a tracker that is there already. Pass 0
    // for `flags`; no other value has a meaning yet.
    virtual void AddTracker(CHxTracker *tracker, int flags) = 0;
    // Ignores null and a tracker that is not there.
    virtual void RemoveTracker(CHxTracker *tracker) = 0;

protected:
    CHxInputPointManager() = default;
};
