// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MgCommandDSModel.h"

#include "bindings/MgDonutDataContainer.h"
#include "dialog/MgDonutDialogManager.h"

#include <QFont>

#include <algorithm>

MgCommandDSModel::MgCommandDSModel(QObject *owningDialog)
    : records(MgDonutDataContainer::instance()->getCommandsDS())
    , dialog(owningDialog)
{
}

int MgCommandDSModel::rowCount(const QModelIndex & /*parent*/) const
{
    return static_cast<int>(records.size());
}

int MgCommandDSModel::columnCount(const QModelIndex & /*parent*/) const
{
    return kColumnCount;
}

QVariant MgCommandDSModel::data(const QModelIndex &index, int role) const
{
    const MgCommandDS *record = index.isValid() ? recordAt(index.row()) : nullptr;
    if (!record)
        return {};

    const int column = index.column();
    switch (role) {
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::DisplayRole:
        if (column == kCategoryColumn)
            return record->category;
        if (column == kCommandColumn)
            return record->displayName;
        return {};
    case Qt::DecorationRole:
        if (column == kCommandColumn)
            return record->icon;
        if (column == kDirectionColumn) {
            const unsigned char direction = getInvokerType(index.row());
            // The function ignores this scheme and uses the one that is shown.
            if (direction != 0)
                return dialogManager()->getDirectionIcon(direction, MgDonutDialogManager::Eight);
        }
        return {};
    case Qt::EditRole:
        if (column == kDirectionColumn && dialogManager())
            return static_cast<int>(getInvokerType(index.row()));
        return {};
    default:
        return {};
    }
}

bool MgCommandDSModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != kDirectionColumn || role != Qt::EditRole
        || !recordAt(index.row()))
        return false;
    MgDonutDialogManager *manager = dialogManager();
    if (!manager)
        return true;

    MgCommandDS &record = records[index.row()];
    const auto direction = static_cast<unsigned char>(value.toInt());
    const bool changed = direction != getInvokerType(index.row());
    const bool four = manager->getScheme() == MgDonutDialogManager::Four;
    MgCommandDS *holder = findHolder(four, direction);

    std::vector<Bytes> before{bytesOf(record)};
    if (holder && holder != &record)
        before.push_back(bytesOf(*holder));
    if (four)
        assignInFourScheme(record, holder, direction);
    else
        assignInEightScheme(record, holder, direction);
    const auto isUnchanged = [this](const Bytes &bytes) {
        const MgCommandDS &now = records[bytes.row];
        return now.fourDirection == bytes.four && now.eightDirection == bytes.eight;
    };
    before.erase(std::remove_if(before.begin(), before.end(), isUnchanged), before.end());
    const bool robbed = !before.empty() && before.back().row != index.row();
    const int robbedRow = robbed ? before.back().row : -1;
    if (!before.empty())
        m_changes.push_back(std::move(before));

    if (changed)
        manager->enableReset();
    manager->directionAssigned(index.row(), robbedRow);
    return true;
}

MgCommandDS *MgCommandDSModel::findHolder(bool inFourScheme, unsigned char direction)
{
    const auto byte = inFourScheme ? &MgCommandDS::fourDirection : &MgCommandDS::eightDirection;
    const auto found = std::find_if(records.begin(), records.end(), [=](const MgCommandDS &record) {
        return record.*byte == direction;
    });
    return found == records.end() ? nullptr : &*found;
}

MgCommandDSModel::Bytes MgCommandDSModel::bytesOf(const MgCommandDS &record) const
{
    return {static_cast<int>(&record - records.data()), record.fourDirection, record.eightDirection};
}

// The two schemes are linked, and on purpose not in the same way in both directions. The
// holder is also looked for when the direction is "none": in the four scheme the first record
// without a four direction then loses its eight direction. All of this is meant.
void MgCommandDSModel::assignInFourScheme(MgCommandDS &record, MgCommandDS *holder,
                                          unsigned char direction)
{
    if (holder) {
        holder->fourDirection = 0;
        holder->eightDirection = 0;
    }
    record.fourDirection = direction;
    record.eightDirection = static_cast<unsigned char>(direction == 0 ? 0 : 2 * direction - 1);
}

