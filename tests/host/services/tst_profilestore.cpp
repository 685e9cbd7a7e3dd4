// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// clazy:excludeall=non-pod-global-static (nothing here runs before main())

#include "host/services/ProfileStore.h"

#include "host/files/SettingsNames.h"
#include "tests/host/support/Files.h"
#include "tests/host/support/StandardErrorCapture.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using gesturewidget::ProfileStore;

namespace {

const CHxString kSection("GestureWidget");

QString get(ProfileStore &store, const QString &key, const CHxString &section = kSection)
{
    const OdResBufPtr value = store.Get(section, key, CHxProfileStore::kProfile);
    return value ? value->getString().toQString() : QStringLiteral("<none>");
}

bool set(ProfileStore &store, const QString &key, const QString &value,
         const CHxString &section = kSection)
{
    return store.Set(section, key, OdResBuf::newString(OdString(value)).get());
}

} // namespace

class ProfileStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_path = m_folder->filePath(QStringLiteral("config/gesturewidget/drafter.ini"));
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void anEmptyStoreHoldsNothingAndWritesNothing();
    void keepsValuesFromStartToStart();
    void valuesComeBackAsTheyWere_data();
    void valuesComeBackAsTheyWere();
    void namesComeBackAsTheyWere_data();
    void namesComeBackAsTheyWere();
    void onlyTheProfileIsASource();
    void onlyStringsAreKept();
    void whatIsSetCountsAtOnceAndIsWrittenTogether();
    void settingTheSameWritesNothing();
    void editsOfOthersAreSeen();
    void aReadingSeesOneStateOfTheFile();
    void theSecondOfTwoWritersCountsKeyByKey();
    void aFileWrittenByHandIsUnderstood();
    void aDeletedFileIsAReset();
    void aFileCutOffInALineIsRestored();
    void aFileCutOffAtABlockIsRestored();
    void lastLinesDeletedByHandStayDeleted();
    void whatWasOffSinceACrashIsOnOnceItsLineIsDeleted();
    void aZeroedFileIsRestored_data();
    void aZeroedFileIsRestored();
    void damageWhileRunningLosesNothing();
    void damageWithoutACopyIsSaid();
    void aDamagedCopyIsNotUsed();
    void theCopyFollowsAGoodFile();
    void aDamagedFileInAReadOnlyFolderIsReadFromItsCopy();
    void aFolderThatCannotBeWrittenKeepsChangesInMemory();
    void withoutAFileChangesStayInMemory();
    void aFullDiskKeepsTheOldFile();
    void aNearlyFullDiskKeepsTheOldFile();
    void aHugeFileIsLeftAlone();
    void twoCopiesPressingOkLeaveOneOfTheirChoices();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();
    void manyWritersLoseNothing();

private:
    QByteArray content(const QString &suffix = {}) const { return tests::contentOf(m_path + suffix); }
    void write(const QByteArray &text, const QString &suffix = {}) const
    {
        tests::writeFile(m_path + suffix, text);
    }
    // Fills a file with all keys of a module, as it is after a session.
    void fill() const
    {
        ProfileStore store(m_path);
        for (int i = 1; i <= 8; ++i)
            QVERIFY(set(store, QStringLiteral("8%1").arg(i), QStringLiteral("ID_COMMAND_%1").arg(i)));
        QVERIFY(set(store, QStringLiteral("ActiveScheme"), QStringLiteral("8")));
        QVERIFY(store.flush());
    }
    void verifyFilled(ProfileStore &store) const
    {
        for (int i = 1; i <= 8; ++i)
            QCOMPARE(get(store, QStringLiteral("8%1").arg(i)), QStringLiteral("ID_COMMAND_%1").arg(i));
        QCOMPARE(get(store, QStringLiteral("ActiveScheme")), QStringLiteral("8"));
    }

    // The line that a program prints once if others keep the lock for too long.
    QByteArray busyLine() const
    {
        return QStringLiteral(
                   "mouse gestures: %1 cannot be written, changes last until the program ends\n")
            .arg(m_path)
            .toLocal8Bit();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void ProfileStoreTest::anEmptyStoreHoldsNothingAndWritesNothing()
{
    {
        tests::StandardErrorCapture errors;
        ProfileStore store(m_path);
        QVERIFY(!store.Exists(kSection, "41"));
        QVERIFY(!store.Get(kSection, "41", CHxProfileStore::kProfile));
        QVERIFY(store.flush());
        QCOMPARE(errors.lines(), QStringList());
    }
    QVERIFY(!QFileInfo::exists(QFileInfo(m_path).absolutePath()));
}

void ProfileStoreTest::keepsValuesFromStartToStart()
{
    {
        ProfileStore store(m_path);
        QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("ID_LINE")));
        QVERIFY(set(store, QStringLiteral("42"), QString()));
    } // the destructor writes what is not written yet
    ProfileStore store(m_path);
    QVERIFY(store.Exists(kSection, "41"));
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("ID_LINE"));
    QVERIFY(store.Exists(kSection, "42"));
    QCOMPARE(get(store, QStringLiteral("42")), QString());
    QVERIFY(!store.Exists(kSection, "43"));
    QVERIFY(!store.Exists("Other", "41"));
}

