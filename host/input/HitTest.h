// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxHitTestInfo.h"

#include <QPoint>
#include <Qt>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

class Document;

// The trigger: one button with exactly these modifier keys.
struct Trigger
{
    Qt::MouseButton button = Qt::RightButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

    // True if exactly the trigger's keys are held. Other modifiers that a keyboard reports, such
    // as the keypad or a second layout, do not count.
    [[nodiscard]] bool matches(Qt::KeyboardModifiers held) const;
};

// One pointer event in a view, as trackers see it. It lives on the stack of its creator. Every
// answer is computed when it is asked for.
class HitTest : public CHxHitTestInfo
{
public:
    enum class Kind {
        Press, // some button was pressed
        Motion,
        Other, // a release, and whatever else a pointer does
    };

    // The part that the event plays in a gesture.
    enum class Role {
        // It is not part of a gesture, and the program gets it. A trigger button that is held
        // belongs to the program, so it does not count as the button that starts gestures.
        Program,
        // The host holds the trigger's events at the moment.
        Gesture,
        // The host reports the end of a gesture. A window that has opened meanwhile must not keep
        // a tracker from learning this, or its command would run at some later movement.
        GestureEnd,
    };

    struct Event
    {
        Kind kind = Kind::Other;
        Role role = Role::Program;
        QPoint position; // pixels of the view
        Qt::MouseButton button = Qt::NoButton; // the one pressed or released
        Qt::MouseButtons buttons; // those held
        Qt::KeyboardModifiers modifiers;
    };

    // `document` may be null. Nothing is owned, and everything must outlive this object.
    HitTest(Document *document, const Trigger &trigger, const Event &event);
    ~HitTest() override;

    [[nodiscard]] QPoint GetPosition() const override { return m_event.position; }
    [[nodiscard]] CHxDocument *GetDocument() const override;

    [[nodiscard]] bool IsModalWindowOpen() const override;
    [[nodiscard]] bool IsPopupOpen() const override;
    [[nodiscard]] bool IsMouseGrabbed() const override;
    [[nodiscard]] bool IsOtherButtonDown() const override;
    [[nodiscard]] bool IsModifierMismatch() const override;
    [[nodiscard]] bool IsOverControl() const override;
    [[nodiscard]] bool IsViewBlocked() const override;

    [[nodiscard]] bool IsPress() const override;
    [[nodiscard]] bool IsMotion() const override;
    [[nodiscard]] bool IsButtonHeld() const override;

    void NotifyDrag() override { m_dragNotified = true; }
    // Does nothing: the pointer filter sees the end of a gesture by the overlay's grab.
    void NotifyEnd() override { }

    // True if one of the seven reasons to leave the event alone holds.
    [[nodiscard]] bool isSuppressed() const;
    // True once a tracker has taken the drag for a gesture.
    [[nodiscard]] bool dragNotified() const { return m_dragNotified; }

private:
    [[nodiscard]] bool mayBeSuppressed() const { return m_event.role != Role::GestureEnd; }

    Document *m_document;
    const Trigger &m_trigger;
    const Event &m_event;
    bool m_dragNotified = false;
};

} // namespace gesturewidget
