// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures the cost of an update for the host while idle. The baseline is the virtual call alone.

#include "bindings/MgDonutDataContainer.h"
#include "gesture/MgMouseGestureTracker.h"
#include "sdk/chx/CHxHitTestInfo.h"
#include "tests/fakehost/FakeHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

// Answers no to everything, as when the pointer just moves.
class QuietHitTest : public CHxHitTestInfo
{
public:
    [[nodiscard]] QPoint GetPosition() const override { return {}; }
    [[nodiscard]] CHxDocument *GetDocument() const override { return nullptr; }
    [[nodiscard]] bool IsModalWindowOpen() const override { return false; }
    [[nodiscard]] bool IsPopupOpen() const override { return false; }
    [[nodiscard]] bool IsMouseGrabbed() const override { return false; }
    [[nodiscard]] bool IsOtherButtonDown() const override { return false; }
    [[nodiscard]] bool IsModifierMismatch() const override { return false; }
    [[nodiscard]] bool IsOverControl() const override { return false; }
    [[nodiscard]] bool IsViewBlocked() const override { return false; }
    [[nodiscard]] bool IsPress() const override { return false; }
    [[nodiscard]] bool IsMotion() const override { return true; }
    [[nodiscard]] bool IsButtonHeld() const override { return false; }
    void NotifyDrag() override { }
    void NotifyEnd() override { }
};

class EmptyTracker : public CHxTracker
{
public:
    void Update(CHxTrackerContext * /*context*/, CHxHitTestInfo * /*hit*/) override { }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return false; }
    bool DoAction(const CHxHitTestInfo *) override { return false; }
};

void update(benchmark::State &state, CHxTracker &tracker)
{
    QuietHitTest hit;
    CHxTracker *called = &tracker;
    for (auto _ : state) {
        benchmark::DoNotOptimize(called); // keeps the call virtual
        called->Update(nullptr, &hit);
    }
}

void switchGestures(tests::FakeHost &host, bool on)
{
    host.store.values.insert(QStringLiteral("EnableMouseGesture"), QString::number(on ? 1 : 0));
    MgDonutDataContainer::instance()->init();
}

void emptyTracker(benchmark::State &state)
{
    EmptyTracker tracker;
    update(state, tracker);
}

void gesturesOff(benchmark::State &state)
{
    tests::FakeHost host;
    switchGestures(host, false);
    MgMouseGestureTracker tracker;
    update(state, tracker);
}

void gesturesIdle(benchmark::State &state)
{
    tests::FakeHost host;
    switchGestures(host, true);
    MgMouseGestureTracker tracker;
    update(state, tracker);
}

} // namespace

BENCHMARK(emptyTracker);
BENCHMARK(gesturesOff);
BENCHMARK(gesturesIdle);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
