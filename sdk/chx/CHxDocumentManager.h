// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdRxObject.h"
#include "../od/OdSmartPtr.h"

#include <QtGlobal>

class CHxDocument;
class CHxDocumentManagerReactor;

// Iterates over the open documents. A document may be opened or closed meanwhile; the iterator
// may or may not return it.
class GESTUREWIDGET_SDK_EXPORT CHxDocumentIterator : public OdRxObject
{
public:
    ~CHxDocumentIterator() override;

    // True when there are no more documents.
    [[nodiscard]] virtual bool done() const = 0;
    virtual void next() = 0;
    // The current document. Null after the last one, and for a document closed meanwhile.
    [[nodiscard]] virtual CHxDocument *object() const = 0;

protected:
    CHxDocumentIterator() = default;
};

using CHxDocumentIteratorPtr = OdSmartPtr<CHxDocumentIterator>;

// The host's documents. Owned by the host.
//
//     for (CHxDocumentIteratorPtr it = manager->NewIterator(); !it->done(); it->next())
//         use(it->object());
class GESTUREWIDGET_SDK_EXPORT CHxDocumentManager
{
public:
    Q_DISABLE_COPY_MOVE(CHxDocumentManager)
    virtual ~CHxDocumentManager();

    // The manager does not own reactors. Ignores null and a reactor that is there already.
    virtual void AddReactor(CHxDocumentManagerReactor *reactor) = 0;
    // Ignores null and a reactor that is not there.
    virtual void RemoveReactor(CHxDocumentManagerReactor *reactor) = 0;
    // Never null.
    [[nodiscard]] virtual CHxDocumentIteratorPtr NewIterator() = 0;
    // Null when no drawing was ever open.
    [[nodiscard]] virtual CHxDocument *GetActiveDocument() = 0;

protected:
    CHxDocumentManager() = default;
};
