// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxTracker.h"
#include "sdk/od/OdRxModule.h"
#include "tests/fakehost/FakeDocuments.h"
#include "tests/fakehost/FakeHitTest.h"

#include <dlfcn.h>

namespace tests {

// The module's file, loaded as hosts do it. It closes with this object.
class ModuleLibrary
{
public:
    ModuleLibrary()
        : m_handle(dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL))
    {
    }
    ~ModuleLibrary()
    {
        if (m_handle)
            dlclose(m_handle);
    }
    Q_DISABLE_COPY_MOVE(ModuleLibrary)

    [[nodiscard]] bool isOpen() const { return m_handle != nullptr; }
    template <class Function> [[nodiscard]] Function resolve(const char *name) const
    {
        return reinterpret_cast<Function>(dlsym(m_handle, name));
    }
    [[nodiscard]] OdRxModule *create(const wchar_t *name = L"gestures") const
    {
        return resolve<OdCreateModuleObject>("odrxCreateModuleObject")(nullptr, name);
    }

private:
    void *m_handle;
};

// Press and drag in a document, the way a host reports it.
inline void drag(FakeDocument &document)
{
    FakeHitTest hit;
    hit.document = &document;
    hit.press = true;
    hit.buttonHeld = true;
    for (CHxTracker *tracker : document.input.trackers)
        tracker->Update(nullptr, &hit);
    hit.press = false;
    hit.motion = true;
    hit.position = QPoint(30, 0);
    for (CHxTracker *tracker : document.input.trackers)
        tracker->Update(nullptr, &hit);
}

} // namespace tests
