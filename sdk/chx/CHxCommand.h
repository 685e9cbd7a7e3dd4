#pragma once

#include "sdk/od/OdEdCommand.h"

// The context of a running host command; opaque to modules.
class SDK_EXPORT CHxCommandContext : public OdEdCommandContext
{
public:
    ~CHxCommandContext() override;

protected:
    CHxCommandContext() = default;
};

// A command of this host. Derive, name it, override Execute(), hand it to odedRegCmds().
class SDK_EXPORT CHxCommand : public OdEdCommand
{
public:
    ~CHxCommand() override;

    [[nodiscard]] OdString groupName() const override;
    // Runs Execute().
    void execute(OdEdCommandContext *context) override;

    // Does the command's work; `context` may be null. Returns the host's result code,
    // kNormal when all went well.
    virtual int Execute(CHxCommandContext *context) = 0;
    // Opens the help on the command.
    virtual void Help() const;
    // Topic number of the command's help, 0 for none.
    [[nodiscard]] virtual int GetHelpId() const;

    // The host's result code for a command that ended normally.
    static constexpr int kNormal = 5100;

protected:
    CHxCommand() = default;
};
