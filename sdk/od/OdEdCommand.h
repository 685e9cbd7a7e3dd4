// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdRxObject.h"
#include "OdString.h"

class OdRxModule;

// The state of a running command. It belongs to the host; modules cannot look inside.
class GESTUREWIDGET_SDK_EXPORT OdEdCommandContext : public OdRxObject
{
public:
    ~OdEdCommandContext() override;

protected:
    OdEdCommandContext() = default;
};

// A command that the user can type. Register it with the command stack, see odedRegCmds(). The host
// asks for its names and calls execute(); the host of this project makes no other calls. All calls
// come on the user-interface thread.
class GESTUREWIDGET_SDK_EXPORT OdEdCommand : public OdRxObject
{
public:
    ~OdEdCommand() override;

    // The name of the group that the command belongs to: "HX_COMMANDS". Commands of one module
    // share a group.
    [[nodiscard]] virtual OdString groupName() const = 0;
    // The name that is the same in every language, with a leading underscore: "_LINE".
    [[nodiscard]] virtual OdString globalName() const = 0;
    // The name in the user's language: "LINE".
    [[nodiscard]] virtual OdString localName() const = 0;
    // Called each time the user runs the command. `context` belongs to the host, is valid during
    // the call, and is null when the host keeps no state for commands.
    virtual void execute(OdEdCommandContext *context) = 0;
    // The module that brought the command. Null, the default, means that none is named.
    [[nodiscard]] virtual OdRxModule *module() const;
    // Called when the user hides the command (true) or brings it back (false), to put another
    // command of the same name in its place. The default does nothing.
    virtual void undefine(bool undefined);
    // Bits that tell the host how to run the command. No bit has a meaning yet; the default is 0.
    [[nodiscard]] virtual long flags() const;

protected:
    OdEdCommand() = default;
};
