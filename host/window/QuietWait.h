// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>

namespace gesturewidget {

// Waits until nothing has happened for a moment, or until the longest time is over: a program
// that never rests must not put off what waits for rest.
//
//     connect(&wait, &QuietWait::over, this, [] { /* look at what has changed */ });
//     wait.note(); // at every change
class QuietWait : public QObject
{
    Q_OBJECT

public:
    // `quietTime`: milliseconds without a change that end the wait.
    explicit QuietWait(int quietTime);
    ~QuietWait() override;

    // Something has happened: begins a wait, or prolongs the current one.
    void note();
    // Ends the wait without a signal.
    void stop();

    // Milliseconds from the first change to the end of the wait, whatever happens. A person
    // who has just started a program does not miss anything for so long.
    static constexpr int kLongestTime = 2000;

Q_SIGNALS:
    // The wait is over. The next note() begins another one.
    void over();

private:
    void end();

    QTimer m_quiet;
    QTimer m_longest;
};

} // namespace gesturewidget
