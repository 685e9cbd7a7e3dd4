// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MenuBars.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace gesturewidget {
namespace {

// True for a bar in another window that belongs to `window`. A floating toolbar is a window
// itself, which does not count; a floating dock is still part of its main window.
bool isOfAnotherWindow(const QWidget *bar, const QMainWindow *window)
{
    for (const QWidget *up = bar->parentWidget(); up && up != window; up = up->parentWidget()) {
        if (up->isWindow() && !qobject_cast<const QDockWidget *>(up))
            return true;
    }
    return false;
}

template <class Bar> QVector<Bar *> barsOf(const QMainWindow *window)
{
    QVector<Bar *> bars;
    if (!window)
        return bars;
    const QList<Bar *> all = window->findChildren<Bar *>();
    for (Bar *bar : all) {
        if (!isOfAnotherWindow(bar, window))
            bars.append(bar);
    }
    return bars;
}

} // namespace

QVector<QMenuBar *> menuBarsOf(const QMainWindow *window)
{
    QVector<QMenuBar *> bars = barsOf<QMenuBar>(window);
    auto *own = window ? qobject_cast<QMenuBar *>(window->menuWidget()) : nullptr;
    if (own) {
        bars.removeAll(own);
        bars.prepend(own);
    }
    return bars;
}

QVector<QToolBar *> toolBarsOf(const QMainWindow *window)
{
    return barsOf<QToolBar>(window);
}

bool hasMenuBar(const QMainWindow *window)
{
    return !menuBarsOf(window).isEmpty();
}

} // namespace gesturewidget
