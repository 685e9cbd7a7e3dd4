// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"

#include <QHash>
#include <QMap>
#include <QStringList>

namespace gesturewidget {

// Returns the commands that a program must be taken to have even if no menu shows them yet, as
// identifier to caption: the well-known ones of the profile, and those that the person has bound.
// A direction loses a command that is not offered, and programs that change their menus with the
// task show only a few at first.
//
// `wellKnown` maps identifiers to keys, see ProgramProfile. `settings` is what the program's
// settings hold.
[[nodiscard]] QMap<QString, QString> expectedCommands(const QHash<QString, QStringList> &wellKnown,
                                                      const SettingsFile::Values &settings);

// Returns the identifiers that are commands even if the program has never shown them, because they
// were imported or come from the administrator.
[[nodiscard]] QStringList trustedCommands(const SettingsFile::Values &settings,
                                          const SettingsFile::Values &site = {});

} // namespace gesturewidget
