#pragma once

#include "host/ActionItem.h"
#include "host/CommandGroup.h"
#include "host/MenuWatcher.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <vector>

class QMainWindow;

namespace host {

// Every command that the program has offered since it started: the actions of its menus
// and of its toolbars, each once.
//
// A command's key finds its action again at the next start. It is the action's object
// name; without one, or when another action has that name already, the captions on the
// way to it, such as "File/Export/Drawing...". The identifier is the key too, unless the
// program's profile gives the action a well-known one.
//
// A command is kept when its action goes, and taken up again by an action with the same
// key: programs rebuild their menus, and a binding must outlive that. For the same reason
// commands can be expected that no menu has had yet.
//
// Reading is cheap: the menus are walked again only after they have changed.
class CommandCatalogue : public QObject
{
    Q_OBJECT

public:
    // `wellKnown`: identifier to keys, see ProgramProfile.
    CommandCatalogue(QMainWindow *window, const QHash<QString, QStringList> &wellKnown);
    ~CommandCatalogue() override;

    // The commands by top-level menu in the order of the menu bar, then by toolbar. Both
    // groups and commands stay valid as long as the catalogue does.
    [[nodiscard]] const std::vector<std::unique_ptr<CommandGroup>> &groups();
    // The command with that identifier or key, also one that is gone; null if none.
    [[nodiscard]] ActionItem *find(const QString &name);
    // The command to run for that identifier or key: the first of the keys of a well-known
    // identifier whose action can be used at the moment; otherwise as find().
    [[nodiscard]] ActionItem *findUsable(const QString &name);
    // Offers a command from now on, also while no action stands for it. Does nothing when
    // the identifier is known.
    void expect(const QString &identifier, const QString &caption);
    // From now on guesses which actions the well-known identifiers stand for that the
    // profile leaves out. To be called before anything is read: a command keeps the
    // identifier that it was first seen with.
    void guessWellKnown() { m_guesses = true; }
    // Why an action was taken for that identifier; empty unless it was guessed.
    [[nodiscard]] QString reasonFor(const QString &identifier) const
    {
        return m_reasons.value(identifier);
    }
    // The command that stands for the action; null for separators, menus and strangers.
    [[nodiscard]] ActionItem *itemOf(const QAction *action);
    [[nodiscard]] bool contains(const CHxUICommandItem *item) const;
    [[nodiscard]] MenuWatcher &watcher() { return m_watcher; }

    // Walks the menus now if they have changed; every reading does so by itself.
    void update();
    // Walks the menus again at the next reading, whether or not they have changed.
    void invalidate() { m_stale = true; }
    // How often the menus have been walked.
    [[nodiscard]] int scans() const { return m_scans; }

Q_SIGNALS:
    // The menus' structure has changed; emitted at once, in the middle of the change.
    void menusChanged();

private:
    // An action that a scan met and no command stands for yet, with its place.
    struct Newcomer
    {
        QAction *action;
        QString group;
        QString path;
    };

    void onActionChanged(QAction *action);
    void scan();
    void walk(QWidget *place, const QString &group, const QString &path);
    void meet(QAction *action, const QString &group, const QString &path);
    void admit(const Newcomer &newcomer);
    ActionItem *reusable(const QString &key, bool *isTaken) const;
    void guess();
    QString wellKnownFor(const Newcomer &newcomer, const QString &key) const;
    ActionItem *expectedFor(const QString &identifier) const;
    ActionItem *add(const QString &identifier, const QString &key);
    void arrangeGroups();
    CommandGroup &groupNamed(const QString &name);

    MenuWatcher m_watcher;
    QHash<QString, QStringList> m_wellKnown; // identifier to keys
    QHash<QString, QString> m_identifiers; // the other way round
    std::vector<std::unique_ptr<ActionItem>> m_items; // in the order of first sight
    QSet<const CHxUICommandItem *> m_known;
    QHash<const QAction *, ActionItem *> m_byAction;
    QHash<QString, ActionItem *> m_byName; // identifiers and keys
    std::vector<std::unique_ptr<CommandGroup>> m_groups;
    QHash<QString, CommandGroup *> m_groupsByName;
    QSet<const QAction *> m_changedActions;
    QHash<QString, QString> m_reasons; // of guesses, by identifier
    bool m_guesses = false;
    bool m_stale = true;
    int m_scans = 0;

    // Only during a scan.
    QSet<const QWidget *> m_visited;
    std::vector<ActionItem *> m_met; // in the order of the menus
    std::vector<Newcomer> m_newcomers;
    QHash<const QAction *, QString> m_guessed; // newcomers, to identifier
};

} // namespace host
