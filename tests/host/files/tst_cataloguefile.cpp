// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CatalogueFile.h"
#include "host/files/DocumentName.h"
#include "host/files/InstallPaths.h"
#include "tests/host/support/StandardErrorCapture.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using gesturewidget::CatalogueFile;
using gesturewidget::RememberedCommand;
using Commands = QVector<RememberedCommand>;

namespace {

RememberedCommand command(const QString &identifier, const QString &caption = QStringLiteral("Caption"),
                          const QByteArray &icon = {})
{
    return {identifier, identifier, caption, QStringLiteral("What it does"), QStringLiteral("Draw"),
            icon};
}

Commands numbered(int count)
{
    Commands commands;
    for (int i = 0; i < count; ++i)
        commands.append(command(QStringLiteral("command%1").arg(i), QStringLiteral("Command %1").arg(i),
                                QByteArray(500, char(i))));
    return commands;
}

QStringList identifiers(const Commands &commands)
{
    QStringList list;
    for (const RememberedCommand &each : commands)
        list.append(each.identifier);
    return list;
}

} // namespace

class CatalogueFileTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        FolderTest::init();
        m_path = place("config/drafter.commands.json");
    }

    void liesBesideTheSettings();
    void withoutAFileNothingIsKnown();
    void keepsCommandsFromStartToStart();
    void textsComeBackAsTheyWere_data();
    void textsComeBackAsTheyWere();
    void whatChangesNothingWritesNothing();
    void whatIsEmptyLeavesWhatIsThere();
    void whatIsGoneIsTakenOut();
    void commandsWithoutIdentifierAreLeftOut();
    void countsAndSizesAreBounded();
    void documentNames_data();
    void documentNames();
    void whatIsPrivateIsNeverWritten();
    void dottedObjectNamesAreRemembered();
    void dottedNamesOfDocumentsAreNotRemembered_data();
    void dottedNamesOfDocumentsAreNotRemembered();
    void anOldFileIsCleaned();
    void iconsGoBeforeCommands();
    void twoCopiesMerge();
    void aFileHeldByAnotherIsLeftForLater();
    void aFileCutOffAnywhereLosesNothing();
    void aDamagedFileIsReplacedByItsCopyAndWhatIsNew_data();
    void aDamagedFileIsReplacedByItsCopyAndWhatIsNew();
    void damageWithoutACopyIsSaid();
    void badEntriesAreLeftOut();
    void whatIsNotOursIsLeftAlone_data();
    void whatIsNotOursIsLeftAlone();
    void whatCannotBeReadIsLeftAlone();
    void aFolderThatCannotBeWrittenIsSaidOnce();
    void aFullDiskKeepsTheOldFile();
    void manyWritersLoseNothing();
    void aWriterThatIsKilledLeavesAWholeFile();

private:
    QByteArray content(const QString &suffix = {}) const { return tests::contentOf(m_path + suffix); }
    void write(const QByteArray &text, const QString &suffix = {}) const
    {
        QFile::remove(m_path + suffix); // so that its second name keeps its content
        FolderTest::write(m_path + suffix, text);
    }
    bool merge(const Commands &seen, const QStringList &gone = {}) const
    {
        return CatalogueFile(m_path).merge(seen, gone);
    }
    Commands read() const { return CatalogueFile(m_path).read(); }
    ino_t node() const
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(m_path).constData(), &status) == 0 ? status.st_ino : 0;
    }

    QString m_path;
};

void CatalogueFileTest::liesBesideTheSettings()
{
    QCOMPARE(gesturewidget::catalogueFileBeside(QStringLiteral("/a/drafter.ini")),
             QStringLiteral("/a/drafter.commands.json"));
    QCOMPARE(gesturewidget::catalogueFileBeside(QStringLiteral("/a/drafter.conf")),
             QStringLiteral("/a/drafter.conf.commands.json"));
    QCOMPARE(gesturewidget::catalogueFileBeside(QString()), QString());
    const QString settings = gesturewidget::settingsFile(QStringLiteral("drafter"));
    QCOMPARE(gesturewidget::catalogueFile(QStringLiteral("drafter")),
             gesturewidget::catalogueFileBeside(settings));
}

