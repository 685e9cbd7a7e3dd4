// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Measures how long it takes to read the ring's data from the host. The baseline is one pass over
// the same actions that reads the same texts and the icon. Also measures the cost of many equal
// captions, and of reading the commands of earlier starts.

#include "bindings/MgDonutDataContainer.h"
#include "host/commands/CatalogueMemory.h"
#include "host/commands/CommandCatalogue.h"
#include "host/commands/ContrastIcon.h"
#include "host/commands/RememberedIcon.h"
#include "host/files/ProgramProfile.h"
#include "host/services/SystemServices.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenu.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace {

constexpr int kMenus = 8;

// The five texts and the icon that a module reads of a command.
struct Record
{
    QString identifier;
    QString command;
    QString caption;
    QString category;
    QString tip;
    QIcon icon;
};

// A main window with that many commands in its menus, each with a name, a tip and an icon.
class Window : public QMainWindow
{
public:
    explicit Window(int commands)
    {
        QPixmap image(24, 24);
        image.fill(Qt::darkBlue);
        const QIcon icon(image);
        for (int i = 0; i < kMenus; ++i) {
            QMenu *menu = menuBar()->addMenu(QStringLiteral("Menu %1").arg(i));
            for (int j = i; j < commands; j += kMenus) {
                QAction *action = menu->addAction(icon, QStringLiteral("Command %1").arg(j));
                action->setObjectName(QStringLiteral("command%1").arg(j));
                action->setStatusTip(QStringLiteral("What command %1 does").arg(j));
            }
        }
    }
};

// A program and its host.
struct Program
{
    explicit Program(int commands)
        : window(commands)
    {
    }

    QTemporaryDir folder;
    Window window;
    gesturewidget::SystemServices services{
        &window, {}, nullptr, folder.filePath(QStringLiteral("bench.ini"))};
};

std::map<std::int64_t, std::unique_ptr<Program>> &programs()
{
    static std::map<std::int64_t, std::unique_ptr<Program>> all;
    return all;
}

// Returns the same program for every benchmark with this number of commands. Where its parts lie in
// memory affects the time as much as the work does.
Program &programOf(const benchmark::State &state)
{
    std::unique_ptr<Program> &program = programs()[state.range(0)];
    if (!program) {
        program = std::make_unique<Program>(static_cast<int>(state.range(0)));
        QCoreApplication::processEvents(); // the new widgets are polished
    }
    SetHxSystemServices(&program->services);
    program->services.catalogue().update();
    return *program;
}

