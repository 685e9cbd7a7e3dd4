// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MenuChanges.h"

#include "host/window/MenuBars.h"
#include "sdk/OwnCode.h"

#include <QActionEvent>
#include <QChildEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace gesturewidget {

MenuChanges::MenuChanges(QMainWindow *window)
    : m_window(window)
{
    if (m_window)
        m_window->installEventFilter(this);
}

MenuChanges::~MenuChanges() = default;

QVector<QMenuBar *> MenuChanges::menuBars() const
{
    return menuBarsOf(qobject_cast<const QMainWindow *>(m_window.data()));
}

QVector<QToolBar *> MenuChanges::toolBars() const
{
    return toolBarsOf(qobject_cast<const QMainWindow *>(m_window.data()));
}

void MenuChanges::watch(QWidget *widget)
{
    if (!widget || m_watched.contains(widget))
        return;
    m_watched.insert(widget);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this](const QObject *gone) {
        const OwnCode ours;
        m_watched.remove(gone);
        Q_EMIT structureChanged();
    });
}

bool MenuChanges::eventFilter(QObject *watched, QEvent *event)
{
    const OwnCode ours;
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        if (m_watched.contains(watched))
            Q_EMIT structureChanged();
        break;
    case QEvent::ActionChanged:
        if (m_watched.contains(watched))
            Q_EMIT actionChanged(
                static_cast<QActionEvent *>(event)->action()); // clazy:exclude=wrong-qevent-cast
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: {
        // A child that is being constructed is still a plain widget; it is polished later.
        const QObject *child = static_cast<QChildEvent *>(event)->child();
        if (watched == m_window
            && (qobject_cast<const QToolBar *>(child) || qobject_cast<const QMenuBar *>(child)))
            Q_EMIT structureChanged();
        break;
    }
    default:
        break;
    }
    return false;
}

} // namespace gesturewidget
