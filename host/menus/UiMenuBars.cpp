// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenuBars.h"

#include "host/menus/MenuMirror.h"

namespace gesturewidget {

UiMenuBars::UiMenuBars(MenuMirror &mirror)
    : m_mirror(mirror)
{
}

UiMenuBars::~UiMenuBars() = default;

int UiMenuBars::GetCount() const
{
    return static_cast<int>(m_mirror.menuBars().size());
}

CHxUIMenuItem *UiMenuBars::GetItem(int index) const
{
    return index >= 0 && index < GetCount() ? m_mirror.barItemOf(m_mirror.menuBars().at(index))
                                            : nullptr;
}

} // namespace gesturewidget
