#pragma once

#include <QMap>
#include <QString>

#include <sys/types.h>

namespace gesturewidget {

// An INI file of strings that several programs may write at once and that nothing may be
// lost from.
//
// Beside it stands a copy of its last good state, "<file>.bak". A file that has been cut
// off or zeroed, as a power failure leaves it, is read without any error by QSettings; it
// is noticed here, kept as "<file>.damaged" and restored. A file that was deleted is taken
// as meant.
class SettingsFile
{
public:
    using Values = QMap<QString, QString>; // "section/key" to value

    explicit SettingsFile(const QString &path);

    // Whether the file differs from what was read last. Costs one look at the folder.
    [[nodiscard]] bool hasChanged() const;
    // All values; empty when there is no file or it cannot be read. Says on standard error
    // what it had to restore.
    [[nodiscard]] Values read();
    // Writes these values and leaves all others as they are in the file at that moment, in
    // one step: a reader sees all of them or none. Returns whether they are on disk.
    [[nodiscard]] bool write(const Values &values);

    // Name of a value in the file; sections and keys may hold any characters.
    [[nodiscard]] static QString nameOf(const QString &section, const QString &key);

private:
    // What tells two states of a file apart without reading it.
    struct Stamp
    {
        bool exists = false;
        bool isFile = false;
        dev_t device = 0;
        ino_t node = 0;
        off_t size = 0;
        time_t seconds = 0;
        long nanoseconds = 0;

        friend bool operator==(const Stamp &a, const Stamp &b)
        {
            return a.exists == b.exists && a.isFile == b.isFile && a.device == b.device
                && a.node == b.node && a.size == b.size && a.seconds == b.seconds
                && a.nanoseconds == b.nanoseconds;
        }
    };

    [[nodiscard]] Stamp currentStamp() const;
    [[nodiscard]] QString backupPath() const;
    Values restore();

    QString m_path;
    Stamp m_stamp;
    bool m_wasRead = false;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
