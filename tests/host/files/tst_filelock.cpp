// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/FileLock.h"

#include "tests/support/SystemFault.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using gesturewidget::FileLock;
using tests::SystemCall;
using tests::SystemFault;

namespace {

// True if somebody holds that lock file. That it exists says less: it is made before it is locked.
bool isTaken(const QString &path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
    const bool isFree = file < 0 || ::flock(file, LOCK_EX | LOCK_NB) == 0;
    if (file >= 0)
        ::close(file);
    return !isFree;
}

} // namespace

// Tests the order in which writers of a file get its lock. A lock that is held by a process that was
// killed is tested with the settings, see tst_settingsfile.cpp.
class FileLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_path = m_folder->filePath(QStringLiteral("drafter.ini"));
    }

    void leavesNoFile();
    void theOneWhoWaitsIsNext();
    void aLeftoverBlocksNobody();
    void withoutLocksNobodyWaits();
    void triesAgain_data();
    void triesAgain();

private:
    [[nodiscard]] QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void FileLockTest::leavesNoFile()
{
    {
        const FileLock lock(m_path, 0);
        QVERIFY(lock.isHeld());
        QCOMPARE(files(), QStringList(QStringLiteral("drafter.ini.lock")));
        QCOMPARE(FileLock(m_path, 0).result(), FileLock::Result::Busy);
        QCOMPARE(FileLock(m_path, 20).result(), FileLock::Result::Busy);
        QCOMPARE(files(), QStringList(QStringLiteral("drafter.ini.lock")));
    }
    QCOMPARE(files(), QStringList());
}

// A program that locks the file again and again gives way to one that waits.
void FileLockTest::theOneWhoWaitsIsNext()
{
    constexpr int kPatience = 60000;
    QStringList order; // written by whoever holds the lock
    auto held = std::make_unique<FileLock>(m_path, 0);
    QVERIFY(held->isHeld());
    std::thread waiting([&] {
        const FileLock lock(m_path, kPatience);
        order.append(lock.isHeld() ? QStringLiteral("the one who waited") : QStringLiteral("nobody"));
    });
    const QString sign = m_path + QStringLiteral(".lock.next");
    const bool isWaiting = QTest::qWaitFor([&] { return isTaken(sign); }, kPatience);
    held.reset();
    {
        const FileLock again(m_path, kPatience);
        order.append(again.isHeld() ? QStringLiteral("the one who writes again")
                                    : QStringLiteral("nobody"));
    }
    waiting.join();
    QVERIFY(isWaiting);
    QCOMPARE(order, QStringList({QStringLiteral("the one who waited"),
                                 QStringLiteral("the one who writes again")}));
    QCOMPARE(files(), QStringList());
}

void FileLockTest::aLeftoverBlocksNobody()
{
    for (const char *ending : {".lock", ".lock.next"}) {
        QFile leftover(m_path + QLatin1String(ending));
        QVERIFY(leftover.open(QIODevice::WriteOnly));
    }
    QVERIFY(FileLock(m_path, 0).isHeld());
    QCOMPARE(files(), QStringList());
}

void FileLockTest::withoutLocksNobodyWaits()
{
    constexpr int kForever = 600000;
    for (const SystemCall call : {SystemCall::Flock, SystemCall::Fstat}) {
        const SystemFault fault(call, ENOLCK);
        QCOMPARE(FileLock(m_path, kForever).result(), FileLock::Result::Impossible);
        QVERIFY(fault.hasFailed());
    }
}

void FileLockTest::triesAgain_data()
{
    QTest::addColumn<SystemCall>("call");
    QTest::addColumn<int>("error");
    QTest::newRow("after a signal") << SystemCall::Flock << EINTR;
    QTest::newRow("when its last owner has removed the file") << SystemCall::Lstat << ENOENT;
}

void FileLockTest::triesAgain()
{
    QFETCH(SystemCall, call);
    QFETCH(int, error);
    {
        const SystemFault fault(call, error, 1);
        const FileLock lock(m_path, 60000);
        QVERIFY(lock.isHeld());
        QVERIFY(fault.hasFailed());
        QCOMPARE(FileLock(m_path, 0).result(), FileLock::Result::Busy);
    }
    QCOMPARE(files(), QStringList());
}

QTEST_GUILESS_MAIN(FileLockTest)

#include "tst_filelock.moc"
