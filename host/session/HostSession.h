// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/documents/DocumentManager.h"
#include "host/documents/ViewFinder.h"
#include "host/explain/Explanation.h"
#include "host/input/PointerFilter.h"
#include "host/language/Translations.h"
#include "host/services/HostApplication.h"
#include "host/services/MainFrame.h"
#include "host/session/GestureHost.h"
#include "host/session/ModuleLoader.h"
#include "host/session/TriggerChoice.h"
#include "host/session/WindowFinder.h"
#include "host/window/MenuReadiness.h"
#include "host/window/MonitorChanges.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>

namespace gesturewidget {

class SystemServices;
struct ProgramProfile;

// One life of the host: puts the parts together, starts the module and takes everything out again.
//
// It ends in two steps. stop() takes the module out of the program at any time. The module object
// and everything that it was given are destroyed only after the application has left its event
// loop, because stop() may be called from inside the module: from a dialog, for example, that was
// open when the main window was destroyed. If another session runs the same module, all but the
// module object and the documents goes earlier, when the outermost event loop waits.
class HostSession : public QObject
{
    Q_OBJECT

public:
    HostSession(QMainWindow *window, const GestureHost::Options &options);
    ~HostSession() override;

    bool start(QString *error);
    void stop();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    void addView(QWidget *view);
    // Returns the current main window; null while the host does not run.
    [[nodiscard]] QMainWindow *mainWindow() const;

    // Stops a session and destroys it as soon as that is safe.
    static void retire(std::unique_ptr<HostSession> session);

private:
    // Returns why the session cannot start; empty if it can.
    [[nodiscard]] QString obstacle() const;
    // Makes the services for modules, and gives them to the platform.
    void makeServices(const ProgramProfile &profile);
    // Makes the parts that use the services.
    void makeParts(const ProgramProfile &profile);
    // Installs all texts that are there so far in the program's language.
    void installTexts();
    // Loads the module and starts it. Otherwise returns false and puts one line into `error`.
    [[nodiscard]] bool startModule(QString *error);
    void stopWithoutWindow();
    void openView(QWidget *view);
    void connectWindows();
    // The menus of the first window are complete.
    void onMenusSettled();
    void explainTrigger();
    // Takes the menus as complete some time after they have settled and a view is open.
    void waitForAllMenus();
    // True if a gesture in the view would run the commands of the window that it belongs to.
    [[nodiscard]] bool hasItsCommands(const QWidget *view);
    [[nodiscard]] bool hasDrawing(const QWidget *window) const;
    // The application is over.
    static void finishAll();
    void finish();
    // Frees what earlier sessions still keep, if nobody can reach it any more.
    void finishRetired();

    const GestureHost::Options m_options;
    QPointer<QWidget> m_firstWindow; // a plain widget while it is being destroyed
    QVector<QPointer<QWidget>> m_addedViews; // by the program with addView()
    bool m_isRunning = false;
    bool m_wasStarted = false;
    bool m_windowIsGone = false;
    bool m_isFinished = false;
    bool m_menusHaveSettled = false;
    bool m_waitsForAllMenus = false;
    bool m_isRetired = false; // its owner is gone
    HostSession *m_next = nullptr; // the next started session

    // Each of these may need the ones before it.
    Translations m_translations;
    DocumentManager m_documents;
    HostApplication m_application;
    MainFrame m_mainFrame;
    std::unique_ptr<SystemServices> m_services;
    ModuleLoader m_loader;
    std::unique_ptr<TriggerChoice> m_triggerChoice;
    std::unique_ptr<PointerFilter> m_pointerFilter;
    std::unique_ptr<MonitorChanges> m_monitorChanges;
    std::unique_ptr<ViewFinder> m_viewFinder;
    std::unique_ptr<WindowFinder> m_windowFinder;
    std::unique_ptr<Explanation> m_explanation; // null unless somebody asked for it
    MenuReadiness m_menuReadiness;
};

} // namespace gesturewidget
