// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CrashNote.h"
#include "host/files/CrashPage.h"
#include "tests/support/FolderTest.h"
#include "tests/support/SystemFault.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>

#include <dlfcn.h>
#include <linux/magic.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/wait.h>
#include <unistd.h>

using gesturewidget::CrashNote;
using gesturewidget::CrashPage;
using tests::contentOf;
using tests::SystemCall;
using tests::SystemFault;
using tests::text;

namespace {

// Where the mark and the name of the computer's start are in the file.
constexpr int kMarkPlace = 8;
constexpr int kBootPlace = 12;
constexpr int kSize = 4096;

// How a process with a page ends.
enum class End { Killed, Returned, LeftAtOnce };

// What the system calls every file system, whatever it is. kTruth: what it is.
constexpr qint64 kTruth = 0;
qint64 fileSystem = TMPFS_MAGIC;

// Mounts a ramfs there, in a process of its own whose mounts nobody else sees. False if it may not.
bool mountRamfs(const QByteArray &folder)
{
    return ::unshare(CLONE_NEWNS) == 0
        && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && ::mount("ramfs", folder.constData(), "ramfs", 0, nullptr) == 0;
}

// Runs `inside` in a forked process. Returns what it returned, or -1.
int inAnotherProcess(const std::function<int()> &inside)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(inside());
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status)
                                                                                   : -1;
}

} // namespace

// Stands in for that of the C library.
extern "C" int fstatfs(int file, struct statfs *status) noexcept
{
    static const auto real =
        reinterpret_cast<int (*)(int, struct statfs *)>(::dlsym(RTLD_NEXT, "fstatfs"));
    const int result = real(file, status);
    if (result == 0 && fileSystem != kTruth)
        status->f_type = fileSystem;
    return result;
}

// The pages of processes that end in all ways, and files that are no pages.
class CrashPageTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();
    void tellsOfACrashInOurCode_data();
    void tellsOfACrashInOurCode();
    void aLivingProcessHasNotCrashed();
    void programsAndSettingsAreToldApart();
    void aLongerNameIsAnotherProgram();
    void theFileSystemDecides_data();
    void theFileSystemDecides();
    void aForkedProcessLeavesThePage();
    void anEarlierStartOfTheComputerDoesNotCount();
    void whatIsNoPageStays_data();
    void whatIsNoPageStays();
    void withoutAFolderForThemPagesAreInTheCache();
    void withoutAnyFolderThereIsNoPage_data();
    void withoutAnyFolderThereIsNoPage();
    void withoutHelpOfTheSystemThereIsNoPage_data();
    void withoutHelpOfTheSystemThereIsNoPage();
    void aPageThatCannotBeReadTellsNothing();
    void namesOfAllKinds();
    void theNoteStaysUntilItIsRemoved();
    void withoutSettingsTheNoteStaysInThePage();

private:
    // Runs a process with a page, whose mark has that value at its end.
    static void play(const QString &program, const QString &settings, std::uint32_t mark, End end);
    void playCrash() const { play(text("draw"), m_settings, 1, End::Killed); }
    [[nodiscard]] bool tells() const { return CrashPage::tellsOfCrash(text("draw"), m_settings); }
    [[nodiscard]] QStringList pages() const { return pagesIn(place("runtime")); }
    static QStringList pagesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden
                                      | QDir::NoDotAndDotDot);
    }

    QString m_settings;
};

void CrashPageTest::init()
{
    FolderTest::init();
    QVERIFY(QDir().mkdir(place("runtime")));
    QVERIFY(QDir().mkdir(place("cache")));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(place("runtime")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(place("cache")));
    m_settings = place("draw.ini");
}

void CrashPageTest::cleanupTestCase()
{
    qunsetenv("XDG_RUNTIME_DIR");
    qunsetenv("XDG_CACHE_HOME");
}

