// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/inject/guest/EventScripts.h"

#include "sdk/QtBridge.h"
#include "tests/host/inject/guest/EventLog.h"
#include "tests/host/inject/guest/GuestWindow.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QtTest/qtestspontaneevent.h>
#include <QWheelEvent>
#include <QWindow>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

namespace {

// Positions in pixels of the view.
const QPoint kHere(150, 150);

class Hand
{
public:
    explicit Hand(GuestWindow &window)
        : m_window(window)
    {
    }

    void press(QPoint place, Qt::MouseButton button = Qt::RightButton,
               Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mousePress(m_window.windowHandle(), button, keys, inWindow(place));
    }
    void release(QPoint place, Qt::MouseButton button = Qt::RightButton,
                 Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseRelease(m_window.windowHandle(), button, keys, inWindow(place));
    }
    void click(QPoint place, Qt::MouseButton button = Qt::RightButton) const
    {
        press(place, button);
        release(place, button);
    }
    void doubleClick(QPoint place, Qt::MouseButton button) const
    {
        QTest::mouseDClick(m_window.windowHandle(), button, {}, inWindow(place));
    }
    void move(QPoint place) const { QTest::mouseMove(m_window.windowHandle(), inWindow(place)); }
    void drag(QPoint from, QPoint to, Qt::MouseButton button, Qt::KeyboardModifiers keys = {}) const
    {
        press(from, button, keys);
        for (int step = 1; step <= 5; ++step)
            send(QEvent::MouseMove, from + (to - from) * step / 5, Qt::NoButton, button, keys);
        release(to, button, keys);
    }
    void wheel(QPoint place) const
    {
        const QPoint position = inWindow(place);
        QWheelEvent event(position, m_window.mapToGlobal(position), {}, QPoint(0, 120),
                          QGuiApplication::mouseButtons(), Qt::NoModifier, Qt::NoScrollPhase, false);
        notify(event);
    }
    void key(Qt::Key key) const { QTest::keyClick(m_window.windowHandle(), key); }
    void pen(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons) const
    {
        const QPoint position = inWindow(place);
        notify(*qtbridge::tabletEvent(type, position, m_window.mapToGlobal(position), button, buttons));
    }
    // Sends the mouse event that Qt makes from a pen when the program ignores the pen's event.
    void penAsMouse(QEvent::Type type, QPoint place, Qt::MouseButton button,
                    Qt::MouseButtons buttons) const
    {
        send(type, place, button, buttons, {}, Qt::MouseEventSynthesizedByQt);
    }

private:
    [[nodiscard]] QPoint inWindow(QPoint place) const { return m_window.view->mapTo(&m_window, place); }
    void send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers keys,
              Qt::MouseEventSource source = Qt::MouseEventNotSynthesized) const
    {
        const QPointF position = inWindow(place);
        const QPointF global = m_window.mapToGlobal(inWindow(place));
        QMouseEvent event(type, position, position, global, button, buttons, keys, source);
        notify(event);
    }
    void notify(QEvent &event) const
    {
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(m_window.windowHandle(), &event);
    }

    GuestWindow &m_window;
};

bool isRightPress(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress
        && static_cast<const QMouseEvent &>(event).button() == Qt::RightButton;
}

// Opens a menu at the position of the context-menu event, as programs do.
class MenuOpener : public QObject
{
public:
    MenuOpener()
        : m_log("menu")
    {
        m_entry = menu.addAction(QStringLiteral("Entry"));
        menu.installEventFilter(&m_log);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::ContextMenu)
            return false;
        const QAction *chosen = menu.exec(static_cast<QContextMenuEvent *>(event)->globalPos());
        std::printf("chosen: %s\n", chosen == m_entry ? "entry" : "nothing");
        isDone = true;
        return true;
    }
    void chooseEntry()
    {
        const QPoint place = menu.actionGeometry(m_entry).center();
        QTest::mouseMove(menu.windowHandle(), place);
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, place);
    }

    QMenu menu;
    bool isDone = false;

private:
    EventLog m_log;
    QAction *m_entry = nullptr;
};

// Runs the steps in turn from the event loop, or from an event loop that a step has started.
void takeSteps(QObject *context, const QVector<std::function<void()>> &steps, int first = 0)
{
    if (first == steps.size())
        return;
    QTimer::singleShot(0, context, [=] {
        takeSteps(context, steps, first + 1);
        steps.at(first)();
    });
}

} // namespace

