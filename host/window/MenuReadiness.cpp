// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MenuReadiness.h"

#include "host/window/MenuBars.h"
#include "sdk/OwnCode.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

namespace gesturewidget {

MenuReadiness::MenuReadiness(QMainWindow *window)
    : m_window(window)
    , m_wait(kQuietTime)
{
    connect(&m_wait, &QuietWait::over, this, &MenuReadiness::look);
}

MenuReadiness::~MenuReadiness() = default;

void MenuReadiness::start()
{
    qApp->installEventFilter(this);
    m_wait.note();
}

void MenuReadiness::stop()
{
    m_wait.stop();
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

bool MenuReadiness::eventFilter(QObject *receiver, QEvent *event)
{
    const OwnCode ours;
    switch (event->type()) {
    case QEvent::Show:
        if (receiver == m_window)
            m_wait.note();
        break;
    case QEvent::ActionAdded:
        if (qobject_cast<QMenu *>(receiver) || qobject_cast<QMenuBar *>(receiver))
            m_wait.note();
        break;
    default:
        break;
    }
    return false;
}

void MenuReadiness::look()
{
    const auto *window = qobject_cast<QMainWindow *>(m_window.data());
    if (!window || !window->isVisible())
        return; // showing it starts the wait again
    const QVector<QMenuBar *> bars = menuBarsOf(window);
    if (bars.isEmpty() || bars.first()->actions().isEmpty())
        return; // filling it starts the wait again
    stop();
    Q_EMIT settled();
}

} // namespace gesturewidget
