// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Every option that writes a file: on a full disk, beside other writers, and where something else
// has the file's name. The old content stays whole, and one line says what is wrong.

#include "host/files/CatalogueFile.h"
#include "host/files/SettingsFile.h"
#include "host/files/SettingsNames.h"
#include "tests/support/FolderTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <cstring>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using tests::contentOf;
using tests::text;

namespace {

const QString kProgram = QStringLiteral(FIXTURES "/launcher_fixture_direct");
const QString kName = QStringLiteral("launcher_fixture_direct");

constexpr const char *kOptions[] = {"--bind",   "--trigger", "--reset", "--switch-on",
                                    "--export", "--import",  "--print", "--enable"};
constexpr int kBlock = 4096; // bytes of a file system's block

// True if this process may mount file systems that nobody else sees. Without that right, a full file
// system is only the stand-in of fixtures/fulldisk.cpp.
bool canMount = false;

// Gives this process the right to mount where only it sees the result. In a container, root may have
// no other way either. Without a group there, a mounted file system takes no files.
bool becomeRootOfItsOwn()
{
    const auto rootIs = [](uint id) { return "0 " + QByteArray::number(id) + " 1"; };
    const QByteArray user = rootIs(::geteuid());
    const QByteArray group = rootIs(::getegid());
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0
        && tests::writeFile(text("/proc/self/uid_map"), user)
        && tests::writeFile(text("/proc/self/setgroups"), "deny")
        && tests::writeFile(text("/proc/self/gid_map"), group);
}

struct Ended
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

class WritingTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        useFolder(m_folder->path());
    }
    void aFullDiskChangesNothing_data();
    void aFullDiskChangesNothing();
    void aFullFileSystemChangesNothing_data();
    void aFullFileSystemChangesNothing();
    void twoAtOnceLoseNothing();
    void somethingElseHasTheName_data();
    void somethingElseHasTheName();
    void whatIsSomebodyElses_data();
    void whatIsSomebodyElses();
    void whatAPersonWorksOnIsTheirsAlone();

private:
    void useFolder(const QString &folder)
    {
        m_home = folder;
        m_settings = folder + text("/gesturewidget/") + kName + text(".ini");
        m_export = folder + text("/kept.json");
        m_import = folder + text("/other.json");
        m_sheet = folder + text("/sheet.pdf");
        m_entry = folder + text("/data/applications/draw.desktop");
    }
    QStringList option(const char *name) const;
    void addOptions() const;
    void prepare() const;
    QProcessEnvironment environment() const;
    Ended run(const QStringList &arguments, const QStringList &wrapper = {}) const;
    // All files below the home folder, by name.
    QMap<QString, QByteArray> files() const;
    void expectRefused(const QStringList &arguments, const QStringList &wrapper = {}) const;
    // Fills the file system with a file, but for some blocks.
    static void fill(const QString &filler, int freeBlocks);

    QString m_home;
    QString m_settings;
    QString m_export;
    QString m_import;
    QString m_sheet;
    QString m_entry;
};

QStringList WritingTest::option(const char *name) const
{
    if (std::strcmp(name, "--bind") == 0)
        return {text(name), kProgram, text("up"), text("ID_TRIM")};
    if (std::strcmp(name, "--trigger") == 0)
        return {text(name), kProgram, text("ctrl+right")};
    if (std::strcmp(name, "--export") == 0)
        return {text(name), kProgram, m_export};
    if (std::strcmp(name, "--import") == 0)
        return {text(name), kProgram, m_import};
    if (std::strcmp(name, "--print") == 0)
        return {text(name), kProgram, m_sheet};
    return {text(name), kProgram};
}

void WritingTest::addOptions() const
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : kOptions)
        QTest::newRow(name) << QByteArray(name);
}

