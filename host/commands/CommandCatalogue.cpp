// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"

#include "host/commands/WellKnownGuess.h"
#include "host/files/CommandNames.h"
#include "host/files/DocumentName.h"
#include "host/window/EntryAction.h"
#include "sdk/OwnCode.h"

#include <QMainWindow>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace gesturewidget {

CommandCatalogue::Window::Window(QMainWindow *mainWindow)
    : window(mainWindow)
    , watcher(mainWindow)
{
}

CommandCatalogue::CommandCatalogue(QMainWindow *window, const QHash<QString, QStringList> &wellKnown)
    : m_wellKnown(wellKnown)
{
    QStringList identifiers = wellKnown.keys();
    std::sort(identifiers.begin(), identifiers.end());
    for (const QString &identifier : std::as_const(identifiers)) {
        const QStringList keys = wellKnown.value(identifier);
        for (const QString &key : keys) {
            if (!m_identifiers.contains(key))
                m_identifiers.insert(key, identifier);
        }
    }
    addWindow(window);
    m_current = m_windows.front().get();
    m_preparation.setSingleShot(true);
    m_preparation.setInterval(kPreparationTime);
    connect(&m_preparation, &QTimer::timeout, this, &CommandCatalogue::prepare);
}

CommandCatalogue::~CommandCatalogue() = default;

void CommandCatalogue::addWindow(QMainWindow *window)
{
    if (windowFor(window))
        return;
    m_windows.push_back(std::make_unique<Window>(window));
    Window *added = m_windows.back().get();
    connect(&added->watcher, &MenuChanges::structureChanged, this, [this, added] {
        added->isStale = true;
        if (added == m_current)
            prepareSoon();
        Q_EMIT menusChanged(&added->watcher);
    });
    connect(&added->watcher, &MenuChanges::actionChanged, this,
            [this, added](QAction *action) { onActionChanged(*added, action); });
}

void CommandCatalogue::setCurrentWindow(const QWidget *window)
{
    Window *next = windowFor(window);
    if (!next || next == m_current)
        return;
    for (const auto &item : m_items)
        item->showIn(m_current->window, next->window);
    m_current = next;
    ++m_assignment;
    arrangeGroups();
    if (next->isStale)
        prepareSoon();
    Q_EMIT currentWindowChanged();
}

void CommandCatalogue::removeWindow(const QWidget *window)
{
    const auto isWindow = [window](const auto &known) { return known->window == window; };
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), isWindow);
    if (found == m_windows.end() || found->get() == m_current)
        return;
    (*found)->watcher.disconnect(this);
    m_removed.push_back(std::move(*found));
    m_windows.erase(found);
    // An action may be in several windows.
    ++m_assignment;
    m_byAction.clear();
    for (const auto &item : m_items) {
        item->forget(window);
        item->forEachAddress([&](const QAction *action) { m_byAction.insert(action, item.get()); });
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            const OwnCode ours;
            m_removed.clear();
        },
        Qt::QueuedConnection);
}

CommandCatalogue::Window *CommandCatalogue::windowFor(const QWidget *window) const
{
    const auto isWindow = [window](const auto &known) { return known->window == window; };
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), isWindow);
    return found == m_windows.end() ? nullptr : found->get();
}

MenuChanges &CommandCatalogue::watcherOf(const QWidget *window)
{
    Window *known = windowFor(window);
    return (known ? known : m_current)->watcher;
}

void CommandCatalogue::invalidate()
{
    for (const auto &window : m_windows)
        window->isStale = true;
}

const std::vector<std::unique_ptr<CommandGroup>> &CommandCatalogue::groups()
{
    update();
    return m_groups;
}

ActionItem *CommandCatalogue::find(const QString &name)
{
    update();
    return m_byName.value(name);
}

ActionItem *CommandCatalogue::findUsable(const QString &name)
{
    update();
    const QStringList keys = m_wellKnown.value(name);
    for (const QString &key : keys) {
        ActionItem *item = m_byName.value(key);
        if (item && item->isUsable())
            return item;
    }
    return m_byName.value(name);
}

void CommandCatalogue::expect(const QString &identifier, const QString &caption)
{
    if (identifier.isEmpty())
        return;
    ActionItem *item = m_byName.value(identifier);
    if (!item) {
        item = add(identifier, m_wellKnown.value(identifier).value(0, identifier));
        item->setCaption(caption);
    }
    item->isExpected = true;
    invalidate(); // the next reading gives it its place
}

void CommandCatalogue::guessWellKnown()
{
    m_guesses = true;
    const QStringList identifiers = WellKnownGuess::identifiers();
    for (const QString &identifier : identifiers) {
        if (!m_wellKnown.contains(identifier))
            expect(identifier, captionFrom(identifier));
    }
}

