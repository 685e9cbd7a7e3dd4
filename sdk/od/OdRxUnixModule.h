// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdAlloc.h"
#include "OdRxModule.h"

#include <atomic>
#include <cstdint>

// Turns a module class into the object that odrxCreateModuleObject creates. It adds a reference
// count that never deletes, the data given at creation, and deleteModule().
//
// `Base` is the module class. `Module` selects the process-wide pointer that deleteModule()
// clears. Get memory from odrxAlloc() and create the object in it by placement new.
// deleteModule() frees that memory.
template <class Base, class Module> class OdRxUnixModule : public Base
{
public:
    OdRxUnixModule(void *sysData, const wchar_t *moduleName)
        : m_sysData(sysData)
        , m_moduleName(moduleName)
    {
    }

    // The only module object of this library. Null until it is created.
    static OdRxModule *&instance()
    {
        static OdRxModule *module = nullptr;
        return module;
    }

    static void operator delete(void *memory) { odrxFree(memory); }
    static void *operator new(std::size_t, void *memory) noexcept { return memory; }
    static void operator delete(void *, void *) noexcept { }

    void addRef() override { m_references.fetch_add(1); }
    void release() override { m_references.fetch_sub(1); } // never deletes, even at 0 or below
    [[nodiscard]] long numRefs() const override { return m_references.load(); }

    [[nodiscard]] void *sysData() override { return m_sysData; }
    [[nodiscard]] OdString moduleName() const override { return m_moduleName; }
    void deleteModule() override
    {
        instance() = nullptr;
        delete this;
    }

private:
    std::atomic<std::int32_t> m_references{0};
    void *m_sysData;
    OdString m_moduleName;
};