void CrashPageTest::play(const QString &program, const QString &settings, std::uint32_t mark, End end)
{
    const pid_t child = ::fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        {
            const CrashPage page(program, settings);
            if (!page.mark())
                ::_exit(1);
            page.mark()->store(mark);
            if (end == End::Killed)
                ::raise(SIGKILL);
            if (end == End::LeftAtOnce)
                ::_exit(0);
        }
        ::_exit(0);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(WIFSIGNALED(status), end == End::Killed);
    QVERIFY(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
}

void CrashPageTest::tellsOfACrashInOurCode_data()
{
    QTest::addColumn<int>("mark");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("tells");
    QTest::addColumn<int>("left"); // files
    QTest::newRow("killed in our code") << 1 << int(End::Killed) << true << 1;
    QTest::newRow("killed elsewhere") << 0 << int(End::Killed) << false << 1;
    QTest::newRow("left at once, elsewhere") << 0 << int(End::LeftAtOnce) << false << 1;
    QTest::newRow("ended as it should") << 1 << int(End::Returned) << false << 0;
}

void CrashPageTest::tellsOfACrashInOurCode()
{
    QFETCH(int, mark);
    QFETCH(int, end);
    QFETCH(bool, tells);
    QFETCH(int, left);
    QVERIFY(!this->tells());
    play(text("draw"), m_settings, std::uint32_t(mark), static_cast<End>(end));
    QCOMPARE(pages().size(), left);
    QCOMPARE(this->tells(), tells);
    QCOMPARE(this->tells(), tells); // asking changes nothing
    CrashPage::removeDead(text("draw"), m_settings);
    QVERIFY(!this->tells());
    QCOMPARE(pages(), QStringList());
}

void CrashPageTest::aLivingProcessHasNotCrashed()
{
    const CrashPage page(text("draw"), m_settings);
    QVERIFY(page.mark());
    QCOMPARE(page.mark()->load(), 0U);
    page.mark()->store(1);
    QCOMPARE(pages(), QStringList(text("gesturewidget-draw-%1").arg(::getpid())));
    QVERIFY(!tells());
    CrashPage::removeDead(text("draw"), m_settings);
    QCOMPARE(pages().size(), 1);
    playCrash();
    QVERIFY(tells());
    CrashPage::removeDead(text("draw"), m_settings);
    QCOMPARE(pages().size(), 1);
}

void CrashPageTest::programsAndSettingsAreToldApart()
{
    playCrash();
    for (const char *other : {"dra", "drawing", "draw-1", "DRAW", ""})
        QVERIFY(!CrashPage::tellsOfCrash(text(other), m_settings));
    QVERIFY(!CrashPage::tellsOfCrash(text("draw"), place("other.ini")));
    QVERIFY(!CrashPage::tellsOfCrash(text("draw"), m_settings + text("x")));
    CrashPage::removeDead(text("drawing"), m_settings);
    CrashPage::removeDead(text("draw"), place("other.ini"));
    QVERIFY(tells());
    QVERIFY(CrashPage::tellsOfCrash(text("draw"), place("runtime/../draw.ini"))); // the same file
}

void CrashPageTest::aLongerNameIsAnotherProgram()
{
    play(text("draw-1"), m_settings, 1, End::Killed);
    QVERIFY(!tells());
    CrashPage::removeDead(text("draw"), m_settings);
    QVERIFY(CrashPage::tellsOfCrash(text("draw-1"), m_settings));
}

void CrashPageTest::theFileSystemDecides_data()
{
    QTest::addColumn<qint64>("type"); // in the kernel's numbers
    QTest::addColumn<bool>("isMounted");
    QTest::addColumn<bool>("hasPage");
    QTest::newRow("tmpfs") << qint64(TMPFS_MAGIC) << false << true;
    QTest::newRow("ext4") << qint64(EXT4_SUPER_MAGIC) << false << true;
    QTest::newRow("xfs") << qint64(XFS_SUPER_MAGIC) << false << true;
    QTest::newRow("ramfs") << qint64(RAMFS_MAGIC) << false << false;
    QTest::newRow("btrfs") << qint64(BTRFS_SUPER_MAGIC) << false << false;
    QTest::newRow("nfs") << qint64(NFS_SUPER_MAGIC) << false << false;
    QTest::newRow("fuse") << qint64(FUSE_SUPER_MAGIC) << false << false;
    const QByteArray folder = QFile::encodeName(QDir::tempPath());
    if (inAnotherProcess([&folder] { return mountRamfs(folder) ? 0 : 1; }) == 0)
        QTest::newRow("ramfs, mounted") << qint64(kTruth) << true << false;
}

// Where the system does not promise that a mapped page can be written at any time, there is none.
void CrashPageTest::theFileSystemDecides()
{
    QFETCH(qint64, type);
    QFETCH(bool, isMounted);
    QFETCH(bool, hasPage);
    enum { NoPage, APage, NoMount };
    const int found = inAnotherProcess([&] {
        if (isMounted && !mountRamfs(QFile::encodeName(place("runtime"))))
            return NoMount;
        fileSystem = type;
        const CrashPage page(text("draw"), m_settings);
        return page.mark() ? APage : NoPage;
    });
    QCOMPARE(found, int(hasPage ? APage : NoPage));
}

void CrashPageTest::aForkedProcessLeavesThePage()
{
    const CrashPage page(text("draw"), m_settings);
    const pid_t child = ::fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        page.~CrashPage();
        ::_exit(0);
    }
    QCOMPARE(::waitpid(child, nullptr, 0), child);
    QCOMPARE(pages().size(), 1);
}

