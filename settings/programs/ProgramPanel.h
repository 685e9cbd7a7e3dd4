// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/programs/ProgramModel.h"

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
    [[nodiscard]] int chosenRow() const; // -1 for none

Q_SIGNALS:
    // The row of the model; -1 for none.
    void chosen(int row);

private:
    ProgramModel *m_model;
    QSortFilterProxyModel *m_filter;
    QLineEdit *m_search;
    QListView *m_list;
    QLabel *m_nothing;
    QProgressBar *m_progress;

    void showWhetherEmpty();
    bool m_isSearching = false;
};

} // namespace settings
