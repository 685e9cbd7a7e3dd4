#pragma once

class QString;
class QWidget;

namespace gesturewidget {

// Shows a message over `parent`, which may be null, and waits for the answer. `style` and
// the answer are the numbers of CHxSystemServices: 1 in the lowest four bits adds a Cancel
// button, the next four are the sign: 16 error, 32 question, 48 warning, 64 information.
// A box that is closed in another way than by its buttons answers Cancel, and so does one
// that goes away with its parent; without a Cancel button the answer is always OK.
[[nodiscard]] int showMessage(QWidget *parent, const QString &text, const QString &caption, int style);

} // namespace gesturewidget
