// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/DirectionBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>

namespace {

bool opensTheList(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key()) {
    case Qt::Key_F4:
    case Qt::Key_Space:
        return modifiers == Qt::NoModifier;
    case Qt::Key_Down:
    case Qt::Key_Up:
        return modifiers == Qt::AltModifier;
    default:
        return false;
    }
}

} // namespace

DirectionBox::DirectionBox(QWidget *parent)
    : QComboBox(parent)
{
    // Connect this first, so that all other receivers of the signal see the choice.
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this] { m_chosen = true; });
}

void DirectionBox::keyPressEvent(QKeyEvent *event)
{
    if (opensTheList(*event))
        showPopup();
    else
        event->ignore();
}

void DirectionBox::showPopup()
{
    view()->installEventFilter(this);
    QComboBox::showPopup();
}

bool DirectionBox::eventFilter(QObject *object, QEvent *event)
{
    // Enter in the list chooses with this event already; the press itself comes after it.
    if (event->type() == QEvent::ShortcutOverride && object == view())
        m_enterTime = static_cast<QKeyEvent *>(event)->timestamp();
    return QComboBox::eventFilter(object, event);
}

void DirectionBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
