// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/CommandManager.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/SnapshotIterator.h"
#include "host/menus/UiManager.h"

namespace gesturewidget {

CommandManager::CommandManager(CommandCatalogue &catalogue, const UiManager &manager)
    : m_catalogue(catalogue)
    , m_manager(manager)
    , m_moduleGroup(QStringLiteral("Modules"))
{
}

CommandManager::~CommandManager() = default;

std::unique_ptr<CHxIterator<CHxUICommandGroup>> CommandManager::NewGroupIterator()
{
    std::vector<CHxUICommandGroup *> groups;
    for (const auto &group : m_catalogue.groups()) {
        if (!group->items.empty())
            groups.push_back(group.get());
    }
    m_moduleGroup.items = m_manager.moduleCommands();
    if (!m_moduleGroup.items.empty())
        groups.push_back(&m_moduleGroup);
    return std::make_unique<SnapshotIterator<CHxUICommandGroup>>(std::move(groups));
}

} // namespace gesturewidget
