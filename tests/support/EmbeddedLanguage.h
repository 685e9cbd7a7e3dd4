// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include <algorithm>
#include <iterator>

namespace tests {

// The languages that have translations, English first.
inline constexpr const char *kLanguages[] = {"en", "de", "fr", "es", "it", "pt", "pl", "ru", "ja", "zh"};

// A text that is rightly the same in a language as in English.
struct SharedText
{
    const char *language;
    const char *text;
};
inline constexpr SharedText kSharedTexts[] = {{"fr", "Direction"}};

// True if a language has the same text as English: in English itself, and for the texts above.
inline bool isAsInEnglish(const QString &language, const QString &text)
{
    return language == QLatin1String("en")
        || std::any_of(std::begin(kSharedTexts), std::end(kSharedTexts), [&](const SharedText &shared) {
               return language == QLatin1String(shared.language) && text == QLatin1String(shared.text);
           });
}

// Makes the program speak a language, with the embedded texts of one part such as "module", from
// construction to destruction.
class EmbeddedLanguage
{
public:
    EmbeddedLanguage(const QString &part, const QString &code)
        : m_isLoaded(
            m_translator.load(QStringLiteral(":/gesturewidget/translations/%1/%2.qm").arg(part, code)))
    {
        if (m_isLoaded)
            QCoreApplication::installTranslator(&m_translator);
    }

    // False if the part has no such language, as with "en".
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

private:
    QTranslator m_translator;
    bool m_isLoaded;
};

} // namespace tests
