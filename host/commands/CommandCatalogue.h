#pragma once

#include "host/commands/ActionItem.h"
#include "host/commands/CommandGroup.h"
#include "host/window/MenuChanges.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <memory>
#include <vector>

class QMainWindow;

namespace gesturewidget {

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
// commands can be expected that no menu has had yet, and remembered from earlier starts.
//
// Of the remembered ones without an object name some are the entries of lists: documents
// that were opened last, windows. They are not offered again while the menu that had them
// is there without them.
//
// Reading is cheap: the menus are walked again only after they have changed, and some time
// after a change this is done without being asked, so that a gesture need not wait for it.
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
    // Offers a command from now on in any case, also while no action stands for it. The
    // caption is for one that nothing is known of yet.
    void expect(const QString &identifier, const QString &caption);
    // Offers the commands that the program had when it ran before; they keep the identifiers
    // that they had. To be called before anything else is known.
    void remember(const QVector<RememberedCommand> &commands);
    // From now on guesses which actions the well-known identifiers stand for that the
    // profile leaves out. To be called before anything is read: a command keeps the
    // identifier that it was first seen with.
    //
    // They are all expected at first: many a program shows a part of its menus until a
    // drawing is open, and what is not offered leaves its direction for good.
    void guessWellKnown();
    // The menus are as complete as they get: the well-known commands that no action was
    // found for are not offered, until one is.
    void endGuessing();
    // Why an action was taken for that identifier; empty unless it was guessed.
    [[nodiscard]] QString reasonFor(const QString &identifier) const
    {
        return m_reasons.value(identifier);
    }
    // The command that stands for the action; null for separators, menus and strangers.
    [[nodiscard]] ActionItem *itemOf(const QAction *action);
    [[nodiscard]] bool contains(const CHxUICommandItem *item) const;
    // All commands in the order of first sight, those that are not offered as well.
    [[nodiscard]] const std::vector<std::unique_ptr<ActionItem>> &items();
    // Whether a remembered command is taken for the entry of a list, which is gone.
    [[nodiscard]] bool isOutlived(const ActionItem &item) const;
    // Whether the top-level menu or the toolbar of that name is there at the moment.
    [[nodiscard]] bool isShown(const QString &group) const { return m_places.contains(group); }
    [[nodiscard]] MenuChanges &watcher() { return m_watcher; }

    // Walks the menus now if they have changed; every reading does so by itself.
    void update();
    // Milliseconds from the first of many changes until they are read. Nothing is read by
    // itself before the first reading: guesses need menus that are complete.
    static constexpr int kPreparationTime = 250;
    // Walks the menus again at the next reading, whether or not they have changed.
    void invalidate() { m_stale = true; }

Q_SIGNALS:
    // The menus' structure has changed; emitted at once, in the middle of the change.
    void menusChanged();
    // What has changed is read; emitted from the event loop, kPreparationTime after a change.
    void prepared();

private:
    // A menu, menu bar or toolbar.
    struct Place
    {
        QString group; // empty in a menu bar
        QString path; // the captions on the way to it
        bool isInToolBar = false;
    };

    // An action that a scan met and no command stands for yet, with its place.
    struct Newcomer
    {
        QAction *action;
        QString group;
        QString path; // with its own caption
        bool isInToolBar;
    };

    void onActionChanged(QAction *action);
    void prepareSoon();
    void prepare();
    void scan();
    void walk(QWidget *widget, const Place &place);
    void meet(QAction *action, const Place &place);
    void admit(const Newcomer &newcomer);
    ActionItem *reusable(const QString &key, bool *isTaken) const;
    void guess();
    QString wellKnownFor(const Newcomer &newcomer, const QString &key) const;
    ActionItem *expectedFor(const QString &identifier) const;
    ActionItem *add(const QString &identifier, const QString &key);
    void arrangeGroups();
    CommandGroup &groupNamed(const QString &name);

    MenuChanges m_watcher;
    QHash<QString, QStringList> m_wellKnown; // identifier to keys
    QHash<QString, QString> m_identifiers; // the other way round
    std::vector<std::unique_ptr<ActionItem>> m_items; // in the order of first sight
    QSet<const CHxUICommandItem *> m_known;
    QHash<const QAction *, ActionItem *> m_byAction;
    QHash<QString, ActionItem *> m_byName; // identifiers and keys
    std::vector<std::unique_ptr<CommandGroup>> m_groups;
    QHash<QString, CommandGroup *> m_groupsByName;
    QSet<QString> m_places; // the paths of the menus and toolbars that the last scan met
    QSet<const QAction *> m_changedActions;
    QHash<QString, QString> m_reasons; // of guesses, by identifier
    bool m_guesses = false;
    bool m_stale = true;
    bool m_wasRead = false;
    QTimer m_preparation;

    // Only during a scan.
    QSet<const QWidget *> m_visited;
    std::vector<ActionItem *> m_met; // in the order of the menus
    std::vector<Newcomer> m_newcomers;
    QHash<const QAction *, QString> m_guessed; // newcomers, to identifier
    QHash<QString, int> m_nextNumbers; // of equal captions, by path
};

} // namespace gesturewidget