void CrashPageTest::anEarlierStartOfTheComputerDoesNotCount()
{
    playCrash();
    QFile page(place("runtime/") + pages().constFirst());
    QVERIFY(page.open(QIODevice::ReadWrite));
    QVERIFY(page.seek(kBootPlace));
    QVERIFY(page.putChar('?'));
    page.close();
    QVERIFY(!tells());
    CrashPage::removeDead(text("draw"), m_settings);
    QCOMPARE(pages(), QStringList());
}

void CrashPageTest::whatIsNoPageStays_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"folder", "pipe", "link", "empty", "cut off", "longer", "huge", "zeroed",
                             "another format", "without an end"})
        QTest::newRow(kind) << QByteArray(kind);
    // Root can read everything, and only root can give a file away.
    const char *const closed = ::geteuid() == 0 ? "of another user" : "unreadable";
    QTest::newRow(closed) << QByteArray(closed);
}

void CrashPageTest::whatIsNoPageStays()
{
    QFETCH(QByteArray, kind);
    playCrash();
    const QString path = place("runtime/") + pages().constFirst();
    const QByteArray name = QFile::encodeName(path);
    QByteArray content = contentOf(path);
    QCOMPARE(content.size(), kSize);
    QCOMPARE(int(content.at(kMarkPlace)), 1);
    if (kind == "unreadable") {
        QCOMPARE(::chmod(name.constData(), 0), 0);
    } else if (kind == "of another user") {
        QCOMPARE(::chown(name.constData(), 1, 1), 0);
    } else {
        QVERIFY(QFile::remove(path));
        if (kind == "folder")
            QVERIFY(QDir().mkdir(path));
        else if (kind == "pipe")
            QCOMPARE(::mkfifo(name.constData(), 0600), 0);
        else if (kind == "link")
            QVERIFY(tests::writeFile(place("elsewhere"), content)
                    && QFile::link(place("elsewhere"), path));
        else if (kind == "empty")
            write(path, "");
        else if (kind == "cut off")
            write(path, content.left(kSize - 1));
        else if (kind == "longer")
            write(path, content + 'x');
        else if (kind == "zeroed")
            write(path, QByteArray(kSize, '\0'));
        else if (kind == "another format")
            write(path, content.replace(0, 1, "X"));
        else if (kind == "without an end")
            write(path, content.left(kBootPlace) + QByteArray(kSize - kBootPlace, 'x'));
        else {
            write(path, content);
            QCOMPARE(::truncate(name.constData(), off_t(1) << 40), 0);
        }
    }
    QVERIFY(!tells());
    CrashPage::removeDead(text("draw"), m_settings);
    QCOMPARE(pages().size(), 1);
    const CrashPage page(text("draw"), m_settings); // beside it
    QVERIFY(page.mark());
}

void CrashPageTest::withoutAFolderForThemPagesAreInTheCache()
{
    for (const char *runtime : {"", "relative", "/nowhere/at/all"}) {
        qputenv("XDG_RUNTIME_DIR", runtime);
        playCrash();
        QVERIFY(tells());
        QCOMPARE(pagesIn(place("cache/gesturewidget")).size(), 1);
        CrashPage::removeDead(text("draw"), m_settings);
        QCOMPARE(pagesIn(place("cache/gesturewidget")), QStringList());
    }
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(place("cache/gesturewidget")).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0700U);
}

