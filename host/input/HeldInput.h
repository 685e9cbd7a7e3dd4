// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/QtBridge.h"

#include <QInputEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include <deque>
#include <memory>
#include <optional>

namespace gesturewidget {

// Input events of windows that the program does not get until it is known if they are a gesture:
// mouse events, and the keys and wheel turns that came meanwhile, in their order.
//
// They are either dropped or sent to the same windows again, as if they came from the window
// system just then. The program may enter an event loop inside one of them, for a context menu for
// example. The rest is then sent from that loop, so that the menu gets the release of the button
// that opened it.
class HeldInput : public QObject
{
    Q_OBJECT

public:
    HeldInput();
    ~HeldInput() override;

    // Holds a copy of the event.
    void hold(QWindow *window, const QMouseEvent &event);
    void hold(QWindow *window, const QKeyEvent &event);
    void hold(QWindow *window, const QWheelEvent &event);
    // Drops the mouse events. The other events are not part of a gesture; they are sent from the
    // event loop, or by the next sendRest().
    void drop();
    // Sends all held events. This may run event loops, and this object may be gone afterwards.
    void replay();
    // Sends the events that a replay has not reached yet because it is in an event loop. Call this
    // before the program gets a newer event. The object may be gone afterwards.
    void sendRest();
    [[nodiscard]] bool hasRest() const { return !m_outgoing->empty(); }

    // True for exactly the event that is being sent again.
    [[nodiscard]] bool isSending(const QEvent *event) const { return event == m_sending; }

    // If more events are held, the newest movement replaces the one before it, as Qt does for a
    // program that is too slow.
    static constexpr std::size_t kMostMovements = 512;

private:
    struct Item
    {
        QPointer<QWindow> window;
        std::optional<qtbridge::KeptMouseEvent> mouse;
        std::unique_ptr<QInputEvent> other; // when it is not a mouse event

        [[nodiscard]] bool isA(QEvent::Type type) const { return mouse && mouse->type() == type; }
    };

    void handOver();

    std::deque<Item> m_held;
    // Shared with a replay that is in progress, which finishes even if this object is gone.
    std::shared_ptr<std::deque<Item>> m_outgoing = std::make_shared<std::deque<Item>>();
    const QEvent *m_sending = nullptr;
};

} // namespace gesturewidget
