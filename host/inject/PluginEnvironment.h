#pragma once

#include "host/files/PluginNames.h"

#include <QByteArray>

// What made Qt load the plug-in, and how it is taken out of the environment again, so that
// programs started from this one do not load it as well.
namespace inject {

using gesturewidget::kPluginKey;

// `plugins` is the value of QT_QPA_GENERIC_PLUGINS, entries "key" or "key:arguments"
// separated by commas. Returns it without every entry of `key`, letter case ignored as Qt
// does; the rest is unchanged.
[[nodiscard]] QByteArray withoutPlugin(const QByteArray &plugins, const QByteArray &key);

// `path` is the value of QT_PLUGIN_PATH, folders separated by colons. Returns it without
// those that hold nothing but this plug-in, for whatever Qt version; the rest is unchanged.
[[nodiscard]] QByteArray withoutOwnFolders(const QByteArray &path);

// Applies both to this process's environment. A variable that is left empty is removed.
void cleanEnvironment();

// Takes the socket out of the environment over which this program is to be explained, see
// host/files/ExplanationChannel.h; -1 when it is not.
[[nodiscard]] int takeExplanationSocket();

} // namespace inject
