#include "host/window/MenuChanges.h"

#include <QActionEvent>
#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace gesturewidget {
namespace {

// Whether it stands in another window that belongs to `window`, as an editor for texts or
// a dialog does, and so acts on something else. A toolbar that floats is its own window; a
// dock that floats is still a part of its main window.
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

MenuChanges::MenuChanges(QMainWindow *window)
    : m_window(window)
{
    if (m_window)
        m_window->installEventFilter(this);
}

MenuChanges::~MenuChanges() = default;

QVector<QMenuBar *> MenuChanges::menuBars() const
{
    QVector<QMenuBar *> bars = barsOf<QMenuBar>(m_window);
    if (!m_window)
        return bars;
    auto *own = qobject_cast<QMenuBar *>(m_window->menuWidget());
    if (own) {
        bars.removeAll(own);
        bars.prepend(own);
    }
    return bars;
}

QVector<QToolBar *> MenuChanges::toolBars() const
{
    return barsOf<QToolBar>(m_window);
}

void MenuChanges::watch(QWidget *widget)
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

bool MenuChanges::eventFilter(QObject *watched, QEvent *event)
{
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

} // namespace gesturewidget
