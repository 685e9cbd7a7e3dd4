// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Canvas.h"
#include "examples/sketchpad/MainWindow.h"

#include <gesturewidget/GestureHost.h>

#include <QApplication>

#include <iostream>

namespace {

// Shows a window that opens others when the person wants them. Gestures follow the person into every
// window whose view the host knows.
void show(MainWindow *window, gesturewidget::GestureHost *gestures)
{
    QObject::connect(window, &MainWindow::newWindowWanted, qApp, [gestures] {
        auto *another = new MainWindow;
        another->setAttribute(Qt::WA_DeleteOnClose);
        gestures->addView(another->canvas());
        show(another, gestures);
    });
    window->show();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("sketchpad"));
    QApplication::setApplicationDisplayName(QString());
    // Each window has a drawing of its own. All but this one delete themselves when they are closed.
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

    show(&window, &gestures);
    if (QApplication::arguments().size() > 1)
        window.openFile(QApplication::arguments().at(1));
    return QApplication::exec();
}
