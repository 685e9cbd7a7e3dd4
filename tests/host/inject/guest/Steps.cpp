// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/Steps.h"

#include "tests/host/inject/guest/GuestWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kNoEntry = 90; // the exit status if the module's entry does not appear

void runStepsFrom(const std::vector<Step> &steps, std::size_t first)
{
    if (first == steps.size()) {
        QCoreApplication::quit();
        return;
    }
    when(steps[first].holds, [steps, first] {
        steps[first].then();
        runStepsFrom(steps, first + 1);
    });
}

} // namespace

void say(const char *text)
{
    std::printf("%s\n", text);
    std::fflush(stdout);
}

void sayWhether(const char *text, bool holds)
{
    std::printf("%s: %s\n", text, holds ? "yes" : "no");
    std::fflush(stdout);
}

void when(const std::function<bool()> &holds, const std::function<void()> &then)
{
    auto *timer = new QTimer(qApp);
    auto *elapsed = new QElapsedTimer;
    elapsed->start();
    QObject::connect(timer, &QObject::destroyed, [elapsed] { delete elapsed; });
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        if (!holds() && elapsed->elapsed() < kPatience)
            return;
        timer->stop();
        timer->deleteLater();
        if (!holds())
            std::exit(kNoEntry);
        then();
    });
    timer->start(5);
}

bool ringIsOpen()
{
    const QWidget *grabber = QWidget::mouseGrabber();
    return grabber && grabber->inherits("MgDonutDialog");
}

void openRing(GuestWindow &window)
{
    window.press();
    window.dragTo(25);
    window.dragTo(40);
    sayWhether("ring", ringIsOpen());
}

void runGesture(GuestWindow &window)
{
    openRing(window);
    window.dragTo(90);
    window.release(90);
}

void runSteps(const std::vector<Step> &steps)
{
    runStepsFrom(steps, 0);
}