void CatalogueFileTest::withoutAFileNothingIsKnown()
{
    tests::StandardErrorCapture errors;
    QCOMPARE(read(), Commands());
    QVERIFY(merge({}));
    QVERIFY(!QFileInfo::exists(m_path));
    CatalogueFile none{QString()};
    QCOMPARE(none.read(), Commands());
    QVERIFY(!none.merge(numbered(1)));
    QCOMPARE(errors.lines(), QStringList());
}

void CatalogueFileTest::keepsCommandsFromStartToStart()
{
    tests::StandardErrorCapture errors;
    const Commands first = numbered(3);
    QVERIFY(merge(first));
    QCOMPARE(read(), first);
    // New commands come last, known ones keep their places.
    Commands second{command(QStringLiteral("new")), first.at(1)};
    second[1].caption = QStringLiteral("Other words");
    second[1].icon = "picture";
    second[1].isInToolBar = true;
    QVERIFY(merge(second));
    QCOMPARE(read(), (Commands{first.at(0), second.at(1), first.at(2), second.at(0)}));
    QCOMPARE(errors.lines(), QStringList());
}

void CatalogueFileTest::textsComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text; };
    row("path", QStringLiteral("File/Export/\"Drawing\" \\ more..."));
    row("umlauts", QString::fromUtf8("Datei/Öffnen …"));
    row("beyond 16 bits", QString::fromUtf8("𝕏 🖱️ 線"));
    row("null character", QStringLiteral("a") + QChar(0) + QStringLiteral("b"));
    row("newlines", QStringLiteral("a\nb\r\nc\t"));
    QString all;
    for (int i = 0; i < 0x180; ++i)
        all += QChar(i);
    row("every character to 0x17f", all);
}

void CatalogueFileTest::textsComeBackAsTheyWere()
{
    QFETCH(QString, text);
    const Commands commands{{text, text, text, text, text, text.toUtf8()}};
    QVERIFY(merge(commands));
    QCOMPARE(read(), commands);
    const ino_t before = node();
    QVERIFY(merge(commands));
    QCOMPARE(node(), before);
}

void CatalogueFileTest::whatChangesNothingWritesNothing()
{
    const Commands commands = numbered(20);
    QVERIFY(merge(commands));
    const ino_t before = node();
    QVERIFY(merge(commands));
    QVERIFY(merge({commands.at(7), commands.at(3)}, {QStringLiteral("never seen")}));
    QVERIFY(merge({}));
    QCOMPARE(node(), before); // writing would have made a new file
    QVERIFY(merge({command(QStringLiteral("new"))}));
    QVERIFY(node() != before);
}

void CatalogueFileTest::whatIsEmptyLeavesWhatIsThere()
{
    const RememberedCommand full{QStringLiteral("id"),      QStringLiteral("key"),
                                 QStringLiteral("Caption"), QStringLiteral("Tip"),
                                 QStringLiteral("Draw"),    "picture"};
    QVERIFY(merge({full}));
    const ino_t before = node();
    QVERIFY(merge({{full.identifier, {}, {}, {}, {}, {}}}));
    QCOMPARE(read(), Commands{full});
    QCOMPARE(node(), before);
}

void CatalogueFileTest::whatIsGoneIsTakenOut()
{
    QVERIFY(merge(numbered(4)));
    QVERIFY(merge({command(QStringLiteral("command2"))},
                  {QStringLiteral("command0"), QStringLiteral("command2"), QStringLiteral("other")}));
    QCOMPARE(identifiers(read()), QStringList({QStringLiteral("command1"), QStringLiteral("command2"),
                                               QStringLiteral("command3")}));
}

void CatalogueFileTest::commandsWithoutIdentifierAreLeftOut()
{
    QVERIFY(merge({command(QString()), command(QStringLiteral("one")), command(QStringLiteral("one")),
                   command(QString(CatalogueFile::kMaximalText + 1, QLatin1Char('x')))}));
    QCOMPARE(identifiers(read()), QStringList(QStringLiteral("one")));
}

