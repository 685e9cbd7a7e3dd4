// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxDocumentManagerReactor.h"

CHxDocumentManagerReactor::~CHxDocumentManagerReactor() = default;
void CHxDocumentManagerReactor::DocumentCreateStarted(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentCreated(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentToBeDestroyed(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentDestroyed(CHxDocument *, const CHxString &) { }
void CHxDocumentManagerReactor::DatabaseAttached(CHxDocument *) { }
void CHxDocumentManagerReactor::DatabaseDetached(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentToBeActivated(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentToBeDeactivated(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentActivated(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentCreateCanceled(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentBecameCurrent(CHxDocument *) { }
void CHxDocumentManagerReactor::DocumentActivationModified(bool) { }
void CHxDocumentManagerReactor::DocumentPreOpen(CHxDocument *, const CHxString &, int, int) { }
