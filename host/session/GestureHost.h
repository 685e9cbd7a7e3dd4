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

// Gives a Qt Widgets program mouse gestures: loads the module and stands for the platform
// that it expects, over the program's main window. One at a time in a process.
//
//     MainWindow window;
//     gesturewidget::GestureHost gestures(&window);
//     gestures.addView(window.canvas());
//     QString error;
//     if (!gestures.start(&error))
//         std::cerr << qPrintable(error) << '\n';
//     window.show();
//     return app.exec();
//
// The main window and its views stay the program's; they may go away before the host or
// after it, in any order.
class GESTUREWIDGET_HOST_EXPORT GestureHost
{
public:
    // Whatever is left empty is found by itself.
    struct Options
    {
        // The program's name in lower case, by which its profile and its settings are
        // found. Default: the name of the running program's file.
        QString program;
        // Folders that are searched for "<program>.json", first match wins. Default: none,
        // a program without a profile names its views with addView().
        QStringList profileFolders;
        // Whether what no profile says is guessed from what the program looks like: which
        // widgets are its views, which actions its well-known commands.
        bool guesses = false;
        // The module's file. Default: the one installed beside this library.
        QString moduleFile;
        // Where the bindings are kept. Default: a file of the program's name in the user's
        // configuration folder.
        QString settingsFile;
    };

    // Everything filled in for the running program as it is: its name, as profile folders
    // those of GESTUREWIDGET_PROFILES, the user's and the installed ones, and guesses for
    // the rest. To be called once the application object exists.
    [[nodiscard]] static Options optionsForThisProgram();

    explicit GestureHost(QMainWindow *window);
    GestureHost(QMainWindow *window, const Options &options);
    // Stops. What the module was given stays until the application ends.
    ~GestureHost();
    Q_DISABLE_COPY_MOVE(GestureHost)

    // Loads the module and begins to watch the views. The module enters its own commands
    // into the menus once the main window is shown and its menus are complete. Returns
    // false, with one line in `error` when that is not null, if the module cannot be used
    // or another host is running; the program is then as it was before.
    bool start(QString *error = nullptr);
    // Takes everything out again. Happens by itself when the main window is destroyed or
    // the application quits; a host that was stopped cannot be started again.
    void stop();
    [[nodiscard]] bool isRunning() const;

    // Makes `view` a drawing view: dragging in it makes gestures. Not owned; for a scroll
    // area it is the viewport that counts. May be called before start() and after it; null
    // is ignored.
    void addView(QWidget *view);

private:
    std::unique_ptr<HostSession> m_session;
};

} // namespace gesturewidget
