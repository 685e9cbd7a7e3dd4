// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QPointer>
#include <QString>

class QMenuBar;

namespace gesturewidget {

class MenuChanges;

// The menu for the entries of modules: the program's own Tools menu, otherwise a menu made here
// that is visible only while it has entries.
class ToolsMenu
{
public:
    // `wanted` is the object name or caption of the program's menu. If it is empty or no menu
    // has it, the menu is the one that either calls "Tools" in a known language.
    ToolsMenu(const MenuChanges &watcher, const QString &wanted);
    ~ToolsMenu();
    Q_DISABLE_COPY_MOVE(ToolsMenu)

    // Returns null if the program has none and nobody has asked for one yet.
    [[nodiscard]] QMenu *find() const;
    // Returns null only without a menu bar. A new menu is placed before Help; its caption is in
    // the language of the program's other menus.
    [[nodiscard]] QMenu *findOrMake();
    // Returns the menu that was made here, or null.
    [[nodiscard]] QMenu *made() const { return m_made; }
    // Hides the made menu while it is empty, and shows it otherwise.
    void updateVisibility();

private:
    [[nodiscard]] QMenuBar *bar() const;
    [[nodiscard]] QMenu *programsOwn(const QMenuBar &bar) const;

    const MenuChanges &m_watcher;
    QString m_wanted;
    QPointer<QMenu> m_made;
};

} // namespace gesturewidget
