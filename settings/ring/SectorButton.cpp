// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/SectorButton.h"

#include "sdk/QtBridge.h"
#include "settings/ring/RingView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace settings {

SectorButton::SectorButton(RingView *ring)
    : QAbstractButton(ring)
{
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

bool SectorButton::event(QEvent *event)
{
    const bool isDone = QAbstractButton::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        Q_EMIT lookChanged(hasFocus());
        break;
    default:
        break;
    }
    return isDone;
}

void SectorButton::paintEvent(QPaintEvent * /*event*/) { }

void SectorButton::mousePressEvent(QMouseEvent *event)
{
    QAbstractButton::mousePressEvent(event);
    m_isPressed = event->button() == Qt::LeftButton;
    m_press = qtbridge::globalPosition(*event);
}

void SectorButton::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = qtbridge::globalPosition(*event) - m_press;
    if (!m_isPressed || !event->buttons().testFlag(Qt::LeftButton)
        || way.manhattanLength() < QApplication::startDragDistance()) {
        QAbstractButton::mouseMoveEvent(event);
        return;
    }
    m_isPressed = false;
    setDown(false); // the release is no click
    Q_EMIT dragBegun();
}

void SectorButton::keyPressEvent(QKeyEvent *event)
{
    // A button takes these for itself; here the ring knows what they mean.
    event->ignore();
}

} // namespace settings
