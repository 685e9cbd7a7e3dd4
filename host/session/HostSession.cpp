// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/HostSession.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandStack.h"
#include "host/files/Complaint.h"
#include "host/files/ProgramProfile.h"
#include "host/files/Text.h"
#include "host/menus/ProgramLanguage.h"
#include "host/services/HostEditor.h"
#include "host/services/StoredSettings.h"
#include "host/services/SystemServices.h"
#include "host/session/ExplainedProgram.h"
#include "host/session/LastRun.h"
#include "host/window/MainWindows.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"
#include "sdk/OwnCode.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLocale>
#include <QThread>
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
    , m_firstWindow(window)
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
    if (m_isRunning)
        return true;
    const OwnCode ours;
    QString problem = obstacle();
    if (!problem.isEmpty()) {
        if (error)
            *error = problem;
        return false;
    }
    if (explanationListener() < 0) // whoever explains a program may kill it at any time
        LastRun::watchThisOne(m_options.program, m_options.settingsFile);
    m_wasStarted = true;
    m_isRunning = true;
    running = this;
    if (!firstStarted)
        qAddPostRoutine(&HostSession::finishAll);
    m_next = firstStarted;
    firstStarted = this;

    installTexts(); // for captions of expected commands, and for complaints
    QString message;
    const ProgramProfile profile =
        ProgramProfile::forProgram(m_options.profile, m_options.profileFolders, &message);
    if (!message.isEmpty())
        complain(message);
    makeServices(profile);
    makeParts(profile);
    if (!startModule(&problem)) {
        stop();
        if (error)
            *error = problem;
        return false;
    }
    for (const QPointer<QWidget> &view : std::as_const(m_addedViews)) {
        if (view)
            openView(ViewFinder::pointerWidget(view));
    }
    m_viewFinder->start();
    m_windowFinder->start();
    qApp->installEventFilter(m_pointerFilter.get());
    m_menuReadiness.start();
    // A program's own code runs in the loop, also while our code waits in a nested one.
    for (const auto signal : {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake})
        connect(QAbstractEventDispatcher::instance(), signal, this, &codemark::eventLoopGoesOn);
    // This session keeps the module, so earlier ones need not stay for it.
    if (m_next)
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &HostSession::finishRetired);
    return true;
}

QString HostSession::obstacle() const
{
    if (m_wasStarted)
        return Text::tr("a host that was stopped cannot start again");
    if (running)
        return Text::tr("this program has a host already");
    if (!qobject_cast<QMainWindow *>(m_firstWindow.data()) || !qobject_cast<QApplication *>(qApp))
        return Text::tr("there is no main window to host");
    return LastRun::obstacle(m_options.program, m_options.settingsFile);
}

void HostSession::makeServices(const ProgramProfile &profile)
{
    auto *window = qobject_cast<QMainWindow *>(m_firstWindow.data());
    m_services = std::make_unique<SystemServices>(window, profile, &m_documents, m_options.settingsFile);
    if (m_options.guesses)
        m_services->catalogue().guessWellKnown();
    m_services->setApplication(&m_application);
    m_services->setMainFrame(&m_mainFrame);
    SetHxSystemServices(m_services.get());
    odedSetCommandStack(&m_services->commandStack());
    odedSetEditor(&m_services->editor());
}

void HostSession::makeParts(const ProgramProfile &profile)
{
    m_triggerChoice = std::make_unique<TriggerChoice>(profile, m_services->GetProfileStore());
    m_pointerFilter = std::make_unique<PointerFilter>(
        m_documents, m_triggerChoice->trigger(), [this](const QWidget *view) {
            return hasItsCommands(view) && areGesturesOn(m_services->GetProfileStore());
        });
    m_monitorChanges = std::make_unique<MonitorChanges>();
    connect(m_monitorChanges.get(), &MonitorChanges::changed, this, [this] {
        // The pointer's jump may have chosen a command that nobody meant.
        m_pointerFilter->pointerJumped();
        m_services->dropWaitingCommands();
    });
    m_viewFinder =
        std::make_unique<ViewFinder>(profile.viewClasses, m_options.guesses && m_addedViews.isEmpty());
    connect(m_viewFinder.get(), &ViewFinder::viewFound, this, &HostSession::openView);
    m_windowFinder = std::make_unique<WindowFinder>(
        m_services->windows(), [this](const QWidget *shown) { return hasDrawing(shown); });
    connectWindows();
    if (const int listener = explanationListener(); listener >= 0) {
        m_explanation = std::make_unique<Explanation>(listener, profile, *m_services);
        explainTrigger();
    }
    connect(qApp, &QCoreApplication::aboutToQuit, this, &HostSession::finish);
}

void HostSession::installTexts()
{
    const auto *window = qobject_cast<QMainWindow *>(m_firstWindow.data());
    m_translations.install(
        programLanguage(window, QLocale::system().uiLanguages(), Translations::languages()));
}

