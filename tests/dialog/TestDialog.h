// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/MgCommandDS.h"
#include "dialog/MgCommandDSModel.h"
#include "dialog/MgCommandDSSortFilterProxyModel.h"
#include "dialog/MgCommandTableView.h"
#include "dialog/MgDonutDialogManager.h"

#include "tests/support/Fading.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>

#include <functional>

class QPrinter;

namespace tests {

// The table's columns.
constexpr int kCategory = 0;
constexpr int kCommand = 1;
constexpr int kDirection = 2;

// The dialog with all its parts public.
class TestDialog : public MgDonutDialogManager
{
public:
    explicit TestDialog(QWidget *parent = nullptr)
        : MgDonutDialogManager(parent, {})
    {
        connect(ui.search_lineEdit, &QLineEdit::textChanged, this, [this] { m_mayFade = true; });
    }
    ~TestDialog() override
    {
        if (m_mayFade)
            outlastFading();
    }
    Q_DISABLE_COPY_MOVE(TestDialog)

    using MgDonutDialogManager::directionList;
    using MgDonutDialogManager::model;
    using MgDonutDialogManager::proxy;
    using MgDonutDialogManager::scheme;
    using MgDonutDialogManager::ui;

    // If set, this answers in place of the print dialog.
    std::function<int(QPrinter &)> printDialog;

    // The cells of one column that the table shows, from the top.
    [[nodiscard]] QStringList shown(int column = MgCommandDSModel::kCommandColumn) const
    {
        QStringList texts;
        for (int row = 0; row < proxy->rowCount(); ++row)
            texts.append(proxy->index(row, column).data().toString());
        return texts;
    }
    // The directions that the table shows, from the top.
    [[nodiscard]] QList<int> shownDirections() const
    {
        QList<int> directions;
        for (int row = 0; row < proxy->rowCount(); ++row)
            directions.append(cell(row, MgCommandDSModel::kDirectionColumn).data(Qt::EditRole).toInt());
        return directions;
    }
    // A cell of the table, by its row and column there.
    [[nodiscard]] QModelIndex cell(int row, int column) const { return proxy->index(row, column); }
    // The row that shows a command; -1 if there is none.
    [[nodiscard]] int rowOf(const QString &displayName) const
    {
        return static_cast<int>(shown().indexOf(displayName));
    }
    // The working copy's record of an identifier.
    [[nodiscard]] MgCommandDS record(const QString &id) const
    {
        for (const MgCommandDS &command : model->getCommands()) {
            if (command.id == id)
                return command;
        }
        return {{}, {}, {}, {}, {}, {}, 0xff, 0xff};
    }
    // The editor in the table; null if there is none.
    [[nodiscard]] QComboBox *editor() const
    {
        const auto editors = ui.command_tableView->viewport()->findChildren<QComboBox *>();
        for (QComboBox *found : editors) {
            if (found->isVisible())
                return found;
        }
        return nullptr;
    }
    [[nodiscard]] QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return ui.buttonBox->button(which);
    }

protected:
    int runPrintDialog(QPrinter &printer) override
    {
        return printDialog ? printDialog(printer) : MgDonutDialogManager::runPrintDialog(printer);
    }

private:
    bool m_mayFade = false;
};

} // namespace tests
