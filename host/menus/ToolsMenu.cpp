// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/ToolsMenu.h"

#include "host/captions/KnownCaptions.h"
#include "host/menus/MenuLanguage.h"
#include "host/window/Captions.h"
#include "host/window/MenuChanges.h"

#include <QCoreApplication>
#include <QMenuBar>

#include <algorithm>

namespace gesturewidget {
namespace {

bool isNamed(const QMenu &menu, const QString &name)
{
    return menu.objectName() == name || plainCaption(menu.title()) == name;
}

// In the words of any of `languages`.
bool hasRole(const QMenu &menu, const QString &role, const QVector<KnownCaptions> &languages)
{
    const QStringList names{menuRole(menu.objectName()), menuRole(plainCaption(menu.title()))};
    return std::any_of(languages.begin(), languages.end(), [&](const KnownCaptions &captions) {
        const QStringList known = captions.menus.value(role);
        return std::any_of(known.begin(), known.end(), [&names](const QString &caption) {
            return names.contains(menuRole(caption));
        });
    });
}

// "Tools" in the language of the bar's menus, or in the host's language if none of them is known.
QString toolsCaption(const QMenuBar &bar)
{
    const MenuLanguage menus = MenuLanguage::of(bar);
    if (menus.count == 0)
        return QCoreApplication::translate("host", "&Tools");
    if (menus.code == QLatin1String("en"))
        return QStringLiteral("&Tools");
    QString caption;
    for (const KnownCaptions &language : KnownCaptions::languages()) {
        if (language.language == menus.code)
            caption = language.menus.value(QStringLiteral("tools")).value(0);
    }
    caption[0] = caption.at(0).toUpper();
    return caption;
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
        m_made = new QMenu(toolsCaption(*menuBar), menuBar);
        m_made->menuAction()->setVisible(false);
    }
    QAction *action = m_made->menuAction();
    if (!menuBar->actions().contains(action)) {
        QAction *help = nullptr;
        const QList<QAction *> actions = menuBar->actions();
        for (QAction *other : actions) {
            if (other->menu()
                && hasRole(*other->menu(), QStringLiteral("help"), KnownCaptions::languages()))
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
    QMenu *english = nullptr;
    QMenu *translated = nullptr;
    const QVector<KnownCaptions> &languages = KnownCaptions::languages();
    const QList<QAction *> actions = bar.actions();
    for (const QAction *action : actions) {
        QMenu *menu = action->menu();
        if (!menu || menu == m_made || !action->isVisible())
            continue;
        if (!named && !m_wanted.isEmpty() && isNamed(*menu, m_wanted))
            named = menu;
        if (!english && hasRole(*menu, QStringLiteral("tools"), languages.mid(0, 1)))
            english = menu;
        if (!translated && hasRole(*menu, QStringLiteral("tools"), languages))
            translated = menu;
    }
    // Object names are English. Beside a "Tools" menu, "Extras" is something else.
    return named ? named : english ? english : translated;
}

} // namespace gesturewidget
