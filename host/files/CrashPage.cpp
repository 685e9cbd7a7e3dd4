// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CrashPage.h"

#include "host/files/FileContent.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace gesturewidget {

using Mark = std::atomic<std::uint32_t>;

// The whole file.
struct CrashPage::Content
{
    char magic[8];
    Mark mark;
    char boot[64]; // which start of the computer, in the kernel's words
    char settings[4096 - 8 - 4 - 64]; // ends with a zero
};

namespace {

constexpr char kMagic[8] = {'G', 'W', 'p', 'a', 'g', 'e', '1', '\n'};
constexpr off_t kSize = 4096; // bytes
constexpr qint64 kMaximalBootName = 63; // bytes

// A program's name as part of a file's name.
QByteArray namePart(const QString &program)
{
    return "gesturewidget-" + program.toUtf8().toPercentEncoding() + '-';
}

QByteArray settingsPath(const QString &settings)
{
    return QFile::encodeName(QFileInfo(settings).absoluteFilePath());
}

bool isNumber(const QByteArray &text)
{
    return !text.isEmpty()
        && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

QByteArray thisBoot()
{
    return FileContent::read(QStringLiteral("/proc/sys/kernel/random/boot_id"), kMaximalBootName)
        .bytes.trimmed();
}

bool isOwn(const QByteArray &folder)
{
    struct stat status = {};
    return ::stat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid();
}

QByteArray runtimeFolder()
{
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.startsWith('/') && isOwn(folder) ? folder : QByteArray();
}

QByteArray cacheFolder()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation))
         + "/gesturewidget";
}

// The folder for the pages. It need not exist.
QByteArray folderForPages()
{
    const QByteArray folder = runtimeFolder();
    return folder.isEmpty() ? cacheFolder() : folder;
}

// True for a file of this user that has the size of a page.
bool isPage(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid()
        && status.st_size == kSize;
}

// On these file systems, a page that is in a file can be written at any time. On others, a full disk
// or a lost connection could make a write to the mapped page end the program.
bool keepsItsPromise(int file)
{
    struct statfs status = {};
    if (::fstatfs(file, &status) != 0)
        return false;
    switch (status.f_type) {
    case TMPFS_MAGIC:
    case EXT4_SUPER_MAGIC: // and that of ext2 and ext3
    case XFS_SUPER_MAGIC:
        return true;
    default:
        return false;
    }
}

} // namespace

CrashPage::CrashPage(const QString &program, const QString &settings)
{
    static_assert(sizeof(Content) == kSize && std::is_standard_layout_v<Content>);
    static_assert(Mark::is_always_lock_free);
    Content content{};
    const QByteArray path = settingsPath(settings);
    const QByteArray boot = thisBoot();
    if (path.size() >= qsizetype(sizeof content.settings))
        return;
    std::memcpy(content.magic, kMagic, sizeof kMagic);
    std::memcpy(content.boot, boot.constData(), std::size_t(boot.size()));
    std::memcpy(content.settings, path.constData(), std::size_t(path.size()));
    const QByteArray folder = folderForPages();
    if (runtimeFolder().isEmpty())
        ::mkdir(folder.constData(), 0700);
    if (!make(folder, program, content) && m_file >= 0) {
        ::close(m_file);
        m_file = -1;
    }
}

bool CrashPage::make(const QByteArray &folder, const QString &program, const Content &content)
{
    // Without a name until all is done, so that nobody sees half a page or one that is not locked.
    m_file = ::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (m_file < 0 || !keepsItsPromise(m_file) || ::flock(m_file, LOCK_EX | LOCK_NB) != 0
        || ::pwrite(m_file, &content, sizeof content, 0) != ssize_t(sizeof content))
        return false;
    void *const page = ::mmap(nullptr, sizeof content, PROT_READ | PROT_WRITE, MAP_SHARED, m_file, 0);
    if (page == MAP_FAILED)
        return false;
    m_content = static_cast<Content *>(page);
    m_process = ::getpid();
    const QByteArray path = folder + '/' + namePart(program) + QByteArray::number(m_process);
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(m_file);
    if (path.size() >= qsizetype(sizeof m_path)
        || ::linkat(AT_FDCWD, open.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) != 0)
        return false;
    std::memcpy(m_path, path.constData(), std::size_t(path.size()));
    m_mark = new (&m_content->mark) Mark(0);
    return true;
}

template <class Use>
void CrashPage::forEachDead(const QString &program, const QString &settings, Use use)
{
    const QByteArray folder = folderForPages();
    const QByteArray start = namePart(program);
    const QByteArray path = settingsPath(settings);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(folder.constData()), &::closedir);
    if (!entries)
        return;
    while (const dirent *entry = ::readdir(entries.get())) {
        const QByteArray name(entry->d_name);
        if (!name.startsWith(start) || !isNumber(name.mid(start.size())))
            continue;
        const QByteArray page = folder + '/' + name;
        const int file = ::open(page.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0)
            continue;
        Content content{};
        // Several may look at once; its own process locks it against all of them.
        const bool isDead = isPage(file) && ::flock(file, LOCK_SH | LOCK_NB) == 0
                         && ::pread(file, &content, sizeof content, 0) == ssize_t(sizeof content)
                         && std::memcmp(content.magic, kMagic, sizeof kMagic) == 0
                         && path
                                == QByteArray(content.settings,
                                              int(::strnlen(content.settings, sizeof content.settings)));
        if (isDead)
            use(page, content);
        ::close(file);
    }
}

bool CrashPage::tellsOfCrash(const QString &program, const QString &settings)
{
    const QByteArray boot = thisBoot();
    bool hasCrashed = false;
    forEachDead(program, settings, [&](const QByteArray &, const Content &content) {
        // When the power fails, a page on a disk may have any mark.
        const auto length = ::strnlen(content.boot, sizeof content.boot);
        const bool isOfThisBoot = boot == QByteArray(content.boot, int(length));
        hasCrashed |= isOfThisBoot && content.mark.load(std::memory_order_relaxed) != 0;
    });
    return hasCrashed;
}

void CrashPage::removeDead(const QString &program, const QString &settings)
{
    forEachDead(program, settings,
                [](const QByteArray &page, const Content &) { ::unlink(page.constData()); });
}

CrashPage::~CrashPage()
{
    if (m_path[0] != '\0' && ::getpid() == m_process)
        ::unlink(m_path);
    if (m_content)
        ::munmap(m_content, sizeof *m_content);
    if (m_file >= 0)
        ::close(m_file);
}

} // namespace gesturewidget
