// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/HitTest.h"

#include "host/documents/Document.h"

#include <QApplication>
#include <QWidget>

namespace gesturewidget {
namespace {

constexpr Qt::KeyboardModifiers kKeys =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

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
    return mayBeSuppressed() && QGuiApplication::modalWindow();
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
