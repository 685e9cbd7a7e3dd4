// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/FocusReturn.h"

#include "sdk/OwnCode.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWindow>

namespace gesturewidget {
namespace {

// Milliseconds. The X server answers within one; a program that is busy reads the answer later, but
// before the next call from the event loop.
constexpr int kLongest = 100;
constexpr int kPause = 1;

void look(QObject &context, const std::function<void()> &run, const std::function<bool()> &isOnItsWay,
          QElapsedTimer since)
{
    const OwnCode ours;
    if (!isOnItsWay() || since.elapsed() >= kLongest) {
        run();
        return;
    }
    QTimer::singleShot(kPause, &context,
                       [&context, run, isOnItsWay, since] { look(context, run, isOnItsWay, since); });
}

} // namespace

bool isFocusOnItsWay(const QString &platform)
{
    const QWindow *window = QGuiApplication::focusWindow();
    return (!window || !window->isVisible()) && platform == QLatin1String("xcb");
}

void whenFocusIsBack(QObject &context, const std::function<void()> &run,
                     const std::function<bool()> &isOnItsWay)
{
    QElapsedTimer since;
    since.start();
    QMetaObject::invokeMethod(
        &context, [&context, run, isOnItsWay, since] { look(context, run, isOnItsWay, since); },
        Qt::QueuedConnection);
}

} // namespace gesturewidget
