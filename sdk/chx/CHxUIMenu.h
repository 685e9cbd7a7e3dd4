#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxUIMenuItemCollection;

// One of the host's menu bars. Owned by the host's user-interface manager.
class SDK_EXPORT CHxUIMenu
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenu)
    virtual ~CHxUIMenu();

    // The bar's top-level menus; may be null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetItems() = 0;

protected:
    CHxUIMenu() = default;
};
