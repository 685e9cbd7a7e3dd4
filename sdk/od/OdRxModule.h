#pragma once

#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdString.h"

// A loadable module, as the platform sees it. The host looks up three entry points in the
// shared library, by these exact names:
//
//     extern "C" OdRxModule *odrxCreateModuleObject(void *sysData, const wchar_t *moduleName);
//     extern "C" void odrxGetAPIVersion(int &major, int &minor, int &majorBuild, int &minorBuild);
//     extern "C" void deleteModuleObject();
//
// and then calls initApp() once, later uninitApp() and, at the very end, deleteModule().
// The module object belongs to the library that created it.
class SDK_EXPORT OdRxModule : public OdRxObject
{
public:
    ~OdRxModule() override;

    // The opaque handle given at creation.
    [[nodiscard]] virtual void *sysData() = 0;
    // Destroys the module object; no pointer to it may be used afterwards.
    virtual void deleteModule() = 0;
    virtual void initApp() = 0;
    virtual void uninitApp() = 0;
    // The name given at creation.
    [[nodiscard]] virtual OdString moduleName() const = 0;

protected:
    OdRxModule() = default;
};

// The platform version that modules and hosts are written against, in the order of
// odrxGetAPIVersion's arguments.
constexpr int kOdApiVersion[4] = {3, 8, 1, 0};

using OdCreateModuleObject = OdRxModule *(*)(void *, const wchar_t *);
using OdGetApiVersion = void (*)(int &, int &, int &, int &);
using OdDeleteModuleObject = void (*)();
