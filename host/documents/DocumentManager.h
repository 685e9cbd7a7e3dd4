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

// One document for each drawing view. A document is closed when its view is destroyed,
// and the object is kept until this one goes.
class DocumentManager : public QObject, public CHxDocumentManager
{
    Q_OBJECT

public:
    DocumentManager();
    // Tells nobody: whoever listens was told by closeAll() or has no interest any more.
    ~DocumentManager() override;

    void AddReactor(CHxDocumentManagerReactor *reactor) override;
    void RemoveReactor(CHxDocumentManagerReactor *reactor) override;
    // Walks the documents that were open when the walk began and still are.
    [[nodiscard]] CHxDocumentIteratorPtr NewIterator() override;
    // The document whose view was last pressed or activated. When that is closed, the one
    // before it that is still open; with none open the closed one stays, so that a module
    // which asks in the middle of something still gets an answer.
    [[nodiscard]] CHxDocument *GetActiveDocument() override { return m_active; }

    // Opens a document for a view, or finds the one that it has. The first document becomes
    // the active one.
    Document *open(QWidget *view);
    void activate(Document *document);
    // Tells nobody anything from now on.
    void dropReactors() { m_reactors.clear(); }
    // Lets go of the stand-in widget. To be called while widgets may still be destroyed.
    void releaseStandIn();

    // The open document of this very widget; null when it is no view. Called for every
    // mouse event of the program, most often for the same widget as the last time.
    [[nodiscard]] Document *documentOf(const QObject *view) const
    {
        if (view != m_lastAsked) {
            m_lastAsked = view;
            m_lastAnswer = m_byView.value(view);
        }
        return m_lastAnswer;
    }
    [[nodiscard]] bool isEmpty() const { return m_byView.isEmpty(); }

Q_SIGNALS:
    // The document's view is gone or going, its trackers are still there.
    void documentAboutToClose(gesturewidget::Document *document);

private:
    class Iterator;

    void close(Document *document);
    [[nodiscard]] QWidget *standIn();
    template <class Notification> void notify(Notification notification);

    std::vector<std::unique_ptr<Document>> m_documents; // in the order of opening
    QHash<const QObject *, Document *> m_byView; // the open ones
    mutable const QObject *m_lastAsked = nullptr; // forgotten when m_byView changes
    mutable Document *m_lastAnswer = nullptr;
    QVector<Document *> m_activated; // the open ones, the active one last
    QVector<CHxDocumentManagerReactor *> m_reactors;
    Document *m_active = nullptr;
    QPointer<QWidget> m_standIn;
};

} // namespace gesturewidget
