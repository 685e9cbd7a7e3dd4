// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <QString>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QObject)

namespace gesturewidget {

// True on X11 if no visible window has the focus. Other platforms tell of the focus at once, or keep it
// with a window that has gone.
[[nodiscard]] bool isFocusOnItsWay(const QString &platform = QGuiApplication::platformName());

// Calls `run` from the event loop, unless `context` is gone by then.
//
// A ring that has the keyboard is Qt's active window on X11, and stays so when it has gone, until the
// X server's word comes that the focus is back. A command that runs before that finds the ring: a
// dialog would belong to it, and "Copy" would find no text. So this waits until a visible window has the
// focus, at most 100 ms: the focus may be another program's. `isOnItsWay` says whether to wait.
void whenFocusIsBack(
    QObject &context, const std::function<void()> &run,
    const std::function<bool()> &isOnItsWay = [] { return isFocusOnItsWay(); });

} // namespace gesturewidget
