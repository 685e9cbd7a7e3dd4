// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxString.h"

#include <QtGlobal>

class CHxUICommandItemCollection;
class CHxUIMenuItemCollection;

// One arrangement of the host's menus. The host's user-interface manager owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUIWorkspace
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIWorkspace)
    virtual ~CHxUIWorkspace();

    [[nodiscard]] virtual CHxString GetName() const = 0;
    // True for the workspace on screen.
    [[nodiscard]] virtual bool IsCurrent() const = 0;
    // Never null.
    [[nodiscard]] virtual CHxUICommandItemCollection *GetCommandItems() = 0;
    // The top-level menus. Never null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetMenuItems() = 0;

protected:
    CHxUIWorkspace() = default;
};
