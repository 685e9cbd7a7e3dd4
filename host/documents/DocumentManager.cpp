// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/DocumentManager.h"

#include "host/documents/StandInWidget.h"
#include "sdk/chx/CHxDocumentManagerReactor.h"
#include "sdk/chx/CHxString.h"
#include "sdk/od/OdRxObjectImpl.h"
#include "sdk/OwnCode.h"

#include <QApplication>

namespace gesturewidget {

// Documents live as long as the manager, so the pointers stay valid during a walk. Closed documents
// are skipped.
class DocumentManager::Iterator : public CHxDocumentIterator
{
public:
    explicit Iterator(const std::vector<std::unique_ptr<Document>> &documents)
    {
        for (const auto &document : documents)
            m_documents.append(document.get());
        skipClosed();
    }

    [[nodiscard]] bool done() const override { return m_index >= m_documents.size(); }
    void next() override
    {
        if (!done())
            ++m_index;
        skipClosed();
    }
    [[nodiscard]] CHxDocument *object() const override
    {
        return done() || !m_documents.at(m_index)->isOpen() ? nullptr : m_documents.at(m_index);
    }

private:
    void skipClosed()
    {
        while (!done() && !m_documents.at(m_index)->isOpen())
            ++m_index;
    }

    QVector<Document *> m_documents;
    int m_index = 0;
};

DocumentManager::DocumentManager() = default;

DocumentManager::~DocumentManager()
{
    releaseStandIn();
}

void DocumentManager::AddReactor(CHxDocumentManagerReactor *reactor)
{
    if (reactor && !m_reactors.contains(reactor))
        m_reactors.append(reactor);
}

void DocumentManager::RemoveReactor(CHxDocumentManagerReactor *reactor)
{
    m_reactors.removeAll(reactor);
}

CHxDocumentIteratorPtr DocumentManager::NewIterator()
{
    return CHxDocumentIteratorPtr(new OdRxObjectImpl<Iterator>(m_documents), kOdRxAttach);
}

template <class Notification> void DocumentManager::notify(Notification notification)
{
    const QVector<CHxDocumentManagerReactor *> reactors = m_reactors;
    for (CHxDocumentManagerReactor *reactor : reactors) {
        if (m_reactors.contains(reactor))
            notification(*reactor);
    }
}

Document *DocumentManager::lookUp(const QObject *widget) const
{
    Document *document = m_byView.value(widget);
    if (document) {
        m_lastView = widget;
        m_lastDocument = document;
    } else {
        m_lastOther = widget;
    }
    return document;
}

void DocumentManager::forgetLookUps()
{
    m_lastView = nullptr;
    m_lastDocument = nullptr;
    m_lastOther = nullptr;
}

Document *DocumentManager::open(QWidget *view)
{
    if (Document *known = documentOf(view))
        return known;
    m_documents.push_back(std::make_unique<Document>(view, [this] { return standIn(); }));
    Document *document = m_documents.back().get();
    m_byView.insert(view, document);
    forgetLookUps();
    m_activated.prepend(document);
    connect(view, &QObject::destroyed, this, [this, document] { close(document); });

    notify([document](CHxDocumentManagerReactor &r) { r.DocumentCreateStarted(document); });
    notify([document](CHxDocumentManagerReactor &r) { r.DatabaseAttached(document); });
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentCreated(document); });
    if (!m_active || !m_active->isOpen())
        makeActive(document);
    return document;
}

void DocumentManager::activate(Document *document)
{
    if (!document || !document->isOpen())
        return;
    makeActive(document);
    Q_EMIT documentUsed(document);
}

void DocumentManager::makeActive(Document *document)
{
    if (document == m_active)
        return;
    Document *previous = m_active;
    if (previous && previous->isOpen())
        notify([previous](CHxDocumentManagerReactor &r) { r.DocumentToBeDeactivated(previous); });
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentToBeActivated(document); });
    m_active = document;
    m_activated.removeAll(document);
    m_activated.append(document);
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentActivated(document); });
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentBecameCurrent(document); });
}

void DocumentManager::close(Document *document)
{
    if (!document->isOpen())
        return;
    const OwnCode ours;
    Q_EMIT documentAboutToClose(document);
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentToBeDestroyed(document); });
    notify([document](CHxDocumentManagerReactor &r) { r.DatabaseDetached(document); });
    m_byView.remove(m_byView.key(document));
    forgetLookUps();
    m_activated.removeAll(document);
    document->close();
    notify([document](CHxDocumentManagerReactor &r) { r.DocumentDestroyed(document, CHxString()); });
    if (document == m_active && !m_activated.isEmpty())
        makeActive(m_activated.last());
}

QWidget *DocumentManager::standIn()
{
    if (!m_standIn)
        m_standIn = new StandInWidget;
    return m_standIn;
}

void DocumentManager::releaseStandIn()
{
    // Widgets cannot be destroyed after the application is gone.
    if (QCoreApplication::instance())
        delete m_standIn.data();
    m_standIn.clear();
}

} // namespace gesturewidget
