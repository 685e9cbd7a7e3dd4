// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdEdCommand.h"

OdEdCommandContext::~OdEdCommandContext() = default;

OdEdCommand::~OdEdCommand() = default;

OdRxModule *OdEdCommand::module() const
{
    return nullptr;
}

void OdEdCommand::undefine(bool) { }

long OdEdCommand::flags() const
{
    return 0;
}
