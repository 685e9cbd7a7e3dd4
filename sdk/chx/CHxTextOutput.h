#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxString;

// Where the host shows one line of text to the user, its status bar. Owned by the host.
class SDK_EXPORT CHxTextOutput
{
public:
    Q_DISABLE_COPY_MOVE(CHxTextOutput)
    virtual ~CHxTextOutput();

    // Shows `text` in place of what is shown; an empty text clears the line. `immediate`
    // asks for it to be on screen before the call returns.
    virtual void SetText(const CHxString &text, bool immediate) = 0;

protected:
    CHxTextOutput() = default;
};