void CatalogueFileTest::countsAndSizesAreBounded()
{
    constexpr int kText = CatalogueFile::kMaximalText;
    constexpr int kIcon = CatalogueFile::kMaximalIcon;
    const RememberedCommand large{
        QString(kText, QLatin1Char('i')),     QString(kText, QLatin1Char('k')),
        QString(kText + 1, QLatin1Char('c')), QString(kText + 1, QLatin1Char('t')),
        QString(kText + 1, QLatin1Char('g')), QByteArray(kIcon + 1, 'p')};
    QVERIFY(
        merge({large, command(QStringLiteral("icon"), QStringLiteral("Icon"), QByteArray(kIcon, 'p'))}));
    const Commands known = read();
    QCOMPARE(known.size(), 2);
    QCOMPARE(known.at(0).identifier, large.identifier);
    QCOMPARE(known.at(0).command, large.command);
    QCOMPARE(known.at(0).caption, large.caption.left(kText));
    QCOMPARE(known.at(0).tip, large.tip.left(kText));
    QCOMPARE(known.at(0).group, large.group.left(kText));
    QCOMPARE(known.at(0).icon, QByteArray());
    QCOMPARE(known.at(1).icon.size(), kIcon);
    const ino_t before = node();
    QVERIFY(merge({large})); // cut off again, it is the same
    QCOMPARE(node(), before);

    Commands many;
    for (int i = 0; i < CatalogueFile::kMaximalCount + 10; ++i)
        many.append(command(QStringLiteral("many%1").arg(i)));
    QVERIFY(merge(many));
    QCOMPARE(read().size(), CatalogueFile::kMaximalCount);
    QCOMPARE(read().at(0), known.first());
}

void CatalogueFileTest::documentNames_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("isOne");
    const auto row = [](const char *caption, bool isOne) {
        QTest::newRow(caption) << QString::fromUtf8(caption) << isOne;
    };
    for (const char *caption :
         {"/home/me/house.dxf", "1 /home/me/house", "&2: ~/house", "Open \"/tmp/my house/plan\"",
          "C:\\Drawings\\house.dwg", "file:///home/x", "house.dxf", "1 my house.FCStd",
          "&3. house.dxf *", "house.dxf [read only]", "Größe.dxf (2)", "plan.v2.kicad_pcb.svg",
          "план.dxf", "図面.dxf", "“house.dxf”", "„house.dxf“ *", "Fermer « house.dxf »",
          "「house.dxf」", "Öffne „/tmp/house/plan“"})
        row(caption, true);
    for (const char *caption :
         {"Line", "Open...", "Save as…", "On / Off", "Line/Arc", "Draw/Line/2 Points", "Version 2.0",
          "Import .dxf", "Export as DXF...", "1:2", "~", "x.y", "Zoom 1.5x", "By 3 points, radius", ""})
        row(caption, false);
}

void CatalogueFileTest::documentNames()
{
    QFETCH(QString, caption);
    QFETCH(bool, isOne);
    QCOMPARE(gesturewidget::namesADocument(caption), isOne);
}

void CatalogueFileTest::whatIsPrivateIsNeverWritten()
{
    RememberedCommand tip = command(QStringLiteral("new"));
    tip.tip = QStringLiteral("Opens /home/me/secret/plan");
    QVERIFY(merge({command(QStringLiteral("recent1"), QStringLiteral("1 /home/me/secret.dxf")),
                   command(QStringLiteral("Window/secret.dxf"), QStringLiteral("Close")),
                   command(QStringLiteral("recent2"), QStringLiteral("&2 secret.dxf")), tip}));
    tip.tip.clear();
    QCOMPARE(read(), Commands{tip});
    // A known command may later be called like a document.
    QVERIFY(merge({command(QStringLiteral("new"), QStringLiteral("secret.dxf"))}));
    QCOMPARE(read(), Commands{tip});
    for (const char *suffix : {"", ".bak"})
        QVERIFY2(!content(QLatin1String(suffix)).contains("secret"), suffix);
}

void CatalogueFileTest::dottedObjectNamesAreRemembered()
{
    const auto named = [](const char *name, const char *caption) {
        return command(QLatin1String(name), QLatin1String(caption));
    };
    const Commands edit{named("edit.cut", "Ausschneiden"), named("edit.copy", "Kopieren"),
                        named("edit.paste", "Einfügen")};
    QVERIFY(merge(edit));
    QCOMPARE(read(), edit);
    // Those that are known count with those that are new.
    const RememberedCommand redo = named("edit.redo", "Redo the Edit");
    QVERIFY(merge({redo}));
    QCOMPARE(read(), edit + Commands{redo});
    const Commands deep{named("Draw.Arc.Centre", "By Centre"), named("Draw.Arc.Ends", "By Ends"),
                        named("Draw.Arc.Points", "By Points")};
    QVERIFY(merge(deep));
    QCOMPARE(read(), edit + Commands{redo} + deep);
    // A profile's identifier, with the object name as the key.
    RememberedCommand wellKnown = named("ID_UNDO", "Undo");
    wellKnown.command = QStringLiteral("edit.undo");
    QVERIFY(merge({wellKnown}));
    QCOMPARE(read(), edit + Commands{redo} + deep + Commands{wellKnown});
}

