#pragma once

#include "host/input/HeldInput.h"
#include "host/input/HeldKeys.h"
#include "host/input/HitTest.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <functional>

namespace gesturewidget {

class Document;
class DocumentManager;

// Stands between the window system and the program: shows the trackers every pointer event
// in a drawing view, and keeps the events of a gesture from the program.
//
// Whether a press of the trigger starts a gesture is known only later, while on X11 the
// program opens its context menu with the press. So the press and what follows are held
// back where Qt gets them, at the window, before Qt itself has taken note of them. They
// are dropped when a tracker says that it is a gesture, and sent again when it is not one:
// the button was let go, the pointer went too far without a tracker taking it, or something
// came between, such as a key. The program then sees what it always saw, only later.
//
//     Idle --trigger pressed in a view--> Holding
//     Holding --a tracker takes the drag--> Gesturing
//     Holding --anything else--> Idle, and the program gets what was held
//     Gesturing --the tracker's overlay has stopped--> Swallowing; Idle with no button down
//     Swallowing --all buttons are up--> Idle
//
// To be installed as an event filter of the application. It answers for the user-interface
// thread alone.
class PointerFilter : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, Holding, Gesturing, Swallowing };

    // `documents` must outlive this. `gesturesAreEnabled` is asked on each press of the
    // trigger in a view; while it says no of that view, nothing is held back.
    PointerFilter(DocumentManager &documents, const Trigger &trigger,
                  std::function<bool(const QWidget *view)> gesturesAreEnabled);
    ~PointerFilter() override;

    [[nodiscard]] State state() const { return m_state; }
    // Ends whatever is under way, at once: what is held is dropped, an overlay is sent the
    // release that makes it stop, and the trackers hear of the end.
    void cancel();

    bool eventFilter(QObject *receiver, QEvent *event) override;

    // Manhattan distance in pixels from the press beyond which a drag that no tracker has
    // taken is the program's. Twice the 20 pixels that a tracker waits for.
    static constexpr int kRefusedDistance = 40;

private:
    // Mouse events as a widget gets them: the trackers look on.
    void showToTrackers(Document &document, const QMouseEvent &event);

    // Mouse events as a window gets them; true keeps them from the program.
    bool filterWindow(QWindow *window, const QMouseEvent &event);
    bool holdPress(QWindow *window, const QMouseEvent &event);
    bool filterHolding(QWindow *window, const QMouseEvent &event);
    bool filterGesturing(QWindow *window, const QMouseEvent &event);
    bool filterSwallowing(QWindow *window, const QMouseEvent &event);
    // Follows which keys are down, and holds keys back while Holding.
    bool filterKey(QWindow *window, const QKeyEvent &event);
    // The wheel while Holding.
    bool holdWheel(QWindow *window, const QWheelEvent &event);

    // The drag is a gesture.
    void beginGesture(const HitTest::Event &motion);
    void updateGesture(const HitTest::Event &motion);
    // Tells the trackers that the overlay has stopped, if it has.
    void endGestureIfStopped();
    void endGesture(Qt::MouseButtons buttons);
    void stopOverlay();
    // The press is the program's: gives back what was held. This may be gone afterwards.
    void giveBack();

    void noteWindowEvent(QObject *receiver, QEvent::Type type);
    void noteFocus(const QObject *receiver);
    // Calls `method` from the event loop, unless another press came meanwhile.
    void queue(void (PointerFilter::*method)());

    [[nodiscard]] HitTest::Event eventInView(const QMouseEvent &event, HitTest::Role role) const;
    [[nodiscard]] bool isTriggerPress(const QMouseEvent &event) const;
    [[nodiscard]] Document *documentUnder(QWindow *window, const QMouseEvent &event) const;

    DocumentManager &m_documents;
    const Trigger m_trigger;
    const std::function<bool(const QWidget *view)> m_gesturesAreEnabled;

    State m_state = State::Idle;
    unsigned m_press = 0; // counts the presses that were held
    HeldInput m_held;
    HeldKeys m_keys; // down at the moment
    HeldKeys m_keysOfPress; // down when the press was held
    Document *m_document = nullptr; // of the press, while Holding and Gesturing
    QPoint m_pressPosition; // global
    QPointer<QWidget> m_overlay; // what took the mouse when the gesture began
    bool m_overlayCame = false;
};

} // namespace gesturewidget
