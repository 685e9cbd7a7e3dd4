// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Qt finds the plug-in by its key, in files of this name.
namespace gesturewidget {

// The plug-in's key among Qt's generic plug-ins, as InjectPlugin.json has it.
inline constexpr char kPluginKey[] = "mousegestures";

// The beginning of its file's name, of every Qt version.
inline constexpr char kPluginFilePrefix[] = "libmousegestures-qt";

// Its file below a folder of plug-ins, for Qt 5 or Qt 6.
[[nodiscard]] inline QString pluginFile(int qtMajor)
{
    return QStringLiteral("generic/%1%2.so").arg(QLatin1String(kPluginFilePrefix)).arg(qtMajor);
}

} // namespace gesturewidget
