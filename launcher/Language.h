// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/language/Translations.h"

#include <QCoreApplication>

#include <optional>

namespace launcher {

// Makes a program without windows speak the person's language, from construction to destruction, as
// far as the program has embedded it.
//
// In English it does nothing. Otherwise it makes the application object that translations need; its
// arguments are the program's name only, since the others belong to the program to be started.
class Language
{
public:
    explicit Language(char *programName);
    ~Language();
    Q_DISABLE_COPY_MOVE(Language)

private:
    int m_count = 1;
    char *m_arguments[2];
    std::optional<QCoreApplication> m_application;
    gesturewidget::Translations m_translations;
};

} // namespace launcher
