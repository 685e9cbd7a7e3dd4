// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures how long it takes to gather the ring's data when a gesture begins. The baseline is one
// pass over the same commands.

#include "bindings/MgDonutDataContainer.h"
#include "tests/fakehost/FakeHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QStandardPaths>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace {

// A host with `count` commands. All of them are in its menus, and each has its own icon.
class Program
{
public:
    explicit Program(int count)
    {
        QPixmap pixmap(16, 16);
        constexpr int kMenus = 10;
        tests::FakeMenuItem *menus[kMenus];
        for (int menu = 0; menu < kMenus; ++menu)
            menus[menu] = host.addTopLevelMenu(QStringLiteral("&Menu %1").arg(menu));
        // Programs build one menu after the other.
        for (int number = 0; number < count; ++number) {
            const QString name = QString::number(number);
            tests::FakeCommandItem *item = host.commands.addCommand(
                QLatin1String("ID_COMMAND_") + name, QLatin1String("command ") + name,
                QLatin1String("Command ") + name, QLatin1String("What it does, number ") + name);
            item->smallIcon = QIcon(pixmap);
            tests::FakeMenuItem *entry = host.ui.addItem(menus[number * kMenus / count]->subItems.get(),
                                                         item->caption, false, {}, item);
            items.push_back(item);
            entries.push_back(entry);
        }
        // A user's bindings are spread over the commands.
        for (int direction = 1; direction <= 8; ++direction) {
            const QString id = items[static_cast<std::size_t>(count / 9) * direction]->identifier;
            host.store.values.insert(QString::number(80 + direction), id);
            if (direction <= 4)
                host.store.values.insert(QString::number(40 + direction), id);
        }
        host.store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("8"));
        host.store.values.insert(QStringLiteral("EnableMouseGesture"), QStringLiteral("1"));
        host.log.isOn = false;
    }

    tests::FakeHost host;
    std::vector<tests::FakeCommandItem *> items;
    std::vector<const CHxUIMenuItem *> entries;
};

// Returns the same program for every benchmark with this number of commands. Where its parts lie in
// memory affects the time as much as the work does.
Program &programOf(const benchmark::State &state)
{
    static std::map<std::int64_t, std::unique_ptr<Program>> programs;
    std::unique_ptr<Program> &program = programs[state.range(0)];
    if (!program)
        program = std::make_unique<Program>(static_cast<int>(state.range(0)));
    program->host.setPresent(true);
    return *program;
}

void gather(benchmark::State &state)
{
    programOf(state);
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    for (auto _ : state)
        benchmark::DoNotOptimize(container->getDonutHelperData());
    if (container->getCommandNameFromIndex(7).isEmpty())
        state.SkipWithError("the ring is empty");
}

// Gathers after the last command of the menus has changed.
void gatherAfterAChange(benchmark::State &state)
{
    Program &program = programOf(state);
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    const QString command = program.items.back()->command;
    int number = 0;
    for (auto _ : state) {
        program.items.back()->command = command + QString::number(++number);
        benchmark::DoNotOptimize(container->getDonutHelperData());
    }
    program.items.back()->command = command;
}

// The baseline: reads the icon and the five texts of every command once. The category is the text
// of a menu entry.
void onePass(benchmark::State &state)
{
    const Program &program = programOf(state);
    for (auto _ : state) {
        for (std::size_t place = 0; place < program.items.size(); ++place) {
            const CHxUICommandItem *item = program.items[place];
            benchmark::DoNotOptimize(item->GetIdentifier());
            benchmark::DoNotOptimize(item->GetCommandString());
            benchmark::DoNotOptimize(item->GetCaption());
            benchmark::DoNotOptimize(item->GetTip());
            benchmark::DoNotOptimize(program.entries[place]->GetText());
            benchmark::DoNotOptimize(item->GetSmallIcon());
        }
    }
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int count : {300, 1000, 10000, 100000})
        benchmark->Arg(count);
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK(onePass)->Apply(sizes);
BENCHMARK(gather)->Apply(sizes);
BENCHMARK(gatherAfterAChange)->Apply(sizes);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