// The four scheme has the odd directions as well. A diagonal leaves the four directions of
// both records alone, so that two records may come to share one.
void MgCommandDSModel::assignInEightScheme(MgCommandDS &record, MgCommandDS *holder,
                                           unsigned char direction)
{
    const bool diagonal = direction != 0 && direction % 2 == 0;
    if (holder) {
        holder->eightDirection = 0;
        if (direction % 2 != 0)
            holder->fourDirection = 0;
    }
    record.eightDirection = direction;
    if (!diagonal)
        record.fourDirection = static_cast<unsigned char>(direction == 0 ? 0 : (direction + 1) / 2);
}

bool MgCommandDSModel::takeBack()
{
    if (m_changes.empty())
        return false;
    const std::vector<Bytes> change = std::move(m_changes.back());
    m_changes.pop_back();
    for (const Bytes &bytes : change) {
        records[bytes.row].fourDirection = bytes.four;
        records[bytes.row].eightDirection = bytes.eight;
    }
    for (const Bytes &bytes : change) {
        const QModelIndex cell = index(bytes.row, kDirectionColumn);
        Q_EMIT dataChanged(cell, cell);
    }
    return true;
}

QVariant MgCommandDSModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    // The rows carry no numbers.
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::FontRole)
        return QFont(QStringLiteral("Tahoma"), 8, QFont::Bold, false);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case kCategoryColumn:
        return tr("Category");
    case kCommandColumn:
        return tr("Command");
    case kDirectionColumn:
        return tr("Select");
    default:
        return {};
    }
}

Qt::ItemFlags MgCommandDSModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == kDirectionColumn ? base | Qt::ItemIsEditable : base;
}

QString MgCommandDSModel::getCommandDisplayName(int row) const
{
    const MgCommandDS *record = recordAt(row);
    return record ? record->displayName : QString();
}

QString MgCommandDSModel::getCategory(int row) const
{
    const MgCommandDS *record = recordAt(row);
    return record ? record->category : QString();
}

unsigned char MgCommandDSModel::getInvokerType(int row) const
{
    const MgDonutDialogManager *manager = dialogManager();
    const MgCommandDS *record = recordAt(row);
    if (!manager || !record)
        return 0;
    return manager->getScheme() == MgDonutDialogManager::Four ? record->fourDirection
                                                              : record->eightDirection;
}

QString MgCommandDSModel::getDirectionName(int row) const
{
    const MgDonutDialogManager *manager = dialogManager();
    return manager ? manager->getDirectionName(getInvokerType(row)) : QString();
}

QString MgCommandDSModel::getHolderNames(unsigned char direction) const
{
    const MgDonutDialogManager *manager = dialogManager();
    if (!manager || direction == 0)
        return {};
    const bool four = manager->getScheme() == MgDonutDialogManager::Four;
    const auto byte = four ? &MgCommandDS::fourDirection : &MgCommandDS::eightDirection;
    QStringList names;
    for (const MgCommandDS &record : records) {
        if (record.*byte == direction)
            names.append(record.displayName);
    }
    return names.join(QLatin1String(", "));
}

bool MgCommandDSModel::checkFilterCondition(const QString &displayName, const QString &category,
                                            unsigned char direction) const
{
    const MgDonutDialogManager *manager = dialogManager();
    if (!manager)
        return false;
    const QString search = manager->searchText();
    const QString chosenCategory = manager->categoryText();
    if (manager->showsAssignedOnly() && direction == 0)
        return false;
    if (chosenCategory != manager->allCommandsText() && chosenCategory != category)
        return false;
    return search.isEmpty() || displayName.indexOf(search, 0, Qt::CaseInsensitive) >= 0;
}

void MgCommandDSModel::resetToDefault()
{
    beginResetModel();
    records = MgDonutDataContainer::instance()->getCommandsDS();
    m_changes.clear();
    endResetModel();
}

bool MgCommandDSModel::operator()(const MgCommandDS & /*command*/, unsigned char /*direction*/) const
{
    return true;
}

MgDonutDialogManager *MgCommandDSModel::dialogManager() const
{
    return qobject_cast<MgDonutDialogManager *>(dialog);
}

const MgCommandDS *MgCommandDSModel::recordAt(int row) const
{
    return row >= 0 && row < static_cast<int>(records.size()) ? &records[row] : nullptr;
}