void ProfileStoreTest::valuesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QString &value) { QTest::newRow(name) << value; };
    row("empty", QString());
    row("identifier", QStringLiteral("ID_LINE"));
    row("path", QStringLiteral("File/Export/Drawing..."));
    row("umlauts", QString::fromUtf8("Datei/Öffnen …"));
    row("beyond 16 bits", QString::fromUtf8("𝕏 🖱️"));
    row("half a character", QStringLiteral("a") + QChar(0xd83d) + QStringLiteral("b"));
    row("null character", QStringLiteral("a") + QChar(0) + QStringLiteral("b"));
    row("newlines", QStringLiteral("a\nb\r\nc\n"));
    row("tabs and spaces", QStringLiteral(" \ta\t "));
    row("quotes", QStringLiteral("\"a\" 'b'"));
    row("comma", QStringLiteral("a,b, c"));
    row("semicolon", QStringLiteral("a;b;"));
    row("backslashes", QStringLiteral("C:\\new\\x41"));
    row("percent", QStringLiteral("100%u0041 %25 %"));
    row("at", QStringLiteral("@Variant(1)"));
    row("at at", QStringLiteral("@@x"));
    row("equals and brackets", QStringLiteral("[a]=b"));
    row("number", QStringLiteral("007"));
    row("true", QStringLiteral("true"));
    QString all;
    for (int i = 0; i < 0x180; ++i)
        all += QChar(i);
    row("every character to 0x17f", all);
    row("long", QString(100000, QLatin1Char('x')));
}

void ProfileStoreTest::valuesComeBackAsTheyWere()
{
    QFETCH(QString, value);
    {
        ProfileStore store(m_path);
        QVERIFY(set(store, QStringLiteral("41"), value));
        QCOMPARE(get(store, QStringLiteral("41")), value);
        QVERIFY(store.flush());
        QCOMPARE(get(store, QStringLiteral("41")), value);
    }
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QCOMPARE(get(store, QStringLiteral("41")), value);
    QCOMPARE(errors.lines(), QStringList());
}

void ProfileStoreTest::namesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::newRow("usual") << QStringLiteral("GestureWidget") << QStringLiteral("41");
    QTest::newRow("General") << QStringLiteral("General") << QStringLiteral("a");
    QTest::newRow("general") << QStringLiteral("general") << QStringLiteral("a");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("slashes") << QStringLiteral("a/b") << QStringLiteral("c\\d/");
    QTest::newRow("brackets") << QStringLiteral("[a]") << QStringLiteral("b=c;d#e");
    QTest::newRow("not ASCII") << QString::fromUtf8("Größe") << QString::fromUtf8("線");
    QTest::newRow("percent") << QStringLiteral("%") << QStringLiteral("%2f");
    QTest::newRow("spaces") << QStringLiteral(" a ") << QStringLiteral(" ");
}

void ProfileStoreTest::namesComeBackAsTheyWere()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    {
        ProfileStore store(m_path);
        QVERIFY(set(store, key, QStringLiteral("here"), section));
        QVERIFY(set(store, QStringLiteral("b/c"), QStringLiteral("one"), QStringLiteral("a")));
        QVERIFY(set(store, QStringLiteral("c"), QStringLiteral("two"), QStringLiteral("a/b")));
    }
    ProfileStore store(m_path);
    QCOMPARE(get(store, key, section), QStringLiteral("here"));
    QCOMPARE(get(store, QStringLiteral("b/c"), QStringLiteral("a")), QStringLiteral("one"));
    QCOMPARE(get(store, QStringLiteral("c"), QStringLiteral("a/b")), QStringLiteral("two"));
}

