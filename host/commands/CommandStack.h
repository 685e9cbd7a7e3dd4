// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdStaticRxObject.h"

#include <vector>

namespace gesturewidget {

// The commands that modules have registered, by name. Holds one reference on each.
class CommandStack : public OdStaticRxObject<OdEdCommandStack>
{
public:
    CommandStack();
    ~CommandStack() override;

    // Ignores null and a command that was added before.
    void addCommand(OdEdCommand *command) override;
    void removeCommand(OdEdCommand *command) override;
    // Ignores letter case and one leading underscore. If two commands have the same name, the one
    // added last is found.
    [[nodiscard]] OdEdCommand *lookupCommand(const OdString &name) const override;

private:
    std::vector<OdSmartPtr<OdEdCommand>> m_commands;
};

} // namespace gesturewidget
