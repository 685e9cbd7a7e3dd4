#pragma once

#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdSmartPtr.h"

#include <QtGlobal>

class CHxDocument;
class CHxDocumentManagerReactor;

// Walks the open documents. Opening or closing one while walking is safe; whether the
// walk still meets it is not said.
class SDK_EXPORT CHxDocumentIterator : public OdRxObject
{
public:
    ~CHxDocumentIterator() override;

    [[nodiscard]] virtual bool done() const = 0;
    virtual void next() = 0;
    // The document at this place; may be null.
    [[nodiscard]] virtual CHxDocument *object() const = 0;

protected:
    CHxDocumentIterator() = default;
};

using CHxDocumentIteratorPtr = OdSmartPtr<CHxDocumentIterator>;

// The host's documents. Owned by the host.
//
//     for (CHxDocumentIteratorPtr it = manager->NewIterator(); !it->done(); it->next())
//         use(it->object());
class SDK_EXPORT CHxDocumentManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocumentManager)
    virtual ~CHxDocumentManager();

    // Reactors are not owned; adding one a second time does nothing.
    virtual void AddReactor(CHxDocumentManagerReactor *reactor) = 0;
    virtual void RemoveReactor(CHxDocumentManagerReactor *reactor) = 0;
    [[nodiscard]] virtual CHxDocumentIteratorPtr NewIterator() = 0;
    // Null when no drawing is open and none ever was.
    [[nodiscard]] virtual CHxDocument *GetActiveDocument() = 0;

protected:
    CHxDocumentManager() = default;
};