void ProfileStoreTest::onlyTheProfileIsASource()
{
    ProfileStore store(m_path);
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("ID_LINE")));
    for (const int source : {0, 1, 3, 5, -4})
        QVERIFY(!store.Get(kSection, "41", source));
    QVERIFY(store.Get(kSection, "41", 4));
    QCOMPARE(store.Get(kSection, "41", 4)->restype(), 5005);
}

void ProfileStoreTest::onlyStringsAreKept()
{
    ProfileStore store(m_path);
    QVERIFY(!store.Set(kSection, "41", nullptr));
    QVERIFY(!store.Exists(kSection, "41"));
}

void ProfileStoreTest::whatIsSetCountsAtOnceAndIsWrittenTogether()
{
    ProfileStore store(m_path);
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("a")));
    QVERIFY(set(store, QStringLiteral("42"), QStringLiteral("b")));
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("a"));
    QVERIFY(!QFileInfo::exists(m_path));
    QTRY_VERIFY(QFileInfo::exists(m_path));
    const QByteArray written = content();
    QVERIFY2(written.contains("41=a") && written.contains("42=b"), written.constData());
    QCOMPARE(content(QStringLiteral(".bak")), written);
}

void ProfileStoreTest::settingTheSameWritesNothing()
{
    fill();
    struct stat before = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &before), 0);
    {
        ProfileStore store(m_path);
        for (int i = 1; i <= 8; ++i)
            QVERIFY(set(store, QStringLiteral("8%1").arg(i), QStringLiteral("ID_COMMAND_%1").arg(i)));
        QVERIFY(store.flush());
    }
    struct stat after = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino); // writing would have made a new file
    QCOMPARE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
}

void ProfileStoreTest::editsOfOthersAreSeen()
{
    ProfileStore mine(m_path);
    ProfileStore others(m_path);
    QCOMPARE(get(mine, QStringLiteral("41")), QStringLiteral("<none>"));
    for (int i = 0; i < 20; ++i) { // equal lengths: the size does not show a change
        const QString value = QStringLiteral("ID_%1").arg(i, 3, 10, QLatin1Char('0'));
        QVERIFY(set(others, QStringLiteral("41"), value));
        QVERIFY(others.flush());
        QCOMPARE(get(mine, QStringLiteral("41")), value);
        QVERIFY(set(mine, QStringLiteral("42"), value));
        QVERIFY(mine.flush());
        QCOMPARE(get(others, QStringLiteral("42")), value);
    }
}

void ProfileStoreTest::aReadingSeesOneStateOfTheFile()
{
    ProfileStore mine(m_path);
    ProfileStore others(m_path);
    const auto writeAsOther = [&others](const QString &value) {
        return set(others, QStringLiteral("41"), value) && others.flush();
    };
    const QString key = QStringLiteral("41");
    QVERIFY(writeAsOther(QStringLiteral("ID_ONE")));
    mine.beginReading();
    QCOMPARE(get(mine, key), QStringLiteral("ID_ONE"));
    QVERIFY(writeAsOther(QStringLiteral("ID_TWO")));
    QCOMPARE(get(mine, key), QStringLiteral("ID_ONE"));
    QVERIFY(set(mine, QStringLiteral("42"), QStringLiteral("ID_MINE"))); // counts at once
    QCOMPARE(get(mine, QStringLiteral("42")), QStringLiteral("ID_MINE"));
    mine.beginReading(); // the next one, before the event loop has run
    QCOMPARE(get(mine, key), QStringLiteral("ID_TWO"));
    QVERIFY(writeAsOther(QStringLiteral("ID_SIX")));
    QCOMPARE(get(mine, key), QStringLiteral("ID_TWO"));
    QCoreApplication::processEvents();
    QCOMPARE(get(mine, key), QStringLiteral("ID_SIX"));
    QVERIFY(writeAsOther(QStringLiteral("ID_TEN")));
    QCOMPARE(get(mine, key), QStringLiteral("ID_TEN"));
    QCOMPARE(get(others, QStringLiteral("42")), QStringLiteral("ID_MINE"));
}

