// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"

#include <QString>

namespace launcher {

// The exit status of a task that could not be done.
constexpr int kTaskFailed = 1;

// Writes one line to standard error, after all that was printed before. Returns `status`.
int complain(QString text, int status);
// Prints the result of a task. Returns the exit status.
int report(const Outcome &outcome);

} // namespace launcher
