// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/Phrase.h"
#include "host/inject/BorrowedVariables.h"
#include "host/session/GestureHost.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

namespace inject {

// Waits for the program's main window, the first visible one with a menu bar, and starts a host,
// which finds later windows itself. When the last window of the host is destroyed, the next main
// window gets a new host. The application object owns this.
class Injector : public QObject
{
    Q_OBJECT

public:
    // Create this as soon as the application object exists. It does nothing before the event loop
    // runs. If the application object is destroyed without having shown a main window, the
    // variables are restored.
    explicit Injector(std::unique_ptr<BorrowedVariables> variables);
    ~Injector() override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    // Looks for a main window from the event loop, once for any number of calls.
    void lookSoon();
    void look();
    // Returns the main window for the host; null if there is none.
    [[nodiscard]] QMainWindow *findWindow() const;
    // Returns how the host works, under the name that the launcher gives the program.
    [[nodiscard]] gesturewidget::GestureHost::Options options() const;
    void startHost(QMainWindow *window);
    void follow(QMainWindow *window);
    void onWindowGone();
    void explainProblem(const gesturewidget::Phrase &text) const;
    // Ends the program when the process that asked for an explanation has closed its end.
    void onExplanationRead();
    // Closes the program's windows as a person does, and ends it in any case.
    void endProgram() const;

    std::unique_ptr<gesturewidget::GestureHost> m_host;
    bool m_isLookQueued = false;
    std::unique_ptr<BorrowedVariables> m_variables;
    int m_explanation; // the socket, see host/files/ExplanationChannel.h; -1 for none
    std::unique_ptr<QSocketNotifier> m_explanationEnd;
};

} // namespace inject
