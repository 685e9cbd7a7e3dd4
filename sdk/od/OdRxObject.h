// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

// The base of the platform's reference-counted objects.
//
//     OdSmartPtr<OdEdCommandStack> stack = odedRegCmds();
//     stack->addCommand(&command);
//
// The derived class decides how to count. OdRxObjectImpl counts and deletes the object with the
// last reference. OdStaticRxObject does not count: use it for an object held by value.
class GESTUREWIDGET_SDK_EXPORT OdRxObject
{
public:
    OdRxObject(const OdRxObject &) = delete;
    OdRxObject &operator=(const OdRxObject &) = delete;
    virtual ~OdRxObject();

    // Adds a reference. Each addRef() needs one release().
    virtual void addRef() = 0;
    // Gives a reference back. Do not use the object afterwards: this may have deleted it.
    virtual void release() = 0;
    // The current number of references.
    [[nodiscard]] virtual long numRefs() const = 0;

protected:
    OdRxObject() = default;
};
