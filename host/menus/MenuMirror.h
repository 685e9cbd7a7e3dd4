// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/ActionMenuItem.h"
#include "host/menus/MenuBarItem.h"
#include "host/menus/MirrorCache.h"
#include "host/menus/UiMenu.h"
#include "host/menus/UiMenuItemCollection.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <vector>

class QAction;
class QMenuBar;
class QWidget;

namespace gesturewidget {

class CommandCatalogue;
class MenuChanges;
class MenuEntries;
class ToolsMenu;

// The menu bars, menus and actions of one main window as the objects that modules see. They are made
// when somebody asks, and again some time after the menus have changed, so that a gesture does not have
// to wait. The object of a menu or action that is gone stays, empty, until the event loop runs.
class MenuMirror : public QObject
{
    Q_OBJECT

public:
    // `watcher` is the catalogue's of the window whose menus these are.
    MenuMirror(CommandCatalogue &catalogue, MenuChanges &watcher, ToolsMenu &tools,
               MenuEntries &entries);
    ~MenuMirror() override;

    // Returns the window's menu bars, its own one first.
    [[nodiscard]] const QVector<QMenuBar *> &menuBars();
    // Returns the items of a menu or menu bar; for null a collection that is always empty.
    [[nodiscard]] UiMenuItemCollection *itemsOf(QWidget *place);
    [[nodiscard]] UiMenu *menuOf(QMenuBar *bar);
    [[nodiscard]] MenuBarItem *barItemOf(QMenuBar *bar);

    // Returns the number of changes so far. A list that was made before the number changed is out
    // of date.
    [[nodiscard]] int generation() const { return m_generation; }
    void invalidate() { ++m_generation; }
    [[nodiscard]] std::vector<CHxUIMenuItem *> list(QWidget *place);
    [[nodiscard]] CommandCatalogue &catalogue() { return m_catalogue; }
    [[nodiscard]] MenuEntries &entries() { return m_entries; }
    // Returns the number of objects at the moment.
    [[nodiscard]] std::size_t size() const;

private:
    [[nodiscard]] std::vector<CHxUIMenuItem *> listBar(const QMenuBar &bar);
    [[nodiscard]] CHxUIMenuItem *itemOf(QAction *action);
    void prepare();
    void clean();

    CommandCatalogue &m_catalogue;
    MenuChanges &m_watcher;
    ToolsMenu &m_tools;
    MenuEntries &m_entries;
    int m_generation = 0;
    int m_cleanGeneration = -1;
    QVector<QMenuBar *> m_menuBars;
    UiMenuItemCollection m_nothing;
    MirrorCache<ActionMenuItem, QAction> m_items;
    MirrorCache<UiMenuItemCollection, QWidget> m_collections;
    MirrorCache<UiMenu, QMenuBar> m_menus;
    MirrorCache<MenuBarItem, QMenuBar> m_barItems;
};

} // namespace gesturewidget
