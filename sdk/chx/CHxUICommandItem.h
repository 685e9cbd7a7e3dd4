// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"
#include "CHxString.h"

#include <QIcon>

// One command of the host's user interface: what a menu entry or a button runs. The host's
// user-interface or command manager owns it.
class GESTUREWIDGET_SDK_EXPORT CHxUICommandItem
{
public:
    Q_DISABLE_COPY_MOVE(CHxUICommandItem)
    virtual ~CHxUICommandItem();

    // The identifier, such as "ID_LINE". It is the same at every start.
    [[nodiscard]] virtual CHxString GetIdentifier() const = 0;
    // The string that runs the command, for CHxSystemServices::RunCommand(). For an item made by a
    // module, its macro. Empty for an item that cannot be run.
    [[nodiscard]] virtual CHxString GetCommandString() const = 0;
    // The name that the user sees, without mnemonics, and without the dots by which a menu announces
    // a dialog: "Open".
    [[nodiscard]] virtual CHxString GetCaption() const = 0;
    // One line of text that says what the command does.
    [[nodiscard]] virtual CHxString GetTip() const = 0;
    // The icons for both sizes. Null icons when the command has none.
    [[nodiscard]] virtual QIcon GetSmallIcon() const = 0;
    [[nodiscard]] virtual QIcon GetLargeIcon() const = 0;

    // Sets what GetCaption() returns.
    virtual void SetName(const CHxString &name) = 0;
    // Sets what GetCommandString() returns. Each "^C" cancels the running command; the rest is the
    // name of a command of the command stack.
    virtual void SetMacro(const CHxString &macro) = 0;
    // Sets what GetTip() returns.
    virtual void SetStatusText(const CHxString &text) = 0;

protected:
    CHxUICommandItem() = default;
};
