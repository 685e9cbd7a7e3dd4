// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/commands/CommandGroup.h"
#include "sdk/chx/CHxUICommandManager.h"

namespace gesturewidget {

class CommandCatalogue;
class UiManager;

// All commands: those of the program by menu and toolbar, then those of modules.
class CommandManager : public CHxUICommandManager
{
public:
    CommandManager(CommandCatalogue &catalogue, const UiManager &manager);
    ~CommandManager() override;

    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUICommandGroup>> NewGroupIterator() override;

private:
    CommandCatalogue &m_catalogue;
    const UiManager &m_manager;
    CommandGroup m_moduleGroup;
};

} // namespace gesturewidget
