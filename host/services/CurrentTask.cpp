// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/CurrentTask.h"

#include "host/commands/CommandCatalogue.h"
#include "host/files/ProgramProfile.h"
#include "host/window/Captions.h"
#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxDocumentManager.h"

#include <QActionGroup>
#include <QMdiSubWindow>

namespace gesturewidget {

CurrentTask::CurrentTask(const ProgramProfile &profile, CommandCatalogue &catalogue,
                         CHxDocumentManager *documents)
    : m_actions(profile.taskActions)
    , m_isOfView(profile.isTaskOfView)
    , m_catalogue(catalogue)
    , m_documents(documents)
{
}

QString CurrentTask::name()
{
    return find().name;
}

QString CurrentTask::caption()
{
    return find().caption;
}

void CurrentTask::hold()
{
    m_held = find();
}

void CurrentTask::release()
{
    m_held.reset();
}

CurrentTask::Found CurrentTask::find()
{
    if (m_held)
        return *m_held;
    return m_isOfView ? classOfView() : checkedAction();
}

CurrentTask::Found CurrentTask::checkedAction()
{
    for (const QString &name : std::as_const(m_actions)) {
        const ActionItem *item = m_catalogue.find(name);
        const QAction *action = item ? item->action() : nullptr;
        const QActionGroup *group = action ? action->actionGroup() : nullptr;
        if (!group)
            continue;
        const QAction *checked = group->checkedAction();
        return checked ? Found{checked->objectName(), plainCaption(checked->text())} : Found();
    }
    return {};
}

CurrentTask::Found CurrentTask::classOfView() const
{
    CHxDocument *document = m_documents ? m_documents->GetActiveDocument() : nullptr;
    const QWidget *view = document ? document->GetViewWidget() : nullptr;
    const QWidget *judged = view;
    for (const QWidget *up = view; up && !up->isWindow(); up = up->parentWidget()) {
        const auto *child = qobject_cast<const QMdiSubWindow *>(up);
        if (child && child->widget())
            judged = child->widget();
    }
    if (!judged)
        return {};
    const QString name = QString::fromLatin1(judged->metaObject()->className());
    return {name, name};
}

} // namespace gesturewidget
