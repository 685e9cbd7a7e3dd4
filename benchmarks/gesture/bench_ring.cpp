// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures how long a person waits for the ring: from an event until the X server has finished the
// frame. The baselines are windows that do as little as possible, measured in the same way.
//
// Needs an X server and a window manager: tests/support/with-desktop.sh bench_ring

#include "bindings/MgDonutDataContainer.h"
#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "gesture/MgMouseGestureTracker.h"
#include "sdk/QtBridge.h"
#include "tests/fakehost/FakeHitTest.h"
#include "tests/fakehost/FakeHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace {

const QPoint kPress(400, 300); // in the view
constexpr std::chrono::seconds kLongest(5); // for one frame
constexpr std::chrono::milliseconds kUntilIdle(400); // after the start of a program
// More than a frame at 60 Hz: the compositor has shown what was painted.
constexpr std::chrono::milliseconds kRest(25);
// With one of these, this program is the new program that a benchmark starts.
constexpr char kTwice[] = "--open-twice";
constexpr char kWindow[] = "--open-window";
constexpr int kDrag = 30; // pixels, more than opens the ring and less than accepts
constexpr int kFarOut = 80; // pixels, accepts
constexpr std::chrono::milliseconds kFade(250); // the last frame stays so long

// Sees a window's paint events.
class PaintWatch : public QObject
{
public:
    bool isPainted = false;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            isPainted = true;
        return false;
    }
};

// Makes a round trip. The server has then finished all earlier requests.
void finishFrame()
{
    static_cast<void>(QCursor::pos());
}

void settle()
{
    for (int round = 0; round < 5; ++round) {
        finishFrame();
        QCoreApplication::processEvents();
    }
}

