// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/ProgramDelegate.h"

#include "sdk/QtBridge.h"
#include "settings/programs/ProgramIcon.h"
#include "settings/programs/ProgramModel.h"
#include "settings/programs/Switch.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace settings {
namespace {

constexpr int kProgramIconSize = 32; // pixels
constexpr int kMargin = 8; // pixels

} // namespace

QRect ProgramDelegate::switchRect(const QStyleOptionViewItem &option)
{
    const QSize size = Switch::sizeFor(option.fontMetrics);
    const QRect right(option.rect.right() - kMargin - size.width() + 1,
                      option.rect.center().y() - size.height() / 2, size.width(), size.height());
    return QStyle::visualRect(option.direction, option.rect, right);
}

QSize ProgramDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int lines = 2 * option.fontMetrics.height() + 2 * kMargin;
    return {QStyledItemDelegate::sizeHint(option, index).width() + kProgramIconSize,
            qMax(lines, kProgramIconSize + 2 * kMargin)};
}

void ProgramDelegate::paint(QPainter *painter, const QStyleOptionViewItem &given,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor color =
        option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const auto visual = [&option](const QRect &rect) {
        return QStyle::visualRect(option.direction, option.rect, rect);
    };
    const QRect row = option.rect;
    const QRect icon(row.left() + kMargin, row.center().y() - kProgramIconSize / 2, kProgramIconSize,
                     kProgramIconSize);
    const QPixmap pixmap =
        programPixmap(option.icon, kProgramIconSize, painter->device()->devicePixelRatioF());
    style->drawItemPixmap(painter, visual(icon), Qt::AlignCenter, pixmap);

    const int left = icon.right() + 1 + kMargin;
    const int right = row.right() - 2 * kMargin - Switch::sizeFor(option.fontMetrics).width();
    const int height = option.fontMetrics.height();
    const QRect name(left, row.center().y() - height, right - left, height);
    const int alignment = int(QStyle::visualAlignment(option.direction, Qt::AlignLeft))
                        | int(Qt::AlignVCenter) | int(Qt::TextSingleLine);
    painter->save();
    painter->setPen(color);
    painter->setFont(option.font);
    painter->drawText(visual(name), alignment,
                      option.fontMetrics.elidedText(option.text, Qt::ElideRight, name.width()));
    QColor faint = color;
    faint.setAlphaF(0.72F);
    painter->setPen(faint);
    QFont small = option.font;
    if (small.pointSizeF() > 0.0)
        small.setPointSizeF(small.pointSizeF() * 0.88);
    painter->setFont(small);
    const QString note = index.data(ProgramModel::NoteRole).toString();
    painter->drawText(visual(name.translated(0, height)), alignment,
                      QFontMetrics(small).elidedText(note, Qt::ElideRight, name.width()));
    painter->restore();

    // On the colour of a selected row, a switch of that colour would not be seen.
    QPalette colors = option.palette;
    if (isSelected)
        colors.setColor(QPalette::Highlight, colors.color(QPalette::Highlight).darker(160));
    Switch::paint(*painter, switchRect(given), option.checkState == Qt::Checked, false, colors);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = row.adjusted(1, 1, -1, -1);
        focus.backgroundColor = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
}

bool ProgramDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    bool isToggled = false;
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        isToggled = mouse->button() == Qt::LeftButton
                 && switchRect(option)
                        .adjusted(-kMargin, -kMargin, kMargin, kMargin)
                        .contains(qtbridge::localPosition(*mouse));
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        isToggled = key == Qt::Key_Space || key == Qt::Key_Select;
    }
    if (!isToggled)
        return false;
    // The second press of a double click comes with a release of its own.
    if (event->type() != QEvent::MouseButtonDblClick) {
        const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
    return true;
}

} // namespace settings
