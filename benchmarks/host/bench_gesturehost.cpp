// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures a whole program with the real host and the real module: the cost of a mouse movement,
// and the time until the ring is open. The baseline is the same program without gestures.

#include "host/session/GestureHost.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest/qtestmouse.h> // qt_handleMouseEvent
#include <QWindow>

#include <chrono>
#include <memory>

namespace {

constexpr int kMenus = 8;
const QPoint kPress(300, 300);

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

    // Sends a mouse event as the platform does. Returns after it is delivered.
    void mouse(QEvent::Type type, QPoint inView, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const QPoint position = view->mapTo(&window, inView);
        QCursor::setPos(window.mapToGlobal(position));
        qt_handleMouseEvent(window.windowHandle(), position, window.mapToGlobal(position), buttons,
                            button, type, Qt::NoModifier, ++timestamp);
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

QWidget *shownRing()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("MgDonutDialog") && window->isVisible())
            return window;
    }
    return nullptr;
}

class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->inherits("MgDonutDialog"))
            isPainted = true;
        return false;
    }
    bool isPainted = false;
};

// From the movement that opens the ring to the end of its first painting.
void ringOpens(benchmark::State &state)
{
    Program program(static_cast<int>(state.range(0)), true);
    PaintWatch watch;
    for (auto _ : state) {
        program.mouse(QEvent::MouseButtonPress, kPress, Qt::RightButton, Qt::RightButton);
        watch.isPainted = false;
        qApp->installEventFilter(&watch);
        const auto begin = std::chrono::steady_clock::now();
        program.mouse(QEvent::MouseMove, kPress + QPoint(30, 0), Qt::NoButton, Qt::RightButton);
        QWidget *ring = shownRing();
        for (int i = 0; ring && !watch.isPainted && i < 100; ++i)
            QCoreApplication::processEvents();
        const auto end = std::chrono::steady_clock::now();
        qApp->removeEventFilter(&watch);
        if (!ring || !watch.isPainted) {
            state.SkipWithError("no ring was painted");
            break;
        }
        state.SetIterationTime(std::chrono::duration<double>(end - begin).count());
        program.mouse(QEvent::MouseButtonRelease, kPress + QPoint(30, 0), Qt::RightButton, Qt::NoButton);
        QCoreApplication::processEvents();
        program.mouse(QEvent::MouseMove, kPress, Qt::NoButton, Qt::NoButton);
    }
}

class PlainWindow : public QWidget
{
public:
    PlainWindow()
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
        , image(250, 250, QImage::Format_ARGB32_Premultiplied)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        resize(250, 250);
        image.fill(Qt::transparent);
    }
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).drawImage(0, 0, image);
        isPainted = true;
    }
    QImage image;
    bool isPainted = false;
};

// A window of the ring's size and kind that draws one image.
void plainWindowOpens(benchmark::State &state)
{
    PlainWindow window;
    for (auto _ : state) {
        window.isPainted = false;
        window.show();
        for (int i = 0; !window.isPainted && i < 100; ++i)
            QCoreApplication::processEvents();
        state.PauseTiming();
        window.hide();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(moveInView)->ArgName("gestures")->Arg(0)->Arg(1);
BENCHMARK(ringOpens)
    ->ArgName("commands")
    ->Arg(250)
    ->Arg(1000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(plainWindowOpens)->Unit(benchmark::kMillisecond);

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
