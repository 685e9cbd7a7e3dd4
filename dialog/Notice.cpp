// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/Notice.h"

#include <QAccessible>
#include <QToolTip>

#include <algorithm>

Notice::Notice(QWidget *window)
    : QLabel(window)
{
    hide();
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::Box);
    setMargin(2);
    setAutoFillBackground(true);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase); // the foreground follows
    // Clicks reach the widgets below.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
}

void Notice::showFor(const QString &note, const QRect &place)
{
    const QRect room = parentWidget()->rect();
    setText(fontMetrics().elidedText(note, Qt::ElideMiddle, room.width() * 9 / 10));
    adjustSize();
    const int x = std::clamp(place.left(), 0, std::max(0, room.width() - width()));
    const bool isRoomBelow = place.bottom() + height() < room.bottom();
    move(x, isRoomBelow ? place.bottom() + 1 : place.top() - height());
    raise();
    show();
    m_end.start(kDuration);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
