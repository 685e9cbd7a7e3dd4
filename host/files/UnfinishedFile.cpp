// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/UnfinishedFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

constexpr char kMark[] = ".saving-";
constexpr int kLetters = 6; // 32 different ones, so two writers hardly ever choose the same
constexpr char kAlphabet[] = "abcdefghijklmnopqrstuvwxyz234567";
constexpr int kAttempts = 100;

QByteArray folderOf(const QByteArray &path)
{
    const auto slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : slash == 0 ? QByteArray("/") : path.left(slash);
}

QByteArray nameOf(const QByteArray &path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

// What the names of unfinished files of `path` begin with. A long name is cut off, so that the whole
// name is one that the file system accepts.
QByteArray beginning(const QByteArray &path)
{
    return nameOf(path).left(NAME_MAX - int(sizeof kMark) + 1 - kLetters) + kMark;
}

// Calls `use` with names in `folder` that nobody else has chosen, until it does not fail with EEXIST.
// Returns what the last call returned, which is negative on failure.
template <class Use>
int withUnusedName(const QByteArray &folder, const QByteArray &start, QByteArray &name, Use use)
{
    for (int i = 0; i < kAttempts; ++i) {
        unsigned char random[kLetters] = {};
        if (::getrandom(random, sizeof random, GRND_NONBLOCK) != ssize_t(sizeof random))
            return -1;
        name = folder + '/' + start;
        for (const unsigned char byte : random)
            name += kAlphabet[byte % 32];
        const int result = use(name.constData());
        if (result >= 0 || errno != EEXIST)
            return result;
    }
    return -1;
}

// True if a name ends in the letters that withUnusedName() makes.
bool isOurs(const char *name, const QByteArray &start)
{
    const auto length = std::size_t(start.size());
    return std::strncmp(name, start.constData(), length) == 0 && std::strlen(name) == length + kLetters
        && std::strspn(name + length, kAlphabet) == kLetters;
}

void removeIfLeftOver(const QByteArray &path)
{
    constexpr int kHow = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    int file = ::open(path.constData(), O_RDWR | kHow);
    if (file < 0) // it may have the mode of a file that is only read
        file = ::open(path.constData(), O_RDONLY | kHow);
    if (file < 0)
        return;
    struct stat status = {};
    if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && ::flock(file, LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.constData());
    ::close(file);
}

// The only path to a file without a name. Missing where there is no /proc.
QByteArray pathOfOpen(int file)
{
    return "/proc/self/fd/" + QByteArray::number(file);
}

} // namespace

UnfinishedFile::UnfinishedFile(const QByteArray &path, Start start)
    : m_path(path)
{
    if (start == Start::WithoutName)
        open();
    if (m_file < 0)
        openWithName();
}

UnfinishedFile::~UnfinishedFile()
{
    if (m_file >= 0 && !m_name.isEmpty())
        ::unlink(m_name.constData());
    if (m_file >= 0)
        ::close(m_file);
}

void UnfinishedFile::open()
{
    m_file = ::open(folderOf(m_path).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnerOnly);
    if (m_file < 0)
        return;
    if (::access(pathOfOpen(m_file).constData(), F_OK) == 0) {
        ::flock(m_file, LOCK_EX | LOCK_NB); // nobody else can hold it
    } else {
        ::close(m_file);
        m_file = -1;
    }
}

void UnfinishedFile::openWithName()
{
    for (int i = 0; i < kAttempts; ++i) {
        m_file = withUnusedName(folderOf(m_path), beginning(m_path), m_name, [](const char *name) {
            return ::open(name, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kOwnerOnly);
        });
        if (m_file < 0)
            return;
        // Another writer may have taken it for a leftover before it was locked.
        ::flock(m_file, LOCK_EX);
        struct stat status = {};
        if (::fstat(m_file, &status) != 0 || status.st_nlink > 0)
            return;
        ::close(m_file);
        m_file = -1;
    }
}

bool UnfinishedFile::fill(const QByteArray &content, mode_t mode, Mode need)
{
    return m_file >= 0 && writeAll(content) && (::fchmod(m_file, mode) == 0 || need == Mode::Wished)
        && isOnDisk() && holds(content);
}

bool UnfinishedFile::giveName()
{
    const QByteArray open = pathOfOpen(m_file);
    QByteArray name;
    const auto link = [&open](const char *newName) {
        return ::linkat(AT_FDCWD, open.constData(), AT_FDCWD, newName, AT_SYMLINK_FOLLOW);
    };
    if (withUnusedName(folderOf(m_path), beginning(m_path), name, link) != 0)
        return false;
    m_name = name;
    return true;
}

bool UnfinishedFile::finish()
{
    if (m_file < 0 || (m_name.isEmpty() && !giveName())
        || ::rename(m_name.constData(), m_path.constData()) != 0)
        return false;
    m_name.clear();
    return true;
}

bool UnfinishedFile::linkAs(const QByteArray &path, const QByteArray &second)
{
    // Locked until it has its name, so that nobody takes it for a leftover.
    const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    const auto link = [&path](const char *name) { return ::link(path.constData(), name); };
    bool isKept = false;
    bool isTaken = true;
    for (int i = 0; i < kAttempts && isTaken; ++i) {
        if (file >= 0)
            ::flock(file, LOCK_SH | LOCK_NB);
        // A third name that is renamed, so that the second one is never missing.
        QByteArray third;
        if (withUnusedName(folderOf(second), beginning(path), third, link) != 0)
            break;
        isKept = ::rename(third.constData(), second.constData()) == 0;
        // Another writer that was looking at an earlier link had the lock, and has removed this one.
        isTaken = !isKept && errno == ENOENT;
        ::unlink(third.constData()); // rename() leaves both if they name one file
    }
    if (file >= 0)
        ::close(file);
    return isKept;
}

void UnfinishedFile::removeLeftovers(const QByteArray &path)
{
    const QByteArray folder = folderOf(path);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(folder.constData()), &::closedir);
    if (!entries)
        return;
    const QByteArray start = beginning(path);
    while (const dirent *entry = ::readdir(entries.get())) {
        if (isOurs(entry->d_name, start))
            removeIfLeftOver(folder + '/' + entry->d_name);
    }
}

bool UnfinishedFile::writeAll(const QByteArray &content) const
{
    qsizetype done = 0;
    while (done < content.size()) {
        const ssize_t count =
            ::write(m_file, content.constData() + done, static_cast<std::size_t>(content.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

// Some file systems have nothing to flush and say so. Any other error means that data is lost.
bool UnfinishedFile::isOnDisk() const
{
    return ::fsync(m_file) == 0 || errno == EINVAL || errno == ENOSYS;
}

bool UnfinishedFile::holds(const QByteArray &content) const
{
    QByteArray found(content.size() + 1, '\0'); // one byte more, to notice a longer file
    qsizetype done = 0;
    while (done < found.size()) {
        const ssize_t count =
            ::pread(m_file, found.data() + done, static_cast<std::size_t>(found.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += count;
    }
    return done == content.size() && found.startsWith(content);
}

} // namespace gesturewidget