void ProfileStoreTest::theSecondOfTwoWritersCountsKeyByKey()
{
    fill();
    ProfileStore first(m_path);
    ProfileStore second(m_path);
    verifyFilled(first);
    verifyFilled(second);
    QVERIFY(set(first, QStringLiteral("81"), QStringLiteral("first")));
    QVERIFY(set(first, QStringLiteral("82"), QStringLiteral("first")));
    QVERIFY(set(second, QStringLiteral("82"), QStringLiteral("second")));
    QVERIFY(set(second, QStringLiteral("83"), QStringLiteral("second")));
    QVERIFY(first.flush());
    QVERIFY(second.flush());
    for (ProfileStore *store : {&first, &second}) {
        QCOMPARE(get(*store, QStringLiteral("81")), QStringLiteral("first"));
        QCOMPARE(get(*store, QStringLiteral("82")), QStringLiteral("second"));
        QCOMPARE(get(*store, QStringLiteral("83")), QStringLiteral("second"));
        QCOMPARE(get(*store, QStringLiteral("84")), QStringLiteral("ID_COMMAND_4"));
    }
}

void ProfileStoreTest::aFileWrittenByHandIsUnderstood()
{
    write("# my gestures\n\n[GestureWidget]\n41 = ID_LINE\n42=File/Save, then close\n; 43=no\n"
          "44=\"ID_OPEN\"\n81=100%\n");
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("ID_LINE"));
    QCOMPARE(get(store, QStringLiteral("42")), QStringLiteral("File/Save, then close"));
    QVERIFY(!store.Exists(kSection, "43"));
    QCOMPARE(get(store, QStringLiteral("44")), QStringLiteral("ID_OPEN"));
    QCOMPARE(get(store, QStringLiteral("81")), QStringLiteral("100%"));
    QCOMPARE(errors.lines(), QStringList());
}

void ProfileStoreTest::aDeletedFileIsAReset()
{
    fill();
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    verifyFilled(store);
    QVERIFY(QFile::remove(m_path));
    QVERIFY(!store.Exists(kSection, "81"));
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("ID_LINE")));
    QVERIFY(store.flush());
    QVERIFY(!store.Exists(kSection, "81"));
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("ID_LINE"));
    QCOMPARE(errors.lines(), QStringList());
}

// Or it has nothing left.
void ProfileStoreTest::aFileCutOffInALineIsRestored()
{
    fill();
    const QByteArray whole = content();
    QVERIFY(whole.size() > 100);
    for (int length = 0; length < whole.size(); ++length) {
        if (whole.left(length).endsWith('\n'))
            continue;
        write(whole.left(length));
        tests::StandardErrorCapture errors;
        ProfileStore store(m_path);
        verifyFilled(store);
        QCOMPARE(content(), whole);
        QCOMPARE(content(QStringLiteral(".damaged")), whole.left(length));
        const QStringList lines = errors.lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(m_path), qPrintable(lines.first()));
        QVERIFY2(lines.first().contains(QStringLiteral("restored")), qPrintable(lines.first()));
    }
}

// There a line may end too.
void ProfileStoreTest::aFileCutOffAtABlockIsRestored()
{
    const QByteArray first = "[GestureWidget]\n81=" + QByteArray(4096 - 16 - 4, 'x') + '\n';
    QCOMPARE(first.size(), 4096);
    const QByteArray whole = first + "82=ID_COMMAND_2\n";
    for (const QByteArray &left : {first, QByteArray()}) {
        write(whole);
        static_cast<void>(ProfileStore(m_path).Exists(kSection, "82")); // makes the copy
        QCOMPARE(content(QStringLiteral(".bak")), whole);
        write(left);
        tests::StandardErrorCapture errors;
        ProfileStore store(m_path);
        QCOMPARE(get(store, QStringLiteral("82")), QStringLiteral("ID_COMMAND_2"));
        QCOMPARE(content(), whole);
        QCOMPARE(errors.lines().size(), 1);
    }
}

