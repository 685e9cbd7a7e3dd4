// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/EntryAction.h"

namespace gesturewidget {

EntryAction::EntryAction(CHxUIMenuItem *item)
    : QAction(nullptr)
    , m_item(item)
{
    setMenuRole(QAction::NoRole);
}

EntryAction::~EntryAction() = default;

} // namespace gesturewidget
