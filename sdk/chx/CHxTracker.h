// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxString.h"

#include <QtGlobal>

class CHxHitTestInfo;
class CHxInputPointManager;

// The context in which a tracker draws. It belongs to the host; modules cannot look inside.
class CHxTrackerContext;

// Follows the pointer in the views of documents. Register it with the CHxInputPointManager of each
// document; the host never owns a tracker.
//
// For every pointer event in a view the host calls Update(), then IsEager(), and if that returns
// true DoAction() once. The host of this project makes no other calls. `hit` is valid only during
// the call, and null only where a comment says so. All calls come on the user-interface thread.
class GESTUREWIDGET_SDK_EXPORT CHxTracker
{
public:
    Q_DISABLE_COPY_MOVE(CHxTracker)
    virtual ~CHxTracker();

    // Called for every pointer event in a view. `context` is null in a host that lets no tracker
    // draw.
    virtual void Update(CHxTrackerContext *context, CHxHitTestInfo *hit) = 0;
    // Called when the view is redrawn, to draw the tracker over the drawing. `context` is never
    // null; `hit` is the latest event, null when there was none. A host need not call it.
    virtual void DrawTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const = 0;
    // The same while something is dragged over the view (drag and drop).
    virtual void DrawDDTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const = 0;
    // Called during a long redraw of the view. True interrupts it; the default is false. `manager`
    // is that of the view's document.
    [[nodiscard]] virtual bool CheckRegenAbort(const CHxInputPointManager *manager) const;
    // A name for diagnostics. Empty by default.
    [[nodiscard]] virtual CHxString GetName() const;
    // Called after Update(). True asks the host to call DoAction().
    [[nodiscard]] virtual bool IsEager(const CHxHitTestInfo *hit) const = 0;
    // Called after IsEager() returned true. Does what the tracker asked for; returns false when it
    // could not.
    virtual bool DoAction(const CHxHitTestInfo *hit) = 0;
    // The user's selection has changed. `hit` is the event that changed it, null when it was not a
    // pointer event. The default does nothing.
    virtual void OnMainSelectionSetChanged(const CHxHitTestInfo *hit);

protected:
    CHxTracker() = default;
};
