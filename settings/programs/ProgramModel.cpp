// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/ProgramModel.h"

#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/Subject.h"
#include "settings/programs/ProgramIcon.h"

#include <algorithm>

namespace settings {
namespace {

bool isSame(const launcher::MenuProgram &one, const launcher::MenuProgram &other)
{
    return one.path == other.path && one.typed == other.typed;
}

} // namespace

ProgramModel::ProgramModel(const launcher::DesktopMenu::Places &places, QObject *parent)
    : QAbstractListModel(parent)
    , m_menu(places)
{
}

void ProgramModel::beginSearch()
{
    for (Row &row : m_rows)
        row.isFound = false;
}

void ProgramModel::add(const launcher::MenuProgram &program)
{
    const int known = rowOf(program);
    if (known >= 0) {
        m_rows[known].isFound = true;
        return;
    }
    const auto place = std::upper_bound(
        m_rows.begin(), m_rows.end(), program.name, [](const QString &name, const Row &row) {
            return QString::localeAwareCompare(name, row.program.name) < 0;
        });
    const auto number = static_cast<int>(place - m_rows.begin());
    beginInsertRows({}, number, number);
    m_rows.insert(number, {program, programIcon(program.icon),
                           m_menu.isEnabled(program.typed, program.path), true});
    endInsertRows();
}

void ProgramModel::endSearch()
{
    for (int row = static_cast<int>(m_rows.size()) - 1; row >= 0; --row) {
        if (m_rows.at(row).isFound)
            continue;
        beginRemoveRows({}, row, row);
        m_rows.remove(row);
        endRemoveRows();
    }
}

void ProgramModel::updateSwitches()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        Row &one = m_rows[row];
        const bool isOn = m_menu.isEnabled(one.program.typed, one.program.path);
        if (isOn == one.isOn)
            continue;
        one.isOn = isOn;
        Q_EMIT dataChanged(index(row), index(row));
        Q_EMIT switched(row);
    }
}

int ProgramModel::rowOf(const launcher::MenuProgram &program) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (isSame(m_rows.at(row).program, program))
            return row;
    }
    return -1;
}

bool ProgramModel::setOn(int row, bool isOn)
{
    const launcher::MenuProgram program = m_rows.at(row).program;
    launcher::Outcome outcome;
    if (isOn) {
        const launcher::Subject subject = launcher::Subject::of(program.typed);
        const launcher::ProgramCheck check =
            launcher::ProgramCheck::of(program.typed, subject.environment, subject.plugins);
        outcome = check.status == 0 ? m_menu.enable(program.typed, check.path)
                                    : launcher::Outcome::failure(check.complaint);
    } else {
        outcome = m_menu.disable(program.typed, program.path);
    }
    updateSwitches();
    if (!outcome.isDone())
        Q_EMIT failed(outcome.complaint);
    return outcome.isDone();
}

int ProgramModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ProgramModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.program.name;
    case Qt::DecorationRole:
        return row.icon;
    case Qt::CheckStateRole:
        return row.isOn ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleDescriptionRole:
    case NoteRole:
        return row.isOn ? tr("Starts with gestures") : tr("Starts without gestures");
    default:
        return {};
    }
}

bool ProgramModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::CheckStateRole && index.isValid()
        && setOn(index.row(), value.toInt() == Qt::Checked);
}

Qt::ItemFlags ProgramModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace settings
