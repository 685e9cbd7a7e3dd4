#include "host/window/MenuReadiness.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

namespace gesturewidget {

MenuReadiness::MenuReadiness(QMainWindow *window)
    : m_window(window)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(kQuietTime);
    connect(&m_quiet, &QTimer::timeout, this, &MenuReadiness::look);
}

MenuReadiness::~MenuReadiness() = default;

void MenuReadiness::start()
{
    qApp->installEventFilter(this);
    m_quiet.start();
}

void MenuReadiness::stop()
{
    m_quiet.stop();
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

bool MenuReadiness::eventFilter(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (receiver == m_window)
            m_quiet.start();
        break;
    case QEvent::ActionAdded:
        if (qobject_cast<QMenu *>(receiver) || qobject_cast<QMenuBar *>(receiver))
            m_quiet.start();
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
    // menuBar() would make one in a window that has none.
    const auto *bar = qobject_cast<QMenuBar *>(window->menuWidget());
    if (!bar)
        bar = window->findChild<QMenuBar *>();
    if (!bar || bar->actions().isEmpty())
        return; // so does filling it
    stop();
    Q_EMIT settled();
}

} // namespace gesturewidget
