// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

class QKeyEvent;

namespace gesturewidget {

class CommandStack;

// Makes module commands work in the program's own command line: when somebody types one and
// presses Return, it runs, and the program does not get it. All other input goes to the program.
class CommandLineWatcher : public QObject
{
    Q_OBJECT

public:
    // `className` is the class, or a base class, of the command line's line edit; empty watches
    // nothing. `run` gets the typed name.
    CommandLineWatcher(const QString &className, const CommandStack &stack,
                       std::function<void(const QString &name)> run);
    ~CommandLineWatcher() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QByteArray m_className;
    const CommandStack &m_stack;
    std::function<void(const QString &)> m_run;
};

} // namespace gesturewidget
