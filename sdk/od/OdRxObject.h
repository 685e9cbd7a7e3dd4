#pragma once

#include "sdk/SdkExport.h"

// Root of the platform's reference-counted objects.
//
//     OdSmartPtr<OdEdCommandStack> stack = odedRegCmds();
//     stack->addCommand(&command);
//
// Who counts is the implementation's business: an object that lives by value somewhere
// wraps itself in OdStaticRxObject, whose counting does nothing.
class SDK_EXPORT OdRxObject
{
public:
    OdRxObject(const OdRxObject &) = delete;
    OdRxObject &operator=(const OdRxObject &) = delete;
    virtual ~OdRxObject();

    virtual void addRef() = 0;
    virtual void release() = 0;
    // Number of references held at the moment.
    [[nodiscard]] virtual long numRefs() const = 0;

protected:
    OdRxObject() = default;
};
