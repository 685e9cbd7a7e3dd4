// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenuItem.h"

#include "sdk/chx/CHxUICommandItem.h"

namespace gesturewidget {

UiMenuItem::UiMenuItem(const QString &identifier, const QString &text, const QString &tip)
    : m_identifier(identifier)
    , m_tip(tip)
    , m_action(this)
{
    m_action.setText(text);
    m_action.setStatusTip(tip);
}

UiMenuItem::~UiMenuItem() = default;

void UiMenuItem::SetCommandItem(CHxUICommandItem *item)
{
    m_command = item;
    m_action.setStatusTip(item && m_tip.isEmpty() ? item->GetTip().toQString() : m_tip);
}

} // namespace gesturewidget
