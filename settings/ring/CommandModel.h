// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/ring/RingView.h"

#include <QStandardItemModel>

namespace settings {

class BindingsEditor;

// The commands of a program by menu, as a tree, with the direction of each in the scheme in use. A
// program that never ran with gestures offers the commands of its first bindings.
class CommandModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Role {
        IdentifierRole = Qt::UserRole, // empty for a menu
        DirectionRole // a direction index, -1 for none
    };
    enum Column { CommandColumn, DirectionColumn };

    explicit CommandModel(QObject *parent = nullptr);

    // Shows the commands of an editor. Call it again when they have changed.
    void showCommands(const BindingsEditor &editor);
    // Shows the directions of an editor's bindings.
    void showDirections(const BindingsEditor &editor);

    [[nodiscard]] static ShownCommand commandAt(const QModelIndex &index);

private:
    static void addCommand(QStandardItem &menu, const QString &identifier, const QString &caption,
                           const QString &tip, const QIcon &icon);
    // The model owns the menu.
    QStandardItem *appendMenu(const QString &caption);
};

// A command with its caption and its icon.
[[nodiscard]] ShownCommand shownCommand(const BindingsEditor &editor, const QString &identifier);
// The image of an arrow in a direction of launcher::Bindings::directionNames().
[[nodiscard]] QIcon arrowIcon(const QString &direction);

} // namespace settings
