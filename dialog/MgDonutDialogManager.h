// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/DonutScheme.h"
#include "dialog/ComboBoxAccessibility.h"
#include "dialog/Ui_MgDonutDialogManagerClass.h"
#include "sdk/chx/CHxDialog.h"

#include <QIcon>
#include <QPointer>
#include <QStandardItemModel>
#include <QString>
#include <QStringList>

#include <optional>

class MgCommandDSModel;
class MgCommandDSSortFilterProxyModel;
class Notice;
class QItemSelection;
class QModelIndex;
class QPrinter;

// The "Mouse Gestures" dialog: gestures on or off, four or eight of them, and which command
// each direction runs.
//
//     MgDonutDialogManager dialog(mainWindow, {});
//     dialog.exec();
//
// It works on a copy of the bindings. OK hands the copy to the binding container, Cancel
// drops it. Only "Reset to Defaults" takes effect at once, even if Cancel follows.
class MgDonutDialogManager : public CHxDialog
{
    Q_OBJECT

public:
    using DonutScheme = DonutSchemes::DonutScheme;
    static constexpr DonutScheme Four = DonutSchemes::Four;
    static constexpr DonutScheme Eight = DonutSchemes::Eight;

    // If any of `flags` is set, the host's dialog is told to keep the window flags. The flags
    // themselves are not used: the dialog has its own.
    MgDonutDialogManager(QWidget *parent, Qt::WindowFlags flags);
    ~MgDonutDialogManager() override;

    // The scheme that the dialog shows.
    [[nodiscard]] DonutScheme getScheme() const { return scheme; }
    // True if the container, not the dialog's copy, holds the factory bindings. Always false in
    // the four scheme: the factory setting is the eight scheme.
    [[nodiscard]] bool isDefaultSettingsEnabled() const;
    // Shows the container's scheme and enable flag.
    void initDialogState();
    // The arrow of a direction (1 to 4 or 1 to 8); an empty icon for any other. The scheme
    // argument is not looked at: the scheme that the dialog shows decides.
    [[nodiscard]] QIcon getDirectionIcon(unsigned char direction, DonutScheme ignoredScheme) const;
    // The same in words; "None" for 0 and empty for a direction that the scheme does not have.
    [[nodiscard]] QString getDirectionName(unsigned char direction) const;
    // The topic of the dialog's help, 9000.
    [[nodiscard]] int GetHelpId() const override;

    // The current state of the filter controls.
    [[nodiscard]] QString searchText() const;
    [[nodiscard]] QString categoryText() const;
    [[nodiscard]] bool showsAssignedOnly() const;
    // The text of the category box's entry for all categories.
    [[nodiscard]] const QString &allCommandsText() const { return m_allCommands; }
    // The model calls this when a binding has changed and can be reset.
    void enableReset();
    // The model calls this when a row gets a direction. `robbedRow` lost it; -1 for none.
    // Updates the list of directions and shows a note at the cell that names the loser.
    void directionAssigned(int row, int robbedRow);

public Q_SLOTS:
    void checkBoxStateChanged(int state);
    void radioButtonStateChanged(bool checked);
    void applyFilter(const QString &text);
    void applyFilter(int state);
    void applyFilter();
    void okPressed();
    void disableControls(bool enable = false);
    void viewSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void applyDefaultSettings();
    void printList();
    void openEditor(const QModelIndex &index);

protected:
    // In the search field, Down and Enter go to the first command that is shown.
    bool eventFilter(QObject *object, QEvent *event) override;
    // Asks the user where to print to; QDialog::Accepted says that the printer is set up.
    virtual int runPrintDialog(QPrinter &printer);

    Ui::MgDonutDialogManagerClass ui;
    QStandardItemModel directionList; // the choices of the direction editor
    DonutScheme scheme = Eight; // mirrors the radio buttons
    MgCommandDSModel *model = nullptr; // a child of the dialog
    MgCommandDSSortFilterProxyModel *proxy = nullptr; // a child of the dialog

private:
    MgDonutDialogManager(const QPointer<QWidget> &parent, Qt::WindowFlags flags,
                         const std::optional<QStringList> &menuCaptions);
    void fixWidth();
    void setFixedDialogWidth(int newWidth);
    void widenForDirections();
    void fillCategories(const std::optional<QStringList> &menuCaptions);
    void setButtonIcons();
    void translateButtons();
    void connectControls();
    void setUpTable();
    void setUpKeys();
    void goToFirstCommand();
    void sortByKey(int column);
    void takeBack();
    void nameHolders();
    void showRobbed(int row, const QString &robbedName);
    void setUpRowsAndColumns();
    void showSelectedCommand();
    [[nodiscard]] bool isResetConfirmed();

    ComboBoxAccessibility m_accessibility;
    QString m_allCommands;
    Notice *m_robbedNotice = nullptr; // a child of the dialog
};
