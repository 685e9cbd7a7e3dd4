// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandGroup.h"

#include "host/commands/SnapshotIterator.h"

namespace gesturewidget {

CommandGroup::CommandGroup(const QString &name)
    : m_name(name)
{
}

CommandGroup::~CommandGroup() = default;

std::unique_ptr<CHxIterator<CHxUICommandItem>> CommandGroup::NewCommandIterator()
{
    return std::make_unique<SnapshotIterator<CHxUICommandItem>>(items);
}

} // namespace gesturewidget
