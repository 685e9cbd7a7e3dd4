#pragma once

#include "host/files/SettingsFile.h"

#include <QHash>
#include <QMap>
#include <QStringList>

namespace gesturewidget {

// The commands that a program must be taken to have although no menu of it may show them
// yet: a binding to a command that is not offered is lost, and programs that change their
// menus with the task begin with a few of them only.
//
// Those are the well-known ones of the profile, and whatever the person has bound before.
//
// `wellKnown`: identifier to keys, see ProgramProfile. `settings`: what the program's
// settings hold. Returns identifier to caption.
[[nodiscard]] QMap<QString, QString> expectedCommands(const QHash<QString, QStringList> &wellKnown,
                                                      const SettingsFile::Values &settings);

} // namespace gesturewidget
