#pragma once

#include "sdk/chx/CHxIterator.h"
#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <memory>

class CHxUICommandItem;

// A named group of commands. Owned by the command manager.
class SDK_EXPORT CHxUICommandGroup
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandGroup)
    virtual ~CHxUICommandGroup();

    [[nodiscard]] virtual CHxString GetName() const = 0;
    // Never null; the commands it yields may be.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUICommandItem>> NewCommandIterator() = 0;

protected:
    CHxUICommandGroup() = default;
};

// All commands that a user can run in the host, by group. Owned by the host.
class SDK_EXPORT CHxUICommandManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandManager)
    virtual ~CHxUICommandManager();

    // Never null; the groups it yields may be.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUICommandGroup>> NewGroupIterator() = 0;

protected:
    CHxUICommandManager() = default;
};
