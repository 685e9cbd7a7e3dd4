// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/WindowInput.h"

#include "sdk/OwnCode.h"
#include "sdk/QtBridge.h"

#include <QApplication>
#include <QtTest/qtestspontaneevent.h>
#include <QWidget>

namespace gesturewidget {
namespace {

// True if Qt would keep input from the window because of a modal one. Qt asks the same question
// for mouse events from the window system.
bool isBlockedByModal(const QWindow *window)
{
    const QWindow *modal = QGuiApplication::modalWindow();
    if (!modal || modal == window || QApplication::activePopupWidget()
        || modal->isAncestorOf(window, QWindow::IncludeTransients))
        return false;
    if (modal->modality() == Qt::ApplicationModal)
        return true;
    const QWindow *top = window;
    while (top->parent())
        top = top->parent();
    return top->isAncestorOf(modal, QWindow::IncludeTransients);
}

} // namespace

void sendAsInput(QObject &receiver, QInputEvent &event)
{
    // Do not use sendEvent(), which marks the event as the program's own. A copy does not have the
    // window system's mark on Qt 6.
    QSpontaneKeyEvent::setSpontaneous(&event);
    const ProgramCode theirs;
    qApp->notify(&receiver, &event);
}

void sendToWindow(QWindow *window, QInputEvent &event)
{
    // Qt notes the pressed buttons from window-system events, so events that the program must not
    // get go to an object that ignores them.
    QObject nobody;
    const bool isLost = !window || isBlockedByModal(window);
    sendAsInput(isLost ? nobody : *window, event);
}

void readdress(const QMouseEvent &event, QWindow *window)
{
    const QPoint local = window->mapFromGlobal(qtbridge::globalPosition(event));
    const std::unique_ptr<QMouseEvent> copy = qtbridge::atPosition(event, local);
    sendToWindow(window, *copy);
}

void readdress(const QWheelEvent &event, QWindow *window)
{
    const QPointF global = event.globalPosition();
    QWheelEvent copy(window->mapFromGlobal(global.toPoint()), global, event.pixelDelta(),
                     event.angleDelta(), event.buttons(), event.modifiers(), event.phase(),
                     event.inverted(), event.source());
    copy.setTimestamp(event.timestamp());
    sendToWindow(window, copy);
}

void readdress(const QKeyEvent &event, QWindow *window)
{
    sendToWindow(window, *qtbridge::copyOf(event));
}

QWindow *windowAt(const QPoint &global)
{
    const QWidget *widget = QApplication::widgetAt(global);
    if (widget && !widget->windowHandle())
        widget = widget->nativeParentWidget();
    return widget ? widget->windowHandle() : nullptr;
}

} // namespace gesturewidget
