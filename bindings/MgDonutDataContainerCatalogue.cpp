// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The part of the binding container that files the host's commands under its menus.

#include "bindings/MgDonutDataContainer.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenu.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"

#include <QObject>
#include <QScopeGuard>

#include <algorithm>

void MgDonutDataContainer::fillCommandCategoryMap()
{
    m_categoryWalk.begin();
    m_isWalking = true;
    attempt([this] { fileAllCommands(); });
    m_isWalking = false;
    categoryMap = m_categoryWalk.end();
    m_categoriesHold = m_categoriesHold && m_categoryWalk.isAsBefore();
}

void MgDonutDataContainer::fcParseRecursive(const QString &parentCategory,
                                            CHxUIMenuItemCollection *items)
{
    attempt([&] { fileCommands(parentCategory, items); });
}

void MgDonutDataContainer::fileAllCommands()
{
    CHxSystemServices *services = GetHxSystemServices();
    CHxUIManager *manager = services ? services->GetUIManager() : nullptr;
    if (!manager)
        return;

    const auto menu = manager->NewMenuIterator();
    if (!menu)
        return;
    for (; !menu->Done(); menu->Next()) {
        if (CHxUIMenu *current = menu->Current())
            fileCommands({}, current->GetItems());
    }
}

void MgDonutDataContainer::fileCommands(const QString &parentCategory, CHxUIMenuItemCollection *items)
{
    if (!items)
        return;
    // A menu that contains itself must not overflow the stack.
    if (std::find(m_openMenus.begin(), m_openMenus.end(), items) != m_openMenus.end())
        return;

    m_openMenus.push_back(items);
    const auto close = qScopeGuard([this] { m_openMenus.pop_back(); });
    QString category = parentCategory;
    category.remove(QLatin1Char('&'));
    // Reading an entry may change its menu, so ask for the count every time.
    for (int i = 0; i < items->GetCount(); ++i) {
        const CHxUIMenuItem *item = items->GetItem(i);
        if (!item)
            continue;
        if (parentCategory.isEmpty()) {
            category = item->GetText().toQString();
            category.remove(QLatin1Char('&'));
            category = m_categoryWalk.asBefore(category);
        }
        if (const CHxUICommandItem *command = item->GetCommandItem())
            fileCommand(command->GetCommandString().toQString(), category);
        fileCommands(category, item->GetSubItems());
    }
}

void MgDonutDataContainer::fileCommand(const QString &command, const QString &category)
{
    if (m_isWalking)
        m_categoryWalk.file(command, category);
    else
        categoryMap.insert(command, category);
}

QString MgDonutDataContainer::getCategory(const QString &command) const
{
    const auto found = categoryMap.constFind(command);
    return found == categoryMap.constEnd() ? QObject::tr("Others") : found.value();
}
