// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// mouse-gestures-settings: the window in which people who do not type choose programs, commands and
// directions.

#include "host/language/LanguageChoice.h"
#include "host/language/Translations.h"
#include "sdk/QtBridge.h"
#include "settings/window/SettingsWindow.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTranslator>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("mouse-gestures-settings"));
    QApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("mouse-gestures"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("mouse-gestures")));
    const QString language = gesturewidget::chooseLanguage(QLocale::system().uiLanguages(),
                                                           gesturewidget::Translations::languages());
    QTranslator ofQt; // the buttons of its dialogs, if it is installed
    if (ofQt.load(QStringLiteral("qtbase_") + language, qtbridge::translationsFolder()))
        QApplication::installTranslator(&ofQt);
    gesturewidget::Translations translations;
    translations.install(language);
    settings::SettingsWindow window;
    window.show();
    return QApplication::exec();
}
