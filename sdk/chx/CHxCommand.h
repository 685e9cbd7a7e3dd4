// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdEdCommand.h"

// The state of a running command of this host. Modules cannot look inside.
class GESTUREWIDGET_SDK_EXPORT CHxCommandContext : public OdEdCommandContext
{
public:
    ~CHxCommandContext() override;

protected:
    CHxCommandContext() = default;
};

// A command of this host. To make one: derive, return its two names, override Execute(), and add
// it to the command stack.
//
//     class HelloCommand : public CHxCommand
//     {
//     public:
//         OdString globalName() const override { return OdString("_HELLO", kOdAnsiCodePage); }
//         OdString localName() const override { return OdString("HELLO", kOdAnsiCodePage); }
//         int Execute(CHxCommandContext *) override { sayHello(); return kNormal; }
//     };
//     OdStaticRxObject<HelloCommand> command;
//     odedRegCmds()->addCommand(&command);
class GESTUREWIDGET_SDK_EXPORT CHxCommand : public OdEdCommand
{
public:
    ~CHxCommand() override;

    // "HX_COMMANDS".
    [[nodiscard]] OdString groupName() const override;
    // Calls Execute() and drops its result. Passes null when `context` is not a CHxCommandContext.
    void execute(OdEdCommandContext *context) override;

    // Called each time the user runs the command. Does the work and may block in a dialog.
    // `context` is null when the host keeps no state for commands. Returns the host's result
    // code, kNormal for a command that ended normally.
    virtual int Execute(CHxCommandContext *context) = 0;
    // Called when the user asks for help on the command. The default opens topic GetHelpId() in
    // the host's help, or does nothing without system services.
    virtual void Help() const;
    // The number of the command's help topic. 0, the default, is the first page.
    [[nodiscard]] virtual int GetHelpId() const;

    // The host's result code for a command that ended normally.
    static constexpr int kNormal = 5100;

protected:
    CHxCommand() = default;
};
