// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxString.h"

#include <QtGlobal>

class CHxUICommandItem;
class CHxUIMenuItemCollection;

// An entry of a menu, or a menu. The host's user-interface manager owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUIMenuItem
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenuItem)
    virtual ~CHxUIMenuItem();

    // The identifier, such as "ID_MnTools". It is the same at every start.
    [[nodiscard]] virtual CHxString GetIdentifier() const = 0;
    // The caption, with "&" before the mnemonic.
    [[nodiscard]] virtual CHxString GetText() const = 0;
    virtual void SetText(const CHxString &text) = 0;
    // The command that the entry runs. Null for a separator or a menu.
    [[nodiscard]] virtual CHxUICommandItem *GetCommandItem() const = 0;
    virtual void SetCommandItem(CHxUICommandItem *item) = 0;
    // The entries of this menu. Null for an entry that opens no menu.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetSubItems() const = 0;

protected:
    CHxUIMenuItem() = default;
};
