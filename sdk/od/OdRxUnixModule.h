#pragma once

#include "sdk/od/OdAlloc.h"
#include "sdk/od/OdRxModule.h"

#include <atomic>
#include <cstdint>

// Completes a module class to the object that odrxCreateModuleObject creates: a reference
// count that never frees, the data given at creation, and deleteModule().
//
// `Base` is what is wrapped; `Module` names the module whose process-wide pointer
// deleteModule() clears. Instances live in memory of odrxAlloc and are created by
// placement; deleteModule() gives that memory back.
template <class Base, class Module> class OdRxUnixModule : public Base
{
public:
    OdRxUnixModule(void *sysData, const wchar_t *moduleName)
        : m_sysData(sysData)
        , m_moduleName(moduleName)
    {
    }

    // The one module object of this library; null until it is created.
    static OdRxModule *&instance()
    {
        static OdRxModule *module = nullptr;
        return module;
    }

    static void operator delete(void *memory) { odrxFree(memory); }
    static void *operator new(std::size_t, void *memory) noexcept { return memory; }
    static void operator delete(void *, void *) noexcept { }

    void addRef() override { m_references.fetch_add(1); }
    void release() override { m_references.fetch_sub(1); } // never deletes, at 0 or below
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
