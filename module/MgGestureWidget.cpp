// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "module/MgGestureWidget.h"

#include "bindings/HostCall.h"
#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"
#include "sdk/chx/CHxInputPointManager.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"

namespace {

[[nodiscard]] CHxDocumentManager *documentManager()
{
    CHxSystemServices *services = GetHxSystemServices();
    return services ? services->GetDocumentManager() : nullptr;
}

[[nodiscard]] CHxInputPointManager *inputPointManager(CHxDocument *document)
{
    return document ? document->GetInputPointManager() : nullptr;
}

// Calls `visit` with every open document, of which some may be null.
template <class Visit> void forEachDocument(CHxDocumentManager &manager, Visit visit)
{
    const CHxDocumentIteratorPtr documents = manager.NewIterator();
    for (; documents && !documents->done(); documents->next())
        visit(hostValue<CHxDocument *>(nullptr, [&documents] { return documents->object(); }));
}

} // namespace

MgGestureWidget::MgGestureWidget() = default;

MgGestureWidget::~MgGestureWidget() = default;

void MgGestureWidget::initApp()
{
    hostCall([this] {
        if (const OdEdCommandStackPtr stack = odedRegCmds())
            stack->addCommand(&command);
    });
    hostCall([this] {
        CHxDocumentManager *manager = documentManager();
        if (!manager)
            return;
        hostCall([&] { manager->AddReactor(this); });
        forEachDocument(*manager, [this](CHxDocument *document) { addTracker(document); });
    });
    // Deliberately never removed: the module stays a reactor until it is unloaded.
    hostCall([this] {
        if (const OdEditorPtr editor = odedEditor())
            editor->addReactor(this);
    });
}

void MgGestureWidget::uninitApp() { }

void MgGestureWidget::DocumentCreated(CHxDocument *document)
{
    addTracker(document);
}

void MgGestureWidget::DatabaseDetached(CHxDocument *document)
{
    removeTracker(document);
}

void MgGestureWidget::mainFrameCreated(QWidget *)
{
    LoadMenu();
}

void MgGestureWidget::mainFrameDestroyed(QWidget *)
{
    hostCall([this] {
        if (const OdEdCommandStackPtr stack = odedRegCmds())
            stack->removeCommand(&command);
    });
    hostCall([this] {
        CHxDocumentManager *manager = documentManager();
        if (!manager)
            return;
        hostCall([&] { manager->RemoveReactor(this); });
        forEachDocument(*manager, [this](CHxDocument *document) { removeTracker(document); });
    });
    UnLoadMenu();
}

void MgGestureWidget::addTracker(CHxDocument *document)
{
    hostCall([&] {
        if (CHxInputPointManager *manager = inputPointManager(document))
            manager->AddTracker(&tracker, 0);
    });
}

void MgGestureWidget::removeTracker(CHxDocument *document)
{
    hostCall([&] {
        if (CHxInputPointManager *manager = inputPointManager(document))
            manager->RemoveTracker(&tracker);
    });
}
