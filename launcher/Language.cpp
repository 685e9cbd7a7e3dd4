// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/Language.h"

#include "host/language/LanguageChoice.h"

#include <QLocale>

namespace launcher {

Language::Language(char *programName)
    : m_arguments{programName, nullptr}
{
    const QString language = gesturewidget::chooseLanguage(QLocale::system().uiLanguages(),
                                                           gesturewidget::Translations::languages());
    if (language == QLatin1String("en"))
        return;
    m_application.emplace(m_count, m_arguments);
    m_translations.install(language);
}

Language::~Language() = default;

} // namespace launcher
