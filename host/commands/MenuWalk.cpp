// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/MenuWalk.h"

#include "host/commands/ActionItem.h"
#include "host/window/Captions.h"
#include "host/window/MenuChanges.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace gesturewidget {

MenuWalk::MenuWalk(MenuChanges &watcher, Visit visit)
    : m_watcher(watcher)
    , m_visit(std::move(visit))
{
}

MenuWalk::~MenuWalk() = default;

QSet<QString> MenuWalk::run()
{
    const QVector<QMenuBar *> menuBars = m_watcher.menuBars();
    for (QMenuBar *bar : menuBars)
        walk(bar, {});
    const QVector<QToolBar *> toolBars = m_watcher.toolBars();
    for (QToolBar *bar : toolBars) {
        const QString title = plainCaption(bar->windowTitle());
        walk(bar, {title, title, true});
    }
    return m_paths;
}

QString MenuWalk::joined(const QString &path, const QString &caption)
{
    return path.isEmpty() ? caption : path + QLatin1Char('/') + caption;
}

void MenuWalk::walk(QWidget *widget, const Place &place)
{
    if (m_visited.contains(widget))
        return;
    m_visited.insert(widget);
    m_paths.insert(place.path);
    m_watcher.watch(widget);
    const QList<QAction *> actions = widget->actions();
    const auto kind = ListEntries::kindOf(place.way.isEmpty() ? QString() : place.way.last());
    const QSet<const QAction *> entries =
        place.isOfList ? QSet<const QAction *>() : m_lists.among(actions, kind);
    for (QAction *action : actions) {
        const bool isListEntry = place.isOfList || entries.contains(action);
        if (ActionItem::isCommand(action)) {
            m_visit(action, place, isListEntry);
        } else if (QMenu *menu = action->menu(); menu && action->isVisible()) {
            const QString title = ActionItem::captionOf(action);
            const bool isTop = place.group.isEmpty();
            walk(menu, {isTop ? title : place.group, joined(place.path, title), place.isInToolBar,
                        isTop ? QStringList() : place.way + QStringList(title),
                        isListEntry || (!isTop && m_lists.isWindowTitle(title))});
        }
    }
}

} // namespace gesturewidget