void CatalogueFileTest::dottedNamesOfDocumentsAreNotRemembered_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *title, const QStringList &names, const char *caption) {
        QTest::newRow(title) << names << QString::fromLatin1(caption);
    };
    row("one", {QStringLiteral("secret.dxf")}, "Close");
    row("two of one drawing", {QStringLiteral("secret.dxf"), QStringLiteral("secret.svg")}, "Close");
    row("two, one of them in capital letters",
        {QStringLiteral("secret.dxf"), QStringLiteral("secret.svg"), QStringLiteral("secret.SVG")},
        "Close");
    row("three different ones",
        {QStringLiteral("secret.dxf"), QStringLiteral("my_secret.dxf"), QStringLiteral("secret2.dxf")},
        "Close");
    row("named without the ending",
        {QStringLiteral("secret.dxf"), QStringLiteral("secret.svg"), QStringLiteral("secret.pdf")},
        "1 Secret");
    row("below a menu",
        {QStringLiteral("Window/secret.dxf"), QStringLiteral("Window/secret.svg"),
         QStringLiteral("Window/secret.pdf")},
        "Close");
    row("with a space",
        {QStringLiteral("my secret.dxf"), QStringLiteral("my secret.svg"),
         QStringLiteral("my secret.pdf")},
        "Close");
    row("with a line end",
        {QStringLiteral("secret.dxf\n"), QStringLiteral("secret.svg\n"), QStringLiteral("secret.pdf\n")},
        "Close");
    row("beginning with a digit",
        {QStringLiteral("1secret.dxf"), QStringLiteral("1secret.svg"), QStringLiteral("1secret.pdf")},
        "Close");
}

void CatalogueFileTest::dottedNamesOfDocumentsAreNotRemembered()
{
    QFETCH(QStringList, names);
    QFETCH(QString, caption);
    Commands documents;
    for (const QString &name : std::as_const(names))
        documents.append(command(name, caption));
    const Commands line{command(QStringLiteral("drawLine"))};
    QVERIFY(merge(line + documents));
    QCOMPARE(read(), line);
    QVERIFY(!content().contains("secret"));
}

void CatalogueFileTest::anOldFileIsCleaned()
{
    const QByteArray old = R"({"version": 1, "commands": [
        {"identifier": "a", "caption": "1 /home/me/secret.dxf"},
        {"identifier": "b", "caption": "Line", "tip": "of ~/secret/plan"},
        {"identifier": "c", "caption": "Arc", "tip": "An arc"}]})";
    for (const bool hasNews : {false, true}) {
        write(old);
        write(old, QStringLiteral(".bak"));
        QCOMPARE(identifiers(read()), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(content(), old); // reading changes nothing
        QVERIFY(merge(hasNews ? numbered(1) : Commands()));
        QCOMPARE(read().size(), hasNews ? 3 : 2);
        QCOMPARE(read().at(1).tip, QStringLiteral("An arc"));
        for (const char *suffix : {"", ".bak"})
            QVERIFY2(!content(QLatin1String(suffix)).contains("secret"), suffix);
    }
}

// Otherwise the file could grow larger than what is read.
void CatalogueFileTest::iconsGoBeforeCommands()
{
    Commands many;
    for (int i = 0; i < 2000; ++i)
        many.append(command(QStringLiteral("many%1").arg(i), QStringLiteral("Many"),
                            QByteArray(CatalogueFile::kMaximalIcon, 'p')));
    QVERIFY(merge(many));
    QVERIFY(QFileInfo(m_path).size() <= CatalogueFile::kMaximalSize);
    const Commands known = read();
    QCOMPARE(known.size(), many.size());
    QCOMPARE(known.last().caption, QStringLiteral("Many"));
    QCOMPARE(known.last().icon, QByteArray());
}

void CatalogueFileTest::twoCopiesMerge()
{
    CatalogueFile first(m_path);
    CatalogueFile second(m_path);
    QCOMPARE(first.read(), Commands());
    QCOMPARE(second.read(), Commands());
    QVERIFY(first.merge({command(QStringLiteral("a")), command(QStringLiteral("b"))}));
    QVERIFY(second.merge(
        {command(QStringLiteral("b"), QStringLiteral("Later")), command(QStringLiteral("c"))}));
    const Commands expected{command(QStringLiteral("a")),
                            command(QStringLiteral("b"), QStringLiteral("Later")),
                            command(QStringLiteral("c"))};
    QCOMPARE(first.read(), expected);
    QCOMPARE(second.read(), expected);
}

