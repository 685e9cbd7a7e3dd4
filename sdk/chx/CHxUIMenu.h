// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxUIMenuItemCollection;

// One of the host's menu bars. The host's user-interface manager owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUIMenu
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenu)
    virtual ~CHxUIMenu();

    // The bar's top-level menus. May be null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetItems() = 0;

protected:
    CHxUIMenu() = default;
};
