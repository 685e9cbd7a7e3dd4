// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/DocumentName.h"

#include <QRegularExpression>

#include <algorithm>

namespace gesturewidget {

bool namesADocument(const QString &caption)
{
    // Most captions have none of these, and menus are read while people wait.
    const auto mayBePart = [](QChar letter) {
        return letter == QLatin1Char('/') || letter == QLatin1Char('\\') || letter == QLatin1Char('.');
    };
    if (std::none_of(caption.begin(), caption.end(), mayBePart))
        return false;
    // "/home/me/", "~/", "C:\", "file://" at the beginning of a word. Not "On / Off".
    static const QRegularExpression path(
        QStringLiteral(R"((^|[\s"'(\[:=])(/[^/\s]+/|~/|[A-Za-z]:[\\/]|file:/))"));
    // A word, a dot and an ending of 2 to 7 letters or digits. Behind it only a mark such as "*" or
    // words in brackets. Not "Save as..." nor "Version 2.0".
    static const QRegularExpression file(
        QStringLiteral(R"(\w\.[A-Za-z][A-Za-z0-9]{1,6}"?'?\s*([*•]|\[.*\]|\(.*\))?\s*$)"));
    return path.match(caption).hasMatch() || file.match(caption).hasMatch();
}

} // namespace gesturewidget
