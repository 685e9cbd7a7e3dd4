// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>

#include <vector>

struct _XDisplay; // NOLINT(bugprone-reserved-identifier): a name of the X library

namespace tests {

// Another client of the X server, with its own connection. It moves the pointer, presses
// buttons and keys and looks at the screen. It finds out whether something is grabbed by trying
// to grab it. Qt knows nothing of it.
class X11Peer
{
public:
    X11Peer();
    ~X11Peer();
    X11Peer(const X11Peer &) = delete;
    X11Peer &operator=(const X11Peer &) = delete;

    // Input as from real devices. It is on its way to the programs when these return.
    void movePointer(const QPoint &global);
    void setButton(unsigned button, bool down);
    void clickWheel() { setButton(kWheelUp, true), setButton(kWheelUp, false); }
    void typeKey(unsigned long keysym);

    // True if another client holds the grab. A free grab is taken for a moment and let go.
    [[nodiscard]] bool isPointerGrabbed();
    [[nodiscard]] bool isKeyboardGrabbed();

    // Moves a window, as a person does who drags its title bar.
    void moveWindow(unsigned long window, const QPoint &global);
    // The top left corner of a window, as the server has it.
    [[nodiscard]] QPoint originOf(unsigned long window);
    // The size of a window, as the server has it.
    [[nodiscard]] QSize sizeOf(unsigned long window);
    // True if the window and all its parents are mapped.
    [[nodiscard]] bool isViewable(unsigned long window);
    // The pixels on the screen.
    [[nodiscard]] QColor colorAt(const QPoint &global);
    [[nodiscard]] QImage screenAt(const QRect &global);

    // The windows that the window manager takes care of; a task bar shows them.
    [[nodiscard]] std::vector<unsigned long> managedWindows();
    // The window that the window manager calls the active one; 0 for none.
    [[nodiscard]] unsigned long activeWindow();
    // The window that gets the keys.
    [[nodiscard]] unsigned long focusedWindow();
    // True if a compositor runs on the first screen.
    [[nodiscard]] bool hasCompositor();

    // Asks the window manager for one more window and waits until that appears. All earlier
    // requests are done then.
    void awaitWindowManager();

    static constexpr unsigned kLeft = 1;
    static constexpr unsigned kRight = 3;
    static constexpr unsigned kWheelUp = 4;

private:
    // A property of the root window that holds windows; empty if there is none.
    [[nodiscard]] std::vector<unsigned long> windowsIn(const char *property);

    _XDisplay *m_display;
};

} // namespace tests
