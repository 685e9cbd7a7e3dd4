// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileContent.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

// Reads from the start to the end, but stops after `limit` + 1 bytes. Returns whether that went
// without an error.
bool readAll(int file, qint64 size, qint64 limit, QByteArray &bytes)
{
    // One byte more, so that the end is found without enlarging the buffer.
    qint64 room = qMin(size, limit) + 1;
    qint64 count = 0;
    while (count <= limit) {
        if (count == room)
            room = qMin(2 * room, limit + 1); // the file has grown meanwhile
        bytes.resize(static_cast<int>(room));
        const ssize_t some = ::read(file, bytes.data() + count, static_cast<std::size_t>(room - count));
        if (some < 0 && errno == EINTR)
            continue;
        if (some < 0)
            return false;
        if (some == 0)
            break;
        count += some;
    }
    bytes.truncate(static_cast<int>(count));
    return true;
}

// A program may have its profile built in. Qt's resources are not files of the system.
FileContent readResource(const QString &path, qint64 limit)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (file.size() > limit)
        return {FileContent::State::TooLarge, {}, {}};
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // Qt opens a folder too
        return {FileContent::State::NotAFile, {}, {}};
    return {FileContent::State::Read, file.readAll(), {}};
}

} // namespace

FileContent FileContent::read(const QString &path, qint64 limit)
{
    if (path.startsWith(QLatin1String(":/")))
        return readResource(path, limit);
    // Without O_NONBLOCK, opening a pipe would wait until somebody writes to it.
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        return {errno == ENXIO || errno == ENODEV ? State::NotAFile : State::Unreadable,
                {},
                QString::fromLocal8Bit(std::strerror(errno))};
    }
    FileContent content;
    struct stat status = {};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
        content.state = State::NotAFile;
    } else if (status.st_size > limit) {
        content.state = State::TooLarge;
    } else if (!readAll(file, status.st_size, limit, content.bytes)) {
        content.state = State::Unreadable;
        content.problem = QString::fromLocal8Bit(std::strerror(errno));
        content.bytes.clear();
    } else if (content.bytes.size() > limit) {
        content.state = State::TooLarge;
        content.bytes.clear();
    } else {
        content.state = State::Read;
    }
    ::close(file);
    return content;
}

} // namespace gesturewidget
