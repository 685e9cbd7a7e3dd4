// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/commands/ActionItem.h"
#include "host/commands/CommandGroup.h"
#include "host/commands/MenuWalk.h"
#include "host/files/Phrase.h"
#include "host/window/MenuChanges.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <vector>

class QMainWindow;

namespace gesturewidget {

// Every command that the program has offered since it started: the actions of its menus and
// toolbars, each once.
//
// In a program with several main windows a command has an action in each of them, and one window is
// the current one. Everything here is about that window: the order of commands, their texts, and
// which of them are there.
//
// A command's key finds its action again at the next start. The key is the action's object name.
// If there is none, or another action has the same name, the key is the path of captions to the
// action, such as "File/Export/Drawing...". The identifier is the key too, unless the program's
// profile gives the action a well-known identifier.
//
// A command is kept when its action is gone, and an action with the same key takes it over again:
// programs rebuild their menus, and a binding must outlive that. For the same reason commands can
// be expected before a menu has them, and remembered from earlier starts.
//
// Entries of lists, such as recent documents, open windows, layers and steps to undo, are no
// commands, see ListEntries. One that somebody has bound is offered all the same. Remembered
// commands without an object name that are not recognised as such are not offered while their menu
// is shown without them.
//
// Reading is cheap: the menus are walked again only after they have changed. Some time after a
// change this happens by itself, so that a gesture does not have to wait for it.
class CommandCatalogue : public QObject
{
    Q_OBJECT

public:
    // `window` is the current one; null if the program has none. `wellKnown` maps identifiers to
    // keys, see ProgramProfile.
    CommandCatalogue(QMainWindow *window, const QHash<QString, QStringList> &wellKnown);
    ~CommandCatalogue() override;

    void addWindow(QMainWindow *window);
    // Makes a window the current one. Ignores a window that is not known.
    void setCurrentWindow(const QWidget *window);
    // Forgets a window and the actions of its commands. It may be half destroyed. The current
    // window stays.
    void removeWindow(const QWidget *window);
    [[nodiscard]] const QWidget *currentWindow() const { return m_current->window; }

    // Returns the commands by top-level menu, in the order of the menu bar, then by toolbar.
    // Groups and commands live as long as the catalogue.
    [[nodiscard]] const std::vector<std::unique_ptr<CommandGroup>> &groups();
    // Returns the command with that identifier or key, also if its action is gone; null if there
    // is none.
    [[nodiscard]] ActionItem *find(const QString &name);
    // Returns the command to run for that identifier or key: for a well-known identifier, the
    // first of its keys whose action is usable at the moment; otherwise the same as find().
    [[nodiscard]] ActionItem *findUsable(const QString &name);
    // Offers a command from now on in every case, also without an action. `caption` is used if
    // nothing is known about the command.
    void expect(const QString &identifier, const QString &caption);
    // Returns whether expect() was called for that command, and it is still offered.
    [[nodiscard]] bool isExpected(const QString &identifier) const;
    // Goes on offering such a command although nobody has seen it when the menus are complete. One that
    // was dropped for that is offered again.
    void trust(const QStringList &identifiers);
    // The same for every command that somebody has bound, because nobody knows all commands of the
    // program: it changes its menus, or what earlier starts have seen cannot be read.
    void trustAll() { m_trustsAll = true; }
    // Offers the commands from an earlier start, with the identifiers that they had. Those that are
    // known already stay as they are, so call this before anything else is known.
    void remember(const QVector<RememberedCommand> &commands);
    // Starts guessing the actions of the well-known identifiers that the profile leaves out. Call
    // this before anything is read, because a command keeps its first identifier.
    //
    // All of them are expected at first: many programs show some menus only when a drawing is
    // open, and a direction loses a command that is not offered.
    void guessWellKnown();
    // The menus are complete: guessed commands without an action are not offered until they have
    // one. The same goes for bound commands that no start has ever seen, because their identifiers
    // are probably mistyped. Commands that the profile names or that are trusted stay. Call it again
    // when more commands are expected.
    void endGuessing();
    [[nodiscard]] bool hasEndedGuessing() const { return m_hasEndedGuessing; }
    // The menus show all commands whose identifiers begin so. Bound ones of that kind that no start has
    // ever seen are no longer offered, even after trustAll(). Those that trust() names stay.
    void dropUnseen(const QString &prefix);
    // Returns the reason for a guess; empty if the identifier was not guessed.
    [[nodiscard]] Phrase reasonFor(const QString &identifier) const
    {
        return m_reasons.value(identifier);
    }
    // Returns the action's command; null for separators, menus and unknown actions. A command's action
    // has no menu.
    [[nodiscard]] ActionItem *itemOf(const QAction *action);
    // Returns a number. As long as it stays the same, itemOf() returns the same for every action that
    // exists. Lets a caller with many actions keep what it has found.
    [[nodiscard]] int assignment();
    [[nodiscard]] bool contains(const CHxUICommandItem *item) const;
    // Returns all commands in the order in which they were first seen, also those that are not
    // offered.
    [[nodiscard]] const std::vector<std::unique_ptr<ActionItem>> &items();
    // True if a remembered command is probably the entry of a list and no longer there.
    [[nodiscard]] bool isOutlived(const ActionItem &item) const;
    // True if the top-level menu or toolbar of that name is shown at the moment.
    [[nodiscard]] bool isShown(const QString &group) const { return m_current->places.contains(group); }
    [[nodiscard]] MenuChanges &watcher() { return m_current->watcher; }
    // Returns the one of a window. When the window is removed, it stays until the event loop runs.
    [[nodiscard]] MenuChanges &watcherOf(const QWidget *window);

