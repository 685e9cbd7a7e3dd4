// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QPoint>

class CHxDocument;

// One pointer event in a view, as trackers see it. Valid during the call that receives it.
class GESTUREWIDGET_SDK_EXPORT CHxHitTestInfo
{
public:
    Q_DISABLE_COPY_MOVE(CHxHitTestInfo)
    virtual ~CHxHitTestInfo();

    // The pointer position in pixels of the document's view, y downward.
    [[nodiscard]] virtual QPoint GetPosition() const = 0;
    // The document that the event belongs to. Null when its drawing is gone.
    [[nodiscard]] virtual CHxDocument *GetDocument() const = 0;

    // Seven reasons for a tracker to ignore the event. Trackers ask in this order.
    // A modal window keeps the input from the view.
    [[nodiscard]] virtual bool IsModalWindowOpen() const = 0;
    // A menu or another popup is open.
    [[nodiscard]] virtual bool IsPopupOpen() const = 0;
    // A widget has grabbed the mouse.
    [[nodiscard]] virtual bool IsMouseGrabbed() const = 0;
    // A button other than the trigger's is down.
    [[nodiscard]] virtual bool IsOtherButtonDown() const = 0;
    // On a press: the modifier keys held differ from those of the trigger. False for every other
    // event.
    [[nodiscard]] virtual bool IsModifierMismatch() const = 0;
    // On a press: the pointer is over a control inside the view, such as a scroll bar.
    // False for every other event.
    [[nodiscard]] virtual bool IsOverControl() const = 0;
    // The view is disabled and takes no input.
    [[nodiscard]] virtual bool IsViewBlocked() const = 0;

    // The trigger's button has just been pressed.
    [[nodiscard]] virtual bool IsPress() const = 0;
    // The pointer has moved.
    [[nodiscard]] virtual bool IsMotion() const = 0;
    // The trigger's button is held.
    [[nodiscard]] virtual bool IsButtonHeld() const = 0;

    // Called by a tracker, to tell the host that a drag has become a gesture.
    virtual void NotifyDrag() = 0;
    // Called by a tracker, to tell the host that a gesture has stopped while the trigger's button
    // is still held.
    virtual void NotifyEnd() = 0;

protected:
    CHxHitTestInfo() = default;
};
