// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/trigger/TriggerField.h"

#include "host/files/TriggerText.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace settings {
namespace {

constexpr int kFieldMargin = 8; // pixels

} // namespace

TriggerField::TriggerField(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("trigger_field"));
    setAccessibleName(tr("Record what starts a gesture"));
    setAccessibleDescription(tr("Press a mouse button here, with the keys to hold. "
                                "With the keyboard, choose from the list."));
    setToolTip(tr("Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TriggerField::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(tr("or press it here")) + 4 * kFieldMargin,
            fontMetrics().height() + 2 * kFieldMargin};
}

void TriggerField::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = palette().color(QPalette::WindowText);
    QColor faint = color;
    faint.setAlphaF(0.5F);
    painter.setPen(QPen(m_isPressed ? palette().color(QPalette::Highlight) : faint, 1.0, Qt::DashLine));
    painter.setBrush(m_isPressed ? palette().color(QPalette::AlternateBase)
                                 : palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4.0, 4.0);
    painter.setPen(color);
    painter.drawText(rect(), Qt::AlignCenter, tr("or press it here"));
}

void TriggerField::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = true;
    update();
    const QString trigger = gesturewidget::triggerText(event->button(), event->modifiers());
    if (!trigger.isEmpty())
        Q_EMIT recorded(trigger);
}

void TriggerField::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    m_isPressed = false;
    update();
}

void TriggerField::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept(); // the right button is recorded
}

} // namespace settings
