// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/TwoWindows.h"

#include "tests/host/inject/guest/GuestWindow.h"
#include "tests/host/inject/guest/Steps.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QPointer>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

// Windows of which each has its own drawing and commands.
struct Windows
{
    std::unique_ptr<GuestWindow> first = std::make_unique<GuestWindow>();
    std::unique_ptr<GuestWindow> second;

    // Counts the runs of the command in each window; "gone" for a window that is gone.
    void sayLines() const
    {
        const auto text = [](const GuestWindow *window) {
            return window ? QByteArray::number(window->lines) : QByteArray("gone");
        };
        say("lines: " + text(first.get()) + " and " + text(second.get()));
    }

private:
    static void say(const QByteArray &text) { ::say(text.constData()); }
};

bool always()
{
    return true;
}

// The step after a gesture in a window: its command has run.
Step ranIn(const Windows &all, const std::unique_ptr<GuestWindow> &window, int lines)
{
    return {[&window, lines] { return window->lines == lines; }, [&all] { all.sayLines(); }};
}

QDialog *dialog()
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

std::vector<Step> stepsOf(const QByteArray &mode, Windows &all)
{
    std::unique_ptr<GuestWindow> &first = all.first;
    std::unique_ptr<GuestWindow> &second = all.second;
    const auto gesture = [](const std::unique_ptr<GuestWindow> &window) {
        return Step{always, [&window] { runGesture(*window); }};
    };
    const auto close = [](std::unique_ptr<GuestWindow> &window) {
        return Step{always, [&window] { window.reset(); }};
    };
    // The entry is in the second window's Tools menu once the window has gestures.
    const std::vector<Step> opening{{[&] { return first->hasEntry(); },
                                     [&] {
                                         second = std::make_unique<GuestWindow>();
                                         second->show();
                                     }},
                                    {[&] { return second->hasEntry(); }, [] { say("two windows"); }}};
    std::vector<Step> steps = opening;
    const auto add = [&steps](const std::vector<Step> &more) {
        steps.insert(steps.end(), more.begin(), more.end());
    };
    if (mode == "in-turn")
        add({gesture(second), ranIn(all, second, 1), gesture(first), ranIn(all, first, 1),
             gesture(second), ranIn(all, second, 2)});
    if (mode == "first-destroyed")
        add({gesture(first), ranIn(all, first, 1), close(first), gesture(second),
             ranIn(all, second, 1)});
    if (mode == "first-closed")
        add({gesture(first),
             ranIn(all, first, 1),
             {always, [&] { first->close(); }},
             gesture(second),
             ranIn(all, second, 1),
             {always, [&] { first->show(); }},
             gesture(first),
             ranIn(all, first, 2)});
    if (mode == "second-destroyed")
        add({gesture(second), ranIn(all, second, 1), close(second), gesture(first),
             ranIn(all, first, 1)});
    if (mode == "second-again")
        add({close(second), opening[0], opening[1], gesture(second), ranIn(all, second, 1), close(first),
             gesture(second), ranIn(all, second, 2)});
    if (mode == "gone-with-ring")
        add({{always, [&] { openRing(*second); }},
             close(second),
             {always, [] { sayWhether("ring", ringIsOpen()); }},
             gesture(first),
             ranIn(all, first, 1)});
    // The ring was made for the first window.
    if (mode == "first-gone-with-ring")
        add({gesture(first),
             ranIn(all, first, 1),
             {always, [&] { openRing(*second); }},
             close(first),
             {always,
              [&] {
                  second->release(40);
                  second->dragTo(60); // nothing is pressed any more
                  sayWhether("ring", ringIsOpen());
              }},
             gesture(second),
             ranIn(all, second, 1)});
    if (mode == "gone-while-holding")
        add({{always, [&] { second->press(); }}, close(second), gesture(first), ranIn(all, first, 1)});
    // The command waits in the event loop while its window goes.
    if (mode == "gone-before-the-command")
        add({{always,
              [&] {
                  runGesture(*second);
                  second.reset();
              }},
             gesture(first),
             ranIn(all, first, 1)});
    if (mode == "closed-by-the-command")
        add({{always,
              [&] {
                  QObject::connect(second->line, &QAction::triggered, second.get(),
                                   [&] { second.release()->deleteLater(); });
                  runGesture(*second);
              }},
             {[&] { return !second; }, [&] { all.sayLines(); }},
             gesture(first),
             ranIn(all, first, 1)});
    const Step openDialog{
        always,
        [&] { QMetaObject::invokeMethod(second->entry(), &QAction::trigger, Qt::QueuedConnection); }};
    const Step dialogIsOpen{
        [] { return dialog(); },
        [&] { sayWhether("over the second", dialog()->parentWidget() == second.get()); }};
    const Step dialogIsGone{[] { return !dialog(); }, [] { say("dialog gone"); }};
    if (mode == "gone-with-dialog")
        add({gesture(first), ranIn(all, first, 1), openDialog, dialogIsOpen, close(second), dialogIsGone,
             gesture(first), ranIn(all, first, 2)});
    if (mode == "first-gone-with-dialog")
        add({gesture(first),
             ranIn(all, first, 1),
             openDialog,
             dialogIsOpen,
             close(first),
             {[] { return dialog(); }, [] { dialog()->reject(); }},
             dialogIsGone,
             gesture(second),
             ranIn(all, second, 1)});
    if (mode == "both-destroyed")
        add({gesture(second),
             ranIn(all, second, 1),
             close(first),
             close(second),
             {always,
              [&] {
                  first = std::make_unique<GuestWindow>();
                  first->show();
              }},
             {[&] { return first->hasEntry(); }, [] { say("entry"); }},
             gesture(first),
             ranIn(all, first, 1)});
    return steps;
}

// Some programs show this before a drawing is open: a main window with menus and no view.
class StartWindow : public QMainWindow
{
    Q_OBJECT

public:
    StartWindow() { menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&New")); }
};

} // namespace

int runTwoWindows(int argc, char **argv, const QByteArray &mode)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Windows windows;
    windows.first->show();
    runSteps(stepsOf(mode, windows));
    return QApplication::exec();
}

int runReplacedWindow(int argc, char **argv, const QByteArray &mode)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    auto start = std::make_unique<StartWindow>();
    start->show();
    std::unique_ptr<GuestWindow> window;
    const auto hasEntry = [&] {
        return start->menuBar()->actions().size() == 2; // a Tools menu was made
    };
    const auto openWindow = [&] {
        say("entry in the start window");
        if (mode == "before")
            start.reset();
        window = std::make_unique<GuestWindow>();
        window->show();
        if (mode == "at-once")
            start.reset();
        if (mode == "hidden")
            start->hide();
    };
    runSteps({{hasEntry, openWindow},
              {[&] { return window->hasEntry(); },
               [&] {
                   if (mode == "later")
                       start.reset();
                   runGesture(*window);
               }},
              {[&] { return window->lines == 1; }, [] { say("command"); }}});
    return QApplication::exec();
}

#include "TwoWindows.moc"