bool playEvents(const char *name, GuestWindow &window)
{
    const Hand hand(window);
    EventLog view("view");
    EventLog early("application"); // installed before all that is going to be
    const auto is = [name](const char *script) { return std::strcmp(name, script) == 0; };

    window.view->setFocusPolicy(Qt::ClickFocus);
    window.view->setMouseTracking(true);
    window.view->setFocus();
    hand.move(QPoint(-5, -5));
    window.view->installEventFilter(&view);

    if (is("hover")) {
        hand.move(kHere);
        hand.move(kHere + QPoint(40, 40));
    } else if (is("clicks")) {
        for (const Qt::MouseButton button :
             {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::BackButton, Qt::RightButton})
            hand.click(kHere + QPoint(int(button) * 5, 0), button);
    } else if (is("double-clicks")) {
        hand.doubleClick(kHere, Qt::LeftButton);
        hand.doubleClick(kHere, Qt::RightButton);
        hand.click(kHere, Qt::LeftButton); // afterwards Qt knows which buttons are down
    } else if (is("drags")) {
        hand.drag(kHere, kHere + QPoint(90, 0), Qt::LeftButton);
        hand.drag(kHere, kHere + QPoint(0, 90), Qt::MiddleButton);
        hand.drag(kHere, kHere + QPoint(12, 8), Qt::RightButton); // 20 pixels
        hand.drag(kHere, kHere + QPoint(90, 0), Qt::RightButton, Qt::ControlModifier);
    } else if (is("several-buttons")) {
        hand.press(kHere);
        hand.press(kHere, Qt::LeftButton);
        hand.move(kHere + QPoint(50, 0));
        hand.release(kHere + QPoint(50, 0));
        hand.release(kHere + QPoint(50, 0), Qt::LeftButton);
        hand.press(kHere, Qt::LeftButton);
        hand.press(kHere);
        hand.move(kHere + QPoint(50, 0));
        hand.release(kHere + QPoint(50, 0));
        hand.release(kHere + QPoint(50, 0), Qt::LeftButton);
    } else if (is("wheel")) {
        hand.wheel(kHere);
        hand.press(kHere);
        hand.wheel(kHere);
        hand.release(kHere);
        hand.wheel(kHere);
    } else if (is("keys")) {
        hand.key(Qt::Key_A);
        hand.press(kHere);
        hand.key(Qt::Key_Escape);
        hand.release(kHere);
        hand.click(kHere);
        hand.key(Qt::Key_Delete);
    } else if (is("pen")) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            hand.pen(QEvent::TabletPress, kHere, button, button);
            hand.pen(QEvent::TabletMove, kHere + QPoint(50, 0), Qt::NoButton, button);
            hand.pen(QEvent::TabletRelease, kHere + QPoint(50, 0), button, Qt::NoButton);
        }
        // The pen acts while a mouse press is held.
        hand.press(kHere);
        hand.pen(QEvent::TabletPress, kHere, Qt::LeftButton, Qt::LeftButton);
        hand.pen(QEvent::TabletRelease, kHere, Qt::LeftButton, Qt::NoButton);
        hand.release(kHere);
    } else if (is("pen-as-mouse")) {
        hand.penAsMouse(QEvent::MouseButtonPress, kHere, Qt::RightButton, Qt::RightButton);
        // Too little for a gesture.
        hand.penAsMouse(QEvent::MouseMove, kHere + QPoint(5, 0), Qt::NoButton, Qt::RightButton);
        hand.penAsMouse(QEvent::MouseButtonRelease, kHere + QPoint(5, 0), Qt::RightButton, Qt::NoButton);
        hand.penAsMouse(QEvent::MouseButtonPress, kHere, Qt::LeftButton, Qt::LeftButton);
        hand.penAsMouse(QEvent::MouseMove, kHere + QPoint(50, 0), Qt::NoButton, Qt::LeftButton);
        hand.penAsMouse(QEvent::MouseButtonRelease, kHere + QPoint(50, 0), Qt::LeftButton, Qt::NoButton);
    } else if (is("control")) {
        auto *field = new QLineEdit(window.view);
        field->setContextMenuPolicy(Qt::NoContextMenu);
        field->setGeometry(100, 100, 100, 30);
        field->show();
        field->installEventFilter(&view);
        hand.click(QPoint(150, 115));
        hand.drag(QPoint(110, 115), QPoint(190, 115), Qt::RightButton);
    } else if (is("menu")) {
        MenuOpener opener;
        window.view->installEventFilter(&opener);
        takeSteps(&opener, {[&] { hand.press(kHere); }, [&] { hand.release(kHere); },
                            [&] { opener.chooseEntry(); }});
        while (!opener.isDone)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window.view->removeEventFilter(&opener);
    } else if (is("eating-view")) {
        view.eats = isRightPress;
        hand.click(kHere);
        hand.drag(kHere, kHere + QPoint(12, 8), Qt::RightButton);
        hand.click(kHere, Qt::LeftButton);
    } else if (is("eating-application")) {
        early.only = "QWidget";
        early.eats = isRightPress;
        qApp->installEventFilter(&early);
        hand.click(kHere);
        hand.click(kHere, Qt::LeftButton);
        hand.drag(kHere, kHere + QPoint(12, 8), Qt::RightButton);
    } else if (is("greedy-application")) {
        // Takes right presses before anybody else sees them.
        early.eats = isRightPress;
        qApp->installEventFilter(&early);
        hand.drag(kHere, kHere + QPoint(90, 0), Qt::RightButton);
        hand.click(kHere, Qt::LeftButton);
    } else {
        return false;
    }
    QCoreApplication::processEvents();
    return true;
}