void CatalogueFileTest::aFileHeldByAnotherIsLeftForLater()
{
    QVERIFY(merge(numbered(2)));
    QLockFile other(m_path + QStringLiteral(".lock"));
    QVERIFY(other.tryLock());
    tests::StandardErrorCapture errors;
    CatalogueFile file(m_path);
    QVERIFY(!file.merge(numbered(3)));
    QCOMPARE(file.read(), numbered(2)); // reading needs no lock
    other.unlock();
    QVERIFY(file.merge(numbered(3)));
    QCOMPARE(file.read(), numbered(3));
    QCOMPARE(errors.lines(), QStringList());
}

void CatalogueFileTest::aFileCutOffAnywhereLosesNothing()
{
    const Commands commands = numbered(2);
    QVERIFY(merge({command(QStringLiteral("first"))}));
    QVERIFY(merge(commands)); // the copy has only the first
    const QByteArray whole = content();
    const QByteArray copy = content(QStringLiteral(".bak"));
    QVERIFY(whole.size() > copy.size());
    // A file without its last line end is whole.
    for (int length = 0; length < whole.size() - 1; ++length) {
        write(whole.left(length));
        tests::StandardErrorCapture errors;
        CatalogueFile file(m_path);
        QCOMPARE(identifiers(file.read()), QStringList(QStringLiteral("first")));
        QCOMPARE(file.read().size(), 1);
        const QStringList lines = errors.lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(m_path), qPrintable(lines.first()));
        QVERIFY2(lines.first().contains(QStringLiteral("damaged")), qPrintable(lines.first()));
        QCOMPARE(content(), whole.left(length)); // reading changes nothing
        QCOMPARE(content(QStringLiteral(".bak")), copy);
    }
}

void CatalogueFileTest::aDamagedFileIsReplacedByItsCopyAndWhatIsNew_data()
{
    QTest::addColumn<QByteArray>("damaged");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeroed") << QByteArray(1000, '\0');
    QTest::newRow("no JSON") << QByteArray("[Commands]\na=b\n");
    QTest::newRow("not UTF-8") << QByteArray("{\"version\": 1, \"commands\": [\"\xff\xfe\"]}");
    QTest::newRow("deep") << QByteArray(5000, '[');
}

void CatalogueFileTest::aDamagedFileIsReplacedByItsCopyAndWhatIsNew()
{
    QFETCH(QByteArray, damaged);
    QVERIFY(merge(numbered(2)));
    QVERIFY(merge({command(QStringLiteral("lost"))}));
    const QByteArray copy = content(QStringLiteral(".bak"));
    write(damaged);
    tests::StandardErrorCapture errors;
    CatalogueFile file(m_path);
    QCOMPARE(file.read(), numbered(2));
    QVERIFY(file.merge({command(QStringLiteral("new"))}));
    QCOMPARE(file.read(), numbered(2) + Commands{command(QStringLiteral("new"))});
    QCOMPARE(content(QStringLiteral(".damaged")), damaged);
    QCOMPARE(content(QStringLiteral(".bak")), copy); // still the last good one
    QCOMPARE(errors.lines().size(), 1);

    // The file is restored even if nothing is new.
    write(damaged);
    QVERIFY(file.merge({}));
    QCOMPARE(file.read(), numbered(2));
    QCOMPARE(errors.lines().size(), 1);
}

void CatalogueFileTest::damageWithoutACopyIsSaid()
{
    write("{\"version\": 1, \"comm");
    tests::StandardErrorCapture errors;
    CatalogueFile file(m_path);
    QCOMPARE(file.read(), Commands());
    QVERIFY(file.merge(numbered(1)));
    QCOMPARE(file.read(), numbered(1));
    QCOMPARE(content(QStringLiteral(".damaged")), QByteArray("{\"version\": 1, \"comm"));
    const QStringList lines = errors.lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(QStringLiteral("no good copy")), qPrintable(lines.first()));
}

