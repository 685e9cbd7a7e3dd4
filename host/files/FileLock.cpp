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

QByteArray lockName(const QString &path)
{
    return QFile::encodeName(path + QLatin1String(".lock"));
}

} // namespace

FileLock::Token::Token(const QByteArray &name)
    : m_name(name)
{
}

FileLock::Token::~Token()
{
    if (!isHeld())
        return;
    ::unlink(m_name.constData()); // while nobody else can hold it
    ::close(m_file);
}

FileLock::Result FileLock::Token::take()
{
    while (true) {
        const int file =
            ::open(m_name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
        if (file < 0)
            return Result::Impossible;
        const bool isFile = isRegular(file);
        const bool isLocked = isFile && ::flock(file, LOCK_EX | LOCK_NB) == 0;
        const bool isBusy = isFile && !isLocked && (errno == EWOULDBLOCK || errno == EINTR);
        // Its last owner may have removed the file between the two calls.
        if (isLocked && isNameOf(m_name, file)) {
            m_file = file;
            return Result::Held;
        }
        ::close(file);
        if (!isLocked)
            return isBusy ? Result::Busy : Result::Impossible;
    }
}

bool FileLock::Token::isThere() const
{
    return ::access(m_name.constData(), F_OK) == 0;
}

FileLock::FileLock(const QString &path, int patience)
    : m_token(lockName(path))
{
    Token next(lockName(path) + ".next"); // until the lock is taken
    QElapsedTimer waited;
    waited.start();
    while (true) {
        const bool isNext = next.isHeld() || !next.isThere() || next.take() != Result::Busy;
        m_result = isNext ? m_token.take() : Result::Busy;
        if (m_result != Result::Busy || waited.hasExpired(patience))
            return;
        if (isNext && !next.isHeld())
            static_cast<void>(next.take());
        ::poll(nullptr, 0, kSlice);
    }
}

FileLock::~FileLock() = default;

} // namespace gesturewidget
