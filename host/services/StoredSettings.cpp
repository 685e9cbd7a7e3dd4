// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/StoredSettings.h"

#include "host/files/SettingsNames.h"
#include "sdk/chx/CHxProfileStore.h"

namespace gesturewidget {

QString storedText(CHxProfileStore *store, const QString &section, const QString &key)
{
    const OdResBufPtr value =
        store ? store->Get(section, key, CHxProfileStore::kProfile) : OdResBufPtr();
    return value ? value->getString().toQString() : QString();
}

bool areGesturesOn(CHxProfileStore *store)
{
    return storedText(store, settingsnames::moduleSection(), settingsnames::enabledKey())
        != QLatin1String("0");
}

} // namespace gesturewidget
