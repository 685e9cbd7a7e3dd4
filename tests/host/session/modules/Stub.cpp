// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/host/session/modules/StubModule.h"

#include <cstdlib>

// All fixtures are built from this file. A definition on the target chooses what the fixture
// lacks or does wrong.

#ifndef STUB_VERSION
#    define STUB_VERSION 3, 8, 1, 0
#endif

extern "C" {

#ifndef STUB_LACKS_VERSION
Q_DECL_EXPORT void odrxGetAPIVersion(int &major, int &minor, int &majorBuild, int &minorBuild)
{
#    ifdef STUB_VERSION_THROWS
    throw std::runtime_error("no version today");
#    endif
    const int version[] = {STUB_VERSION};
    major = version[0];
    minor = version[1];
    majorBuild = version[2];
    minorBuild = version[3];
}
#endif

#ifndef STUB_LACKS_CREATE
Q_DECL_EXPORT OdRxModule *odrxCreateModuleObject(void *, const wchar_t *)
{
#    if defined(STUB_CREATE_THROWS)
    throw std::bad_alloc();
#    elif defined(STUB_CREATE_THROWS_ANYTHING)
    throw 42;
#    elif defined(STUB_CREATES_NOTHING)
    return nullptr;
#    else
    class Module : public StubModule
    {
#        ifdef STUB_INIT_THROWS
    public:
        void initApp() override { throw std::runtime_error("no start today"); }
#        endif
#        ifdef STUB_INIT_ABORTS
    public:
        void initApp() override { std::abort(); }
#        endif
#        ifdef STUB_END_THROWS
    public:
        void uninitApp() override { throw std::runtime_error("no end today"); }
#        endif
    };
    ++StubModule::calls().creations;
    return new Module;
#    endif
}
#endif

Q_DECL_EXPORT StubModule::Calls *stubCalls()
{
    return &StubModule::calls();
}

#ifdef STUB_NEEDS_MORE
void thisFunctionIsNowhere();
Q_DECL_EXPORT void useIt()
{
    thisFunctionIsNowhere();
}
#endif

} // extern "C"
