// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The module as hosts use it: load the file, look up its entry points, use it, close it.

#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/QtBridge.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/ModuleLibrary.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QFileInfo>
#include <QImage>
#include <QPointer>
#include <QProcess>
#include <QtTest>

#include <memory>

#include <link.h>

namespace {

using tests::FakeHost;
using tests::ModuleLibrary;

const QString kFile = QStringLiteral(MODULE_FILE);

// Counts the memory that the module's file takes in the process, all its segments together.
int addSegments(dl_phdr_info *info, std::size_t, void *sum)
{
    if (QString::fromLocal8Bit(info->dlpi_name) != kFile)
        return 0;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        if (info->dlpi_phdr[i].p_type == PT_LOAD)
            *static_cast<std::size_t *>(sum) += info->dlpi_phdr[i].p_memsz;
    }
    return 1;
}

} // namespace

class ModuleFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void fileIsNamedAfterItsQt();
    void exportsExactlyTheEntryPoints();
    void declaresItsVersion();
    void livesAWholeLife();
    void ringOutlivesTheClosedFile();
    void secondLoadStartsAnew();
    void carriesItsImages();
    void sizeIsModest();

private:
    tests::OlderSettings m_settings;
};

void ModuleFileTest::fileIsNamedAfterItsQt()
{
    QCOMPARE(QFileInfo(kFile).fileName(),
             QStringLiteral("gesturewidget-module-qt%1.so").arg(qtbridge::kQtMajor));
    QVERIFY(QFileInfo::exists(kFile));
}

void ModuleFileTest::exportsExactlyTheEntryPoints()
{
    QProcess nm;
    nm.start(QStringLiteral(NM_PROGRAM), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                          QStringLiteral("--format=posix"), kFile});
    QVERIFY(nm.waitForFinished());
    QCOMPARE(nm.exitCode(), 0);

    QStringList symbols;
    const QStringList lines =
        QString::fromLocal8Bit(nm.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.isEmpty())
            symbols << line.section(QLatin1Char(' '), 0, 1);
    }
    symbols.sort();
    // T marks functions that are neither weak nor unique.
    const QStringList expected{QStringLiteral("deleteModuleObject T"),
                               QStringLiteral("odrxCreateModuleObject T"),
                               QStringLiteral("odrxGetAPIVersion T")};
    QCOMPARE(symbols, expected);
}

void ModuleFileTest::declaresItsVersion()
{
    ModuleLibrary library;
    QVERIFY2(library.isOpen(), dlerror());
    const auto version = library.resolve<OdGetApiVersion>("odrxGetAPIVersion");
    QVERIFY(version);

    int numbers[4] = {-1, -1, -1, -1};
    version(numbers[0], numbers[1], numbers[2], numbers[3]);

    QCOMPARE(numbers[0], 3);
    QCOMPARE(numbers[1], 8);
    QCOMPARE(numbers[2], 1);
    QCOMPARE(numbers[3], 0);
    QVERIFY(library.resolve<OdDeleteModuleObject>("deleteModuleObject"));
}

void ModuleFileTest::livesAWholeLife()
{
    FakeHost host;
    tests::FakeMenuItem *tools =
        host.addTopLevelMenu(QStringLiteral("&Tools"), QStringLiteral("ID_MnTools"));
    tests::FakeDocument *document = host.documents.open();
    QWidget window;
    host.mainWindow = &window;
    ModuleLibrary library;
    QVERIFY2(library.isOpen(), dlerror());

    OdRxModule *module = library.create();
    QCOMPARE(library.create(L"again"), module);
    QCOMPARE(host.log.calls, QStringList());
    module->initApp();
    QVERIFY(host.stack.lookupCommand(OdString(QStringLiteral("gesture"))));
    // The host reaches it through the interfaces of the shared sdk library.
    auto *reactor = dynamic_cast<CHxEditorReactor *>(host.editor.reactors.front());
    QVERIFY(reactor);
    reactor->mainFrameCreated(&window);
    QCOMPARE(tools->subItems->GetCount(), 1);
    drag(*document);
    reactor->mainFrameDestroyed(&window);
    QVERIFY(!host.stack.lookupCommand(OdString(QStringLiteral("gesture"))));
    QCOMPARE(tools->subItems->GetCount(), 0);
    QVERIFY(document->input.trackers.empty());
    module->uninitApp();
    host.editor.reactors.clear();
    module->deleteModule();
}

void ModuleFileTest::ringOutlivesTheClosedFile()
{
    FakeHost host;
    tests::FakeDocument *document = host.documents.open();
    auto window = std::make_unique<QWidget>();
    host.mainWindow = window.get();
    {
        ModuleLibrary library;
        QVERIFY2(library.isOpen(), dlerror());
        OdRxModule *module = library.create();
        module->initApp();
        drag(*document);
        host.editor.reactors.clear();
        document->input.trackers.clear();
        host.stack.commands.clear();
        module->deleteModule();
    }
    const QList<QDialog *> rings = window->findChildren<QDialog *>();
    QCOMPARE(rings.size(), 1);
    // The ring's code is still loaded, so the window can destroy the ring.
    const QPointer<QDialog> ring = rings.front();
    window.reset();
    QVERIFY(ring.isNull());
}

void ModuleFileTest::secondLoadStartsAnew()
{
    FakeHost host;
    for (int round = 0; round < 3; ++round) {
        ModuleLibrary library;
        QVERIFY2(library.isOpen(), dlerror());
        OdRxModule *module = library.create();
        QCOMPARE(module->numRefs(), 0L);
        module->initApp();
        module->deleteModule();
        host.stack.commands.clear();
        host.documents.reactors.clear();
        host.editor.reactors.clear();
    }
}

void ModuleFileTest::carriesItsImages()
{
    ModuleLibrary library;
    QVERIFY2(library.isOpen(), dlerror());
    QCOMPARE(QImage(QStringLiteral(":/gesturewidgetimages/Resources/gesture_widget.png")).size(),
             QSize(250, 250));
}

void ModuleFileTest::sizeIsModest()
{
    ModuleLibrary library;
    QVERIFY2(library.isOpen(), dlerror());
    std::size_t bytes = 0;
    dl_iterate_phdr(addSegments, &bytes);
    qInfo("the module takes %zu KiB of memory", bytes / 1024);
    QVERIFY(bytes > std::size_t{100} * 1024); // the file was found
    QVERIFY2(bytes < MODULE_SIZE_LIMIT, qPrintable(QString::number(bytes)));
}

QTEST_MAIN(ModuleFileTest)
#include "tst_modulefile.moc"
