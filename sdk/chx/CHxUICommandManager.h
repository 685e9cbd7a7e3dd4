// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxIterator.h"
#include "CHxString.h"

#include <memory>

class CHxUICommandItem;

// A named group of commands. The command manager owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUICommandGroup
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandGroup)
    virtual ~CHxUICommandGroup();

    [[nodiscard]] virtual CHxString GetName() const = 0;
    // Never null. The commands that it returns may be null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUICommandItem>> NewCommandIterator() = 0;

protected:
    CHxUICommandGroup() = default;
};

// All commands that a user can run in the host, in groups. The host owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUICommandManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandManager)
    virtual ~CHxUICommandManager();

    // Never null. The groups that it returns may be null.
    [[nodiscard]] virtual std::unique_ptr<CHxIterator<CHxUICommandGroup>> NewGroupIterator() = 0;

protected:
    CHxUICommandManager() = default;
};
