// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/language/ProgramLanguage.h"

#include "host/language/MenuLanguage.h"
#include "host/window/MenuBars.h"

#include <QMenuBar>

namespace gesturewidget {
namespace {

// One caption may be the same word in another language.
constexpr int kClearCount = 2;

QString english()
{
    return QStringLiteral("en");
}

} // namespace

QString programLanguage(const QMainWindow *window, const QStringList &preferred,
                        const QStringList &available)
{
    const QVector<QMenuBar *> bars = menuBarsOf(window);
    if (!bars.isEmpty()) {
        const MenuLanguage menus = MenuLanguage::of(*bars.first());
        if (menus.count >= kClearCount && menus.count > menus.english && available.contains(menus.code))
            return menus.code;
    }
    for (const QString &name : preferred) {
        const QString code = name.left(name.indexOf(QLatin1Char('-')));
        if (code == english() || code == QLatin1String("C") || available.contains(code))
            return available.contains(code) ? code : english();
    }
    return english();
}

} // namespace gesturewidget
