// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdRxObject.h"
#include "OdString.h"

// A module that the platform can load. The host looks up three entry points in the shared
// library, by these exact names:
//
//     extern "C" OdRxModule *odrxCreateModuleObject(void *sysData, const wchar_t *moduleName);
//     extern "C" void odrxGetAPIVersion(int &major, int &minor, int &majorBuild, int &minorBuild);
//     extern "C" void deleteModuleObject();
//
// It then calls initApp() once, later uninitApp(), and at the very end deleteModule(). The module
// object belongs to the library that created it.
class GESTUREWIDGET_SDK_EXPORT OdRxModule : public OdRxObject
{
public:
    ~OdRxModule() override;

    // The `sysData` given at creation. Only the host knows what it points to; may be null.
    [[nodiscard]] virtual void *sysData() = 0;
    // Destroys the module object. Do not use any pointer to it afterwards.
    virtual void deleteModule() = 0;
    // Called once after creation. The module registers its commands, reactors and trackers here.
    virtual void initApp() = 0;
    // Called once before deleteModule(), after the main window is gone.
    virtual void uninitApp() = 0;
    // The `moduleName` given at creation. Empty when that was null.
    [[nodiscard]] virtual OdString moduleName() const = 0;

protected:
    OdRxModule() = default;
};

// The platform version that modules and hosts are written for, in the order of the arguments of
// odrxGetAPIVersion.
constexpr int kOdApiVersion[4] = {3, 8, 1, 0};

// The types of the three entry points.
using OdCreateModuleObject = OdRxModule *(*)(void *, const wchar_t *);
using OdGetApiVersion = void (*)(int &, int &, int &, int &);
using OdDeleteModuleObject = void (*)();
