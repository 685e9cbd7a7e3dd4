// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/HitTest.h"

#include "host/documents/Document.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace gesturewidget {
namespace {

constexpr Qt::KeyboardModifiers kKeys =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// True if a modal window keeps the input from `window`: any window if it is modal to the program, the
// windows that it belongs to and those beside it otherwise. Null stands for any window.
bool isBlocking(const QWindow &modal, const QWindow *window)
{
    if (!modal.isVisible() || modal.modality() == Qt::NonModal)
        return false;
    if (modal.modality() == Qt::ApplicationModal || !window)
        return true;
    for (const QWindow *blocked = &modal; blocked;
         blocked = blocked->parent(QWindow::IncludeTransients)) {
        for (const QWindow *above = window; above; above = above->parent(QWindow::IncludeTransients)) {
            if (above == blocked)
                return true;
        }
    }
    return false;
}

} // namespace

bool Trigger::matches(Qt::KeyboardModifiers held) const
{
    return (held & kKeys) == (modifiers & kKeys);
}

HitTest::HitTest(Document *document, const Trigger &trigger, const Event &event)
    : m_document(document)
    , m_trigger(trigger)
    , m_event(event)
{
}

HitTest::~HitTest() = default;

CHxDocument *HitTest::GetDocument() const
{
    return m_document && m_document->isOpen() ? m_document : nullptr;
}

bool HitTest::IsModalWindowOpen() const
{
    if (!mayBeSuppressed() || !QGuiApplication::modalWindow())
        return false;
    const QWidget *view = m_document ? m_document->view() : nullptr;
    const QWindow *window = view ? view->window()->windowHandle() : nullptr;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [window](const QWindow *other) { return isBlocking(*other, window); });
}

bool HitTest::IsPopupOpen() const
{
    return mayBeSuppressed() && QApplication::activePopupWidget();
}

bool HitTest::IsMouseGrabbed() const
{
    return mayBeSuppressed() && QWidget::mouseGrabber();
}

bool HitTest::IsOtherButtonDown() const
{
    if (!mayBeSuppressed())
        return false;
    if (m_event.role == Role::Gesture)
        return (m_event.buttons & ~Qt::MouseButtons(m_trigger.button)) != Qt::NoButton;
    return m_event.buttons != Qt::NoButton;
}

bool HitTest::IsModifierMismatch() const
{
    return m_event.kind == Kind::Press && !m_trigger.matches(m_event.modifiers);
}

bool HitTest::IsOverControl() const
{
    if (m_event.kind != Kind::Press)
        return false;
    const QWidget *view = m_document ? m_document->view() : nullptr;
    return view && view->childAt(m_event.position);
}

bool HitTest::IsViewBlocked() const
{
    if (!mayBeSuppressed())
        return false;
    const QWidget *view = m_document ? m_document->view() : nullptr;
    return !view || !view->isEnabled();
}

bool HitTest::IsPress() const
{
    return m_event.kind == Kind::Press && m_event.button == m_trigger.button;
}

bool HitTest::IsMotion() const
{
    return m_event.kind == Kind::Motion;
}

bool HitTest::IsButtonHeld() const
{
    return m_event.role != Role::Program && (m_event.buttons & m_trigger.button);
}

bool HitTest::isSuppressed() const
{
    return IsModalWindowOpen() || IsPopupOpen() || IsMouseGrabbed() || IsOtherButtonDown()
        || IsModifierMismatch() || IsOverControl() || IsViewBlocked();
}

} // namespace gesturewidget
