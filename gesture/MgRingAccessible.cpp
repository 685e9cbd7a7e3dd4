// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgRingAccessible.h"

#include "gesture/MgDonutDialogPVStyleImpl.h"

#include <mutex>

namespace {

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *ring = qobject_cast<MgDonutDialogPVStyleImpl *>(object);
    return ring ? new MgRingAccessible(ring) : nullptr; // Qt deletes it
}

} // namespace

MgRingAccessible::MgRingAccessible(MgDonutDialogPVStyleImpl *ring)
    : QAccessibleWidget(ring, QAccessible::PopupMenu)
{
}

void MgRingAccessible::install()
{
    static std::once_flag isInstalled;
    std::call_once(isInstalled, QAccessible::installFactory, makeInterface);
}
