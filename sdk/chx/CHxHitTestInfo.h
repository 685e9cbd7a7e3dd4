#pragma once

#include "sdk/SdkExport.h"

#include <QPoint>

class CHxDocument;

// One pointer event in a drawing view, as trackers see it. Lives as long as the call that
// it is handed to.
class SDK_EXPORT CHxHitTestInfo
{
public:
    Q_DISABLE_COPY_MOVE(CHxHitTestInfo)
    virtual ~CHxHitTestInfo();

    // Pointer position in pixels of the document's view widget, y downward.
    [[nodiscard]] virtual QPoint GetPosition() const = 0;
    // The document that the event belongs to; null when its drawing is gone.
    [[nodiscard]] virtual CHxDocument *GetDocument() const = 0;

    // Seven reasons for a tracker to leave the event alone, in the order in which they are
    // asked.
    // A modal window is open.
    [[nodiscard]] virtual bool IsModalWindowOpen() const = 0;
    // A menu or another popup is open.
    [[nodiscard]] virtual bool IsPopupOpen() const = 0;
    // Something holds the mouse for itself.
    [[nodiscard]] virtual bool IsMouseGrabbed() const = 0;
    // A button is down that does not start gestures.
    [[nodiscard]] virtual bool IsOtherButtonDown() const = 0;
    // On a press: modifier keys are held that the gesture's trigger does not ask for, or
    // ones missing that it does. False for every other event.
    [[nodiscard]] virtual bool IsModifierMismatch() const = 0;
    // On a press: the pointer is over a control inside the view, such as a scroll bar.
    // False for every other event.
    [[nodiscard]] virtual bool IsOverControl() const = 0;
    // The view takes no input: it is disabled.
    [[nodiscard]] virtual bool IsViewBlocked() const = 0;

    // The button that starts gestures has just been pressed.
    [[nodiscard]] virtual bool IsPress() const = 0;
    // The pointer moved.
    [[nodiscard]] virtual bool IsMotion() const = 0;
    // The button that starts gestures is held.
    [[nodiscard]] virtual bool IsButtonHeld() const = 0;

    // Tells the host that a drag has become a gesture.
    virtual void NotifyDrag() = 0;
    // Tells the host that a gesture has stopped while the button is still held.
    virtual void NotifyEnd() = 0;

protected:
    CHxHitTestInfo() = default;
};
