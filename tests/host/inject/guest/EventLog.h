// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

// Writes down the input of the widgets and windows that it filters the events of, one line
// an event on standard output, and takes from the program what `eats` says yes to.
class EventLog : public QObject
{
    Q_OBJECT

public:
    explicit EventLog(const char *name);
    ~EventLog() override;

    std::function<bool(const QEvent &event)> eats;
    // Of all receivers only those whose class is derived from this; empty for every one.
    const char *only = "";

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    const char *m_name;
};
