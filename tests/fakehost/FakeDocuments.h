// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"
#include "sdk/chx/CHxInputPointManager.h"
#include "tests/fakehost/CallLog.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

namespace tests {

// Notes "NAME.addTracker FLAGS" and "NAME.removeTracker".
class FakeInputPointManager : public CHxInputPointManager
{
public:
    FakeInputPointManager(QString name, CallLog *log)
        : m_name(std::move(name))
        , m_log(log)
    {
    }

    void AddTracker(CHxTracker *tracker, int flags) override;
    void RemoveTracker(CHxTracker *tracker) override;

    // Every tracker that was added and not removed, one entry for each call.
    std::vector<CHxTracker *> trackers;

private:
    QString m_name;
    CallLog *m_log;
};

// A document with a view widget that is a plain window of 400 x 400 pixels, not shown.
class FakeDocument : public CHxDocument
{
public:
    FakeDocument(const QString &name, CallLog *log);
    ~FakeDocument() override;

    [[nodiscard]] CHxInputPointManager *GetInputPointManager() override
    {
        return passed(hasInputPointManager) ? &input : nullptr;
    }
    [[nodiscard]] QWidget *GetViewWidget() override { return passed(view); }

    bool hasInputPointManager = true;
    FakeInputPointManager input;
    // May be deleted or replaced by the test; null is then what the document gives out.
    QPointer<QWidget> view;
};

// Notes "documents.addReactor", "documents.removeReactor", "documents.iterate".
class FakeDocumentManager : public CHxDocumentManager
{
public:
    explicit FakeDocumentManager(CallLog *log)
        : m_log(log)
    {
    }
    ~FakeDocumentManager() override;

    void AddReactor(CHxDocumentManagerReactor *reactor) override;
    void RemoveReactor(CHxDocumentManagerReactor *reactor) override;
    [[nodiscard]] CHxDocumentIteratorPtr NewIterator() override;
    [[nodiscard]] CHxDocument *GetActiveDocument() override { return passed(active); }

    // A new open document "document0", "document1", ...; the first one becomes active.
    FakeDocument *open();
    // An open document that is null.
    void openNull() { openDocuments.push_back(nullptr); }

    std::vector<FakeDocument *> openDocuments;
    std::vector<CHxDocumentManagerReactor *> reactors;
    CHxDocument *active = nullptr;
    // Number of document iterators that still exist.
    int iteratorsAlive = 0;

private:
    CallLog *m_log;
    std::vector<std::unique_ptr<FakeDocument>> m_documents;
};

} // namespace tests
