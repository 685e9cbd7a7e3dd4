// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgCommandTableView.h"

#include "dialog/DirectionBox.h"

#include <QKeyEvent>

#include <utility>

MgCommandTableView::MgCommandTableView(QWidget *parent)
    : QTableView(parent)
{
}

void MgCommandTableView::keyPressEvent(QKeyEvent *event)
{
    // Where the list is not on the screen yet, the press of the Enter that chose in it comes here, and
    // would go on to the dialog's OK.
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const std::optional<quint64> chosen = std::exchange(m_enterTime, std::nullopt);
    if (isEnter && chosen && *chosen == event->timestamp())
        return;
    QTableView::keyPressEvent(event);
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
    if (const auto *box = qobject_cast<DirectionBox *>(editor))
        m_enterTime = box->enterTime();
    QTableView::closeEditor(editor, hint);
    // This is deliberately the current cell, which may differ from the editor's cell. An editor
    // that closes because the user went elsewhere has no focus and does not come back.
    if (hadFocus)
        beginEditing(currentIndex());
}
