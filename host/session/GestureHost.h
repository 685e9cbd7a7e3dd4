// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>

#include <memory>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

class HostSession;

// Gives a Qt Widgets program mouse gestures: loads the gesture module and implements the
// platform that the module expects over the program's main window.
//
//     MainWindow window;
//     gesturewidget::GestureHost gestures(&window);
//     gestures.addView(window.canvas());
//     QString error;
//     if (!gestures.start(&error))
//         std::cerr << qPrintable(error) << '\n'; // the program goes on without gestures
//     window.show();
//     return app.exec();
//
// A process can run one host at a time. Everything here belongs to the thread of the user
// interface. Nothing throws.
//
// The program owns the main window and the views. Both may be destroyed before or after the
// host, in any order.
class GESTUREWIDGET_HOST_EXPORT GestureHost
{
public:
    // The places and names that the host works with. Options() takes nothing from outside the program;
    // most programs want optionsForThisProgram().
    struct Options
    {
        // The program's name in lower case; the host finds the profile and the settings by it.
        // Empty: the name of the running program's file.
        QString program;
        // Folders in which the host looks for the profile "<profile>.json"; the first match
        // wins. Empty: the program has no profile.
        QStringList profileFolders;
        // True: the host guesses what no profile says, from how the program looks: which
        // actions are the well-known commands of the first bindings, and which widgets are
        // views. Views are guessed only while the program has named none with addView().
        // False, and no profile: the ring is empty until the person binds commands.
        bool guesses = false;
        // The module's file. Empty: the module that is installed beside this library.
        QString moduleFile;
        // The INI file for the bindings; created when needed. Commands that the program has
        // shown are kept beside it. Empty: "<program>.ini" in the folder "gesturewidget" of the
        // user's configuration folder.
        QString settingsFile;
        // The name by which the host finds the profile. Empty: `program`.
        QString profile;
    };

    // Returns the options for the running program: its name; as profile folders those that the
    // environment variable GESTUREWIDGET_PROFILES names, the user's, the administrator's and the
    // installed ones; the default files; and guesses for the rest. Call this after creating the
    // application object.
    [[nodiscard]] static Options optionsForThisProgram();

    // Uses optionsForThisProgram(). Create the application object first. `window` is the main
    // window whose menus hold the commands; without it start() fails.
    explicit GestureHost(QMainWindow *window);
    GestureHost(QMainWindow *window, const Options &options);
    // Stops the host. Objects that the module was given live on as long as the module may use them:
    // until the application ends, or until another host runs and the outermost event loop waits.
    // Documents always live until the application ends.
    ~GestureHost();
    Q_DISABLE_COPY_MOVE(GestureHost)

    // Loads the module and starts watching the views. The module puts its menu entry into the
    // Tools menu once the window is shown and its menus are complete.
    //
    // Returns true if the host runs, also if it was running before. Returns false, and puts one
    // line into `error` if that is not null, if there is no window or no QApplication, if
    // another host is running, if this one was stopped before, if the module cannot be loaded, or
    // if the program has crashed in code of the gestures and nobody has switched them on since. The
    // program is then unchanged.
    bool start(QString *error = nullptr);
    // Takes everything out of the program again. This also happens when the main window is
    // destroyed and when the application quits. A stopped host cannot be started again.
    void stop();
    // True between a successful start() and stop().
    [[nodiscard]] bool isRunning() const;

    // Returns the main window in which the person works at the moment; null while the host does not
    // run.
    [[nodiscard]] QMainWindow *mainWindow() const;

    // Makes `view` a drawing view: a drag that begins in it can become a gesture. The caller
    // keeps the ownership. For a scroll area its viewport counts. May be called before and after
    // start(), and more than once for a view; null is ignored.
    void addView(QWidget *view);

private:
    std::unique_ptr<HostSession> m_session;
};

} // namespace gesturewidget
