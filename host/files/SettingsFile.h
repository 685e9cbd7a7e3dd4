// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <functional>

#include <sys/types.h>

namespace gesturewidget {

// An INI file of strings that several programs may write at once without losing anything.
//
// A copy of its last good state stands beside it, "<file>.bak". A file that a power failure cut
// off or zeroed can still be read as INI, without any error. This class notices, keeps such a
// file as "<file>.damaged" and restores the copy. A file that was deleted stays deleted, and so do its
// last lines.
//
// Only the owner may read these files. Nothing here waits longer than kLockPatience, whatever
// other programs do or have left behind.
class SettingsFile
{
public:
    // "section/key" to value. Where values are written, a null one removes its key.
    using Values = QMap<QString, QString>;

    explicit SettingsFile(const QString &path);

    // Returns whether the file differs from what was read last. Costs one look at the folder.
    [[nodiscard]] bool hasChanged() const;
    // Returns false if there is such a file, and its content cannot be read.
    [[nodiscard]] bool isReadable() const;
    // All values; empty when there is no file or it cannot be read. Writes one line to standard
    // error about a file that it had to restore or cannot use.
    [[nodiscard]] Values read();
    // Gives `edit` all values as they are in the file now, and writes those of its result that
    // differ. No other program writes in between. All other values stay. The file is replaced in
    // one step: a reader sees all changes or none. With `keepAs`, the file as it was is kept under
    // that name. Returns whether all of this is on disk; if not, problem() says why.
    [[nodiscard]] bool change(const std::function<Values(const Values &)> &edit,
                              const QString &keepAs = {});
    // The same with values that do not depend on the present ones.
    [[nodiscard]] bool write(const Values &values);
    // One line that names the file, after change() or write() has failed.
    [[nodiscard]] QString problem() const { return m_problem; }

    // The line that was written to standard error last; empty when there was none.
    [[nodiscard]] QString notice() const { return m_notice; }

    static constexpr int kLockPatience = 1000; // milliseconds
    // Bytes. Far more than all bindings need; a longer file is some other file.
    static constexpr qint64 kMaximalSize = qint64(4) * 1024 * 1024;

    // The name of a value, see IniText::nameOf().
    [[nodiscard]] static QString nameOf(const QString &section, const QString &key);

private:
    // Tells two states of a file apart without reading the file.
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
    // The content that counts: that of the file or, if that is damaged, of its copy. `mayWrite`
    // says whether the lock is held, so that the file can be restored.
    [[nodiscard]] QByteArray usable(const QByteArray &content, const QByteArray &backup, bool mayWrite);
    void keepCopy(const QByteArray &content);
    void complainOnce(const QString &line);
    void complainAlways(const QString &line);

    QString m_path;
    QString m_problem;
    QString m_notice;
    Stamp m_stamp;
    bool m_wasRead = false;
    bool m_hasComplained = false;
};

} // namespace gesturewidget
