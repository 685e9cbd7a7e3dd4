// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/TaskRings.h"

#include "host/files/RingSettings.h"
#include "host/files/SettingsNames.h"
#include "host/services/ProfileStore.h"

namespace gesturewidget {

TaskRings::TaskRings(ProfileStore &store, std::function<QString()> task)
    : m_store(store)
    , m_task(std::move(task))
{
}

TaskRings::~TaskRings() = default;

QString TaskRings::ring()
{
    const QString task = m_task();
    if (task.isEmpty())
        return {};
    return ringsettings::hasOwnRing(m_store.values(), task) ? task : QString();
}

void TaskRings::beginReading()
{
    m_store.beginReading();
    m_ringOfReading = ring();
}

bool TaskRings::Exists(const CHxString &section, const CHxString &key)
{
    return m_store.Exists(actual(section, key), key);
}

OdResBufPtr TaskRings::Get(const CHxString &section, const CHxString &key, int source)
{
    return m_store.Get(actual(section, key), key, source);
}

bool TaskRings::Set(const CHxString &section, const CHxString &key, const OdResBuf *value)
{
    return m_store.Set(actual(section, key), key, value);
}

CHxString TaskRings::actual(const CHxString &section, const CHxString &key)
{
    if (section != CHxString(settingsnames::moduleSection()))
        return section;
    const QString own = m_store.isReading() ? m_ringOfReading : ring();
    const bool differs = !own.isEmpty() && ringsettings::isRingKey(key.toQString());
    return differs ? CHxString(ringsettings::sectionOf(own)) : section;
}

} // namespace gesturewidget
