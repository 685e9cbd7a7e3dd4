#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

struct _XDisplay;

// An X11 desktop as a person has it before them: a pointer, a keyboard, and windows to look
// at. Input arrives in programs as real X events (XTEST), from outside of them.
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
    // Moves along a straight line in `steps` moves at even times, the last of them
    // `milliseconds` from now.
    void glide(QPoint by, int milliseconds, int steps);

    // `name` is a key's X name, with "ctrl+", "shift+" or "alt+" before it: "ctrl+s".
    // Returns false when the keyboard has no such key.
    bool tapKey(const QString &name);
    // Types characters of the basic keyboard. Returns false at the first it does not have.
    bool typeText(const QString &text);

    // Windows that a window manager manages and that are on screen.
    [[nodiscard]] QList<Window> windows() const;
    // A window of exactly that size that is on screen, managed or not.
    [[nodiscard]] std::optional<Window> windowOfSize(QSize size) const;
    // Whether keys go to that window.
    [[nodiscard]] bool hasFocus(unsigned long id) const;
    // Whether the pointer is in that window with nothing in between: input there goes to it.
    [[nodiscard]] bool isUnderPointer(unsigned long id) const;
    // Asks a window to close, as its close button does.
    void closeWindow(unsigned long id);
    // Asks the window manager to raise a window and give it the keyboard.
    void activateWindow(unsigned long id);

    // What the screen shows; null when `area` is not within it.
    [[nodiscard]] QImage look(const QRect &area) const;
    [[nodiscard]] QRect screen() const;

    // Whether another program holds the pointer, or the keyboard, for itself: seen by
    // trying to take it.
    [[nodiscard]] bool isPointerTaken();
    [[nodiscard]] bool isKeyboardTaken();

    // Asks `condition` again and again, at once and whenever 10 ms have passed, until it
    // holds or `milliseconds` are over. Returns whether it held.
    bool waitFor(const std::function<bool()> &condition, int milliseconds);

private:
    void sync();
    void sendToManager(unsigned long window, const char *message, long first);
    [[nodiscard]] unsigned long topLevelOf(unsigned long window) const;
    [[nodiscard]] QString titleOf(unsigned long window) const;
    [[nodiscard]] std::optional<QRect> visibleGeometry(unsigned long window) const;
    [[nodiscard]] std::optional<Window> findBySize(unsigned long below, QSize size, int depth) const;

    _XDisplay *m_display = nullptr;
    unsigned long m_root = 0;
};
