// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "module/OdRxUnixModuleMgGestureWidget.h"

namespace tests {

// A module object of a test's own, on the stack, its members in reach.
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
