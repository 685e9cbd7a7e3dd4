// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxIterator.h"
#include "CHxString.h"

#include <memory>

class CHxUICommandItem;
class CHxUIMenu;
class CHxUIMenuItem;
class CHxUIWorkspace;

// The host's menus and the commands in them. The host owns it and every object that it returns,
// except iterators.
//
//     CHxUIMenuItem *entry = manager->CreateMenuItem(0, {}, {}, {});
//     entry->SetText("Mouse Gestures...");
//     toolsMenu->GetSubItems()->Append(entry);
//     manager->Refresh(false);
class GESTUREWIDGET_SDK_EXPORT CHxUIManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIManager)
    virtual ~CHxUIManager();

    // Never null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUIWorkspace>> NewWorkspaceIterator() = 0;
    // Never null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUIMenu>> NewMenuIterator() = 0;

    // The command item with this identifier in this workspace. Null when there is none.
    [[nodiscard]] virtual CHxUICommandItem *FindCommandItem(const CHxString &workspace,
                                                            const CHxString &identifier) = 0;
    // Creates a command item. Pass 0 for `flags`; no other value has a meaning yet.
    [[nodiscard]] virtual CHxUICommandItem *CreateCommandItem(const CHxString &identifier,
                                                              int flags) = 0;
    // True when the item belongs to this manager and still exists.
    [[nodiscard]] virtual bool Contains(const CHxUICommandItem *item) const = 0;
    // Removes the item and destroys it. Menu entries that use it have no command afterwards.
    virtual void RemoveCommandItem(CHxUICommandItem *item) = 0;

    // Creates a menu entry that is in no menu yet. Pass 0 for `flags`; no other value has a
    // meaning yet.
    [[nodiscard]] virtual CHxUIMenuItem *CreateMenuItem(int flags, const CHxString &identifier,
                                                        const CHxString &text, const CHxString &tip) = 0;
    // Destroys a menu entry. Remove it from its menu first.
    virtual void DestroyMenuItem(CHxUIMenuItem *item) = 0;

    // Updates the menus on screen from the entries here. With `rebuild`, also reads the program's
    // own menus again.
    virtual void Refresh(bool rebuild) = 0;

protected:
    CHxUIManager() = default;
};
