// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxUIMenuItem;

// An ordered list of menu entries. The object that returned it owns it. It does not own its
// entries.
class GESTUREWIDGET_SDK_EXPORT CHxUIMenuItemCollection
{
public:
    Q_DISABLE_COPY_MOVE(CHxUIMenuItemCollection)
    virtual ~CHxUIMenuItemCollection();

    [[nodiscard]] virtual int GetCount() const = 0;
    // The entry at `index`, 0 to GetCount() - 1. May be null. Null for any other index.
    [[nodiscard]] virtual CHxUIMenuItem *GetItem(int index) const = 0;
    // Adds an entry at the end.
    virtual void Append(CHxUIMenuItem *item) = 0;
    // Ignores an entry that is not there.
    virtual void Remove(CHxUIMenuItem *item) = 0;

protected:
    CHxUIMenuItemCollection() = default;
};
