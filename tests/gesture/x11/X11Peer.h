#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>

struct _XDisplay;

namespace tests {

// Another client of the X server, with a connection of its own: it moves the pointer,
// presses buttons and keys, looks at the screen, and finds out what is grabbed by trying to
// grab it. Qt knows nothing of it.
class X11Peer
{
public:
    X11Peer();
    ~X11Peer();
    X11Peer(const X11Peer &) = delete;
    X11Peer &operator=(const X11Peer &) = delete;

    // Input as from real devices; on its way to the programs when these return.
    void movePointer(const QPoint &global);
    void setButton(unsigned button, bool down);
    void clickWheel() { setButton(kWheelUp, true), setButton(kWheelUp, false); }
    void typeKey(unsigned long keysym);

    // Whether another client holds the grab at the moment. A grab that is free is taken for
    // the test and let go at once.
    [[nodiscard]] bool isPointerGrabbed();
    [[nodiscard]] bool isKeyboardGrabbed();

    // Where the server has the top left corner of a window.
    [[nodiscard]] QPoint originOf(unsigned long window);
    // Whether the window is mapped, and all above it.
    [[nodiscard]] bool isViewable(unsigned long window);
    // What is on the screen.
    [[nodiscard]] QColor colorAt(const QPoint &global);

    // Returns once the window manager has dealt with everything that it was asked before:
    // asks it for one more window and waits for that to appear.
    void awaitWindowManager();

    static constexpr unsigned kLeft = 1;
    static constexpr unsigned kRight = 3;
    static constexpr unsigned kWheelUp = 4;

private:
    _XDisplay *m_display;
};

} // namespace tests