bool CommandCatalogue::isExpected(const QString &identifier) const
{
    const ActionItem *item = m_byName.value(identifier);
    return item && item->isExpected && !item->isLacking;
}

void CommandCatalogue::trust(const QStringList &identifiers)
{
    for (const QString &identifier : identifiers) {
        m_trusted.insert(identifier);
        ActionItem *item = m_byName.value(identifier);
        if (item && item->isLacking && !WellKnownGuess::identifiers().contains(identifier)) {
            item->isLacking = false;
            invalidate();
        }
    }
}

void CommandCatalogue::endGuessing()
{
    m_hasEndedGuessing = true;
    update();
    const QStringList wellKnown = WellKnownGuess::identifiers();
    QStringList unseen;
    for (const auto &item : m_items) {
        const QString identifier = item->GetIdentifier().toQString();
        if (!item->isExpected || item->isLacking || !expectedFor(identifier)
            || m_wellKnown.contains(identifier))
            continue;
        if (wellKnown.contains(identifier)) {
            item->isLacking = m_guesses;
        } else if (!m_trustsAll && !m_trusted.contains(identifier)) {
            item->isLacking = true;
            unseen.append(identifier);
        }
    }
    invalidate();
    if (!unseen.isEmpty())
        Q_EMIT dropped(unseen);
}

void CommandCatalogue::dropUnseen(const QString &prefix)
{
    update();
    QStringList unseen;
    for (const auto &item : m_items) {
        const QString identifier = item->GetIdentifier().toQString();
        if (!identifier.startsWith(prefix) || !item->isExpected || item->isLacking
            || !expectedFor(identifier) || m_wellKnown.contains(identifier)
            || m_trusted.contains(identifier))
            continue;
        item->isLacking = true;
        unseen.append(identifier);
    }
    if (unseen.isEmpty())
        return;
    invalidate();
    Q_EMIT dropped(unseen);
}

void CommandCatalogue::remember(const QVector<RememberedCommand> &commands)
{
    QHash<QString, QString> keys; // by identifier
    for (const RememberedCommand &command : commands)
        keys.insert(command.identifier,
                    command.command.isEmpty() ? command.identifier : command.command);
    for (const RememberedCommand &command : commands) {
        QString key = keys.value(command.identifier);
        // The profile may have changed since then, and it decides.
        const QStringList wellKnownKeys = m_wellKnown.value(command.identifier);
        if (!wellKnownKeys.isEmpty() && !wellKnownKeys.contains(key))
            key = wellKnownKeys.first();
        const QString wellKnown = m_identifiers.value(key, command.identifier);
        const bool isRenamed = wellKnown != command.identifier
                            && !m_wellKnown.value(wellKnown).contains(keys.value(wellKnown));
        if (isRenamed || m_byName.contains(command.identifier) || m_byName.contains(key))
            continue;
        ActionItem *item = add(command.identifier, key);
        item->recall(command);
        item->isRemembered = key == keys.value(command.identifier);
    }
    invalidate();
}

const std::vector<std::unique_ptr<ActionItem>> &CommandCatalogue::items()
{
    update();
    return m_items;
}

bool CommandCatalogue::isOutlived(const ActionItem &item) const
{
    if (item.isExpected || item.hasHadAction())
        return false;
    // A key that is a path ends with the caption, and with a number if there are several.
    static const QRegularExpression number(QStringLiteral(" \\(\\d+\\)$"));
    const QString caption = QLatin1Char('/') + item.caption();
    QString path = item.key();
    if (!path.endsWith(caption))
        path.remove(number);
    return path.endsWith(caption) && m_current->places.contains(path.chopped(caption.size()));
}

ActionItem *CommandCatalogue::itemOf(const QAction *action)
{
    update();
    ActionItem *item = m_byAction.value(action);
    return item && item->action() == action && item->here.isPresent ? item : nullptr;
}

int CommandCatalogue::assignment()
{
    update();
    return m_assignment;
}

bool CommandCatalogue::contains(const CHxUICommandItem *item) const
{
    return m_known.contains(item);
}

void CommandCatalogue::onActionChanged(Window &window, QAction *action)
{
    if (qobject_cast<EntryAction *>(action))
        return;
    const bool isCurrent = &window == m_current;
    if (isCurrent)
        prepareSoon();
    const ActionItem *item = m_byAction.value(action);
    // Some programs keep an action for each recent document and change its caption.
    const bool isStill =
        ActionItem::isCommand(action)
        && (item && (item->here.isListEntry || !namesADocument(ActionItem::captionOf(action))));
    const bool isPresent = item && (isCurrent ? item->here.isPresent : item->isPresentIn(window.window));
    if (isPresent && isStill) {
        window.changedActions.insert(action);
        return;
    }
    // A separator, a menu, or something that has just become a command or ceased to be one.
    window.isStale = true;
    Q_EMIT menusChanged(&window.watcher);
}

