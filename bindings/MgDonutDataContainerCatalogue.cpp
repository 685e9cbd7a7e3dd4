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
    attempt([this] { fileAllCommands(); });
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
    // A menu that contains itself must not run the host out of stack.
    if (std::find(m_openMenus.begin(), m_openMenus.end(), items) != m_openMenus.end())
        return;

    m_openMenus.push_back(items);
    const auto close = qScopeGuard([this] { m_openMenus.pop_back(); });
    // Reading an entry may change the menu that it is in: the count is asked for every time.
    for (int i = 0; i < items->GetCount(); ++i) {
        const CHxUIMenuItem *item = items->GetItem(i);
        if (!item)
            continue;
        QString category = parentCategory.isEmpty() ? item->GetText().toQString() : parentCategory;
        category.remove(QLatin1Char('&'));
        if (const CHxUICommandItem *command = item->GetCommandItem())
            categoryMap.insert(command->GetCommandString().toQString(), category);
        fileCommands(category, item->GetSubItems());
    }
}

QString MgDonutDataContainer::getCategory(const QString &command) const
{
    const auto found = categoryMap.constFind(command);
    return found == categoryMap.constEnd() ? QObject::tr("Others") : found.value();
}
