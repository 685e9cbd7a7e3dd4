// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/TrackerBench.h"

namespace tests {

void TrackerBench::setUp()
{
    m_bench = std::make_unique<GestureBench>();
    m_mainWindow = new QWidget;
    m_bench->host.mainWindow = m_mainWindow;
    m_tracker = std::make_unique<OpenTracker>();
    m_hit = std::make_unique<FakeHitTest>();
    m_hit->document = m_bench->document;
}

void TrackerBench::tearDown()
{
    m_tracker.reset();
    delete m_mainWindow;
    m_bench.reset();
}

void TrackerBench::update()
{
    m_hit->log.clear();
    m_tracker->Update(nullptr, m_hit.get());
}

void TrackerBench::press(const QPoint &position)
{
    m_hit->position = position;
    m_hit->press = m_hit->buttonHeld = true;
    m_hit->motion = false;
    update();
}

void TrackerBench::drag(const QPoint &position)
{
    m_hit->position = position;
    m_hit->motion = m_hit->buttonHeld = true;
    m_hit->press = false;
    update();
}

void TrackerBench::look(const QPoint &position)
{
    m_hit->position = position;
    m_hit->motion = m_hit->buttonHeld = m_hit->press = false;
    update();
}

void TrackerBench::pressAndDrag(const QPoint &position)
{
    m_bench->pointTo(position);
    m_bench->press(position);
    press(position);
    m_bench->pointTo(position + QPoint(21, 0));
    drag(position + QPoint(21, 0));
    drag(position + QPoint(22, 0));
}

} // namespace tests
