// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"
#include "sdk/chx/CHxProfileStore.h"

#include <QObject>

namespace gesturewidget {

// Keeps values in the program's own file, see SettingsFile. A value that is set counts
// immediately. It is written with others from the event loop, at the latest in the destructor. If
// writing fails, values stay in memory until then, and one line on standard error says so.
//
// Values that other processes have written are seen at the next reading. If two programs set one
// value, the later one wins.
class ProfileStore : public QObject, public CHxProfileStore
{
    Q_OBJECT

public:
    explicit ProfileStore(const QString &file);
    ~ProfileStore() override;

    [[nodiscard]] bool Exists(const CHxString &section, const CHxString &key) override;
    // Returns null for a source other than kProfile.
    [[nodiscard]] OdResBufPtr Get(const CHxString &section, const CHxString &key, int source) override;
    // Returns false for anything but a string.
    bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) override;

    // Returns all values in the file.
    [[nodiscard]] const SettingsFile::Values &values();
    // Writes the values that are not written yet. Returns true if none is left.
    bool flush();

private:
    void refresh();
    // Returns the value, or null if there is none.
    [[nodiscard]] const QString *valueOf(const QString &name);

    QString m_path;
    SettingsFile m_file;
    SettingsFile::Values m_values; // as the file has them
    SettingsFile::Values m_pending; // set, and not written yet
    bool m_isScheduled = false;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
