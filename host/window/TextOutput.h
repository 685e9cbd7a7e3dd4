// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxTextOutput.h"

#include <QMainWindow>
#include <QPointer>

class QStatusBar;
class QString;

namespace gesturewidget {

// Writes to the program's status bar, if there is one.
class TextOutput : public CHxTextOutput
{
public:
    // Not owned; may go away before this.
    explicit TextOutput(QMainWindow *window);
    ~TextOutput() override;

    // Writes to another main window from now on. Not owned; may be null.
    void setWindow(QWidget *window) { m_window = window; }

    void SetText(const CHxString &text, bool immediate) override;
    // Shows a line for some seconds.
    void showForAWhile(const QString &text);

private:
    [[nodiscard]] QStatusBar *statusBar() const;

    QPointer<QWidget> m_window; // during its destruction it is no longer a QMainWindow
};

} // namespace gesturewidget
