// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdEditorReactor.h"

OdRxEventReactor::~OdRxEventReactor() = default;
void OdRxEventReactor::saveComplete(const OdString &) { }
void OdRxEventReactor::openComplete(const OdString &) { }

OdEditorReactor::~OdEditorReactor() = default;
void OdEditorReactor::viewChanged() { }

OdEdCommandStackReactor::~OdEdCommandStackReactor() = default;
void OdEdCommandStackReactor::commandAdded(OdEdCommand *) { }
void OdEdCommandStackReactor::commandWillBeRemoved(OdEdCommand *) { }
void OdEdCommandStackReactor::commandWillStart(OdEdCommand *) { }
void OdEdCommandStackReactor::commandEnded(OdEdCommand *) { }

OdEdLispEngineReactor::~OdEdLispEngineReactor() = default;
void OdEdLispEngineReactor::lispWillStart(const OdString &) { }
void OdEdLispEngineReactor::lispEnded() { }
