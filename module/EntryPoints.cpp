// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "module/EntryPoints.h"

#include "module/OdRxUnixModuleMgGestureWidget.h"
#include "sdk/od/OdAlloc.h"
#include "sdk/od/OdRxModule.h"

#include <new>

OdRxModule *odrxCreateModuleObject(void *sysData, const wchar_t *moduleName)
{
    OdRxModule *&module = OdRxUnixModuleMgGestureWidget::instance();
    if (module)
        return module;
    void *memory = odrxAlloc(sizeof(OdRxUnixModuleMgGestureWidget));
    if (!memory)
        throw std::bad_alloc();
    try {
        module = new (memory) OdRxUnixModuleMgGestureWidget(sysData, moduleName);
    } catch (...) {
        odrxFree(memory);
        throw;
    }
    return module;
}

void odrxGetAPIVersion(int &major, int &minor, int &majorBuild, int &minorBuild)
{
    major = kOdApiVersion[0];
    minor = kOdApiVersion[1];
    majorBuild = kOdApiVersion[2];
    minorBuild = kOdApiVersion[3];
}

void deleteModuleObject()
{
    OdRxUnixModuleMgGestureWidget::instance() = nullptr;
}
