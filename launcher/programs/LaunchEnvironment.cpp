// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/LaunchEnvironment.h"

#include "host/files/PluginNames.h"

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::kPluginKey;

bool isWaylandDesktop(const Environment &environment)
{
    return environment.value("XDG_SESSION_TYPE") == "wayland"
        || !environment.value("WAYLAND_DISPLAY").isEmpty();
}

// Returns whether nobody chose a platform, or chose Wayland: "wayland", "wayland-egl",
// "wayland;xcb".
bool mayUseWayland(const Environment &environment)
{
    const QByteArray platform = environment.value("QT_QPA_PLATFORM");
    return platform.isEmpty() || platform.startsWith("wayland");
}

QByteArray withPluginKey(const QByteArray &plugins)
{
    if (plugins.isEmpty())
        return kPluginKey;
    const QList<QByteArray> entries = plugins.split(',');
    const bool isThere = std::any_of(entries.begin(), entries.end(), [](const QByteArray &entry) {
        return entry.split(':').first() == kPluginKey; // after ":" come a plug-in's arguments
    });
    return isThere ? plugins : plugins + ',' + kPluginKey;
}

QByteArray withPluginFolders(const QByteArray &path, const QList<PluginFolder> &folders)
{
    QList<QByteArray> entries;
    for (const PluginFolder &folder : folders) {
        if (!entries.contains(folder.path))
            entries.append(folder.path);
    }
    const QList<QByteArray> present = path.isEmpty() ? QList<QByteArray>() : path.split(':');
    for (const QByteArray &entry : present) {
        if (!entries.contains(entry))
            entries.append(entry);
    }
    return entries.join(':');
}

} // namespace

Environment readEnvironment(const char *const *entries)
{
    Environment environment;
    for (; entries && *entries; ++entries) {
        const QByteArray entry(*entries);
        const auto equals = entry.indexOf('=');
        if (equals > 0 && !environment.contains(entry.left(equals)))
            environment.insert(entry.left(equals), entry.mid(equals + 1));
    }
    return environment;
}

QList<QByteArray> environmentEntries(const Environment &environment)
{
    QList<QByteArray> entries;
    for (auto it = environment.begin(); it != environment.end(); ++it)
        entries.append(it.key() + '=' + it.value());
    return entries;
}

Environment withGestures(Environment environment, const QList<PluginFolder> &folders, bool isRoot)
{
    environment.insert("QT_QPA_GENERIC_PLUGINS",
                       withPluginKey(environment.value("QT_QPA_GENERIC_PLUGINS")));
    environment.insert("QT_PLUGIN_PATH",
                       withPluginFolders(environment.value("QT_PLUGIN_PATH"), folders));
    if (isWaylandDesktop(environment) && mayUseWayland(environment)
        && !environment.value("DISPLAY").isEmpty())
        environment.insert("QT_QPA_PLATFORM", "xcb");
    if (isRoot && !environment.contains("QTWEBENGINE_DISABLE_SANDBOX"))
        environment.insert("QTWEBENGINE_DISABLE_SANDBOX", "1");
    return environment;
}

bool lacksX11(const Environment &environment)
{
    return isWaylandDesktop(environment) && mayUseWayland(environment);
}

} // namespace launcher
