#include "host/files/SettingsFile.h"

#include "host/files/Complaint.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

// Far more than all bindings need. What is longer is some other file.
constexpr qint64 kMaximalSize = qint64(4) * 1024 * 1024;

constexpr int kLockPatience = 2000; // milliseconds

// Only printable ASCII goes into the file, the rest as "%u" and four digits: the two Qt
// versions read anything else differently, and some characters not at all.
QString encoded(const QString &text, const QString &alsoEncode = {})
{
    QString result;
    for (const QChar letter : text) {
        const ushort code = letter.unicode();
        if (code < 0x20 || code > 0x7e || letter == QLatin1Char('%') || alsoEncode.contains(letter))
            result += QStringLiteral("%u%1").arg(code, 4, 16, QLatin1Char('0'));
        else
            result += letter;
    }
    return result;
}

// Undoes encoded(); a "%" that it did not make stays.
QString decoded(const QString &text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        bool isCode = false;
        if (text.at(i) == QLatin1Char('%') && text.mid(i + 1, 1) == QLatin1String("u")) {
            const QString digits = text.mid(i + 2, 4);
            const ushort code = digits.size() == 4 ? digits.toUShort(&isCode, 16) : ushort(0);
            if (isCode)
                result += QChar(code);
        }
        if (isCode)
            i += 5;
        else
            result += text.at(i);
    }
    return result;
}

QByteArray contentOf(const QString &path, bool *isReadable = nullptr)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (isReadable)
        *isReadable = isOpen;
    return isOpen ? file.read(kMaximalSize) : QByteArray();
}

bool store(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    // commit() overlooks that what was left in the buffer did not fit on the disk.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush()
        && file.commit();
}

// Whether each line is one that an INI file can have.
bool isWellFormed(const QByteArray &content)
{
    if (content.contains('\0'))
        return false;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray text = line.trimmed();
        const bool isSection = text.startsWith('[') && text.endsWith(']');
        if (!text.isEmpty() && !isSection && !text.startsWith(';') && !text.startsWith('#')
            && !text.contains('='))
            return false;
    }
    return true;
}

// Whether the text of a file that QSettings has just written has a line for each of its keys.
bool isWhole(const QByteArray &content, int keys)
{
    const QList<QByteArray> lines = content.split('\n');
    const auto isKey = [](const QByteArray &line) {
        return line.contains('=') && !line.startsWith(';') && !line.startsWith('#');
    };
    return content.endsWith('\n') && std::count_if(lines.begin(), lines.end(), isKey) >= keys;
}

// Gives a file a second name, which takes no room on the disk. Whether it now has it.
bool giveSecondName(const QString &path, const QString &second)
{
    const QByteArray name = QFile::encodeName(second);
    ::unlink(name.constData());
    return ::linkat(AT_FDCWD, QFile::encodeName(path).constData(), AT_FDCWD, name.constData(),
                    AT_SYMLINK_FOLLOW)
        == 0;
}

bool isDamaged(const QByteArray &content, const QByteArray &backup)
{
    const bool isCutOff = content.size() < backup.size() && backup.startsWith(content);
    return isCutOff || !isWellFormed(content);
}

SettingsFile::Values valuesIn(const QString &path)
{
    SettingsFile::Values values;
    const QSettings settings(path, QSettings::IniFormat);
    const QStringList names = settings.allKeys();
    for (const QString &name : names) {
        const QVariant value = settings.value(name);
        // A value with a comma that somebody wrote by hand reads as a list.
        const bool isList = value.userType() == QMetaType::QStringList;
        const QString text = isList ? value.toStringList().join(QLatin1String(", ")) : value.toString();
        values.insert(name, decoded(text));
    }
    return values;
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

SettingsFile::Values SettingsFile::read()
{
    m_wasRead = true;
    m_stamp = currentStamp();
    if (!m_stamp.exists)
        return {};
    // The copy first: read the other way round, a copy of what somebody has just added to
    // the file would make the file seem cut off.
    const QByteArray backup = contentOf(backupPath());
    bool isReadable = m_stamp.isFile && m_stamp.size <= kMaximalSize;
    const QByteArray content = isReadable ? contentOf(m_path, &isReadable) : QByteArray();
    if (!isReadable) {
        if (!m_hasComplained)
            complain(QStringLiteral("%1 cannot be read, its bindings are not used").arg(m_path));
        m_hasComplained = true;
        return {};
    }
    if (isDamaged(content, backup))
        return restore();
    if (content != backup)
        store(backupPath(), content);
    return valuesIn(m_path);
}

SettingsFile::Values SettingsFile::restore()
{
    // The lock that QSettings takes while it writes. In a folder that cannot be written
    // there is none to be had, and nobody to be kept out.
    QLockFile lock(m_path + QLatin1String(".lock"));
    lock.tryLock(kLockPatience);
    const QByteArray backup = contentOf(backupPath());
    const QByteArray content = contentOf(m_path);
    if (!isDamaged(content, backup)) {
        m_stamp = currentStamp(); // somebody else was faster
        return valuesIn(m_path);
    }
    store(m_path + QLatin1String(".damaged"), content);
    if (backup.isEmpty() || !isWellFormed(backup)) {
        complain(QStringLiteral("%1 is damaged, and there is no good copy of it").arg(m_path));
        return valuesIn(m_path);
    }
    complain(QStringLiteral("%1 was damaged and is restored from %2").arg(m_path, backupPath()));
    if (!store(m_path, backup))
        return valuesIn(backupPath());
    m_stamp = currentStamp();
    return valuesIn(m_path);
}

bool SettingsFile::write(const Values &values)
{
    if (m_path.isEmpty())
        return false;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const Stamp before = currentStamp();
    if (before.exists && (!before.isFile || before.size > kMaximalSize))
        return false;
    // On a disk that is nearly full QSettings puts what fitted in place of the good file, and
    // reports no error.
    const QString second = m_path + QLatin1String(".before");
    const bool hasSecond = before.exists && giveSecondName(m_path, second);
    QSettings settings(m_path, QSettings::IniFormat);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        settings.setValue(it.key(), encoded(it.value()));
    settings.sync();
    const bool isReplaced = settings.status() == QSettings::NoError;
    const bool isWritten = isReplaced && isWhole(contentOf(m_path), int(settings.allKeys().size()));
    if (isReplaced && !isWritten) {
        if (before.exists) // a rename needs no room either
            ::rename(QFile::encodeName(hasSecond ? second : backupPath()).constData(),
                     QFile::encodeName(m_path).constData());
        else
            QFile::remove(m_path);
    }
    if (hasSecond)
        QFile::remove(second);
    return isWritten;
}

QString SettingsFile::nameOf(const QString &section, const QString &key)
{
    const QString special = QStringLiteral("/\\");
    const auto part = [&special](const QString &text) {
        return text.isEmpty() ? QStringLiteral("%") : encoded(text, special);
    };
    return part(section) + QLatin1Char('/') + part(key);
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
