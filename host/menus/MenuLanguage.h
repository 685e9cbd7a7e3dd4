// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QMenuBar;
QT_END_NAMESPACE

namespace gesturewidget {

// The language of a bar's top-level menus.
struct MenuLanguage
{
    QString code; // ISO 639-1, one of KnownCaptions::languages(); "en" if no menu is known
    int count = 0; // menus with a caption of that language

    // Counts the captions that each language knows. If two languages know equally many, the one
    // that comes first in KnownCaptions::languages() wins.
    [[nodiscard]] static MenuLanguage of(const QMenuBar &bar);
};

} // namespace gesturewidget
