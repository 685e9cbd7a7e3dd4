// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/ring/RingView.h"

#include "launcher/settings/Bindings.h"
#include "launcher/sheet/FittedText.h"
#include "resources/draw/Palette.h"
#include "resources/draw/RingGeometry.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/ring/RingArt.h"
#include "settings/ring/SectorButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace settings {
namespace {

// Pixels at the ring's own size of draw::kRingSize.
constexpr double kRingIconSize = 15.0;
constexpr double kLargestText = 7.4;
constexpr double kSmallestText = 5.4;
constexpr double kOutline = 2.2;

} // namespace

RingView::RingView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ring"));
    setAccessibleName(tr("Ring of directions"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RingView::setCommands(const QVector<ShownCommand> &commands)
{
    m_commands = commands;
    const auto count = static_cast<int>(commands.size());
    if (m_buttons.size() != count) {
        const bool hadFocus = isAncestorOf(focusWidget()) && focusWidget()->hasFocus();
        qDeleteAll(m_buttons);
        m_buttons.clear();
        m_current = 0;
        m_target = m_taken = m_pickedUp = -1;
        for (int i = 0; i < count; ++i) {
            auto *button = new SectorButton(this);
            button->setObjectName(QStringLiteral("sector_")
                                  + launcher::Bindings::directionNames(count).at(i));
            connect(button, &SectorButton::clicked, this, [this, i] { Q_EMIT activated(i); });
            connect(button, &SectorButton::lookChanged, this, [this, i](bool hasFocus) {
                if (hasFocus)
                    goTo(i);
                update();
            });
            connect(button, &SectorButton::dragBegun, this, [this, i, button] {
                if (!m_commands.at(i).identifier.isEmpty())
                    Q_EMIT dragBegun(i, button);
            });
            button->show();
            m_buttons.append(button);
        }
        layOut();
        if (hadFocus && count > 0)
            m_buttons.first()->setFocus();
    }
    describe();
    update();
}

void RingView::describe()
{
    const auto count = static_cast<int>(m_commands.size());
    const QStringList names = launcher::Bindings::directionNames(count == 4 ? 4 : 8);
    for (int i = 0; i < count; ++i) {
        const QString caption = m_commands.at(i).caption;
        const QString name = launcher::Bindings::directionInWords(names.at(i));
        m_buttons.at(i)->setAccessibleName(caption.isEmpty() ? tr("%1: nothing").arg(name)
                                                             : tr("%1: %2").arg(name, caption));
        m_buttons.at(i)->setAccessibleDescription(
            i == m_pickedUp
                ? tr("Picked up. Space at another direction exchanges the two.")
                : tr("Enter puts the chosen command here, Delete empties it, Space picks it up."));
        m_buttons.at(i)->setToolTip(caption);
        m_buttons.at(i)->setFocusPolicy(i == m_current ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void RingView::setMiddleText(const QString &text)
{
    m_middleText = text;
    update();
}

void RingView::setTarget(int direction)
{
    if (m_target == direction)
        return;
    m_target = direction;
    update();
}

void RingView::setTaken(int direction)
{
    m_taken = direction;
    update();
}

QRect RingView::square() const
{
    const int side = qMin(width(), height());
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

QSize RingView::sizeHint() const
{
    return {400, 400};
}

QSize RingView::minimumSizeHint() const
{
    return {300, 300};
}

void RingView::resizeEvent(QResizeEvent * /*event*/)
{
    layOut();
}

void RingView::layOut()
{
    const QRect box = square();
    const double scale = static_cast<double>(box.width()) / draw::kRingSize;
    const auto count = static_cast<int>(m_buttons.size());
    for (int i = 0; i < count; ++i) {
        const QPolygonF sector =
            QTransform::fromScale(scale, scale)
                .map(draw::sectorPath(count, i, draw::kInnerRadius, draw::kOuterRadius))
                .toFillPolygon();
        const QRect bounds = sector.boundingRect().toAlignedRect();
        m_buttons.at(i)->setGeometry(bounds.translated(box.topLeft()));
        m_buttons.at(i)->setMask(QRegion(sector.translated(-bounds.topLeft()).toPolygon()));
    }
}

void RingView::goTo(int direction)
{
    m_current = direction;
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons.at(i)->setFocusPolicy(i == direction ? Qt::StrongFocus : Qt::ClickFocus);
    if (!m_buttons.at(direction)->hasFocus())
        m_buttons.at(direction)->setFocus(Qt::OtherFocusReason);
    update();
}

void RingView::setPickedUp(int direction)
{
    m_pickedUp = direction;
    describe();
    update();
}

void RingView::keyPressEvent(QKeyEvent *event)
{
    const auto count = static_cast<int>(m_buttons.size());
    // One step along the ring, the shorter way to a direction; clockwise if both are equal.
    const auto stepTo = [&](int direction) {
        const int way = (direction - m_current + count) % count;
        if (way != 0)
            goTo((m_current + (way < count - way ? 1 : count - 1)) % count);
    };
    if (count == 0)
        return;
    switch (event->key()) {
    case Qt::Key_Up:
        stepTo(0);
        return;
    case Qt::Key_Left:
        stepTo(count / 4);
        return;
    case Qt::Key_Down:
        stepTo(count / 2);
        return;
    case Qt::Key_Right:
        stepTo(count * 3 / 4);
        return;
    case Qt::Key_PageUp:
        goTo((m_current + 1) % count);
        return;
    case Qt::Key_PageDown:
        goTo((m_current + count - 1) % count);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        Q_EMIT activated(m_current);
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT emptied(m_current);
        return;
    case Qt::Key_Space:
        if (m_pickedUp < 0) {
            if (!m_commands.at(m_current).identifier.isEmpty())
                setPickedUp(m_current);
        } else {
            const int from = m_pickedUp;
            setPickedUp(-1);
            if (from != m_current)
                Q_EMIT exchanged(from, m_current);
        }
        return;
    case Qt::Key_Escape:
        if (m_pickedUp >= 0) {
            setPickedUp(-1);
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

int RingView::highlighted() const
{
    if (m_target >= 0)
        return m_target;
    if (m_taken >= 0)
        return -1;
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (m_buttons.at(i)->underMouse())
            return i;
    }
    return -1;
}

void RingView::paintEvent(QPaintEvent * /*event*/)
{
    const auto count = static_cast<int>(m_commands.size());
    if (count == 0)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect box = square();
    const double scale = static_cast<double>(box.width()) / draw::kRingSize;
    painter.drawPixmap(box.topLeft(), ringart::ring(box.width(), devicePixelRatioF()));
    const int lit = highlighted();
    if (lit >= 0)
        painter.drawPixmap(box.topLeft(),
                           ringart::highlight(count, lit, box.width(), devicePixelRatioF()));
    painter.translate(box.topLeft());
    for (int i = 0; i < count; ++i)
        paintLabel(painter, i);

    const QRectF middle = ringart::middleBox(box.width());
    painter.setPen(palette().color(QPalette::WindowText));
    sheet::FittedText(m_middleText, font(), middle.size(), qRound(8.0 * scale), qRound(5.0 * scale), 6)
        .paint(painter, middle, Qt::AlignHCenter);

    const auto outline = [&](int direction, const QColor &color, Qt::PenStyle style) {
        const QPainterPath sector =
            draw::sectorPath(count, direction, draw::kInnerRadius, draw::kOuterRadius);
        painter.save();
        painter.scale(scale, scale);
        painter.setClipPath(sector); // only the inner half of the line, the neighbours stay as they are
        painter.setPen(QPen(color, 2.0 * kOutline, style, Qt::FlatCap, Qt::MiterJoin));
        painter.drawPath(sector);
        painter.restore();
    };
    if (m_pickedUp >= 0)
        outline(m_pickedUp, draw::palette::kHighlightRim, Qt::DashLine);
    if (m_buttons.at(m_current)->hasFocus())
        outline(m_current, palette().color(QPalette::Highlight), Qt::SolidLine);
}

void RingView::paintLabel(QPainter &painter, int direction) const
{
    const auto count = static_cast<int>(m_commands.size());
    const ShownCommand &command = m_commands.at(direction);
    if (command.identifier.isEmpty())
        return;
    const double side = square().width();
    const double scale = side / draw::kRingSize;
    const QRectF box = ringart::labelBox(side, count, direction);
    const double icon = command.icon.isNull() ? 0.0 : kRingIconSize * scale;
    // The tool tip has the whole name.
    const auto text =
        sheet::FittedText::ofName(command.caption, font(), QSizeF(box.width(), box.height() - icon),
                                  qRound(kLargestText * scale), qRound(kSmallestText * scale), 3);
    const double top = box.center().y() - (icon + text.size.height()) / 2.0;
    painter.setOpacity(direction == m_taken ? 0.3 : 1.0);
    if (icon > 0.0) {
        const QSizeF size = QSizeF(command.icon.size()).scaled(icon, icon, Qt::KeepAspectRatio);
        painter.drawPixmap(QRectF(box.center().x() - size.width() / 2.0,
                                  top + (icon - size.height()) / 2.0, size.width(), size.height()),
                           command.icon, QRectF(command.icon.rect()));
    }
    // The ring is light in every theme.
    painter.setPen(draw::palette::kMark);
    text.paint(painter, QRectF(box.left(), top + icon, box.width(), text.size.height()),
               Qt::AlignHCenter);
    painter.setOpacity(1.0);
}

} // namespace settings
