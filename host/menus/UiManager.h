// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/CommandItem.h"
#include "host/menus/MenuEntries.h"
#include "host/menus/MenuMirror.h"
#include "host/menus/ToolsMenu.h"
#include "host/menus/UiMenuBars.h"
#include "host/menus/UiMenuItem.h"
#include "host/menus/UiWorkspace.h"
#include "sdk/chx/CHxUIManager.h"

#include <functional>
#include <memory>
#include <vector>

namespace gesturewidget {

class CommandCatalogue;

// The program's menus, and the commands and entries of modules. The destructor takes these out of
// the menus.
class UiManager : public CHxUIManager
{
public:
    // Runs a command string, see CHxSystemServices::RunCommand().
    using Runner = std::function<void(const QString &command)>;

    // `toolsMenu`: see ProgramProfile.
    UiManager(CommandCatalogue &catalogue, const QString &toolsMenu, Runner runner);
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

    // For CHxSystemServices::GetMenuItems().
    [[nodiscard]] UiMenuBars &menuBars() { return m_menuBars; }
    // Returns the commands of modules in the order of their creation.
    [[nodiscard]] std::vector<CHxUICommandItem *> moduleCommands() const;
    [[nodiscard]] const ToolsMenu &toolsMenu() const { return m_tools; }
    [[nodiscard]] const MenuMirror &mirror() const { return m_mirror; }

private:
    void onTriggered(const UiMenuItem &item);

    CommandCatalogue &m_catalogue;
    Runner m_runner;
    std::vector<std::unique_ptr<CommandItem>> m_commands;
    ToolsMenu m_tools;
    MenuEntries m_entries;
    MenuMirror m_mirror;
    UiMenuBars m_menuBars;
    UiWorkspace m_workspace;
};

} // namespace gesturewidget
