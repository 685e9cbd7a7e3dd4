#include "host/inject/Injector.h"

#include "host/GestureHost.h"
#include "sdk/chx/CHxSystemServices.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>

#include <cstdio>
#include <exception>

namespace inject {
namespace {

bool hasMenuBar(const QMainWindow *window)
{
    // menuBar() would make one in a window that has none.
    return qobject_cast<QMenuBar *>(window->menuWidget()) || window->findChild<QMenuBar *>();
}

void report(const char *text)
{
    std::fprintf(stderr, "mouse gestures: %s\n", text);
}

} // namespace

Injector::Injector()
{
    QCoreApplication::instance()->installEventFilter(this);
}

Injector::~Injector() = default;

bool Injector::eventFilter(QObject *receiver, QEvent *event)
{
    // A main window comes up, or one that is up already gets its menus.
    const bool mayMatter = event->type() == QEvent::Show || event->type() == QEvent::ActionAdded;
    if (mayMatter && (qobject_cast<QMainWindow *>(receiver) || qobject_cast<QMenuBar *>(receiver)))
        lookSoon();
    return false;
}

void Injector::lookSoon()
{
    if (m_isLookQueued)
        return;
    m_isLookQueued = true;
    QMetaObject::invokeMethod(this, &Injector::look, Qt::QueuedConnection);
}

void Injector::look()
{
    m_isLookQueued = false;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        auto *window = qobject_cast<QMainWindow *>(widget);
        if (window && window->isVisible() && hasMenuBar(window)) {
            QCoreApplication::instance()->removeEventFilter(this);
            if (!GetHxSystemServices()) // a program may have a host of its own
                startHost(window);
            return;
        }
    }
}

void Injector::startHost(QMainWindow *window)
{
    try {
        m_host = std::make_unique<GestureHost>(window, GestureHost::optionsForThisProgram());
        QString error;
        if (!m_host->start(&error))
            report(qPrintable(error));
    } catch (const std::exception &exception) {
        report(exception.what());
    } catch (...) {
        report("the host could not be started");
    }
}

} // namespace inject