    // Walks the menus now if they have changed. Every reading does this.
    void update()
    {
        if (m_current->isStale || !m_current->changedActions.isEmpty() || m_namesAreStale)
            readChanges();
    }
    // Milliseconds from the first of many changes until they are read. Nothing is read by itself
    // before the first reading, because guesses need complete menus.
    static constexpr int kPreparationTime = 250;
    // Makes the next reading walk the menus, also if they have not changed.
    void invalidate();

Q_SIGNALS:
    // The structure of the menus of a window has changed. Emitted in the middle of the change.
    void menusChanged(QObject *watcher);
    // Another window is the current one.
    void currentWindowChanged();
    // Bound commands are no longer offered, because the program has never shown them.
    void dropped(const QStringList &identifiers);
    // The changes of the current window are read. Emitted from the event loop, kPreparationTime after a
    // change.
    void prepared();

private:
    // An action that a scan has found and that has no command yet.
    struct Newcomer
    {
        QAction *action;
        QString path; // with its own caption
        ActionItem::Here here;
    };

    // The part that belongs to one main window.
    struct Window
    {
        explicit Window(QMainWindow *mainWindow);

        const QWidget *const window; // for comparing only
        MenuChanges watcher;
        std::vector<ActionItem *> met; // those that are there, in the order of the menus
        QSet<QString> places; // the paths of the menus and toolbars that the last scan met
        QSet<const QAction *> changedActions;
        bool isStale = true;
    };

    [[nodiscard]] Window *windowFor(const QWidget *window) const;
    void onActionChanged(Window &window, QAction *action);
    void prepareSoon();
    void prepare();
    void readChanges();
    void scan();
    void meet(QAction *action, const MenuWalk::Place &place, bool isListEntry);
    // True if somebody has bound the action with that path of captions.
    [[nodiscard]] bool isBound(const QAction &action, const QString &path) const;
    void admit(const Newcomer &newcomer);
    [[nodiscard]] ActionItem *commandFor(const Newcomer &newcomer);
    ActionItem *reusable(const QString &key, bool *isTaken) const;
    void guess();
    QString wellKnownFor(const Newcomer &newcomer, const QString &key) const;
    ActionItem *expectedFor(const QString &identifier) const;
    ActionItem *add(const QString &identifier, const QString &key);
    void arrangeGroups();
    void giveNames();
    CommandGroup &groupNamed(const QString &name);

    std::vector<std::unique_ptr<Window>> m_windows;
    std::vector<std::unique_ptr<Window>> m_removed; // until the event loop runs
    Window *m_current; // never null
    QHash<QString, QStringList> m_wellKnown; // identifier to keys
    QHash<QString, QString> m_identifiers; // the other way round
    std::vector<std::unique_ptr<ActionItem>> m_items; // in the order of first sight
    QSet<const CHxUICommandItem *> m_known;
    QHash<const QAction *, ActionItem *> m_byAction;
    int m_assignment = 0; // see assignment()
    QHash<QString, ActionItem *> m_byName; // identifiers and keys
    std::vector<std::unique_ptr<CommandGroup>> m_groups;
    QHash<QString, CommandGroup *> m_groupsByName;
    QHash<QString, Phrase> m_reasons; // of guesses, by identifier
    QSet<QString> m_trusted; // identifiers
    bool m_trustsAll = false;
    bool m_guesses = false;
    bool m_hasEndedGuessing = false;
    bool m_namesAreStale = false;
    bool m_wasRead = false;
    QTimer m_preparation;

    // Only during a scan.
    std::vector<Newcomer> m_newcomers;
    QHash<const QAction *, QString> m_guessed; // newcomers, to identifier
    QHash<QString, int> m_nextNumbers; // of equal captions, by path
};

} // namespace gesturewidget
