// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileWriter.h"

#include "host/files/FileContent.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

constexpr mode_t kOwnerOnly = 0600;

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

// Returns the end of a chain of links, also if nothing is there yet. The kernel follows 40 links.
QString withoutLinks(QString path)
{
    for (int i = 0; i < 40 && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

// Returns whether the name is free or belongs to a file that may be replaced.
bool isReplaceable(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 ? S_ISREG(status.st_mode) : errno == ENOENT;
}

mode_t usualMode(const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) == 0)
        return status.st_mode & 0777U;
    // The mask can only be read by setting it. If another thread makes a file in between, only the
    // owner may use that file.
    const mode_t mask = ::umask(077);
    ::umask(mask);
    return 0666U & ~mask;
}

// A new empty file beside `path`, under an unused name. Removed unless it was renamed.
class NeighbourFile
{
public:
    explicit NeighbourFile(const QByteArray &path)
        : m_name(path + ".XXXXXX")
        , m_file(::mkostemp(m_name.data(), O_CLOEXEC))
    {
    }
    ~NeighbourFile()
    {
        if (m_file < 0)
            return;
        ::close(m_file);
        if (!m_isRenamed)
            ::unlink(m_name.constData());
    }
    NeighbourFile(const NeighbourFile &) = delete;
    NeighbourFile &operator=(const NeighbourFile &) = delete;

    // Writes, flushes and compares.
    [[nodiscard]] bool fill(const QByteArray &content, mode_t mode)
    {
        return m_file >= 0 && writeAll(content) && ::fchmod(m_file, mode) == 0 && isOnDisk()
            && holds(content);
    }
    [[nodiscard]] bool rename(const QByteArray &path)
    {
        m_isRenamed = ::rename(m_name.constData(), path.constData()) == 0;
        return m_isRenamed;
    }

private:
    [[nodiscard]] bool writeAll(const QByteArray &content)
    {
        qsizetype done = 0;
        while (done < content.size()) {
            const ssize_t count = ::write(m_file, content.constData() + done,
                                          static_cast<std::size_t>(content.size() - done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return false;
            done += count;
        }
        return true;
    }
    // Some file systems have nothing to flush and say so. Any other error means that data is lost.
    [[nodiscard]] bool isOnDisk() const
    {
        return ::fsync(m_file) == 0 || errno == EINVAL || errno == ENOSYS;
    }
    [[nodiscard]] bool holds(const QByteArray &content) const
    {
        QByteArray found(content.size() + 1, '\0'); // one byte more, to notice a longer file
        qsizetype done = 0;
        while (done < found.size()) {
            const ssize_t count = ::pread(m_file, found.data() + done,
                                          static_cast<std::size_t>(found.size() - done), done);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                break;
            done += count;
        }
        return done == content.size() && found.startsWith(content);
    }

    QByteArray m_name;
    int m_file;
    bool m_isRenamed = false;
};

} // namespace

FileWriter::FileWriter(const QString &path, Readers readers)
    : m_path(withoutLinks(path))
    , m_readers(readers)
{
}

bool FileWriter::keepAs(const QString &second) const
{
    const QByteArray path = encoded(m_path);
    const QByteArray name = encoded(second);
    if (!isReplaceable(name))
        return false;
    if (m_readers == Readers::Owner)
        static_cast<void>(::chmod(path.constData(), kOwnerOnly)); // fails on somebody else's file
    // Link under a third name and rename that, so that the second name is never missing.
    const QByteArray third = name + ".new";
    ::unlink(third.constData());
    if (::link(path.constData(), third.constData()) == 0) {
        const bool isKept = ::rename(third.constData(), name.constData()) == 0;
        ::unlink(third.constData()); // rename() leaves both if they name one file
        return isKept;
    }
    const FileContent content = FileContent::read(m_path, std::numeric_limits<int>::max() / 2);
    return content.isRead() && FileWriter(second, m_readers).write(content.bytes);
}

bool FileWriter::write(const QByteArray &content) const
{
    return write(content, nullptr);
}

bool FileWriter::write(const QByteArray &content, const QString &second) const
{
    return write(content, &second);
}

bool FileWriter::write(const QByteArray &content, const QString *second) const
{
    const QByteArray path = encoded(m_path);
    if (m_path.isEmpty() || !isReplaceable(path))
        return false;
    NeighbourFile file(path);
    return file.fill(content, m_readers == Readers::Owner ? kOwnerOnly : usualMode(path))
        && (!second || keepAs(*second)) && file.rename(path);
}

} // namespace gesturewidget
