// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileWriter.h"
#include "host/files/UnfinishedFile.h"
#include "tests/support/FolderTest.h"
#include "tests/support/SystemFault.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using gesturewidget::FileWriter;
using gesturewidget::UnfinishedFile;
using tests::contentOf;
using tests::SystemCall;
using tests::SystemFault;
using tests::text;
using Start = UnfinishedFile::Start;

// What is there while a file is written, and what is left when its writer is killed.
class UnfinishedFileTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheNameAtTheEnd_data();
    void takesTheNameAtTheEnd();
    void aKilledWriterLeavesNothingForLong_data();
    void aKilledWriterLeavesNothingForLong();
    void onlyLeftoversAreRemoved();
    void aLinkOfTheFileIsNoLeftoverWhileItIsMade();
    void namesMayBeAsLongAsTheFileSystemAllows();
    void aFailureChangesNothing_data();
    void aFailureChangesNothing();
    void someFailuresKeepNothingFromBeingWritten_data();
    void someFailuresKeepNothingFromBeingWritten();
    void aSecondNameThatCannotBeMade_data();
    void aSecondNameThatCannotBeMade();

private:
    QByteArray path(const char *name) const { return QFile::encodeName(place(name)); }
    QStringList names() const
    {
        QStringList names =
            QDir(m_folder->path())
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        names.sort();
        return names;
    }
    static void addStarts()
    {
        QTest::addColumn<bool>("hasName");
        QTest::newRow("without a name") << false;
        QTest::newRow("with a name") << true;
    }
    static void addFaults()
    {
        QTest::addColumn<SystemCall>("call");
        QTest::addColumn<int>("error");
    }
    static Start start(bool hasName) { return hasName ? Start::WithName : Start::WithoutName; }
};

void UnfinishedFileTest::takesTheNameAtTheEnd_data()
{
    addStarts();
}

