// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/PointerFilter.h"

#include "host/documents/DocumentManager.h"
#include "host/input/ClickFocus.h"
#include "host/input/WindowInput.h"
#include "sdk/OwnCode.h"
#include "sdk/QtBridge.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCursor>
#include <QMouseEvent>

namespace gesturewidget {
namespace {

bool isPress(const QMouseEvent &event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

bool isFirstPress(const QMouseEvent &event)
{
    return isPress(event) && event.buttons() == Qt::MouseButtons(event.button());
}

HitTest::Kind kindOf(const QMouseEvent &event)
{
    if (isPress(event))
        return HitTest::Kind::Press;
    return event.type() == QEvent::MouseMove ? HitTest::Kind::Motion : HitTest::Kind::Other;
}

} // namespace

PointerFilter::PointerFilter(DocumentManager &documents, const Trigger &trigger,
                             std::function<bool(const QWidget *view)> gesturesAreEnabled)
    : m_documents(documents)
    , m_trigger(trigger)
    , m_gesturesAreEnabled(std::move(gesturesAreEnabled))
{
    connect(&documents, &DocumentManager::documentAboutToClose, this, [this](Document *document) {
        if (document == m_document)
            cancel();
    });
}

PointerFilter::~PointerFilter() = default;

bool PointerFilter::eventFilter(QObject *receiver, QEvent *event)
{
    // Every event of the program comes through here: do no work before it matters.
    return mayMatter(receiver, event->type()) && filter(receiver, event);
}

bool PointerFilter::filter(QObject *receiver, QEvent *event)
{
    const OwnCode ours;
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (receiver->isWidgetType()) {
            if (Document *document = m_documents.documentOf(receiver))
                showToTrackers(*document, *static_cast<QMouseEvent *>(event));
            return false;
        }
        return receiver->isWindowType()
            && filterWindow(static_cast<QWindow *>(receiver), *static_cast<QMouseEvent *>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return receiver->isWindowType()
            && filterKey(static_cast<QWindow *>(receiver), *static_cast<QKeyEvent *>(event));
    case QEvent::Wheel:
        return receiver->isWindowType()
            && filterWheel(static_cast<QWindow *>(receiver), *static_cast<QWheelEvent *>(event));
    case QEvent::TabletPress:
        // A pen can act while a press is held. Replay the held press first, to keep the order.
        // This object may be gone afterwards.
        if (m_state == State::Holding && receiver->isWindowType())
            giveBack();
        return false;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        if (receiver->isWidgetType())
            noteWindowEvent(receiver, event->type());
        return false;
    case QEvent::FocusIn:
        if (receiver->isWidgetType())
            noteFocus(receiver);
        return false;
    case QEvent::ApplicationStateChange:
        m_keys.clear(); // another program may get the releases
        return false;
    default:
        return false;
    }
}

bool PointerFilter::mayMatter(const QObject *receiver, QEvent::Type type) const
{
    switch (type) {
    case QEvent::MouseMove:
        // Nearly all events are moves while idle.
        return m_state != State::Idle || m_held.hasRest()
            || (receiver->isWidgetType() && m_documents.documentOf(receiver));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::FocusIn:
    case QEvent::ApplicationStateChange:
        return true;
    case QEvent::Wheel:
        return m_state == State::Holding || receiver == m_overlayWindow;
    case QEvent::TabletPress:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        return m_state != State::Idle;
    default:
        return false;
    }
}

void PointerFilter::showToTrackers(Document &document, const QMouseEvent &event)
{
    if (isPress(event))
        m_documents.activate(&document);
    if (m_state == State::Gesturing) {
        // An overlay posts this to the view when it stops.
        endGestureIfStopped();
        return;
    }
    const HitTest::Event seen{kindOf(event),  HitTest::Role::Program, qtbridge::localPosition(event),
                              event.button(), event.buttons(),        event.modifiers()};
    HitTest hit(&document, m_trigger, seen);
    document.inputPoints().dispatch(hit);
}

bool PointerFilter::filterWindow(QWindow *window, const QMouseEvent &event)
{
    if (m_held.isSending(&event))
        return false;
    if (m_held.hasRest()) {
        const QPointer<PointerFilter> self = this;
        m_held.sendRest();
        if (!self)
            return false;
    }
    if (isLateOverlay(window)) {
        if (isFirstPress(event))
            m_nextWindow = windowAt(qtbridge::globalPosition(event));
        if (m_nextWindow) {
            readdress(event, m_nextWindow);
            return true;
        }
    }
    switch (m_state) {
    case State::Idle:
        return isTriggerPress(event) && holdPress(window, event);
    case State::Holding:
        return filterHolding(window, event);
    case State::Gesturing:
        return filterGesturing(window, event);
    case State::Swallowing:
        break;
    }
    return filterSwallowing(window, event);
}

bool PointerFilter::isLateOverlay(const QWindow *window) const
{
    // An overlay may show for a while what was chosen. What the hand does meanwhile is the next
    // thing, but the mouse and the keyboard are still the overlay's, and it gets this when it has
    // gone.
    return window == m_overlayWindow && !window->isVisible();
}

bool PointerFilter::isTriggerPress(const QMouseEvent &event) const
{
    // If a program leaves a pen's events alone, Qt makes mouse events of them, and the pen's side
    // button is the right one. Qt also makes them of touches, which press the left button.
    const Qt::MouseEventSource source = event.source();
    const bool isOfMouseOrPen =
        source == Qt::MouseEventNotSynthesized
        || (source == Qt::MouseEventSynthesizedByQt && event.button() != Qt::LeftButton);
    return event.type() == QEvent::MouseButtonPress && event.button() == m_trigger.button
        && event.buttons() == Qt::MouseButtons(m_trigger.button) && m_trigger.matches(event.modifiers())
        && isOfMouseOrPen;
}

Document *PointerFilter::documentUnder(QWindow *window, const QMouseEvent &event) const
{
    QPoint position = qtbridge::localPosition(event);
    // A window without a widget may be inside a widget, which is then a child of the nearest
    // window above that has one. A window without a platform window gets its events from a widget;
    // asking for its identifier would create one on screen.
    for (; window && window->handle(); position += window->position(), window = window->parent()) {
        const QWidget *widget = QWidget::find(window->winId());
        if (!widget)
            continue;
        const QWidget *child = widget->childAt(position);
        return m_documents.documentOf(child ? child : widget);
    }
    return nullptr;
}

HitTest::Event PointerFilter::eventInView(const QMouseEvent &event, HitTest::Role role) const
{
    const QWidget *view = m_document ? m_document->view() : nullptr;
    const QPoint global = qtbridge::globalPosition(event);
    return {kindOf(event),
            role,
            view ? view->mapFromGlobal(global) : global,
            event.button(),
            event.buttons(),
            event.modifiers()};
}

bool PointerFilter::holdPress(QWindow *window, const QMouseEvent &event)
{
    if (m_documents.isEmpty())
        return false;
    Document *document = documentUnder(window, event);
    if (!document || !document->inputPoints().hasTrackers())
        return false;
    m_document = document;
    const HitTest::Event seen = eventInView(event, HitTest::Role::Gesture);
    HitTest hit(document, m_trigger, seen);
    if (hit.isSuppressed() || !m_gesturesAreEnabled(document->view())) {
        m_document = nullptr;
        return false;
    }
    m_documents.activate(document); // while idle: the current window may still change
    if (!document->isOpen()) {
        m_document = nullptr;
        return false;
    }
    m_state = State::Holding;
    ++m_press;
    m_keysOfPress = m_keys;
    m_pressPosition = qtbridge::globalPosition(event);
    m_pressWindow = window;
    m_held.hold(window, event);
    document->inputPoints().dispatch(hit);
    return true;
}

bool PointerFilter::filterHolding(QWindow *window, const QMouseEvent &event)
{
    // Hold it in every case, to keep the order for the program.
    m_held.hold(window, event);
    const bool isDrag =
        event.type() == QEvent::MouseMove && event.buttons() == Qt::MouseButtons(m_trigger.button);
    const bool isSecondPress = isPress(event) && event.button() == m_trigger.button;
    if (!isDrag && !isSecondPress) {
        giveBack();
        return true;
    }
    if (!isDrag)
        return true;

    const unsigned press = m_press;
    const HitTest::Event seen = eventInView(event, HitTest::Role::Gesture);
    HitTest hit(m_document, m_trigger, seen);
    m_document->inputPoints().dispatch(hit);
    if (m_state != State::Holding || m_press != press)
        return true;
    const QPoint distance = qtbridge::globalPosition(event) - m_pressPosition;
    if (hit.dragNotified())
        beginGesture(seen);
    else if (distance.manhattanLength() > kRefusedDistance)
        giveBack();
    return true;
}

bool PointerFilter::filterKey(QWindow *window, const QKeyEvent &event)
{
    if (m_held.isSending(&event))
        return false;
    m_keys.note(event);
    if (m_state == State::Gesturing) {
        tellRelease(event); // this object may be gone afterwards
        return false;
    }
    if (m_state != State::Holding) {
        if (!isLateOverlay(window) || !m_pressWindow)
            return false;
        readdress(event, m_pressWindow);
        return true;
    }
    // The key must come after the press, for the program or for a menu that the press opens.
    m_held.hold(window, event);
    // A key that was down before the press does not end the holding: a fast typist may not have
    // released it yet. Its repeats do not end it either. X11 does not always mark repeats and may
    // report them as releases and presses.
    if (event.type() == QEvent::KeyPress && !event.isAutoRepeat() && !m_keysOfPress.contains(event))
        giveBack();
    return true;
}

void PointerFilter::tellRelease(const QKeyEvent &event)
{
    // The program saw the key go down, and the overlay now has the keyboard. Without the release,
    // a program that counts Ctrl would hold it for ever.
    const bool isEnd = event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
    if (!isEnd || !m_keysOfPress.contains(event))
        return;
    m_keysOfPress.note(event);
    const QWidget *grabber = QWidget::keyboardGrabber();
    if (!grabber || grabber != m_overlay)
        return;
    QWidget *view = m_document->view();
    if (!view)
        return;
    QWidget *focus = view->window()->focusWidget();
    sendAsInput(focus ? *focus : *view, *qtbridge::copyOf(event));
}

bool PointerFilter::filterWheel(QWindow *window, const QWheelEvent &event)
{
    if (m_state != State::Holding) {
        QWindow *below = isLateOverlay(window) ? windowAt(event.globalPosition().toPoint()) : nullptr;
        if (below)
            readdress(event, below);
        return below != nullptr;
    }
    m_held.hold(window, event);
    giveBack();
    return true;
}

void PointerFilter::giveBack()
{
    if (m_state != State::Holding)
        return;
    m_state = State::Idle;
    m_document = nullptr;
    m_held.replay();
}

void PointerFilter::beginGesture(const HitTest::Event &motion)
{
    m_state = State::Gesturing;
    m_overlay.clear();
    m_overlayCame = false;
    const QPointer<PointerFilter> self = this;
    m_held.drop();
    m_held.sendRest(); // now: the overlay takes the keyboard
    if (!self || m_state != State::Gesturing)
        return;
    // The program does not get the press, but the drawing becomes the one that commands act on.
    if (QWidget *view = m_document->view())
        giveClickFocus(*view);
    if (!self || m_state != State::Gesturing)
        return;
    // A tracker prepares its overlay on one update and starts it on the next. If the next update
    // waited for the next event, a quick flick could end before the overlay appears.
    updateGesture(motion);
}

void PointerFilter::updateGesture(const HitTest::Event &motion)
{
    HitTest hit(m_document, m_trigger, motion);
    m_document->inputPoints().dispatch(hit);
    if (m_state != State::Gesturing || m_overlayCame)
        return;
    // Nobody had grabbed the mouse, or no gesture would have begun.
    m_overlay = QWidget::mouseGrabber();
    m_overlayCame = !m_overlay.isNull();
    m_overlayWindow = m_overlay ? m_overlay->windowHandle() : nullptr;
}

bool PointerFilter::filterGesturing(QWindow *window, const QMouseEvent &event)
{
    if (m_overlayCame && m_overlay && QWidget::mouseGrabber() == m_overlay) {
        // Qt gives it to the overlay, but not from a window that no widget has: such a window may
        // still get what happened before the overlay took the mouse.
        if (!m_overlayWindow || window->inherits("QWidgetWindow"))
            return false;
        readdress(event, m_overlayWindow);
        return true;
    }
    const bool isDrag = event.type() == QEvent::MouseMove && (event.buttons() & m_trigger.button);
    if (!m_overlayCame && isDrag) {
        updateGesture(eventInView(event, HitTest::Role::Gesture));
        return true;
    }
    // The buttons before this event.
    Qt::MouseButtons buttons = event.buttons();
    if (isPress(event))
        buttons &= ~Qt::MouseButtons(event.button());
    else if (event.type() == QEvent::MouseButtonRelease)
        buttons |= event.button();
    endGesture(buttons);
    return filterSwallowing(window, event); // lets through what begins anew
}

void PointerFilter::endGestureIfStopped()
{
    if (m_state != State::Gesturing || !m_overlayCame)
        return;
    if (!m_overlay || QWidget::mouseGrabber() != m_overlay)
        endGesture(QGuiApplication::mouseButtons());
}

void PointerFilter::endGesture(Qt::MouseButtons buttons)
{
    stopOverlay(); // something took the mouse away from it
    if (m_state != State::Gesturing)
        return;
    Document *document = m_document;
    // With an overlay that was destroyed, a held button would look like the drag of a new gesture.
    const bool isOverlayGone = m_overlayCame && !m_overlay;
    m_document = nullptr;
    m_overlay.clear();
    m_state = buttons == Qt::NoButton ? State::Idle : State::Swallowing;
    const QPoint global = QCursor::pos();
    const QWidget *view = document->view();
    const HitTest::Event seen{HitTest::Kind::Motion,
                              HitTest::Role::GestureEnd,
                              view ? view->mapFromGlobal(global) : global,
                              Qt::NoButton,
                              isOverlayGone ? Qt::MouseButtons(Qt::NoButton) : buttons,
                              QGuiApplication::keyboardModifiers()};
    HitTest hit(document, m_trigger, seen);
    const QPointer<QWidget> grabber = QWidget::mouseGrabber();
    document->inputPoints().dispatch(hit);
    // An overlay that appears only now would wait for a release that has already happened.
    if (QWidget::mouseGrabber() != grabber) {
        m_overlay = QWidget::mouseGrabber();
        stopOverlay();
        HitTest again(document, m_trigger, seen);
        document->inputPoints().dispatch(again);
    }
}

void PointerFilter::stopOverlay()
{
    if (!m_overlay || (!m_overlay->isVisible() && QWidget::mouseGrabber() != m_overlay))
        return;
    const QPointer<QWidget> overlay = m_overlay;
    const QPoint global = QCursor::pos();
    QMouseEvent release(QEvent::MouseButtonRelease, overlay->mapFromGlobal(global), global,
                        m_trigger.button,
                        QGuiApplication::mouseButtons() & ~Qt::MouseButtons(m_trigger.button),
                        QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(overlay, &release);
    // No grab and no window may stay, even if the overlay ignored the release.
    if (overlay && QWidget::mouseGrabber() == overlay)
        overlay->releaseMouse();
    if (overlay && QWidget::keyboardGrabber() == overlay)
        overlay->releaseKeyboard();
    if (overlay)
        overlay->hide();
}

bool PointerFilter::filterSwallowing(QWindow *window, const QMouseEvent &event)
{
    // The last release may have gone to another program. The first event afterwards shows it.
    const bool isHovering = event.type() == QEvent::MouseMove && event.buttons() == Qt::NoButton;
    if (isFirstPress(event) || isHovering) {
        m_state = State::Idle;
        return filterWindow(window, event);
    }
    if (event.buttons() == Qt::NoButton)
        m_state = State::Idle;
    return true;
}

void PointerFilter::cancel()
{
    const State state = m_state;
    if (state == State::Holding) {
        m_state = State::Idle;
        m_document = nullptr;
        m_held.drop();
    } else if (state == State::Gesturing) {
        endGesture(QGuiApplication::mouseButtons());
    }
}

void PointerFilter::pointerJumped()
{
    if (m_state == State::Holding)
        queue(&PointerFilter::giveBack);
    else
        cancel();
}

void PointerFilter::noteWindowEvent(QObject *receiver, QEvent::Type type)
{
    const auto *widget = static_cast<const QWidget *>(receiver);
    const QWidget *view = m_document ? m_document->view() : nullptr;
    const bool isOfView = view && (widget == view || widget->isAncestorOf(view));
    const bool isPopup = type == QEvent::Show && widget->windowType() == Qt::Popup;
    if (m_state == State::Holding) {
        // Ignore deactivation. The button is down, so the window system goes on sending the pointer
        // here. A late deactivation may also come from an overlay that has just gone. If the press
        // were given back for it, a menu would open under a drag.
        if (isPopup || (isOfView && type != QEvent::Show && type != QEvent::WindowDeactivate))
            queue(&PointerFilter::giveBack);
    } else if (m_state == State::Gesturing) {
        // The overlay itself takes the activation from the view's window.
        const bool isLost = isOfView && type != QEvent::Show && type != QEvent::WindowDeactivate;
        if (isPopup || isLost)
            queue(&PointerFilter::cancel);
        else if (type == QEvent::Hide && widget->isWindow())
            queue(&PointerFilter::endGestureIfStopped);
    }
}

void PointerFilter::noteFocus(const QObject *receiver)
{
    // The drawing under the press is the active one until the gesture ends.
    if (m_state == State::Holding || m_state == State::Gesturing)
        return;
    Document *document = m_documents.documentOf(receiver);
    if (!document) {
        // The viewport of a scroll area is the view, but the area gets the focus.
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(receiver))
            document = m_documents.documentOf(area->viewport());
    }
    if (document)
        m_documents.activate(document);
}

void PointerFilter::queue(void (PointerFilter::*method)())
{
    const unsigned press = m_press;
    QMetaObject::invokeMethod(
        this,
        [this, press, method] {
            const OwnCode ours;
            if (press == m_press)
                (this->*method)();
        },
        Qt::QueuedConnection);
}

} // namespace gesturewidget
