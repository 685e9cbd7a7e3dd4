// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "module/OdRxUnixModuleMgGestureWidget.h"

namespace tests {

// A module object that a test creates itself, on the stack. Makes its members public.
class OpenModule : public OdRxUnixModule<MgGestureWidget, MgGestureWidget>
{
public:
    OpenModule()
        : OdRxUnixModule(nullptr, L"module")
    {
    }

    using MgGestureWidget::command;
    using MgGestureWidget::tracker;

    [[nodiscard]] CHxDocumentManagerReactor *asDocumentReactor() { return this; }
    [[nodiscard]] CHxEditorReactor *asEditorReactor() { return this; }
};

} // namespace tests
