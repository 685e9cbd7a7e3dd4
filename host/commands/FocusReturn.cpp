// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/FocusReturn.h"

#include "sdk/OwnCode.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace gesturewidget {
namespace {

// Milliseconds. The X server answers within one; a program that is busy reads the answer later, but
// before the next call from the event loop.
constexpr int kLongest = 100;
constexpr int kPause = 1;

bool isOnItsWay()
{
    // Other platforms tell of the focus at once, or keep it with a window that has gone.
    const QWindow *window = QGuiApplication::focusWindow();
    return (!window || !window->isVisible()) && QGuiApplication::platformName() == QLatin1String("xcb");
}

void look(QObject &context, const std::function<void()> &run, QElapsedTimer since)
{
    const OwnCode ours;
    if (!isOnItsWay() || since.elapsed() >= kLongest)
        run();
    else
        QTimer::singleShot(kPause, &context, [&context, run, since] { look(context, run, since); });
}

} // namespace

void whenFocusIsBack(QObject &context, const std::function<void()> &run)
{
    QElapsedTimer since;
    since.start();
    QMetaObject::invokeMethod(
        &context, [&context, run, since] { look(context, run, since); }, Qt::QueuedConnection);
}

} // namespace gesturewidget
