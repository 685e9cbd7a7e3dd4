// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/CommandDrag.h"

#include "sdk/QtBridge.h"
#include "settings/ring/RingArt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace settings {
namespace {

constexpr int kTagIconSize = 20; // pixels
constexpr QPoint kBesidePointer{12, 10}; // pixels

// The icon and the caption, as the tag shows them.
QPixmap tagPicture(const ShownCommand &command, const QWidget &page)
{
    const QFontMetrics metrics = page.fontMetrics();
    const int icon = command.icon.isNull() ? 0 : kTagIconSize + 6;
    const QSize size(metrics.horizontalAdvance(command.caption) + icon + 20,
                     qMax(metrics.height(), kTagIconSize) + 10);
    const qreal ratio = page.devicePixelRatioF();
    QPixmap picture((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF box = QRectF(QPointF(), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(page.palette().color(QPalette::Highlight));
    painter.setBrush(page.palette().color(QPalette::Base));
    painter.drawRoundedRect(box, 5.0, 5.0);
    if (icon > 0)
        painter.drawPixmap(QRect(10, (size.height() - kTagIconSize) / 2, kTagIconSize, kTagIconSize),
                           command.icon);
    painter.setFont(page.font());
    painter.setPen(page.palette().color(QPalette::Text));
    painter.drawText(QRect(QPoint(10 + icon, 0), size), Qt::AlignLeft | Qt::AlignVCenter,
                     command.caption);
    return picture;
}

} // namespace

CommandDrag::CommandDrag(RingView *ring, QWidget *page)
    : QObject(page)
    , m_ring(ring)
    , m_page(page)
    , m_tag(new QLabel(page))
{
    m_tag->setObjectName(QStringLiteral("drag_tag"));
    m_tag->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_tag->hide();
}

void CommandDrag::begin(const ShownCommand &command, int from, QWidget *source)
{
    end();
    m_command = command;
    m_from = from;
    m_source = source;
    m_hasBegun = true;
    m_tag->setPixmap(tagPicture(command, *m_page));
    m_tag->adjustSize();
    m_tag->raise();
    m_ring->setTaken(from);
    QApplication::setOverrideCursor(Qt::ClosedHandCursor);
    qApp->installEventFilter(this); // the keyboard may be anywhere
}

bool CommandDrag::eventFilter(QObject *watched, QEvent *event)
{
    if (!isUnderWay()) { // its widget is gone
        end();
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
            return false;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            end();
        return true;
    case QEvent::MouseMove:
        if (watched != m_source)
            return false;
        moveTo(qtbridge::globalPosition(*static_cast<QMouseEvent *>(event)));
        return true;
    case QEvent::MouseButtonPress:
        if (watched != m_source)
            return false;
        end();
        return true;
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (watched != m_source || mouse->button() != Qt::LeftButton)
            return false;
        drop(qtbridge::globalPosition(*mouse));
        return true;
    }
    case QEvent::WindowDeactivate:
        if (watched == m_page->window())
            end();
        return false;
    default:
        return false;
    }
}

void CommandDrag::moveTo(const QPoint &global)
{
    m_tag->move(m_page->mapFromGlobal(global) + kBesidePointer);
    m_tag->show();
    const int direction = directionAt(global);
    m_ring->setTarget(direction == m_from ? -1 : direction);
}

void CommandDrag::drop(const QPoint &global)
{
    const int direction = directionAt(global);
    const int from = m_from;
    const QString identifier = m_command.identifier;
    const bool isOff = isOffRing(global);
    end();
    if (from < 0) {
        if (direction >= 0)
            Q_EMIT bound(identifier, direction);
    } else if (direction >= 0 && direction != from) {
        Q_EMIT exchanged(from, direction);
    } else if (isOff) {
        Q_EMIT takenOff(from);
    }
}

void CommandDrag::end()
{
    if (!m_hasBegun)
        return;
    m_hasBegun = false;
    m_source = nullptr;
    m_from = -1;
    m_tag->hide();
    m_ring->setTarget(-1);
    m_ring->setTaken(-1);
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
}

int CommandDrag::directionAt(const QPoint &global) const
{
    const QRect square = m_ring->square();
    const QPointF point = m_ring->mapFromGlobal(global) - square.topLeft();
    const auto count = static_cast<int>(m_ring->commands().size());
    return ringart::partAt(point, square.width()) == ringart::Part::Band
             ? ringart::directionAt(point, square.width(), count)
             : -1;
}

bool CommandDrag::isOffRing(const QPoint &global) const
{
    const QRect square = m_ring->square();
    const QPointF point = m_ring->mapFromGlobal(global) - square.topLeft();
    return ringart::partAt(point, square.width()) == ringart::Part::Outside;
}

} // namespace settings
