// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIcon>

// Icons as files, for commands that are remembered.
namespace gesturewidget {

// Pixels: the side of the square of a remembered icon. The ring shows no larger one.
inline constexpr int kRememberedIconSize = 32;

// Returns the icon as a PNG file, in its usual state; empty if it shows nothing. May take more
// than a millisecond for a drawn icon.
[[nodiscard]] QByteArray iconToPng(const QIcon &icon);

// Returns the icon of a PNG file; null for an empty file. The file is read when the icon is first
// painted. If it is no picture or an unreasonably large one, the icon shows nothing.
[[nodiscard]] QIcon iconFromPng(const QByteArray &file);

} // namespace gesturewidget
