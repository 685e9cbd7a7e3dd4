#pragma once

#include <QMenu>
#include <QPointer>
#include <QString>

class QMenuBar;

namespace gesturewidget {

class MenuChanges;

// The menu that modules put their entries into. The program's own one where it has one;
// otherwise a menu that is made here and shows only while something is in it.
class ToolsMenu
{
public:
    // `wanted` is the object name or caption of the program's menu. If it is empty or no menu
    // has it, the menu is the one that either calls "Tools" in a known language.
    ToolsMenu(const MenuChanges &watcher, const QString &wanted);
    ~ToolsMenu();
    Q_DISABLE_COPY_MOVE(ToolsMenu)

    // Null when there is none: the program has none and nobody has asked for one yet.
    [[nodiscard]] QMenu *find() const;
    // Null only without a menu bar. A menu that is made stands before Help;
    // its caption is in the language of the program's other menus.
    [[nodiscard]] QMenu *findOrMake();
    // The menu that was made; null if none.
    [[nodiscard]] QMenu *made() const { return m_made; }
    // Hides the made menu when nothing is in it, and shows it again.
    void updateVisibility();

private:
    [[nodiscard]] QMenuBar *bar() const;
    [[nodiscard]] QMenu *programsOwn(const QMenuBar &bar) const;

    const MenuChanges &m_watcher;
    QString m_wanted;
    QPointer<QMenu> m_made;
};

} // namespace gesturewidget
