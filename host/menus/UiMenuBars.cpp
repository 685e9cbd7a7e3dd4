// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenuBars.h"

#include "host/menus/UiManager.h"

namespace gesturewidget {

UiMenuBars::UiMenuBars(UiManager &manager)
    : m_manager(manager)
{
}

UiMenuBars::~UiMenuBars() = default;

int UiMenuBars::GetCount() const
{
    return static_cast<int>(m_manager.menus().mirror.menuBars().size());
}

CHxUIMenuItem *UiMenuBars::GetItem(int index) const
{
    MenuMirror &mirror = m_manager.menus().mirror;
    return index >= 0 && index < GetCount() ? mirror.barItemOf(mirror.menuBars().at(index)) : nullptr;
}

} // namespace gesturewidget
