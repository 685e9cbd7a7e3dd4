// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/ProfileStore.h"

#include "host/files/Complaint.h"

namespace gesturewidget {

ProfileStore::ProfileStore(const QString &file)
    : m_path(file)
    , m_file(file)
{
}

ProfileStore::~ProfileStore()
{
    flush();
}

bool ProfileStore::Exists(const CHxString &section, const CHxString &key)
{
    return valueOf(SettingsFile::nameOf(section.toQString(), key.toQString())) != nullptr;
}

OdResBufPtr ProfileStore::Get(const CHxString &section, const CHxString &key, int source)
{
    if (source != kProfile)
        return {};
    const QString *value = valueOf(SettingsFile::nameOf(section.toQString(), key.toQString()));
    return value ? OdResBuf::newString(OdString(*value)) : OdResBufPtr();
}

bool ProfileStore::Set(const CHxString &section, const CHxString &key, const OdResBuf *value)
{
    if (!value || value->restype() != OdResBuf::kString)
        return false;
    const QString name = SettingsFile::nameOf(section.toQString(), key.toQString());
    const QString text = value->getString().toQString();
    const QString *known = valueOf(name);
    if (known && *known == text)
        return true;
    m_pending.insert(name, text);
    if (!m_isScheduled)
        QMetaObject::invokeMethod(
            this, [this] { flush(); }, Qt::QueuedConnection);
    m_isScheduled = true;
    return true;
}

const SettingsFile::Values &ProfileStore::values()
{
    refresh();
    return m_values;
}

bool ProfileStore::flush()
{
    m_isScheduled = false;
    if (m_pending.isEmpty())
        return true;
    refresh(); // a damaged file must be restored before anything is merged into it
    if (m_file.write(m_pending)) {
        m_pending.clear();
        refresh();
        return true;
    }
    if (!m_hasComplained)
        complain(
            QStringLiteral("%1 cannot be written, changes last until the program ends").arg(m_path));
    m_hasComplained = true;
    return false;
}

void ProfileStore::refresh()
{
    if (m_file.hasChanged())
        m_values = m_file.read();
}

const QString *ProfileStore::valueOf(const QString &name)
{
    const auto pending = m_pending.constFind(name);
    if (pending != m_pending.constEnd())
        return &*pending;
    refresh();
    const auto found = m_values.constFind(name);
    return found == m_values.constEnd() ? nullptr : &*found;
}

} // namespace gesturewidget
