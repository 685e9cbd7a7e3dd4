// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Measures from outside how long a program takes to show a ring or a context menu:
//
//     bench_popup_time ring|menu X Y ROUNDS
//
// X and Y, in pixels of the screen, are a place in the program's drawing. Each round drags there with
// the right button until the ring opens, or clicks it. Prints the microseconds of each round, from the
// event until the X server has the first picture of the new window. Exits with 1 if none came.
// Needs the X server's extensions XTEST and DAMAGE.

#include <X11/extensions/Xdamage.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xlib.h>

#include <poll.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <set>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr unsigned kRight = 3; // the button
constexpr int kDrag = 30; // pixels; more than 20 open the ring
constexpr milliseconds kRest(300); // until the program, its window manager and the compositor are idle
constexpr milliseconds kBetween(50); // from a press to the movement or the release that is timed
constexpr milliseconds kPatience(5000);
constexpr int kPoll = 100; // milliseconds; then the patience is looked at

// Windows may be gone when their events arrive.
int ignoreError(Display * /*display*/, XErrorEvent * /*error*/)
{
    return 0;
}

// Watches the windows that no window manager takes care of. Rings and menus are such windows.
class Popups
{
public:
    explicit Popups(Display *display)
        : m_display(display)
    {
        XSetErrorHandler(ignoreError);
        int error = 0;
        if (!XDamageQueryExtension(display, &m_event, &error)) {
            std::fputs("bench_popup_time: the X server has no DAMAGE\n", stderr);
            std::exit(1);
        }
        const Window root = DefaultRootWindow(display);
        XSelectInput(display, root, SubstructureNotifyMask);
        Window ignored = 0;
        Window *windows = nullptr;
        unsigned count = 0;
        if (XQueryTree(display, root, &ignored, &ignored, &windows, &count)) {
            for (unsigned i = 0; i < count; ++i)
                add(windows[i]);
            XFree(windows);
        }
    }

    // Takes what has happened and forgets what was painted until now.
    void rest()
    {
        std::this_thread::sleep_for(kRest);
        takeAll();
        for (const auto &[window, damage] : m_damages)
            XDamageSubtract(m_display, damage, None, None);
        takeAll();
        m_painted.reset();
    }

    // Waits until a window that is on the screen gets a picture. False if that takes too long.
    bool waitForPicture()
    {
        return waitUntil([this] { return m_painted && m_mapped.count(*m_painted) != 0; });
    }
    // Waits until it is gone from the screen.
    bool waitUntilGone()
    {
        return waitUntil([this] { return m_mapped.count(*m_painted) == 0; });
    }

private:
    void add(Window window)
    {
        XWindowAttributes attributes;
        if (m_damages.count(window) != 0 || !XGetWindowAttributes(m_display, window, &attributes)
            || !attributes.override_redirect)
            return;
        m_damages[window] = XDamageCreate(m_display, window, XDamageReportNonEmpty);
    }

    void takeAll()
    {
        XSync(m_display, False);
        while (XPending(m_display))
            take();
    }

    void take()
    {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == CreateNotify)
            add(event.xcreatewindow.window);
        else if (event.type == ConfigureNotify)
            add(event.xconfigure.window); // the flag comes after the window
        else if (event.type == MapNotify && m_damages.count(event.xmap.window) != 0)
            m_mapped.insert(event.xmap.window);
        else if (event.type == UnmapNotify)
            m_mapped.erase(event.xunmap.window);
        else if (event.type == DestroyNotify) {
            m_mapped.erase(event.xdestroywindow.window);
            m_damages.erase(event.xdestroywindow.window);
        } else if (event.type == m_event + XDamageNotify) {
            const auto window = reinterpret_cast<const XDamageNotifyEvent &>(event).drawable;
            if (m_mapped.count(window) != 0)
                m_painted = window;
        }
    }

    template <typename Condition> bool waitUntil(const Condition &isTrue)
    {
        const auto end = Clock::now() + kPatience;
        while (!isTrue()) {
            if (XPending(m_display)) {
                take();
            } else {
                pollfd connection{ConnectionNumber(m_display), POLLIN, 0};
                poll(&connection, 1, kPoll);
            }
            if (Clock::now() > end)
                return false;
        }
        return true;
    }

    Display *m_display;
    int m_event = 0;
    std::map<Window, Damage> m_damages;
    std::set<Window> m_mapped;
    std::optional<Window> m_painted; // since rest()
};

// A program's drawing, with somebody's hand on the mouse.
class Hand
{
public:
    Hand(Display *display, int x, int y)
        : m_display(display)
        , m_x(x)
        , m_y(y)
    {
    }

    // Moves the pointer to that many pixels below the place.
    void moveTo(int below)
    {
        XTestFakeMotionEvent(m_display, -1, m_x, m_y + below, CurrentTime);
        XFlush(m_display);
    }
    void button(bool isDown)
    {
        XTestFakeButtonEvent(m_display, kRight, isDown ? True : False, CurrentTime);
        XFlush(m_display);
    }
    void escape()
    {
        const KeyCode key = XKeysymToKeycode(m_display, XK_Escape);
        XTestFakeKeyEvent(m_display, key, True, CurrentTime);
        XTestFakeKeyEvent(m_display, key, False, CurrentTime);
        XFlush(m_display);
    }

private:
    Display *m_display;
    int m_x;
    int m_y;
};

} // namespace

int main(int argc, char **argv)
{
    Display *display = argc == 5 ? XOpenDisplay(nullptr) : nullptr;
    if (!display) {
        std::fputs("usage: bench_popup_time ring|menu X Y ROUNDS, with an X server\n", stderr);
        return 1;
    }
    const bool isRing = std::strcmp(argv[1], "ring") == 0;
    Hand hand(display, std::atoi(argv[2]), std::atoi(argv[3]));
    Popups popups(display);
    for (int round = std::atoi(argv[4]); round > 0; --round) {
        hand.moveTo(0);
        popups.rest();
        hand.button(true);
        std::this_thread::sleep_for(kBetween);
        const auto start = Clock::now();
        if (isRing)
            hand.moveTo(kDrag);
        else
            hand.button(false);
        if (!popups.waitForPicture()) {
            std::fputs("bench_popup_time: nothing opened\n", stderr);
            return 1;
        }
        const std::chrono::duration<double, std::micro> taken = Clock::now() - start;
        if (isRing)
            hand.button(false);
        else
            hand.escape();
        if (!popups.waitUntilGone()) {
            std::fputs("bench_popup_time: it does not close\n", stderr);
            return 1;
        }
        std::printf("%.0f\n", taken.count());
    }
    XCloseDisplay(display);
    return 0;
}
