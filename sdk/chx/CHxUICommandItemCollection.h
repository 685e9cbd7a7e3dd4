// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxUICommandItem;

// The commands that a workspace uses. The workspace owns the collection, not the items.
class GESTUREWIDGET_SDK_EXPORT CHxUICommandItemCollection
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandItemCollection)
    virtual ~CHxUICommandItemCollection();

    // Ignores an item that is there already.
    virtual void Add(CHxUICommandItem *item) = 0;

protected:
    CHxUICommandItemCollection() = default;
};
