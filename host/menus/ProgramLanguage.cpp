// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/ProgramLanguage.h"

#include "host/language/LanguageChoice.h"
#include "host/menus/MenuLanguage.h"
#include "host/window/MenuBars.h"

#include <QMenuBar>

namespace gesturewidget {
namespace {

// One caption may be the same word in another language.
constexpr int kClearCount = 2;

} // namespace

QString programLanguage(const QMainWindow *window, const QStringList &preferred,
                        const QStringList &available)
{
    const QVector<QMenuBar *> bars = menuBarsOf(window);
    if (!bars.isEmpty()) {
        const MenuLanguage menus = MenuLanguage::of(*bars.first());
        const bool isClear = menus.count >= kClearCount && menus.code != QLatin1String("en");
        if (isClear && available.contains(menus.code))
            return menus.code;
    }
    return chooseLanguage(preferred, available);
}

} // namespace gesturewidget
