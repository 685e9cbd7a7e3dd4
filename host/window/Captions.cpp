// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/Captions.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace gesturewidget {

QString plainCaption(const QString &text)
{
    static const QRegularExpression bracketed(QStringLiteral("\\s*\\(&[^&]\\)"));
    QString caption = text.section(QLatin1Char('\t'), 0, 0);
    if (!caption.contains(QLatin1Char('&')))
        return caption.trimmed();
    caption.remove(bracketed);
    QString plain;
    plain.reserve(caption.size());
    for (int i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == QLatin1Char('&') && ++i == caption.size())
            break; // a lone one at the end
        plain.append(caption.at(i));
    }
    return plain.trimmed();
}

QString plainTip(const QString &text)
{
    const bool isPlain = !text.contains(QLatin1Char('<')) || !Qt::mightBeRichText(text);
    return (isPlain ? text : QTextDocumentFragment::fromHtml(text).toPlainText()).simplified();
}

QString menuRole(const QString &name)
{
    QString role = name.toLower();
    role.remove(QLatin1Char('&')).remove(QLatin1Char('_')).remove(QLatin1Char(' '));
    for (const QLatin1String word : {QLatin1String("menu"), QLatin1String("mn")}) {
        if (role.startsWith(word))
            return role.mid(word.size());
        if (role.endsWith(word))
            return role.chopped(word.size());
    }
    return role;
}

} // namespace gesturewidget
