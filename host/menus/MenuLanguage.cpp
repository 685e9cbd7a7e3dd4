// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/MenuLanguage.h"

#include "host/captions/KnownCaptions.h"
#include "host/window/Captions.h"

#include <QAction>
#include <QMenuBar>

#include <algorithm>

namespace gesturewidget {
namespace {

bool knows(const KnownCaptions &language, const QString &caption)
{
    return std::any_of(language.menus.begin(), language.menus.end(),
                       [&caption](const QStringList &known) { return known.contains(caption); });
}

} // namespace

MenuLanguage MenuLanguage::of(const QMenuBar &bar)
{
    QStringList captions;
    const QList<QAction *> actions = bar.actions();
    for (const QAction *action : actions)
        captions.append(menuRole(plainCaption(action->text())));

    MenuLanguage found{QStringLiteral("en"), 0};
    for (const KnownCaptions &language : KnownCaptions::languages()) {
        const auto count = static_cast<int>(
            std::count_if(captions.begin(), captions.end(),
                          [&language](const QString &caption) { return knows(language, caption); }));
        if (count > found.count) {
            found.code = language.language;
            found.count = count;
        }
    }
    return found;
}

} // namespace gesturewidget
