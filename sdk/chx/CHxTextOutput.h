// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxString;

// The host's status bar: shows one line of text to the user. The host owns it.
class GESTUREWIDGET_SDK_EXPORT CHxTextOutput
{
public:
    Q_DISABLE_COPY_MOVE(CHxTextOutput)
    virtual ~CHxTextOutput();

    // Replaces the text. An empty text clears the line. With `immediate`, the text is on screen
    // before the call returns.
    virtual void SetText(const CHxString &text, bool immediate) = 0;

protected:
    CHxTextOutput() = default;
};
