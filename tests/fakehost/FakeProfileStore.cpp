// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fakehost/FakeProfileStore.h"

namespace tests {

QString FakeProfileStore::nameOf(const CHxString &section, const CHxString &key)
{
    static const CHxString modules("GestureWidget");
    if (section == modules)
        return key.toQString();
    return section.toQString() + QLatin1Char('/') + key.toQString();
}

bool FakeProfileStore::Exists(const CHxString &section, const CHxString &key)
{
    const QString name = nameOf(section, key);
    const Misdeed misdeed =
        m_log->addMade([&]() -> QString { return QStringLiteral("store.exists ") + name; });
    return altered(misdeed, values.contains(name));
}

OdResBufPtr FakeProfileStore::Get(const CHxString &section, const CHxString &key, int source)
{
    const QString name = nameOf(section, key);
    const Misdeed misdeed =
        m_log->addMade([&] { return QStringLiteral("store.get %1 %2").arg(name).arg(source); });
    if (getFails || !values.contains(name) || misdeed == Misdeed::GivesNothing)
        return {};
    return OdResBuf::newString(OdString(altered(misdeed, values.value(name))));
}

bool FakeProfileStore::Set(const CHxString &section, const CHxString &key, const OdResBuf *value)
{
    const QString name = nameOf(section, key);
    const QString text = value->getString().toQString();
    lastType = value->restype();
    const Misdeed misdeed =
        m_log->addMade([&] { return QStringLiteral("store.set %1=%2").arg(name, text); });
    if (altered(misdeed, setFails))
        return false;
    values.insert(name, text);
    return true;
}

} // namespace tests
