// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/ModuleEntries.h"

#include "host/menus/MenuEntries.h"

#include <algorithm>

namespace gesturewidget {

ModuleEntries::ModuleEntries(Chosen chosen)
    : m_chosen(std::move(chosen))
{
}

ModuleEntries::~ModuleEntries() = default;

UiMenuItem *ModuleEntries::create(const QString &identifier, const QString &text, const QString &tip)
{
    m_items.push_back(std::make_unique<UiMenuItem>(identifier, text, tip));
    return m_items.back().get();
}

void ModuleEntries::destroy(const CHxUIMenuItem *item)
{
    UiMenuItem *entry = entryOf(item);
    if (!entry)
        return;
    remove(entry);
    const auto isEntry = [entry](const auto &known) { return known.get() == entry; };
    m_items.erase(std::find_if(m_items.begin(), m_items.end(), isEntry));
}

UiMenuItem *ModuleEntries::entryOf(const CHxUIMenuItem *item) const
{
    const auto isItem = [item](const auto &known) { return known.get() == item; };
    const auto found = std::find_if(m_items.begin(), m_items.end(), isItem);
    return found == m_items.end() ? nullptr : found->get();
}

void ModuleEntries::forgetCommand(const CHxUICommandItem *command)
{
    for (const auto &item : m_items) {
        if (item->GetCommandItem() == command)
            item->SetCommandItem(nullptr);
    }
}

void ModuleEntries::appendToTools(UiMenuItem *item)
{
    remove(item);
    m_tools.append(item);
    for (MenuEntries *menus : std::as_const(m_menus))
        menus->putIntoTools(item);
}

void ModuleEntries::remove(UiMenuItem *item)
{
    m_tools.removeAll(item);
    for (MenuEntries *menus : std::as_const(m_menus))
        menus->takeOut(item);
}

void ModuleEntries::addMenus(MenuEntries *menus)
{
    m_menus.append(menus);
    for (UiMenuItem *item : std::as_const(m_tools))
        menus->putIntoTools(item);
}

void ModuleEntries::removeMenus(MenuEntries *menus)
{
    m_menus.removeAll(menus);
}

} // namespace gesturewidget
