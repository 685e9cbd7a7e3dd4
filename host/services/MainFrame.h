// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxMainFrame.h"

#include <QMainWindow>
#include <QPointer>

namespace gesturewidget {

// The program's current main window as the host's main frame.
class MainFrame : public CHxMainFrame
{
public:
    // Not owned; may go away before this.
    explicit MainFrame(QMainWindow *window);
    ~MainFrame() override;

    // Not owned; may be null.
    void setWindow(QWidget *window) { m_window = window; }

    [[nodiscard]] QWidget *GetMainWindow() const override { return m_window; }

private:
    QPointer<QWidget> m_window; // a plain widget while it is being destroyed
};

} // namespace gesturewidget
