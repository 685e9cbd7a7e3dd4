// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdString.h"

class OdEdCommand;

// The commands that the host knows by name.
//
//     odedRegCmds()->addCommand(&command);    // shares it: addRef()
//     odedRegCmds()->removeCommand(&command); // gives it back: release()
class GESTUREWIDGET_SDK_EXPORT OdEdCommandStack : public OdRxObject
{
public:
    ~OdEdCommandStack() override;

    // Ignores null and a command that is there already.
    virtual void addCommand(OdEdCommand *command) = 0;
    // Ignores null and a command that is not there.
    virtual void removeCommand(OdEdCommand *command) = 0;
    // The command whose global or local name is `name`; null if there is none. Ignores letter
    // case and a leading underscore. If several match, returns the one added last.
    [[nodiscard]] virtual OdEdCommand *lookupCommand(const OdString &name) const = 0;

protected:
    OdEdCommandStack() = default;
};

using OdEdCommandStackPtr = OdSmartPtr<OdEdCommandStack>;

// The process's command stack. An empty pointer until a host sets one.
[[nodiscard]] GESTUREWIDGET_SDK_EXPORT OdEdCommandStackPtr odedRegCmds();

// For hosts: sets the stack that odedRegCmds() returns. Null removes it. The stack stays the
// host's; it must outlive every pointer that odedRegCmds() returned.
GESTUREWIDGET_SDK_EXPORT void odedSetCommandStack(OdEdCommandStack *stack);
