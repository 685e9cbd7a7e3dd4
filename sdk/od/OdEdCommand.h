#pragma once

#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdString.h"

class OdRxModule;

// What a running command is given; the host's own state, opaque to modules.
class SDK_EXPORT OdEdCommandContext : public OdRxObject
{
public:
    ~OdEdCommandContext() override;

protected:
    OdEdCommandContext() = default;
};

// A command that can be typed. Registered with the command stack, see odedRegCmds().
class SDK_EXPORT OdEdCommand : public OdRxObject
{
public:
    ~OdEdCommand() override;

    [[nodiscard]] virtual OdString groupName() const = 0;
    // The name in every language, with a leading underscore: "_LINE".
    [[nodiscard]] virtual OdString globalName() const = 0;
    // The name in the user's language: "LINE".
    [[nodiscard]] virtual OdString localName() const = 0;
    virtual void execute(OdEdCommandContext *context) = 0;
    [[nodiscard]] virtual OdRxModule *module() const;
    virtual void undefine(bool undefined);
    [[nodiscard]] virtual long flags() const;

protected:
    OdEdCommand() = default;
};
