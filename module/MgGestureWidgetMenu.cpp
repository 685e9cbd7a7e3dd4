// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The module's entry in the host's Tools menu.

#include "bindings/HostCall.h"
#include "bindings/MgDonutDataContainer.h"
#include "module/MgGestureWidget.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandItemCollection.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"

#include <QLatin1String>
#include <QObject>

#include <memory>

namespace {

const wchar_t *const kToolsMenu = L"ID_MnTools";
const char *const kCommandItem = "_PV_MOUSE_GESTURE_CONFIG";

[[nodiscard]] CHxUIManager *userInterface()
{
    CHxSystemServices *services = GetHxSystemServices();
    return services ? services->GetUIManager() : nullptr;
}

[[nodiscard]] CHxUIWorkspace *currentWorkspace(CHxUIManager &manager)
{
    const std::unique_ptr<CHxIterator<CHxUIWorkspace>> workspaces = manager.NewWorkspaceIterator();
    for (; workspaces && !workspaces->Done(); workspaces->Next()) {
        CHxUIWorkspace *workspace = workspaces->Current();
        if (workspace && workspace->IsCurrent())
            return workspace;
    }
    return nullptr;
}

// The top-level menu of one workspace with that identifier. The first one that is equal
// ends the search, also where the host has no object at that place, which counts as one
// without an identifier.
[[nodiscard]] CHxUIMenuItem *menuOf(CHxUIWorkspace &workspace, const CHxString &id)
{
    const CHxUIMenuItemCollection *menus = workspace.GetMenuItems();
    const int count = menus ? menus->GetCount() : 0;
    for (int i = 0; i < count; ++i) {
        CHxUIMenuItem *item = menus->GetItem(i);
        const CHxString identifier = item ? item->GetIdentifier() : CHxString();
        if (identifier == id)
            return item;
    }
    return nullptr;
}

[[nodiscard]] CHxString entryText()
{
    return QObject::tr("Mouse Gestures...");
}

[[nodiscard]] CHxString statusText(const OdString &commandName)
{
    return QObject::tr("Customizes mouse gestures:") + QLatin1String("   ") + commandName.toQString();
}

// The entry of that text, letter case ignored; null when there is none.
[[nodiscard]] CHxUIMenuItem *entryIn(const CHxUIMenuItemCollection &entries, const CHxString &text)
{
    const int count = entries.GetCount();
    for (int i = 0; i < count; ++i) {
        CHxUIMenuItem *entry = entries.GetItem(i);
        if (entry && entry->GetText().CompareNoCase(text) == 0)
            return entry;
    }
    return nullptr;
}

// The command item that the entry runs, made if the workspace has none.
[[nodiscard]] CHxUICommandItem *commandItem(CHxUIManager &manager, const CHxString &workspaceName,
                                            const OdString &commandName)
{
    const CHxString identifier(kCommandItem);
    if (CHxUICommandItem *item = manager.FindCommandItem(workspaceName, identifier))
        return item;
    CHxUICommandItem *item = manager.CreateCommandItem(identifier, 0);
    if (item) {
        item->SetName(CHxString("Mouse Gestures"));
        item->SetMacro(CHxString("^C^C_GESTURE"));
        item->SetStatusText(statusText(commandName));
    }
    return item;
}

void appendEntry(CHxUIMenuItemCollection &entries, CHxUIManager &manager, CHxUIWorkspace &workspace,
                 const OdString &commandName)
{
    CHxUICommandItem *item = commandItem(manager, workspace.GetName(), commandName);
    if (!item)
        return;
    // This is done for an item that existed before, too.
    if (CHxUICommandItemCollection *items = workspace.GetCommandItems())
        items->Add(item);
    CHxUIMenuItem *entry = manager.CreateMenuItem(0, CHxString(), CHxString(), CHxString());
    if (!entry)
        return;
    entry->SetCommandItem(item);
    entry->SetText(entryText());
    entries.Append(entry);
}

} // namespace

CHxUIMenuItem *MgGestureWidget::GetMenuItem(const CHxString &id)
{
    CHxUIMenuItem *found = nullptr;
    hostCall([&] {
        CHxUIManager *manager = userInterface();
        if (!manager)
            return;
        const std::unique_ptr<CHxIterator<CHxUIWorkspace>> workspaces = manager->NewWorkspaceIterator();
        for (; workspaces && !workspaces->Done() && !found; workspaces->Next()) {
            if (CHxUIWorkspace *workspace = workspaces->Current())
                found = menuOf(*workspace, id);
        }
    });
    return found;
}

void MgGestureWidget::LoadMenu()
{
    hostCall([this] { addMenuEntry(); });
}

void MgGestureWidget::UnLoadMenu()
{
    hostCall([this] { removeMenuEntry(); });
}

void MgGestureWidget::addMenuEntry()
{
    CHxUIManager *manager = userInterface();
    CHxUIWorkspace *workspace = manager ? currentWorkspace(*manager) : nullptr;
    if (!workspace)
        return;

    CHxUIMenuItem *tools = GetMenuItem(CHxString(kToolsMenu));
    if (CHxUIMenuItemCollection *entries = tools ? tools->GetSubItems() : nullptr)
        appendEntry(*entries, *manager, *workspace, command.localName());
    manager->Refresh(false);

    // The container reads the host's menus when it is created. So create it here, where they are
    // complete and hold the new entry.
    static_cast<void>(MgDonutDataContainer::instance());
}

void MgGestureWidget::removeMenuEntry()
{
    CHxUIManager *manager = userInterface();
    CHxUIMenuItem *tools = manager ? GetMenuItem(CHxString(kToolsMenu)) : nullptr;
    CHxUIMenuItemCollection *entries = tools ? tools->GetSubItems() : nullptr;
    // The entry is found by its text, although it was added through identifiers. This is deliberate, and
    // so is the missing refresh afterwards.
    CHxUIMenuItem *entry = entries ? entryIn(*entries, entryText()) : nullptr;
    if (!entry)
        return;
    CHxUICommandItem *item = entry->GetCommandItem();
    entries->Remove(entry);
    if (item && manager->Contains(item))
        manager->RemoveCommandItem(item);
    manager->DestroyMenuItem(entry);
}
