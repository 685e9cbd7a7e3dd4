// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/UiCommandItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"

namespace gesturewidget {

class UiManager;

// The program's only workspace: the menus of the current window.
class UiWorkspace : public CHxUIWorkspace
{
public:
    explicit UiWorkspace(UiManager &manager);
    ~UiWorkspace() override;

    // "Default".
    [[nodiscard]] CHxString GetName() const override;
    [[nodiscard]] bool IsCurrent() const override { return true; }
    [[nodiscard]] UiCommandItemCollection *GetCommandItems() override { return &m_commands; }
    // The menus of the first menu bar, always with one for tools; empty without a menu bar.
    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override;

private:
    UiManager &m_manager;
    UiCommandItemCollection m_commands;
};

} // namespace gesturewidget
