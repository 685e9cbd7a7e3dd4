// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"

#include <QString>
#include <QStringList>

namespace gesturewidget {

// The settings that an administrator has put into the system's configuration folders
// ($XDG_CONFIG_DIRS/gesturewidget/PROGRAM.ini), for every user. They are the starting point: a key
// in the user's own file counts before them. Nobody here writes them.
//
// An administrator may give only some directions. The others keep their first commands: of a task's
// ring, those of the shared one. Without that they would be empty, since a module takes a direction
// that is missing beside others for an empty one.
class SiteSettings
{
public:
    // Reads the site's files for the program whose own settings are in the file `own`. There are
    // none if that is not in the user's configuration folder, because a program that keeps its
    // settings elsewhere wants no others.
    explicit SiteSettings(const QString &own);
    SiteSettings() = default;

    // All values. If several files have a key, the first folder counts.
    [[nodiscard]] const SettingsFile::Values &values() const { return m_values; }
    // Those that the administrator has given, without the first commands beside them.
    [[nodiscard]] const SettingsFile::Values &given() const { return m_given; }
    // Returns `values`, which under() has given, without the first commands that nobody has chosen.
    [[nodiscard]] SettingsFile::Values chosenOf(const SettingsFile::Values &values) const;
    // The file that a value comes from; empty if none has it.
    [[nodiscard]] QString fileOf(const QString &name) const { return m_files.value(name); }
    // The user's own values, and the site's where there are none.
    [[nodiscard]] SettingsFile::Values under(const SettingsFile::Values &own) const;

private:
    void complete(const QString &section);

    SettingsFile::Values m_given;
    SettingsFile::Values m_values;
    QMap<QString, QString> m_files; // by name of the value
};

} // namespace gesturewidget
