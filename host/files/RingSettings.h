// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"

#include <QHash>
#include <QString>
#include <QStringList>

// A task of the person, such as a workbench of the program, may have a ring of its own. Its keys are
// those of the shared ring, in a section of their own.
namespace gesturewidget::ringsettings {

// The section of a task's ring. Two tasks never have the same one.
[[nodiscard]] QString sectionOf(const QString &task);
// True for a key that each ring has: the directions and the number of gestures. Whether gestures are
// on is the same for all rings.
[[nodiscard]] bool isRingKey(const QString &key);
// True if the task has a ring of its own.
[[nodiscard]] bool hasOwnRing(const SettingsFile::Values &values, const QString &task);
// The tasks that have one, in the order of the alphabet.
[[nodiscard]] QStringList ownRings(const SettingsFile::Values &values);

// Returns the identifiers that are bound in any ring.
[[nodiscard]] QStringList boundCommands(const SettingsFile::Values &values);

// Returns the values with the keys of the task's own ring in place of those of the shared one. Without
// an own ring, returns the values as they are.
[[nodiscard]] SettingsFile::Values seenIn(const SettingsFile::Values &values, const QString &task);
// The other way round: moves changes of the shared ring's keys to the task's own ring.
[[nodiscard]] SettingsFile::Values movedTo(const SettingsFile::Values &changes, const QString &task);

// Returns what to write to give a task a ring of its own. What it had before comes back; what it lacks
// comes from `first`, then from `shared`, which holds a value for each of the ring's keys. A command
// keeps only one direction of a scheme. `first` maps keys such as "87" to identifiers. `site` has the
// administrator's values, which count where the person's file has none: they are left out.
[[nodiscard]] SettingsFile::Values ownRing(const SettingsFile::Values &now, const QString &task,
                                           const QHash<QString, QString> &first,
                                           const SettingsFile::Values &shared,
                                           const SettingsFile::Values &site = {});
// Returns what to write to let a task use the shared ring again, also where the administrator gives it
// one. Its own one is kept for later.
[[nodiscard]] SettingsFile::Values sharedRing(const QString &task,
                                              const SettingsFile::Values &site = {});

} // namespace gesturewidget::ringsettings
