// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/gesture/GestureBench.h"
#include "tests/gesture/x11/ViewInput.h"
#include "tests/gesture/x11/X11Peer.h"

#include <QMainWindow>

#include <memory>

namespace tests {

// The usual place of the view.
[[nodiscard]] QPoint onTheLastMonitor();

// A GestureBench on a real X server: the view's pointer events go to a tracker, and another
// client of the server moves the pointer, presses and looks.
class X11Bench
{
public:
    // The view is here, for Qt.
    explicit X11Bench(const QPoint &corner = onTheLastMonitor());
    ~X11Bench();

    // Presses the right button at a place in the view. Positions are pixels of the view.
    void press(const QPoint &centre);
    // Presses and drags by an offset, in one go.
    void pressAndDrag(const QPoint &centre, const QPoint &offset);
    void release();
    // Returns once the server and the window manager have answered everything they were asked.
    void settle();
    // True if the window shows where the server has it. The window manager may move the view
    // while it takes it over.
    [[nodiscard]] bool isViewInPlace();
    // True if a gesture is on and its ring is on the screen.
    [[nodiscard]] bool isRingUp() const;
    [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const { return input->ring(); }
    [[nodiscard]] QPoint global(const QPoint &viewPosition) const;

    X11Peer peer;
    GestureBench bench;
    std::unique_ptr<QMainWindow> window;
    std::unique_ptr<ViewInput> input;

private:
    bool m_pressed = false;
};

} // namespace tests
