// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiCommandItemCollection.h"

#include <algorithm>

namespace gesturewidget {

UiCommandItemCollection::UiCommandItemCollection() = default;

UiCommandItemCollection::~UiCommandItemCollection() = default;

void UiCommandItemCollection::Add(CHxUICommandItem *item)
{
    if (item && std::find(m_items.begin(), m_items.end(), item) == m_items.end())
        m_items.push_back(item);
}

void UiCommandItemCollection::remove(const CHxUICommandItem *item)
{
    m_items.erase(std::remove(m_items.begin(), m_items.end(), item), m_items.end());
}

} // namespace gesturewidget