void CrashPageTest::withoutAnyFolderThereIsNoPage_data()
{
    QTest::addColumn<QString>("runtime");
    QTest::addColumn<QString>("cache");
    QTest::newRow("read-only") << text("/proc") << text("/proc");
    QTest::newRow("none") << QString() << text("/nowhere/at/all");
    QTest::newRow("a file") << text("/dev/null") << text("/dev/null");
}

void CrashPageTest::withoutAnyFolderThereIsNoPage()
{
    QFETCH(QString, runtime);
    QFETCH(QString, cache);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache));
    const CrashPage page(text("draw"), m_settings);
    QVERIFY(!page.mark());
    QVERIFY(!tells());
    CrashPage::removeDead(text("draw"), m_settings);
    // A path that does not fit into a page.
    const CrashPage longPath(text("draw"), place(QString(kSize, QLatin1Char('x'))));
    QVERIFY(!longPath.mark());
}

void CrashPageTest::withoutHelpOfTheSystemThereIsNoPage_data()
{
    QTest::addColumn<SystemCall>("call");
    QTest::addColumn<int>("error");
    QTest::newRow("no locks") << SystemCall::Flock << ENOLCK;
    QTest::newRow("no room") << SystemCall::Pwrite << ENOSPC;
    QTest::newRow("no memory") << SystemCall::Mmap << ENOMEM;
    QTest::newRow("no name") << SystemCall::Linkat << EPERM;
}

void CrashPageTest::withoutHelpOfTheSystemThereIsNoPage()
{
    QFETCH(SystemCall, call);
    QFETCH(int, error);
    const SystemFault fault(call, error);
    const CrashPage page(text("draw"), m_settings);
    QVERIFY(fault.hasFailed());
    QVERIFY(!page.mark());
    QCOMPARE(pages(), QStringList());
}

void CrashPageTest::aPageThatCannotBeReadTellsNothing()
{
    playCrash();
    {
        const SystemFault fault(SystemCall::Pread, EIO);
        QVERIFY(!tells());
        CrashPage::removeDead(text("draw"), m_settings);
    }
    QVERIFY(tells());
}

void CrashPageTest::namesOfAllKinds()
{
    for (const char *name : {"", "..", "a/../../b", "a b", "%2f", "\xc3\xa4", "-", "a-1"}) {
        const QString program = QString::fromUtf8(name);
        play(program, m_settings, 1, End::Killed);
        QCOMPARE(pages().size(), 1);
        QVERIFY(CrashPage::tellsOfCrash(program, m_settings));
        CrashPage::removeDead(program, m_settings);
        QCOMPARE(pages(), QStringList());
    }
    const CrashPage page(QString(300, QLatin1Char('x')), m_settings);
    QVERIFY(!page.mark());
}

void CrashPageTest::theNoteStaysUntilItIsRemoved()
{
    write("draw.ini", "[Other]\nkey=value\n");
    const CrashNote note(text("draw"), m_settings);
    QString problem;
    note.keep();
    QVERIFY(!note.isThere());
    QVERIFY(note.remove(&problem));
    QCOMPARE(contentOf(m_settings), QByteArray("[Other]\nkey=value\n"));

    for (const bool isKept : {false, true}) {
        playCrash();
        QVERIFY(note.isThere());
        if (isKept) {
            note.keep();
            QCOMPARE(pages(), QStringList());
            QVERIFY(contentOf(m_settings).contains("OffSinceCrash=1"));
        }
        note.keep();
        QVERIFY(note.isThere());
        QVERIFY(!CrashNote(text("other"), place("other.ini")).isThere());
        QVERIFY2(note.remove(&problem), qPrintable(problem));
        QVERIFY(!note.isThere());
        QCOMPARE(pages(), QStringList());
        QVERIFY(contentOf(m_settings).contains("key=value"));
        QVERIFY(!contentOf(m_settings).contains("OffSinceCrash"));
    }
    QCOMPARE(problem, QString());
}

void CrashPageTest::withoutSettingsTheNoteStaysInThePage()
{
    QVERIFY(QDir().mkdir(m_settings)); // not a file, so nothing can be written
    playCrash();
    const CrashNote note(text("draw"), m_settings);
    note.keep();
    QVERIFY(note.isThere());
    QCOMPARE(pages().size(), 1);
}

QTEST_GUILESS_MAIN(CrashPageTest)
#include "tst_crashpage.moc"
