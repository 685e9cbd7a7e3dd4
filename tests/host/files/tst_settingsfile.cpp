// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/SettingsFile.h"

#include "bindings/SettingsKeys.h"
#include "host/files/FileLock.h"
#include "host/files/SettingsNames.h"
#include "tests/host/support/StandardErrorCapture.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <thread>

#include <sys/stat.h>

using gesturewidget::FileLock;
using gesturewidget::SettingsFile;
using tests::contentOf;
using tests::text;

namespace {

constexpr int kPatience = SettingsFile::kLockPatience;
// Milliseconds. Far less than the 30 s of a lock that is taken for stale, far more than a busy
// machine needs.
constexpr int kSoon = 5000;

SettingsFile::Values one(const char *key, const char *value)
{
    return {{text(key), text(value)}};
}

} // namespace

// tst_profilestore has what its users see.
class SettingsFileTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesAreThoseOfTheModule();
    void onlyWhatDiffersIsWritten();
    void nobodyWritesInBetween();
    void aLockThatIsHeldIsNotWaitedForLong();
    void aLockLeftByAKilledProcessIsNoLock();
    void whatIsNoLockIsSaidAtOnce_data();
    void whatIsNoLockIsSaidAtOnce();
    void damageIsSeenThoughTheLockIsHeld();
    void damageWithoutACopyIsGoneWithTheNextChange();
    void theOldFileIsKept();
    void aLinkStaysALink();

private:
    QString m_path;
};

void SettingsFileTest::init()
{
    FolderTest::init();
    m_path = place("config/drafter.ini");
}

void SettingsFileTest::namesAreThoseOfTheModule()
{
    namespace names = gesturewidget::settingsnames;
    QCOMPARE(names::enabledKey(), settingskeys::enableMouseGesture());
    QVERIFY(names::hostSection() != names::moduleSection());
    QCOMPARE(names::initialCommand(names::schemeKey()), QString());
    for (const DonutScheme scheme : {DonutScheme::Four, DonutScheme::Eight}) {
        for (int number = 1; number <= 8; ++number) {
            const QString key = settingskeys::directionKey(scheme, number);
            QCOMPARE(names::initialCommand(key), settingskeys::initialValue(key));
        }
    }
    QCOMPARE(SettingsFile::nameOf(names::moduleSection(), names::enabledKey()),
             text("GestureWidget/EnableMouseGesture"));
}

void SettingsFileTest::onlyWhatDiffersIsWritten()
{
    write(m_path, "[a]\n; mine\nx=1\ny = 2\n");
    SettingsFile file(m_path);
    SettingsFile::Values seen;
    QVERIFY(file.change([&seen](const SettingsFile::Values &now) {
        seen = now;
        return one("a/x", "3");
    }));
    QCOMPARE(seen, (SettingsFile::Values{{text("a/x"), text("1")}, {text("a/y"), text("2")}}));
    QCOMPARE(contentOf(m_path), QByteArray("[a]\n; mine\nx=3\ny = 2\n"));
    struct stat before = {};
    struct stat after = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &before), 0);
    QVERIFY(file.write(one("a/y", "2")));
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino); // writing would have made a new file
    QCOMPARE(QDir(place("config")).entryList(QDir::Files),
             QStringList({text("drafter.ini"), text("drafter.ini.bak")}));
}

void SettingsFileTest::nobodyWritesInBetween()
{
    std::thread other;
    bool isOtherDone = false;
    SettingsFile file(m_path);
    const bool isDone = file.change([&](const SettingsFile::Values &) {
        other = std::thread([&] { isOtherDone = SettingsFile(m_path).write(one("a/other", "1")); });
        // Gives the other one time to write, if nothing keeps it from that.
        const FileLock third(m_path, kPatience / 10);
        Q_UNUSED(third)
        return one("a/first", contentOf(m_path) == tests::kNoFile ? "1" : "0");
    });
    other.join();
    QVERIFY(isDone);
    QVERIFY(isOtherDone);
    QCOMPARE(SettingsFile(m_path).read(),
             (SettingsFile::Values{{text("a/first"), text("1")}, {text("a/other"), text("1")}}));
}

void SettingsFileTest::aLockThatIsHeldIsNotWaitedForLong()
{
    QVERIFY(SettingsFile(m_path).write(one("a/x", "1")));
    const QByteArray before = contentOf(m_path);
    const FileLock lock(m_path, 0);
    QVERIFY(lock.isHeld());
    QElapsedTimer timer;
    timer.start();
    SettingsFile file(m_path);
    QCOMPARE(file.read(), one("a/x", "1")); // reading needs no lock
    QVERIFY(timer.elapsed() < kSoon);
    QVERIFY(!file.write(one("a/x", "2")));
    QVERIFY(timer.elapsed() >= kPatience);
    QVERIFY(timer.elapsed() < kSoon);
    QCOMPARE(file.problem(),
             m_path + text(" cannot be written, since another program holds ") + m_path + text(".lock"));
    QCOMPARE(contentOf(m_path), before);
}