// A save of ours replaces the whole file, so it never ends earlier than it was meant to.
void ProfileStoreTest::lastLinesDeletedByHandStayDeleted()
{
    fill();
    const QByteArray whole = content();
    const auto lines = whole.count('\n');
    QVERIFY(lines > 9);
    for (int deleted = 1; deleted < lines; ++deleted) {
        write(whole);
        ProfileStore running(m_path);
        verifyFilled(running); // and makes the copy
        QByteArray edited = whole;
        for (int line = 0; line < deleted; ++line)
            edited = edited.left(edited.lastIndexOf('\n', edited.size() - 2) + 1);
        write(edited);
        tests::StandardErrorCapture errors;
        ProfileStore store(m_path);
        for (ProfileStore *each : {&running, &store}) {
            for (int i = 1; i <= 8; ++i) {
                const QByteArray key = '8' + QByteArray::number(i);
                QCOMPARE(each->Exists(kSection, key.constData()), edited.contains('\n' + key + '='));
            }
        }
        QVERIFY(set(running, QStringLiteral("41"), QStringLiteral("ID_LINE")));
        QVERIFY(running.flush());
        QVERIFY(content().startsWith(edited));
        QCOMPARE(content(QStringLiteral(".bak")), content());
        QCOMPARE(errors.lines(), QStringList());
        QVERIFY(!QFile::exists(m_path + QStringLiteral(".damaged")));
    }
}

// Programs that cannot start with gestures since a crash say that this line is to be deleted.
void ProfileStoreTest::whatWasOffSinceACrashIsOnOnceItsLineIsDeleted()
{
    namespace names = gesturewidget::settingsnames;
    fill();
    const CHxString host(names::hostSection());
    {
        ProfileStore store(m_path);
        QVERIFY(set(store, names::offSinceCrashKey(), QStringLiteral("1"), host));
        QVERIFY(store.flush());
    }
    const QByteArray line = "OffSinceCrash=1\n";
    QVERIFY(content().endsWith(line));
    write(content().chopped(line.size()));
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QVERIFY(!store.Exists(host, names::offSinceCrashKey()));
    verifyFilled(store);
    QVERIFY(!content().contains("OffSinceCrash"));
    QCOMPARE(errors.lines(), QStringList());
}

void ProfileStoreTest::aZeroedFileIsRestored_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to"); // a negative number counts from the end
    QTest::newRow("all") << 0 << 0;
    QTest::newRow("beginning") << 0 << 50;
    QTest::newRow("middle") << 60 << 61;
    QTest::newRow("end") << 100 << 0;
}

void ProfileStoreTest::aZeroedFileIsRestored()
{
    QFETCH(int, from);
    QFETCH(int, to);
    fill();
    const QByteArray whole = content();
    QByteArray zeroed = whole;
    for (int i = from; i < (to > 0 ? to : whole.size()); ++i)
        zeroed[i] = '\0';
    write(zeroed);
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    verifyFilled(store);
    QCOMPARE(content(), whole);
    QCOMPARE(errors.lines().size(), 1);
}

// The next write must not drop what the damaged file had.
void ProfileStoreTest::damageWhileRunningLosesNothing()
{
    fill();
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    verifyFilled(store);
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("new")));
    write(content().left(40));
    QVERIFY(store.flush());
    verifyFilled(store);
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("new"));
    QCOMPARE(errors.lines().size(), 1);
    ProfileStore later(m_path);
    verifyFilled(later);
    QCOMPARE(get(later, QStringLiteral("41")), QStringLiteral("new"));
    QCOMPARE(errors.lines().size(), 1);
}

void ProfileStoreTest::damageWithoutACopyIsSaid()
{
    fill();
    QVERIFY(QFile::remove(m_path + QStringLiteral(".bak")));
    QByteArray zeroed = content();
    zeroed[70] = '\0';
    write(zeroed);
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QVERIFY(!store.Exists(kSection, "99"));
    const QStringList lines = errors.lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(QStringLiteral("no good copy")), qPrintable(lines.first()));
    QCOMPARE(content(QStringLiteral(".damaged")), zeroed);
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("ID_LINE")));
    QVERIFY(store.flush());
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("ID_LINE"));
}

void ProfileStoreTest::aDamagedCopyIsNotUsed()
{
    fill();
    const QByteArray whole = content();
    write(QByteArray(whole.size(), '\0'), QStringLiteral(".bak"));
    {
        tests::StandardErrorCapture errors;
        ProfileStore store(m_path);
        verifyFilled(store);
        QCOMPARE(errors.lines(), QStringList());
    }
    QCOMPARE(content(), whole);
    QCOMPARE(content(QStringLiteral(".bak")), whole); // written again

    write(QByteArray(whole.size(), '\0'), QStringLiteral(".bak"));
    write(QByteArray(whole.size(), '\0'));
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QVERIFY(!store.Exists(kSection, "81"));
    QCOMPARE(errors.lines().size(), 1);
    QVERIFY2(errors.lines().constFirst().contains(QStringLiteral("no good copy")),
             qPrintable(errors.lines().constFirst()));
}

