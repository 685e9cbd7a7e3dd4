// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiManager.h"

#include "host/commands/CommandCatalogue.h"
#include "host/commands/SnapshotIterator.h"
#include "sdk/OwnCode.h"

#include <algorithm>

namespace gesturewidget {

UiManager::UiManager(CommandCatalogue &catalogue, const QString &toolsMenu, Runner runner,
                     QWidget *window)
    : m_catalogue(catalogue)
    , m_runner(std::move(runner))
    , m_toolsMenu(toolsMenu)
    , m_entries([this](const UiMenuItem &item, QWidget *where) { onChosen(item, where); })
    , m_menuBars(*this)
    , m_workspace(*this)
{
    addWindow(window);
    m_current = m_windows.front().get();
}

UiManager::~UiManager() = default;

void UiManager::addWindow(QWidget *window)
{
    m_windows.push_back(std::make_unique<WindowMenus>(window, m_catalogue, m_catalogue.watcherOf(window),
                                                      m_entries, m_toolsMenu));
}

void UiManager::setCurrentWindow(const QWidget *window)
{
    for (const auto &known : m_windows) {
        if (known->window == window)
            m_current = known.get();
    }
}

void UiManager::removeWindow(const QWidget *window)
{
    const auto isWindow = [window](const auto &known) { return known->window == window; };
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), isWindow);
    if (found == m_windows.end() || found->get() == m_current)
        return;
    m_removed.push_back(std::move(*found));
    m_windows.erase(found);
    QMetaObject::invokeMethod(
        &m_context,
        [this] {
            const OwnCode ours;
            m_removed.clear();
        },
        Qt::QueuedConnection);
}

std::unique_ptr<CHxIterator<CHxUIWorkspace>> UiManager::NewWorkspaceIterator()
{
    return std::make_unique<SnapshotIterator<CHxUIWorkspace>>(
        std::vector<CHxUIWorkspace *>{&m_workspace});
}

std::unique_ptr<CHxIterator<CHxUIMenu>> UiManager::NewMenuIterator()
{
    std::vector<CHxUIMenu *> menus;
    const QVector<QMenuBar *> bars = m_current->mirror.menuBars();
    for (QMenuBar *bar : bars)
        menus.push_back(m_current->mirror.menuOf(bar));
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
    return m_entries.create(identifier.toQString(), text.toQString(), tip.toQString());
}

void UiManager::DestroyMenuItem(CHxUIMenuItem *item)
{
    m_entries.destroy(item);
}

void UiManager::Refresh(bool rebuild)
{
    if (rebuild)
        m_catalogue.invalidate();
    for (const auto &window : m_windows) {
        window->mirror.invalidate();
        window->entries.restore();
    }
}

std::vector<CHxUICommandItem *> UiManager::moduleCommands() const
{
    std::vector<CHxUICommandItem *> commands;
    for (const auto &command : m_commands)
        commands.push_back(command.get());
    return commands;
}

void UiManager::onChosen(const UiMenuItem &item, QWidget *window) const
{
    const CHxUICommandItem *command = item.GetCommandItem();
    if (command && !command->GetCommandString().isEmpty())
        m_runner(command->GetCommandString().toQString(), window);
}

} // namespace gesturewidget
