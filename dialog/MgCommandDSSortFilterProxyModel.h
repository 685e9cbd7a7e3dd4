// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSortFilterProxyModel>
#include <QString>

// Shows the rows of an MgCommandDSModel that pass the dialog's filter controls, in the order
// that the user chose.
class MgCommandDSSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    MgCommandDSSortFilterProxyModel();

    // Filters and sorts again. Call this when a filter control or the scheme has changed.
    void applyFilter();

    // Rows that compare equal keep the order of the source model, even after other sorts. A column below
    // 0 restores that order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    // Adds two roles to the source model's: the direction in words for screen readers, and each
    // text as its own tooltip.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    // Accepts every row of any other model.
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    // Directions by number, so that commands without one come first; texts as the base class
    // compares them.
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

    // Always empty; kept for derived classes.
    QString filterText;
};
