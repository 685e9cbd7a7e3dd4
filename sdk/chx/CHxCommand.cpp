// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxCommand.h"

#include "CHxSystemServices.h"

CHxCommandContext::~CHxCommandContext() = default;

CHxCommand::~CHxCommand() = default;

OdString CHxCommand::groupName() const
{
    return OdString("HX_COMMANDS", kOdAnsiCodePage);
}

void CHxCommand::execute(OdEdCommandContext *context)
{
    Execute(dynamic_cast<CHxCommandContext *>(context));
}

void CHxCommand::Help() const
{
    if (CHxSystemServices *services = GetHxSystemServices())
        services->ShowHelp(GetHelpId());
}

int CHxCommand::GetHelpId() const
{
    return 0;
}