void CatalogueFileTest::badEntriesAreLeftOut()
{
    write(R"({"version": 1, "more": {}, "commands": [
        null, 5, "text", [], {}, {"identifier": ""}, {"identifier": 7},
        {"identifier": "a", "caption": 3, "tip": [], "icon": {}, "later": true},
        {"identifier": "a", "caption": "again"},
        {"identifier": "b", "icon": "cGljdHVyZQ=="}]})");
    tests::StandardErrorCapture errors;
    QCOMPARE(read(), (Commands{{QStringLiteral("a"), {}, {}, {}, {}, {}},
                               {QStringLiteral("b"), {}, {}, {}, {}, "picture"}}));
    QCOMPARE(errors.lines(), QStringList());
}

void CatalogueFileTest::whatIsNotOursIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("line");
    const QString foreign = QStringLiteral("is not a list of commands");
    QTest::newRow("later version") << QByteArray(R"({"version": 2, "commands": 7})")
                                   << QStringLiteral("is of a later version (2)");
    QTest::newRow("other object") << QByteArray(R"({"name": "something", "commands": []})") << foreign;
    QTest::newRow("other array") << QByteArray("[1, 2, 3]") << foreign;
    QTest::newRow("without commands") << QByteArray(R"({"version": 1})") << foreign;
    QTest::newRow("version as text") << QByteArray(R"({"version": "1", "commands": []})") << foreign;
    QTest::newRow("version below") << QByteArray(R"({"version": 0, "commands": []})") << foreign;
    QTest::newRow("huge") << QByteArray(CatalogueFile::kMaximalSize + 1, ' ')
                          << QStringLiteral("is too large");
}

void CatalogueFileTest::whatIsNotOursIsLeftAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, line);
    write(text);
    tests::StandardErrorCapture errors;
    CatalogueFile file(m_path);
    QCOMPARE(file.read(), Commands());
    QVERIFY(!file.merge(numbered(1)));
    QVERIFY(!file.merge(numbered(2)));
    QVERIFY(content() == text);
    QCOMPARE(content(QStringLiteral(".bak")), QByteArray("<no file>"));
    const QStringList lines = errors.lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(m_path) && lines.first().contains(line), qPrintable(lines.first()));
}

void CatalogueFileTest::whatCannotBeReadIsLeftAlone()
{
    QVERIFY(QDir().mkpath(m_path));
    {
        tests::StandardErrorCapture errors;
        CatalogueFile folder(m_path);
        QCOMPARE(folder.read(), Commands());
        QVERIFY(!folder.merge(numbered(1)));
        QVERIFY(QFileInfo(m_path).isDir());
        QCOMPARE(errors.lines().size(), 1);
    }
    QVERIFY(QDir().rmdir(m_path));
    QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    {
        tests::StandardErrorCapture errors;
        CatalogueFile pipe(m_path);
        QCOMPARE(pipe.read(), Commands());
        QVERIFY(!pipe.merge(numbered(1)));
        QCOMPARE(errors.lines().size(), 1);
    }
    QVERIFY(QFile::remove(m_path));

    // A file that this user may not read. Root may read any file, so the child runs without that
    // privilege.
    QVERIFY(merge(numbered(1)));
    QVERIFY(QFile::setPermissions(m_path, QFile::WriteOwner));
    QStringList arguments{QCoreApplication::applicationFilePath(), QStringLiteral("child-merge"),
                          m_path};
    if (::getuid() == 0)
        arguments =
            QStringList{QStringLiteral("setpriv"), QStringLiteral("--bounding-set"),
                        QStringLiteral("-dac_override,-dac_read_search"), QStringLiteral("--inh-caps"),
                        QStringLiteral("-dac_override,-dac_read_search")}
            + arguments;
    QProcess self;
    self.start(arguments.first(), arguments.mid(1));
    QVERIFY(self.waitForFinished());
    QCOMPARE(self.readAllStandardOutput(), QByteArray("read 0, merged 0\n"));
    const QByteArray said = self.readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.contains("cannot be read"), said.constData());
    QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(read(), numbered(1));
}

void CatalogueFileTest::aFolderThatCannotBeWrittenIsSaidOnce()
{
    tests::StandardErrorCapture errors;
    CatalogueFile file(QStringLiteral("/proc/gesturewidget/drafter.commands.json"));
    QCOMPARE(file.read(), Commands());
    QVERIFY(!file.merge(numbered(1)));
    QVERIFY(!file.merge(numbered(2)));
    const QStringList lines = errors.lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(QStringLiteral("cannot be written")), qPrintable(lines.first()));
}

