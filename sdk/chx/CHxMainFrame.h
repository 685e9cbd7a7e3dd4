#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class QWidget;

// The host's main frame. Owned by the host.
class SDK_EXPORT CHxMainFrame
{
public:
    Q_DISABLE_COPY_MOVE(CHxMainFrame)
    virtual ~CHxMainFrame();

    // The main window; null when it is not there yet or gone.
    [[nodiscard]] virtual QWidget *GetMainWindow() const = 0;

protected:
    CHxMainFrame() = default;
};
