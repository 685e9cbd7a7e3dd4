// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/EventLog.h"

#include "tests/host/support/LoggingView.h"

#include <cstdio>

EventLog::EventLog(const char *name)
    : m_name(name)
{
}

EventLog::~EventLog() = default;

bool EventLog::eventFilter(QObject *receiver, QEvent *event)
{
    if (!tests::LoggingView::isInput(*event) || (*only && !receiver->inherits(only)))
        return false;
    const bool isEaten = eats && eats(*event);
    std::printf("%s %s: %s%s\n", m_name, receiver->metaObject()->className(),
                qPrintable(tests::LoggingView::describe(*event)), isEaten ? " (eaten)" : "");
    std::fflush(stdout);
    return isEaten;
}
