// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileWriter.h"

#include "host/files/FileContent.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/FolderTest.h"
#include "tests/support/SystemFault.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using gesturewidget::FileContent;
using gesturewidget::FileWriter;
using tests::contentOf;
using tests::SystemCall;
using tests::SystemFault;
using tests::text;
using Readers = FileWriter::Readers;

namespace {

int modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : -1;
}

} // namespace

class FileWriterTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void writes();
    void whoMayRead();
    void whereNoModeCanBeSet();
    void aFullDiskKeepsTheOldFile();
    void theOldFileUnderASecondName();
    void aCopyIsKeptWhereThereAreNoLinks();
    void whatIsNoFileStays_data();
    void whatIsNoFileStays();
    void linksAreFollowed();
    void readsWhatIsThere();
    void readsNothingElse();
    void readsAgainAfterASignal();
    void saysWhyAFileCannotBeRead();
    void readsResources();

private:
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
};

void FileWriterTest::writes()
{
    QVERIFY(FileWriter(place("file"), Readers::Owner).write("content"));
    QCOMPARE(contentOf(place("file")), QByteArray("content"));
    QVERIFY(FileWriter(place("file"), Readers::Owner).write({}));
    QCOMPARE(contentOf(place("file")), QByteArray());
    QVERIFY(!FileWriter(place("file/below"), Readers::Owner).write("x"));
    QVERIFY(!FileWriter(place("missing/file"), Readers::Owner).write("x"));
    QVERIFY(!FileWriter(QString(), Readers::Owner).write("x"));
    QCOMPARE(names(), QStringList(text("file")));
}

void FileWriterTest::whoMayRead()
{
    const mode_t mask = ::umask(027);
    QVERIFY(FileWriter(place("own"), Readers::Owner).write("x"));
    QVERIFY(FileWriter(place("usual"), Readers::Usual).write("x"));
    ::umask(mask);
    QCOMPARE(modeOf(place("own")), 0600);
    QCOMPARE(modeOf(place("usual")), 0640);
    for (const char *name : {"own", "usual"})
        QCOMPARE(::chmod(QFile::encodeName(place(name)).constData(), 0664), 0);
    QVERIFY(FileWriter(place("own"), Readers::Owner).write("y", place("kept")));
    QVERIFY(FileWriter(place("usual"), Readers::Usual).write("y"));
    QCOMPARE(modeOf(place("own")), 0600);
    QCOMPARE(modeOf(place("kept")), 0600);
    QCOMPARE(modeOf(place("usual")), 0664);
}

// Shares and sticks whose files all belong to one other user.
void FileWriterTest::whereNoModeCanBeSet()
{
    write("usual", "old");
    write("own", "old");
    for (const char *name : {"usual", "own"})
        QCOMPARE(::chmod(QFile::encodeName(place(name)).constData(), 0600), 0);
    const SystemFault fault(SystemCall::Fchmod, EPERM);
    QVERIFY(FileWriter(place("new.json"), Readers::Usual).write("x"));
    QVERIFY(fault.hasFailed());
    QCOMPARE(contentOf(place("new.json")), QByteArray("x"));
    QVERIFY(FileWriter(place("usual"), Readers::Usual).write("y"));
    QCOMPARE(contentOf(place("usual")), QByteArray("y"));
    QVERIFY(!FileWriter(place("own"), Readers::Owner).write("y"));
    QCOMPARE(contentOf(place("own")), QByteArray("old"));
    QCOMPARE(names(), QStringList({text("new.json"), text("own"), text("usual")}));
}

void FileWriterTest::aFullDiskKeepsTheOldFile()
{
    write("file", "old");
    write("kept", "older");
    const FileWriter writer(place("file"), Readers::Owner);
    for (const qint64 bytes : {0, 1, 3}) {
        bool isWritten = true;
        bool isKept = true;
        {
            const tests::FileSizeLimit limit(bytes);
            isWritten = writer.write("newer");
            isKept = writer.write("newer", place("kept"));
        }
        QVERIFY(!isWritten);
        QVERIFY(!isKept);
        QCOMPARE(contentOf(place("file")), QByteArray("old"));
        QCOMPARE(contentOf(place("kept")), QByteArray("older"));
        QCOMPARE(names(), QStringList({text("file"), text("kept")}));
    }
    QVERIFY(writer.write("newer"));
}

void FileWriterTest::theOldFileUnderASecondName()
{
    const FileWriter writer(place("file"), Readers::Usual);
    QVERIFY(!writer.write("x", place("kept"))); // there is no old one
    QCOMPARE(names(), QStringList());
    QVERIFY(writer.write("first"));
    for (const char *content : {"second", "third"}) {
        const QByteArray before = contentOf(place("file"));
        QVERIFY(writer.write(content, place("kept")));
        QCOMPARE(contentOf(place("file")), QByteArray(content));
        QCOMPARE(contentOf(place("kept")), before);
        QCOMPARE(names(), QStringList({text("file"), text("kept")}));
    }
}