void ProfileStoreTest::theCopyFollowsAGoodFile()
{
    fill();
    const QByteArray edited = "[GestureWidget]\n41=by hand\n";
    write(edited);
    {
        ProfileStore store(m_path);
        QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("by hand"));
        QCOMPARE(content(QStringLiteral(".bak")), edited);
    }
    write(edited.left(20));
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("by hand"));
    QCOMPARE(errors.lines().size(), 1);
}

// Root may write anywhere, so the child runs without that privilege.
void ProfileStoreTest::aDamagedFileInAReadOnlyFolderIsReadFromItsCopy()
{
    fill();
    const QByteArray cut = content().left(30);
    write(cut);
    const QString folder = QFileInfo(m_path).absolutePath();
    const QFile::Permissions before = QFile::permissions(folder);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QStringList command{QCoreApplication::applicationFilePath(), QStringLiteral("child-read"), m_path};
    if (::getuid() == 0)
        command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--bounding-set"),
                              QStringLiteral("-dac_override"), QStringLiteral("--inh-caps"),
                              QStringLiteral("-dac_override")}
                + command;
    QProcess self;
    self.start(command.first(), command.mid(1));
    const bool isFinished = self.waitForFinished();
    QVERIFY(QFile::setPermissions(folder, before));
    QVERIFY(isFinished);
    QCOMPARE(QString::fromUtf8(self.readAllStandardOutput()), QStringLiteral("ID_COMMAND_1\n"));
    const QString said = QString::fromUtf8(self.readAllStandardError());
    QCOMPARE(said.count(QLatin1Char('\n')), 1);
    QVERIFY2(said.contains(QStringLiteral("restored")), qPrintable(said));
    QCOMPARE(content(), cut);
}

void ProfileStoreTest::aFolderThatCannotBeWrittenKeepsChangesInMemory()
{
    m_path = QStringLiteral("/proc/gesturewidget/drafter.ini");
    tests::StandardErrorCapture errors;
    {
        ProfileStore store(m_path);
        QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("a")));
        QVERIFY(!store.flush());
        QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("a"));
        QVERIFY(set(store, QStringLiteral("42"), QStringLiteral("b")));
        QVERIFY(!store.flush());
        QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("a"));
        QCOMPARE(get(store, QStringLiteral("42")), QStringLiteral("b"));
        QVERIFY(store.Exists(kSection, "42"));
    }
    const QStringList lines = errors.lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(m_path), qPrintable(lines.first()));
    QVERIFY2(lines.first().contains(QStringLiteral("cannot be written")), qPrintable(lines.first()));
}

void ProfileStoreTest::withoutAFileChangesStayInMemory()
{
    tests::StandardErrorCapture errors;
    ProfileStore store{QString()};
    QVERIFY(!store.Exists(kSection, "41"));
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("a")));
    QVERIFY(!store.flush());
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("a"));
    QCOMPARE(errors.lines().size(), 1);
}

// For a while the child cannot write a byte to any file, as on a full disk.
void ProfileStoreTest::aFullDiskKeepsTheOldFile()
{
    QProcess self;
    self.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("child-full"), m_folder->path()});
    QVERIFY(self.waitForFinished());
    const QString said = QString::fromUtf8(self.readAllStandardError());
    QCOMPARE(QString::fromUtf8(self.readAllStandardOutput()),
             QStringLiteral("first flush 1\nsecond flush 0\nin memory new\non disk old\nafter 1 new\n"));
    QCOMPARE(said.count(QLatin1Char('\n')), 1);
    QVERIFY2(said.contains(QStringLiteral("cannot be written")), qPrintable(said));
}

// Some bytes still fit. Half a file must not replace the whole one.
void ProfileStoreTest::aNearlyFullDiskKeepsTheOldFile()
{
    QProcess self;
    self.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("child-nearly-full"), m_folder->path()});
    QVERIFY(self.waitForFinished());
    const QString said = QString::fromUtf8(self.readAllStandardError());
    QCOMPARE(
        QString::fromUtf8(self.readAllStandardOutput()),
        QStringLiteral("flush 0\nin memory 40 of 40\non disk 20 of 20\nafter 1, on disk 40 of 40\n"));
    QCOMPARE(said.count(QLatin1Char('\n')), 1);
    QVERIFY2(said.contains(QStringLiteral("cannot be written")), qPrintable(said));
}

