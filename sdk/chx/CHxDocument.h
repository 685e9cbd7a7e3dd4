#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxInputPointManager;
class QWidget;

// One open drawing. Owned by the host, which keeps the object until the program ends,
// even when the drawing is closed earlier.
class SDK_EXPORT CHxDocument
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocument)
    virtual ~CHxDocument();

    // May be null: a document that takes no pointer input.
    [[nodiscard]] virtual CHxInputPointManager *GetInputPointManager() = 0;
    // The widget that shows the drawing and in whose pixels hit tests are given. Never
    // null: once the view is gone, a stand-in that is never shown.
    [[nodiscard]] virtual QWidget *GetViewWidget() = 0;

protected:
    CHxDocument() = default;
};

// The active document of the process's host; null when there is no host or no drawing.
[[nodiscard]] SDK_EXPORT CHxDocument *ACTIVE_DOCUMENT();
