// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/desktop/MenuPrograms.h"

#include <QAbstractListModel>
#include <QIcon>
#include <QVector>

namespace settings {

// The programs that can have gestures, by name. A checked program starts with gestures from the
// desktop's menus.
class ProgramModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        NoteRole = Qt::UserRole // "Starts with gestures"
    };

    explicit ProgramModel(const launcher::DesktopMenu::Places &places, QObject *parent = nullptr);

    // Begins a new search: what add() does not name again until endSearch() is removed then.
    void beginSearch();
    void add(const launcher::MenuProgram &program);
    void endSearch();
    // Reads again which programs start with gestures.
    void updateSwitches();

    [[nodiscard]] const launcher::MenuProgram &program(int row) const { return m_rows.at(row).program; }
    [[nodiscard]] bool isOn(int row) const { return m_rows.at(row).isOn; }
    // The row of a program; -1 if there is none.
    [[nodiscard]] int rowOf(const launcher::MenuProgram &program) const;
    // Does what `mouse-gestures --enable` and `--disable` do. If that fails, emits failed().
    bool setOn(int row, bool isOn);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    // One line that says why a program could not be switched.
    void failed(const QString &complaint);
    void switched(int row);

private:
    struct Row
    {
        launcher::MenuProgram program;
        QIcon icon;
        bool isOn = false;
        bool isFound = true; // by the present search
    };

    launcher::DesktopMenu m_menu;
    QVector<Row> m_rows;
};

} // namespace settings