void plainPass(benchmark::State &state)
{
    const Program &program = programOf(state);
    for (auto _ : state) {
        std::vector<Record> records;
        const QList<QAction *> menus = program.window.menuBar()->actions();
        for (const QAction *entry : menus) {
            const QList<QAction *> actions = entry->menu()->actions();
            for (const QAction *action : actions)
                records.push_back({action->objectName(), action->objectName(), action->text(),
                                   entry->text(), action->statusTip(), action->icon()});
        }
        benchmark::DoNotOptimize(records.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

int readItems(CHxUIMenuItemCollection *items)
{
    int commands = 0;
    for (int i = 0; items && i < items->GetCount(); ++i) {
        const CHxUIMenuItem *item = items->GetItem(i);
        const CHxString text = item->GetText();
        benchmark::DoNotOptimize(&text);
        if (const CHxUICommandItem *command = item->GetCommandItem()) {
            const CHxString string = command->GetCommandString();
            benchmark::DoNotOptimize(&string);
            ++commands;
        }
        commands += readItems(item->GetSubItems());
    }
    return commands;
}

// The host's part of the reading: makes the module's calls and drops the results.
void hostPart(benchmark::State &state)
{
    Program &host = programOf(state);
    for (auto _ : state) {
        int seen = 0;
        const auto menu = host.services.GetUIManager()->NewMenuIterator();
        for (; !menu->Done(); menu->Next())
            seen += readItems(menu->Current()->GetItems());
        std::vector<Record> records;
        const auto group = host.services.GetUICommandManager()->NewGroupIterator();
        for (; !group->Done(); group->Next()) {
            const QString category = group->Current()->GetName().toQString();
            const auto command = group->Current()->NewCommandIterator();
            for (; !command->Done(); command->Next()) {
                const CHxUICommandItem *item = command->Current();
                records.push_back({item->GetIdentifier().toQString(),
                                   item->GetCommandString().toQString(), item->GetCaption().toQString(),
                                   category, item->GetTip().toQString(), item->GetSmallIcon()});
            }
        }
        if (seen < state.range(0) || static_cast<int>(records.size()) < state.range(0))
            state.SkipWithError("not all commands were read");
        benchmark::DoNotOptimize(records.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// The whole reading, as at each gesture: the module's container over the host. The module reads a
// program for the first time when it starts, which is no part of a gesture.
void ringData(benchmark::State &state)
{
    programOf(state);
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    QCoreApplication::processEvents(); // the settings, which the first reading completes, are written
    for (auto _ : state)
        benchmark::DoNotOptimize(container->getDonutHelperData());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// At the program's start: a menu whose entries all have the same caption and no object name.
void equalCaptions(benchmark::State &state)
{
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("List"));
    for (int i = 0; i < state.range(0); ++i)
        menu->addAction(QStringLiteral("Entry"));
    for (auto _ : state) {
        gesturewidget::CommandCatalogue catalogue(&window, {});
        catalogue.update();
        benchmark::DoNotOptimize(catalogue.items().size());
    }
    state.SetComplexityN(state.range(0));
}

// At the program's start: reads the commands of earlier starts, each with its icon.
void rememberedCommands(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("bench.commands.json"));
    QPixmap image(24, 24);
    image.fill(Qt::darkBlue);
    const QByteArray icon = gesturewidget::iconToPng(QIcon(image));
    QVector<gesturewidget::RememberedCommand> commands;
    for (int i = 0; i < state.range(0); ++i) {
        gesturewidget::RememberedCommand command;
        command.identifier = QStringLiteral("command%1").arg(i);
        command.caption = QStringLiteral("Command %1").arg(i);
        command.tip = QStringLiteral("Says in some words what command %1 does").arg(i);
        command.group = QStringLiteral("Menu %1").arg(i % kMenus);
        command.icon = icon;
        commands.append(command);
    }
    if (!gesturewidget::CatalogueFile(file).merge(commands))
        state.SkipWithError("the file cannot be written");
    QMainWindow window;
    for (auto _ : state) {
        gesturewidget::CommandCatalogue catalogue(&window, {});
        const gesturewidget::CatalogueMemory memory(catalogue, file);
        benchmark::DoNotOptimize(catalogue.items().size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Draws the image of one icon for the ring for the first time. The ratio is in quarters.
void firstHalo(benchmark::State &state)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QPen(Qt::darkBlue, 4));
    painter.drawEllipse(8, 8, 32, 32);
    painter.setPen(QPen(Qt::yellow, 4));
    painter.drawLine(4, 4, 44, 44);
    painter.end();
    const QIcon icon(pixmap);
    const qreal ratio = static_cast<qreal>(state.range(0)) / 4;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            gesturewidget::withHalo(gesturewidget::ringShape(icon, ratio), ratio).isNull());
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int count : {300, 1000, 10000, 100000})
        benchmark->Arg(count);
    benchmark->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(plainPass)->Apply(sizes);
BENCHMARK(hostPart)->Apply(sizes);
BENCHMARK(ringData)->Apply(sizes);
BENCHMARK(rememberedCommands)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(firstHalo)->ArgName("quarters")->Arg(4)->Arg(8)->Arg(12)->Unit(benchmark::kMicrosecond);
BENCHMARK(equalCaptions)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SetHxSystemServices(nullptr);
    programs().clear(); // widgets cannot outlive the application
    return 0;
}
