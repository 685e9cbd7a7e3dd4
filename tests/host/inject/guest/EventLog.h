// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

// An event filter that writes one line to standard output for each input event of a widget or
// window. The program does not get the events for which `eats` returns true.
class EventLog : public QObject
{
    Q_OBJECT

public:
    explicit EventLog(const char *name);
    ~EventLog() override;

    std::function<bool(const QEvent &event)> eats;
    // Logs only receivers whose class is derived from this one; empty logs all of them.
    const char *only = "";

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    const char *m_name;
};
