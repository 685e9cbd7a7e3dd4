// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutSettings.h"

#include "bindings/HostCall.h"
#include "bindings/SettingsKeys.h"
#include "sdk/chx/CHxProfileStore.h"
#include "sdk/chx/CHxSystemServices.h"

#include <QSettings>
#include <QVariant>

namespace {

const CHxString &section()
{
    static const CHxString name("GestureWidget");
    return name;
}

// Null if the host has no store.
CHxProfileStore *profileStore()
{
    CHxSystemServices *services = GetHxSystemServices();
    return services ? services->GetProfileStore() : nullptr;
}

// Older programs kept the settings here. Create one for each use: other programs may write to
// it at the same time.
class OlderSettings
{
public:
    explicit OlderSettings(CHxSystemServices &services)
        : m_settings(QStringLiteral("Orlanto"), fileName(services.GetApplicationName().toQString()))
    {
        m_settings.beginGroup(QStringLiteral("Gesture"));
    }

    [[nodiscard]] bool contains(const QString &key) const { return m_settings.contains(entry(key)); }
    [[nodiscard]] QVariant value(const QString &key) const { return m_settings.value(entry(key)); }
    // Removes all entries of the group.
    void clear() { m_settings.remove(QString()); }

private:
    // No file can have a null character in its name.
    static QString fileName(QString name) { return name.remove(QChar::Null); }
    // A backslash, because a slash would open a subgroup. On this system it is a plain character of the
    // entry's name, written to the file as "%5C".
    static QString entry(const QString &key) { return QLatin1String("Settings\\") + key; }

    QSettings m_settings;
};

} // namespace

MgDonutSettings *MgDonutSettings::instance()
{
    static MgDonutSettings settings;
    return &settings;
}

QString MgDonutSettings::getInitialValue(const QString &key) const
{
    if (key == settingskeys::activeScheme())
        return QStringLiteral("8"); // deliberately not settingskeys::initialValue()
    return settingskeys::initialValue(key);
}

bool MgDonutSettings::write(const QString &key, const QString &value)
{
    hostCall([&] {
        if (CHxProfileStore *store = profileStore()) {
            const OdResBufPtr buffer = OdResBuf::newString(OdString(value));
            store->Set(section(), key, buffer.get());
        }
    });
    return true;
}

bool MgDonutSettings::read(const QString &key, QString &value)
{
    CHxProfileStore *store = profileStore();
    if (!store)
        return true;

    if (store->Exists(section(), key)) {
        if (const OdResBufPtr buffer = store->Get(section(), key, CHxProfileStore::kProfile))
            value = buffer->getString().toQString();
        return true;
    }

    const OlderSettings older(*GetHxSystemServices());
    if (older.contains(key)) {
        const QVariant found = older.value(key);
        if (found.isNull())
            return false;
        value = found.toString();
    } else {
        value = getInitialValue(key);
    }
    write(key, value);
    return true;
}

bool MgDonutSettings::keyExists(const QString &key) const
{
    CHxProfileStore *store = profileStore();
    if (!store)
        return false;
    return store->Exists(section(), key) || OlderSettings(*GetHxSystemServices()).contains(key);
}

void MgDonutSettings::deleteAllKeys()
{
    // This comes first: otherwise a key that cannot be written would get its old value from there.
    hostCall([] {
        if (CHxSystemServices *services = GetHxSystemServices())
            OlderSettings(*services).clear();
    });

    const auto writeInitialValue = [this](const QString &key) { write(key, getInitialValue(key)); };
    writeInitialValue(settingskeys::enableMouseGesture());
    writeInitialValue(settingskeys::activeScheme());
    for (int number = 1; number <= settingskeys::kFourCount; ++number)
        writeInitialValue(settingskeys::directionKey(DonutScheme::Four, number));
    for (int number = 1; number <= settingskeys::kEightCount; ++number)
        writeInitialValue(settingskeys::directionKey(DonutScheme::Eight, number));
}

bool MgDonutSettings::noFourKeyExists() const
{
    for (int number = 1; number <= settingskeys::kFourCount; ++number) {
        if (keyExists(settingskeys::directionKey(DonutScheme::Four, number)))
            return false;
    }
    return true;
}

bool MgDonutSettings::noEightKeyExists() const
{
    for (int number = 1; number <= settingskeys::kEightCount; ++number) {
        if (keyExists(settingskeys::directionKey(DonutScheme::Eight, number)))
            return false;
    }
    return true;
}
