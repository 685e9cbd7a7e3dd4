// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/ActionMenuItem.h"

#include "host/commands/CommandCatalogue.h"
#include "host/menus/MenuMirror.h"

#include <QMenu>

namespace gesturewidget {

ActionMenuItem::ActionMenuItem(MenuMirror &mirror, QAction *action)
    : m_mirror(mirror)
    , m_action(action)
{
}

ActionMenuItem::~ActionMenuItem() = default;

CHxString ActionMenuItem::GetIdentifier() const
{
    const CHxUICommandItem *command = GetCommandItem();
    return command ? command->GetIdentifier() : CHxString(m_identifier);
}

CHxString ActionMenuItem::GetText() const
{
    return m_action ? m_action->text() : QString();
}

CHxUICommandItem *ActionMenuItem::GetCommandItem() const
{
    if (!m_action)
        return nullptr;
    const int assignment = m_mirror.catalogue().assignment();
    if (m_assignment != assignment) {
        m_assignment = assignment;
        m_command = m_mirror.catalogue().itemOf(m_action);
    }
    return m_command;
}

CHxUIMenuItemCollection *ActionMenuItem::GetSubItems() const
{
    // Nearly all entries are commands, which have no menu.
    QMenu *menu = m_action && !GetCommandItem() ? m_action->menu() : nullptr;
    return menu ? m_mirror.itemsOf(menu) : nullptr;
}

} // namespace gesturewidget
