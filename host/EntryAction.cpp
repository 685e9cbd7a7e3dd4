#include "host/EntryAction.h"

namespace host {

EntryAction::EntryAction(CHxUIMenuItem *item)
    : QAction(nullptr)
    , m_item(item)
{
    setMenuRole(QAction::NoRole);
}

EntryAction::~EntryAction() = default;

} // namespace host
