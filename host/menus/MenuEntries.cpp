// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/MenuEntries.h"

#include "host/menus/ModuleEntries.h"
#include "host/menus/ToolsMenu.h"
#include "host/window/MenuChanges.h"
#include "sdk/OwnCode.h"

#include <algorithm>

namespace gesturewidget {
namespace {

// An entry is moved back at most this many times in this many milliseconds, in a menu that nobody
// opens. Two programs that both want to be last must not keep each other busy forever.
constexpr int kCorrections = 8;
constexpr qint64 kCorrectionsPeriod = 1000;

} // namespace

MenuEntries::MenuEntries(ModuleEntries &entries, QWidget *window, MenuChanges &watcher, ToolsMenu &tools)
    : m_entries(entries)
    , m_window(window)
    , m_watcher(watcher)
    , m_tools(tools)
{
    m_entries.addMenus(this);
}

MenuEntries::~MenuEntries()
{
    m_entries.removeMenus(this);
}

UiMenuItem *MenuEntries::entryOf(const CHxUIMenuItem *item) const
{
    return m_entries.entryOf(item);
}

void MenuEntries::append(UiMenuItem *item, QWidget *place)
{
    if (!place)
        return;
    if (place == m_tools.find()) {
        m_entries.appendToTools(item);
    } else {
        m_entries.remove(item);
        put(item, place, false);
    }
}

void MenuEntries::remove(UiMenuItem *item, const QWidget *place)
{
    const auto isThere = [item, place](const Placed &placed) {
        return placed.item == item && placed.place == place;
    };
    if (std::any_of(m_placed.begin(), m_placed.end(), isThere))
        m_entries.remove(item);
}

void MenuEntries::putIntoTools(UiMenuItem *item)
{
    put(item, m_tools.findOrMake(), true);
}

void MenuEntries::put(UiMenuItem *item, QWidget *place, bool isForTools)
{
    std::unique_ptr<EntryAction> action = item->newAction();
    connect(action.get(), &QAction::triggered, this, [this, item] {
        const OwnCode ours;
        m_entries.choose(*item, m_window);
    });
    m_isRestoring = true;
    if (place) { // a window without a menu bar may get one
        prepare(place);
        place->addAction(action.get());
    }
    m_placed.push_back({item, std::move(action), place, isForTools});
    m_tools.updateVisibility();
    m_isRestoring = false;
}

void MenuEntries::takeOut(const UiMenuItem *item)
{
    m_isRestoring = true;
    const auto isItem = [item](const Placed &placed) { return placed.item == item; };
    m_placed.erase(std::remove_if(m_placed.begin(), m_placed.end(), isItem), m_placed.end());
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
    const OwnCode ours;
    m_isScheduled = false;
    m_isRestoring = true;
    QHash<QWidget *, QVector<QAction *>> byPlace;
    for (Placed &placed : m_placed) {
        QWidget *place = placed.isForTools ? m_tools.findOrMake() : placed.place.data();
        if (place != placed.place && placed.place)
            placed.place->removeAction(placed.action.get());
        placed.place = place;
        if (place)
            byPlace[place].append(placed.action.get());
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
    connect(place, &QObject::destroyed, this, [this](const QObject *gone) {
        const OwnCode ours;
        m_prepared.remove(gone);
    });
    // A program that fills a menu whenever it opens has connected before this. So the entry is
    // back before the menu is shown.
    if (auto *menu = qobject_cast<QMenu *>(place)) {
        connect(menu, &QMenu::aboutToShow, this, [this, menu] {
            const OwnCode ours;
            m_prepared[menu] = {};
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
    for (QAction *entry : entries)
        place->addAction(entry); // moves it
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
