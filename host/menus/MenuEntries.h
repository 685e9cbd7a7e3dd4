// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class CHxUICommandItem;
class CHxUIMenuItem;
class QAction;
class QWidget;

namespace gesturewidget {

class MenuChanges;
class ToolsMenu;
class UiMenuItem;

// Owns the menu entries of modules, and keeps them at the end of their menus, also when the
// program clears, refills or replaces a menu.
class MenuEntries : public QObject
{
    Q_OBJECT

public:
    MenuEntries(MenuChanges &watcher, ToolsMenu &tools);
    ~MenuEntries() override;

    [[nodiscard]] UiMenuItem *create(const QString &identifier, const QString &text, const QString &tip);
    // Takes the entry out of its menu and destroys it. This and the functions below ignore items
    // that are null, unknown or already destroyed.
    void destroy(const CHxUIMenuItem *item);
    // Returns the item as one of these entries, or null. Compares addresses only.
    [[nodiscard]] UiMenuItem *entryOf(const CHxUIMenuItem *item) const;
    // Entries of this command run nothing from now on.
    void forgetCommand(const CHxUICommandItem *command);

    // Moves an entry to the end of a menu or menu bar.
    void append(UiMenuItem *item, QWidget *place);
    // Takes an entry out of its menu, if it is in one.
    void remove(UiMenuItem *item);
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

    void prepare(QWidget *place);
    void restoreIn(QWidget *place, const QVector<QAction *> &entries);
    bool mayCorrect(const QWidget *place);

    MenuChanges &m_watcher;
    ToolsMenu &m_tools;
    std::vector<std::unique_ptr<UiMenuItem>> m_items;
    std::vector<UiMenuItem *> m_placed; // in the order in which they were appended
    QHash<const QObject *, Corrections> m_prepared;
    bool m_isRestoring = false;
    bool m_isScheduled = false;
};

} // namespace gesturewidget
