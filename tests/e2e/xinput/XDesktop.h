// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

struct _XDisplay; // NOLINT(bugprone-reserved-identifier): a name of the X library

// An X11 desktop as a person sees it: a pointer, a keyboard, and windows. Programs get the
// input as real X events (XTEST) from another process.
//
// Coordinates are pixels of the root window.
class XDesktop
{
public:
    struct Window
    {
        unsigned long id = 0;
        QRect geometry; // without a frame
        QString title;
    };

    // Connects to the display that DISPLAY names; check isOpen().
    XDesktop();
    ~XDesktop();
    Q_DISABLE_COPY_MOVE(XDesktop)

    [[nodiscard]] bool isOpen() const { return m_display != nullptr; }

    [[nodiscard]] QPoint pointer() const;
    void movePointer(QPoint to);
    void setButton(int button, bool down);
    // Moves along a straight line in `steps` moves at even intervals. The last move comes
    // `milliseconds` from now.
    void glide(QPoint by, int milliseconds, int steps);

    // `name` is a key's X name, after any of "ctrl+", "shift+" and "alt+": "ctrl+s".
    // Returns false if the keyboard has no such key.
    bool tapKey(const QString &name);
    // Presses or releases "ctrl", "shift" or "alt". Returns false for any other name.
    bool setModifier(const QString &name, bool down);
    // Types ASCII characters. Returns false at the first that the keyboard does not have.
    bool typeText(const QString &text);

    // The windows on screen that a window manager manages, from the lowest to the topmost;
    // all that are on screen if there is no window manager.
    [[nodiscard]] QList<Window> windows() const;
    // A window of exactly that size on screen, managed or not.
    [[nodiscard]] std::optional<Window> windowOfSize(QSize size) const;
    // True if a menu or the list of a combo box is on screen.
    [[nodiscard]] bool hasPopup() const;
    // True if keys go to that window.
    [[nodiscard]] bool hasFocus(unsigned long id) const;
    // The root's child that keys go to, and the window that the window manager calls active;
    // 0 if there is none.
    [[nodiscard]] unsigned long focusWindow() const;
    [[nodiscard]] unsigned long activeWindow() const;
    // True if the pointer is in that window with nothing in between, so that it gets the input.
    [[nodiscard]] bool isUnderPointer(unsigned long id) const;
    // Asks a window to close, as its close button does.
    void closeWindow(unsigned long id);
    // Asks the window manager to raise a window and give it the keyboard.
    void activateWindow(unsigned long id);
    // Minimises a window. activateWindow() brings it back.
    void minimizeWindow(unsigned long id);
    // These two do a window manager's work where there is none.
    void placeWindow(unsigned long id, const QRect &place);
    void focusOn(unsigned long id);

    // Starts to count how often the window manager announces an active window. Each time, a
    // title bar may flicker.
    void watch();
    // The announcements since watch() or the last call.
    [[nodiscard]] int activations();

    // A picture of the screen; null if `area` is not within the screen.
    [[nodiscard]] QImage look(const QRect &area) const;
    [[nodiscard]] QRect screen() const;

    // True if another program has grabbed the pointer, or the keyboard. Found out by trying
    // to grab it.
    [[nodiscard]] bool isPointerTaken();
    [[nodiscard]] bool isKeyboardTaken();

    // Checks `condition` now and every 10 ms until it holds or `milliseconds` are over.
    // Returns true if it held.
    bool waitFor(const std::function<bool()> &condition, int milliseconds);

private:
    void sync();
    void sendToManager(unsigned long window, const char *message, long first);
    // True if there is a window manager.
    [[nodiscard]] bool isManaged() const;
    [[nodiscard]] std::vector<unsigned long> childrenOf(unsigned long window) const;
    [[nodiscard]] unsigned long topLevelOf(unsigned long window) const;
    [[nodiscard]] QString titleOf(unsigned long window) const;
    [[nodiscard]] std::optional<QRect> visibleGeometry(unsigned long window) const;
    [[nodiscard]] std::optional<Window> findBySize(unsigned long below, QSize size, int depth) const;

    _XDisplay *m_display = nullptr;
    _XDisplay *m_watcher = nullptr; // a connection that does nothing but watch the root window
    unsigned long m_root = 0;
};