void SettingsFileTest::aLockLeftByAKilledProcessIsNoLock()
{
    QVERIFY(SettingsFile(m_path).write(one("a/x", "1")));
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {text("child-lock"), m_path});
    QVERIFY(other.waitForReadyRead());
    QVERIFY(QFileInfo::exists(m_path + text(".lock")));
    other.kill();
    QVERIFY(other.waitForFinished());
    QVERIFY(QFileInfo::exists(m_path + text(".lock")));
    // The second time the file is empty, as if its owner was killed right after making it.
    for (const bool isEmpty : {false, true}) {
        if (isEmpty)
            write(m_path + text(".lock"), {});
        QElapsedTimer timer;
        timer.start();
        SettingsFile file(m_path);
        QVERIFY(file.write(one("a/x", isEmpty ? "3" : "2")));
        QVERIFY(timer.elapsed() < kSoon);
        QVERIFY(!QFileInfo::exists(m_path + text(".lock")));
    }
    QCOMPARE(SettingsFile(m_path).read(), one("a/x", "3"));
}

void SettingsFileTest::whatIsNoLockIsSaidAtOnce_data()
{
    QTest::addColumn<bool>("isPipe");
    QTest::newRow("folder") << false;
    QTest::newRow("pipe") << true;
}

void SettingsFileTest::whatIsNoLockIsSaidAtOnce()
{
    QFETCH(bool, isPipe);
    QVERIFY(SettingsFile(m_path).write(one("a/x", "1")));
    const QString lock = m_path + text(".lock");
    if (isPipe)
        QCOMPARE(::mkfifo(QFile::encodeName(lock).constData(), 0600), 0);
    else
        QVERIFY(QDir().mkdir(lock));
    QElapsedTimer timer;
    timer.start();
    SettingsFile file(m_path);
    QVERIFY(!file.write(one("a/x", "2")));
    QCOMPARE(file.problem(), m_path + text(" cannot be written"));
    QCOMPARE(file.read(), one("a/x", "1"));
    QVERIFY(timer.elapsed() < kSoon);
    QVERIFY(QFileInfo::exists(lock));
}

void SettingsFileTest::damageIsSeenThoughTheLockIsHeld()
{
    QVERIFY(SettingsFile(m_path).write(one("a/x", "1")));
    const QByteArray zeroed(contentOf(m_path).size(), '\0');
    write(m_path, zeroed);
    const FileLock lock(m_path, 0);
    tests::StandardErrorCapture errors;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SettingsFile(m_path).read(), one("a/x", "1")); // that is the last good state
    QVERIFY(timer.elapsed() < kSoon);
    QCOMPARE(errors.lines().size(), 1);
    QCOMPARE(contentOf(m_path), zeroed); // without the lock nothing is written
}

void SettingsFileTest::damageWithoutACopyIsGoneWithTheNextChange()
{
    const QByteArray damaged = QByteArray("no line\n[a]\nx=1\n") + QByteArray(10, '\0');
    write(m_path, damaged);
    tests::StandardErrorCapture errors;
    SettingsFile file(m_path);
    QCOMPARE(file.read(), one("a/x", "1"));
    QCOMPARE(file.read(), one("a/x", "1"));
    QVERIFY(file.write(one("a/x", "2")));
    QCOMPARE(errors.lines().size(), 1);
    QCOMPARE(contentOf(m_path), QByteArray("[a]\nx=2\n"));
    QCOMPARE(contentOf(m_path + text(".damaged")), damaged);
    QCOMPARE(SettingsFile(m_path).read(), one("a/x", "2"));
    QCOMPARE(errors.lines().size(), 1);
}

void SettingsFileTest::theOldFileIsKept()
{
    const auto wanted = [](const SettingsFile::Values &) { return one("a/x", "2"); };
    const QString kept = m_path + text(".old");
    SettingsFile file(m_path);
    QVERIFY(file.change(wanted, kept)); // there is nothing to keep
    QVERIFY(!QFileInfo::exists(kept));
    const QByteArray before = contentOf(m_path);
    write(kept, "an older one");
    QVERIFY(file.change([](const SettingsFile::Values &) { return one("a/x", "3"); }, kept));
    QCOMPARE(contentOf(kept), before);
    QVERIFY(contentOf(m_path).contains("x=3\n"));

    QVERIFY(QFile::remove(kept));
    QVERIFY(QDir().mkdir(kept));
    QVERIFY(!file.change(wanted, kept));
    QCOMPARE(file.problem(), kept + text(" cannot be written"));
    QVERIFY(contentOf(m_path).contains("x=3\n"));
}

// Some people keep such files elsewhere and link to them.
void SettingsFileTest::aLinkStaysALink()
{
    write("elsewhere/mine.ini", "[a]\nx=1\n");
    QVERIFY(QDir().mkpath(place("config")));
    QVERIFY(QFile::link(place("elsewhere/mine.ini"), m_path));
    QVERIFY(SettingsFile(m_path).write(one("a/x", "2")));
    QVERIFY(QFileInfo(m_path).isSymLink());
    QCOMPARE(contentOf(place("elsewhere/mine.ini")), QByteArray("[a]\nx=2\n"));
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1) == QLatin1String("child-lock")) {
        const FileLock lock(app.arguments().at(2), kPatience);
        std::printf("%d\n", lock.isHeld());
        std::fflush(stdout);
        static_cast<void>(std::getchar()); // waits until it is killed
        return 0;
    }
    SettingsFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingsfile.moc"
