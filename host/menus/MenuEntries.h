// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <memory>
#include <vector>

class CHxUIMenuItem;
class QAction;

namespace gesturewidget {

class EntryAction;
class MenuChanges;
class ModuleEntries;
class ToolsMenu;
class UiMenuItem;

// Puts the menu entries of modules into the menus of one main window, and keeps them at the end of
// their menus, also when the program clears, refills or replaces a menu.
class MenuEntries : public QObject
{
    Q_OBJECT

public:
    // `window` is the one that is named when a person chooses an entry; null for none.
    MenuEntries(ModuleEntries &entries, QWidget *window, MenuChanges &watcher, ToolsMenu &tools);
    ~MenuEntries() override;

    // Returns the item as a module's entry, or null. Compares addresses only.
    [[nodiscard]] UiMenuItem *entryOf(const CHxUIMenuItem *item) const;
    // Moves an entry to the end of a menu or menu bar; if that is the Tools menu, of every window.
    void append(UiMenuItem *item, QWidget *place);
    // Takes an entry out of this menu and, if it is the Tools menu, out of those of all windows.
    void remove(UiMenuItem *item, const QWidget *place);

    // The same in this window only.
    void putIntoTools(UiMenuItem *item);
    void takeOut(const UiMenuItem *item);

    // Moves every entry back to its place, from the event loop.
    void restoreLater();
    // Does the same now.
    void restore();

private:
    struct Corrections
    {
        QElapsedTimer since;
        int count = 0;
    };

    // An entry in one menu.
    struct Placed
    {
        UiMenuItem *item;
        std::unique_ptr<EntryAction> action;
        QPointer<QWidget> place; // the menu or menu bar; null if that is gone
        bool isForTools; // which menu that is may change
    };

    void put(UiMenuItem *item, QWidget *place, bool isForTools);
    void prepare(QWidget *place);
    void restoreIn(QWidget *place, const QVector<QAction *> &entries);
    bool mayCorrect(const QWidget *place);

    ModuleEntries &m_entries;
    QPointer<QWidget> m_window;
    MenuChanges &m_watcher;
    ToolsMenu &m_tools;
    std::vector<Placed> m_placed; // in the order in which they were appended
    QHash<const QObject *, Corrections> m_prepared;
    bool m_isRestoring = false;
    bool m_isScheduled = false;
};

} // namespace gesturewidget
