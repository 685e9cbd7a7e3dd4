// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QtGlobal>

class CHxDocument;
class CHxString;

// Notifications about documents. Every default is empty: override what you need. Register with
// CHxDocumentManager::AddReactor().
//
// Opening a document sends DocumentCreateStarted, DatabaseAttached, DocumentCreated. Closing one
// sends DocumentToBeDestroyed, DatabaseDetached, DocumentDestroyed. Making one active sends
// DocumentToBeDeactivated for the previous one, then DocumentToBeActivated, DocumentActivated and
// DocumentBecameCurrent for the new one.
//
// A host leaves out what it cannot know. That of this project never sends DocumentCreateCanceled,
// DocumentActivationModified and DocumentPreOpen, and its paths are empty.
//
// `document` is null when the host has no object for the document: ignore the notification then.
// The host keeps the object until the program ends. `path` is the full path of the drawing's file,
// empty when the host does not know it.
class GESTUREWIDGET_SDK_EXPORT CHxDocumentManagerReactor
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocumentManagerReactor)
    virtual ~CHxDocumentManagerReactor();

    // A document is about to be created; its database is not attached yet.
    virtual void DocumentCreateStarted(CHxDocument *document);
    // A document has been created and can be used.
    virtual void DocumentCreated(CHxDocument *document);
    // A document is about to be closed; its database is still attached.
    virtual void DocumentToBeDestroyed(CHxDocument *document);
    // A document has been closed; its view is a stand-in from now on. `path` was its file.
    virtual void DocumentDestroyed(CHxDocument *document, const CHxString &path);
    // The document got its database, the drawing's content.
    virtual void DatabaseAttached(CHxDocument *document);
    // The document is losing its database; its input point manager can still be used.
    virtual void DatabaseDetached(CHxDocument *document);
    // A document is about to become the active one; ACTIVE_DOCUMENT() is still the previous one.
    virtual void DocumentToBeActivated(CHxDocument *document);
    // The active document is about to stop being active. Not sent for one that is closed.
    virtual void DocumentToBeDeactivated(CHxDocument *document);
    // A document has become the active one; ACTIVE_DOCUMENT() returns it.
    virtual void DocumentActivated(CHxDocument *document);
    // Creation has failed or was cancelled after DocumentCreateStarted; nothing more is sent.
    virtual void DocumentCreateCanceled(CHxDocument *document);
    // Commands work on this document from now on. Follows DocumentActivated.
    virtual void DocumentBecameCurrent(CHxDocument *document);
    // Switching documents has been locked (true) or allowed again (false).
    virtual void DocumentActivationModified(bool modified);
    // A drawing file is about to be opened. `document` is null when its document does not exist
    // yet. `format` is a CHxFileData::FileType; no bit of `flags` has a meaning yet.
    virtual void DocumentPreOpen(CHxDocument *document, const CHxString &path, int format, int flags);

protected:
    CHxDocumentManagerReactor() = default;
};
