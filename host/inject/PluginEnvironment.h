// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/PluginNames.h"

#include <QByteArray>
#include <QString>

// The environment variables that made Qt load the plug-in, and how to remove them, so that
// programs started from this one do not load it too.
namespace inject {

using gesturewidget::kPluginKey;

// `plugins` is the value of QT_QPA_GENERIC_PLUGINS: entries "key" or "key:arguments" separated by
// commas. Returns it without the entries of `key`, ignoring letter case as Qt does. The rest is
// unchanged.
[[nodiscard]] QByteArray withoutPlugin(const QByteArray &plugins, const QByteArray &key);

// `path` is the value of QT_PLUGIN_PATH: folders separated by colons. Returns it without the
// folders that hold only this plug-in, for any Qt version. The rest is unchanged.
[[nodiscard]] QByteArray withoutOwnFolders(const QByteArray &path);

// Applies both functions to this process's environment. An empty variable is removed.
void cleanEnvironment();

// Takes the socket for explaining this program out of the environment, see
// host/files/ExplanationChannel.h. Returns -1 if there is none.
[[nodiscard]] int takeExplanationSocket();

// Takes the name that the launcher gives this program out of the environment, see
// host/files/InstallPaths.h. Returns an empty one if there is none.
[[nodiscard]] QString takeName();

} // namespace inject
