// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace tests {

class FakeHost;

// An icon of one colour, with images for pixel ratios 1 and 2.
[[nodiscard]] QIcon squareIcon(const QColor &color);

// Gives a host the menus of a drafting program ("&File", "&Edit", "&Draw", "&Modify",
// "&Tools") and `count` commands in them, the commands of the factory bindings first. Every
// command has a tip and, with `icons`, a picture. The last of every ten is in no menu.
void addDraftingCommands(FakeHost &host, int count, bool icons);

} // namespace tests
