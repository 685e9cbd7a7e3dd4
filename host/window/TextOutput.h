// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxTextOutput.h"

#include <QDeadlineTimer>
#include <QMainWindow>
#include <QPointer>
#include <QStatusBar>
#include <QString>

namespace gesturewidget {

// Writes to the program's status bar, if there is one. The program's own message there comes back when
// the text is empty again, unless its time is over or the program has written another one since.
class TextOutput : public CHxTextOutput
{
public:
    // Not owned; may go away before this.
    explicit TextOutput(QMainWindow *window);
    ~TextOutput() override;

    // Writes to another main window from now on. Not owned; may be null.
    void setWindow(QWidget *window);

    void SetText(const CHxString &text, bool immediate) override;
    // Shows a line for some seconds.
    void showForAWhile(const QString &text);

private:
    [[nodiscard]] QStatusBar *statusBar() const;
    [[nodiscard]] bool isShown() const;
    // Remembers the message of the program that the next text hides.
    void keepMessageOf(QStatusBar &bar);
    void giveMessageBack();

    QPointer<QWidget> m_window; // during its destruction it is no longer a QMainWindow
    QPointer<QStatusBar> m_bar; // in which m_text was written
    QString m_text;
    QString m_hidden; // the program's message
    QDeadlineTimer m_hiddenEnd;
};

} // namespace gesturewidget
