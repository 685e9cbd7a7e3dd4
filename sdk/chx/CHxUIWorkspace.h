#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxUICommandItemCollection;
class CHxUIMenuItemCollection;

// One arrangement of the host's menus. Owned by the host's user-interface manager.
class SDK_EXPORT CHxUIWorkspace
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIWorkspace)
    virtual ~CHxUIWorkspace();

    [[nodiscard]] virtual CHxString GetName() const = 0;
    // True for the one on screen.
    [[nodiscard]] virtual bool IsCurrent() const = 0;
    // Never null.
    [[nodiscard]] virtual CHxUICommandItemCollection *GetCommandItems() = 0;
    // The top-level menus; never null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetMenuItems() = 0;

protected:
    CHxUIWorkspace() = default;
};
