#include "gesture/MgGrabKeeper.h"

#include "gesture/MgDonutDialogPVStyleImpl.h"

#include <QEvent>
#include <QWindow>

MgGrabKeeper::MgGrabKeeper(MgDonutDialogPVStyleImpl *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
{
}

void MgGrabKeeper::watch(QWindow *window)
{
    if (!window || window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    m_window->installEventFilter(this);
}

bool MgGrabKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Expose && m_window->isExposed()
        && m_overlay->gesturing) {
        // By way of the window: QWidget's functions would let go first, and leave a gap.
        m_window->setMouseGrabEnabled(true);
        m_window->setKeyboardGrabEnabled(true);
    }
    return QObject::eventFilter(watched, event);
}
