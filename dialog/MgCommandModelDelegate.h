// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemDelegate>

class QStandardItemModel;

// Edits the direction of a command with a drop-down of direction icons. The drop-down's rows
// are the directions themselves: row 0 is "none".
class MgCommandModelDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    // The role of the list of directions under which it has the name of a direction alone. The
    // accessible text also says which command has it.
    static constexpr int kDirectionNameRole = Qt::UserRole;

    // `directions` lists the choices. The caller keeps it. All editors share it, so it
    // must outlive them.
    MgCommandModelDelegate(QStandardItemModel *directions, QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    // Writes nothing for any other column than the directions', and nothing for an editor
    // whose choice has gone with its list.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;

    // Shows a tooltip only if the cell is too narrow for its text.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    // A line below the current cell of a selected row.
    void drawFocus(QPainter *painter, const QStyleOptionViewItem &option,
                   const QRect &rect) const override;
    // Escape gives the focus back to the table and closes the drop-down for good.
    bool eventFilter(QObject *object, QEvent *event) override;
    // Puts the text on one line, because a row is one line high.
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;

public Q_SLOTS:
    // Commits and closes the drop-down that sent the signal; does nothing when called
    // directly.
    void commitAndCloseEditor(int row);

private:
    QStandardItemModel *m_directions;
};
