#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/SdkExport.h"

#include <QIcon>

// One command of the host's user interface: what a menu entry or a button stands for.
// Owned by the host's user-interface or command manager.
class SDK_EXPORT CHxUICommandItem
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandItem)
    virtual ~CHxUICommandItem();

    // The identifier that stays the same from start to start, such as "ID_LINE".
    [[nodiscard]] virtual CHxString GetIdentifier() const = 0;
    // What running the command means: a string for CHxSystemServices::RunCommand(). For an
    // item made by a module, its macro. Empty for one that cannot be run.
    [[nodiscard]] virtual CHxString GetCommandString() const = 0;
    // The name shown to the user, without mnemonics.
    [[nodiscard]] virtual CHxString GetCaption() const = 0;
    // One line that says what the command does.
    [[nodiscard]] virtual CHxString GetTip() const = 0;
    [[nodiscard]] virtual QIcon GetSmallIcon() const = 0;
    [[nodiscard]] virtual QIcon GetLargeIcon() const = 0;

    virtual void SetName(const CHxString &name) = 0;
    // "^C" cancels what runs, then the rest is typed as a command.
    virtual void SetMacro(const CHxString &macro) = 0;
    virtual void SetStatusText(const CHxString &text) = 0;

protected:
    CHxUICommandItem() = default;
};
