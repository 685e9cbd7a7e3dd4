// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A Qt program that shows an empty window and nothing else.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Mouse Gestures"));
    window.resize(1120, 720);
    window.show();
    return QApplication::exec();
}
