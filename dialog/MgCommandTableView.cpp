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

void MgCommandTableView::commitData(QWidget *editor)
{
    const auto *box = qobject_cast<DirectionBox *>(editor);
    if (!box || box->isChosen())
        QTableView::commitData(editor);
}

void MgCommandTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Asked first: closing takes the focus away.
    const bool hadFocus = editor && editor->hasFocus();
    QTableView::closeEditor(editor, hint);
    // The current cell on purpose, which need not be the one whose editor closed. An editor
    // that closes because the user went elsewhere has no focus and does not come back.
    if (hadFocus)
        beginEditing(currentIndex());
}