// Only the first of many changes starts the timer. Otherwise a program that never rests would put
// it off forever. Also, starting a timer takes longer than all other work for a change.
void CommandCatalogue::prepareSoon()
{
    if (m_wasRead && !m_preparation.isActive())
        m_preparation.start();
}

void CommandCatalogue::prepare()
{
    const OwnCode ours;
    update();
    Q_EMIT prepared();
}

void CommandCatalogue::readChanges()
{
    if (m_current->isStale)
        scan();
    QSet<const QAction *> &changed = m_current->changedActions;
    for (const QAction *action : std::as_const(changed)) {
        ActionItem *item = m_byAction.value(action);
        if (item && item->action() == action)
            m_namesAreStale |= item->read();
    }
    changed.clear();
    if (m_namesAreStale)
        giveNames();
}

void CommandCatalogue::scan()
{
    m_current->isStale = false;
    m_wasRead = true;
    ++m_assignment;
    for (const auto &item : m_items)
        item->here.wasPresent = std::exchange(item->here.isPresent, false);
    m_current->met.clear();
    m_current->met.reserve(m_items.size());
    MenuWalk menus(watcher(), [this](QAction *action, const MenuWalk::Place &place, bool isListEntry) {
        meet(action, place, isListEntry);
    });
    m_current->places = menus.run();
    // Newcomers come last: only now is it clear which keys are free.
    if (m_guesses)
        guess();
    for (const Newcomer &newcomer : m_newcomers)
        admit(newcomer);
    arrangeGroups();
    m_newcomers.clear();
    m_guessed.clear();
    m_nextNumbers.clear();
}

void CommandCatalogue::guess()
{
    QStringList wanted = WellKnownGuess::identifiers();
    const auto isSettled = [this](const QString &identifier) {
        return m_wellKnown.contains(identifier)
            || (m_byName.contains(identifier) && !expectedFor(identifier));
    };
    wanted.erase(std::remove_if(wanted.begin(), wanted.end(), isSettled), wanted.end());
    if (wanted.isEmpty())
        return;
    QVector<QAction *> actions;
    for (const Newcomer &newcomer : m_newcomers) {
        if (m_byName.value(newcomer.action->objectName()) == nullptr) // else a known one is back
            actions.append(newcomer.action);
    }
    const QVector<WellKnownGuess> guesses = WellKnownGuess::among(actions, wanted);
    for (const WellKnownGuess &found : guesses) {
        m_guessed.insert(found.action, found.identifier);
        m_reasons.insert(found.identifier, found.reason);
    }
}

bool CommandCatalogue::isBound(const QAction &action, const QString &path) const
{
    for (const QString &key : {action.objectName(), path}) {
        const ActionItem *item = key.isEmpty() ? nullptr : m_byName.value(key);
        if (item && item->isExpected)
            return true;
    }
    return false;
}

void CommandCatalogue::meet(QAction *action, const MenuWalk::Place &place, bool isListEntry)
{
    ActionItem *item = m_byAction.value(action);
    // A new action may have the address of a deleted one.
    const bool isKnown = item && item->action() == action;
    if (isKnown)
        item->here.isListEntry = isListEntry;
    const auto path = [&] { return MenuWalk::joined(place.path, ActionItem::captionOf(action)); };
    if (isListEntry && !isBound(*action, path()))
        return;
    const auto here = [&]() -> ActionItem::Here {
        return {place.group.isEmpty() ? ActionItem::captionOf(action) : place.group,
                place.way,
                place.isInToolBar,
                true,
                false,
                isListEntry};
    };
    if (!isKnown) {
        m_newcomers.push_back({action, path(), here()});
        return;
    }
    if (item->here.isPresent)
        return;
    const bool wasPresent = item->here.wasPresent;
    item->here = here();
    if (!wasPresent)
        item->read(); // its changes were not reported while it was in no menu
    m_current->met.push_back(item);
}

void CommandCatalogue::admit(const Newcomer &newcomer)
{
    ActionItem *known = m_byAction.value(newcomer.action);
    if (known && known->action() == newcomer.action && known->here.isPresent)
        return; // it is in two places, and was admitted at the first
    ActionItem *item = commandFor(newcomer);
    if (m_byAction.value(item->address()) == item)
        m_byAction.remove(item->address());
    item->setAction(newcomer.action);
    item->here = newcomer.here;
    m_byAction.insert(newcomer.action, item);
    m_current->met.push_back(item);
}