// Makes every file that an option may write, with good content that differs from what the option
// writes. Settings and export are larger than a block of a file system.
void WritingTest::prepare() const
{
    const QString entry = m_home + text("/usr/applications/draw.desktop");
    const QByteArray head = "[Desktop Entry]\nType=Application\nName=Draw\nExec=";
    write(entry, head + QFile::encodeName(kProgram) + " %F\n");
    const auto expect = [this](const QStringList &arguments) {
        const Ended ended = run(arguments);
        QCOMPARE(ended.errors, QByteArray());
        QCOMPARE(ended.status, 0);
    };
    expect(option("--enable"));
    write(entry,
          head + QFile::encodeName(kProgram) + " --new %F\nComment=" + QByteArray(5000, 'x') + '\n');
    expect(option("--export"));
    QVERIFY(QFile::rename(m_export, m_import));
    const QString directions = text("up up-left left down-left down down-right right up-right");
    const QStringList names = directions.split(QLatin1Char(' '));
    for (int i = 0; i < names.size(); ++i)
        expect({text("--bind"), kProgram, names.at(i), QString(600, QLatin1Char(char('a' + i)))});
    expect(option("--export"));
    expect({text("--bind"), kProgram, text("up"), text("ID_LINE")});
    const QString note = gesturewidget::SettingsFile::nameOf(
        gesturewidget::settingsnames::hostSection(), gesturewidget::settingsnames::offSinceCrashKey());
    QVERIFY(gesturewidget::SettingsFile(m_settings).write({{note, text("1")}}));
    write(m_sheet, "%PDF-1.4 an old sheet\n");
}

QProcessEnvironment WritingTest::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("HOME"), m_home);
    environment.insert(text("XDG_CONFIG_HOME"), m_home);
    environment.insert(text("XDG_DATA_HOME"), m_home + text("/data"));
    environment.insert(text("XDG_DATA_DIRS"), m_home + text("/usr"));
    environment.insert(text("XDG_CACHE_HOME"), text("/nowhere"));
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"})
        environment.remove(text(name));
    return environment;
}

Ended WritingTest::run(const QStringList &arguments, const QStringList &wrapper) const
{
    QProcess process;
    QProcessEnvironment variables = environment();
    // Where lines are counted, the limits would cut off the files with the counts of all processes.
    const QTemporaryDir counts;
    if (!wrapper.isEmpty())
        variables.insert(text("GCOV_PREFIX"), counts.path());
    process.setProcessEnvironment(variables);
    const QStringList all = wrapper + QStringList(text(MOUSE_GESTURES)) + arguments;
    process.start(all.first(), all.mid(1));
    Ended ended;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        ended.status = process.exitCode();
    ended.output = process.readAllStandardOutput();
    ended.errors = process.readAllStandardError();
    return ended;
}

QMap<QString, QByteArray> WritingTest::files() const
{
    QMap<QString, QByteArray> files;
    QDirIterator all(m_home, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        struct stat status = {};
        const bool isFile =
            ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
        files.insert(path, isFile ? contentOf(path) : QByteArray("<not a file>"));
    }
    return files;
}

void WritingTest::expectRefused(const QStringList &arguments, const QStringList &wrapper) const
{
    const QMap<QString, QByteArray> before = files();
    const Ended ended = run(arguments, wrapper);
    QVERIFY2(ended.status == 1, ended.errors.constData());
    QVERIFY2(ended.errors.count('\n') == 1 && ended.errors.contains(" cannot be written"),
             ended.errors.constData());
    QCOMPARE(ended.output, QByteArray());
    const QMap<QString, QByteArray> after = files();
    QCOMPARE(after.keys(), before.keys());
    for (auto it = before.begin(); it != before.end(); ++it)
        QVERIFY2(after.value(it.key()) == it.value(), qPrintable(it.key()));
}

void WritingTest::fill(const QString &filler, int freeBlocks)
{
    QFile file(filler);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray block(kBlock, 'x');
    qint64 size = 0;
    for (qint64 count = file.write(block); count > 0; count = file.write(block))
        size += count;
    QVERIFY(file.resize(size - qint64(freeBlocks) * kBlock));
}

void WritingTest::aFullDiskChangesNothing_data()
{
    addOptions();
}

// No file may grow beyond this number of bytes. Every file needs more than 200.
void WritingTest::aFullDiskChangesNothing()
{
    QFETCH(QByteArray, name);
    prepare();
    for (const char *bytes : {"0", "100", "200"})
        expectRefused(option(name.constData()),
                      {text("sh"), text("-c"), text("trap '' XFSZ; exec \"$@\""), text("sh"),
                       text("prlimit"), text("--fsize=") + text(bytes)});
    QCOMPARE(run(option(name.constData())).status, 0);
}

void WritingTest::aFullFileSystemChangesNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isMounted");
    for (const char *name : kOptions) {
        QTest::addRow("%s, stand-in", name) << QByteArray(name) << false;
        if (canMount)
            QTest::addRow("%s, mounted", name) << QByteArray(name) << true;
    }
}

