// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/documents/Document.h"
#include "sdk/chx/CHxDocumentManager.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>
#include <vector>

class CHxDocumentManagerReactor;

namespace gesturewidget {

// Keeps one document for each drawing view. A document is closed when its view is destroyed; the
// object lives as long as the manager.
class DocumentManager : public QObject, public CHxDocumentManager
{
    Q_OBJECT

public:
    DocumentManager();
    // Sends no notification: reactors were told by the session's end.
    ~DocumentManager() override;

    void AddReactor(CHxDocumentManagerReactor *reactor) override;
    void RemoveReactor(CHxDocumentManagerReactor *reactor) override;
    // Walks the documents that were open when the walk began and still are.
    [[nodiscard]] CHxDocumentIteratorPtr NewIterator() override;
    // Returns the document whose view was pressed or activated last. When it is closed, the open
    // one before it becomes active. If none is open, the closed one stays, because a module may
    // ask in the middle of an operation.
    [[nodiscard]] CHxDocument *GetActiveDocument() override { return m_active; }

    // Opens a document for a view, or returns the one that the view has. The first document
    // becomes the active one.
    Document *open(QWidget *view);
    void activate(Document *document);
    // Returns the open documents, the one that was activated last comes last.
    [[nodiscard]] const QVector<Document *> &openDocuments() const { return m_activated; }
    // Sends no notifications from now on.
    void dropReactors() { m_reactors.clear(); }
    // Destroys the stand-in widget. Call this while widgets can still be destroyed.
    void releaseStandIn();

    // Returns the open document of exactly this widget, or null if it is no view. This is called
    // for every mouse event of the program, usually for the view of before or a parent of it.
    [[nodiscard]] Document *documentOf(const QObject *widget) const
    {
        if (widget == m_lastView)
            return m_lastDocument;
        return widget == m_lastOther ? nullptr : lookUp(widget);
    }
    [[nodiscard]] bool isEmpty() const { return m_byView.isEmpty(); }

Q_SIGNALS:
    // The view was pressed, or got the focus. The document may have been active before.
    void documentUsed(gesturewidget::Document *document);
    // The view is gone or about to go. The document still has its trackers.
    void documentAboutToClose(gesturewidget::Document *document);

private:
    class Iterator;

    [[nodiscard]] Document *lookUp(const QObject *widget) const;
    void forgetLookUps();
    void makeActive(Document *document);
    void close(Document *document);
    [[nodiscard]] QWidget *standIn();
    template <class Notification> void notify(Notification notification);

    std::vector<std::unique_ptr<Document>> m_documents; // in the order of opening
    QHash<const QObject *, Document *> m_byView; // the open ones
    // What lookUp() found last. Forgotten when m_byView changes.
    mutable const QObject *m_lastView = nullptr;
    mutable Document *m_lastDocument = nullptr;
    mutable const QObject *m_lastOther = nullptr; // no view
    QVector<Document *> m_activated; // the open ones, the active one last
    QVector<CHxDocumentManagerReactor *> m_reactors;
    Document *m_active = nullptr;
    QPointer<QWidget> m_standIn;
};

} // namespace gesturewidget
