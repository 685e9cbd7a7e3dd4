// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiWorkspace.h"

#include "host/menus/UiManager.h"

namespace gesturewidget {

UiWorkspace::UiWorkspace(UiManager &manager)
    : m_manager(manager)
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
    WindowMenus &menus = m_manager.menus();
    const QVector<QMenuBar *> &bars = menus.mirror.menuBars();
    if (!bars.isEmpty())
        static_cast<void>(menus.tools.findOrMake());
    return menus.mirror.itemsOf(bars.isEmpty() ? nullptr : bars.first());
}

} // namespace gesturewidget
