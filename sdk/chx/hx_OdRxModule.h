// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdRxModule.h"

// The base of modules for this host. Derive from it and complete the class with OdRxUnixModule.
class GESTUREWIDGET_SDK_EXPORT hx_OdRxModule : public OdRxModule
{
public:
    ~hx_OdRxModule() override;

protected:
    hx_OdRxModule() = default;
};