void ProfileStoreTest::aHugeFileIsLeftAlone()
{
    const QByteArray huge = "[GestureWidget]\n41=ID_LINE\n" + QByteArray(5 * 1024 * 1024, ';') + "\n";
    write(huge);
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QVERIFY(!store.Exists(kSection, "41"));
    QVERIFY(store.values().isEmpty());
    QVERIFY(set(store, QStringLiteral("42"), QStringLiteral("a")));
    QVERIFY(!store.flush());
    QCOMPARE(get(store, QStringLiteral("42")), QStringLiteral("a"));
    QVERIFY(content() == huge);
    QCOMPARE(errors.lines().size(), 2); // it cannot be read, and it cannot be written
}

// Each copy writes all directions at once, so the last writer's choices all stay.
void ProfileStoreTest::twoCopiesPressingOkLeaveOneOfTheirChoices()
{
    constexpr int kRounds = 60;
    std::vector<std::unique_ptr<QProcess>> copies;
    for (const char *name : {"first", "second"}) {
        copies.push_back(std::make_unique<QProcess>());
        copies.back()->start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("child-ok"), m_path, QString::fromLatin1(name), QString::number(kRounds)});
    }
    tests::StandardErrorCapture errors;
    QSet<QString> choices;
    const auto look = [&] {
        ProfileStore store(m_path);
        if (store.values().isEmpty())
            return; // not written yet
        const QStringList values = store.values().values();
        QCOMPARE(values.size(), 12);
        QCOMPARE(values.count(values.first()), 12);
        choices.insert(values.first());
    };
    for (const auto &copy : copies) {
        while (!copy->waitForFinished(1) && copy->state() != QProcess::NotRunning)
            look();
        QCOMPARE(copy->exitCode(), 0);
        const QByteArray said = copy->readAllStandardError();
        QVERIFY2(said.isEmpty() || said == busyLine(), said.constData());
    }
    look();
    QVERIFY2(choices.size() > 2, qPrintable(QString::number(choices.size())));
    const QString last = QString::number(kRounds - 1);
    QVERIFY(choices.contains(QStringLiteral("first ") + last)
            || choices.contains(QStringLiteral("second ") + last));
    QCOMPARE(errors.lines(), QStringList());
}

void ProfileStoreTest::whatIsNoFileIsLeftAlone_data()
{
    QTest::addColumn<bool>("isPipe");
    QTest::newRow("folder") << false;
    QTest::newRow("pipe") << true;
}

void ProfileStoreTest::whatIsNoFileIsLeftAlone()
{
    QFETCH(bool, isPipe);
    QVERIFY(QDir().mkpath(QFileInfo(m_path).absolutePath()));
    if (isPipe)
        QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    else
        QVERIFY(QDir().mkdir(m_path));
    tests::StandardErrorCapture errors;
    ProfileStore store(m_path);
    QVERIFY(!store.Exists(kSection, "41"));
    QVERIFY(set(store, QStringLiteral("41"), QStringLiteral("a")));
    QVERIFY(!store.flush());
    QCOMPARE(get(store, QStringLiteral("41")), QStringLiteral("a"));
    QCOMPARE(errors.lines().size(), 2); // it cannot be read, and it cannot be written
    QCOMPARE(QFileInfo(m_path).isDir(), !isPipe);
}

void ProfileStoreTest::manyWritersLoseNothing()
{
    constexpr int kWriters = 4;
    constexpr int kKeys = 15;
    std::vector<std::unique_ptr<QProcess>> writers;
    for (int i = 0; i < kWriters; ++i) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->setProcessChannelMode(QProcess::ForwardedOutputChannel);
        writers.back()->start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("child-write"), m_path, QString::number(i), QString::number(kKeys)});
    }
    for (const auto &writer : writers) {
        QVERIFY(writer->waitForFinished());
        QCOMPARE(writer->exitCode(), 0);
        const QByteArray said = writer->readAllStandardError();
        QVERIFY2(said.isEmpty() || said == busyLine(), said.constData());
    }
    ProfileStore store(m_path);
    for (int i = 0; i < kWriters; ++i) {
        for (int key = 0; key < kKeys; ++key)
            QCOMPARE(get(store, QStringLiteral("w%1k%2").arg(i).arg(key)),
                     QStringLiteral("v%1").arg(key));
    }
    QCOMPARE(content(QStringLiteral(".bak")), content());
}

