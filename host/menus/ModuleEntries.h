// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/UiMenuItem.h"

#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class CHxUICommandItem;

namespace gesturewidget {

class MenuEntries;

// Owns the menu entries of modules. An entry of the Tools menu is in the Tools menu of every main
// window; any other entry is in the one menu to which it was appended.
class ModuleEntries
{
public:
    // Called when a person chooses an entry in the menu of `window`, which may be null.
    using Chosen = std::function<void(const UiMenuItem &item, QWidget *window)>;

    explicit ModuleEntries(Chosen chosen);
    ~ModuleEntries();
    Q_DISABLE_COPY_MOVE(ModuleEntries)

    [[nodiscard]] UiMenuItem *create(const QString &identifier, const QString &text, const QString &tip);
    // Takes the entry out of all menus and destroys it. This and the functions below ignore items
    // that are null, unknown or already destroyed.
    void destroy(const CHxUIMenuItem *item);
    // Returns the item as one of these entries, or null. Compares addresses only.
    [[nodiscard]] UiMenuItem *entryOf(const CHxUIMenuItem *item) const;
    // Entries of this command run nothing from now on.
    void forgetCommand(const CHxUICommandItem *command);

    // Moves an entry to the end of the Tools menu of every window.
    void appendToTools(UiMenuItem *item);
    // Takes an entry out of all menus.
    void remove(UiMenuItem *item);

    // Called when the menus of a window come and go. addMenus() puts the entries of the Tools menu
    // there.
    void addMenus(MenuEntries *menus);
    void removeMenus(MenuEntries *menus);

    void choose(const UiMenuItem &item, QWidget *window) { m_chosen(item, window); }

private:
    Chosen m_chosen;
    std::vector<std::unique_ptr<UiMenuItem>> m_items;
    QVector<UiMenuItem *> m_tools; // in the order in which they were appended
    QVector<MenuEntries *> m_menus;
};

} // namespace gesturewidget
