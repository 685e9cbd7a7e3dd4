#pragma once

#include "sdk/chx/CHxIterator.h"
#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <memory>

class CHxUICommandItem;
class CHxUIMenu;
class CHxUIMenuItem;
class CHxUIWorkspace;

// The host's menus and the commands in them. Owned by the host, and so is every object it
// gives out, iterators apart.
//
//     CHxUIMenuItem *entry = manager->CreateMenuItem(0, {}, {}, {});
//     entry->SetText("Mouse Gestures...");
//     toolsMenu->GetSubItems()->Append(entry);
//     manager->Refresh(false);
class SDK_EXPORT CHxUIManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIManager)
    virtual ~CHxUIManager();

    // Never null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUIWorkspace>> NewWorkspaceIterator() = 0;
    // Never null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUIMenu>> NewMenuIterator() = 0;

    // The command item with that identifier in that workspace; null when absent.
    [[nodiscard]] virtual CHxUICommandItem *FindCommandItem(const CHxString &workspace,
                                                            const CHxString &identifier) = 0;
    // `flags` is 0; no other value has a meaning yet.
    [[nodiscard]] virtual CHxUICommandItem *CreateCommandItem(const CHxString &identifier,
                                                              int flags) = 0;
    // Whether the item is one of this manager's and still there.
    [[nodiscard]] virtual bool Contains(const CHxUICommandItem *item) const = 0;
    // Takes the item out and destroys it; entries that use it keep no command.
    virtual void RemoveCommandItem(CHxUICommandItem *item) = 0;

    // `flags` is 0; no other value has a meaning yet.
    [[nodiscard]] virtual CHxUIMenuItem *CreateMenuItem(int flags, const CHxString &identifier,
                                                        const CHxString &text, const CHxString &tip) = 0;
    virtual void DestroyMenuItem(CHxUIMenuItem *item) = 0;

    // Brings the menus on screen in line with the entries here. `rebuild` true also reads
    // the program's own menus anew.
    virtual void Refresh(bool rebuild) = 0;

protected:
    CHxUIManager() = default;
};
