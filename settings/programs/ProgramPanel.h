// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/programs/ProgramModel.h"

#include <QPersistentModelIndex>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QListView;
class QProgressBar;
class QSortFilterProxyModel;
QT_END_NAMESPACE

namespace settings {

// The list of programs with a search field above it and, while programs are looked for, a progress
// bar below.
class ProgramPanel : public QWidget
{
    Q_OBJECT

public:
    // `model` must outlive this.
    explicit ProgramPanel(ProgramModel *model, QWidget *parent = nullptr);

    void showProgress(int done, int total);
    void hideProgress();
    // Makes a row of the model the chosen one.
    void choose(int row);

Q_SIGNALS:
    // A person has chosen a row of the model.
    void chosen(int row);

private:
    void showWhetherEmpty();
    void filter(const QString &text);
    // A row that goes is no longer the current one. The list would make its neighbour the current
    // one, and a person who looks for a program would change another one's page.
    void leaveRows(int first, int last);

    ProgramModel *m_model;
    QSortFilterProxyModel *m_filter;
    QLineEdit *m_search;
    QListView *m_list;
    QLabel *m_nothing;
    QProgressBar *m_progress;
    QPersistentModelIndex m_chosen; // of the model
    bool m_isSearching = false;
};

} // namespace settings
