// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/HeldInput.h"

#include "host/input/WindowInput.h"
#include "sdk/OwnCode.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace gesturewidget {

HeldInput::HeldInput() = default;
HeldInput::~HeldInput() = default;

void HeldInput::hold(QWindow *window, const QMouseEvent &event)
{
    const bool replacesLast = m_held.size() > kMostMovements && event.type() == QEvent::MouseMove
                           && m_held.back().isA(QEvent::MouseMove);
    if (replacesLast)
        m_held.pop_back();
    m_held.push_back({window, qtbridge::KeptMouseEvent(event), nullptr});
}

void HeldInput::hold(QWindow *window, const QKeyEvent &event)
{
    m_held.push_back({window, std::nullopt, qtbridge::copyOf(event)});
}

void HeldInput::hold(QWindow *window, const QWheelEvent &event)
{
    m_held.push_back({window, std::nullopt, qtbridge::copyOf(event)});
}

void HeldInput::drop()
{
    const auto isMouse = [](const Item &item) { return item.mouse.has_value(); };
    m_held.erase(std::remove_if(m_held.begin(), m_held.end(), isMouse), m_held.end());
    handOver();
}

void HeldInput::replay()
{
    handOver();
    sendRest();
}

void HeldInput::handOver()
{
    if (m_held.empty())
        return;
    for (Item &item : m_held)
        m_outgoing->push_back(std::move(item));
    m_held.clear();
    QMetaObject::invokeMethod(this, &HeldInput::sendRest, Qt::QueuedConnection);
}

void HeldInput::sendRest()
{
    const OwnCode ours;
    const QPointer<HeldInput> self = this;
    const std::shared_ptr<std::deque<Item>> outgoing = m_outgoing;
    const auto send = [&self](Item &item) {
        std::unique_ptr<QInputEvent> event = std::move(item.other);
        if (item.mouse)
            event = item.mouse->event();
        const QEvent *outer = self ? std::exchange(self->m_sending, event.get()) : nullptr;
        sendToWindow(item.window, *event);
        if (self)
            self->m_sending = outer;
    };
    while (!outgoing->empty() && qApp) {
        Item item = std::move(outgoing->front());
        outgoing->pop_front();
        // Qt makes two events of a double click at once. A menu that the first one opens must not
        // get the second: as without this filter, the second waits for the menu, and the release
        // that follows goes to the menu.
        std::optional<Item> twin;
        if (item.isA(QEvent::MouseButtonPress) && !outgoing->empty()
            && outgoing->front().isA(QEvent::MouseButtonDblClick)) {
            twin = std::move(outgoing->front());
            outgoing->pop_front();
        }
        send(item);
        if (twin && qApp)
            send(*twin);
    }
}

} // namespace gesturewidget
