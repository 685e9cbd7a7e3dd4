// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Reference counting: which objects count, and what deletes them.

#include "sdk/chx/hx_OdRxModule.h"
#include "sdk/od/OdAlloc.h"
#include "sdk/od/OdEdCommand.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "sdk/od/OdRxUnixModule.h"
#include "sdk/od/OdSmartPtr.h"
#include "sdk/od/OdStaticRxObject.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {

int alive = 0;

class Counted : public OdRxObject
{
public:
    Counted() { ++alive; }
    ~Counted() override { --alive; }
};

using Object = OdRxObjectImpl<Counted>;

class TinyModule : public hx_OdRxModule
{
public:
    TinyModule() { ++alive; }
    ~TinyModule() override { --alive; }

    void initApp() override { ++initialised; }
    void uninitApp() override { }

    int initialised = 0;
};

using WrappedModule = OdRxUnixModule<TinyModule, TinyModule>;

WrappedModule *createModule(void *sysData, const wchar_t *name)
{
    auto *module = new (odrxAlloc(sizeof(WrappedModule))) WrappedModule(sysData, name);
    WrappedModule::instance() = module;
    return module;
}

} // namespace

class TestObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        alive = 0;
    }
    void cleanup()
    {
        QCOMPARE(alive, 0);
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void attachTakesTheFirstReference()
    {
        OdSmartPtr<Object> pointer(new Object, kOdRxAttach);
        QCOMPARE(alive, 1);
        QCOMPARE(pointer->numRefs(), 1L);
    }

    void sharingAddsAReference()
    {
        auto *object = new Object;
        {
            const OdSmartPtr<Object> pointer(object);
            QCOMPARE(object->numRefs(), 2L);
        }
        QCOMPARE(object->numRefs(), 1L);
        object->release();
    }

    void copiesCount()
    {
        const OdSmartPtr<Object> first(new Object, kOdRxAttach);
        {
            const OdSmartPtr<Object> second = first; // NOLINT: the copy is what is tested
            QCOMPARE(first->numRefs(), 2L);
            QCOMPARE(second.get(), first.get());
        }
        QCOMPARE(first->numRefs(), 1L);
    }

    void movesDoNot()
    {
        OdSmartPtr<Object> first(new Object, kOdRxAttach);
        Object *object = first.get();
        const OdSmartPtr<Object> second = std::move(first);
        QCOMPARE(object->numRefs(), 1L);
        QCOMPARE(second.get(), object);
        QVERIFY(!first); // NOLINT: a moved-from pointer is empty, that is promised
    }

    void assignmentReleases()
    {
        OdSmartPtr<Object> pointer(new Object, kOdRxAttach);
        const OdSmartPtr<Object> other(new Object, kOdRxAttach);
        QCOMPARE(alive, 2);
        pointer = other;
        QCOMPARE(alive, 1);
        QCOMPARE(other->numRefs(), 2L);
        const OdSmartPtr<Object> &same = pointer;
        pointer = same;
        QCOMPARE(other->numRefs(), 2L);
        pointer = {};
        QVERIFY(!pointer);
        QCOMPARE(other->numRefs(), 1L);
    }

    void emptyPointers()
    {
        const OdSmartPtr<Object> none;
        const OdSmartPtr<Object> null(nullptr);
        const OdSmartPtr<Object> copy = none; // NOLINT: the copy is what is tested
        QVERIFY(!none && !null && !copy);
        QCOMPARE(none.get(), nullptr);
    }

    void aStaticObjectIsNeverFreed()
    {
        {
            OdStaticRxObject<Counted> object;
            for (int i = 0; i < 3; ++i)
                object.release();
            QCOMPARE(object.numRefs(), 1L);
            object.addRef();
            QCOMPARE(object.numRefs(), 1L);
            {
                const OdSmartPtr<Counted> pointer(&object);
            }
            QCOMPARE(alive, 1);
        }
        QCOMPARE(alive, 0);
    }

    void memory()
    {
        void *memory = odrxAlloc(1000);
        QVERIFY(memory);
        QCOMPARE(reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t),
                 std::uintptr_t(0));
        std::memset(memory, 0xff, 1000);
        odrxFree(memory);
        odrxFree(nullptr);
    }

    void moduleCountsButNeverFrees()
    {
        WrappedModule *module = createModule(nullptr, L"tiny");
        QCOMPARE(module->numRefs(), 0L);
        module->addRef();
        module->addRef();
        QCOMPARE(module->numRefs(), 2L);
        for (int i = 0; i < 3; ++i)
            module->release();
        QCOMPARE(module->numRefs(), -1L);
        QCOMPARE(alive, 1);
        module->initApp();
        QCOMPARE(module->initialised, 1);
        module->deleteModule();
    }

    void moduleKeepsWhatItWasGiven()
    {
        int data = 0;
        OdRxModule *module = createModule(&data, L"tiny");
        QCOMPARE(module->sysData(), static_cast<void *>(&data));
        QCOMPARE(module->moduleName().toQString(), QStringLiteral("tiny"));
        module->deleteModule();

        OdRxModule *nameless = createModule(nullptr, nullptr);
        QCOMPARE(nameless->sysData(), nullptr);
        QVERIFY(nameless->moduleName().isEmpty());
        nameless->deleteModule();
    }

    void deletingTheModuleClearsItsPointer()
    {
        QCOMPARE(WrappedModule::instance(), nullptr);
        OdRxModule *module = createModule(nullptr, L"tiny");
        QCOMPARE(WrappedModule::instance(), module);
        module->deleteModule();
        QCOMPARE(WrappedModule::instance(), nullptr);
        QCOMPARE(alive, 0);
    }

    void platformVersion()
    {
        QCOMPARE(kOdApiVersion[0], 3);
        QCOMPARE(kOdApiVersion[1], 8);
        QCOMPARE(kOdApiVersion[2], 1);
        QCOMPARE(kOdApiVersion[3], 0);
    }
};

QTEST_GUILESS_MAIN(TestObjects)
#include "tst_objects.moc"
