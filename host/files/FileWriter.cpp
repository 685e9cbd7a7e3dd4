// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileWriter.h"

#include "host/files/FileContent.h"
#include "host/files/UnfinishedFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <limits>

#include <sys/stat.h>

namespace gesturewidget {
namespace {

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

} // namespace

FileWriter::FileWriter(const QString &path, Readers readers)
    : m_path(withoutLinks(path))
    , m_readers(readers)
{
}

bool FileWriter::keepAs(const QString &second) const
{
    const QByteArray path = QFile::encodeName(m_path);
    const QByteArray name = QFile::encodeName(second);
    if (!isReplaceable(name))
        return false;
    if (m_readers == Readers::Owner)
        // Fails on somebody else's file.
        static_cast<void>(::chmod(path.constData(), UnfinishedFile::kOwnerOnly));
    if (UnfinishedFile::linkAs(path, name))
        return true;
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
    const QByteArray path = QFile::encodeName(m_path);
    if (m_path.isEmpty() || !isReplaceable(path))
        return false;
    UnfinishedFile::removeLeftovers(path); // first, since they take space
    UnfinishedFile file(path);
    const bool isFilled = m_readers == Readers::Owner
                            ? file.fill(content, UnfinishedFile::kOwnerOnly)
                            : file.fill(content, usualMode(path), UnfinishedFile::Mode::Wished);
    return isFilled && (!second || keepAs(*second)) && file.finish();
}

} // namespace gesturewidget
