// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

// The entry points: one module object, the memory it lives in, and the version it declares.
// This program stands in for the platform's allocator and for operator new.

#include "module/EntryPoints.h"
#include "sdk/od/OdAlloc.h"
#include "sdk/od/OdRxModule.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/FailingNew.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace {

// True to make odrxAlloc fail. The blocks that it and odrxFree have handled follow.
bool memoryIsShort = false;
std::vector<void *> allocated;
std::vector<void *> freed;
std::size_t lastSize = 0;

} // namespace

void *odrxAlloc(std::size_t bytes)
{
    lastSize = bytes;
    if (memoryIsShort)
        return nullptr;
    void *memory = std::malloc(bytes);
    allocated.push_back(memory);
    return memory;
}

void odrxFree(void *memory)
{
    freed.push_back(memory);
    std::free(memory);
}

class EntryPointsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        allocated.clear();
        freed.clear();
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void versionIs3810();
    void creationFillsTheWrapper();
    void creationTouchesNoHost();
    void secondCallReturnsTheSameObject();
    void missingNameAndDataAreTaken();
    void shortMemoryThrowsAndIsTriedAgain();
    void constructorFailureFreesAndLetsThrough();
    void deleteModuleFreesAndForgets();
    void deleteModuleObjectForgetsAndNothingElse();
    void releaseNeverFrees();
};

void EntryPointsTest::versionIs3810()
{
    int major = -1;
    int minor = -1;
    int majorBuild = -1;
    int minorBuild = -1;
    odrxGetAPIVersion(major, minor, majorBuild, minorBuild);
    QCOMPARE(major, 3);
    QCOMPARE(minor, 8);
    QCOMPARE(majorBuild, 1);
    QCOMPARE(minorBuild, 0);
}

void EntryPointsTest::creationFillsTheWrapper()
{
    int handle = 0;
    std::wstring name = L"gestures";
    OdRxModule *module = odrxCreateModuleObject(&handle, name.c_str());
    name.assign(L"xxxxxxxx"); // the name was copied

    QVERIFY(module);
    QCOMPARE(module->numRefs(), 0L);
    QCOMPARE(module->sysData(), static_cast<void *>(&handle));
    QCOMPARE(module->moduleName().toQString(), QStringLiteral("gestures"));
    QCOMPARE(allocated.size(), std::size_t(1));
    module->deleteModule();
}

void EntryPointsTest::creationTouchesNoHost()
{
    tests::FakeHost host;
    host.documents.open();
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"gestures");
    QCOMPARE(host.log.calls, QStringList());
    module->deleteModule();
    QCOMPARE(host.log.calls, QStringList());
}

void EntryPointsTest::secondCallReturnsTheSameObject()
{
    int first = 0;
    int second = 0;
    OdRxModule *module = odrxCreateModuleObject(&first, L"first");

    QCOMPARE(odrxCreateModuleObject(&second, L"second"), module);
    QCOMPARE(odrxCreateModuleObject(nullptr, nullptr), module);

    QCOMPARE(module->sysData(), static_cast<void *>(&first));
    QCOMPARE(module->moduleName().toQString(), QStringLiteral("first"));
    QCOMPARE(allocated.size(), std::size_t(1));
    module->deleteModule();
}

void EntryPointsTest::missingNameAndDataAreTaken()
{
    OdRxModule *module = odrxCreateModuleObject(nullptr, nullptr);
    QVERIFY(module);
    QCOMPARE(module->sysData(), static_cast<void *>(nullptr));
    QVERIFY(module->moduleName().isEmpty());
    module->deleteModule();
}

void EntryPointsTest::shortMemoryThrowsAndIsTriedAgain()
{
    memoryIsShort = true;
    QVERIFY_EXCEPTION_THROWN(static_cast<void>(odrxCreateModuleObject(nullptr, L"gestures")),
                             std::bad_alloc);
    QVERIFY_EXCEPTION_THROWN(static_cast<void>(odrxCreateModuleObject(nullptr, L"gestures")),
                             std::bad_alloc);
    QVERIFY(freed.empty());

    memoryIsShort = false;
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"gestures");
    QVERIFY(module);
    QCOMPARE(module->moduleName().toQString(), QStringLiteral("gestures"));
    module->deleteModule();
}

void EntryPointsTest::constructorFailureFreesAndLetsThrough()
{
    bool thrown = false;
    tests::newsUntilFailure = 0; // the first allocation of the tracker's base
    try {
        static_cast<void>(odrxCreateModuleObject(nullptr, L"gestures"));
    } catch (const std::bad_alloc &) {
        thrown = true;
    }
    const bool failed = tests::newsUntilFailure < 0;
    tests::newsUntilFailure = -1;

    QVERIFY(failed);
    QVERIFY(thrown);
    QCOMPARE(allocated.size(), std::size_t(1));
    QCOMPARE(freed, allocated);

    // The pointer stayed null, so the next call creates the object.
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"gestures");
    QVERIFY(module);
    QCOMPARE(allocated.size(), std::size_t(2));
    module->deleteModule();
}

void EntryPointsTest::deleteModuleFreesAndForgets()
{
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"gestures");
    QVERIFY(freed.empty());

    module->deleteModule();

    // The whole object is one block. The block that was allocated is the one that was freed.
    QVERIFY(lastSize > 0);
    QCOMPARE(freed, allocated);
    OdRxModule *next = odrxCreateModuleObject(nullptr, L"next");
    QCOMPARE(allocated.size(), std::size_t(2));
    QCOMPARE(next->moduleName().toQString(), QStringLiteral("next"));
    next->deleteModule();
}

void EntryPointsTest::deleteModuleObjectForgetsAndNothingElse()
{
    tests::FakeHost host;
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"first");
    module->initApp();
    host.log.clear();

    deleteModuleObject();

    QVERIFY(freed.empty());
    QCOMPARE(host.log.calls, QStringList());
    QCOMPARE(module->moduleName().toQString(), QStringLiteral("first"));
    QCOMPARE(host.stack.commands.size(), std::size_t(1));

    OdRxModule *next = odrxCreateModuleObject(nullptr, L"second");
    QVERIFY(next != module);
    // The host itself deletes the forgotten object.
    delete module;
    QCOMPARE(freed.size(), std::size_t(1));
    next->deleteModule();
    QCOMPARE(freed.size(), std::size_t(2));
    // The second call has nothing to forget.
    deleteModuleObject();
    deleteModuleObject();
}

void EntryPointsTest::releaseNeverFrees()
{
    OdRxModule *module = odrxCreateModuleObject(nullptr, L"gestures");
    module->addRef();
    module->release();
    module->release();
    module->release();
    QCOMPARE(module->numRefs(), -2L);
    QVERIFY(freed.empty());
    QCOMPARE(odrxCreateModuleObject(nullptr, L"other"), module);
    module->deleteModule();
}

QTEST_MAIN(EntryPointsTest)
#include "tst_entrypoints.moc"
