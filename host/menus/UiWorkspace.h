// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/UiCommandItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"

namespace gesturewidget {

class MenuMirror;
class ToolsMenu;

// The program's only workspace: the menus on screen.
class UiWorkspace : public CHxUIWorkspace
{
public:
    UiWorkspace(MenuMirror &mirror, ToolsMenu &tools);
    ~UiWorkspace() override;

    // "Default".
    [[nodiscard]] CHxString GetName() const override;
    [[nodiscard]] bool IsCurrent() const override { return true; }
    [[nodiscard]] UiCommandItemCollection *GetCommandItems() override { return &m_commands; }
    // The menus of the first menu bar, always with one for tools; empty without a menu bar.
    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override;

private:
    MenuMirror &m_mirror;
    ToolsMenu &m_tools;
    UiCommandItemCollection m_commands;
};

} // namespace gesturewidget
