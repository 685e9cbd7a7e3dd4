// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/cli/CommandLine.h"

namespace launcher {

// The tasks about a program that is not started. Each returns the exit status.

// Prints whether gestures can work in the program.
int examineProgram(const CommandLine &line);
// Puts the program with gestures into the desktop's menus, or takes it out again.
int changeMenus(const CommandLine &line);
// Shows or changes what is kept for the program: bindings, trigger, commands.
int doSettingsTask(const CommandLine &line);

} // namespace launcher
