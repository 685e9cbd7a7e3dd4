// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QInputEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>

namespace gesturewidget {

// Sends input as if it came from the window system just then. The program may run event loops meanwhile.

// Sends `event` as it is, to a window or a widget.
void sendAsInput(QObject &receiver, QInputEvent &event);

// The same for a window that may be null. Like the window system's own input, it does not arrive at a
// window that is blocked by a modal one.
void sendToWindow(QWindow *window, QInputEvent &event);

// Sends a copy to a window that the event was not addressed to. `window` is not null. The copy goes
// through the filters of the application.
void readdress(const QMouseEvent &event, QWindow *window);
void readdress(const QWheelEvent &event, QWindow *window);
void readdress(const QKeyEvent &event, QWindow *window);

// The program's window that shows a widget at the position, in global pixels; null if none does.
[[nodiscard]] QWindow *windowAt(const QPoint &global);

} // namespace gesturewidget
