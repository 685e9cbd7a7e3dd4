// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/StandInWidget.h"

#include <QEvent>

namespace gesturewidget {

StandInWidget::StandInWidget()
{
    setObjectName(QStringLiteral("gesturewidget-closed-view"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_DontShowOnScreen);
}

StandInWidget::~StandInWidget() = default;

void StandInWidget::setVisible(bool) { }

bool StandInWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return true;
    default:
        return QWidget::event(event);
    }
}

} // namespace gesturewidget
