// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTest>
#include <QVariantAnimation>

namespace tests {

// The button that clears a line edit fades in and out, for 160 ms. If the process ends first, Qt
// leaks the animation. No other animation tells when Qt's own has ended, so this waits for a longer
// one that starts later.
inline void outlastFading()
{
    QVariantAnimation longer;
    longer.setStartValue(0);
    longer.setEndValue(1);
    longer.setDuration(200);
    longer.start();
    static_cast<void>(
        QTest::qWaitFor([&longer] { return longer.state() == QAbstractAnimation::Stopped; }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace tests