void UnfinishedFileTest::takesTheNameAtTheEnd()
{
    QFETCH(bool, hasName);
    write("file", "old");
    for (const bool isFinished : {false, true}) {
        {
            UnfinishedFile file(path("file"), start(hasName));
            QVERIFY(file.fill("new", 0640));
            QCOMPARE(contentOf(place("file")), QByteArray("old"));
            // Another writer must not take it for a leftover.
            UnfinishedFile::removeLeftovers(path("file"));
            QCOMPARE(names().size(), hasName ? 2 : 1);
            if (isFinished)
                QVERIFY(file.finish());
        }
        QCOMPARE(names(), QStringList(text("file")));
        QCOMPARE(contentOf(place("file")), QByteArray(isFinished ? "new" : "old"));
    }
    struct stat status = {};
    QCOMPARE(::stat(path("file").constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0640U);
}

void UnfinishedFileTest::aKilledWriterLeavesNothingForLong_data()
{
    addStarts();
}

void UnfinishedFileTest::aKilledWriterLeavesNothingForLong()
{
    QFETCH(bool, hasName);
    const QByteArray name = path("file");
    const pid_t child = ::fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        UnfinishedFile file(name, start(hasName));
        if (!file.fill("half", 0600))
            ::_exit(1);
        ::raise(SIGKILL);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    QCOMPARE(names().size(), hasName ? 1 : 0);
    QVERIFY(FileWriter(place("file"), FileWriter::Readers::Owner).write("new"));
    QCOMPARE(names(), QStringList(text("file")));
    QCOMPARE(contentOf(place("file")), QByteArray("new"));
}

void UnfinishedFileTest::onlyLeftoversAreRemoved()
{
    write("file", "old");
    write("file.saving-abcdef", "left");
    write("file.saving-234567", "left, of a file that is only read");
    QCOMPARE(::chmod(path("file.saving-234567").constData(), 0444), 0);
    const QStringList others{text("file"),
                             text("file.backup"),
                             text("file.bak.saving-abcdef"),
                             text("file.saving-ABCDEF"),
                             text("file.saving-abcde"),
                             text("file.saving-abcdef.txt"),
                             text("file.saving-abcdefg"),
                             text("file.saving-folder"),
                             text("file.saving-locked"),
                             text("file.saving-passed"),
                             text("file.saving-symbol"),
                             text("file2.saving-abcdef"),
                             text("other.saving-abcdef")};
    QVERIFY(QDir().mkdir(place("file.saving-folder")));
    QCOMPARE(::mkfifo(path("file.saving-passed").constData(), 0600), 0);
    QVERIFY(QFile::link(place("file"), place("file.saving-symbol")));
    for (const QString &name : others) {
        if (!names().contains(name))
            write(place(name), "mine");
    }
    const int locked = ::open(path("file.saving-locked").constData(), O_RDONLY | O_CLOEXEC);
    QVERIFY(locked >= 0);
    QCOMPARE(::flock(locked, LOCK_EX), 0);

    QVERIFY(FileWriter(place("file"), FileWriter::Readers::Owner).write("new"));
    ::close(locked);
    QCOMPARE(names(), others); // sorted
    QCOMPARE(contentOf(place("file")), QByteArray("new"));
}

// The name that a link has before it takes its own one.
void UnfinishedFileTest::aLinkOfTheFileIsNoLeftoverWhileItIsMade()
{
    write("file", "old");
    const QByteArray name = path("file");
    // Several: one that was slow still looks at an earlier link when the next one is made.
    std::array<pid_t, 3> others = {};
    for (pid_t &other : others) {
        other = ::fork();
        QVERIFY(other >= 0);
        if (other == 0) {
            while (true)
                UnfinishedFile::removeLeftovers(name);
        }
    }
    constexpr int kLinks = 20000; // one in ten thousand was lost once
    int kept = 0;
    for (int i = 0; i < kLinks; ++i)
        kept += UnfinishedFile::linkAs(name, path("kept"));
    for (const pid_t other : others) {
        ::kill(other, SIGKILL);
        QCOMPARE(::waitpid(other, nullptr, 0), other);
    }
    QCOMPARE(kept, kLinks);
    QCOMPARE(names(), QStringList({text("file"), text("kept")}));
    QCOMPARE(contentOf(place("kept")), QByteArray("old"));
}

void UnfinishedFileTest::namesMayBeAsLongAsTheFileSystemAllows()
{
    const QByteArray longest(255, 'x');
    for (const bool hasName : {false, true}) {
        UnfinishedFile file(path(longest.constData()), start(hasName));
        QVERIFY(file.fill("new", 0600));
        QVERIFY(file.finish());
        QCOMPARE(names(), QStringList(QString::fromLatin1(longest)));
    }
}

void UnfinishedFileTest::aFailureChangesNothing_data()
{
    addFaults();
    QTest::newRow("nothing can be made") << SystemCall::Open << EACCES;
    QTest::newRow("nothing can be written") << SystemCall::Write << EIO;
    QTest::newRow("what is written is lost") << SystemCall::Write << SystemFault::kPretends;
    QTest::newRow("no mode can be set") << SystemCall::Fchmod << EPERM;
    QTest::newRow("nothing can be flushed") << SystemCall::Fsync << EIO;
    QTest::newRow("nothing can be read back") << SystemCall::Pread << EIO;
    QTest::newRow("something else is read back") << SystemCall::Pread << SystemFault::kPretends;
    QTest::newRow("no random names") << SystemCall::Getrandom << EAGAIN;
    QTest::newRow("no name can be given") << SystemCall::Linkat << EPERM;
    QTest::newRow("all names are taken") << SystemCall::Linkat << EEXIST;
    QTest::newRow("the name cannot be taken") << SystemCall::Rename << EIO;
}

void UnfinishedFileTest::aFailureChangesNothing()
{
    QFETCH(SystemCall, call);
    QFETCH(int, error);
    write("file", "old");
    {
        const SystemFault fault(call, error);
        UnfinishedFile file(path("file"));
        QVERIFY(!file.fill("new", 0600) || !file.finish());
        QVERIFY(fault.hasFailed());
    }
    QCOMPARE(names(), QStringList(text("file")));
    QCOMPARE(contentOf(place("file")), QByteArray("old"));
}

void UnfinishedFileTest::someFailuresKeepNothingFromBeingWritten_data()
{
    addFaults();
    QTest::addColumn<int>("times");
    QTest::newRow("no files without a name") << SystemCall::Open << EOPNOTSUPP << 1;
    QTest::newRow("no /proc") << SystemCall::Access << ENOENT << SystemFault::kAlways;
    QTest::newRow("a signal while it is written") << SystemCall::Write << EINTR << 1;
    QTest::newRow("a signal while it is read back") << SystemCall::Pread << EINTR << 1;
    QTest::newRow("there is nothing to flush") << SystemCall::Fsync << EINVAL << SystemFault::kAlways;
    QTest::newRow("nothing can ever be flushed") << SystemCall::Fsync << ENOSYS << SystemFault::kAlways;
    QTest::newRow("a name is taken") << SystemCall::Linkat << EEXIST << 1;
}

void UnfinishedFileTest::someFailuresKeepNothingFromBeingWritten()
{
    QFETCH(SystemCall, call);
    QFETCH(int, error);
    QFETCH(int, times);
    write("file", "old");
    {
        const SystemFault fault(call, error, times);
        UnfinishedFile file(path("file"));
        QVERIFY(file.fill("new", 0600));
        QVERIFY(file.finish());
        QVERIFY(fault.hasFailed());
    }
    QCOMPARE(names(), QStringList(text("file")));
    QCOMPARE(contentOf(place("file")), QByteArray("new"));
}

void UnfinishedFileTest::aSecondNameThatCannotBeMade_data()
{
    addFaults();
    QTest::newRow("no links") << SystemCall::Link << EPERM;
    QTest::newRow("no random names") << SystemCall::Getrandom << EAGAIN;
    QTest::newRow("the name cannot be taken") << SystemCall::Rename << EIO;
    QTest::newRow("the link is gone each time") << SystemCall::Rename << ENOENT;
}

void UnfinishedFileTest::aSecondNameThatCannotBeMade()
{
    QFETCH(SystemCall, call);
    QFETCH(int, error);
    write("file", "old");
    write("kept", "older");
    {
        const SystemFault fault(call, error);
        QVERIFY(!UnfinishedFile::linkAs(path("file"), path("kept")));
        QVERIFY(fault.hasFailed());
    }
    QCOMPARE(names(), QStringList({text("file"), text("kept")}));
    QCOMPARE(contentOf(place("kept")), QByteArray("older"));
}

QTEST_GUILESS_MAIN(UnfinishedFileTest)
#include "tst_unfinishedfile.moc"