void WritingTest::aFullFileSystemChangesNothing()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, isMounted);
    const QByteArray mounted = QFile::encodeName(place("disk"));
    const auto unmount = [](const QByteArray *path) { ::umount2(path->constData(), MNT_DETACH); };
    std::unique_ptr<const QByteArray, decltype(unmount)> guard(nullptr, unmount);
    if (isMounted) {
        QVERIFY(QDir().mkpath(place("disk")));
        QCOMPARE(::mount("tmpfs", mounted.constData(), "tmpfs", 0, "size=160k"), 0);
        guard.reset(&mounted);
        useFolder(place("disk"));
    }
    prepare();
    const QString filler = m_home + text("/filler");
    for (const int freeBlocks : {0, 1}) {
        QStringList wrapper;
        if (isMounted)
            fill(filler, freeBlocks);
        else
            wrapper = QStringList{text("env"), text("LD_PRELOAD=" FULL_DISK),
                                  text("FULL_DISK_BLOCKS=") + QString::number(freeBlocks),
                                  text("ASAN_OPTIONS=verify_asan_link_order=0")};
        // The new settings of these fit into a block. Their copy is a second name and takes none.
        const bool isSmall = name == "--reset" || name == "--import";
        if (freeBlocks > 0 && isSmall)
            QCOMPARE(run(option(name.constData()), wrapper).status, 0);
        else
            expectRefused(option(name.constData()), wrapper);
        QVERIFY(!isMounted || QFile::remove(filler));
    }
    QCOMPARE(run(option(name.constData())).status, 0);
}

// Both change one key of the same settings, so neither may write back the keys that it read.
void WritingTest::twoAtOnceLoseNothing()
{
    constexpr int kRounds = 50;
    int lost = 0;
    for (int round = 0; round < kRounds; ++round) {
        QProcess first;
        QProcess second;
        const QString number = QString::number(round);
        for (QProcess *process : {&first, &second})
            process->setProcessEnvironment(environment());
        first.start(text(MOUSE_GESTURES),
                    {text("--bind"), kProgram, text("up"), text("first") + number});
        second.start(text(MOUSE_GESTURES),
                     {text("--bind"), kProgram, text("down"), text("second") + number});
        for (QProcess *process : {&first, &second}) {
            QVERIFY(process->waitForFinished());
            QCOMPARE(process->readAllStandardError(), QByteArray());
            QCOMPARE(process->exitCode(), 0);
        }
        const QByteArray kept = contentOf(m_settings);
        lost += !(kept.contains("first" + number.toLatin1() + '\n')
                  && kept.contains("second" + number.toLatin1() + '\n'));
    }
    QCOMPARE(lost, 0);
}

void WritingTest::somethingElseHasTheName_data()
{
    QTest::addColumn<QByteArray>("suffix"); // after the settings' name
    QTest::addColumn<bool>("isPipe");
    QTest::addColumn<bool>("isRefused");
    for (const bool isPipe : {true, false}) {
        const char *what = isPipe ? "pipe" : "folder";
        const auto row = [&](const char *name, const char *suffix, bool isRefused) {
            QTest::addRow("%s for %s", what, name) << QByteArray(suffix) << isPipe << isRefused;
        };
        row("the settings", "", true);
        row("the copy", ".bak", false);
        row("the lock", ".lock", true);
    }
}

void WritingTest::somethingElseHasTheName()
{
    QFETCH(QByteArray, suffix);
    QFETCH(bool, isPipe);
    QFETCH(bool, isRefused);
    const QByteArray settings = "[GestureWidget]\n81=ID_LINE\n";
    if (!suffix.isEmpty())
        write(m_settings, settings);
    if (suffix == ".lock")
        write(m_settings + text(".bak"), settings);
    const QString other = m_settings + text(suffix.constData());
    QVERIFY(QDir().mkpath(QFileInfo(other).absolutePath()));
    if (isPipe)
        QCOMPARE(::mkfifo(QFile::encodeName(other).constData(), 0600), 0);
    else
        QVERIFY(QDir().mkpath(other));
    const QMap<QString, QByteArray> before = files();

    QElapsedTimer timer;
    timer.start();
    const Ended shown = run({text("--bindings"), kProgram});
    QCOMPARE(shown.status, 0);
    QVERIFY(shown.errors.count('\n') <= 1);
    QVERIFY(timer.elapsed() < 5000); // a process that hangs is ended after 30 s
    QCOMPARE(files().keys(), before.keys());
    timer.start();
    const Ended bound = run({text("--bind"), kProgram, text("up"), text("ID_TRIM")});
    QVERIFY(timer.elapsed() < 5000);
    QCOMPARE(bound.status, isRefused ? 1 : 0);
    if (isRefused) {
        QVERIFY(files() == before);
        QVERIFY2(bound.errors.endsWith(" cannot be written\n"), bound.errors.constData());
    } else {
        QVERIFY(contentOf(m_settings).contains("81=ID_TRIM\n"));
        QCOMPARE(files().keys(), before.keys());
        QCOMPARE(bound.errors.count('\n'), 1); // it says that no copy can be kept
    }
}

