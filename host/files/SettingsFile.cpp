// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/SettingsFile.h"

#include "host/files/Complaint.h"
#include "host/files/FileContent.h"
#include "host/files/FileLock.h"
#include "host/files/FileWriter.h"
#include "host/files/IniText.h"
#include "host/files/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace gesturewidget {
namespace {

constexpr int kBlock = 4096; // bytes that file systems write at once

bool isDamaged(const QByteArray &content, const QByteArray &backup)
{
    // A person's edit ends with a whole line. What is left of a file that was cut off ends with a block
    // of the disk, or anywhere in a line.
    const bool isOfWholeLines = content.endsWith('\n') && content.size() % kBlock != 0;
    const bool isCutOff =
        !isOfWholeLines && content.size() < backup.size() && backup.startsWith(content);
    return isCutOff || !IniText::isWellFormed(content);
}

bool store(const QString &path, const QByteArray &content)
{
    return FileWriter(path, FileWriter::Readers::Owner).write(content);
}

FileContent contentOf(const QString &path)
{
    return FileContent::read(path, SettingsFile::kMaximalSize);
}

// There is something, and nobody knows what it says.
bool isUnreadable(const FileContent &content)
{
    return !content.isRead() && content.state != FileContent::State::Missing;
}

} // namespace

SettingsFile::SettingsFile(const QString &path)
    : m_path(path)
{
}

bool SettingsFile::hasChanged() const
{
    return !m_wasRead || !(currentStamp() == m_stamp);
}

bool SettingsFile::isReadable() const
{
    return !isUnreadable(contentOf(m_path));
}

SettingsFile::Values SettingsFile::read()
{
    m_wasRead = true;
    m_stamp = currentStamp();
    if (!m_stamp.exists)
        return {};
    // Read the copy first. In the other order, the copy of what somebody has just added to the
    // file would make the file seem cut off.
    QByteArray backup = contentOf(backupPath()).bytes;
    FileContent content = contentOf(m_path);
    if (!content.isRead()) {
        complainOnce(Text::tr("%1 cannot be read, its bindings are not used").arg(m_path));
        return {};
    }
    const bool seemsDamaged = isDamaged(content.bytes, backup);
    if (!seemsDamaged && content.bytes == backup)
        return IniText(content.bytes).values();
    // If somebody else holds the lock, they renew the copy.
    const FileLock lock(m_path, seemsDamaged ? kLockPatience : 0);
    if (lock.isHeld()) { // somebody may have written before that
        backup = contentOf(backupPath()).bytes;
        const FileContent again = contentOf(m_path);
        content = again.isRead() ? again : content;
    }
    return IniText(usable(content.bytes, backup, lock.isHeld())).values();
}

QByteArray SettingsFile::usable(const QByteArray &content, const QByteArray &backup, bool mayWrite)
{
    if (!isDamaged(content, backup)) {
        if (mayWrite && content != backup)
            keepCopy(content);
        return content;
    }
    if (mayWrite)
        static_cast<void>(store(m_path + QLatin1String(".damaged"), content));
    if (backup.isEmpty() || !IniText::isWellFormed(backup)) {
        complainOnce(Text::tr("%1 is damaged, and there is no good copy of it").arg(m_path));
        return content;
    }
    complainAlways(Text::tr("%1 was damaged and is restored from %2").arg(m_path, backupPath()));
    if (mayWrite && store(m_path, backup))
        m_stamp = currentStamp();
    return backup;
}

void SettingsFile::keepCopy(const QByteArray &content)
{
    if (!store(backupPath(), content) && contentOf(backupPath()).state == FileContent::State::NotAFile)
        complainOnce(Text::tr("%1 is not a file, so no copy of the settings is kept").arg(backupPath()));
}

bool SettingsFile::change(const std::function<Values(const Values &)> &edit, const QString &keepAs)
{
    m_problem = Text::tr("%1 cannot be written").arg(m_path);
    if (m_path.isEmpty())
        return false;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const FileLock lock(m_path, kLockPatience);
    if (!lock.isHeld()) {
        if (lock.result() == FileLock::Result::Busy)
            m_problem =
                Text::tr("%1 cannot be written, since another program holds %1.lock").arg(m_path);
        return false;
    }
    const QByteArray backup = contentOf(backupPath()).bytes;
    const FileContent content = contentOf(m_path);
    if (isUnreadable(content))
        return false;
    const bool isThere = content.isRead();
    IniText ini(isThere ? usable(content.bytes, backup, true) : QByteArray());
    const Values present = ini.values();
    const Values wanted = edit(present);
    bool hasChanged = false;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const auto known = present.constFind(it.key());
        if (known == present.cend() ? it->isNull() : *known == *it && !it->isNull())
            continue;
        if (it->isNull())
            ini.remove(it.key());
        else
            ini.set(it.key(), it.value());
        hasChanged = true;
    }
    if (hasChanged) {
        const QByteArray text = ini.text();
        const FileWriter writer(m_path, FileWriter::Readers::Owner);
        if (!(keepAs.isEmpty() || !isThere ? writer.write(text) : writer.write(text, keepAs))) {
            if (QFileInfo::exists(keepAs) && !QFileInfo(keepAs).isFile())
                m_problem = Text::tr("%1 cannot be written").arg(keepAs);
            return false;
        }
        keepCopy(text);
    }
    m_problem.clear();
    return true;
}

bool SettingsFile::write(const Values &values)
{
    return change([&values](const Values &) { return values; });
}

QString SettingsFile::nameOf(const QString &section, const QString &key)
{
    return IniText::nameOf(section, key);
}

void SettingsFile::complainOnce(const QString &line)
{
    if (!m_hasComplained)
        complainAlways(line);
    m_hasComplained = true;
}

void SettingsFile::complainAlways(const QString &line)
{
    m_notice = line;
    complain(line);
}

QString SettingsFile::backupPath() const
{
    return m_path + QLatin1String(".bak");
}

SettingsFile::Stamp SettingsFile::currentStamp() const
{
    struct stat status = {};
    if (::stat(QFile::encodeName(m_path).constData(), &status) != 0)
        return {};
    Stamp stamp;
    stamp.exists = true;
    stamp.isFile = S_ISREG(status.st_mode);
    stamp.device = status.st_dev;
    stamp.node = status.st_ino;
    stamp.size = status.st_size;
    stamp.seconds = status.st_mtim.tv_sec;
    stamp.nanoseconds = status.st_mtim.tv_nsec;
    return stamp;
}

} // namespace gesturewidget
