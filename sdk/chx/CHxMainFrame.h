// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class QWidget;

// The host's main frame: gives access to the main window. The host owns it.
class GESTUREWIDGET_SDK_EXPORT CHxMainFrame
{
public:
    Q_DISABLE_COPY_MOVE(CHxMainFrame)
    virtual ~CHxMainFrame();

    // The main window. Null before it exists and after it is gone.
    [[nodiscard]] virtual QWidget *GetMainWindow() const = 0;

protected:
    CHxMainFrame() = default;
};
