// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/SettingsFile.h"
#include "host/files/SiteSettings.h"
#include "sdk/chx/CHxProfileStore.h"

#include <QObject>

namespace gesturewidget {

// Keeps values in the program's own file, see SettingsFile. A value that is set counts
// immediately. It is written with others from the event loop, at the latest in the destructor. If
// writing fails, values stay in memory until then, and one line on standard error says so.
//
// The administrator's values are the starting point, see SiteSettings. They are not copied: a value
// that equals the administrator's is not written. When a module writes all its settings in the
// order in which it does that for "Reset to Defaults", those that the administrator provides are
// removed from the file, so that they count again.
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

    // Call this before reading many values. They all come from the state that the file has now, until
    // the event loop runs. Otherwise each value costs a look at the folder, which takes far longer than
    // all the rest.
    void beginReading();
    [[nodiscard]] bool isReading() const { return m_isReading; }
    // Returns a number. As long as it stays the same, the file has not been read again.
    [[nodiscard]] int revision() const { return m_revision; }
    // Returns all values, the administrator's included.
    [[nodiscard]] SettingsFile::Values values();
    [[nodiscard]] const SiteSettings &site() const { return m_site; }
    // Writes the values that are not written yet. Returns true if none is left.
    bool flush();

private:
    void refresh();
    // The same, except during a reading.
    void refreshUnlessReading();
    // Returns the name of a value in the file. Modules ask several times in a row for the same one.
    [[nodiscard]] const QString &nameOf(const QString &section, const QString &key);
    // Returns the value, or null if there is none.
    [[nodiscard]] const QString *valueOf(const QString &name);
    // Changes a value in the file soon; null removes it.
    void change(const QString &name, const QString &text);
    // Notes a value that was set. Brings the administrator's values back when all were.
    void noteReset(const QString &section, const QString &key);

    QString m_path;
    SettingsFile m_file;
    const SiteSettings m_site; // read once
    SettingsFile::Values m_values; // as the file has them
    SettingsFile::Values m_pending; // set, and not written yet; null to remove
    QString m_section; // those of m_name
    QString m_key;
    QString m_name; // that nameOf() has returned last
    bool m_isReading = false;
    int m_revision = 0;
    int m_resetPlace = 0; // how many settings were set one after the other in the order of a reset
    bool m_isScheduled = false;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
