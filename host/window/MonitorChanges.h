// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QScreen;
QT_END_NAMESPACE

namespace gesturewidget {

// Tells when a monitor goes, moves or changes its size. The pointer jumps then, and nobody moved it.
class MonitorChanges : public QObject
{
    Q_OBJECT

public:
    MonitorChanges();

Q_SIGNALS:
    void changed();

private:
    void watch(const QScreen *monitor);
};

} // namespace gesturewidget