namespace {

// Writes 20 values, then 20 more while only part of the file would fit on the disk.
int runNearlyFull(const QString &path)
{
    const auto value = [](int i) { return QStringLiteral("ID_COMMAND_%1").arg(i); };
    const auto fill = [&](ProfileStore &store, int count) {
        for (int i = 0; i < count; ++i)
            set(store, QString::number(i), value(i));
        return store.flush();
    };
    const auto there = [&](ProfileStore &store, int count) {
        int found = 0;
        for (int i = 0; i < count; ++i)
            found += get(store, QString::number(i)) == value(i);
        return QStringLiteral("%1 of %2").arg(found).arg(count);
    };
    // Does not read with QSettings, which keeps in memory what it has written.
    const auto onDisk = [&](int count) {
        QFile file(path);
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        int found = 0;
        for (int i = 0; i < count; ++i)
            found += text.contains(QStringLiteral("\n%1=%2\n").arg(i).arg(value(i)).toLatin1());
        return QStringLiteral("%1 of %2").arg(found).arg(count);
    };
    ProfileStore store(path);
    fill(store, 20);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit some{rlim_t(QFileInfo(path).size()), limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &some);
    const bool isWritten = fill(store, 40);
    const QString inMemory = there(store, 40);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::printf("flush %d\nin memory %s\non disk %s\n", isWritten, qPrintable(inMemory),
                qPrintable(onDisk(20)));
    const bool isWrittenAfter = store.flush();
    std::printf("after %d, on disk %s\n", isWrittenAfter, qPrintable(onDisk(40)));
    return 0;
}

// The tests run these functions in separate processes.
int runChild(const QStringList &arguments)
{
    const auto out = [](const QString &line) { std::printf("%s\n", qPrintable(line)); };
    if (arguments.at(1) == QLatin1String("child-read")) {
        ProfileStore store(arguments.at(2));
        out(get(store, QStringLiteral("81")));
        return 0;
    }
    if (arguments.at(1) == QLatin1String("child-write")) {
        ProfileStore store(arguments.at(2));
        const int count = arguments.at(4).toInt();
        for (int key = 0; key < count; ++key) {
            set(store, QStringLiteral("w%1k%2").arg(arguments.at(3)).arg(key),
                QStringLiteral("v%1").arg(key));
            // On a slow machine the other copy may hold the file for longer than a copy waits. Then
            // the values stay in memory, and the next flush writes them.
            int attempts = 1;
            while (!store.flush() && attempts < 60)
                ++attempts;
            if (!store.flush())
                return 1;
        }
        return 0;
    }
    if (arguments.at(1) == QLatin1String("child-ok")) {
        ProfileStore store(arguments.at(2));
        const int rounds = arguments.at(4).toInt();
        for (int round = 0; round < rounds; ++round) {
            const QString choice = QStringLiteral("%1 %2").arg(arguments.at(3)).arg(round);
            for (int key = 0; key < 12; ++key)
                set(store, QStringLiteral("k%1").arg(key), choice);
            if (!store.flush())
                return 1;
        }
        return 0;
    }
    const QString path = arguments.at(2) + QLatin1String("/drafter.ini");
    if (arguments.at(1) == QLatin1String("child-nearly-full"))
        return runNearlyFull(path);
    ProfileStore store(path);
    set(store, QStringLiteral("41"), QStringLiteral("old"));
    out(QStringLiteral("first flush %1").arg(store.flush()));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit none{0, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &none);
    set(store, QStringLiteral("41"), QStringLiteral("new"));
    out(QStringLiteral("second flush %1").arg(store.flush()));
    out(QStringLiteral("in memory %1").arg(get(store, QStringLiteral("41"))));
    {
        QFile file(path);
        const bool isOpen = file.open(QIODevice::ReadOnly);
        out(QStringLiteral("on disk %1")
                .arg(isOpen && file.readAll().contains("41=old") ? QStringLiteral("old")
                                                                 : QStringLiteral("something else")));
    }
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const bool isWritten = store.flush();
    ProfileStore later(path);
    out(QStringLiteral("after %1 %2").arg(isWritten).arg(get(later, QStringLiteral("41"))));
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1).startsWith(QLatin1String("child-")))
        return runChild(app.arguments());
    ProfileStoreTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profilestore.moc"
