// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/window/MenuReadiness.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

class MainWindows;

// Adds the main windows that a program opens later: those with a menu bar that show a drawing, and
// those of the same class as one that has gestures. A window is added when its menus are complete.
//
// Help and text editors have main windows too; they show no drawing.
class WindowFinder : public QObject
{
    Q_OBJECT

public:
    // `hasDrawing` returns true if the window shows a drawing. `windows` must outlive this.
    WindowFinder(MainWindows &windows, std::function<bool(const QWidget *window)> hasDrawing);
    ~WindowFinder() override;

    // Looks at every window that is activated from now on.
    void start();
    void stop();
    // Looks at a window. Null and any other widget are ignored.
    void consider(QWidget *window);

private:
    [[nodiscard]] bool isWanted(const QMainWindow *window) const;
    void add(QMainWindow *window);
    void forget(const QObject *window);

    // A window whose menus are not complete yet.
    struct Candidate
    {
        explicit Candidate(QMainWindow *mainWindow);

        const QObject *window; // for comparing only
        std::unique_ptr<MenuReadiness> readiness;
    };

    MainWindows &m_windows;
    std::function<bool(const QWidget *window)> m_hasDrawing;
    std::vector<Candidate> m_candidates;
    bool m_isRunning = false;
};

} // namespace gesturewidget
