#pragma once

#include "sdk/chx/CHxHitTestInfo.h"

#include <QPoint>
#include <Qt>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

class Document;

// What starts a gesture: one button with exactly these modifiers.
struct Trigger
{
    Qt::MouseButton button = Qt::RightButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;

    // Whether exactly the trigger's keys are held. What else a keyboard reports, such as
    // the keypad or a second layout, does not count.
    [[nodiscard]] bool matches(Qt::KeyboardModifiers held) const;
};

// One pointer event in a view, as trackers see it. Lives on the stack of whoever handles
// the event; every answer is computed when it is asked for.
class HitTest : public CHxHitTestInfo
{
public:
    enum class Kind {
        Press, // some button was pressed
        Motion,
        Other, // a release, and whatever else a pointer does
    };

    // How the event belongs to a gesture that may come or is on.
    enum class Role {
        // Nothing of a gesture: the program gets the event. A trigger button that is held
        // in it belongs to the program then, and so it is no button that starts gestures.
        Program,
        // The trigger is the host's at the moment.
        Gesture,
        // The host's own report that a gesture has ended. What has opened meanwhile is no
        // reason for a tracker not to hear of it, or its command would wait for a later
        // movement and run out of the blue.
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

    // `document` may be null; nothing is owned, and all of it must outlive this.
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
    // Nothing: the pointer filter sees the end of a gesture by the overlay's grab.
    void NotifyEnd() override { }

    // Whether one of the seven reasons to leave the event alone holds.
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
