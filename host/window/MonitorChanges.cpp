// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MonitorChanges.h"

#include <QGuiApplication>
#include <QList>
#include <QScreen>

namespace gesturewidget {

MonitorChanges::MonitorChanges()
{
    const QList<QScreen *> monitors = QGuiApplication::screens();
    for (const QScreen *monitor : monitors)
        watch(monitor);
    connect(qApp, &QGuiApplication::screenAdded, this, &MonitorChanges::watch);
    connect(qApp, &QGuiApplication::screenRemoved, this, &MonitorChanges::changed);
}

void MonitorChanges::watch(const QScreen *monitor)
{
    connect(monitor, &QScreen::geometryChanged, this, &MonitorChanges::changed);
}

} // namespace gesturewidget
