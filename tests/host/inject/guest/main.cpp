// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "sdk/QtBridge.h"
#include "tests/host/inject/guest/Crashes.h"
#include "tests/host/inject/guest/EventScripts.h"
#include "tests/host/inject/guest/GuestWindow.h"
#include "tests/host/inject/guest/Steps.h"
#include "tests/host/inject/guest/TwoWindows.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPointer>
#include <QProcessEnvironment>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QWindow>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>

#include <sys/resource.h>

// A program whose first argument chooses how it ends. It writes a line to standard output for each
// important event.
namespace {

// Lifts the soft limit on the size of files at the end of main(). A build that counts lines writes its
// counts after that, into files that it shares with other processes.
class RoomForCounts
{
public:
    RoomForCounts() = default;
    ~RoomForCounts()
    {
        rlimit limit = {};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    Q_DISABLE_COPY_MOVE(RoomForCounts)
};

QString environmentText()
{
    return QStringLiteral("%1|%2").arg(
        qEnvironmentVariable("QT_QPA_GENERIC_PLUGINS", QStringLiteral("unset")),
        qEnvironmentVariable("QT_PLUGIN_PATH", QStringLiteral("unset")));
}

int runWithoutWidgets(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    say(qPrintable(environmentText()));
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return QGuiApplication::exec();
}

// The window is a local variable of main(): it is destroyed after the event loop and before the
// application.
int runWith(int argc, char **argv, const std::function<void(GuestWindow &)> &script)
{
    QApplication app(argc, argv);
    GuestWindow window;
    window.show();
    when([&] { return window.hasEntry(); },
         [&] {
             say("entry");
             script(window);
         });
    const int status = QApplication::exec();
    sayWhether("entry after the event loop", window.hasEntry());
    return status;
}

int runWindowFirst(int argc, char **argv, bool isLater)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPointer<GuestWindow> window = new GuestWindow;
    window->show();
    when([&] { return window->hasEntry(); },
         [&] {
             runGesture(*window);
             when([&] { return window->lines == 1; },
                  [&] {
                      if (isLater)
                          window->deleteLater();
                      else
                          delete window.data();
                      when([&] { return !window; },
                           [] {
                               say("window gone");
                               QTimer::singleShot(50, qApp, &QCoreApplication::quit);
                           });
                  });
         });
    return QApplication::exec();
}

// The dialog runs an event loop inside the module. The window is destroyed from that loop.
int runWindowGoneWithDialog(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPointer<GuestWindow> window = new GuestWindow;
    window->show();
    when([&] { return window->hasEntry(); },
         [&] {
             QMetaObject::invokeMethod(window->entry(), &QAction::trigger, Qt::QueuedConnection);
             when([] { return QApplication::activeModalWidget(); },
                  [&] {
                      say("dialog");
                      delete window.data();
                      say("window gone");
                      QTimer::singleShot(50, qApp, &QCoreApplication::quit);
                  });
         });
    return QApplication::exec();
}

// A second window opens after the first one.
int runSecondWindow(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    auto first = std::make_unique<GuestWindow>();
    first->show();
    std::unique_ptr<GuestWindow> second;
    when([&] { return first->hasEntry(); },
         [&] {
             first.reset();
             second = std::make_unique<GuestWindow>();
             second->show();
             when([&] { return second->hasEntry(); },
                  [&] {
                      say("entry in the second window");
                      runGesture(*second);
                      when([&] { return second->lines == 1; }, [] { QCoreApplication::quit(); });
                  });
         });
    return QApplication::exec();
}

// The main window has no menu bar; another window that belongs to it has one.
int runMenusInAChildWindow(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow bare;
    bare.setCentralWidget(new QWidget);
    auto *child = new GuestWindow; // belongs to `bare`, which destroys it
    child->setParent(&bare, Qt::Window);
    bare.show();
    child->show();
    when([&] { return child->hasEntry(); },
         [&] {
             say("entry in the child window");
             runGesture(*child);
             when([&] { return child->lines == 1; }, [] { QCoreApplication::quit(); });
         });
    return QApplication::exec();
}

int runWithoutEventLoop(int argc, char **argv)
{
    QApplication app(argc, argv);
    GuestWindow window;
    window.show();
    QElapsedTimer elapsed;
    elapsed.start();
    while (!window.hasEntry() && elapsed.elapsed() < kPatience)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    sayWhether("entry", window.hasEntry());
    openRing(window);
    return 0;
}

// Logs the events of a script. Without a plug-in there is no menu entry to wait for.
int runEvents(int argc, char **argv)
{
    const QByteArray script = argc > 2 ? argv[2] : "";
    const bool isAlone = argc > 3;
    QApplication app(argc, argv);
    GuestWindow window;
    window.show();
    const auto isReady = [&] {
        return window.windowHandle()->isExposed() && (isAlone || window.hasEntry());
    };
    when(isReady, [&] { QCoreApplication::exit(playEvents(script.constData(), window) ? 0 : 98); });
    return QApplication::exec();
}

// A gesture's command opens a modal dialog, which stays until it is closed.
void runDialogCommand(GuestWindow &window)
{
    auto *dialog = new QDialog(&window);
    QObject::connect(window.line, &QAction::triggered, dialog, [&window, dialog] {
        sayWhether("grab in the dialog", QWidget::mouseGrabber() || QWidget::keyboardGrabber());
        dialog->exec();
        say("dialog closed");
        QObject::disconnect(window.line, nullptr, dialog, nullptr);
        dialog->setProperty("isDone", true);
    });
    // Ask before the gesture, which returns only when the dialog is closed.
    when([dialog] { return dialog->isVisible(); },
         [&window, dialog] {
             // A press behind the dialog does nothing.
             window.press();
             window.dragTo(40);
             sayWhether("ring behind the dialog", ringIsOpen());
             window.release(40);
             dialog->close();
         });
    when([dialog] { return dialog->property("isDone").toBool(); },
         [&window] {
             runGesture(window);
             when([&window] { return window.lines == 2; }, [] { QCoreApplication::quit(); });
         });
    runGesture(window);
}

// The view is destroyed in some way, and a new one opens.
void runInNextView(GuestWindow &window)
{
    window.openView();
    when([&window] { return !QWidget::mouseGrabber() && window.view->isVisible(); },
         [&window] {
             const int before = window.lines;
             runGesture(window);
             when([&window, before] { return window.lines == before + 1; },
                  [] {
                      say("gesture in the next view");
                      QCoreApplication::quit();
                  });
         });
}

// Somebody opens the dialog, changes two settings together and presses OK, again and again. Each save
// is said after the event loop has written it.
void runSaves(GuestWindow &window)
{
    QMetaObject::invokeMethod(window.entry(), &QAction::trigger, Qt::QueuedConnection);
    when([] { return QApplication::activeModalWidget(); },
         [&window] {
             QWidget *dialog = QApplication::activeModalWidget();
             auto *enabled = dialog->findChild<QCheckBox *>(QStringLiteral("enableGesture_checkBox"));
             const auto *four = dialog->findChild<QRadioButton *>(QStringLiteral("four_radioButton"));
             const QString scheme = four->isChecked() ? QStringLiteral("eight") : QStringLiteral("four");
             // The schemes can be chosen while gestures are on.
             if (!enabled->isChecked())
                 enabled->click();
             dialog->findChild<QRadioButton *>(scheme + QStringLiteral("_radioButton"))->click();
             if (!four->isChecked())
                 enabled->click();
             dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
             when([] { return !QApplication::activeModalWidget(); },
                  [&window] {
                      say("saved");
                      runSaves(window);
                  });
         });
}

// Waits for the host's message in place of a menu entry, as long as a module would have needed.
int runWithoutModule(int argc, char **argv)
{
    QApplication app(argc, argv);
    GuestWindow window;
    window.show();
    int clicks = 0;
    window.view->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(window.view, &QWidget::customContextMenuRequested, qApp, [&] { ++clicks; });
    QTimer::singleShot(400, qApp, [&] {
        window.press();
        window.release(0);
        std::printf("clicks: %d\n", clicks);
        QCoreApplication::quit();
    });
    return QApplication::exec();
}

// Runs until it is told to quit. Its drawing opens after its menus are complete.
int runLateView(int argc, char **argv)
{
    QApplication app(argc, argv);
    GuestWindow window;
    QWidget *view = window.takeCentralWidget();
    view->hide();
    window.show();
    when([&] { return window.hasEntry(); },
         [&] {
             QTimer::singleShot(1500, &window, [&] {
                 window.setCentralWidget(view);
                 view->show();
             });
         });
    return QApplication::exec();
}

// Ignores both the request to quit and the signal.
int runDeaf(int argc, char **argv)
{
    std::signal(SIGTERM, SIG_IGN);
    QApplication app(argc, argv);
    GuestWindow window;
    window.show();
    for (;;)
        QApplication::exec();
}

// Shows a dialog that waits for an answer, and nothing else.
int runWithoutWindow(int argc, char **argv)
{
    QApplication app(argc, argv);
    QDialog question;
    return question.exec();
}

// Creates a short-lived application object to ask it something, and then the real one.
int runAfterAnother(int argc, char **argv, bool hasWidgets)
{
    if (hasWidgets)
        QApplication(argc, argv);
    else
        QGuiApplication(argc, argv);
    return runWith(argc, argv, [](GuestWindow &) {
        say(qPrintable(environmentText()));
        QCoreApplication::quit();
    });
}

int runHeap(int argc, char **argv)
{
    auto *app = new QApplication(argc, argv);
    auto *window = new GuestWindow; // window and application are never destroyed
    window->show();
    when([=] { return window->hasEntry(); }, [] { QCoreApplication::quit(); });
    return app->exec();
}

class ClosingWindow : public GuestWindow
{
public:
    explicit ClosingWindow(bool asks)
        : m_asks(asks)
    {
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        QFile file(QCoreApplication::arguments().value(2));
        if (file.open(QIODevice::WriteOnly | QIODevice::Append))
            file.write("closed\n");
        if (m_asks) {
            QDialog question(this);
            question.exec();
            event->ignore();
        }
    }

private:
    bool m_asks;
};

int runSayClosed(int argc, char **argv, bool asks)
{
    QApplication app(argc, argv);
    ClosingWindow window(asks);
    window.show();
    return QApplication::exec();
}

int runApplicationFirst(int argc, char **argv)
{
    auto app = std::make_unique<QApplication>(argc, argv);
    auto *window = new GuestWindow; // outlives the application object, as statics do
    window->show();
    when([=] { return window->hasEntry(); }, [] { QCoreApplication::quit(); });
    const int status = QApplication::exec();
    app.reset();
    say("application gone");
    return status;
}

int runStatic(int argc, char **argv)
{
    // On Qt 6.4 a static application crashes at its end, with or without gestures. So it is not
    // static there.
    if (qtbridge::kQtMajor < 6)
        static QApplication app(argc, argv);
    else
        new QApplication(argc, argv);
    static GuestWindow window;
    window.show();
    when([] { return window.hasEntry(); }, [] { QCoreApplication::quit(); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const RoomForCounts roomForCounts;
    const QByteArray mode = argc > 1 ? argv[1] : "quit";
    const auto with = [&](const std::function<void(GuestWindow &)> &script) {
        return runWith(argc, argv, script);
    };
    const auto quit = [] { QCoreApplication::quit(); };

    if (mode == "without-widgets")
        return runWithoutWidgets(argc, argv);
    if (mode == "environment")
        return with([=](GuestWindow &) {
            say(qPrintable(environmentText()));
            quit();
        });
    if (mode == "quit")
        return with([=](GuestWindow &) { quit(); });
    if (mode == "gesture")
        return with([=](GuestWindow &window) {
            runGesture(window);
            when([&] { return window.lines > 0; },
                 [&] {
                     std::printf("lines: %d\n", window.lines);
                     quit();
                 });
        });
    if (mode == "close")
        return with([](GuestWindow &window) { window.close(); });
    if (mode == "exit")
        return with([](GuestWindow &) { std::exit(7); });
    if (mode == "exit-with-ring")
        return with([](GuestWindow &window) {
            openRing(window);
            std::exit(7);
        });
    if (mode == "quit-with-ring")
        return with([=](GuestWindow &window) {
            openRing(window);
            quit();
        });
    if (mode == "close-with-ring")
        return with([](GuestWindow &window) {
            openRing(window);
            window.close();
        });
    if (mode == "quit-while-holding")
        return with([=](GuestWindow &window) {
            window.press();
            quit();
        });
    if (mode == "view-gone-with-ring")
        return with([=](GuestWindow &window) {
            openRing(window);
            delete window.view;
            sayWhether("ring after the view", ringIsOpen());
            when([] { return !QWidget::mouseGrabber(); }, quit);
        });
    if (mode == "view-gone-while-holding")
        return with([=](GuestWindow &window) {
            window.press();
            delete window.view;
            window.openView();
            window.release(0);
            runInNextView(window);
        });
    if (mode == "view-gone-mid-fade")
        return with([=](GuestWindow &window) {
            openRing(window);
            // The next movement starts the fading, which takes a quarter of a second.
            QTimer::singleShot(100, &window, [&window] {
                delete window.view;
                say("view gone");
                window.openView();
                window.release(90);
                runInNextView(window);
            });
            window.dragTo(90);
        });
    if (mode == "view-gone-by-command")
        return with([=](GuestWindow &window) {
            QObject::connect(window.line, &QAction::triggered, &window, [&window] {
                QObject::disconnect(window.line, nullptr, &window, nullptr);
                QObject::connect(window.line, &QAction::triggered, &window,
                                 [&window] { ++window.lines; });
                delete window.view;
                window.openView();
                say("view gone");
                QTimer::singleShot(0, &window, [&window] { runInNextView(window); });
            });
            runGesture(window);
        });
    if (mode == "window-hidden-with-ring")
        return with([=](GuestWindow &window) {
            QApplication::setQuitOnLastWindowClosed(false);
            openRing(window);
            window.hide();
            when([] { return !QWidget::mouseGrabber(); },
                 [&window] {
                     say("let go");
                     window.release(40);
                     window.show();
                     runInNextView(window);
                 });
        });
    if (mode == "dialog-command")
        return with([](GuestWindow &window) { runDialogCommand(window); });
    if (mode == "new-menu-bar")
        return with([=](GuestWindow &window) {
            window.replaceMenuBar();
            when([&window] { return window.hasEntry(); },
                 [&window] {
                     say("entry in the new menu bar");
                     runInNextView(window);
                 });
        });
    if (mode == "events")
        return runEvents(argc, argv);
    if (mode == "quit-with-dialog")
        return with([=](GuestWindow &window) {
            QMetaObject::invokeMethod(window.entry(), &QAction::trigger, Qt::QueuedConnection);
            when([] { return QApplication::activeModalWidget(); },
                 [=] {
                     say("dialog");
                     quit();
                 });
        });
    if (mode == "environment-file")
        return with([=](GuestWindow &) {
            QFile file(QCoreApplication::arguments().value(2));
            if (file.open(QIODevice::WriteOnly)) {
                const QStringList entries = QProcessEnvironment::systemEnvironment().toStringList();
                for (const QString &entry : entries)
                    file.write(entry.toLocal8Bit() + '\n');
            }
            quit();
        });
    if (mode == "save-for-ever")
        return with(runSaves);
    if (mode == "stay")
        return with([](GuestWindow &) {});
    // Writes to a file that the window was closed; the second one asks before.
    if (mode == "say-closed" || mode == "ask-when-closed")
        return runSayClosed(argc, argv, mode == "ask-when-closed");
    if (mode == "late-view")
        return runLateView(argc, argv);
    if (mode == "deaf")
        return runDeaf(argc, argv);
    if (mode == "without-window")
        return runWithoutWindow(argc, argv);
    if (mode == "crash")
        return with([](GuestWindow &) { std::raise(SIGKILL); });
    if (mode.startsWith("crash-"))
        return with([mode](GuestWindow &window) {
            if (!crash(mode.mid(int(std::strlen("crash-"))), window))
                QCoreApplication::exit(99);
        });
    if (mode == "window-gone-with-dialog")
        return runWindowGoneWithDialog(argc, argv);
    if (mode == "window-first")
        return runWindowFirst(argc, argv, false);
    if (mode == "window-later")
        return runWindowFirst(argc, argv, true);
    if (mode == "second-window")
        return runSecondWindow(argc, argv);
    if (mode.startsWith("two-windows-"))
        return runTwoWindows(argc, argv, mode.mid(int(std::strlen("two-windows-"))));
    if (mode.startsWith("replaced-"))
        return runReplacedWindow(argc, argv, mode.mid(int(std::strlen("replaced-"))));
    if (mode == "menus-in-a-child-window")
        return runMenusInAChildWindow(argc, argv);
    if (mode == "without-event-loop")
        return runWithoutEventLoop(argc, argv);
    if (mode == "without-module")
        return runWithoutModule(argc, argv);
    if (mode == "after-bare-application")
        return runAfterAnother(argc, argv, false);
    if (mode == "after-another-application")
        return runAfterAnother(argc, argv, true);
    if (mode == "heap")
        return runHeap(argc, argv);
    if (mode == "application-first")
        return runApplicationFirst(argc, argv);
    if (mode == "static")
        return runStatic(argc, argv);
    return 99;
}
