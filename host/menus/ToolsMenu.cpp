#include "host/menus/ToolsMenu.h"

#include "host/window/Captions.h"
#include "host/window/MenuChanges.h"

#include <QCoreApplication>
#include <QMenuBar>

namespace gesturewidget {
namespace {

bool isNamed(const QMenu &menu, const QString &name)
{
    return menu.objectName() == name || plainCaption(menu.title()) == name;
}

bool hasRole(const QMenu &menu, const QString &role)
{
    return menuRole(menu.objectName()) == role || menuRole(plainCaption(menu.title())) == role;
}

} // namespace

ToolsMenu::ToolsMenu(const MenuChanges &watcher, const QString &wanted)
    : m_watcher(watcher)
    , m_wanted(wanted)
{
}

ToolsMenu::~ToolsMenu()
{
    delete m_made;
}

QMenu *ToolsMenu::find() const
{
    const QMenuBar *menuBar = bar();
    QMenu *own = menuBar ? programsOwn(*menuBar) : nullptr;
    return own || !menuBar ? own : m_made.data();
}

QMenu *ToolsMenu::findOrMake()
{
    QMenuBar *menuBar = bar();
    if (!menuBar)
        return nullptr;
    if (QMenu *own = programsOwn(*menuBar))
        return own;
    if (!m_made) {
        m_made = new QMenu(QCoreApplication::translate("host", "&Tools"), menuBar);
        m_made->menuAction()->setVisible(false);
    }
    QAction *action = m_made->menuAction();
    if (!menuBar->actions().contains(action)) {
        QAction *help = nullptr;
        const QList<QAction *> actions = menuBar->actions();
        for (QAction *other : actions) {
            if (other->menu() && hasRole(*other->menu(), QStringLiteral("help")))
                help = other;
        }
        menuBar->insertAction(help, action);
    }
    return m_made;
}

void ToolsMenu::updateVisibility()
{
    if (m_made && m_made->menuAction()->isVisible() == m_made->isEmpty())
        m_made->menuAction()->setVisible(!m_made->isEmpty());
}

QMenuBar *ToolsMenu::bar() const
{
    const QVector<QMenuBar *> bars = m_watcher.menuBars();
    return bars.isEmpty() ? nullptr : bars.first();
}

QMenu *ToolsMenu::programsOwn(const QMenuBar &bar) const
{
    QMenu *named = nullptr;
    QMenu *byRole = nullptr;
    const QList<QAction *> actions = bar.actions();
    for (const QAction *action : actions) {
        QMenu *menu = action->menu();
        if (!menu || menu == m_made || !action->isVisible())
            continue;
        if (!named && !m_wanted.isEmpty() && isNamed(*menu, m_wanted))
            named = menu;
        if (!byRole && hasRole(*menu, QStringLiteral("tools")))
            byRole = menu;
    }
    return named ? named : byRole;
}

} // namespace gesturewidget
