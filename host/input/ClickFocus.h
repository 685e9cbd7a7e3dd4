// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace gesturewidget {

// Gives the keyboard focus as Qt does for a click in the enabled widget: to the widget,
// or to the nearest one around it that takes the focus by clicks. In a program with several
// drawings, commands then act on the one that was pressed. The program's code runs meanwhile and may
// destroy anything.
void giveClickFocus(QWidget &pressed);

} // namespace gesturewidget
