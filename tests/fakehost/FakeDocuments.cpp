// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fakehost/FakeDocuments.h"

#include <algorithm>

namespace tests {
namespace {

class FakeDocumentIterator : public CHxDocumentIterator
{
public:
    FakeDocumentIterator(std::vector<FakeDocument *> documents, int *alive)
        : m_documents(std::move(documents))
        , m_alive(alive)
    {
        ++*m_alive;
    }
    ~FakeDocumentIterator() override { --*m_alive; }

    void addRef() override { ++m_references; }
    void release() override
    {
        if (--m_references == 0)
            delete this;
    }
    [[nodiscard]] long numRefs() const override { return m_references; }

    [[nodiscard]] bool done() const override { return passed(m_index >= m_documents.size()); }
    void next() override
    {
        FakeFault::pass();
        ++m_index;
    }
    [[nodiscard]] CHxDocument *object() const override
    {
        return passed(static_cast<CHxDocument *>(m_documents.at(m_index)));
    }

private:
    std::vector<FakeDocument *> m_documents;
    std::size_t m_index = 0;
    int *m_alive;
    long m_references = 1;
};

template <class T> void removeFirst(std::vector<T *> &list, const T *item)
{
    const auto found = std::find(list.begin(), list.end(), item);
    if (found != list.end())
        list.erase(found);
}

} // namespace

void FakeInputPointManager::AddTracker(CHxTracker *tracker, int flags)
{
    m_log->add(QStringLiteral("%1.addTracker %2").arg(m_name).arg(flags));
    trackers.push_back(tracker);
}

void FakeInputPointManager::RemoveTracker(CHxTracker *tracker)
{
    m_log->add(QStringLiteral("%1.removeTracker").arg(m_name));
    removeFirst(trackers, tracker);
}

FakeDocument::FakeDocument(const QString &name, CallLog *log)
    : input(name, log)
    , view(new QWidget)
{
    view->resize(400, 400);
}

FakeDocument::~FakeDocument()
{
    if (view && !view->parent())
        delete view;
}

FakeDocumentManager::~FakeDocumentManager() = default;

void FakeDocumentManager::AddReactor(CHxDocumentManagerReactor *reactor)
{
    m_log->add(QStringLiteral("documents.addReactor"));
    reactors.push_back(reactor);
}

void FakeDocumentManager::RemoveReactor(CHxDocumentManagerReactor *reactor)
{
    m_log->add(QStringLiteral("documents.removeReactor"));
    removeFirst(reactors, reactor);
}

CHxDocumentIteratorPtr FakeDocumentManager::NewIterator()
{
    if (!altered(m_log->add(QStringLiteral("documents.iterate")), true))
        return {};
    return CHxDocumentIteratorPtr(new FakeDocumentIterator(openDocuments, &iteratorsAlive), kOdRxAttach);
}

FakeDocument *FakeDocumentManager::open()
{
    const QString name = QStringLiteral("document%1").arg(m_documents.size());
    m_documents.push_back(std::make_unique<FakeDocument>(name, m_log));
    FakeDocument *document = m_documents.back().get();
    openDocuments.push_back(document);
    if (!active)
        active = document;
    return document;
}

} // namespace tests
