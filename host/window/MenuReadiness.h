// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/window/QuietWait.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>

namespace gesturewidget {

// Waits until a program's menus are complete: its main window is shown, its menu bar holds
// something, and nothing was added to any menu for a moment. QuietWait limits the wait for a program
// that changes its menus all the time.
class MenuReadiness : public QObject
{
    Q_OBJECT

public:
    // `window` is not owned and may go away.
    explicit MenuReadiness(QMainWindow *window);
    ~MenuReadiness() override;

    void start();
    void stop();

    bool eventFilter(QObject *receiver, QEvent *event) override;

    // Milliseconds without a new menu entry. Long enough for programs that fill their menus
    // in several steps while they start, short enough that nobody misses an entry meanwhile.
    static constexpr int kQuietTime = 250;

Q_SIGNALS:
    // The menus are complete. Emitted once.
    void settled();

private:
    void look();

    QPointer<QWidget> m_window; // a plain widget while it is being destroyed
    QuietWait m_wait;
};

} // namespace gesturewidget
