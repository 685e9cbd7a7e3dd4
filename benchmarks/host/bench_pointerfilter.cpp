// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures the cost of a mouse movement with the pointer filter, in a view and in another widget,
// and the cost of any other event. The baseline is Qt's own delivery.

#include "host/documents/DocumentManager.h"
#include "host/files/CrashPage.h"
#include "host/input/PointerFilter.h"
#include "sdk/chx/CHxTracker.h"
#include "sdk/OwnCode.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QtTest/qtestmouse.h> // qt_handleMouseEvent
#include <QWidget>
#include <QWindow>

#include <memory>

namespace {

// Asks the questions that a tracker asks on each update while idle.
class IdleTracker : public CHxTracker
{
public:
    void Update(CHxTrackerContext *, CHxHitTestInfo *hit) override
    {
        const bool isSuppressed = hit->IsModalWindowOpen() || hit->IsPopupOpen() || hit->IsMouseGrabbed()
                               || hit->IsOtherButtonDown() || hit->IsModifierMismatch()
                               || hit->IsOverControl() || hit->IsViewBlocked();
        benchmark::DoNotOptimize(isSuppressed);
        if (!isSuppressed)
            benchmark::DoNotOptimize(hit->IsPress());
    }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return false; }
    bool DoAction(const CHxHitTestInfo *) override { return false; }
};

class Desk
{
public:
    explicit Desk(bool hasFilter)
    {
        window.resize(400, 400);
        view = new QWidget(&window);
        view->setGeometry(0, 0, 200, 400);
        view->setMouseTracking(true);
        other = new QWidget(&window);
        other->setGeometry(200, 0, 200, 400);
        other->setMouseTracking(true);
        window.show();
        documents.open(view)->inputPoints().AddTracker(&tracker, 0);
        filter = std::make_unique<gesturewidget::PointerFilter>(documents, gesturewidget::Trigger{},
                                                                [](const QWidget *) { return true; });
        if (hasFilter)
            qApp->installEventFilter(filter.get());
    }

    // Sends a mouse movement as the platform does. Returns after it is delivered.
    void moveTo(QPoint position)
    {
        qt_handleMouseEvent(window.windowHandle(), position, window.mapToGlobal(position), Qt::NoButton,
                            Qt::NoButton, QEvent::MouseMove, Qt::NoModifier, ++timestamp);
    }

    int timestamp = 0;
    QWidget window;
    QWidget *view = nullptr;
    QWidget *other = nullptr;
    IdleTracker tracker;
    gesturewidget::DocumentManager documents;
    std::unique_ptr<gesturewidget::PointerFilter> filter;
};

void moveInView(benchmark::State &state)
{
    Desk desk(state.range(0));
    int x = 0;
    for (auto _ : state)
        desk.moveTo({x++ & 127, 50});
}

void moveElsewhere(benchmark::State &state)
{
    Desk desk(state.range(0));
    int x = 0;
    for (auto _ : state)
        desk.moveTo({250 + (x++ & 127), 50});
}

void otherEvent(benchmark::State &state)
{
    Desk desk(state.range(0));
    for (auto _ : state) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(desk.other, &event);
    }
}

// The filter's own work for one movement in a view, without Qt's.
void filterAlone(benchmark::State &state)
{
    Desk desk(false);
    QMouseEvent move(QEvent::MouseMove, QPointF(50, 50), QPointF(50, 50), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    for (auto _ : state) {
        benchmark::DoNotOptimize(desk.filter->eventFilter(desk.window.windowHandle(), &move));
        benchmark::DoNotOptimize(desk.filter->eventFilter(desk.view, &move));
    }
}

// What code of ours does first whenever Qt calls it, with the page that outlives a crash.
void markOwnCode(benchmark::State &state)
{
    const gesturewidget::CrashPage page(QStringLiteral("bench_pointerfilter"),
                                        QStringLiteral("/bench_pointerfilter.ini"));
    if (!page.mark()) {
        state.SkipWithError("there is no folder for the page");
        return;
    }
    gesturewidget::codemark::keepAt(page.mark());
    for (auto _ : state) {
        const gesturewidget::OwnCode ours;
        benchmark::ClobberMemory();
    }
    gesturewidget::codemark::keepAt(nullptr);
}

} // namespace

BENCHMARK(moveInView)->ArgName("filter")->Arg(0)->Arg(1);
BENCHMARK(moveElsewhere)->ArgName("filter")->Arg(0)->Arg(1);
BENCHMARK(otherEvent)->ArgName("filter")->Arg(0)->Arg(1);
BENCHMARK(filterAlone);
BENCHMARK(markOwnCode);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