// As on a full disk: the child cannot write a byte to any file for a while, then too few bytes.
void CatalogueFileTest::aFullDiskKeepsTheOldFile()
{
    QVERIFY(merge(numbered(3)));
    const QByteArray before = content();
    QProcess self;
    self.start(QCoreApplication::applicationFilePath(), {QStringLiteral("child-full"), m_path});
    QVERIFY(self.waitForFinished());
    QCOMPARE(QString::fromUtf8(self.readAllStandardOutput()),
             QStringLiteral("full 0 of 3\nnearly full 0 of 3\nafter 1 of 4\n"));
    const QByteArray said = self.readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.contains("cannot be written"), said.constData());
    QCOMPARE(read().size(), 4);
    QCOMPARE(content(QStringLiteral(".bak")), before);
    // The attempts leave nothing behind.
    const QDir folder(QFileInfo(m_path).absolutePath());
    QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void CatalogueFileTest::manyWritersLoseNothing()
{
    constexpr int kWriters = 4;
    constexpr int kRounds = 15;
    std::vector<std::unique_ptr<QProcess>> writers;
    for (int i = 0; i < kWriters; ++i) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("child-write"), m_path, QString::number(i), QString::number(kRounds)});
    }
    // A reader finds the file whole at any time.
    tests::StandardErrorCapture errors;
    for (const auto &writer : writers) {
        while (!writer->waitForFinished(1) && writer->state() != QProcess::NotRunning)
            static_cast<void>(read());
        QCOMPARE(writer->exitCode(), 0);
        QCOMPARE(writer->readAllStandardError(), QByteArray());
    }
    QCOMPARE(errors.lines(), QStringList());
    QStringList expected;
    for (int i = 0; i < kWriters; ++i) {
        for (int round = 0; round < kRounds; ++round)
            expected.append(QStringLiteral("w%1c%2").arg(i).arg(round));
    }
    QStringList known = identifiers(read());
    std::sort(known.begin(), known.end()); // each writer kept its own order
    std::sort(expected.begin(), expected.end());
    QCOMPARE(known, expected);
}

void CatalogueFileTest::aWriterThatIsKilledLeavesAWholeFile()
{
    QVERIFY(merge(numbered(50)));
    for (int round = 0; round < 15; ++round) {
        QProcess writer;
        writer.start(
            QCoreApplication::applicationFilePath(),
            {QStringLiteral("child-write"), m_path, QString::number(round), QStringLiteral("1000000")});
        QVERIFY(writer.waitForStarted());
        const int known = int(read().size());
        QTRY_VERIFY(read().size() > known + round); // the writer is busy
        writer.kill();
        QVERIFY(writer.waitForFinished());
        tests::StandardErrorCapture errors;
        CatalogueFile file(m_path);
        QCOMPARE(file.read().mid(0, 50), numbered(50));
        // The kernel has freed its lock.
        QVERIFY(file.merge({command(QStringLiteral("after%1").arg(round))}));
        QCOMPARE(errors.lines(), QStringList());
    }
}

namespace {

// The tests start this program again with these arguments.
int runChild(const QStringList &arguments)
{
    const QString &path = arguments.at(2);
    CatalogueFile file(path);
    if (arguments.at(1) == QLatin1String("child-merge")) {
        const int count = int(file.read().size());
        std::printf("read %d, merged %d\n", count, file.merge(numbered(2)));
        return 0;
    }
    if (arguments.at(1) == QLatin1String("child-write")) {
        const int count = arguments.at(4).toInt();
        for (int i = 0; i < count; ++i) {
            const QString identifier = QStringLiteral("w%1c%2").arg(arguments.at(3)).arg(i);
            int attempts = 0;
            while (!file.merge({command(identifier)})) {
                if (++attempts == 100)
                    return 1;
            }
        }
        return 0;
    }
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const auto attempt = [&](const char *name, rlim_t bytes) {
        const rlimit some{bytes, limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &some);
        const bool isMerged = file.merge(numbered(4));
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::printf("%s %d of %d\n", name, isMerged, int(CatalogueFile(path).read().size()));
    };
    attempt("full", 0);
    attempt("nearly full", 1000);
    attempt("after", limit.rlim_cur);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1).startsWith(QLatin1String("child-")))
        return runChild(app.arguments());
    CatalogueFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_cataloguefile.moc"
