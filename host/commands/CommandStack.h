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

    // Null and a command that is there already are ignored.
    void addCommand(OdEdCommand *command) override;
    void removeCommand(OdEdCommand *command) override;
    // Letter case and one leading underscore do not matter; of two commands with one name
    // the one added last is found.
    [[nodiscard]] OdEdCommand *lookupCommand(const OdString &name) const override;

private:
    std::vector<OdSmartPtr<OdEdCommand>> m_commands;
};

} // namespace gesturewidget
