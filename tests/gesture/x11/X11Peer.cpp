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

QColor X11Peer::colorAt(const QPoint &global)
{
    XImage *image = XGetImage(m_display, DefaultRootWindow(m_display), global.x(), global.y(), 1, 1,
                              AllPlanes, ZPixmap);
    if (!image)
        return {};
    const unsigned long pixel = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return QColor::fromRgb(static_cast<QRgb>(pixel));
}

void X11Peer::awaitWindowManager()
{
    const Window window =
        XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    // One that takes no focus and stands aside.
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
