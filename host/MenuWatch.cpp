#include "host/MenuWatch.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

namespace host {

MenuWatch::MenuWatch(QMainWindow *window)
    : m_window(window)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(kQuietTime);
    connect(&m_quiet, &QTimer::timeout, this, &MenuWatch::look);
}

MenuWatch::~MenuWatch() = default;

void MenuWatch::start()
{
    qApp->installEventFilter(this);
    m_quiet.start();
}

void MenuWatch::stop()
{
    m_quiet.stop();
    if (QCoreApplication *application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

bool MenuWatch::eventFilter(QObject *receiver, QEvent *event)
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

void MenuWatch::look()
{
    if (!m_window || !m_window->isVisible())
        return; // showing it starts the wait again
    // menuBar() would make one in a window that has none.
    const auto *bar = qobject_cast<QMenuBar *>(m_window->menuWidget());
    if (!bar)
        bar = m_window->findChild<QMenuBar *>();
    if (!bar || bar->actions().isEmpty())
        return; // so does filling it
    stop();
    Q_EMIT settled();
}

} // namespace host
