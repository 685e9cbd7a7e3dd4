// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSet>
#include <QString>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace gesturewidget {

// Tells entries of lists from commands: recent documents, open windows, layers, steps to undo.
// They come and go with a person's work, so they are no commands: nobody wants one in a ring
// tomorrow, and their texts are private.
//
// A wrong answer costs a command, so an action counts as a command in doubt. Apart from names of
// documents, an action with an object name, a shortcut or an icon is a command.
//
// Make one for each reading of the menus, because windows open and close in between.
class ListEntries
{
public:
    // The content of a menu. In a menu of commands, only some entries may be those of a list.
    enum class Kind {
        Commands, // and perhaps a list at the end
        Documents, // recent documents, or steps to undo or redo
        Layers
    };

    // Returns the content of a menu with that caption. Menus at the top level hold commands; pass an
    // empty caption for them.
    [[nodiscard]] static Kind kindOf(const QString &menu);

    // Returns the entries of lists among the actions of one menu or toolbar, in the order of the menu.
    // `kind` is its content.
    [[nodiscard]] QSet<const QAction *> among(const QList<QAction *> &actions, Kind kind);
    // Returns whether a caption is the title of an open window. The entries of a menu for one window
    // are no commands either, even if the menu has an icon or a name.
    [[nodiscard]] bool isWindowTitle(const QString &caption);

private:
    QSet<QString> m_titles; // of open windows
    bool m_hasTitles = false;
};

// Returns the part of a caption that stays the same from drawing to drawing: "Save" for
// Save "plan.dxf", and "Undo" for "Undo Move 3 Objects" if the action is the one that undoes or
// redoes steps.
[[nodiscard]] QString lastingCaption(const QAction &action, const QString &caption);

} // namespace gesturewidget
