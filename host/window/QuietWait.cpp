// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/QuietWait.h"

#include "sdk/OwnCode.h"

namespace gesturewidget {

QuietWait::QuietWait(int quietTime)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietTime);
    m_longest.setSingleShot(true);
    m_longest.setInterval(kLongestTime);
    connect(&m_quiet, &QTimer::timeout, this, &QuietWait::end);
    connect(&m_longest, &QTimer::timeout, this, &QuietWait::end);
}

QuietWait::~QuietWait() = default;

void QuietWait::note()
{
    m_quiet.start();
    if (!m_longest.isActive())
        m_longest.start();
}

void QuietWait::stop()
{
    m_quiet.stop();
    m_longest.stop();
}

void QuietWait::end()
{
    const OwnCode ours;
    stop();
    Q_EMIT over();
}

} // namespace gesturewidget
