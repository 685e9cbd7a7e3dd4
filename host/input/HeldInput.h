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

// Mouse events of windows that were kept from the program, in their order, until it is
// known whether they become a gesture; and with them the keys and the turns of the wheel
// that came meanwhile.
//
// They are either dropped or sent to the same windows again, as if they came from the
// window system just then. The program may enter an event loop inside one of them, as it
// does for a context menu; what is left is then sent from within that loop, so that the
// menu sees the release of the button that opened it.
class HeldInput : public QObject
{
    Q_OBJECT

public:
    HeldInput();
    ~HeldInput() override;

    // Keeps a copy.
    void hold(QWindow *window, const QMouseEvent &event);
    void hold(QWindow *window, const QKeyEvent &event);
    void hold(QWindow *window, const QWheelEvent &event);
    // Drops the mouse events. The rest, which is no part of a gesture, is sent from the event
    // loop, or with the next sendRest().
    void drop();
    // Sends everything that is held. May run event loops, and this may be gone afterwards.
    void replay();
    // Sends what a replay, stuck in an event loop, has not come to yet. To be called before
    // the program gets anything newer. The same caution as with replay().
    void sendRest();
    [[nodiscard]] bool hasRest() const { return !m_outgoing->empty(); }

    // Whether this very event is one that is being sent again.
    [[nodiscard]] bool isSending(const QEvent *event) const { return event == m_sending; }

    // With more movements than this the newest takes the place of the one before it, as
    // with movements that a program is too slow for.
    static constexpr std::size_t kMostMovements = 512;

private:
    struct Item
    {
        QPointer<QWindow> window;
        std::optional<qtbridge::KeptMouseEvent> mouse;
        std::unique_ptr<QInputEvent> other; // when it is none of the mouse's buttons

        [[nodiscard]] bool isA(QEvent::Type type) const { return mouse && mouse->type() == type; }
    };

    void handOver();

    std::deque<Item> m_held;
    // Shared with a replay that is under way, which ends what it began though this is gone.
    std::shared_ptr<std::deque<Item>> m_outgoing = std::make_shared<std::deque<Item>>();
    const QEvent *m_sending = nullptr;
};

} // namespace gesturewidget
