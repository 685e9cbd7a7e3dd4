// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxEditorReactor.h"

CHxEditorReactor::~CHxEditorReactor() = default;
void CHxEditorReactor::mainFrameCreated(QWidget *) { }
void CHxEditorReactor::mainFrameDestroyed(QWidget *) { }
void CHxEditorReactor::selectionSetCreated(CHxSelectionSet *) { }
void CHxEditorReactor::selectionSetDestroyed(CHxSelectionSet *) { }
void CHxEditorReactor::beginSaveEx(CHxDatabase *, const CHxString &, CHxFileData::FileType, int) { }
