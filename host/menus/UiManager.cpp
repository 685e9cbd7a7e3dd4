// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiManager.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/SnapshotIterator.h"

#include <algorithm>

namespace gesturewidget {

UiManager::UiManager(CommandCatalogue &catalogue, const QString &toolsMenu, Runner runner)
    : m_catalogue(catalogue)
    , m_runner(std::move(runner))
    , m_tools(catalogue.watcher(), toolsMenu)
    , m_entries(catalogue.watcher(), m_tools)
    , m_mirror(catalogue, m_tools, m_entries)
    , m_menuBars(m_mirror)
    , m_workspace(m_mirror, m_tools)
{
    QObject::connect(&m_catalogue, &CommandCatalogue::menusChanged, &m_entries,
                     &MenuEntries::restoreLater);
}

UiManager::~UiManager() = default;

std::unique_ptr<CHxIterator<CHxUIWorkspace>> UiManager::NewWorkspaceIterator()
{
    return std::make_unique<SnapshotIterator<CHxUIWorkspace>>(
        std::vector<CHxUIWorkspace *>{&m_workspace});
}

std::unique_ptr<CHxIterator<CHxUIMenu>> UiManager::NewMenuIterator()
{
    std::vector<CHxUIMenu *> menus;
    const QVector<QMenuBar *> bars = m_mirror.menuBars();
    for (QMenuBar *bar : bars)
        menus.push_back(m_mirror.menuOf(bar));
    return std::make_unique<SnapshotIterator<CHxUIMenu>>(std::move(menus));
}

CHxUICommandItem *UiManager::FindCommandItem(const CHxString &workspace, const CHxString &identifier)
{
    if (workspace != m_workspace.GetName())
        return nullptr;
    for (const auto &command : m_commands) {
        if (command->GetIdentifier() == identifier)
            return command.get();
    }
    ActionItem *item = m_catalogue.find(identifier.toQString());
    return item && item->GetIdentifier() == identifier ? item : nullptr;
}

CHxUICommandItem *UiManager::CreateCommandItem(const CHxString &identifier, int)
{
    m_commands.push_back(std::make_unique<CommandItem>(identifier.toQString()));
    return m_commands.back().get();
}

bool UiManager::Contains(const CHxUICommandItem *item) const
{
    const auto isItem = [item](const auto &command) { return command.get() == item; };
    return std::any_of(m_commands.begin(), m_commands.end(), isItem) || m_catalogue.contains(item);
}

void UiManager::RemoveCommandItem(CHxUICommandItem *item)
{
    const auto isItem = [item](const auto &command) { return command.get() == item; };
    const auto found = std::find_if(m_commands.begin(), m_commands.end(), isItem);
    if (found == m_commands.end())
        return;
    m_workspace.GetCommandItems()->remove(item);
    m_entries.forgetCommand(item);
    m_commands.erase(found);
}

CHxUIMenuItem *UiManager::CreateMenuItem(int, const CHxString &identifier, const CHxString &text,
                                         const CHxString &tip)
{
    UiMenuItem *item = m_entries.create(identifier.toQString(), text.toQString(), tip.toQString());
    QObject::connect(&item->action(), &QAction::triggered, &item->action(),
                     [this, item] { onTriggered(*item); });
    return item;
}

void UiManager::DestroyMenuItem(CHxUIMenuItem *item)
{
    m_entries.destroy(item);
}

void UiManager::Refresh(bool rebuild)
{
    if (rebuild)
        m_catalogue.invalidate();
    m_mirror.invalidate();
    m_entries.restore();
}

std::vector<CHxUICommandItem *> UiManager::moduleCommands() const
{
    std::vector<CHxUICommandItem *> commands;
    for (const auto &command : m_commands)
        commands.push_back(command.get());
    return commands;
}

void UiManager::onTriggered(const UiMenuItem &item)
{
    const CHxUICommandItem *command = item.GetCommandItem();
    if (command && !command->GetCommandString().isEmpty())
        m_runner(command->GetCommandString().toQString());
}

} // namespace gesturewidget
