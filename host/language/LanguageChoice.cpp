// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/language/LanguageChoice.h"

namespace gesturewidget {

QString chooseLanguage(const QStringList &preferred, const QStringList &available)
{
    QString english = QStringLiteral("en");
    for (const QString &name : preferred) {
        QString code = name.left(name.indexOf(QLatin1Char('-')));
        if (available.contains(code))
            return code;
        if (code == english || code == QLatin1String("C"))
            break;
    }
    return english;
}

} // namespace gesturewidget
