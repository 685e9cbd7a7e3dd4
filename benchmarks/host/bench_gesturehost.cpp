// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures a whole program with the real host and the real module: the cost of a mouse movement. The
// baseline is the same program without gestures.

#include "host/session/GestureHost.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QtTest/qtestmouse.h> // qt_handleMouseEvent
#include <QWindow>

#include <memory>

namespace {

constexpr int kMenus = 8;

// Like a drawing program: a view, and menus full of commands with icons.
class Program
{
public:
    Program(int commands, bool hasGestures)
    {
        QPixmap image(24, 24);
        image.fill(Qt::darkBlue);
        const QIcon icon(image);
        for (int i = 0; i < kMenus; ++i) {
            QMenu *menu = window.menuBar()->addMenu(QStringLiteral("Menu %1").arg(i));
            for (int j = i; j < commands; j += kMenus) {
                QAction *action = menu->addAction(icon, QStringLiteral("Command %1").arg(j));
                action->setObjectName(QStringLiteral("command%1").arg(j));
                action->setStatusTip(QStringLiteral("What command %1 does").arg(j));
            }
        }
        view = new QWidget;
        view->setMouseTracking(true);
        window.setCentralWidget(view);
        window.resize(800, 600);
        if (hasGestures) {
            gesturewidget::GestureHost::Options options;
            options.program = QStringLiteral("benchmark");
            options.moduleFile = QStringLiteral(MODULE_FILE);
            options.settingsFile = folder.filePath(QStringLiteral("benchmark.ini"));
            host = std::make_unique<gesturewidget::GestureHost>(&window, options);
            host->addView(view);
            QString error;
            if (!host->start(&error))
                qFatal("%s", qPrintable(error));
        }
        window.show();
        // The menu entry comes once the menus have settled.
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 1000 && (hasGestures || timer.elapsed() < 100))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }

    QTemporaryDir folder;
    QMainWindow window;
    QWidget *view = nullptr;
    std::unique_ptr<gesturewidget::GestureHost> host;
    int timestamp = 0;
};

void moveInView(benchmark::State &state)
{
    Program program(250, state.range(0) != 0);
    int x = 0;
    for (auto _ : state) {
        const QPoint position = program.view->mapTo(&program.window, QPoint(50 + (x++ & 127), 50));
        qt_handleMouseEvent(program.window.windowHandle(), position,
                            program.window.mapToGlobal(position), Qt::NoButton, Qt::NoButton,
                            QEvent::MouseMove, Qt::NoModifier, ++program.timestamp);
    }
}

} // namespace

BENCHMARK(moveInView)->ArgName("gestures")->Arg(0)->Arg(1);

// For every window, the offscreen platform warns that it does not support size hints.
void beQuiet(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(beQuiet);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
