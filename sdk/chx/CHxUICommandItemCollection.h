#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxUICommandItem;

// The commands that a workspace uses. Owned by the workspace; holds no ownership of them.
class SDK_EXPORT CHxUICommandItemCollection
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandItemCollection)
    virtual ~CHxUICommandItemCollection();

    // Adding an item that is there already does nothing.
    virtual void Add(CHxUICommandItem *item) = 0;

protected:
    CHxUICommandItemCollection() = default;
};
