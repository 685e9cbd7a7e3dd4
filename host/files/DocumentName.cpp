// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/DocumentName.h"

#include <QRegularExpression>

#include <algorithm>

namespace gesturewidget {

namespace {

// Quotation marks of all languages take the place of each %1. Some open in one language and close in
// another.
QRegularExpression withMarks(const QString &pattern)
{
    return QRegularExpression(pattern.arg(QStringLiteral(R"("'‘’“”„«»「」『』)")),
                              QRegularExpression::UseUnicodePropertiesOption);
}

// Most captions have none of these, and menus are read while people wait.
bool mayNameADocument(const QString &caption)
{
    return std::any_of(caption.begin(), caption.end(), [](QChar letter) {
        return letter == QLatin1Char('/') || letter == QLatin1Char('\\') || letter == QLatin1Char('.');
    });
}

} // namespace

bool namesADocument(const QString &caption)
{
    if (!mayNameADocument(caption))
        return false;
    // "/home/me/", "~/", "C:\", "file://" at the beginning of a word. Not "On / Off".
    static const QRegularExpression path =
        withMarks(QStringLiteral(R"((^|[\s%1(\[:=])(/[^/\s]+/|~/|[A-Za-z]:[\\/]|file:/))"));
    // A word, a dot and an ending of 2 to 7 letters or digits. Behind it only quotation marks, a mark
    // such as "*" or words in brackets. Not "Save as..." nor "Version 2.0".
    static const QRegularExpression file =
        withMarks(QStringLiteral(R"(\w\.[A-Za-z][A-Za-z0-9]{1,6}\s*[%1]*\s*([*•]|\[.*\]|\(.*\))?\s*$)"));
    return path.match(caption).hasMatch() || file.match(caption).hasMatch();
}

QString withoutDocument(const QString &caption)
{
    if (!mayNameADocument(caption))
        return caption;
    // A mark between two letters is an apostrophe.
    static const QRegularExpression quoted =
        withMarks(QStringLiteral(R"(\s*(?!\b['’]\b)[%1]((?:[^%1]|\b['’]\b)+)[%1])"));
    QRegularExpressionMatchIterator matches = quoted.globalMatch(caption);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (!namesADocument(match.captured(1).trimmed()))
            continue;
        QString rest = caption;
        rest.remove(match.capturedStart(), match.capturedLength());
        rest = rest.trimmed();
        return rest.isEmpty() ? caption : rest;
    }
    return caption;
}

} // namespace gesturewidget
