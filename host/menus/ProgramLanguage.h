// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QMainWindow;
QT_END_NAMESPACE

namespace gesturewidget {

// Returns the language in which host and module talk to the person in this program: an ISO 639-1
// code from `available`, or "en".
//
// The menus decide if they are clearly in a language other than English, because programs let a
// person choose the language. Otherwise chooseLanguage() does: an English menu may only mean that
// the program has no other language. `window` may be null.
[[nodiscard]] QString programLanguage(const QMainWindow *window, const QStringList &preferred,
                                      const QStringList &available);

} // namespace gesturewidget
