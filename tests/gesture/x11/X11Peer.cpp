// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/x11/X11Peer.h"

#include <X11/extensions/XTest.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace tests {

X11Peer::X11Peer()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        qFatal("there is no X server");
}

X11Peer::~X11Peer()
{
    XCloseDisplay(m_display);
}

void X11Peer::movePointer(const QPoint &global)
{
    XTestFakeMotionEvent(m_display, -1, global.x(), global.y(), CurrentTime);
    XSync(m_display, False);
}

void X11Peer::setButton(unsigned button, bool down)
{
    XTestFakeButtonEvent(m_display, button, down, CurrentTime);
    XSync(m_display, False);
}

void X11Peer::typeKey(unsigned long keysym)
{
    const KeyCode code = XKeysymToKeycode(m_display, keysym);
    XTestFakeKeyEvent(m_display, code, True, CurrentTime);
    XTestFakeKeyEvent(m_display, code, False, CurrentTime);
    XSync(m_display, False);
}

bool X11Peer::isPointerGrabbed()
{
    const int answer = XGrabPointer(m_display, DefaultRootWindow(m_display), False, 0, GrabModeAsync,
                                    GrabModeAsync, None, None, CurrentTime);
    if (answer == GrabSuccess)
        XUngrabPointer(m_display, CurrentTime);
    XSync(m_display, False);
    return answer == AlreadyGrabbed;
}

bool X11Peer::isKeyboardGrabbed()
{
    const int answer = XGrabKeyboard(m_display, DefaultRootWindow(m_display), False, GrabModeAsync,
                                     GrabModeAsync, CurrentTime);
    if (answer == GrabSuccess)
        XUngrabKeyboard(m_display, CurrentTime);
    XSync(m_display, False);
    return answer == AlreadyGrabbed;
}

QPoint X11Peer::originOf(unsigned long window)
{
    int x = 0;
    int y = 0;
    Window child = None;
    XTranslateCoordinates(m_display, window, DefaultRootWindow(m_display), 0, 0, &x, &y, &child);
    return {x, y};
}

bool X11Peer::isViewable(unsigned long window)
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(m_display, window, &attributes) && attributes.map_state == IsViewable;
}

QSize X11Peer::sizeOf(unsigned long window)
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(m_display, window, &attributes))
        return {};
    return {attributes.width, attributes.height};
}

void X11Peer::moveWindow(unsigned long window, const QPoint &global)
{
    XMoveWindow(m_display, window, global.x(), global.y());
    XFlush(m_display);
}

QColor X11Peer::colorAt(const QPoint &global)
{
    const QImage image = screenAt(QRect(global, QSize(1, 1)));
    return image.isNull() ? QColor() : QColor::fromRgb(image.pixel(0, 0));
}

QImage X11Peer::screenAt(const QRect &global)
{
    XImage *found = XGetImage(m_display, DefaultRootWindow(m_display), global.x(), global.y(),
                              static_cast<unsigned>(global.width()),
                              static_cast<unsigned>(global.height()), AllPlanes, ZPixmap);
    if (!found)
        return {};
    QImage image(global.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, 0xff000000U | static_cast<QRgb>(XGetPixel(found, x, y)));
    }
    XDestroyImage(found);
    return image;
}

std::vector<unsigned long> X11Peer::managedWindows()
{
    return windowsIn("_NET_CLIENT_LIST");
}

unsigned long X11Peer::activeWindow()
{
    const std::vector<unsigned long> windows = windowsIn("_NET_ACTIVE_WINDOW");
    return windows.empty() ? 0 : windows.front();
}

unsigned long X11Peer::focusedWindow()
{
    Window window = None;
    int revertTo = 0;
    XGetInputFocus(m_display, &window, &revertTo);
    return window;
}

bool X11Peer::hasCompositor()
{
    return XGetSelectionOwner(m_display, XInternAtom(m_display, "_NET_WM_CM_S0", False)) != None;
}

std::vector<unsigned long> X11Peer::windowsIn(const char *property)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(m_display, DefaultRootWindow(m_display), XInternAtom(m_display, property, False),
                       0, 1024, False, XA_WINDOW, &type, &format, &count, &rest, &data);
    std::vector<unsigned long> windows;
    if (type == XA_WINDOW && format == 32) {
        const auto *first = reinterpret_cast<const unsigned long *>(data);
        windows.assign(first, first + count);
    }
    if (data)
        XFree(data);
    return windows;
}

void X11Peer::awaitWindowManager()
{
    const Window window =
        XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    // A dock takes no focus and stands aside.
    const Atom type = XInternAtom(m_display, "_NET_WM_WINDOW_TYPE", False);
    Atom dock = XInternAtom(m_display, "_NET_WM_WINDOW_TYPE_DOCK", False);
    XChangeProperty(m_display, window, type, XA_ATOM, 32, PropModeReplace,
                    reinterpret_cast<unsigned char *>(&dock), 1);
    XSelectInput(m_display, window, StructureNotifyMask);
    XMapWindow(m_display, window);
    for (XEvent event;
         XWindowEvent(m_display, window, StructureNotifyMask, &event), event.type != MapNotify;) { }
    XDestroyWindow(m_display, window);
    XSync(m_display, False);
}

} // namespace tests
