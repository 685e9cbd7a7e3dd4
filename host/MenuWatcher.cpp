#include "host/MenuWatcher.h"

#include <QActionEvent>
#include <QChildEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace host {

MenuWatcher::MenuWatcher(QMainWindow *window)
    : m_window(window)
{
    if (m_window)
        m_window->installEventFilter(this);
}

MenuWatcher::~MenuWatcher() = default;

QVector<QMenuBar *> MenuWatcher::menuBars() const
{
    QVector<QMenuBar *> bars;
    if (!m_window)
        return bars;
    const QList<QMenuBar *> all = m_window->findChildren<QMenuBar *>();
    for (QMenuBar *bar : all)
        bars.append(bar);
    auto *own = qobject_cast<QMenuBar *>(m_window->menuWidget());
    if (own) {
        bars.removeAll(own);
        bars.prepend(own);
    }
    return bars;
}

QVector<QToolBar *> MenuWatcher::toolBars() const
{
    QVector<QToolBar *> bars;
    if (!m_window)
        return bars;
    const QList<QToolBar *> all = m_window->findChildren<QToolBar *>();
    for (QToolBar *bar : all)
        bars.append(bar);
    return bars;
}

void MenuWatcher::watch(QWidget *widget)
{
    if (!widget || m_watched.contains(widget))
        return;
    m_watched.insert(widget);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this](const QObject *gone) {
        m_watched.remove(gone);
        Q_EMIT structureChanged();
    });
}

bool MenuWatcher::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        if (m_watched.contains(watched))
            Q_EMIT structureChanged();
        break;
    case QEvent::ActionChanged:
        if (m_watched.contains(watched))
            Q_EMIT actionChanged(static_cast<QActionEvent *>(event)->action());
        break;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished: {
        // A child that is being constructed is a plain widget still; it is polished later.
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

} // namespace host
