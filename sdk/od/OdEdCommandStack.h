#pragma once

#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdSmartPtr.h"
#include "sdk/od/OdString.h"

class OdEdCommand;

// The commands known to the host by name.
//
//     odedRegCmds()->addCommand(&command);    // shares it: addRef
//     odedRegCmds()->removeCommand(&command); // lets go of it: release
class SDK_EXPORT OdEdCommandStack : public OdRxObject
{
public:
    ~OdEdCommandStack() override;

    virtual void addCommand(OdEdCommand *command) = 0;
    // Removing a command that is not there does nothing.
    virtual void removeCommand(OdEdCommand *command) = 0;
    // The command whose global or local name is `name`, letter case ignored; null if none.
    [[nodiscard]] virtual OdEdCommand *lookupCommand(const OdString &name) const = 0;

protected:
    OdEdCommandStack() = default;
};

using OdEdCommandStackPtr = OdSmartPtr<OdEdCommandStack>;

// The process's command stack. Empty until a host has set one.
[[nodiscard]] SDK_EXPORT OdEdCommandStackPtr odedRegCmds();

// For hosts: sets the stack that odedRegCmds() gives out; null takes it away.
SDK_EXPORT void odedSetCommandStack(OdEdCommandStack *stack);
