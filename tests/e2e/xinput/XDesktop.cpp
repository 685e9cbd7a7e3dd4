// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/e2e/xinput/XDesktop.h"

#include <QElapsedTimer>
#include <QStringList>

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xatom.h>
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <iterator>

namespace {

// Window managers nest a window in its frame and the frame's parent, and no deeper.
constexpr int kDeepestWindow = 4;
constexpr long kPollNanoseconds = 10'000'000;

timespec now()
{
    timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time;
}

timespec after(timespec time, qint64 nanoseconds)
{
    const qint64 total = time.tv_nsec + nanoseconds;
    time.tv_sec += static_cast<time_t>(total / 1'000'000'000);
    time.tv_nsec = static_cast<long>(total % 1'000'000'000);
    return time;
}

void sleepUntil(const timespec &time)
{
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &time, nullptr) == EINTR) { }
}

// A window may go while it is inspected; a request for it then fails, which is expected.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

QByteArray property(Display *display, ::Window window, const char *name, Atom type)
{
    Atom actual = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    const Atom atom = XInternAtom(display, name, False);
    if (XGetWindowProperty(display, window, atom, 0, 65536, False, type, &actual, &format, &count, &left,
                           &data)
            != Success
        || !data)
        return {};
    const std::size_t size = format == 32 ? sizeof(long) : static_cast<std::size_t>(format) / 8;
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(count * size));
    XFree(data);
    return bytes;
}

// Windows or atoms in a property; empty if the window has no such property.
std::vector<unsigned long> identifiers(Display *display, ::Window window, const char *name, Atom type)
{
    const QByteArray bytes = property(display, window, name, type);
    std::vector<unsigned long> result(static_cast<std::size_t>(bytes.size()) / sizeof(unsigned long));
    // memcpy() takes no null, which the data of an empty vector is.
    if (!result.empty())
        std::memcpy(result.data(), bytes.constData(), result.size() * sizeof(unsigned long));
    return result;
}

KeySym modifierNamed(const QString &name)
{
    return name == QLatin1String("ctrl")  ? XK_Control_L
         : name == QLatin1String("shift") ? XK_Shift_L
         : name == QLatin1String("alt")   ? XK_Alt_L
                                          : NoSymbol;
}

} // namespace

XDesktop::XDesktop()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
    XSetErrorHandler(ignoreError);
    m_root = DefaultRootWindow(m_display);
    XTestGrabControl(m_display, True); // our input arrives even while a program grabs the server
}

XDesktop::~XDesktop()
{
    if (m_watcher)
        XCloseDisplay(m_watcher);
    if (m_display)
        XCloseDisplay(m_display);
}

QPoint XDesktop::pointer() const
{
    ::Window root = 0;
    ::Window child = 0;
    int x = 0;
    int y = 0;
    int localX = 0;
    int localY = 0;
    unsigned int mask = 0;
    XQueryPointer(m_display, m_root, &root, &child, &x, &y, &localX, &localY, &mask);
    return {x, y};
}

void XDesktop::movePointer(QPoint to)
{
    XTestFakeMotionEvent(m_display, -1, to.x(), to.y(), CurrentTime);
    sync();
}

void XDesktop::setButton(int button, bool down)
{
    XTestFakeButtonEvent(m_display, static_cast<unsigned int>(button), down ? True : False, CurrentTime);
    sync();
}

void XDesktop::glide(QPoint by, int milliseconds, int steps)
{
    const QPoint from = pointer();
    const timespec start = now();
    for (int step = 1; step <= steps; ++step) {
        sleepUntil(after(start, qint64(milliseconds) * 1'000'000 * step / steps));
        movePointer(from + QPoint(by.x() * step / steps, by.y() * step / steps));
    }
}

bool XDesktop::setModifier(const QString &name, bool down)
{
    const KeySym symbol = modifierNamed(name);
    if (symbol == NoSymbol)
        return false;
    XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, symbol), down ? True : False, CurrentTime);
    sync();
    return true;
}

bool XDesktop::tapKey(const QString &name)
{
    QStringList parts = name.split(QLatin1Char('+'));
    const KeySym symbol = XStringToKeysym(parts.takeLast().toLatin1().constData());
    std::vector<KeyCode> codes;
    for (const QString &part : parts) {
        const KeySym modifier = modifierNamed(part);
        if (modifier == NoSymbol)
            return false;
        codes.push_back(XKeysymToKeycode(m_display, modifier));
    }
    const KeyCode code = symbol == NoSymbol ? KeyCode(0) : XKeysymToKeycode(m_display, symbol);
    if (code == 0)
        return false;
    codes.push_back(code);
    for (auto it = codes.begin(); it != codes.end(); ++it)
        XTestFakeKeyEvent(m_display, *it, True, CurrentTime);
    for (auto it = codes.rbegin(); it != codes.rend(); ++it)
        XTestFakeKeyEvent(m_display, *it, False, CurrentTime);
    sync();
    return true;
}

