// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/HostSession.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandStack.h"
#include "host/files/Complaint.h"
#include "host/files/ProgramProfile.h"
#include "host/files/SettingsNames.h"
#include "host/services/HostEditor.h"
#include "host/services/SystemServices.h"
#include "host/session/ExplainedProgram.h"
#include "host/window/MenuBars.h"
#include "sdk/chx/CHxProfileStore.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>

namespace gesturewidget {
namespace {

// Milliseconds from the first view to complete menus. Programs add entries when a drawing opens.
constexpr int kTimeForMenus = 1000;

// Plain pointers, so that nothing runs here when the process ends by exit(), when Qt is half
// destroyed.
HostSession *running = nullptr;
HostSession *firstStarted = nullptr;

} // namespace

HostSession::HostSession(QMainWindow *window, const GestureHost::Options &options)
    : m_options(options)
    , m_window(window)
    , m_mainFrame(window)
    , m_menuReadiness(window)
{
}

HostSession::~HostSession()
{
    for (HostSession **link = &firstStarted; *link; link = &(*link)->m_next) {
        if (*link == this) {
            *link = m_next;
            break;
        }
    }
}

bool HostSession::start(QString *error)
{
    QString why;
    QString *reason = error ? error : &why;
    if (m_isRunning)
        return true;
    auto *window = qobject_cast<QMainWindow *>(m_window.data());
    if (m_wasStarted || running || !window || !qobject_cast<QApplication *>(qApp)) {
        *reason = m_wasStarted ? QStringLiteral("a host that was stopped cannot start again")
                : running      ? QStringLiteral("this program has a host already")
                               : QStringLiteral("there is no main window to host");
        return false;
    }
    m_wasStarted = true;
    m_isRunning = true;
    running = this;
    if (!firstStarted)
        qAddPostRoutine(&HostSession::finishAll);
    m_next = firstStarted;
    firstStarted = this;

    QString message;
    const ProgramProfile profile =
        ProgramProfile::forProgram(m_options.program, m_options.profileFolders, &message);
    if (!message.isEmpty())
        complain(message);

    m_services = std::make_unique<SystemServices>(window, profile, &m_documents, m_options.settingsFile);
    if (m_options.guesses)
        m_services->catalogue().guessWellKnown();
    m_services->setApplication(&m_application);
    m_services->setMainFrame(&m_mainFrame);
    SetHxSystemServices(m_services.get());
    odedSetCommandStack(&m_services->commandStack());
    odedSetEditor(&m_services->editor());

    m_triggerChoice = std::make_unique<TriggerChoice>(profile, m_services->GetProfileStore());
    m_pointerFilter = std::make_unique<PointerFilter>(
        m_documents, m_triggerChoice->trigger(),
        [this](const QWidget *view) { return isOfThisWindow(view) && gesturesAreEnabled(); });
    m_viewFinder =
        std::make_unique<ViewFinder>(profile.viewClasses, m_options.guesses && m_addedViews.isEmpty());
    connect(m_viewFinder.get(), &ViewFinder::viewFound, this, &HostSession::openView);
    connect(&m_menuReadiness, &MenuReadiness::settled, this, [this] {
        m_menusHaveSettled = true;
        m_services->startRemembering();
        m_services->editor().notifyMainFrameCreated(m_window);
        waitForAllMenus();
    });
    if (const int listener = explanationListener(); listener >= 0) {
        m_explanation = std::make_unique<Explanation>(listener, window, profile, *m_services);
        connect(&m_menuReadiness, &MenuReadiness::settled, m_explanation.get(),
                &Explanation::menusSettled);
        explainTrigger();
    }
    connect(m_window, &QObject::destroyed, this, &HostSession::stopWithoutWindow);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &HostSession::finish);
    m_window->installEventFilter(this);

    if (!m_loader.load(m_options.moduleFile, reason) || !m_loader.initialize(reason)) {
        stop();
        return false;
    }
    for (const QPointer<QWidget> &view : std::as_const(m_addedViews)) {
        if (view)
            openView(ViewFinder::pointerWidget(view));
    }
    m_viewFinder->start();
    qApp->installEventFilter(m_pointerFilter.get());
    m_menuReadiness.start();
    return true;
}

