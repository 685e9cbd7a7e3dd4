// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures a whole program with the real host and the real module: the cost of a movement of the
// pointer. The baseline is the same program without gestures. Needs an X server.

#include "host/session/GestureHost.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/qtestmouse.h> // qt_handleMouseEvent
#include <QWindow>

#include <X11/Xlib.h>

// After Qt: defines None and other words of Qt's.
#include <X11/extensions/XTest.h>

#include <sched.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr int kMenus = 8;
// Milliseconds, with a good margin.
constexpr int kTimeToSettle = 3000;
constexpr int kTimeToBePlaced = 500;

constexpr int kPatience = 60000; // milliseconds

// Takes movements, as a drawing does, and draws nothing.
class View : public QWidget
{
public:
    View() { setMouseTracking(true); }

    int movements = 0;

protected:
    void mouseMoveEvent(QMouseEvent *) override { ++movements; }
};

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
        view = new View;
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
        // The host waits for the menus, for those that come later, and remembers what it has read. The
        // window manager places the window.
        QEventLoop loop;
        QTimer::singleShot(hasGestures ? kTimeToSettle : kTimeToBePlaced, &loop, &QEventLoop::quit);
        loop.exec();
    }

    QTemporaryDir folder;
    QMainWindow window;
    View *view = nullptr;
    std::unique_ptr<gesturewidget::GestureHost> host;
    int timestamp = 0;
};

// Nanoseconds of processor time of this process, with Qt's thread that reads from the X server.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

// The program's whole work for one movement: from the X server's event until the view has taken it.
// The time is processor time, because the X server needs far longer and is not the program's.
void pointerMoves(benchmark::State &state)
{
    Program program(250, state.range(0) != 0);
    Display *display = XOpenDisplay(nullptr);
    if (!display) {
        state.SkipWithError("there is no X server");
        return;
    }
    static int x = 0; // the pointer is still where the last run left it
    QTimer patience; // one for all movements, so that it costs nothing
    patience.setSingleShot(true);
    patience.start(kPatience);
    std::vector<double> times;
    for (auto _ : state) {
        const QPoint to = program.view->mapToGlobal(QPoint(50 + (++x & 127), 50));
        XTestFakeMotionEvent(display, -1, to.x(), to.y(), CurrentTime);
        XFlush(display);
        const int before = program.view->movements;
        const double begin = processorTime();
        while (program.view->movements == before && patience.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const double time = processorTime() - begin;
        times.push_back(time);
        state.SetIterationTime(time * 1e-9);
        if (program.view->movements == before) {
            state.SkipWithError("the view got no movement");
            break;
        }
    }
    XCloseDisplay(display);
    if (times.empty())
        return;
    // What else the machine does only adds to a time. The quartile leaves that out, and a mean would
    // mostly show that.
    std::sort(times.begin(), times.end());
    state.counters["quartile_us"] = times[times.size() / 4] * 1e-3;
}

// Qt's delivery of one movement inside the program.
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

// Keeps the program and Qt's thread that reads from the X server on one processor. A word from one
// to the other takes twice as long across processors, and where they are is chance.
void stayOnOneProcessor()
{
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(sched_getcpu(), &processors);
    sched_setaffinity(0, sizeof(processors), &processors);
}

} // namespace

// A fixed number of rounds, because each run starts with seconds of waiting.
BENCHMARK(pointerMoves)
    ->ArgName("gestures")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(2000)
    ->Repetitions(15);
BENCHMARK(moveInView)->ArgName("gestures")->Arg(0)->Arg(1)->Iterations(300000)->Repetitions(9);

int main(int argc, char **argv)
{
    stayOnOneProcessor();
    QApplication app(argc, argv);
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        std::fputs("bench_gesturehost: needs an X server, see tests/support/with-desktop.sh\n", stderr);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
