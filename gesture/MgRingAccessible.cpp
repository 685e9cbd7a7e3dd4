// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "gesture/MgRingAccessible.h"

#include "gesture/MgDonutDialogPVStyleImpl.h"

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(MgDonutDialogPVStyleImpl::staticMetaObject.className()))
        return nullptr;
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
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    static_cast<void>(isInstalled);
}
