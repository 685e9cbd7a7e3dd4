// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

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

// Shows every pointer event in a drawing view to the trackers, and keeps a gesture's events from
// the program.
//
// A press of the trigger becomes a gesture only later, but on X11 a program opens its context menu
// on the press. So the filter holds the press and the events after it at the window, before Qt
// takes note of them. When a tracker takes the drag, they are dropped. Otherwise they are sent
// again, and the program sees what it always saw, only later: when the button is released, when
// the pointer moves too far without a tracker taking the drag, or when something else happens,
// such as a key press.
//
//     Idle --trigger pressed in a view--> Holding
//     Holding --a tracker takes the drag--> Gesturing
//     Holding --anything else--> Idle, and the program gets the held events
//     Gesturing --the tracker's overlay has stopped--> Swallowing, or Idle if no button is down
//     Swallowing --all buttons are up--> Idle
//
// Install it as an event filter of the application. It handles the user-interface thread only.
class PointerFilter : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, Holding, Gesturing, Swallowing };

    // `documents` must outlive this. `gesturesAreEnabled` is asked at each press of the trigger in
    // a view; if it returns false for the view, nothing is held back.
    PointerFilter(DocumentManager &documents, const Trigger &trigger,
                  std::function<bool(const QWidget *view)> gesturesAreEnabled);
    ~PointerFilter() override;

    [[nodiscard]] State state() const { return m_state; }
    // Ends the current state immediately: drops held events, sends an overlay the release that
    // stops it, and tells the trackers about the end.
    void cancel();
    // Nobody has moved the pointer: ends a gesture. A press that is held goes to the program, from the
    // event loop.
    void pointerJumped();

    bool eventFilter(QObject *receiver, QEvent *event) override;

    // Pixels, Manhattan distance from the press. A drag that goes farther and that no tracker has
    // taken belongs to the program. Twice the 20 pixels that a tracker waits for.
    static constexpr int kRefusedDistance = 40;

    // Changes what starts a gesture. No gesture is under way.
    void setTrigger(const Trigger &trigger) { m_trigger = trigger; }

private:
    // False for most events of a program. Costs next to nothing.
    [[nodiscard]] bool mayMatter(const QObject *receiver, QEvent::Type type) const;
    // Apart from eventFilter(), which would save and restore its registers for every event.
    Q_NEVER_INLINE bool filter(QObject *receiver, QEvent *event);

    // A mouse event as a widget gets it: only shown to the trackers.
    void showToTrackers(Document &document, const QMouseEvent &event);

    // A mouse event as a window gets it. Returns true to keep it from the program.
    bool filterWindow(QWindow *window, const QMouseEvent &event);
    bool holdPress(QWindow *window, const QMouseEvent &event);
    bool filterHolding(QWindow *window, const QMouseEvent &event);
    bool filterGesturing(QWindow *window, const QMouseEvent &event);
    bool filterSwallowing(QWindow *window, const QMouseEvent &event);
    // Notes which keys are down, holds keys back while Holding, and passes on those that come to an
    // overlay that has gone.
    bool filterKey(QWindow *window, const QKeyEvent &event);
    // The same for the wheel.
    bool filterWheel(QWindow *window, const QWheelEvent &event);
    // True for the window of an overlay that has gone, if input still comes to it.
    [[nodiscard]] bool isLateOverlay(const QWindow *window) const;
    // Tells the program that a key was released which it saw go down before the press.
    void tellRelease(const QKeyEvent &event);

    // Starts a gesture with the drag.
    void beginGesture(const HitTest::Event &motion);
    void updateGesture(const HitTest::Event &motion);
    // Tells the trackers if the overlay has stopped.
    void endGestureIfStopped();
    void endGesture(Qt::MouseButtons buttons);
    void stopOverlay();
    // Gives the held events back to the program. This object may be gone afterwards.
    void giveBack();

    void noteWindowEvent(QObject *receiver, QEvent::Type type);
    void noteFocus(const QObject *receiver);
    // Calls `method` from the event loop, unless another press came meanwhile.
    void queue(void (PointerFilter::*method)());

    [[nodiscard]] HitTest::Event eventInView(const QMouseEvent &event, HitTest::Role role) const;
    [[nodiscard]] bool isTriggerPress(const QMouseEvent &event) const;
    [[nodiscard]] Document *documentUnder(QWindow *window, const QMouseEvent &event) const;

    DocumentManager &m_documents;
    Trigger m_trigger;
    const std::function<bool(const QWidget *view)> m_gesturesAreEnabled;

    State m_state = State::Idle;
    unsigned m_press = 0; // counts the presses that were held
    HeldInput m_held;
    HeldKeys m_keys; // down at the moment
    HeldKeys m_keysOfPress; // down when the press was held, and not released since the overlay came
    Document *m_document = nullptr; // of the press, while Holding and Gesturing
    QPoint m_pressPosition; // global
    QPointer<QWindow> m_pressWindow; // of the last press that was held
    QPointer<QWidget> m_overlay; // what took the mouse when the gesture began
    bool m_overlayCame = false;
    QPointer<QWindow> m_overlayWindow; // of the last overlay, also after the gesture
    QPointer<QWindow> m_nextWindow; // gets what came to that window too late
};

} // namespace gesturewidget
