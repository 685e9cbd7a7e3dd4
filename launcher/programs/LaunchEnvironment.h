#pragma once

#include "launcher/programs/PluginFolders.h"

#include <QByteArray>
#include <QList>
#include <QMap>

namespace launcher {

// An environment by name, as bytes: what is not the launcher's business passes unchanged.
using Environment = QMap<QByteArray, QByteArray>;

// Reads "NAME=value" entries up to a null. Of a name that occurs twice the first counts,
// as it does for getenv(); an entry without "=" is left out.
[[nodiscard]] Environment readEnvironment(const char *const *entries);
// The way back: "NAME=value" entries.
[[nodiscard]] QList<QByteArray> environmentEntries(const Environment &environment);

// What a program is started with so that Qt loads the gestures' plug-in:
// - QT_QPA_GENERIC_PLUGINS: our key after those that are there, once;
// - QT_PLUGIN_PATH: our folders before those that are there, none twice;
// - QT_QPA_PLATFORM: "xcb" under a Wayland desktop that offers an X11 display, since
//   Wayland lets no program place the ring under the pointer. A platform that somebody
//   chose stays, Wayland itself apart.
// - QTWEBENGINE_DISABLE_SANDBOX: "1" for root, unless it is set: a web view refuses to
//   start as root otherwise, and takes the program down with it.
[[nodiscard]] Environment withGestures(Environment environment, const QList<PluginFolder> &folders,
                                       bool isRoot);

// Whether the program will run on Wayland for want of an X11 display: the ring cannot be
// placed there. `environment` is what withGestures() gave.
[[nodiscard]] bool lacksX11(const Environment &environment);

} // namespace launcher