// Returns the command that an action with this key had before, or a new one.
ActionItem *CommandCatalogue::commandFor(const Newcomer &newcomer)
{
    const QString name = newcomer.action->objectName();
    QString key = name.isEmpty() ? newcomer.path : name;
    bool isTaken = false;
    ActionItem *item = reusable(key, &isTaken);
    if (!item && isTaken) {
        // Lists repeat a caption thousands of times: the numbers that this scan has found taken
        // are not tried again.
        int &number = m_nextNumbers[newcomer.path];
        for (; !item && isTaken; ++number) {
            key = number == 0 ? newcomer.path
                              : QStringLiteral("%1 (%2)").arg(newcomer.path).arg(number + 1);
            item = reusable(key, &isTaken);
        }
    }
    if (item)
        return item;
    const QString wellKnown = wellKnownFor(newcomer, key);
    item = expectedFor(wellKnown);
    if (!item)
        return add(wellKnown.isEmpty() || m_byName.contains(wellKnown) ? key : wellKnown, key);
    if (item->key() != wellKnown)
        m_byName.remove(item->key()); // its action may still appear, as another command
    item->setKey(key);
    m_byName.insert(key, item);
    return item;
}

// Returns the command of that key if its action is gone. Returns null otherwise; `isTaken` then
// says if the key is in use.
ActionItem *CommandCatalogue::reusable(const QString &key, bool *isTaken) const
{
    if (key.isEmpty() || !m_wellKnown.value(key, {key}).contains(key)) {
        *isTaken = true; // the profile means another action by this identifier
        return nullptr;
    }
    ActionItem *item = m_byName.value(key);
    *isTaken = item != nullptr;
    return item && item->key() == key && !item->here.isPresent ? item : nullptr;
}

// Returns the action's well-known identifier by the profile, else by a guess; empty if there is
// none.
QString CommandCatalogue::wellKnownFor(const Newcomer &newcomer, const QString &key) const
{
    const QString byPath = m_identifiers.value(newcomer.path, m_guessed.value(newcomer.action));
    return m_identifiers.value(key, byPath);
}

// Returns the command of that identifier if it is only expected and has had no action; null
// otherwise.
ActionItem *CommandCatalogue::expectedFor(const QString &identifier) const
{
    ActionItem *item = identifier.isEmpty() ? nullptr : m_byName.value(identifier);
    const bool isExpectedOnly = item && !item->hasHadAction() && !item->isRemembered
                             && item->GetIdentifier() == CHxString(identifier);
    return isExpectedOnly ? item : nullptr;
}

ActionItem *CommandCatalogue::add(const QString &identifier, const QString &key)
{
    m_items.push_back(std::make_unique<ActionItem>(identifier, key));
    ActionItem *item = m_items.back().get();
    m_known.insert(item);
    m_byName.insert(key, item);
    m_byName.insert(identifier, item);
    return item;
}

void CommandCatalogue::arrangeGroups()
{
    for (const auto &group : m_groups)
        group->items.clear();
    for (ActionItem *item : m_current->met)
        groupNamed(item->here.group).items.push_back(item);
    for (const auto &item : m_items) {
        const bool isLacking = item->isLacking && !item->hasHadAction();
        const bool isListEntry = item->here.isListEntry && !item->isExpected;
        if (!item->here.isPresent && !isLacking && !isListEntry && !isOutlived(*item))
            groupNamed(item->here.group).items.push_back(item.get());
    }
    giveNames();
}

// Tells the commands that are offered apart.
void CommandCatalogue::giveNames()
{
    m_namesAreStale = false;
    QVector<RememberedCommand> commands;
    std::vector<ActionItem *> named;
    for (const auto &group : m_groups) {
        for (CHxUICommandItem *offered : group->items) {
            auto *item = static_cast<ActionItem *>(offered);
            if (item->here.group.isEmpty())
                continue; // expected, and nobody knows where it will be
            commands.append(item->remembered());
            named.push_back(item);
        }
    }
    const QStringList names = commandNames(commands);
    for (std::size_t i = 0; i < named.size(); ++i)
        named[i]->setName(names.at(static_cast<int>(i)));
}

CommandGroup &CommandCatalogue::groupNamed(const QString &name)
{
    CommandGroup *&group = m_groupsByName[name];
    if (!group) {
        m_groups.push_back(std::make_unique<CommandGroup>(name));
        group = m_groups.back().get();
    }
    return *group;
}

} // namespace gesturewidget
