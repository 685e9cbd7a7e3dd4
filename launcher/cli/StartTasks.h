// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/cli/CommandLine.h"

namespace launcher {

// The tasks that start the program. Each returns the exit status.

// Replaces this process by the program with gestures. Returns only on failure.
int startProgram(const CommandLine &line);
// Starts the program, prints what the host has recognised in it, and ends it. The profile goes to
// standard output, the explanation for the person to standard error.
int explainProgram(const CommandLine &line);
// Replaces this process by the settings program. Complains if there is no display or if it is not
// installed.
int openWindow(const CommandLine &line);

} // namespace launcher
