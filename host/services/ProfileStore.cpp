// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/ProfileStore.h"

#include "host/files/Complaint.h"
#include "host/files/SettingsNames.h"
#include "host/files/Text.h"
#include "sdk/OwnCode.h"

namespace gesturewidget {

ProfileStore::ProfileStore(const QString &file)
    : m_path(file)
    , m_file(file)
    , m_site(file)
{
}

ProfileStore::~ProfileStore()
{
    flush();
}

bool ProfileStore::Exists(const CHxString &section, const CHxString &key)
{
    m_resetPlace = 0;
    return valueOf(nameOf(section.toQString(), key.toQString())) != nullptr;
}

OdResBufPtr ProfileStore::Get(const CHxString &section, const CHxString &key, int source)
{
    m_resetPlace = 0;
    if (source != kProfile)
        return {};
    const QString *value = valueOf(nameOf(section.toQString(), key.toQString()));
    return value ? OdResBuf::newString(OdString(*value)) : OdResBufPtr();
}

bool ProfileStore::Set(const CHxString &section, const CHxString &key, const OdResBuf *value)
{
    if (!value || value->restype() != OdResBuf::kString)
        return false;
    const QString name = nameOf(section.toQString(), key.toQString());
    const QString text = value->getString().toQString();
    const QString *known = valueOf(name);
    if (!known || *known != text)
        change(name, text.isNull() ? QString(QLatin1String("")) : text);
    noteReset(section.toQString(), key.toQString());
    return true;
}

void ProfileStore::change(const QString &name, const QString &text)
{
    m_pending.insert(name, text);
    if (!m_isScheduled)
        QMetaObject::invokeMethod(
            this, [this] { flush(); }, Qt::QueuedConnection);
    m_isScheduled = true;
}

void ProfileStore::noteReset(const QString &section, const QString &key)
{
    static const QStringList order = settingsnames::moduleKeys();
    const bool isNext = section == settingsnames::moduleSection() && order.at(m_resetPlace) == key;
    m_resetPlace = isNext ? m_resetPlace + 1 : 0;
    if (m_resetPlace < order.size())
        return;
    m_resetPlace = 0;
    for (const QString &each : order) {
        const QString name = SettingsFile::nameOf(section, each);
        if (m_site.values().contains(name))
            change(name, QString());
    }
}

void ProfileStore::beginReading()
{
    refresh();
    if (m_isReading)
        return;
    m_isReading = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const OwnCode ours;
            m_isReading = false;
        },
        Qt::QueuedConnection);
}

SettingsFile::Values ProfileStore::values()
{
    refreshUnlessReading();
    return m_site.under(m_values);
}

bool ProfileStore::flush()
{
    const OwnCode ours;
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
        complain(Text::tr("%1 cannot be written, changes last until the program ends").arg(m_path));
    m_hasComplained = true;
    return false;
}

void ProfileStore::refresh()
{
    if (!m_file.hasChanged())
        return;
    m_values = m_file.read();
    ++m_revision;
}

void ProfileStore::refreshUnlessReading()
{
    if (!m_isReading)
        refresh();
}

const QString &ProfileStore::nameOf(const QString &section, const QString &key)
{
    if (m_name.isEmpty() || section != m_section || key != m_key) {
        m_section = section;
        m_key = key;
        m_name = SettingsFile::nameOf(section, key);
    }
    return m_name;
}

const QString *ProfileStore::valueOf(const QString &name)
{
    const auto in = [&name](const SettingsFile::Values &values) {
        const auto found = values.constFind(name);
        return found == values.constEnd() ? nullptr : &*found;
    };
    const QString *pending = in(m_pending);
    if (pending && !pending->isNull())
        return pending;
    refreshUnlessReading();
    const QString *own = pending ? nullptr : in(m_values); // it is to be removed
    return own ? own : in(m_site.values());
}

} // namespace gesturewidget
