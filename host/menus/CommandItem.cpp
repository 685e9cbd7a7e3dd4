// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/CommandItem.h"

#include "host/window/Captions.h"

namespace gesturewidget {

CommandItem::CommandItem(const QString &identifier)
    : m_identifier(identifier)
{
}

CommandItem::~CommandItem() = default;

CHxString CommandItem::GetCaption() const
{
    return plainCaption(m_name);
}

} // namespace gesturewidget
