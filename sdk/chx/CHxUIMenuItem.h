#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxUICommandItem;
class CHxUIMenuItemCollection;

// One entry of a menu, or a menu itself. Owned by the host's user-interface manager.
class SDK_EXPORT CHxUIMenuItem
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenuItem)
    virtual ~CHxUIMenuItem();

    // The identifier that stays the same from start to start, such as "ID_MnTools".
    [[nodiscard]] virtual CHxString GetIdentifier() const = 0;
    // The caption, with "&" before its mnemonic.
    [[nodiscard]] virtual CHxString GetText() const = 0;
    virtual void SetText(const CHxString &text) = 0;
    // The command that the entry runs; null for a separator or a menu.
    [[nodiscard]] virtual CHxUICommandItem *GetCommandItem() const = 0;
    virtual void SetCommandItem(CHxUICommandItem *item) = 0;
    // The entries below this one; null for an entry that opens no menu.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetSubItems() const = 0;

protected:
    CHxUIMenuItem() = default;
};
