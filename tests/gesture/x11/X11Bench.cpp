// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/x11/X11Bench.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace tests {

QPoint onTheLastMonitor()
{
    return QGuiApplication::screens().constLast()->geometry().topLeft() + QPoint(150, 150);
}

X11Bench::X11Bench(const QPoint &corner)
    : window(std::make_unique<QMainWindow>())
{
    bench.host.mainWindow = window.get();
    bench.makeView(corner);
    input = std::make_unique<ViewInput>(bench);
}

X11Bench::~X11Bench()
{
    release();
    input.reset();
    window.reset();
}

void X11Bench::press(const QPoint &centre)
{
    peer.movePointer(global(centre));
    peer.setButton(X11Peer::kRight, true);
    m_pressed = true;
}

void X11Bench::pressAndDrag(const QPoint &centre, const QPoint &offset)
{
    press(centre);
    peer.movePointer(global(centre + offset));
}

void X11Bench::release()
{
    if (m_pressed)
        peer.setButton(X11Peer::kRight, false);
    m_pressed = false;
}

void X11Bench::settle()
{
    // Twice, because Qt may ask for more when the first answers arrive.
    for (int round = 0; round < 2; ++round) {
        static_cast<void>(QCursor::pos()); // a round trip: sends all that is waiting
        peer.awaitWindowManager();
        static_cast<void>(QCursor::pos()); // and fetches the answers
        QCoreApplication::processEvents();
    }
}

bool X11Bench::isViewInPlace()
{
    return bench.view->mapToGlobal(QPoint()) == peer.originOf(bench.view->winId());
}

bool X11Bench::isRingUp() const
{
    return ring() && ring()->gesturing && ring()->windowHandle()->isExposed();
}

QPoint X11Bench::global(const QPoint &viewPosition) const
{
    return bench.view->mapToGlobal(viewPosition);
}

} // namespace tests
