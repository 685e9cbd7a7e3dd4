// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/chx/CHxTracker.h"

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QPointer>

class MgDonutDialog;
class MgDonutDialogPVStyleImpl;

// Sees gestures begin in all views. A press and a drag of more than 20 pixels opens the ring at
// the press point. If the ring ends with a sector chosen, the sector's command waits here until
// the host calls DoAction().
//
// One tracker serves every document. It makes one ring on first use and keeps it. The ring
// belongs to the main window; if it died with that window, the next drag makes another.
class MgMouseGestureTracker : public QObject, public CHxTracker
{
    Q_OBJECT

public:
    // Needs a QApplication. Calls nothing of the host.
    MgMouseGestureTracker();
    // Does not delete the ring.
    ~MgMouseGestureTracker() override;

    // True if a command waits to be run.
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *hit) const override;
    // Hands the waiting command to the host, unchanged, and returns true. Call it only if
    // IsEager() is true; it does not check again.
    bool DoAction(const CHxHitTestInfo *hit) override;
    // Runs for every pointer event in every view. It allocates nothing and asks little until a
    // drag is long enough.
    void Update(CHxTrackerContext *context, CHxHitTestInfo *hit) override;
    // Empty: the tracker draws nothing into views.
    void DrawTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const override;
    void DrawDDTracker(CHxTrackerContext *context, const CHxHitTestInfo *hit) const override;

protected:
    // The ring, always a MgDonutDialogPVStyleImpl. Null before the first gesture and after the
    // ring was destroyed.
    QPointer<MgDonutDialog> donut;
    // Never filled, shown or read. Kept.
    QMenu menu;
    // The press point, in pixels of the view and of the whole screen.
    QPoint pressPoint;
    QPoint pressGlobalPoint;
    // A press was seen, and its gesture has not been reported as stopped.
    bool tracking = false;
    // Empty for none.
    CHxString pendingCommand;

private:
    [[nodiscard]] MgDonutDialogPVStyleImpl *overlay() const;
    void createOverlay();
    // Centres the ring on the press point and arms it.
    void windUpOverlay(const CHxHitTestInfo &hit);
};
