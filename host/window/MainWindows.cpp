// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MainWindows.h"

#include "host/window/MenuBars.h"
#include "sdk/OwnCode.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>

namespace gesturewidget {

MainWindows::Hold::Hold(MainWindows *windows)
    : m_windows(windows)
{
    if (m_windows && ++m_windows->m_holds == 1)
        Q_EMIT m_windows->holdBegins();
}

MainWindows::Hold::~Hold()
{
    if (!m_windows || --m_windows->m_holds > 0)
        return;
    m_windows->followActivation();
    Q_EMIT m_windows->holdEnds();
}

MainWindows::Turn::Turn(MainWindows *windows, QWidget *window)
    : m_windows(windows)
    , m_window(window)
    , m_before(windows ? windows->current() : nullptr)
{
    if (m_windows)
        m_windows->setCurrent(window);
}

MainWindows::Turn::~Turn()
{
    // The code that ran may have closed a window or opened one.
    if (m_windows && m_before && m_windows->current() == m_window)
        m_windows->setCurrent(m_before);
}

MainWindows::MainWindows(QMainWindow *first)
{
    add(first);
    m_current = first;
}

MainWindows::~MainWindows() = default;

void MainWindows::add(QMainWindow *window)
{
    if (!window || contains(window))
        return;
    m_windows.prepend(window);
    window->installEventFilter(this);
    // While this is emitted, the window is a plain widget.
    connect(window, &QObject::destroyed, this, [this, window] { remove(window, false); });
    Q_EMIT added(window);
}

bool MainWindows::contains(const QWidget *window) const
{
    return m_windows.contains(const_cast<QWidget *>(window)); // compares only
}

QWidget *MainWindows::ownerOf(const QWidget *widget) const
{
    while (widget) {
        QWidget *window = widget->window();
        if (contains(window) || hasMenuBar(qobject_cast<const QMainWindow *>(window)))
            return window;
        widget = window->parentWidget();
    }
    return nullptr;
}

void MainWindows::makeCurrent(QWidget *window)
{
    if (m_holds == 0 && (!m_isBusy || !m_isBusy()))
        setCurrent(window);
}

void MainWindows::followActivation()
{
    makeCurrent(ownerOf(QApplication::activeWindow()));
}

void MainWindows::setCurrent(QWidget *window)
{
    if (window == m_current || !contains(window))
        return;
    m_windows.removeAll(window);
    m_windows.append(window);
    m_current = window;
    Q_EMIT currentChanged();
}

void MainWindows::remove(QWidget *window, bool isComplete)
{
    if (!contains(window))
        return;
    const OwnCode ours;
    if (m_windows.size() == 1)
        Q_EMIT lastLeaves(isComplete);
    m_windows.removeAll(window);
    if (window == m_current) {
        // A window that was closed may be hidden only.
        QWidget *next = m_windows.isEmpty() ? nullptr : m_windows.last();
        for (QWidget *other : std::as_const(m_windows)) {
            if (other->isVisible())
                next = other;
        }
        m_current = next;
        if (m_windows.removeOne(next))
            m_windows.append(next);
        Q_EMIT currentChanged();
    }
    window->removeEventFilter(this);
    disconnect(window, nullptr, this, nullptr);
    Q_EMIT removed(window);
}

bool MainWindows::eventFilter(QObject *receiver, QEvent *event)
{
    const bool isActivated = event->type() == QEvent::WindowActivate;
    const bool isLeaving = event->type() == QEvent::DeferredDelete; // it is complete for the last time
    if (!isActivated && !isLeaving)
        return false;
    const OwnCode ours;
    auto *window = static_cast<QWidget *>(receiver);
    if (isActivated)
        makeCurrent(window);
    else
        remove(window, true);
    return false;
}

} // namespace gesturewidget
