// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/window/MessageBar.h"

#include "host/files/CommandNames.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QStyle>
#include <QToolButton>

namespace settings {

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_label(new QLabel(this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("message_bar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    m_label->setForegroundRole(QPalette::ToolTipText);
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_close->setAutoRaise(true);
    m_close->setIcon(closeIcon());
    m_close->setAccessibleName(tr("Close message"));
    m_close->setToolTip(tr("Close message"));
    m_close->setFocusPolicy(Qt::StrongFocus);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(m_icon);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_close);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void MessageBar::complain(const QString &text)
{
    showText(text, true);
}

void MessageBar::tell(const QString &text)
{
    showText(text, false);
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_label->text();
}

void MessageBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_close->setIcon(closeIcon());
}

// In the colour of the text. The icon of a style or theme is for the background of a window, and may be
// dark on dark here.
QIcon MessageBar::closeIcon() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(palette().color(QPalette::ToolTipText), side / 8.0, Qt::SolidLine, Qt::RoundCap));
    const QRectF cross = QRectF(0, 0, side, side).marginsRemoved(QMarginsF(1, 1, 1, 1) * (side / 4.0));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
    return pixmap;
}

void MessageBar::showText(const QString &line, bool isComplaint)
{
    // The launcher's lines follow the name of a program or a file on a terminal, and begin small.
    const QString text = gesturewidget::capitalized(line);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_icon->setPixmap(
        style()
            ->standardIcon(isComplaint ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation)
            .pixmap(side, side));
    m_label->setText(text);
    setAccessibleName(text);
    show();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace settings
