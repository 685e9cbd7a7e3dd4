// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPoint>
#include <QTimer>
#include <QWindow>

#include <cstdio>

// A drafting program without gestures of its own. When its menus have the entry for gestures, it
// writes "ready X Y": the middle of its view in global pixels. When a command runs, it writes the
// command's name and ends. The status is 1 if this does not happen within a minute.
int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    const auto say = [](const char *text) {
        std::puts(text);
        std::fflush(stdout);
    };

    QMenu *draw = window.menuBar()->addMenu(QStringLiteral("Draw"));
    for (const char *name : {"DrawArc", "DrawLine"}) {
        QAction *action = draw->addAction(QLatin1String(name));
        action->setObjectName(QLatin1String(name));
        QObject::connect(action, &QAction::triggered, &app, [say, name] {
            say(name);
            QCoreApplication::quit();
        });
    }
    QMenu *tools = window.menuBar()->addMenu(QStringLiteral("Tools"));
    tools->addAction(QStringLiteral("Options..."));

    auto *view = new QGraphicsView(&window);
    window.setCentralWidget(view);
    window.resize(800, 600);
    window.show();

    QTimer look;
    QObject::connect(&look, &QTimer::timeout, view, [&] {
        if (tools->actions().size() < 2 || !window.windowHandle()->isExposed()
            || !window.isActiveWindow())
            return;
        look.stop();
        const QPoint middle = view->viewport()->mapToGlobal(view->viewport()->rect().center());
        std::printf("ready %d %d\n", middle.x(), middle.y());
        std::fflush(stdout);
    });
    look.start(20);
    QTimer::singleShot(60000, &app, [] { QCoreApplication::exit(1); });
    return QApplication::exec();
}
