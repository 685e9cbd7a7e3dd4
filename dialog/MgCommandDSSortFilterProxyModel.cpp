#include "dialog/MgCommandDSSortFilterProxyModel.h"

#include "dialog/MgCommandDSModel.h"

MgCommandDSSortFilterProxyModel::MgCommandDSSortFilterProxyModel() = default;

void MgCommandDSSortFilterProxyModel::applyFilter()
{
    invalidateFilter();
}

QVariant MgCommandDSSortFilterProxyModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::AccessibleTextRole && index.column() == MgCommandDSModel::kDirectionColumn) {
        if (const auto *commands = qobject_cast<const MgCommandDSModel *>(sourceModel()))
            return commands->getDirectionName(mapToSource(index).row());
    }
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
    if (left.isValid() && right.isValid() && left.column() == MgCommandDSModel::kDirectionColumn
        && right.column() == MgCommandDSModel::kDirectionColumn) {
        if (const auto *commands = qobject_cast<const MgCommandDSModel *>(sourceModel()))
            return commands->getInvokerType(left.row()) < commands->getInvokerType(right.row());
    }
    return QSortFilterProxyModel::lessThan(left, right);
}
