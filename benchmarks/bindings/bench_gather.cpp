// What it takes to gather the ring's data when a gesture begins, beside one pass over the same
// commands.

#include "bindings/MgDonutDataContainer.h"
#include "tests/fakehost/FakeHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>
#include <QStandardPaths>

#include <memory>
#include <string>
#include <vector>

namespace {

// A host with so many commands, all of them in its menus and each with an icon of its own.
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
        // Menu by menu, as programs do.
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
        // As a user has them: spread over the commands.
        for (int direction = 1; direction <= 8; ++direction) {
            const QString id = items[count / 9 * direction]->GetIdentifier().toQString();
            host.store.values.insert(QString::number(80 + direction), id);
            if (direction <= 4)
                host.store.values.insert(QString::number(40 + direction), id);
        }
        host.store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("8"));
        host.store.values.insert(QStringLiteral("EnableMouseGesture"), QStringLiteral("1"));
        host.log.isOn = false;
    }

    tests::FakeHost host;
    std::vector<const CHxUICommandItem *> items;
    std::vector<const CHxUIMenuItem *> entries;
};

void gather(benchmark::State &state)
{
    const Program program(static_cast<int>(state.range(0)));
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    for (auto _ : state)
        benchmark::DoNotOptimize(container->getDonutHelperData());
    if (container->getCommandNameFromIndex(7).isEmpty())
        state.SkipWithError("the ring is empty");
}

// The reading after the menus have changed, by one entry at the end.
void gatherAfterAChange(benchmark::State &state)
{
    Program program(static_cast<int>(state.range(0)));
    tests::FakeCommandItem *changing =
        program.host.commands.addCommand(QStringLiteral("ID_LAST"), QStringLiteral("last 0"), {});
    program.host.ui.addItem(program.host.addTopLevelMenu(QStringLiteral("Last"))->subItems.get(),
                            QStringLiteral("last"), false, {}, changing);
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    int number = 0;
    for (auto _ : state) {
        changing->command = QStringLiteral("last ") + QString::number(++number);
        benchmark::DoNotOptimize(container->getDonutHelperData());
    }
}

// The baseline: the five texts, of which the category is the text of a menu entry, and the icon
// of every command, read once.
void onePass(benchmark::State &state)
{
    const Program program(static_cast<int>(state.range(0)));
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
