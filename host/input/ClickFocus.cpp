// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/input/ClickFocus.h"

#include "sdk/OwnCode.h"

#include <QWidget>

namespace gesturewidget {
namespace {

// The widget that gets the focus in its place.
const QWidget *lastProxyOf(const QWidget *widget)
{
    while (widget->focusProxy())
        widget = widget->focusProxy();
    return widget;
}

bool takesFocusByClicks(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus
        && (lastProxyOf(&widget)->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
}

} // namespace

void giveClickFocus(QWidget &pressed)
{
    // A click in a widget that has the focus without taking it by clicks leaves it there.
    for (QWidget *widget = &pressed; widget; widget = widget->parentWidget()) {
        if (takesFocusByClicks(*widget)) {
            const ProgramCode theirs;
            widget->setFocus(Qt::MouseFocusReason);
            return;
        }
        if (widget->isWindow() || lastProxyOf(widget)->hasFocus())
            return;
    }
}

} // namespace gesturewidget