void WritingTest::whatIsSomebodyElses_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isRefused");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("settings that may be read") << false << 0444 << false << true;
    QTest::newRow("settings that may not be read") << false << 0 << true << false;
    QTest::newRow("a folder that may be read") << true << 0555 << true << true;
}

void WritingTest::whatIsSomebodyElses()
{
    QFETCH(bool, isFolder);
    QFETCH(int, mode);
    QFETCH(bool, isRefused);
    QFETCH(bool, isRead);
    write(m_settings, "[GestureWidget]\n81=ID_LINE\n");
    write(m_export, "an old export\n");
    const QByteArray taken =
        QFile::encodeName(isFolder ? QFileInfo(m_settings).absolutePath() : m_settings);
    // Only root can give files away, and would then be allowed everything. For others the mode does it.
    QStringList wrapper;
    if (::geteuid() == 0) {
        static_cast<void>(::chown(taken.constData(), 1, 1));
        wrapper = QStringList{text("setpriv"), text("--bounding-set=-dac_override,-dac_read_search")};
    }
    QCOMPARE(::chmod(taken.constData(), static_cast<mode_t>(mode)), 0);
    if (isRefused)
        expectRefused(option("--bind"), wrapper);
    else
        QCOMPARE(run(option("--bind"), wrapper).status, 0);
    const Ended exported = run(option("--export"), wrapper);
    QCOMPARE(::chmod(taken.constData(), isFolder ? 0755 : 0644), 0); // so that this test can read it
    QVERIFY(contentOf(m_settings).contains(isRefused ? "81=ID_LINE\n" : "81=ID_TRIM\n"));
    QCOMPARE(exported.status, isRead ? 0 : 1);
    if (isRead) {
        QVERIFY(contentOf(m_export).contains(isRefused ? "ID_LINE" : "ID_TRIM"));
    } else {
        // The bindings that count meanwhile are not the person's.
        QCOMPARE(contentOf(m_export), QByteArray("an old export\n"));
        QCOMPARE(QString::fromUtf8(exported.errors),
                 text("mouse-gestures: %1 cannot be read\n").arg(m_settings));
    }
}

void WritingTest::whatAPersonWorksOnIsTheirsAlone()
{
    const auto modeOf = [](const QString &path) -> int {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : -1;
    };
    const mode_t mask = ::umask(022);
    prepare();
    QVERIFY(run(option("--import")).status == 0);
    gesturewidget::CatalogueFile catalogue(m_home + text("/gesturewidget/") + kName
                                           + text(".commands.json"));
    QVERIFY(catalogue.merge({{text("a"), {}, text("A"), {}, {}, {}, false}}));
    QVERIFY(catalogue.merge({{text("b"), {}, text("B"), {}, {}, {}, false}}));
    const QDir folder(m_home + text("/gesturewidget"));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(names.size(), 5); // two files, their copies, the settings before the import
    for (const QString &name : names)
        QVERIFY2(modeOf(folder.filePath(name)) == 0600, qPrintable(name));
    QCOMPARE(modeOf(m_entry), 0644);
    QCOMPARE(modeOf(m_export), 0644);
    // A file that everyone could read is made private by the next change.
    QVERIFY(QFile::setPermissions(m_settings, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    QCOMPARE(run(option("--bind")).status, 0);
    ::umask(mask);
    QCOMPARE(modeOf(m_settings), 0600);
}

int main(int argc, char *argv[])
{
    // This works only before the process has a second thread.
    canMount = (::unshare(CLONE_NEWNS) == 0 || becomeRootOfItsOwn())
            && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    QCoreApplication app(argc, argv);
    WritingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_writing.moc"
