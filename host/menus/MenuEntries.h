#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class CHxUICommandItem;
class CHxUIMenuItem;
class QAction;
class QWidget;

namespace gesturewidget {

class MenuChanges;
class ToolsMenu;
class UiMenuItem;

// Owns the entries of modules and keeps them at the end of the menus that they were put into, also when
// the program clears a menu and fills it again or replaces it.
class MenuEntries : public QObject
{
    Q_OBJECT

public:
    MenuEntries(MenuChanges &watcher, ToolsMenu &tools);
    ~MenuEntries() override;

    [[nodiscard]] UiMenuItem *create(const QString &identifier, const QString &text, const QString &tip);
    // Takes the entry out of its menu and destroys it. Here and below, what is no entry of
    // these, null or gone already, is ignored.
    void destroy(const CHxUIMenuItem *item);
    // The item as one of these entries; null if it is none. Only compares.
    [[nodiscard]] UiMenuItem *entryOf(const CHxUIMenuItem *item) const;
    // Entries that ran this command run nothing.
    void forgetCommand(const CHxUICommandItem *command);

    // Puts an entry last into a menu or menu bar, at once; takes it out of where it was.
    void append(UiMenuItem *item, QWidget *place);
    // Takes an entry out; nothing happens to one that is in no menu.
    void remove(UiMenuItem *item);
    // Puts every entry back to where it belongs, when control is in the event loop again.
    void restoreLater();
    // The same at once.
    void restore();

private:
    struct Corrections
    {
        QElapsedTimer since;
        int count = 0;
    };

    void prepare(QWidget *place);
    void restoreIn(QWidget *place, const QVector<QAction *> &entries);
    bool mayCorrect(const QWidget *place);

    MenuChanges &m_watcher;
    ToolsMenu &m_tools;
    std::vector<std::unique_ptr<UiMenuItem>> m_items;
    std::vector<UiMenuItem *> m_placed; // in the order in which they were appended
    QHash<const QObject *, Corrections> m_prepared;
    bool m_isRestoring = false;
    bool m_isScheduled = false;
};

} // namespace gesturewidget