bool XDesktop::typeText(const QString &text)
{
    for (const QChar character : text) {
        if (character.unicode() < 0x20 || character.unicode() > 0x7e)
            return false;
        const KeySym symbol = character.unicode(); // ASCII characters are their own symbols
        const KeyCode code = XKeysymToKeycode(m_display, symbol);
        if (code == 0)
            return false;
        const bool shift = XkbKeycodeToKeysym(m_display, code, 0, 0) != symbol;
        const KeyCode shiftCode = XKeysymToKeycode(m_display, XK_Shift_L);
        if (shift)
            XTestFakeKeyEvent(m_display, shiftCode, True, CurrentTime);
        XTestFakeKeyEvent(m_display, code, True, CurrentTime);
        XTestFakeKeyEvent(m_display, code, False, CurrentTime);
        if (shift)
            XTestFakeKeyEvent(m_display, shiftCode, False, CurrentTime);
    }
    sync();
    return true;
}

QList<XDesktop::Window> XDesktop::windows() const
{
    std::vector<unsigned long> ids =
        identifiers(m_display, m_root, "_NET_CLIENT_LIST_STACKING", XA_WINDOW);
    if (ids.empty()) // xfwm4 announces the stack only once it has changed
        ids = identifiers(m_display, m_root, "_NET_CLIENT_LIST", XA_WINDOW);
    if (!isManaged()) // then the root's children are the windows themselves
        ids = childrenOf(m_root);
    QList<Window> result;
    for (const unsigned long id : ids) {
        if (const auto geometry = visibleGeometry(id))
            result.append({id, *geometry, titleOf(id)});
    }
    return result;
}

std::optional<XDesktop::Window> XDesktop::windowOfSize(QSize size) const
{
    return findBySize(m_root, size, 0);
}

std::optional<XDesktop::Window> XDesktop::findBySize(unsigned long below, QSize size, int depth) const
{
    const std::vector<unsigned long> children = childrenOf(below);
    for (auto child = children.rbegin(); child != children.rend(); ++child) { // topmost first
        const auto geometry = visibleGeometry(*child);
        if (geometry && geometry->size() == size)
            return Window{*child, *geometry, titleOf(*child)};
        auto inside =
            geometry && depth < kDeepestWindow ? findBySize(*child, size, depth + 1) : std::nullopt;
        if (inside)
            return inside;
    }
    return {};
}

bool XDesktop::hasPopup() const
{
    const unsigned long types[] = {XInternAtom(m_display, "_NET_WM_WINDOW_TYPE_POPUP_MENU", False),
                                   XInternAtom(m_display, "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", False),
                                   XInternAtom(m_display, "_NET_WM_WINDOW_TYPE_COMBO", False)};
    const std::vector<unsigned long> children = childrenOf(m_root);
    return std::any_of(children.begin(), children.end(), [&](unsigned long child) {
        const std::vector<unsigned long> own =
            identifiers(m_display, child, "_NET_WM_WINDOW_TYPE", XA_ATOM);
        return std::find_first_of(own.begin(), own.end(), std::begin(types), std::end(types))
                != own.end()
            && visibleGeometry(child);
    });
}

unsigned long XDesktop::focusWindow() const
{
    ::Window focus = 0;
    int revert = 0;
    XGetInputFocus(m_display, &focus, &revert);
    // A program may give the focus to a window inside its own.
    return focus == None || focus == PointerRoot ? None : topLevelOf(focus);
}

bool XDesktop::hasFocus(unsigned long id) const
{
    const unsigned long focus = focusWindow();
    return focus != None && focus == topLevelOf(id);
}

unsigned long XDesktop::activeWindow() const
{
    const auto ids = identifiers(m_display, m_root, "_NET_ACTIVE_WINDOW", XA_WINDOW);
    return ids.empty() ? None : ids.front();
}

void XDesktop::watch()
{
    if (m_watcher)
        XCloseDisplay(m_watcher);
    m_watcher = XOpenDisplay(nullptr);
    XSelectInput(m_watcher, m_root, PropertyChangeMask);
    XSync(m_watcher, False);
}

int XDesktop::activations()
{
    if (!m_watcher)
        return 0;
    XSync(m_watcher, False);
    const Atom active = XInternAtom(m_watcher, "_NET_ACTIVE_WINDOW", False);
    int count = 0;
    while (XPending(m_watcher) > 0) {
        XEvent event = {};
        XNextEvent(m_watcher, &event);
        count += event.type == PropertyNotify && event.xproperty.atom == active;
    }
    return count;
}

bool XDesktop::isUnderPointer(unsigned long id) const
{
    ::Window root = 0;
    ::Window child = 0;
    int x = 0;
    int y = 0;
    int localX = 0;
    int localY = 0;
    unsigned int mask = 0;
    XQueryPointer(m_display, m_root, &root, &child, &x, &y, &localX, &localY, &mask);
    return child != None && child == topLevelOf(id);
}

