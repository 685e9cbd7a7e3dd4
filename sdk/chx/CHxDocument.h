// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxInputPointManager;
class QWidget;

// An open drawing. The host owns the object and keeps it until the program ends, even when the
// drawing is closed earlier.
class GESTUREWIDGET_SDK_EXPORT CHxDocument
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocument)
    virtual ~CHxDocument();

    // Null for a document that takes no pointer input.
    [[nodiscard]] virtual CHxInputPointManager *GetInputPointManager() = 0;
    // The view: the widget that shows the drawing. Positions in hit tests are in its pixels.
    // Never null: after the view is gone, returns a stand-in that is never shown.
    [[nodiscard]] virtual QWidget *GetViewWidget() = 0;

protected:
    CHxDocument() = default;
};

// The active document of the process's host. Null when there is no host or no drawing was ever
// open.
[[nodiscard]] GESTUREWIDGET_SDK_EXPORT CHxDocument *ACTIVE_DOCUMENT();