bool HostSession::startModule(QString *error)
{
    const bool isLoaded = m_loader.load(m_options.moduleFile, error);
    installTexts(); // the module's library has brought its own, and has shown none of them yet
    return isLoaded && m_loader.initialize(error);
}

void HostSession::connectWindows()
{
    MainWindows &windows = m_services->windows();
    windows.setBusy([this] {
        const PointerFilter::State state = m_pointerFilter->state();
        return state == PointerFilter::State::Holding || state == PointerFilter::State::Gesturing;
    });
    connect(&m_documents, &DocumentManager::documentUsed, &windows,
            [&windows](Document *document) { windows.makeCurrent(windows.ownerOf(document->view())); });
    connect(&windows, &MainWindows::currentChanged, this, [this, &windows] {
        m_mainFrame.setWindow(windows.current());
        m_services->editor().setMainFrame(windows.current());
        // A macro acts on the drawing of the window in which it was chosen.
        Document *last = nullptr;
        for (Document *document : m_documents.openDocuments()) {
            if (windows.current() && windows.ownerOf(document->view()) == windows.current())
                last = document;
        }
        m_documents.activate(last);
    });
    connect(&windows, &MainWindows::lastLeaves, this, [this](bool isComplete) {
        if (isComplete)
            stop();
        else
            stopWithoutWindow();
    });
    // The first window whose menus are complete counts.
    connect(&m_menuReadiness, &MenuReadiness::settled, this, &HostSession::onMenusSettled);
    connect(&windows, &MainWindows::added, this, &HostSession::onMenusSettled);
}

void HostSession::onMenusSettled()
{
    const OwnCode ours;
    if (m_menusHaveSettled || !m_isRunning)
        return;
    m_menusHaveSettled = true;
    m_menuReadiness.stop();
    m_services->startRemembering();
    m_services->editor().notifyMainFrameCreated(m_services->windows().current());
    waitForAllMenus();
    if (m_explanation)
        m_explanation->menusSettled();
}

void HostSession::stop()
{
    if (!m_isRunning)
        return;
    const OwnCode ours;
    m_isRunning = false;
    running = nullptr;
    m_explanation.reset();
    m_menuReadiness.stop();
    m_services->stopRemembering();
    m_viewFinder->stop();
    m_windowFinder->stop();
    m_pointerFilter->cancel();
    if (qApp)
        qApp->removeEventFilter(m_pointerFilter.get());

    if (m_windowIsGone)
        SetHxSystemServices(nullptr);
    QWidget *window = m_services->windows().current();
    m_services->editor().notifyMainFrameDestroyed(m_windowIsGone ? nullptr : window);
    m_loader.uninitialize();
    m_documents.dropReactors();
    odedSetEditor(nullptr);
    odedSetCommandStack(nullptr);
    SetHxSystemServices(nullptr);
    m_translations.remove(); // the module has found its menu entry by a translated text
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
    const OwnCode ours;
    stop();
    if (m_isFinished)
        return;
    m_isFinished = true;
    // The command stack must release the module's command before the module is destroyed.
    m_pointerFilter.reset();
    m_windowFinder.reset();
    m_viewFinder.reset();
    m_triggerChoice.reset();
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
    LastRun::end();
}

void HostSession::finishRetired()
{
    // The outermost event loop waits: no code of the module and none of a session is running. In a
    // nested loop, a dialog of the module may be open since an earlier session.
    if (QThread::currentThread()->loopLevel() > 1)
        return;
    const OwnCode ours;
    disconnect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
               &HostSession::finishRetired);
    for (HostSession *other = firstStarted; other; other = other->m_next) {
        if (other != this && other->m_isRetired && other->m_loader.module() == m_loader.module())
            other->finish();
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
    const OwnCode ours;
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
    m_windowFinder->consider(view->window());
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
        const OwnCode ours;
        m_services->catalogue().endGuessing();
        if (m_explanation)
            return; // nobody is looking
        if (const QString text = m_triggerChoice->introduction(); !text.isEmpty())
            m_services->showForAWhile(text);
    });
}

bool HostSession::hasItsCommands(const QWidget *view)
{
    // A window with its own menus has its own commands. A view that was detached from its window
    // uses the commands of the current one.
    QWidget *window = m_services->windows().ownerOf(view);
    if (!window || m_services->windows().contains(window))
        return true;
    m_windowFinder->consider(window); // its menus may have come after its view
    return false;
}

bool HostSession::hasDrawing(const QWidget *window) const
{
    const QVector<Document *> &documents = m_documents.openDocuments();
    return std::any_of(documents.begin(), documents.end(), [this, window](const Document *document) {
        return m_services->windows().ownerOf(document->view()) == window;
    });
}

QMainWindow *HostSession::mainWindow() const
{
    return m_isRunning ? qobject_cast<QMainWindow *>(m_services->windows().current()) : nullptr;
}

} // namespace gesturewidget
