// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenu.h"

#include "host/menus/MenuMirror.h"

namespace gesturewidget {

UiMenu::UiMenu(MenuMirror &mirror, QMenuBar *bar)
    : m_mirror(mirror)
    , m_bar(bar)
{
}

UiMenu::~UiMenu() = default;

CHxUIMenuItemCollection *UiMenu::GetItems()
{
    return m_mirror.itemsOf(m_bar);
}

} // namespace gesturewidget
