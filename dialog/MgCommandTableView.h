// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTableView>

#include <optional>

// The table of commands: an editor that closes while it has the focus is opened again at
// once, so that the user can go on choosing without another click.
class MgCommandTableView : public QTableView
{
    Q_OBJECT

public:
    explicit MgCommandTableView(QWidget *parent);

    // Opens the editor of a cell. Does nothing for a cell that cannot be edited or is being
    // edited already; QAbstractItemView's own edit() writes a warning then.
    void beginEditing(const QModelIndex &index);

protected:
    void keyPressEvent(QKeyEvent *event) override;

protected Q_SLOTS:
    // Does nothing while the table is hidden; Qt calls it again when the table is shown. Qt lays out
    // the headers at every change of a row, a column, a style or a font, which took a third of the
    // time until the dialog was open.
    void updateGeometries() override;
    // Writes nothing for a drop-down in which nothing was chosen. Qt also commits when the
    // focus or the current cell moves on, and writing a direction always clears another record.
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    // Of the last editor, see DirectionBox.
    std::optional<quint64> m_enterTime;
};
