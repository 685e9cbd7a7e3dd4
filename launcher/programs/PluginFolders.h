// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// A folder for QT_PLUGIN_PATH, and the Qt major version, 5 or 6, of the plug-in below it. Qt skips a
// plug-in for the other version.
struct PluginFolder
{
    QByteArray path;
    int qtMajor = 0;

    friend bool operator==(const PluginFolder &a, const PluginFolder &b)
    {
        return a.path == b.path && a.qtMajor == b.qtMajor;
    }
};

// The folders that hold the gestures' plug-in, relative to the folder of the launcher's executable:
// "../plugins" in a build tree, and folders below "../lib", with or without one for the
// architecture, in an installation. Qt 5 comes before Qt 6. A folder that holds both plug-ins is
// listed for each.
[[nodiscard]] QList<PluginFolder> pluginFolders(const QByteArray &executableFolder);

} // namespace launcher
