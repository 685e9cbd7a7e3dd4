// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// mouse-gestures-settings: the window in which people who do not type choose programs, commands and
// directions.

#include "host/language/LanguageChoice.h"
#include "host/language/Translations.h"
#include "settings/window/SettingsWindow.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("mouse-gestures-settings"));
    QApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("mouse-gestures"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("mouse-gestures")));
    gesturewidget::Translations translations;
    translations.install(gesturewidget::chooseLanguage(QLocale::system().uiLanguages(),
                                                       gesturewidget::Translations::languages()));
    settings::SettingsWindow window;
    window.show();
    return QApplication::exec();
}
