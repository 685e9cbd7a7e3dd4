// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (what the benchmark library asks for)

// Compares the configuration dialog with the plainest Qt classes that show the same rows. Each pair
// of benchmarks does the same work with both.

#include "bindings/MgDonutDataContainer.h"
#include "dialog/BindingListDocument.h"
#include "dialog/BindingListPrinter.h"
#include "dialog/MgCommandDSSortFilterProxyModel.h"
#include "dialog/MgDonutDialogManager.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/fakehost/FakeHost.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QPrinter>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QWindow>

#include <memory>

namespace {

constexpr int kCommandColumn = 1;
constexpr int kPrintedIcon = 20; // pixels

// The host that the process's one binding container reads.
tests::FakeHost *offerCommands(int count)
{
    static std::unique_ptr<tests::FakeHost> host;
    static int offered = -1;
    if (offered != count) {
        host.reset();
        host = std::make_unique<tests::FakeHost>();
        tests::addDraftingCommands(*host, count, true);
        MgDonutDataContainer::instance()->init();
        offered = count;
    }
    return host.get();
}

std::unique_ptr<QStandardItemModel> plainModel()
{
    const std::vector<MgCommandDS> commands = MgDonutDataContainer::instance()->getCommandsDS();
    auto model = std::make_unique<QStandardItemModel>(static_cast<int>(commands.size()), 3);
    for (int row = 0; row < model->rowCount(); ++row) {
        model->setItem(row, 0, new QStandardItem(commands[row].category));
        model->setItem(row, 1, new QStandardItem(commands[row].icon, commands[row].displayName));
        model->setItem(row, 2, new QStandardItem);
    }
    return model;
}

// Returns when the window is on the screen: Qt paints it as soon as the X server says so.
void showAndPaint(QWidget &window)
{
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents();
    static_cast<void>(QCursor::pos()); // a round trip: the server has drawn all of it
}

// The texts in the filter while a person types "Polyline" and deletes it again.
const QString &typed(int step)
{
    static const QStringList texts{QStringLiteral("p"),
                                   QStringLiteral("po"),
                                   QStringLiteral("pol"),
                                   QStringLiteral("pol"),
                                   QStringLiteral("po"),
                                   QStringLiteral("p"),
                                   QString()};
    return texts[step % texts.size()];
}

void openDialog(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        MgDonutDialogManager dialog(nullptr, {});
        showAndPaint(dialog);
    }
}

void openPlainView(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const auto model = plainModel();
        QTableView view;
        view.resize(414, 576);
        view.setModel(model.get());
        showAndPaint(view);
    }
}

// Not the baseline, but for comparison: a view that sorts as the dialog does when it opens.
void openPlainSortedView(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const auto model = plainModel();
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(model.get());
        QTableView view;
        view.resize(414, 576);
        view.setSortingEnabled(true);
        view.setModel(&proxy);
        view.sortByColumn(0, Qt::AscendingOrder);
        showAndPaint(view);
    }
}

void typeInDialog(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    MgDonutDialogManager dialog(nullptr, {});
    showAndPaint(dialog);
    auto *search = dialog.findChild<QLineEdit *>(QStringLiteral("search_lineEdit"));
    int step = 0;
    for (auto _ : state) {
        search->setText(typed(step++));
        QCoreApplication::processEvents();
    }
}

void typeInPlainView(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    const auto model = plainModel();
    QSortFilterProxyModel proxy;
    proxy.setFilterKeyColumn(kCommandColumn);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(model.get());
    QTableView view;
    view.resize(414, 576);
    view.setSortingEnabled(true);
    view.setModel(&proxy);
    view.sortByColumn(0, Qt::AscendingOrder);
    showAndPaint(view);
    int step = 0;
    for (auto _ : state) {
        proxy.setFilterFixedString(typed(step++));
        QCoreApplication::processEvents();
    }
}

// The proxies alone, without a view that reads them.
void filterDialogProxy(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    MgDonutDialogManager dialog(nullptr, {});
    auto *table = dialog.findChild<QTableView *>(QStringLiteral("command_tableView"));
    auto *proxy = qobject_cast<MgCommandDSSortFilterProxyModel *>(table->model());
    auto *search = dialog.findChild<QLineEdit *>(QStringLiteral("search_lineEdit"));
    search->blockSignals(true);
    table->setModel(nullptr);
    // The dialog's proxy is the table's model. This calls it directly.
    int step = 0;
    for (auto _ : state) {
        search->setText(typed(step++));
        proxy->applyFilter();
        benchmark::DoNotOptimize(proxy->rowCount());
    }
}

void filterPlainProxy(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    const auto model = plainModel();
    QSortFilterProxyModel proxy;
    proxy.setFilterKeyColumn(kCommandColumn);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(model.get());
    proxy.sort(0);
    int step = 0;
    for (auto _ : state) {
        proxy.setFilterFixedString(typed(step++));
        benchmark::DoNotOptimize(proxy.rowCount());
    }
}

// A printer that makes a PDF of A4 pages.
std::unique_ptr<QPrinter> pdfPrinter(const QTemporaryDir &folder)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(folder.filePath(QStringLiteral("list.pdf")));
    return printer;
}

void printList(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    MgDonutDialogManager dialog(nullptr, {});
    auto *table = dialog.findChild<QTableView *>(QStringLiteral("command_tableView"));
    const QTemporaryDir folder;
    for (auto _ : state) {
        const auto printer = pdfPrinter(folder);
        const std::unique_ptr<QTextDocument> document(createBindingListDocument(table->model()));
        printBindingList(*document, *printer);
    }
}

void printPlainTable(benchmark::State &state)
{
    offerCommands(static_cast<int>(state.range(0)));
    const auto model = plainModel();
    const QTemporaryDir folder;
    for (auto _ : state) {
        const auto printer = pdfPrinter(folder);
        QTextDocument document;
        QTextTable *table = QTextCursor(&document).insertTable(model->rowCount(), model->columnCount());
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex index = model->index(row, column);
                QTextCursor cursor = table->cellAt(row, column).firstCursorPosition();
                const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
                if (!icon.isNull())
                    cursor.insertImage(icon.pixmap(kPrintedIcon).toImage());
                cursor.insertText(index.data().toString());
            }
        }
        document.print(printer.get());
    }
}

// The usual number of commands, and far more.
void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(250)->Arg(10000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(openDialog)->Apply(sizes);
BENCHMARK(openPlainView)->Apply(sizes);
BENCHMARK(openPlainSortedView)->Apply(sizes);
BENCHMARK(typeInDialog)->Apply(sizes);
BENCHMARK(typeInPlainView)->Apply(sizes);
BENCHMARK(filterDialogProxy)->Apply(sizes);
BENCHMARK(filterPlainProxy)->Apply(sizes);
BENCHMARK(printList)->Arg(250)->Unit(benchmark::kMillisecond);
BENCHMARK(printPlainTable)->Arg(250)->Unit(benchmark::kMillisecond);

} // namespace

// For every window, the offscreen platform warns that it does not support size hints.
void beQuiet(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/) { }

int main(int argc, char **argv)
{
    qInstallMessageHandler(beQuiet);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
