// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/Phrase.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <utility>

namespace gesturewidget {
namespace {

// Phrases inside phrases. More would be a damaged message.
constexpr int kDeepest = 8;

} // namespace

Phrase::Phrase(const char *english, std::vector<Phrase> arguments)
    : m_text(QString::fromUtf8(english))
    , m_isVerbatim(false)
    , m_arguments(std::move(arguments))
{
}

Phrase Phrase::verbatim(const QString &text)
{
    Phrase phrase;
    phrase.m_text = text;
    return phrase;
}

// QString::arg() would also replace what looks like a place in an argument.
template <class ToText> QString Phrase::filled(const QString &text, ToText toText) const
{
    if (m_isVerbatim)
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int number =
            text.at(i) == QLatin1Char('%') && i + 1 < text.size() ? text.at(i + 1).digitValue() : -1;
        const auto place = static_cast<std::size_t>(number) - 1;
        if (number < 1 || place >= m_arguments.size()) {
            result += text.at(i);
            continue;
        }
        result += toText(m_arguments[place]);
        ++i;
    }
    return result;
}

QString Phrase::english() const
{
    return filled(m_text, [](const Phrase &argument) { return argument.english(); });
}

QString Phrase::translated() const
{
    const QString text =
        m_isVerbatim ? m_text : QCoreApplication::translate("host", m_text.toUtf8().constData());
    return filled(text, [](const Phrase &argument) { return argument.translated(); });
}

QJsonValue Phrase::toJson() const
{
    if (m_isVerbatim)
        return m_text;
    QJsonArray array{m_text};
    for (const Phrase &argument : m_arguments)
        array.append(argument.toJson());
    return array;
}

Phrase Phrase::fromJson(const QJsonValue &value)
{
    const auto read = [](const QJsonValue &part, int depth, const auto &self) -> Phrase {
        if (!part.isArray() || depth > kDeepest)
            return verbatim(part.toString());
        const QJsonArray array = part.toArray();
        Phrase phrase;
        phrase.m_text = array.first().toString();
        phrase.m_isVerbatim = false;
        for (int i = 1; i < array.size(); ++i)
            phrase.m_arguments.push_back(self(array.at(i), depth + 1, self));
        return phrase;
    };
    return read(value, 1, read);
}

} // namespace gesturewidget
