#pragma once

#include <QByteArray>
#include <QIcon>

// Icons as files, for commands that are remembered.
namespace gesturewidget {

// Side in pixels of the square that a remembered icon fits in. What the ring shows is no
// larger.
inline constexpr int kRememberedIconSize = 32;

// The icon as a PNG file, in its usual state; empty for one that shows nothing. May be slow,
// a millisecond and more for a drawn icon.
[[nodiscard]] QByteArray iconToPng(const QIcon &icon);

// The way back. The file is looked at only when the icon is painted, and what is no picture
// then, or an unreasonably large one, shows nothing. Null for an empty file.
[[nodiscard]] QIcon iconFromPng(const QByteArray &file);

} // namespace gesturewidget
