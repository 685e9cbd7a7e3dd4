// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenuItemCollection.h"

#include "host/menus/MenuEntries.h"
#include "host/menus/MenuMirror.h"
#include "host/menus/UiMenuItem.h"

namespace gesturewidget {

UiMenuItemCollection::UiMenuItemCollection(MenuMirror &mirror, QWidget *place)
    : m_mirror(mirror)
    , m_place(place)
{
}

UiMenuItemCollection::~UiMenuItemCollection() = default;

int UiMenuItemCollection::GetCount() const
{
    return static_cast<int>(items().size());
}

CHxUIMenuItem *UiMenuItemCollection::GetItem(int index) const
{
    const std::vector<CHxUIMenuItem *> &all = items();
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < all.size() ? all[place] : nullptr;
}

void UiMenuItemCollection::Append(CHxUIMenuItem *item)
{
    if (UiMenuItem *entry = m_mirror.entries().entryOf(item))
        m_mirror.entries().append(entry, m_place);
}

void UiMenuItemCollection::Remove(CHxUIMenuItem *item)
{
    UiMenuItem *entry = m_mirror.entries().entryOf(item);
    if (entry && m_place)
        m_mirror.entries().remove(entry, m_place);
}

const std::vector<CHxUIMenuItem *> &UiMenuItemCollection::items() const
{
    if (!m_place) {
        m_items.clear();
    } else if (m_generation != m_mirror.generation()) {
        m_generation = m_mirror.generation();
        m_items = m_mirror.list(m_place);
    }
    return m_items;
}

} // namespace gesturewidget
