// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/ModuleLoader.h"
#include "tests/host/session/modules/StubModule.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/StubModules.h"
#include "tests/support/FatalWarnings.h"

#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

using gesturewidget::ModuleLoader;

namespace {

StubModule::Calls &callsOf(const QString &name)
{
    using Function = StubModule::Calls *(*)();
    const auto function =
        reinterpret_cast<Function>(QLibrary::resolve(tests::stubModule(name), "stubCalls"));
    return *function();
}

} // namespace

class ModuleLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void goodModuleLivesThroughEverything();
    void refusedModulesSayWhy_data();
    void refusedModulesSayWhy();
    void filesThatAreNoLibrary_data();
    void filesThatAreNoLibrary();
    void moduleThatThrowsAtItsStart();
    void moduleThatThrowsAtItsEnd();
    void withoutAModuleNothingIsDone();
    void codeStaysAfterTheModule();
};

void ModuleLoaderTest::goodModuleLivesThroughEverything()
{
    ModuleLoader loader;
    QString error;
    QVERIFY2(loader.load(tests::stubModule(QStringLiteral("good")), &error), qPrintable(error));
    QVERIFY(loader.module());
    StubModule::Calls &calls = callsOf(QStringLiteral("good"));
    QCOMPARE(calls.creations, 1);
    QCOMPARE(calls.initializations, 0);
    QVERIFY(loader.initialize(&error));
    QCOMPARE(calls.initializations, 1);
    loader.uninitialize();
    QCOMPARE(calls.endings, 1);
    QCOMPARE(calls.deletions, 0);
    loader.destroy();
    QCOMPARE(calls.deletions, 1);
    QVERIFY(!loader.module());
    QVERIFY(error.isEmpty());
}

void ModuleLoaderTest::refusedModulesSayWhy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(expected);
    };
    row("empty", "is not a module: it lacks odrxGetAPIVersion");
    row("without_version", "is not a module: it lacks odrxGetAPIVersion");
    row("without_create", "is not a module: it lacks odrxCreateModuleObject");
    row("newer", "is for version 4.0.0.0 of the platform, this is 3.8.1.0");
    row("other_build", "is for version 3.8.1.1 of the platform, this is 3.8.1.0");
    row("version_throws", "failed to name its version: no version today");
    row("null", "could not be created: it gave no object");
    row("create_throws", "could not be created: std::bad_alloc");
    row("create_throws_anything", "could not be created: an unknown exception");
    row("needs_more", "thisFunctionIsNowhere");
    row("missing", "there is no module");
}

void ModuleLoaderTest::refusedModulesSayWhy()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    ModuleLoader loader;
    QString error;
    QVERIFY(!loader.load(tests::stubModule(name), &error));
    QVERIFY2(error.contains(expected), qPrintable(error));
    QVERIFY2(error.contains(name + QStringLiteral(".so")), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY(!loader.module());
    loader.uninitialize();
    loader.destroy();
}

void ModuleLoaderTest::filesThatAreNoLibrary_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("it is not a library");
    QTest::newRow("text") << QByteArray(200, 'x') << QStringLiteral("it is not a library");
    QFile file(tests::stubModule(QStringLiteral("good")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray good = file.readAll();
    // Given such a file, the system's loader would end the process.
    for (const int size : {64, 65, 1000, 5000})
        QTest::addRow("cut at %d", size) << good.left(size) << QStringLiteral("it is cut short");
    QTest::newRow("header cut") << good.left(63) << QStringLiteral("it is not a library");
    QByteArray otherMachine = good;
    otherMachine[18] = 0x28;
    QTest::newRow("other machine") << otherMachine << QStringLiteral("cannot be loaded");
}

void ModuleLoaderTest::filesThatAreNoLibrary()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("module.so"));
    tests::writeFile(path, content);
    ModuleLoader loader;
    QString error;
    QVERIFY(!loader.load(path, &error));
    QVERIFY2(error.contains(expected), qPrintable(error));
    QVERIFY2(error.contains(path), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY(!loader.load(folder.path(), &error));
    QVERIFY(!error.isEmpty());
}

void ModuleLoaderTest::moduleThatThrowsAtItsStart()
{
    ModuleLoader loader;
    QString error;
    QVERIFY(loader.load(tests::stubModule(QStringLiteral("init_throws")), &error));
    QVERIFY(!loader.initialize(&error));
    QVERIFY2(error.contains(QStringLiteral("could not start: no start today")), qPrintable(error));
    loader.uninitialize();
    loader.destroy();
    QCOMPARE(callsOf(QStringLiteral("init_throws")).deletions, 1);
}

void ModuleLoaderTest::moduleThatThrowsAtItsEnd()
{
    ModuleLoader loader;
    QString error;
    QVERIFY(loader.load(tests::stubModule(QStringLiteral("end_throws")), &error));
    QVERIFY(loader.initialize(&error));
    loader.uninitialize();
    loader.destroy();
    QCOMPARE(callsOf(QStringLiteral("end_throws")).deletions, 1);
}

void ModuleLoaderTest::withoutAModuleNothingIsDone()
{
    ModuleLoader loader;
    loader.uninitialize();
    loader.destroy();
    QVERIFY(!loader.module());
}

// A module's windows may be destroyed after the module object.
void ModuleLoaderTest::codeStaysAfterTheModule()
{
    QString error;
    {
        ModuleLoader loader;
        QVERIFY(loader.load(tests::stubModule(QStringLiteral("good")), &error));
        loader.destroy();
    }
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(maps.readAll().contains(tests::stubModule(QStringLiteral("good")).toLocal8Bit()));
}

QTEST_GUILESS_MAIN(ModuleLoaderTest)
#include "tst_moduleloader.moc"