void XDesktop::closeWindow(unsigned long id)
{
    const auto supported = identifiers(m_display, m_root, "_NET_SUPPORTED", XA_ATOM);
    const unsigned long close = XInternAtom(m_display, "_NET_CLOSE_WINDOW", False);
    if (std::find(supported.begin(), supported.end(), close) != supported.end()) {
        sendToManager(id, "_NET_CLOSE_WINDOW", CurrentTime);
        return;
    }
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id;
    event.xclient.message_type = XInternAtom(m_display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(m_display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(m_display, id, False, NoEventMask, &event);
    sync();
}

void XDesktop::placeWindow(unsigned long id, const QRect &place)
{
    XMoveResizeWindow(m_display, id, place.x(), place.y(), static_cast<unsigned>(place.width()),
                      static_cast<unsigned>(place.height()));
    sync();
}

void XDesktop::focusOn(unsigned long id)
{
    XSetInputFocus(m_display, id, RevertToParent, CurrentTime);
    sync();
}

void XDesktop::activateWindow(unsigned long id)
{
    sendToManager(id, "_NET_ACTIVE_WINDOW", 2); // 2: the person asked for it, not a program
}

void XDesktop::minimizeWindow(unsigned long id)
{
    sendToManager(id, "WM_CHANGE_STATE", IconicState);
}

void XDesktop::sendToManager(unsigned long window, const char *message, long first)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(m_display, message, False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = 2;
    XSendEvent(m_display, m_root, False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
    sync();
}

QImage XDesktop::look(const QRect &area) const
{
    if (!screen().contains(area) || area.isEmpty())
        return {};
    XImage *image = XGetImage(m_display, m_root, area.x(), area.y(), static_cast<unsigned>(area.width()),
                              static_cast<unsigned>(area.height()), AllPlanes, ZPixmap);
    if (!image)
        return {};
    QImage result(area.size(), QImage::Format_RGB32);
    for (int y = 0; y < area.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < area.width(); ++x)
            line[x] = 0xff000000U | static_cast<QRgb>(XGetPixel(image, x, y) & 0xffffffU);
    }
    XDestroyImage(image);
    return result;
}

QRect XDesktop::screen() const
{
    const int number = DefaultScreen(m_display);
    return {0, 0, DisplayWidth(m_display, number), DisplayHeight(m_display, number)};
}

bool XDesktop::isPointerTaken()
{
    const int result =
        XGrabPointer(m_display, m_root, False, 0, GrabModeAsync, GrabModeAsync, None, None, CurrentTime);
    if (result == GrabSuccess)
        XUngrabPointer(m_display, CurrentTime);
    sync();
    return result != GrabSuccess;
}

bool XDesktop::isKeyboardTaken()
{
    const int result =
        XGrabKeyboard(m_display, m_root, False, GrabModeAsync, GrabModeAsync, CurrentTime);
    if (result == GrabSuccess)
        XUngrabKeyboard(m_display, CurrentTime);
    sync();
    return result != GrabSuccess;
}

bool XDesktop::waitFor(const std::function<bool()> &condition, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() >= milliseconds)
            return false;
        sleepUntil(after(now(), kPollNanoseconds));
    }
    return true;
}

void XDesktop::sync()
{
    XSync(m_display, True); // discards events: this connection selects none
}

bool XDesktop::isManaged() const
{
    return !identifiers(m_display, m_root, "_NET_SUPPORTING_WM_CHECK", XA_WINDOW).empty();
}

// From the lowest in the stack to the topmost.
std::vector<unsigned long> XDesktop::childrenOf(unsigned long window) const
{
    ::Window root = 0;
    ::Window parent = 0;
    ::Window *children = nullptr;
    unsigned int count = 0;
    if (!XQueryTree(m_display, window, &root, &parent, &children, &count))
        return {};
    std::vector<unsigned long> result(children, children + count);
    if (children)
        XFree(children);
    return result;
}

// The root's child that `window` is in: its frame, if it has one.
unsigned long XDesktop::topLevelOf(unsigned long window) const
{
    while (window != None) {
        ::Window root = 0;
        ::Window parent = 0;
        ::Window *children = nullptr;
        unsigned int count = 0;
        if (!XQueryTree(m_display, window, &root, &parent, &children, &count))
            return None;
        if (children)
            XFree(children);
        if (parent == m_root)
            return window;
        window = parent;
    }
    return None;
}

QString XDesktop::titleOf(unsigned long window) const
{
    const QByteArray name =
        property(m_display, window, "_NET_WM_NAME", XInternAtom(m_display, "UTF8_STRING", False));
    return QString::fromUtf8(name.isEmpty() ? property(m_display, window, "WM_NAME", XA_STRING) : name);
}

std::optional<QRect> XDesktop::visibleGeometry(unsigned long window) const
{
    XWindowAttributes attributes = {};
    if (!XGetWindowAttributes(m_display, window, &attributes) || attributes.map_state != IsViewable)
        return {};
    int x = 0;
    int y = 0;
    ::Window child = 0;
    XTranslateCoordinates(m_display, window, m_root, 0, 0, &x, &y, &child);
    return QRect(x, y, attributes.width, attributes.height);
}
