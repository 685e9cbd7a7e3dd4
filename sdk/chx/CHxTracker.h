#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxHitTestInfo;
class CHxInputPointManager;

// What a tracker may draw with; the host's own, opaque to modules.
class CHxTrackerContext;

// Follows the pointer in the drawing views of the documents it is registered with.
//
// For every pointer event in a view the host calls Update(); it then asks IsEager() and,
// when that is true, calls DoAction() once. Trackers are never owned by the host.
class SDK_EXPORT CHxTracker
{
public:
    Q_DISABLE_COPY_MOVE(CHxTracker)
    virtual ~CHxTracker();

    // `context` may be null: a host that draws nothing for trackers has none.
    virtual void Update(CHxTrackerContext *context, CHxHitTestInfo *hit) = 0;
    virtual void DrawTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const = 0;
    virtual void DrawDDTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const = 0;
    // True to interrupt a redraw that is under way. False here.
    [[nodiscard]] virtual bool CheckRegenAbort(const CHxInputPointManager *manager) const;
    // A name for diagnostics. Empty here.
    [[nodiscard]] virtual CHxString GetName() const;
    // True when the tracker has something to do, see DoAction().
    [[nodiscard]] virtual bool IsEager(const CHxHitTestInfo *hit) const = 0;
    // Does what the tracker was eager for; returns whether it did.
    virtual bool DoAction(const CHxHitTestInfo *hit) = 0;
    virtual void OnMainSelectionSetChanged(const CHxHitTestInfo *hit);

protected:
    CHxTracker() = default;
};
