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

#include <algorithm>
#include <memory>

namespace {

const wchar_t *const kToolsMenu = L"ID_MnTools";
const char *const kCommandItem = "_PV_MOUSE_GESTURE_CONFIG";
// Of one menu. A host that has more counts wrongly, and nobody wants to wait for that.
constexpr int kMostEntries = 100'000;

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
    const int count = menus ? std::min(menus->GetCount(), kMostEntries) : 0;
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
    const int count = std::min(entries.GetCount(), kMostEntries);
    for (int i = 0; i < count; ++i) {
        CHxUIMenuItem *entry = entries.GetItem(i);
        if (entry && entry->GetText().CompareNoCase(text) == 0)
            return entry;
    }
    return nullptr;
}

// An entry in the making. If the host fails in the middle, what was made of it is taken back.
class NewEntry
{
public:
    NewEntry(CHxUIManager &manager, CHxUIMenuItemCollection &entries)
        : m_manager(manager)
        , m_entries(entries)
    {
    }
    ~NewEntry()
    {
        if (m_isComplete)
            return;
        // It may be in the menu all the same, and an entry that is in a menu must not be destroyed.
        if (m_entry && hostCall([this] { m_entries.Remove(m_entry); }))
            hostCall([this] { m_manager.DestroyMenuItem(m_entry); });
        if (m_newItem)
            hostCall([this] { m_manager.RemoveCommandItem(m_newItem); });
    }
    NewEntry(const NewEntry &) = delete;
    NewEntry &operator=(const NewEntry &) = delete;

    void append(CHxUIWorkspace &workspace, const OdString &commandName)
    {
        CHxUICommandItem *item = commandItem(workspace.GetName(), commandName);
        if (!item)
            return;
        // This is done for an item that existed before, too.
        if (CHxUICommandItemCollection *items = workspace.GetCommandItems())
            items->Add(item);
        m_entry = m_manager.CreateMenuItem(0, CHxString(), CHxString(), CHxString());
        if (!m_entry)
            return;
        m_entry->SetCommandItem(item);
        m_entry->SetText(entryText());
        m_entries.Append(m_entry);
        m_isComplete = true;
    }

private:
    // The command item that the entry runs, made if the workspace has none.
    [[nodiscard]] CHxUICommandItem *commandItem(const CHxString &workspaceName,
                                                const OdString &commandName)
    {
        const CHxString identifier(kCommandItem);
        if (CHxUICommandItem *item = m_manager.FindCommandItem(workspaceName, identifier))
            return item;
        m_newItem = m_manager.CreateCommandItem(identifier, 0);
        if (m_newItem) {
            m_newItem->SetName(CHxString("Mouse Gestures"));
            m_newItem->SetMacro(CHxString("^C^C_GESTURE"));
            m_newItem->SetStatusText(statusText(commandName));
        }
        return m_newItem;
    }

    CHxUIManager &m_manager;
    CHxUIMenuItemCollection &m_entries;
    CHxUICommandItem *m_newItem = nullptr; // one that existed before is not taken back
    CHxUIMenuItem *m_entry = nullptr;
    bool m_isComplete = false;
};

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
    changeMenu([this] { addMenuEntry(); });
}

void MgGestureWidget::UnLoadMenu()
{
    changeMenu([this] { removeMenuEntry(); });
}

template <class Change> void MgGestureWidget::changeMenu(Change change)
{
    // A host that handles events when it is asked may come here again. What is half made is left alone.
    if (m_isChangingMenu)
        return;
    m_isChangingMenu = true;
    hostCall(change);
    m_isChangingMenu = false;
}

void MgGestureWidget::addMenuEntry()
{
    CHxUIManager *manager = userInterface();
    CHxUIWorkspace *workspace = manager ? currentWorkspace(*manager) : nullptr;
    if (!workspace)
        return;

    hostCall([&] {
        CHxUIMenuItem *tools = GetMenuItem(CHxString(kToolsMenu));
        if (CHxUIMenuItemCollection *entries = tools ? tools->GetSubItems() : nullptr)
            NewEntry(*manager, *entries).append(*workspace, command.localName());
    });
    hostCall([manager] { manager->Refresh(false); });

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
