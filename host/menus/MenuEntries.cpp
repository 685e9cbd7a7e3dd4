// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/MenuEntries.h"

#include "host/menus/ToolsMenu.h"
#include "host/menus/UiMenuItem.h"
#include "host/window/MenuChanges.h"

#include <algorithm>

namespace gesturewidget {
namespace {

// An entry is moved back at most this many times in this many milliseconds, in a menu that nobody
// opens. Two programs that both want to be last must not keep each other busy forever.
constexpr int kCorrections = 8;
constexpr qint64 kCorrectionsPeriod = 1000;

} // namespace

MenuEntries::MenuEntries(MenuChanges &watcher, ToolsMenu &tools)
    : m_watcher(watcher)
    , m_tools(tools)
{
}

MenuEntries::~MenuEntries() = default;

UiMenuItem *MenuEntries::create(const QString &identifier, const QString &text, const QString &tip)
{
    m_items.push_back(std::make_unique<UiMenuItem>(identifier, text, tip));
    return m_items.back().get();
}

void MenuEntries::destroy(const CHxUIMenuItem *item)
{
    UiMenuItem *entry = entryOf(item);
    if (!entry)
        return;
    remove(entry);
    const auto isEntry = [entry](const auto &known) { return known.get() == entry; };
    m_items.erase(std::find_if(m_items.begin(), m_items.end(), isEntry));
}

UiMenuItem *MenuEntries::entryOf(const CHxUIMenuItem *item) const
{
    const auto isItem = [item](const auto &known) { return known.get() == item; };
    const auto found = std::find_if(m_items.begin(), m_items.end(), isItem);
    return found == m_items.end() ? nullptr : found->get();
}

void MenuEntries::forgetCommand(const CHxUICommandItem *command)
{
    for (const auto &item : m_items) {
        if (item->GetCommandItem() == command)
            item->SetCommandItem(nullptr);
    }
}

void MenuEntries::append(UiMenuItem *item, QWidget *place)
{
    if (!place)
        return;
    remove(item);
    m_placed.push_back(item);
    item->place = place;
    item->isForTools = place == m_tools.find();
    prepare(place);
    m_isRestoring = true;
    place->addAction(&item->action());
    m_tools.updateVisibility();
    m_isRestoring = false;
}

void MenuEntries::remove(UiMenuItem *item)
{
    const auto found = std::find(m_placed.begin(), m_placed.end(), item);
    if (found == m_placed.end())
        return;
    m_placed.erase(found);
    m_isRestoring = true;
    if (item->place)
        item->place->removeAction(&item->action());
    item->place.clear();
    m_tools.updateVisibility();
    m_isRestoring = false;
}

void MenuEntries::restoreLater()
{
    if (m_isScheduled || m_isRestoring || m_placed.empty())
        return;
    m_isScheduled = true;
    QMetaObject::invokeMethod(
        this, [this] { restore(); }, Qt::QueuedConnection);
}

void MenuEntries::restore()
{
    m_isScheduled = false;
    if (m_isRestoring || m_placed.empty())
        return;
    m_isRestoring = true;
    QHash<QWidget *, QVector<QAction *>> byPlace;
    for (UiMenuItem *item : m_placed) {
        QWidget *place = item->isForTools ? m_tools.findOrMake() : item->place.data();
        if (place != item->place && item->place)
            item->place->removeAction(&item->action());
        item->place = place;
        if (place)
            byPlace[place].append(&item->action());
    }
    for (auto it = byPlace.cbegin(); it != byPlace.cend(); ++it)
        restoreIn(it.key(), it.value());
    m_tools.updateVisibility();
    m_isRestoring = false;
}

void MenuEntries::prepare(QWidget *place)
{
    if (m_prepared.contains(place))
        return;
    m_prepared.insert(place, {});
    m_watcher.watch(place);
    connect(place, &QObject::destroyed, this, [this](const QObject *gone) { m_prepared.remove(gone); });
    // A program that fills a menu whenever it opens has connected before this. So the entry is
    // back before the menu is shown.
    if (auto *menu = qobject_cast<QMenu *>(place)) {
        connect(menu, &QMenu::aboutToShow, this, [this, menu] {
            m_prepared[menu].count = 0;
            restore();
        });
    }
}

void MenuEntries::restoreIn(QWidget *place, const QVector<QAction *> &entries)
{
    prepare(place);
    const QList<QAction *> actions = place->actions();
    const bool isInOrder = actions.size() >= entries.size()
                        && std::equal(entries.begin(), entries.end(), actions.end() - entries.size());
    if (isInOrder || !mayCorrect(place))
        return;
    for (QAction *entry : entries) {
        place->removeAction(entry);
        place->addAction(entry);
    }
}

bool MenuEntries::mayCorrect(const QWidget *place)
{
    Corrections &corrections = m_prepared[place];
    if (!corrections.since.isValid() || corrections.since.hasExpired(kCorrectionsPeriod)) {
        corrections.since.start();
        corrections.count = 0;
    }
    return ++corrections.count <= kCorrections;
}

} // namespace gesturewidget
