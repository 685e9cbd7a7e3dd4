// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Canvas.h"
#include "examples/sketchpad/MainWindow.h"

#include <gesturewidget/GestureHost.h>

#include <QApplication>

#include <iostream>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("sketchpad"));
    QApplication::setApplicationDisplayName(QString());
    MainWindow window;

    // This is all that a program needs for mouse gestures. The profile is built into this
    // program and says which of its actions are the well-known commands.
    gesturewidget::GestureHost::Options options;
    options.program = QStringLiteral("sketchpad");
    options.profileFolders = QStringList{QStringLiteral(":/profiles")};
    gesturewidget::GestureHost gestures(&window, options);
    gestures.addView(window.canvas());
    QString error;
    if (!gestures.start(&error))
        std::cerr << "sketchpad: " << qPrintable(error) << '\n';

    window.show();
    if (QApplication::arguments().size() > 1)
        window.openFile(QApplication::arguments().at(1));
    return QApplication::exec();
}
