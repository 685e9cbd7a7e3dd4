// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QObject)

namespace gesturewidget {

// Calls `run` from the event loop, unless `context` is gone by then.
//
// A ring that has the keyboard is Qt's active window on X11, and stays so when it has gone, until the
// X server's word comes that the focus is back. A command that runs before that finds the ring: a
// dialog would belong to it, and "Copy" would find no text. So this waits until a visible window has the
// focus, at most 100 ms: the focus may be another program's.
void whenFocusIsBack(QObject &context, const std::function<void()> &run);

} // namespace gesturewidget
