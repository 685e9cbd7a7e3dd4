// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace gesturewidget {

// Returns the first of `preferred` that is in `available`, or "en". The result is an ISO 639-1 code,
// as in `available`. `preferred` are names such as "de-AT", as QLocale::uiLanguages() returns them.
// English is always available: what a person prefers less than English is not looked at.
[[nodiscard]] QString chooseLanguage(const QStringList &preferred, const QStringList &available);

} // namespace gesturewidget