void FileWriterTest::aCopyIsKeptWhereThereAreNoLinks()
{
    write("file", "old");
    const FileWriter writer(place("file"), Readers::Usual);
    const SystemFault noLinks(SystemCall::Link, EPERM);
    QVERIFY(writer.write("new", place("kept")));
    QVERIFY(noLinks.hasFailed());
    QCOMPARE(contentOf(place("kept")), QByteArray("old"));
    QCOMPARE(contentOf(place("file")), QByteArray("new"));
    {
        const SystemFault fault(SystemCall::Read, EIO);
        QVERIFY(!writer.write("newer", place("kept"))); // what cannot be copied is not replaced
    }
    QCOMPARE(contentOf(place("kept")), QByteArray("old"));
    QCOMPARE(contentOf(place("file")), QByteArray("new"));
    QCOMPARE(names(), QStringList({text("file"), text("kept")}));
}

void FileWriterTest::whatIsNoFileStays_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"folder", "pipe", "link in a circle"})
        QTest::newRow(kind) << QByteArray(kind);
}

void FileWriterTest::whatIsNoFileStays()
{
    QFETCH(QByteArray, kind);
    write("file", "old");
    const QByteArray other = QFile::encodeName(place("other"));
    if (kind == "folder")
        QVERIFY(QDir().mkdir(place("other")));
    else if (kind == "pipe")
        QCOMPARE(::mkfifo(other.constData(), 0600), 0);
    else
        QVERIFY(QFile::link(place("other"), place("other")));
    struct stat before = {};
    QCOMPARE(::lstat(other.constData(), &before), 0);
    QVERIFY(!FileWriter(place("other"), Readers::Owner).write("new"));
    QVERIFY(!FileWriter(place("file"), Readers::Owner).write("new", place("other")));
    QCOMPARE(contentOf(place("file")), QByteArray("old"));
    struct stat after = {};
    QCOMPARE(::lstat(other.constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(names(), QStringList({text("file"), text("other")}));
}

void FileWriterTest::linksAreFollowed()
{
    QVERIFY(QDir().mkdir(place("elsewhere")));
    QVERIFY(QFile::link(place("elsewhere/file"), place("link")));
    for (const char *content : {"made", "replaced"}) {
        QVERIFY(FileWriter(place("link"), Readers::Owner).write(content));
        QCOMPARE(contentOf(place("elsewhere/file")), QByteArray(content));
    }
    QVERIFY(QFileInfo(place("link")).isSymLink());
}

void FileWriterTest::readsWhatIsThere()
{
    for (const int size : {0, 1, 99, 100}) {
        write("file", QByteArray(size, 'x'));
        const FileContent content = FileContent::read(place("file"), 100);
        QVERIFY(content.isRead());
        QCOMPARE(content.bytes, QByteArray(size, 'x'));
        QVERIFY(content.bytes.capacity() < 1000); // whatever the limit is
    }
    // Files of the kernel have the size 0.
    QVERIFY(FileContent::read(text("/proc/self/status"), 100000).bytes.contains("Pid:"));
    QVERIFY(FileContent::read(text("/proc/self/status"), 10).state == FileContent::State::TooLarge);
}

void FileWriterTest::readsNothingElse()
{
    using State = FileContent::State;
    QCOMPARE(::mkfifo(QFile::encodeName(place("pipe")).constData(), 0600), 0);
    write("large", QByteArray(101, 'x'));
    const auto stateOf = [](const QString &path) { return FileContent::read(path, 100).state; };
    QVERIFY(stateOf(place("missing")) == State::Missing);
    QVERIFY(stateOf(place("large/below")) == State::Missing);
    QVERIFY(stateOf(place("pipe")) == State::NotAFile); // opened as usual, it would hang
    QVERIFY(stateOf(m_folder->path()) == State::NotAFile);
    QVERIFY(stateOf(text("/dev/zero")) == State::NotAFile);
    QVERIFY(stateOf(place("large")) == State::TooLarge);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray socket = QFile::encodeName(place("socket"));
    QVERIFY(socket.size() < int(sizeof address.sun_path));
    std::memcpy(address.sun_path, socket.constData(), std::size_t(socket.size()));
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(listener);
    QVERIFY(stateOf(place("socket")) == State::NotAFile);
}

void FileWriterTest::readsAgainAfterASignal()
{
    write("file", "content");
    const SystemFault signal(SystemCall::Read, EINTR, 1);
    QCOMPARE(FileContent::read(place("file"), 100).bytes, QByteArray("content"));
    QVERIFY(signal.hasFailed());
}

void FileWriterTest::saysWhyAFileCannotBeRead()
{
    write("file", "content");
    const auto problemOf = [this](SystemCall call, int error) {
        const SystemFault fault(call, error);
        const FileContent content = FileContent::read(place("file"), 100);
        return content.state == FileContent::State::Unreadable && content.bytes.isEmpty()
                 ? content.problem
                 : QString();
    };
    for (const SystemCall call : {SystemCall::Open, SystemCall::Read}) {
        for (const int error : {EACCES, EIO})
            QCOMPARE(problemOf(call, error), QString::fromLocal8Bit(std::strerror(error)));
    }
}

void FileWriterTest::readsResources()
{
    using State = FileContent::State;
    const QString folder = text(":/profiles");
    const QString file = folder + text("/builtin.json");
    const FileContent content = FileContent::read(file, 1000);
    QVERIFY(content.isRead());
    QVERIFY(!content.bytes.isEmpty());
    QVERIFY(FileContent::read(file, content.bytes.size() - 1).state == State::TooLarge);
    QVERIFY(FileContent::read(file + text("x"), 1000).state == State::Missing);
    QVERIFY(FileContent::read(folder, 1000).state == State::NotAFile);
}

QTEST_GUILESS_MAIN(FileWriterTest)
#include "tst_filewriter.moc"
