// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/MenuMirror.h"

#include "host/commands/CommandCatalogue.h"
#include "host/menus/ToolsMenu.h"
#include "host/window/Captions.h"
#include "host/window/EntryAction.h"
#include "sdk/OwnCode.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>

#include <functional>
#include <utility>

namespace gesturewidget {
namespace {

// Returns "ID_Mn" and the menu's name, letters and digits only.
QString menuIdentifier(const QAction &action)
{
    const QString name = action.menu() && !action.menu()->objectName().isEmpty()
                           ? menuRole(action.menu()->objectName())
                           : plainCaption(action.text());
    QString identifier = QStringLiteral("ID_Mn");
    bool isFirst = true;
    for (const QChar letter : name) {
        if (letter.isLetterOrNumber())
            identifier.append(std::exchange(isFirst, false) ? letter.toUpper() : letter);
    }
    return identifier;
}

} // namespace

MenuMirror::MenuMirror(CommandCatalogue &catalogue, MenuChanges &watcher, ToolsMenu &tools,
                       MenuEntries &entries)
    : m_catalogue(catalogue)
    , m_watcher(watcher)
    , m_tools(tools)
    , m_entries(entries)
    , m_nothing(*this, nullptr)
{
    connect(&m_catalogue, &CommandCatalogue::menusChanged, this, [this](const QObject *changed) {
        if (changed == &m_watcher)
            invalidate();
    });
    connect(&m_catalogue, &CommandCatalogue::prepared, this, [this] {
        if (&m_catalogue.watcher() == &m_watcher)
            prepare();
    });
}

MenuMirror::~MenuMirror() = default;

const QVector<QMenuBar *> &MenuMirror::menuBars()
{
    clean();
    return m_menuBars;
}

UiMenuItemCollection *MenuMirror::itemsOf(QWidget *place)
{
    if (!place)
        return &m_nothing;
    return m_collections.of(place, [&] { return std::make_unique<UiMenuItemCollection>(*this, place); });
}

UiMenu *MenuMirror::menuOf(QMenuBar *bar)
{
    return m_menus.of(bar, [&] { return std::make_unique<UiMenu>(*this, bar); });
}

MenuBarItem *MenuMirror::barItemOf(QMenuBar *bar)
{
    return m_barItems.of(bar, [&] { return std::make_unique<MenuBarItem>(*this, bar); });
}

std::vector<CHxUIMenuItem *> MenuMirror::list(QWidget *place)
{
    clean();
    if (const auto *bar = qobject_cast<QMenuBar *>(place))
        return listBar(*bar);
    std::vector<CHxUIMenuItem *> items;
    const QList<QAction *> actions = place ? place->actions() : QList<QAction *>();
    for (QAction *action : actions)
        items.push_back(itemOf(action));
    return items;
}

std::size_t MenuMirror::size() const
{
    return m_items.size() + m_collections.size() + m_menus.size() + m_barItems.size();
}

// Lists what a person sees in a menu bar, and the made Tools menu, which may still be empty and
// hidden.
std::vector<CHxUIMenuItem *> MenuMirror::listBar(const QMenuBar &bar)
{
    const QMenu *tools = m_tools.find();
    QSet<QString> taken{QStringLiteral("ID_MnTools")};
    std::vector<CHxUIMenuItem *> items;
    const QList<QAction *> actions = bar.actions();
    for (QAction *action : actions) {
        const QMenu *menu = action->menu();
        const bool isTools = menu && menu == tools;
        if (!isTools
            && (!action->isVisible() || action->isSeparator() || (menu && menu == m_tools.made())))
            continue;
        CHxUIMenuItem *item = itemOf(action);
        items.push_back(item);
        if (!menu)
            continue;
        const QString name = isTools ? QStringLiteral("ID_MnTools") : menuIdentifier(*action);
        QString identifier = name;
        for (int number = 2; !isTools && taken.contains(identifier); ++number)
            identifier = name + QString::number(number);
        taken.insert(identifier);
        static_cast<ActionMenuItem *>(item)->setIdentifier(identifier);
    }
    return items;
}

CHxUIMenuItem *MenuMirror::itemOf(QAction *action)
{
    if (const auto *entry = qobject_cast<EntryAction *>(action))
        return entry->item();
    return m_items.of(action, [&] { return std::make_unique<ActionMenuItem>(*this, action); });
}

void MenuMirror::prepare()
{
    QSet<const CHxUIMenuItemCollection *> visited; // menus may contain each other
    const std::function<void(const CHxUIMenuItemCollection *)> read =
        [&](const CHxUIMenuItemCollection *items) {
            if (!items || visited.contains(items))
                return;
            visited.insert(items);
            for (int i = 0; i < items->GetCount(); ++i) {
                if (const CHxUIMenuItem *item = items->GetItem(i))
                    read(item->GetSubItems());
            }
        };
    const QVector<QMenuBar *> bars = menuBars();
    for (QMenuBar *bar : bars)
        read(itemsOf(bar));
}

void MenuMirror::clean()
{
    m_catalogue.update(); // only what it has walked is watched for changes
    if (m_cleanGeneration == m_generation)
        return; // nothing has changed
    m_cleanGeneration = m_generation;
    m_menuBars = m_watcher.menuBars();
    m_items.retireGone();
    m_collections.retireGone();
    m_menus.retireGone();
    m_barItems.retireGone();
    const auto destroyRetired = [this] {
        const OwnCode ours;
        m_items.destroyRetired();
        m_collections.destroyRetired();
        m_menus.destroyRetired();
        m_barItems.destroyRetired();
    };
    QMetaObject::invokeMethod(this, destroyRetired, Qt::QueuedConnection);
}

} // namespace gesturewidget
