// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtGlobal>

// Keeps the settings: strings under the keys of SettingsKeys.h, in the section
// "GestureWidget" of the host's profile store. Older programs kept them in
// QSettings. A value that is found only there is copied when it is first read.
//
// Writing swallows exceptions of the host. Reading and asking for keys pass them on: a caller that
// took an unreadable value for a missing one would write over it.
//
// Without a profile store all of this does nothing: writes vanish, no key exists and reading
// leaves the value as it was.
class MgDonutSettings
{
public:
    Q_DISABLE_COPY_MOVE(MgDonutSettings)

    // The one object; never null.
    [[nodiscard]] static MgDonutSettings *instance();

    // The initial value of a key; empty for an unknown key.
    [[nodiscard]] QString getInitialValue(const QString &key) const;

    // Always true: the host's result is ignored.
    bool write(const QString &key, const QString &value);
    // Fills `value` from the profile store, else from the older settings, else with the
    // initial value, and keeps in the profile store what was not there yet. False, with
    // `value` as it was and nothing kept, when the older settings hold a null value.
    bool read(const QString &key, QString &value);
    // True if the profile store or the older settings hold the key.
    [[nodiscard]] bool keyExists(const QString &key) const;

    // Empties the older settings and writes the initial value of all fourteen keys. Despite
    // its name it leaves the profile store full: the container reads the defaults from it.
    void deleteAllKeys();

    // True if none of "41" to "44" exists.
    [[nodiscard]] bool noFourKeyExists() const;
    // True if none of "81" to "88" exists.
    [[nodiscard]] bool noEightKeyExists() const;

protected:
    MgDonutSettings() = default;
    ~MgDonutSettings() = default;
};
