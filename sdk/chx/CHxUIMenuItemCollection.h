#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxUIMenuItem;

// An ordered list of menu entries. Owned by what it was taken from; holds no ownership
// of its entries.
class SDK_EXPORT CHxUIMenuItemCollection
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenuItemCollection)
    virtual ~CHxUIMenuItemCollection();

    [[nodiscard]] virtual int GetCount() const = 0;
    // The entry at 0 to GetCount() - 1; may be null, and is for any other index.
    [[nodiscard]] virtual CHxUIMenuItem *GetItem(int index) const = 0;
    // Adds an entry after all others.
    virtual void Append(CHxUIMenuItem *item) = 0;
    // Removing an entry that is not there does nothing.
    virtual void Remove(CHxUIMenuItem *item) = 0;

protected:
    CHxUIMenuItemCollection() = default;
};
