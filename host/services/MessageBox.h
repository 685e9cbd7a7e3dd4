// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

namespace gesturewidget {

// Shows a message over `parent`, which may be null, and waits for the answer. `style` and the
// answer are numbers of CHxSystemServices: 1 in the lowest four bits of `style` adds a Cancel
// button; the next four bits are the icon: 16 error, 32 question, 48 warning, 64 information.
// Closing the box in any other way, or destroying it with its parent, answers Cancel. Without a
// Cancel button the answer is always OK.
[[nodiscard]] int showMessage(QWidget *parent, const QString &text, const QString &caption, int style);

} // namespace gesturewidget
