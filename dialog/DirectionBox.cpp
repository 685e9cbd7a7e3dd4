// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/DirectionBox.h"

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

void DirectionBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
