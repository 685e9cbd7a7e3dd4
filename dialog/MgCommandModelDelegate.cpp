// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgCommandModelDelegate.h"

#include "dialog/DirectionBox.h"
#include "dialog/MgCommandDSModel.h"
#include "sdk/OwnCode.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QToolTip>

namespace {

constexpr int kCurrentCellLine = 2; // pixels, below the current cell

} // namespace

MgCommandModelDelegate::MgCommandModelDelegate(QStandardItemModel *directions, QObject *parent)
    : QItemDelegate(parent)
    , m_directions(directions)
{
}

QWidget *MgCommandModelDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const
{
    const gesturewidget::OwnCode ours;
    if (index.column() != MgCommandDSModel::kDirectionColumn)
        return QItemDelegate::createEditor(parent, option, index);

    auto *editor = new DirectionBox(parent);
    editor->setModel(m_directions);
    editor->setAccessibleName(tr("Gesture direction"));
    connect(editor, QOverload<int>::of(&QComboBox::activated), this,
            &MgCommandModelDelegate::commitAndCloseEditor);
    return editor;
}

void MgCommandModelDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *directions = qobject_cast<QComboBox *>(editor);
    if (index.column() != MgCommandDSModel::kDirectionColumn || !directions) {
        QItemDelegate::setEditorData(editor, index);
        return;
    }
    directions->setCurrentIndex(static_cast<unsigned char>(index.data(Qt::EditRole).toInt()));
    // The arrows have no text that could be read out.
    directions->setAccessibleDescription(directions->currentData(kDirectionNameRole).toString());
}

void MgCommandModelDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                          const QModelIndex &index) const
{
    const gesturewidget::OwnCode ours;
    if (index.column() != MgCommandDSModel::kDirectionColumn)
        return;
    const auto *directions = qobject_cast<QComboBox *>(editor);
    if (!directions || directions->currentIndex() < 0)
        return;
    model->setData(index, directions->currentIndex(), Qt::EditRole);
}

void MgCommandModelDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                  const QModelIndex & /*index*/) const
{
    editor->setGeometry(option.rect);
}

QSize MgCommandModelDelegate::sizeHint(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    // The last column gets the remaining width, so it asks for almost none.
    return index.column() == MgCommandDSModel::kDirectionColumn ? QSize(10, 10)
                                                                : QItemDelegate::sizeHint(option, index);
}

void MgCommandModelDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                         const QRect &rect, const QString &text) const
{
    const gesturewidget::OwnCode ours;
    if (!text.contains(QChar::LineSeparator)) {
        QItemDelegate::drawDisplay(painter, option, rect, text);
        return;
    }
    QString line = text;
    line.replace(QChar::LineSeparator, QLatin1Char(' '));
    // The rectangle is as narrow as the longest of the lines was.
    QRect rest = option.rect;
    if (option.direction == Qt::RightToLeft)
        rest.setRight(rect.right());
    else
        rest.setLeft(rect.left());
    QItemDelegate::drawDisplay(painter, option, rest, line);
}

void MgCommandModelDelegate::drawFocus(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QRect &rect) const
{
    QItemDelegate::drawFocus(painter, option, rect);
    // The table's style draws no focus rectangle, and all cells of a selected row look alike.
    constexpr QStyle::State kMarked = QStyle::State_HasFocus | QStyle::State_Selected;
    if ((option.state & kMarked) != kMarked)
        return;
    QRect line = option.rect;
    line.setTop(line.bottom() - kCurrentCellLine + 1);
    painter->fillRect(line, option.palette.color(QPalette::HighlightedText));
}

bool MgCommandModelDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                       const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const gesturewidget::OwnCode ours;
    if (event->type() == QEvent::ToolTip && index.isValid()) {
        // The table wraps no texts, so the hint is the width of the whole text.
        const bool isElided = QItemDelegate::sizeHint(option, index).width() > option.rect.width();
        if (index.column() == MgCommandDSModel::kDirectionColumn || !isElided) {
            QToolTip::hideText();
            return true;
        }
    }
    return QItemDelegate::helpEvent(event, view, option, index);
}

bool MgCommandModelDelegate::eventFilter(QObject *object, QEvent *event)
{
    const gesturewidget::OwnCode ours;
    auto *box = qobject_cast<DirectionBox *>(object);
    if (!box || event->type() != QEvent::KeyPress)
        return QItemDelegate::eventFilter(object, event);

    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->matches(QKeySequence::Cancel)) {
        // The table reopens an editor that closes with the focus. Take the focus away first, so that the
        // box stays closed.
        box->parentWidget()->setFocus();
        return true;
    }
    // The base class would commit and close. Enter in the open list chooses; while the list is
    // closed it does nothing.
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
        return false;
    return QItemDelegate::eventFilter(object, event);
}

void MgCommandModelDelegate::commitAndCloseEditor(int /*row*/)
{
    const gesturewidget::OwnCode ours;
    // The drop-downs of all cells share this slot; the sender tells which one it was.
    auto *editor = qobject_cast<QComboBox *>(sender());
    if (!editor)
        return;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, QAbstractItemDelegate::NoHint);
}
