// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

// The host application. The host owns it.
class GESTUREWIDGET_SDK_EXPORT CHxApplication
{
public:
    Q_DISABLE_COPY_MOVE(CHxApplication)
    virtual ~CHxApplication();

    // The mode of pointer handling, set by modules. 0: normal. 1: a module follows the pointer
    // itself. A host need not act on it, but returns the mode that was set.
    [[nodiscard]] virtual qint16 GetMode() const = 0;
    virtual void SetMode(qint16 mode) = 0;

protected:
    CHxApplication() = default;
};
