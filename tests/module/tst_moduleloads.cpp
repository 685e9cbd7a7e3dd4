// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

// A host may load and unload the module's file as often as it likes: nothing wears out.
// This program stands in for operator new.

#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/chx/CHxTracker.h"
#include "sdk/od/OdRxModule.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHitTest.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <cstdlib>
#include <memory>
#include <new>

#include <dlfcn.h>
#include <malloc.h>

namespace {

constexpr int kRounds = 1000;
// The first rounds fill what is kept for later ones.
constexpr int kFirst = 100;
// Bytes that a round may keep on average. A forgotten pointer has eight.
constexpr double kMostKept = 1;

// Every operator new counts this down and fails at 0. Nothing fails while it is negative.
int newsUntilFailure = -1;

} // namespace

void *operator new(std::size_t bytes)
{
    if (newsUntilFailure >= 0 && newsUntilFailure-- == 0)
        throw std::bad_alloc();
    if (void *memory = std::malloc(bytes))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

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

// What a host does from a module object's creation to its deletion, with a gesture in between.
void ModuleLoadsTest::live(OdRxModule *module)
{
    QWidget window;
    m_host->mainWindow = &window;
    module->initApp();
    auto *reactor = dynamic_cast<CHxEditorReactor *>(m_host->editor.reactors.front());
    QVERIFY(reactor);
    reactor->mainFrameCreated(&window);
    QCOMPARE(m_tools->subItems->GetCount(), 1);

    tests::FakeHitTest hit;
    hit.document = m_document;
    hit.press = true;
    hit.buttonHeld = true;
    for (CHxTracker *tracker : m_document->input.trackers)
        tracker->Update(nullptr, &hit);
    hit.press = false;
    hit.motion = true;
    hit.position = QPoint(30, 0);
    for (CHxTracker *tracker : m_document->input.trackers)
        tracker->Update(nullptr, &hit);
    QCOMPARE(window.findChildren<QDialog *>().size(), 1);

    reactor->mainFrameDestroyed(&window);
    module->uninitApp();
    m_host->editor.reactors.clear();
    module->deleteModule();
    m_host->mainWindow = nullptr;
    m_host->log.calls.clear();
}

// Loads the file, lets that many objects live one after the other, and closes it.
void ModuleLoadsTest::load(int lives, bool failsFirst)
{
    void *library = dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(library, dlerror());
    const auto create = reinterpret_cast<OdCreateModuleObject>(dlsym(library, "odrxCreateModuleObject"));
    QVERIFY(create);
    if (failsFirst) {
        newsUntilFailure = 0;
        QVERIFY_EXCEPTION_THROWN(static_cast<void>(create(nullptr, L"gestures")), std::bad_alloc);
        QVERIFY(newsUntilFailure < 0);
        newsUntilFailure = -1;
    }
    for (int i = 0; i < lives; ++i) {
        OdRxModule *module = create(nullptr, L"gestures");
        QCOMPARE(create(nullptr, L"again"), module); // one at a time
        live(module);
    }
    dlclose(library);
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
