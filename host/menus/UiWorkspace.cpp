// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiWorkspace.h"

#include "host/menus/MenuMirror.h"
#include "host/menus/ToolsMenu.h"

namespace gesturewidget {

UiWorkspace::UiWorkspace(MenuMirror &mirror, ToolsMenu &tools)
    : m_mirror(mirror)
    , m_tools(tools)
{
}

UiWorkspace::~UiWorkspace() = default;

CHxString UiWorkspace::GetName() const
{
    return "Default";
}

CHxUIMenuItemCollection *UiWorkspace::GetMenuItems()
{
    // Do not make a Tools menu before somebody asks: the program may still be building its menus
    // and add its own.
    const QVector<QMenuBar *> &bars = m_mirror.menuBars();
    if (!bars.isEmpty())
        static_cast<void>(m_tools.findOrMake());
    return m_mirror.itemsOf(bars.isEmpty() ? nullptr : bars.first());
}

} // namespace gesturewidget
