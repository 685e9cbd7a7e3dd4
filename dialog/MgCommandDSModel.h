// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/MgCommandDS.h"

#include <QAbstractTableModel>
#include <QString>

#include <vector>

class MgDonutDialogManager;

// The dialog's working copy of all commands. Each row has a category, a command and a
// direction. The model reads the bindings from the binding container but never writes them
// back: the dialog does that with getCommands().
//
// "The current direction" is the direction in the scheme that the dialog shows. Without a
// dialog no row passes the filter, no row has a direction and nothing can be changed.
//
// rowCount() and columnCount() ignore the parent.
class MgCommandDSModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int kCategoryColumn = 0;
    static constexpr int kCommandColumn = 1;
    static constexpr int kDirectionColumn = 2;
    static constexpr int kColumnCount = 3;

    // `dialog` is the MgDonutDialogManager that owns the model. It does not become the QObject
    // parent and must outlive the model's use.
    explicit MgCommandDSModel(QObject *dialog);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    // Gives a record a direction (Qt::EditRole, the last column; 0 for none) and takes it
    // away from the record that has it. Emits no dataChanged(): views show the change
    // when the editor closes. The filter and the order change only at the next applyFilter().
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    // For a row that does not exist: an empty string, direction 0.
    [[nodiscard]] QString getCommandDisplayName(int row) const;
    [[nodiscard]] QString getCategory(int row) const;
    [[nodiscard]] unsigned char getInvokerType(int row) const;
    // The current direction in words, for screen readers; "None" for none.
    [[nodiscard]] QString getDirectionName(int row) const;

    // True if a row with these values passes the dialog's filter controls as they are now.
    [[nodiscard]] bool checkFilterCondition(const QString &displayName, const QString &category,
                                            unsigned char direction) const;

    // The record of a row, until the records change; null for a row that does not exist.
    [[nodiscard]] const MgCommandDS *recordAt(int row) const;
    // The name of the command that has a direction in the scheme shown; empty for none. Several
    // names, with commas, where commands have come to share one.
    [[nodiscard]] QString getHolderNames(unsigned char direction) const;

    // Takes the last change of setData() back, and with each further call the one before it.
    // False when there is none. Unlike setData() it emits dataChanged().
    bool takeBack();

    // A copy of all records.
    [[nodiscard]] std::vector<MgCommandDS> getCommands() const { return records; }
    // Reads the records from the container again.
    void resetToDefault();

    // Always true.
    bool operator()(const MgCommandDS &command, unsigned char direction) const;

protected:
    std::vector<MgCommandDS> records;
    QObject *dialog;

private:
    // Null when the dialog is not one that this model can work for.
    [[nodiscard]] MgDonutDialogManager *dialogManager() const;
    // The first record that has a direction in one scheme; null for none.
    [[nodiscard]] MgCommandDS *findHolder(bool inFourScheme, unsigned char direction);
    static void assignInFourScheme(MgCommandDS &record, MgCommandDS *holder, unsigned char direction);
    static void assignInEightScheme(MgCommandDS &record, MgCommandDS *holder, unsigned char direction);

    // A record's direction bytes before a change.
    struct Bytes
    {
        int row;
        unsigned char four;
        unsigned char eight;
    };
    [[nodiscard]] Bytes bytesOf(const MgCommandDS &record) const;
    // One entry a change, oldest first: the bytes of the one or two changed records.
    std::vector<std::vector<Bytes>> m_changes;
};
