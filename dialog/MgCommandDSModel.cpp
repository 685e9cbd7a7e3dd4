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
            // The scheme given here plays no part: the icon is of the scheme shown.
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
    if (manager->getScheme() == MgDonutDialogManager::Four)
        assignInFourScheme(record, direction);
    else
        assignInEightScheme(record, direction);
    if (changed)
        manager->enableReset();
    return true;
}

// The two schemes are linked, and on purpose not in the same way in both directions. The
// search for the record that has the direction also runs for "none": in the four scheme it
// then clears the eight direction of the first record without a four direction. All of this
// is meant.
void MgCommandDSModel::assignInFourScheme(MgCommandDS &record, unsigned char direction)
{
    const auto holder = std::find_if(records.begin(), records.end(), [direction](const auto &other) {
        return other.fourDirection == direction;
    });
    if (holder != records.end()) {
        holder->fourDirection = 0;
        holder->eightDirection = 0;
    }
    record.fourDirection = direction;
    record.eightDirection = static_cast<unsigned char>(direction == 0 ? 0 : 2 * direction - 1);
}

// Odd directions are those that the four scheme has as well. A diagonal leaves the four
// directions of both records alone, so that two records may come to share one.
void MgCommandDSModel::assignInEightScheme(MgCommandDS &record, unsigned char direction)
{
    const bool diagonal = direction != 0 && direction % 2 == 0;
    const auto holder = std::find_if(records.begin(), records.end(), [direction](const auto &other) {
        return other.eightDirection == direction;
    });
    if (holder != records.end()) {
        holder->eightDirection = 0;
        if (direction % 2 != 0)
            holder->fourDirection = 0;
    }
    record.eightDirection = direction;
    if (!diagonal)
        record.fourDirection = static_cast<unsigned char>(direction == 0 ? 0 : (direction + 1) / 2);
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
