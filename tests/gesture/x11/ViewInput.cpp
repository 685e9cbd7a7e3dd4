// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/x11/ViewInput.h"

#include "sdk/QtBridge.h"

#include <QMouseEvent>

namespace tests {

ViewInput::ViewInput(GestureBench &bench)
    : m_bench(bench)
{
    bench.view->installEventFilter(this);
}

bool ViewInput::eventFilter(QObject *, QEvent *event)
{
    const auto seen = [event] {
        return std::make_pair(qtbridge::localPosition(*static_cast<QMouseEvent *>(event)),
                              static_cast<QMouseEvent *>(event)->buttons().testFlag(Qt::RightButton));
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        update(seen().first, true, false, true);
        break;
    case QEvent::MouseMove:
        update(seen().first, false, true, seen().second);
        break;
    case QEvent::MouseButtonRelease:
        update(seen().first, false, false, false);
        break;
    case QEvent::Wheel:
        ++wheels;
        break;
    case QEvent::KeyPress:
        ++keys;
        break;
    default:
        break;
    }
    return false;
}

void ViewInput::look()
{
    update(QPoint(), false, true, false);
}

void ViewInput::update(const QPoint &position, bool press, bool motion, bool held)
{
    FakeHitTest hit;
    hit.document = m_bench.document;
    hit.position = position;
    hit.press = press;
    hit.motion = motion;
    hit.buttonHeld = held;
    m_tracker.Update(nullptr, &hit);
    if (ring() && ring()->armed)
        m_tracker.Update(nullptr, &hit);
    if (m_tracker.IsEager(&hit))
        m_tracker.DoAction(&hit);
}

} // namespace tests
