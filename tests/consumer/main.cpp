// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include <gesturewidget/GestureHost.h>
#include <gesturewidget/sdk/chx/CHxSystemServices.h>

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <cstdio>

// Hosts gestures. With an argument it does not: then the launcher must bring them in. When the
// module's entry is in the menu, writes the entry's text and the files in memory, and ends.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    QMenu *tools = window.menuBar()->addMenu(QStringLiteral("Tools"));
    tools->addAction(QStringLiteral("Options..."));
    auto *drawing = new QWidget(&window);
    window.setCentralWidget(drawing);

    gesturewidget::GestureHost gestures(&window);
    gestures.addView(drawing);
    QString error;
    if (argc == 1 && (!gestures.start(&error) || !GetHxSystemServices())) {
        std::fprintf(stderr, "consumer: %s\n", qPrintable(error));
        return 2;
    }
    window.show();

    QTimer look;
    QObject::connect(&look, &QTimer::timeout, tools, [tools] {
        if (tools->actions().size() < 2 || !GetHxSystemServices())
            return;
        std::puts(qPrintable(tools->actions().last()->text()));
        QFile memory(QStringLiteral("/proc/self/maps"));
        if (memory.open(QIODevice::ReadOnly))
            std::fputs(memory.readAll().constData(), stdout);
        QCoreApplication::quit();
    });
    look.start(10);
    QTimer::singleShot(60000, &app, [] { QCoreApplication::exit(3); });
    return QApplication::exec();
}
