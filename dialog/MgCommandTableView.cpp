// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgCommandTableView.h"

#include "dialog/DirectionBox.h"

MgCommandTableView::MgCommandTableView(QWidget *parent)
    : QTableView(parent)
{
}

void MgCommandTableView::beginEditing(const QModelIndex &index)
{
    edit(index, AllEditTriggers, nullptr);
}

void MgCommandTableView::updateGeometries()
{
    if (isVisible())
        QTableView::updateGeometries();
}

void MgCommandTableView::commitData(QWidget *editor)
{
    const auto *box = qobject_cast<DirectionBox *>(editor);
    if (!box || box->isChosen())
        QTableView::commitData(editor);
}

void MgCommandTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Ask first: closing takes the focus away.
    const bool hadFocus = editor && editor->hasFocus();
    QTableView::closeEditor(editor, hint);
    // This is deliberately the current cell, which may differ from the editor's cell. An editor
    // that closes because the user went elsewhere has no focus and does not come back.
    if (hadFocus)
        beginEditing(currentIndex());
}
