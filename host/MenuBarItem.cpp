#include "host/MenuBarItem.h"

#include "host/MenuMirror.h"

namespace host {

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

} // namespace host
