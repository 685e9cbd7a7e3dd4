// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/WindowFinder.h"

#include "host/window/MainWindows.h"
#include "host/window/MenuBars.h"
#include "sdk/OwnCode.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QWindow>

#include <algorithm>

namespace gesturewidget {

WindowFinder::Candidate::Candidate(QMainWindow *mainWindow)
    : window(mainWindow)
    , readiness(std::make_unique<MenuReadiness>(mainWindow))
{
}

WindowFinder::WindowFinder(MainWindows &windows, std::function<bool(const QWidget *window)> hasDrawing)
    : m_windows(windows)
    , m_hasDrawing(std::move(hasDrawing))
{
}

WindowFinder::~WindowFinder() = default;

void WindowFinder::start()
{
    m_isRunning = true;
    // From the event loop: Qt tells of the focus before it knows the active window.
    connect(
        qApp, &QGuiApplication::focusWindowChanged, this,
        [this] { consider(QApplication::activeWindow()); }, Qt::QueuedConnection);
}

void WindowFinder::stop()
{
    m_isRunning = false;
    if (qApp)
        disconnect(qApp, nullptr, this, nullptr);
    for (const Candidate &candidate : m_candidates)
        candidate.readiness->stop();
    m_candidates.clear();
}

void WindowFinder::consider(QWidget *window)
{
    const OwnCode ours;
    auto *mainWindow = qobject_cast<QMainWindow *>(window);
    const auto isWindow = [window](const Candidate &known) { return known.window == window; };
    if (!m_isRunning || !mainWindow || m_windows.contains(window)
        || std::any_of(m_candidates.begin(), m_candidates.end(), isWindow) || !isWanted(mainWindow))
        return;
    m_candidates.emplace_back(mainWindow);
    MenuReadiness *readiness = m_candidates.back().readiness.get();
    connect(mainWindow, &QObject::destroyed, this, &WindowFinder::forget);
    // From the event loop, because the readiness goes.
    connect(
        readiness, &MenuReadiness::settled, this,
        [this, later = QPointer<QMainWindow>(mainWindow)] {
            if (later)
                add(later);
        },
        Qt::QueuedConnection);
    readiness->start();
}

bool WindowFinder::isWanted(const QMainWindow *window) const
{
    if (!window->isWindow() || !hasMenuBar(window))
        return false;
    // Qt's own class says nothing about the window.
    const auto isAlike = [window](const QWidget *known) {
        return known->metaObject() == window->metaObject()
            && known->metaObject() != &QMainWindow::staticMetaObject;
    };
    const QVector<QWidget *> &known = m_windows.all();
    return m_hasDrawing(window) || std::any_of(known.begin(), known.end(), isAlike);
}

void WindowFinder::add(QMainWindow *window)
{
    const OwnCode ours;
    const bool isMissing = !m_isRunning || m_windows.contains(window);
    forget(window);
    disconnect(window, nullptr, this, nullptr);
    if (isMissing)
        return;
    m_windows.add(window);
    m_windows.followActivation();
}

void WindowFinder::forget(const QObject *window)
{
    const OwnCode ours;
    const auto isWindow = [window](const Candidate &known) { return known.window == window; };
    const auto found = std::find_if(m_candidates.begin(), m_candidates.end(), isWindow);
    if (found == m_candidates.end())
        return;
    found->readiness->stop();
    m_candidates.erase(found);
}

} // namespace gesturewidget
