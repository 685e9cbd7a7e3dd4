// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgCommandDSSortFilterProxyModel.h"

#include "dialog/MgCommandDSModel.h"

MgCommandDSSortFilterProxyModel::MgCommandDSSortFilterProxyModel() = default;

void MgCommandDSSortFilterProxyModel::applyFilter()
{
    // Sort again too. The model does not announce new directions, so the order may be wrong, and
    // invalidateFilter() would put rows that come back behind their equals. It would also remove
    // thousands of rows one by one, each at the cost of all.
    invalidate();
    // An open editor must show its command's direction in the current scheme.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, MgCommandDSModel::kDirectionColumn),
                           index(rowCount() - 1, MgCommandDSModel::kDirectionColumn));
}

void MgCommandDSSortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    // A table view asks twice for the same order. Texts never change, so their order stays
    // right. Directions change without a signal from the model.
    const bool isByText =
        column == MgCommandDSModel::kCategoryColumn || column == MgCommandDSModel::kCommandColumn;
    if (isByText && column == sortColumn() && order == sortOrder()
        && qobject_cast<const MgCommandDSModel *>(sourceModel()))
        return;
    // The base class leaves equal rows in the order shown, and does nothing at all when it
    // has sorted by this column last.
    QSortFilterProxyModel::sort(-1, Qt::AscendingOrder);
    QSortFilterProxyModel::sort(column, order);
}

QVariant MgCommandDSSortFilterProxyModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::AccessibleTextRole && index.column() == MgCommandDSModel::kDirectionColumn) {
        if (const auto *commands = qobject_cast<const MgCommandDSModel *>(sourceModel()))
            return commands->getDirectionName(mapToSource(index).row());
    }
    // The source model has no tooltips. The delegate shows this one where the text is elided.
    if (role == Qt::ToolTipRole && index.column() != MgCommandDSModel::kDirectionColumn)
        return QSortFilterProxyModel::data(index, Qt::DisplayRole);
    return QSortFilterProxyModel::data(index, role);
}

bool MgCommandDSSortFilterProxyModel::filterAcceptsRow(int sourceRow,
                                                       const QModelIndex & /*sourceParent*/) const
{
    const auto *commands = qobject_cast<const MgCommandDSModel *>(sourceModel());
    return !commands
        || commands->checkFilterCondition(commands->getCommandDisplayName(sourceRow),
                                          commands->getCategory(sourceRow),
                                          commands->getInvokerType(sourceRow));
}

bool MgCommandDSSortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto *commands = qobject_cast<const MgCommandDSModel *>(sourceModel());
    if (!commands || !left.isValid() || left.column() != right.column())
        return QSortFilterProxyModel::lessThan(left, right);
    if (left.column() == MgCommandDSModel::kDirectionColumn)
        return commands->getInvokerType(left.row()) < commands->getInvokerType(right.row());

    // Compares as the base class does with its default settings, but without wrapping every text
    // in a variant: thousands of commands are sorted when the dialog opens.
    const bool isDefault = sortRole() == Qt::DisplayRole && sortCaseSensitivity() == Qt::CaseSensitive
                        && !isSortLocaleAware();
    if (!isDefault)
        return QSortFilterProxyModel::lessThan(left, right);
    const MgCommandDS *first = commands->recordAt(left.row());
    const MgCommandDS *second = commands->recordAt(right.row());
    return left.column() == MgCommandDSModel::kCategoryColumn ? first->category < second->category
                                                              : first->displayName < second->displayName;
}