void HostSession::stop()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    running = nullptr;
    m_explanation.reset();
    m_menuReadiness.stop();
    m_services->stopRemembering();
    m_viewFinder->stop();
    m_pointerFilter->cancel();
    if (qApp)
        qApp->removeEventFilter(m_pointerFilter.get());
    if (m_window)
        m_window->removeEventFilter(this);

    if (m_windowIsGone)
        SetHxSystemServices(nullptr);
    m_services->editor().notifyMainFrameDestroyed(m_windowIsGone ? nullptr : m_window.data());
    m_loader.uninitialize();
    m_documents.dropReactors();
    odedSetEditor(nullptr);
    odedSetCommandStack(nullptr);
    SetHxSystemServices(nullptr);
}

void HostSession::stopWithoutWindow()
{
    // The window is only a plain widget by now, although pointers to it are not null yet. Its
    // menus are gone, and a module that finds no services does not look for its entry.
    m_windowIsGone = true;
    stop();
}

void HostSession::finish()
{
    stop();
    if (m_isFinished)
        return;
    m_isFinished = true;
    // The command stack must release the module's command before the module is destroyed.
    m_pointerFilter.reset();
    m_services.reset();
    // A library has one module object, even if several hosts have loaded it in turn.
    bool isShared = false;
    for (const HostSession *other = firstStarted; other; other = other->m_next)
        isShared |= !other->m_isFinished && other->m_loader.module() == m_loader.module();
    if (!isShared)
        m_loader.destroy();
    m_documents.releaseStandIn();
}

void HostSession::finishAll()
{
    while (HostSession *session = firstStarted) {
        firstStarted = session->m_next;
        session->m_next = nullptr;
        session->finish();
        if (session->m_isRetired)
            delete session;
    }
}

void HostSession::retire(std::unique_ptr<HostSession> session)
{
    session->stop();
    if (!session->m_wasStarted || session->m_isFinished)
        return; // not in use
    session->m_isRetired = true;
    static_cast<void>(session.release()); // finishAll() has it from now on
}

void HostSession::addView(QWidget *view)
{
    if (!view)
        return;
    m_addedViews.removeAll(nullptr); // those that are gone
    if (m_isRunning || !m_wasStarted)
        m_addedViews.append(view);
    if (!m_isRunning)
        return;
    m_viewFinder->stopGuessing(); // a program that names a view names all of them
    openView(ViewFinder::pointerWidget(view));
}

void HostSession::openView(QWidget *view)
{
    m_documents.open(view);
    // A program that names its views itself knows what its right button does.
    if (m_options.guesses && m_triggerChoice->noteView(*view))
        m_pointerFilter->setTrigger(m_triggerChoice->trigger());
    explainTrigger();
    waitForAllMenus();
    if (m_explanation)
        m_explanation->addView(view);
}

void HostSession::explainTrigger()
{
    const Trigger trigger = m_triggerChoice->trigger();
    if (m_explanation)
        m_explanation->noteTrigger(trigger.button, trigger.modifiers, m_triggerChoice->reason());
}

void HostSession::waitForAllMenus()
{
    if (!m_menusHaveSettled || m_documents.isEmpty() || m_waitsForAllMenus)
        return;
    m_waitsForAllMenus = true;
    QTimer::singleShot(kTimeForMenus, this, [this] {
        if (!m_isRunning)
            return;
        m_services->catalogue().endGuessing();
        if (m_explanation)
            return; // nobody is looking
        if (const QString text = m_triggerChoice->introduction(); !text.isEmpty())
            m_services->showForAWhile(text);
    });
}

bool HostSession::isOfThisWindow(const QWidget *view) const
{
    const auto isAdded = [view](const QPointer<QWidget> &added) {
        return added && ViewFinder::pointerWidget(added) == view;
    };
    if (std::any_of(m_addedViews.begin(), m_addedViews.end(), isAdded))
        return true; // the program itself has named it
    // A window with its own menus has its own commands. A view that was detached from this window,
    // or that is in a dock, uses the commands of this one.
    const QWidget *window = view ? view->window() : nullptr;
    return window == m_window.data() || !hasMenuBar(qobject_cast<const QMainWindow *>(window));
}

bool HostSession::gesturesAreEnabled() const
{
    CHxProfileStore *store = m_services->GetProfileStore();
    if (!store)
        return true;
    const OdResBufPtr value = store->Get(settingsnames::moduleSection(), settingsnames::enabledKey(),
                                         CHxProfileStore::kProfile);
    return !value || value->getString().toQString() != QLatin1String("0");
}

bool HostSession::eventFilter(QObject *, QEvent *event)
{
    // This is the last moment at which the main window is complete.
    if (event->type() == QEvent::DeferredDelete)
        stop();
    return false;
}

} // namespace gesturewidget
