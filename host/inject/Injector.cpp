// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/inject/Injector.h"

#include "host/files/Complaint.h"
#include "host/files/ExplanationChannel.h"
#include "host/files/InstallPaths.h"
#include "host/files/Phrase.h"
#include "host/session/ExplainedProgram.h"
#include "host/session/GestureHost.h"
#include "host/window/MenuBars.h"
#include "sdk/chx/CHxSystemServices.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <sys/socket.h>

#include <exception>

using gesturewidget::GestureHost;
using gesturewidget::Phrase;

namespace inject {
namespace {

// Milliseconds. Far more than a window needs to close, and less than the launcher waits before it
// sends a signal.
constexpr int kTimeToClose = 1500;

void report(const char *text)
{
    gesturewidget::complain(QString::fromUtf8(text));
}

} // namespace

Injector::Injector(std::unique_ptr<BorrowedVariables> variables)
    : m_variables(std::move(variables))
    , m_explanation(m_variables->explanation())
{
    gesturewidget::explainTo(m_explanation);
    if (m_explanation >= 0) {
        m_explanationEnd = std::make_unique<QSocketNotifier>(m_explanation, QSocketNotifier::Read);
        connect(m_explanationEnd.get(), &QSocketNotifier::activated, this, &Injector::onExplanationRead);
    }
    QCoreApplication::instance()->installEventFilter(this);
}

Injector::~Injector() = default;

bool Injector::eventFilter(QObject *receiver, QEvent *event)
{
    // A main window appears, or one that is shown gets its menus.
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
    QMainWindow *window = findWindow();
    if (!window)
        return;
    m_variables->keep();
    QCoreApplication::instance()->removeEventFilter(this);
    if (!GetHxSystemServices()) // a program may have a host of its own
        startHost(window);
    else
        explainProblem(Phrase(QT_TRANSLATE_NOOP("host", "it brings gestures of its own")));
}

QMainWindow *Injector::findWindow() const
{
    if (m_host)
        return nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        auto *window = qobject_cast<QMainWindow *>(widget);
        if (window && window->isVisible() && gesturewidget::hasMenuBar(window))
            return window;
    }
    return nullptr;
}

GestureHost::Options Injector::options() const
{
    GestureHost::Options options = GestureHost::optionsForThisProgram();
    const QString &name = m_variables->name();
    if (!name.isEmpty()) {
        options.program = name;
        options.profile = gesturewidget::profileName(name);
        options.settingsFile = gesturewidget::settingsFile(name);
    }
    return options;
}

void Injector::startHost(QMainWindow *window)
{
    try {
        m_host = std::make_unique<GestureHost>(window, options());
        QString error;
        if (m_host->start(&error)) {
            follow(window);
            return;
        }
        report(qPrintable(error));
        explainProblem(Phrase::verbatim(error));
    } catch (const std::exception &exception) {
        report(exception.what());
    } catch (...) {
        report("the host could not be started");
    }
}

// The host has connected to the window before, so it knows first that the window is gone.
void Injector::follow(QMainWindow *window)
{
    connect(window, &QObject::destroyed, this, &Injector::onWindowGone);
}

void Injector::onWindowGone()
{
    if (m_host && m_host->isRunning()) {
        follow(m_host->mainWindow());
        return;
    }
    m_host.reset();
    QCoreApplication *application = QCoreApplication::instance();
    if (!application || QCoreApplication::closingDown())
        return;
    application->installEventFilter(this);
    lookSoon();
}

void Injector::explainProblem(const Phrase &text) const
{
    gesturewidget::tell(m_explanation, {{QStringLiteral("problem"), text.toJson()}});
}

void Injector::onExplanationRead()
{
    char ignored = 0;
    if (::recv(m_explanation, &ignored, 1, MSG_DONTWAIT) > 0)
        return;
    m_explanationEnd->setEnabled(false);
    endProgram();
}

void Injector::endProgram() const
{
    // A window may ask whether it may close, and nobody is there to answer. The question runs an
    // event loop of its own, so the timer ends the program all the same.
    QTimer::singleShot(kTimeToClose, QCoreApplication::instance(), [] { QCoreApplication::exit(0); });
    // Programs that keep a session take any other end for a crash. A dialog that waits would keep
    // its window from closing.
    if (QWidget *dialog = QApplication::activeModalWidget())
        dialog->close();
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QApplication::closeAllWindows(); }, Qt::QueuedConnection);
}

} // namespace inject