// A person's movement finds the display at rest: nothing is left to be drawn.
void rest(std::chrono::milliseconds time = kRest)
{
    settle();
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

// Returns the seconds from calling `begin` until the frame that it causes is finished; 0 if there
// was none.
double secondsUntilPainted(QWidget *window, const std::function<void()> &begin)
{
    PaintWatch watch;
    if (window)
        window->installEventFilter(&watch);
    else
        qApp->installEventFilter(&watch);
    const auto start = std::chrono::steady_clock::now();
    begin();
    while (!watch.isPainted && std::chrono::steady_clock::now() - start < kLongest)
        QCoreApplication::processEvents();
    finishFrame();
    const auto end = std::chrono::steady_clock::now();
    return watch.isPainted ? std::chrono::duration<double>(end - start).count() : 0.0;
}

// The timed parts of a benchmark's iterations. Their median is the counter "median_us", in
// microseconds: a mean would show how busy the machine was.
class Stopwatch
{
public:
    explicit Stopwatch(benchmark::State &state)
        : m_state(state)
    {
    }
    ~Stopwatch()
    {
        if (m_seconds.empty())
            return;
        std::sort(m_seconds.begin(), m_seconds.end());
        m_state.counters["median_us"] = 1e6 * m_seconds[m_seconds.size() / 2];
    }
    Stopwatch(const Stopwatch &) = delete;
    Stopwatch &operator=(const Stopwatch &) = delete;

    // Times one iteration: from calling `begin` to the frame of `window`, or of any window if
    // it is null. False if nothing was painted; the benchmark is then over.
    bool time(QWidget *window, const std::function<void()> &begin)
    {
        const double seconds = secondsUntilPainted(window, begin);
        if (seconds <= 0.0) {
            m_state.SkipWithError("nothing was painted");
            return false;
        }
        add(seconds);
        return true;
    }
    void add(double seconds)
    {
        m_state.SetIterationTime(seconds);
        m_seconds.push_back(seconds);
    }

private:
    benchmark::State &m_state;
    std::vector<double> m_seconds;
};

// A program with one drawing and a tracker on it.
class Program
{
public:
    explicit Program(int commands)
        : tracker(std::make_unique<Tracker>())
    {
        QPixmap picture(20, 20);
        picture.fill(Qt::darkBlue);
        for (const char *name :
             {"ZOOM_BOUNDS", "OPEN", "SAVE", "LINE", "OFFSET", "COPY", "DTEXT", "TRIM"})
            add(QLatin1String("ID_") + QLatin1String(name), picture);
        for (int i = 8; i < commands; ++i)
            add(QStringLiteral("ID_COMMAND_%1").arg(i), picture);
        // Any program has used its font and a picture.
        window.menuBar()->addMenu(QStringLiteral("File"));
        window.setWindowIcon(QIcon(QStringLiteral(":/gesturewidgetimages/Resources/up.png")));
        window.resize(800, 600);
        host.mainWindow = &window;
        tests::FakeDocument *document = host.documents.open();
        delete document->view;
        auto *view = new QWidget(&window);
        view->resize(800, 600);
        document->view = view;
        hit.document = document;
        host.store.values.insert(QStringLiteral("EnableMouseGesture"), QStringLiteral("1"));
        host.store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("8"));
        MgDonutDataContainer::instance()->init();
        window.show();
        settle();
        press();
    }

    [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const { return tracker->ring(); }

    // Does what a host does with the press.
    void press()
    {
        pointTo(kPress);
        hit.position = kPress;
        hit.press = hit.buttonHeld = true;
        hit.motion = false;
        tracker->Update(nullptr, &hit);
    }
    // Does what a host does with the movement that opens the ring.
    void drag()
    {
        hit.position = kPress + QPoint(0, kDrag);
        hit.press = false;
        hit.motion = true;
        tracker->Update(nullptr, &hit);
        tracker->Update(nullptr, &hit);
    }
    // Moves the pointer over the open ring, which asks where it is.
    void follow()
    {
        const QPoint middle = ring()->rect().center();
        QMouseEvent move(QEvent::MouseMove, middle, ring()->mapToGlobal(middle), Qt::NoButton,
                         Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(ring(), &move);
    }
    // Opens the ring for the first time, which takes longer than later.
    void openOnce()
    {
        drag();
        settle();
        end();
    }
    void pointTo(const QPoint &inView)
    {
        QCursor::setPos(hit.document->GetViewWidget()->mapToGlobal(inView));
    }
    void end()
    {
        if (ring())
            ring()->StopGesturing(false);
        hit.motion = hit.buttonHeld = false;
        tracker->Update(nullptr, &hit);
        settle();
    }

    class Tracker : public MgMouseGestureTracker
    {
    public:
        [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const
        {
            return qobject_cast<MgDonutDialogPVStyleImpl *>(donut.data());
        }
    };

    tests::FakeHost host;
    QMainWindow window;
    tests::FakeHitTest hit;
    std::unique_ptr<Tracker> tracker;

private:
    void add(const QString &id, const QPixmap &picture)
    {
        host.commands.addCommand(id, id.toLower(), id, QStringLiteral("Tip of ") + id)->smallIcon =
            QIcon(picture);
    }
};

// From the movement that opens the ring to its first frame.
void ringOpens(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    Program program(static_cast<int>(state.range(0)));
    program.openOnce();
    for (auto _ : state) {
        program.press();
        program.pointTo(kPress + QPoint(0, kDrag));
        rest();
        if (!stopwatch.time(program.ring(), [&program] { program.drag(); }))
            break;
        program.end();
        program.host.log.clear();
    }
}

// Opens the ring in a program that has just started, and once more. Prints both times, in
// microseconds, and returns the exit status.
int openTwice(int commands)
{
    Program program(commands);
    program.pointTo(kPress + QPoint(0, kDrag));
    rest(kUntilIdle); // the window manager is at work for the new window
    for (int i = 0; i < 2; ++i) {
        const double seconds = secondsUntilPainted(program.ring(), [&program] { program.drag(); });
        std::printf("%.0f ", 1e6 * seconds);
        if (seconds <= 0.0)
            return 1;
        program.end();
        program.press();
        program.pointTo(kPress + QPoint(0, kDrag));
        rest();
    }
    return 0;
}

// A time that a new process of this program prints. `place` counts from 0 in its output. Returns
// false, after telling the benchmark, if there is none.
bool timeInNewProgram(benchmark::State &state, Stopwatch &stopwatch, const QStringList &arguments,
                      int place)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished();
    const QList<QByteArray> times = process.readAllStandardOutput().simplified().split(' ');
    if (process.exitCode() != 0 || times.size() <= place) {
        state.SkipWithError("nothing was painted");
        return false;
    }
    stopwatch.add(times.at(place).toDouble() * 1e-6);
    return true;
}

// The first ring of a program or the second one, each time in a new process.
void ringOfNewProgram(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    for (auto _ : state) {
        if (!timeInNewProgram(state, stopwatch, {QLatin1String(kTwice), QString::number(state.range(0))},
                              static_cast<int>(state.range(1)) - 1))
            break;
    }
}

// From a movement into the next sector to the frame that lights it.
void ringFollows(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    Program program(8);
    program.pointTo(kPress + QPoint(0, kDrag));
    program.drag();
    settle();
    const QPoint offsets[] = {{0, 50}, {50, 0}, {0, -50}, {-50, 0}};
    std::size_t next = 0;
    for (auto _ : state) {
        const QPoint offset = offsets[next++ % 4];
        program.pointTo(kPress + offset);
        settle();
        MgDonutDialogPVStyleImpl *ring = program.ring();
        ring->setActiveArc(-offset.x(), offset.y()); // the opposite sector
        ring->repaint();
        rest();
        const bool isTimed = stopwatch.time(ring, [&program] { program.follow(); });
        if (!isTimed)
            break;
    }
    program.end();
}

// From the movement that accepts a sector to the end of the gesture, with the last frame's quarter
// of a second.
void ringFades(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    Program program(8);
    program.openOnce();
    for (auto _ : state) {
        program.press();
        program.pointTo(kPress + QPoint(0, kDrag));
        program.drag();
        program.pointTo(kPress + QPoint(0, kFarOut));
        rest();
        MgDonutDialogPVStyleImpl *ring = program.ring();
        const auto start = std::chrono::steady_clock::now();
        program.follow();
        finishFrame();
        stopwatch.add(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (ring->gesturing || !ring->accepted) {
            state.SkipWithError("no sector was accepted");
            break;
        }
        program.end();
    }
}

void plainWait(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        auto now = start;
        while (now - start < kFade)
            now = std::chrono::steady_clock::now();
        stopwatch.add(std::chrono::duration<double>(now - start).count());
    }
}

// A window of the ring's size and kind that draws two prepared images.
class PlainWindow : public QWidget
{
public:
    explicit PlainWindow(bool isManaged)
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
        , ring(QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png"))
        , highlight(QStringLiteral(":/gesturewidgetimages/Resources/gestureregion1.png"))
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setGeometry(300, 200, 250, 250);
        create();
        if (!isManaged)
            windowHandle()->setFlag(Qt::BypassWindowManagerHint);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, ring);
        painter.drawPixmap(0, 0, highlight);
    }

private:
    QPixmap ring;
    QPixmap highlight;
};

void plainWindowOpens(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    PlainWindow window(state.range(0) != 0);
    for (auto _ : state) {
        if (!stopwatch.time(&window, [&window] { window.show(); }))
            break;
        settle();
        window.hide();
        rest();
    }
}

void plainWindowFollows(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    PlainWindow window(state.range(0) != 0);
    window.show();
    settle();
    for (auto _ : state) {
        rest();
        if (!stopwatch.time(&window, [&window] { window.update(); }))
            break;
    }
}

// Makes and opens the first such window of a program that has just started. Prints the time in
// microseconds and returns the exit status.
int openWindow()
{
    const Program program(8);
    rest(kUntilIdle);
    std::unique_ptr<PlainWindow> window;
    const double seconds = secondsUntilPainted(nullptr, [&window] {
        window = std::make_unique<PlainWindow>(false);
        window->show();
    });
    std::printf("%.0f ", 1e6 * seconds);
    return seconds > 0.0 ? 0 : 1;
}

void plainWindowOfNewProgram(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    for (auto _ : state) {
        if (!timeInNewProgram(state, stopwatch, {QLatin1String(kWindow)}, 0))
            break;
    }
}

void menuOpens(benchmark::State &state)
{
    Stopwatch stopwatch(state);
    QMenu menu;
    QPixmap picture(20, 20);
    picture.fill(Qt::darkBlue);
    for (int i = 0; i < 8; ++i)
        menu.addAction(QIcon(picture), QStringLiteral("Command %1").arg(i));
    for (auto _ : state) {
        if (!stopwatch.time(&menu, [&menu] { menu.popup(QPoint(300, 200)); }))
            break;
        settle();
        menu.hide();
        rest();
    }
}

} // namespace

BENCHMARK(plainWindowOpens)
    ->ArgName("managed")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(menuOpens)->UseManualTime()->Iterations(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(ringOpens)
    ->ArgName("commands")
    ->Arg(8)
    ->Arg(300)
    ->Arg(1000)
    ->Arg(10000)
    ->UseManualTime()
    ->Iterations(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(ringOfNewProgram)
    ->ArgNames({"commands", "ring"})
    ->Args({1000, 1})
    ->Args({1000, 2})
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(plainWindowOfNewProgram)->UseManualTime()->Iterations(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainWindowFollows)
    ->ArgName("managed")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(200)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(ringFollows)->UseManualTime()->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(ringFades)->UseManualTime()->Iterations(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainWait)->UseManualTime()->Iterations(10)->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        std::fputs("bench_ring: needs an X server, see tests/support/with-desktop.sh\n", stderr);
        return 1;
    }
    if (argc == 3 && std::strcmp(argv[1], kTwice) == 0)
        return openTwice(std::atoi(argv[2]));
    if (argc == 2 && std::strcmp(argv[1], kWindow) == 0)
        return openWindow();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
