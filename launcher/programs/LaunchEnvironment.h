// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/PluginFolders.h"

#include <QByteArray>
#include <QList>
#include <QMap>

namespace launcher {

// An environment by name, as bytes, so that other programs' variables pass unchanged.
using Environment = QMap<QByteArray, QByteArray>;

// Reads "NAME=value" entries up to a null. If a name is repeated, the first value wins, as with
// getenv(). An entry without "=" is left out.
[[nodiscard]] Environment readEnvironment(const char *const *entries);
// The same environment as "NAME=value" entries.
[[nodiscard]] QList<QByteArray> environmentEntries(const Environment &environment);

// The environment that makes Qt load the gestures' plug-in:
// - QT_QPA_GENERIC_PLUGINS: our key after the others, once;
// - QT_PLUGIN_PATH: our folders before the others, each folder once;
// - QT_QPA_PLATFORM: "xcb" under a Wayland desktop that offers an X11 display, since Wayland lets
//   no program place the ring under the pointer. Any other platform than Wayland that somebody
//   chose stays;
// - QTWEBENGINE_DISABLE_SANDBOX: "1" for root, unless it is set. Otherwise a web view refuses to
//   start as root, and ends the program.
[[nodiscard]] Environment withGestures(Environment environment, const QList<PluginFolder> &folders,
                                       bool isRoot);

// Returns whether the program will run on Wayland because there is no X11 display. The ring cannot
// be placed there. `environment` comes from withGestures().
[[nodiscard]] bool lacksX11(const Environment &environment);

} // namespace launcher
