// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fakehost/FakeUserInterface.h"

#include "tests/fakehost/FakeIterator.h"

#include <algorithm>

namespace tests {

CHxUIMenuItem *FakeMenuItemCollection::GetItem(int index) const
{
    const Misdeed misdeed = FakeFault::pass();
    if (index < 0 || index >= static_cast<int>(items.size()))
        return nullptr;
    return altered(misdeed, items[static_cast<std::size_t>(index)]);
}

void FakeMenuItemCollection::Remove(CHxUIMenuItem *item)
{
    FakeFault::pass();
    const auto found = std::find(items.begin(), items.end(), item);
    if (found != items.end())
        items.erase(found);
}

void FakeWorkspace::Add(CHxUICommandItem *item)
{
    m_log->add(QStringLiteral("workspace.addCommandItem ")
               + static_cast<FakeCommandItem *>(item)->identifier);
    commandItems.push_back(item);
}

std::unique_ptr<CHxIterator<CHxUIWorkspace>> FakeUIManager::NewWorkspaceIterator()
{
    if (!altered(m_log->add(QStringLiteral("ui.workspaces")), hasWorkspaceIterator))
        return nullptr;
    return std::make_unique<FakeIterator<CHxUIWorkspace>>(workspaces, &iteratorsAlive);
}

std::unique_ptr<CHxIterator<CHxUIMenu>> FakeUIManager::NewMenuIterator()
{
    if (!altered(m_log->add(QStringLiteral("ui.menus")), hasMenuIterator))
        return nullptr;
    return std::make_unique<FakeIterator<CHxUIMenu>>(menus, &iteratorsAlive);
}

CHxUICommandItem *FakeUIManager::FindCommandItem(const CHxString &workspace, const CHxString &identifier)
{
    const Misdeed misdeed =
        m_log->add(QStringLiteral("ui.find %1 %2").arg(workspace.toQString(), identifier.toQString()));
    const auto found = std::find_if(commandItems.begin(), commandItems.end(), [&](const auto &item) {
        return item->identifier == identifier.toQString();
    });
    return found == commandItems.end() ? nullptr : altered(misdeed, found->get());
}

CHxUICommandItem *FakeUIManager::CreateCommandItem(const CHxString &identifier, int flags)
{
    const Misdeed misdeed =
        m_log->add(QStringLiteral("ui.createCommandItem %1 %2").arg(identifier.toQString()).arg(flags));
    if (!altered(misdeed, true))
        return nullptr;
    commandItems.push_back(std::make_unique<FakeCommandItem>());
    commandItems.back()->identifier = identifier.toQString();
    return commandItems.back().get();
}

bool FakeUIManager::Contains(const CHxUICommandItem *item) const
{
    return passed(std::any_of(commandItems.begin(), commandItems.end(),
                              [item](const auto &held) { return held.get() == item; }));
}

void FakeUIManager::RemoveCommandItem(CHxUICommandItem *item)
{
    m_log->add(QStringLiteral("ui.removeCommandItem ")
               + static_cast<FakeCommandItem *>(item)->identifier);
    for (const auto &workspace : m_workspaces) {
        std::vector<CHxUICommandItem *> &shown = workspace->commandItems;
        shown.erase(std::remove(shown.begin(), shown.end(), item), shown.end());
    }
    for (const auto &entry : menuItems) {
        if (entry->command == item)
            entry->command = nullptr;
    }
    commandItems.erase(std::remove_if(commandItems.begin(), commandItems.end(),
                                      [item](const auto &held) { return held.get() == item; }),
                       commandItems.end());
}

CHxUIMenuItem *FakeUIManager::CreateMenuItem(int flags, const CHxString &identifier,
                                             const CHxString &text, const CHxString &tip)
{
    Q_UNUSED(tip)
    if (!altered(m_log->add(QStringLiteral("ui.createMenuItem %1").arg(flags)), true))
        return nullptr;
    return addItem(nullptr, text.toQString(), false, identifier.toQString());
}

void FakeUIManager::DestroyMenuItem(CHxUIMenuItem *item)
{
    m_log->add(QStringLiteral("ui.destroyMenuItem ") + static_cast<FakeMenuItem *>(item)->text);
    menuItems.erase(std::remove_if(menuItems.begin(), menuItems.end(),
                                   [item](const auto &held) { return held.get() == item; }),
                    menuItems.end());
}

void FakeUIManager::Refresh(bool rebuild)
{
    m_log->add(rebuild ? QStringLiteral("ui.refresh true") : QStringLiteral("ui.refresh false"));
}

FakeWorkspace *FakeUIManager::addWorkspace(const QString &name, bool current)
{
    m_workspaces.push_back(std::make_unique<FakeWorkspace>(m_log));
    FakeWorkspace *workspace = m_workspaces.back().get();
    workspace->name = name;
    workspace->current = current;
    workspaces.push_back(workspace);
    return workspace;
}

FakeMenu *FakeUIManager::addMenu()
{
    m_menus.push_back(std::make_unique<FakeMenu>());
    menus.push_back(m_menus.back().get());
    return m_menus.back().get();
}

FakeMenuItem *FakeUIManager::addItem(FakeMenuItemCollection *parent, const QString &text, bool isMenu,
                                     const QString &identifier, CHxUICommandItem *command)
{
    menuItems.push_back(std::make_unique<FakeMenuItem>());
    FakeMenuItem *item = menuItems.back().get();
    item->text = text;
    item->identifier = identifier;
    item->command = command;
    if (isMenu)
        item->subItems = std::make_unique<FakeMenuItemCollection>();
    if (parent)
        parent->Append(item);
    return item;
}

std::unique_ptr<CHxIterator<CHxUICommandItem>> FakeCommandGroup::NewCommandIterator()
{
    if (!passed(hasCommandIterator))
        return nullptr;
    return std::make_unique<FakeIterator<CHxUICommandItem>>(commands, m_iteratorsAlive);
}

std::unique_ptr<CHxIterator<CHxUICommandGroup>> FakeCommandManager::NewGroupIterator()
{
    if (!passed(hasGroupIterator))
        return nullptr;
    return std::make_unique<FakeIterator<CHxUICommandGroup>>(groups, &iteratorsAlive);
}

FakeCommandGroup *FakeCommandManager::addGroup(const QString &name)
{
    m_groups.push_back(std::make_unique<FakeCommandGroup>(&iteratorsAlive));
    m_groups.back()->name = name;
    groups.push_back(m_groups.back().get());
    return m_groups.back().get();
}

FakeCommandItem *FakeCommandManager::addCommand(const QString &identifier, const QString &command,
                                                const QString &caption, const QString &tip)
{
    if (m_groups.empty())
        addGroup(QStringLiteral("Commands"));
    m_commands.push_back(std::make_unique<FakeCommandItem>());
    FakeCommandItem *item = m_commands.back().get();
    item->identifier = identifier;
    item->command = command;
    item->caption = caption;
    item->tip = tip;
    m_groups.back()->commands.push_back(item);
    return item;
}

} // namespace tests
