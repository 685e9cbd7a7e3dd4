// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdEditor.h"

namespace {
OdEditor *currentEditor = nullptr;
}

OdEditor::~OdEditor() = default;

OdEditorPtr odedEditor()
{
    return OdEditorPtr(currentEditor);
}

void odedSetEditor(OdEditor *editor)
{
    currentEditor = editor;
}
