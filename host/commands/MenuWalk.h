// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/commands/ListEntries.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QAction;
class QWidget;
QT_END_NAMESPACE

namespace gesturewidget {

class MenuChanges;

// Walks the menus and toolbars of one main window, each once, and shows the actions that are
// commands. Menus may contain each other. Make one for each reading of the menus.
class MenuWalk
{
public:
    // A menu, menu bar or toolbar.
    struct Place
    {
        QString group = {}; // empty in a menu bar
        QString path = {}; // the captions on the way to it
        bool isInToolBar = false;
        QStringList way = {}; // the captions below the top-level menu or toolbar
        bool isOfList = false; // all its entries are those of a list, see ListEntries
    };

    // `isListEntry`: the action is the entry of a list.
    using Visit = std::function<void(QAction *action, const Place &place, bool isListEntry)>;

    // Watches each menu and toolbar for changes before its actions are visited: `watcher` is the one
    // of their window.
    MenuWalk(MenuChanges &watcher, Visit visit);
    ~MenuWalk();
    Q_DISABLE_COPY_MOVE(MenuWalk)

    // Visits the menus in the order of the menu bars, then the toolbars. Returns the paths of all of
    // them.
    [[nodiscard]] QSet<QString> run();

    // Returns the path of something that is called `caption` at the place with that path.
    [[nodiscard]] static QString joined(const QString &path, const QString &caption);

private:
    void walk(QWidget *widget, const Place &place);

    MenuChanges &m_watcher;
    Visit m_visit;
    ListEntries m_lists;
    QSet<const QWidget *> m_visited;
    QSet<QString> m_paths;
};

} // namespace gesturewidget
