#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

// The host application. Owned by the host.
class SDK_EXPORT CHxApplication
{
public:
    Q_DISABLE_COPY_MOVE(CHxApplication)
    virtual ~CHxApplication();

    // The mode of the host's own pointer handling: 0 is normal; while it is 1 a module
    // follows the pointer by itself.
    [[nodiscard]] virtual qint16 GetMode() const = 0;
    virtual void SetMode(qint16 mode) = 0;

protected:
    CHxApplication() = default;
};
