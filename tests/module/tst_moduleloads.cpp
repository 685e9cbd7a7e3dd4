// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A host may load and unload the module's file as often as it likes: nothing wears out.

#include "sdk/chx/CHxEditorReactor.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/FailingNew.h"
#include "tests/module/ModuleLibrary.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <memory>
#include <new>

#include <malloc.h>

namespace {

constexpr int kRounds = 1000;
// The first rounds fill what is kept for later ones.
constexpr int kFirst = 100;
// Bytes that a round may keep on average. A forgotten pointer has eight.
constexpr double kMostKept = 1;

} // namespace

class ModuleLoadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aThousandKeepNothing_data();
    void aThousandKeepNothing();

private:
    void load(int lives, bool failsFirst);
    void live(OdRxModule *module);
    [[nodiscard]] QString leftOver() const;

    std::unique_ptr<tests::FakeHost> m_host;
    tests::FakeMenuItem *m_tools = nullptr;
    tests::FakeDocument *m_document = nullptr;
    tests::OlderSettings m_settings;
};

void ModuleLoadsTest::init()
{
    QVERIFY2(qgetenv("GLIBC_TUNABLES").contains("tcache_count=0"), "CTest sets GLIBC_TUNABLES");
    tests::resetWarnings();
    m_host.reset(); // one at a time
    m_host = std::make_unique<tests::FakeHost>();
    m_tools = m_host->addTopLevelMenu(QStringLiteral("&Tools"), QStringLiteral("ID_MnTools"));
    m_document = m_host->documents.open();
}

// Plays the host for one module object: starts it, performs a gesture, stops it and deletes it.
void ModuleLoadsTest::live(OdRxModule *module)
{
    QWidget window;
    m_host->mainWindow = &window;
    module->initApp();
    auto *reactor = dynamic_cast<CHxEditorReactor *>(m_host->editor.reactors.front());
    QVERIFY(reactor);
    reactor->mainFrameCreated(&window);
    QCOMPARE(m_tools->subItems->GetCount(), 1);

    tests::drag(*m_document);
    QCOMPARE(window.findChildren<QDialog *>().size(), 1);

    reactor->mainFrameDestroyed(&window);
    module->uninitApp();
    m_host->editor.reactors.clear();
    module->deleteModule();
    m_host->mainWindow = nullptr;
    m_host->log.calls.clear();
}

// Loads the file, creates and deletes `lives` objects one after the other, and closes the file. With
// `failsFirst`, the first construction fails.
void ModuleLoadsTest::load(int lives, bool failsFirst)
{
    const tests::ModuleLibrary library;
    QVERIFY2(library.isOpen(), dlerror());
    if (failsFirst) {
        tests::newsUntilFailure = 0;
        QVERIFY_EXCEPTION_THROWN(static_cast<void>(library.create()), std::bad_alloc);
        QVERIFY(tests::newsUntilFailure < 0);
        tests::newsUntilFailure = -1;
    }
    for (int i = 0; i < lives; ++i) {
        OdRxModule *module = library.create();
        QCOMPARE(library.create(L"again"), module); // one at a time
        live(module);
    }
}

QString ModuleLoadsTest::leftOver() const
{
    return QStringLiteral("%1 trackers, %2 commands, %3 entries")
        .arg(m_document->input.trackers.size())
        .arg(m_host->stack.commands.size())
        .arg(m_tools->subItems->GetCount());
}

void ModuleLoadsTest::aThousandKeepNothing_data()
{
    QTest::addColumn<int>("lives");
    QTest::addColumn<bool>("failsFirst");
    QTest::newRow("one object") << 1 << false;
    QTest::newRow("a second object") << 2 << false;
    QTest::newRow("after a failed construction") << 1 << true;
}

void ModuleLoadsTest::aThousandKeepNothing()
{
    QFETCH(const int, lives);
    QFETCH(const bool, failsFirst);
    std::size_t before = 0;
    for (int round = 0; round < kRounds; ++round) {
        if (round == kFirst)
            before = mallinfo2().uordblks;
        load(lives, failsFirst);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("in round %1").arg(round)));
        QCOMPARE(leftOver(), QStringLiteral("0 trackers, 0 commands, 0 entries"));
    }
    // A sanitizer has memory of its own, which is not counted, and finds leaks at the end.
    const double kept = (double(mallinfo2().uordblks) - double(before)) / double(kRounds - kFirst);
    QVERIFY2(kept < kMostKept, qPrintable(QStringLiteral("%1 bytes in each round").arg(kept)));
}

QTEST_MAIN(ModuleLoadsTest)
#include "tst_moduleloads.moc"
