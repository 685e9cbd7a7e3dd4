// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"

#include <QWidget>

namespace tests {

// A document manager with at most one document, the active one.
class StubDocuments : public CHxDocumentManager
{
public:
    // The active document's view, not owned. Null means that there is no document.
    QWidget *view = nullptr;

    void AddReactor(CHxDocumentManagerReactor *) override { }
    void RemoveReactor(CHxDocumentManagerReactor *) override { }
    [[nodiscard]] CHxDocumentIteratorPtr NewIterator() override { return {}; }
    [[nodiscard]] CHxDocument *GetActiveDocument() override { return view ? &m_document : nullptr; }

private:
    class Document : public CHxDocument
    {
    public:
        explicit Document(StubDocuments &owner)
            : m_owner(owner)
        {
        }
        [[nodiscard]] CHxInputPointManager *GetInputPointManager() override { return nullptr; }
        [[nodiscard]] QWidget *GetViewWidget() override { return m_owner.view; }

    private:
        StubDocuments &m_owner;
    };
    Document m_document{*this};
};

} // namespace tests
