// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileLock.h"

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

constexpr int kSlice = 5; // milliseconds between two attempts

// Returns whether `path` is still the name of the open file.
bool isNameOf(const QByteArray &path, int file)
{
    struct stat named = {};
    struct stat open = {};
    return ::fstat(file, &open) == 0 && ::lstat(path.constData(), &named) == 0
        && named.st_dev == open.st_dev && named.st_ino == open.st_ino;
}

bool isRegular(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

FileLock::FileLock(const QString &path, int patience)
    : m_path(path + QLatin1String(".lock"))
{
    const QByteArray name = QFile::encodeName(m_path);
    QElapsedTimer waited;
    waited.start();
    while (true) {
        m_file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (m_file < 0 || !isRegular(m_file))
            return;
        const bool isLocked = ::flock(m_file, LOCK_EX | LOCK_NB) == 0;
        // Its last owner may have removed the file between the two calls.
        if (isLocked && isNameOf(name, m_file)) {
            m_result = Result::Held;
            return;
        }
        if (!isLocked && errno != EWOULDBLOCK && errno != EINTR)
            return;
        ::close(m_file);
        m_file = -1;
        if (!isLocked && waited.hasExpired(patience)) {
            m_result = Result::Busy;
            return;
        }
        if (!isLocked)
            ::poll(nullptr, 0, kSlice);
    }
}

FileLock::~FileLock()
{
    if (isHeld())
        ::unlink(QFile::encodeName(m_path).constData()); // while nobody else can hold it
    if (m_file >= 0)
        ::close(m_file);
}

} // namespace gesturewidget
