#pragma once

#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxDocument;
class CHxString;

// Notifications about documents. Every body here is empty: override what you need.
class SDK_EXPORT CHxDocumentManagerReactor
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocumentManagerReactor)
    virtual ~CHxDocumentManagerReactor();

    virtual void DocumentCreateStarted(CHxDocument *document);
    virtual void DocumentCreated(CHxDocument *document);
    virtual void DocumentToBeDestroyed(CHxDocument *document);
    virtual void DocumentDestroyed(CHxDocument *document, const CHxString &path);
    virtual void DatabaseAttached(CHxDocument *document);
    virtual void DatabaseDetached(CHxDocument *document);
    virtual void DocumentToBeActivated(CHxDocument *document);
    virtual void DocumentToBeDeactivated(CHxDocument *document);
    virtual void DocumentActivated(CHxDocument *document);
    virtual void DocumentCreateCanceled(CHxDocument *document);
    virtual void DocumentBecameCurrent(CHxDocument *document);
    virtual void DocumentActivationModified(bool modified);
    virtual void DocumentPreOpen(CHxDocument *document, const CHxString &path, int format, int flags);

protected:
    CHxDocumentManagerReactor() = default;
};
