// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/fakehost/FakeHost.h"

#include <QStringList>

namespace tests {

// Identifiers of the eight commands that the factory defaults name, in the order in which
// addStandardCommands() adds them.
[[nodiscard]] QStringList standardIdentifiers();

// Gives the host these commands. "ID_LINE" gets the command string "line", the caption
// "Line" and the tip "Tip of Line", the others accordingly.
void addStandardCommands(FakeHost &host);

// The profile store's fourteen keys, in the order in which the container writes them.
[[nodiscard]] QStringList allKeys();

// The values that the module wrote since the log was cleared, in order: "KEY=VALUE".
[[nodiscard]] QStringList writes(const FakeHost &host);

// Icons that are not null and differ in their cacheKey().
[[nodiscard]] QIcon anyIcon();

} // namespace tests
