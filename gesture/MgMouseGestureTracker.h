#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/chx/CHxTracker.h"

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QPointer>

class MgDonutDialog;
class MgDonutDialogPVStyleImpl;

// Sees gestures begin in all drawing views. A press and a drag of more than 20 pixels opens
// the ring at the press point; when the ring has ended with a sector chosen, the sector's
// command waits here until the host asks for it with DoAction().
//
// One tracker serves every document. It opens one ring on first use and keeps it; the ring
// belongs to the main window, and a ring that died with it is replaced at the next drag.
class MgMouseGestureTracker : public QObject, public CHxTracker
{
    Q_OBJECT

public:
    // Needs a QApplication, and nothing of the host.
    MgMouseGestureTracker();
    // Leaves the ring alone.
    ~MgMouseGestureTracker() override;

    // Whether a command waits to be run.
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *hit) const override;
    // Hands the waiting command to the host, unchanged; returns true. For a host to call
    // after IsEager() said so, which it does not ask again.
    bool DoAction(const CHxHitTestInfo *hit) override;
    // Runs for every pointer event in every view, and therefore allocates nothing and asks
    // little until a drag is long enough.
    void Update(CHxTrackerContext *context, CHxHitTestInfo *hit) override;
    // Empty: nothing is drawn into views.
    void DrawTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const override;
    void DrawDDTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const override;

protected:
    // The ring; null before the first gesture and after it was destroyed. Always a
    // MgDonutDialogPVStyleImpl.
    QPointer<MgDonutDialog> donut;
    // Never filled, shown or read; kept.
    QMenu menu;
    // Where the button was pressed: in pixels of the view, and on the whole screen.
    QPoint pressPoint;
    QPoint pressGlobalPoint;
    // A press was seen, and no gesture of it has been reported as stopped.
    bool tracking = false;
    // Empty for none.
    CHxString pendingCommand;

private:
    [[nodiscard]] MgDonutDialogPVStyleImpl *overlay() const;
    void createOverlay();
    // Puts the ring around the press point and arms it.
    void windUpOverlay(const CHxHitTestInfo &hit);
};
