// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace settings {

// Lets QIcon::fromTheme() find the icons of programs also if the desktop names a theme that is not
// installed: they are in the theme "hicolor". Qt looks there only through another theme.
void findIconsWithoutTheme();

// The icon of a desktop entry; a plain one if it cannot be found.
[[nodiscard]] QIcon programIcon(const QString &name);

// The icon's image, `side` wide or high in pixels of a widget, for a device with `ratio` pixels for
// each of them. An image that the icon has only smaller is made larger, so that all programs look
// alike.
[[nodiscard]] QPixmap programPixmap(const QIcon &icon, int side, qreal ratio);

} // namespace settings
