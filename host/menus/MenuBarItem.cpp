// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/MenuBarItem.h"

#include "host/menus/MenuMirror.h"

namespace gesturewidget {

MenuBarItem::MenuBarItem(MenuMirror &mirror, QMenuBar *bar)
    : m_mirror(mirror)
    , m_bar(bar)
{
}

MenuBarItem::~MenuBarItem() = default;

CHxUIMenuItemCollection *MenuBarItem::GetSubItems() const
{
    return m_mirror.itemsOf(m_bar);
}

} // namespace gesturewidget
