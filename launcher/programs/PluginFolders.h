#pragma once

#include <QByteArray>
#include <QList>

namespace launcher {

// A folder to put into QT_PLUGIN_PATH and the Qt major version, 5 or 6, that the plug-in
// below it is built for. Qt skips a plug-in that is built for the other one.
struct PluginFolder
{
    QByteArray path;
    int qtMajor = 0;

    friend bool operator==(const PluginFolder &a, const PluginFolder &b)
    {
        return a.path == b.path && a.qtMajor == b.qtMajor;
    }
};

// The folders that hold the gestures' plug-in, seen from the folder of the launcher's own
// executable: first the build tree's "../plugins", then where it is installed, below
// "../lib" with or without a folder for the architecture. Only those that hold the file
// are named, Qt 5 before Qt 6; a folder that holds both is named for each.
[[nodiscard]] QList<PluginFolder> pluginFolders(const QByteArray &executableFolder);

} // namespace launcher
