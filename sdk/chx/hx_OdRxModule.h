#pragma once

#include "sdk/od/OdRxModule.h"

// The base of modules written for this host.
class SDK_EXPORT hx_OdRxModule : public OdRxModule
{
public:
    ~hx_OdRxModule() override;

protected:
    hx_OdRxModule() = default;
};
