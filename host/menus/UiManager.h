// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/CommandItem.h"
#include "host/menus/ModuleEntries.h"
#include "host/menus/UiMenuBars.h"
#include "host/menus/UiWorkspace.h"
#include "host/menus/WindowMenus.h"
#include "sdk/chx/CHxUIManager.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace gesturewidget {

class CommandCatalogue;

// The menus of the program's current main window, and the commands and entries of modules. The
// entries of the Tools menu are in every window. The destructor takes them out of the menus.
class UiManager : public CHxUIManager
{
public:
    // Runs a command string that a person has chosen in a window's menu, see
    // CHxSystemServices::RunCommand(). The window is null if the program has none.
    using Runner = std::function<void(const QString &command, QWidget *window)>;

    // `window` is the catalogue's current one. `toolsMenu`: see ProgramProfile.
    UiManager(CommandCatalogue &catalogue, const QString &toolsMenu, Runner runner,
              QWidget *window = nullptr);
    ~UiManager() override;

    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUIWorkspace>> NewWorkspaceIterator() override;
    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUIMenu>> NewMenuIterator() override;

    // Finds the program's commands as well.
    [[nodiscard]] CHxUICommandItem *FindCommandItem(const CHxString &workspace,
                                                    const CHxString &identifier) override;
    [[nodiscard]] CHxUICommandItem *CreateCommandItem(const CHxString &identifier, int flags) override;
    // Compares addresses only, so `item` may be gone.
    [[nodiscard]] bool Contains(const CHxUICommandItem *item) const override;
    // Ignores the program's own commands.
    void RemoveCommandItem(CHxUICommandItem *item) override;

    [[nodiscard]] CHxUIMenuItem *CreateMenuItem(int flags, const CHxString &identifier,
                                                const CHxString &text, const CHxString &tip) override;
    void DestroyMenuItem(CHxUIMenuItem *item) override;

    void Refresh(bool rebuild) override;

    // Tell the catalogue about a window first.
    void addWindow(QWidget *window);
    // Ignores a window that is not known.
    void setCurrentWindow(const QWidget *window);
    // Forgets a window, which may be half destroyed. The current window stays.
    void removeWindow(const QWidget *window);
    // Returns the menus of the current window.
    [[nodiscard]] WindowMenus &menus() { return *m_current; }

    // For CHxSystemServices::GetMenuItems().
    [[nodiscard]] UiMenuBars &menuBars() { return m_menuBars; }
    // Returns the commands of modules in the order of their creation.
    [[nodiscard]] std::vector<CHxUICommandItem *> moduleCommands() const;
    [[nodiscard]] const ToolsMenu &toolsMenu() const { return m_current->tools; }
    [[nodiscard]] const MenuMirror &mirror() const { return m_current->mirror; }

private:
    void onChosen(const UiMenuItem &item, QWidget *window) const;

    CommandCatalogue &m_catalogue;
    Runner m_runner;
    std::vector<std::unique_ptr<CommandItem>> m_commands;
    QString m_toolsMenu;
    ModuleEntries m_entries;
    std::vector<std::unique_ptr<WindowMenus>> m_windows;
    // Somebody may still walk them. They go when the event loop runs.
    std::vector<std::unique_ptr<WindowMenus>> m_removed;
    WindowMenus *m_current; // never null
    UiMenuBars m_menuBars;
    UiWorkspace m_workspace;
    QObject m_context; // queued calls end with it
};

} // namespace gesturewidget
