// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgMouseGestureTracker.h"

#include "bindings/HostCall.h"
#include "bindings/MgDonutDataContainer.h"
#include "gesture/HostView.h"
#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "sdk/chx/CHxHitTestInfo.h"
#include "sdk/chx/CHxMainFrame.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/QtBridge.h"

#include <QCursor>

#include <algorithm>

namespace {

// A drag is longer than this, in pixels across plus down.
constexpr int kDragThreshold = 20;

// Asks in this order and stops at the first that is true. If the host throws, there is no gesture.
bool isSuppressed(const CHxHitTestInfo &hit)
{
    return hostValue(true, [&hit] {
        return hit.IsModalWindowOpen() || hit.IsPopupOpen() || hit.IsMouseGrabbed()
            || hit.IsOtherButtonDown() || hit.IsModifierMismatch() || hit.IsOverControl()
            || hit.IsViewBlocked();
    });
}

bool isButtonHeld(const CHxHitTestInfo &hit)
{
    return hostValue(false, [&hit] { return hit.IsButtonHeld(); });
}

// True if another program has switched gestures on. Nobody else reads the settings before the ring
// starts. Looks at presses only, so that movements cost nothing.
bool wereSwitchedOn(const CHxHitTestInfo *hit)
{
    return hit && hostValue(false, [hit] { return hit->IsPress(); })
        && MgDonutDataContainer::instance()->noteSwitchedOn();
}

// Where the pointer is, in pixels of the view; `otherwise` if the host cannot say. Within bounds that
// no screen has, so that sums of coordinates do not overflow, whatever the host says.
QPoint positionOf(const CHxHitTestInfo &hit, const QPoint &otherwise)
{
    constexpr int kFarthest = 1 << 24;
    const QPoint position = hostValue(otherwise, [&hit] { return hit.GetPosition(); });
    return {std::clamp(position.x(), -kFarthest, kFarthest),
            std::clamp(position.y(), -kFarthest, kFarthest)};
}

// The main window, or the desktop if there is none.
QWidget *overlayParent()
{
    QWidget *window = nullptr;
    hostCall([&window] {
        CHxSystemServices *services = GetHxSystemServices();
        const CHxMainFrame *frame = services ? services->GetMainFrame() : nullptr;
        window = frame ? frame->GetMainWindow() : nullptr;
    });
    return window ? window : qtbridge::desktopWidget();
}

} // namespace

MgMouseGestureTracker::MgMouseGestureTracker() = default;

MgMouseGestureTracker::~MgMouseGestureTracker() = default;

bool MgMouseGestureTracker::IsEager(const CHxHitTestInfo *) const
{
    return !pendingCommand.isEmpty();
}

bool MgMouseGestureTracker::DoAction(const CHxHitTestInfo *)
{
    hostCall([this] {
        if (CHxSystemServices *services = GetHxSystemServices())
            services->RunCommand(pendingCommand, false);
    });
    pendingCommand = CHxString();
    return true;
}

void MgMouseGestureTracker::Update(CHxTrackerContext *, CHxHitTestInfo *hit)
{
    if (!MgDonutDataContainer::instance()->getGestureEnabled() && !wereSwitchedOn(hit))
        return;
    if (!hit || isSuppressed(*hit))
        return;

    if (hostValue(false, [hit] { return hit->IsPress(); })) {
        pressPoint = positionOf(*hit, pressPoint);
        pressGlobalPoint = QCursor::pos();
        tracking = true;
    } else if (!tracking) {
        return;
    }

    const QPoint delta = positionOf(*hit, pressPoint) - pressPoint;
    if (hostValue(false, [hit] { return hit->IsMotion(); }) && isButtonHeld(*hit)
        && delta.manhattanLength() > kDragThreshold) {
        if (!donut)
            createOverlay();
        hostCall([hit] { hit->NotifyDrag(); });
        if (!donut)
            return;
        if (!overlay()->armed && !overlay()->justStopped) {
            windUpOverlay(*hit);
            return;
        }
    }
    if (!donut)
        return;

    overlay()->TryStart(pressGlobalPoint);
    if (!donut || !overlay()->JustStopped())
        return;
    // Read before the host learns of the end, because it may destroy the ring then.
    const bool accepted = overlay()->accepted;
    const qint16 sector = overlay()->getActiveArc();
    tracking = false;
    if (isButtonHeld(*hit))
        hostCall([hit] { hit->NotifyEnd(); });
    if (!accepted || sector < 0)
        return;
    pendingCommand = CHxString(MgDonutDataContainer::instance()->getCommandNameFromIndex(sector));
}

void MgMouseGestureTracker::DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const { }

void MgMouseGestureTracker::DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const { }

MgDonutDialogPVStyleImpl *MgMouseGestureTracker::overlay() const
{
    return qobject_cast<MgDonutDialogPVStyleImpl *>(donut.data());
}

void MgMouseGestureTracker::createOverlay()
{
    QWidget *parent = overlayParent();
    if (donut) // if the host handled events when it was asked, another update made it
        return;
    donut = new MgDonutDialogPVStyleImpl(parent, Qt::WindowFlags());
    donut->setVisible(false);
}

void MgMouseGestureTracker::windUpOverlay(const CHxHitTestInfo &hit)
{
    overlay()->origin = pressPoint;
    CHxDocument *document = hostValue<CHxDocument *>(nullptr, [&hit] { return hit.GetDocument(); });
    // The active document's view is meant, although another document may be handed on.
    const QWidget *view = activeView();
    // Without a view there is no place to open at. A later drag may find one. The host may also have
    // destroyed the ring.
    MgDonutDialogPVStyleImpl *ring = overlay();
    if (!view || !ring)
        return;
    // Not the corner is mapped but the centre: the ring has the scale of the monitor under the press
    // point, and the view may have that of another.
    const QPoint half(ring->getSize().width() / 2, ring->getSize().height() / 2);
    ring->move(view->mapToGlobal(pressPoint) - half);
    ring->WindUp(document);
}
