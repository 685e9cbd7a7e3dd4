// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "module/MgGestureWidget.h"
#include "sdk/od/OdRxUnixModule.h"

// The concrete class of the module object. It adds the reference count, the data given at creation
// and deleteModule().
class OdRxUnixModuleMgGestureWidget final : public OdRxUnixModule<MgGestureWidget, MgGestureWidget>
{
public:
    using OdRxUnixModule::OdRxUnixModule;
};
