#pragma once

#include "host/files/SettingsFile.h"
#include "sdk/chx/CHxProfileStore.h"

#include <QObject>

namespace gesturewidget {

// Keeps values in a file of the program's own, see SettingsFile. What is set counts at
// once and is written together when control is back in the event loop, and at the latest
// when this is destroyed. What cannot be written is kept until then in memory only, and
// one line on standard error says so.
//
// Values that others have written are seen at the next look. Of two programs that set one
// value the later one counts.
class ProfileStore : public QObject, public CHxProfileStore
{
    Q_OBJECT

public:
    explicit ProfileStore(const QString &file);
    ~ProfileStore() override;

    [[nodiscard]] bool Exists(const CHxString &section, const CHxString &key) override;
    // Nothing for a source other than kProfile.
    [[nodiscard]] OdResBufPtr Get(const CHxString &section, const CHxString &key, int source) override;
    // False for anything but a string.
    bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) override;

    // All values that are in the file.
    [[nodiscard]] const SettingsFile::Values &values();
    // Writes what is not written yet. Returns whether nothing is left to write.
    bool flush();

private:
    void refresh();
    // The value; null when there is none.
    [[nodiscard]] const QString *valueOf(const QString &name);

    QString m_path;
    SettingsFile m_file;
    SettingsFile::Values m_values; // as the file has them
    SettingsFile::Values m_pending; // set, and not written yet
    bool m_isScheduled = false;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
