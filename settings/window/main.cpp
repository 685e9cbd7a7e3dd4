// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// mouse-gestures-settings: the window in which people who do not type choose programs, commands and
// directions.

#include "host/language/LanguageChoice.h"
#include "host/language/Translations.h"
#include "settings/programs/ProgramIcon.h"
#include "settings/window/OneWindow.h"
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
    settings::findIconsWithoutTheme();
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("mouse-gestures")));
    settings::OneWindow one(settings::OneWindow::usualPlace());
    if (one.isShownByAnother())
        return 0;
    gesturewidget::Translations translations;
    translations.install(gesturewidget::chooseLanguage(QLocale::system().uiLanguages(),
                                                       gesturewidget::Translations::languages()));
    settings::SettingsWindow window;
    QObject::connect(&one, &settings::OneWindow::asked, &window,
                     &settings::SettingsWindow::bringToFront);
    window.show();
    return QApplication::exec();
}
