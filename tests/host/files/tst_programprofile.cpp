// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/ProgramProfile.h"

#include "host/files/TriggerText.h"
#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <sys/stat.h>

using gesturewidget::ProgramProfile;

namespace {

bool isDefault(const ProgramProfile &profile)
{
    return profile.viewClasses.isEmpty() && profile.triggerButton == Qt::RightButton
        && profile.triggerModifiers == Qt::NoModifier && profile.wellKnownCommands.isEmpty()
        && profile.toolsMenu.isEmpty() && profile.commandLineClass.isEmpty();
}

// A profile of the program "drafter", and what is wrong with it; empty if nothing is.
struct Case
{
    QString name;
    QByteArray text;
    QString says;
};

QList<Case> cases()
{
    QFile file(QStringLiteral(TESTS_SOURCE_DIR "/host/files/fixtures/profile-cases.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    QList<Case> list;
    const QJsonArray array = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue &value : array) {
        const auto member = [&value](const char *key) {
            return value.toObject().value(QLatin1String(key)).toString();
        };
        const QByteArray text = member("text").isEmpty() ? R"({"version": 1, "program": "drafter", )"
                                                               + member("members").toUtf8() + "}"
                                                         : member("text").toUtf8();
        list.append({member("name"), text, member("says")});
    }
    if (list.size() < 50)
        qFatal("too few profiles in %s", qPrintable(file.fileName()));
    return list;
}

} // namespace

class ProgramProfileTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingFileGivesDefaultsQuietly();
    void readsEverything();
    void mayBeBuiltIntoTheProgram();
    void isWrittenAsItIsRead();
    void namesOfButtonsAndKeys_data();
    void namesOfButtonsAndKeys();
    void soundProfileIsRead_data();
    void soundProfileIsRead();
    void whatIsLeftOutIsDefault();
    void firstFolderWithAProfileCounts();
    void theTriggerMayFollowASetting_data();
    void theTriggerMayFollowASetting();
    void brokenProfileIsNamed_data();
    void brokenProfileIsNamed();
    void aBrokenProfileIsNotReplacedByALaterOne();
    void whatIsNoFileIsNotOpened();
    void namesThatLeaveTheFolderFindNothing_data();
    void namesThatLeaveTheFolderFindNothing();
    void messageMayBeNull();
    void everyShippedProfileIsSound();
    void theGuidesExamplesAreSound();

private:
    ProgramProfile read(QString *message = nullptr) const
    {
        return ProgramProfile::forProgram(QStringLiteral("drafter"), {m_folder->path()}, message);
    }
};

void ProgramProfileTest::missingFileGivesDefaultsQuietly()
{
    QString message = QStringLiteral("left over");
    const ProgramProfile profile = ProgramProfile::forProgram(
        QStringLiteral("drafter"), {m_folder->path(), place(QStringLiteral("none")), {}}, &message);
    QCOMPARE(profile.program, QStringLiteral("drafter"));
    QVERIFY(isDefault(profile));
    QCOMPARE(message, QString());
}

void ProgramProfileTest::mayBeBuiltIntoTheProgram()
{
    QString message;
    const ProgramProfile profile = ProgramProfile::forProgram(
        QStringLiteral("builtin"), {QStringLiteral(":/none"), QStringLiteral(":/profiles")}, &message);
    QCOMPARE(message, QString());
    QCOMPARE(profile.viewClasses, QStringList(QStringLiteral("Canvas")));
}

void ProgramProfileTest::readsEverything()
{
    write("drafter.json", R"({
        "version": 1, "program": "drafter", "viewClasses": ["Canvas", "ns::View"],
        "trigger": { "button": "middle", "modifiers": ["control", "shift"] },
        "wellKnownCommands": { "ID_LINE": "drawLine", "ID_OPEN": ["File/Open...", "fileOpen"] },
        "toolsMenu": "extras", "commandLineClass": "CommandEdit",
        "usedTriggers": ["middle", "Shift+control+left"],
        "why": { "viewClasses": { "Canvas": "it is the largest" } } })");
    QString message;
    const ProgramProfile profile = read(&message);
    QCOMPARE(message, QString());
    QCOMPARE(profile.program, QStringLiteral("drafter"));
    QCOMPARE(profile.viewClasses, QStringList({QStringLiteral("Canvas"), QStringLiteral("ns::View")}));
    QCOMPARE(profile.triggerButton, Qt::MiddleButton);
    QCOMPARE(profile.triggerModifiers, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(profile.wellKnownCommands.size(), 2);
    QCOMPARE(profile.wellKnownCommands.value(QStringLiteral("ID_LINE")),
             QStringList(QStringLiteral("drawLine")));
    QCOMPARE(profile.wellKnownCommands.value(QStringLiteral("ID_OPEN")),
             QStringList({QStringLiteral("File/Open..."), QStringLiteral("fileOpen")}));
    QCOMPARE(profile.toolsMenu, QStringLiteral("extras"));
    QCOMPARE(profile.commandLineClass, QStringLiteral("CommandEdit"));
    QCOMPARE(profile.usedTriggers,
             QStringList({QStringLiteral("middle"), QStringLiteral("ctrl+shift+left")}));
}

void ProgramProfileTest::isWrittenAsItIsRead()
{
    ProgramProfile profile;
    profile.program = QStringLiteral("drafter");
    profile.viewClasses = QStringList{QStringLiteral("Canvas"), QStringLiteral("ns::View")};
    profile.triggerButton = Qt::ForwardButton;
    profile.triggerModifiers = Qt::ControlModifier | Qt::MetaModifier;
    profile.wellKnownCommands.insert(QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")});
    profile.wellKnownCommands.insert(QStringLiteral("ID_OPEN"),
                                     {QStringLiteral("File/Open..."), QStringLiteral("fileOpen")});
    profile.toolsMenu = QStringLiteral("extras");
    profile.commandLineClass = QStringLiteral("CommandEdit");
    profile.usedTriggers = QStringList{QStringLiteral("middle"), QStringLiteral("left")};
    profile.taskActions = QStringList{QStringLiteral("SketchBench"), QStringLiteral("PartBench")};
    profile.taskBindings[QStringLiteral("SketchBench")].insert(QStringLiteral("87"),
                                                               QStringLiteral("ID_LINE"));
    profile.taskPrefixes.insert(QStringLiteral("SketchBench"), QStringLiteral("Sketch_"));
    profile.changesMenus = true;
    ProgramProfile byView = profile;
    byView.taskActions.clear();
    byView.isTaskOfView = true;
    ProgramProfile empty;
    empty.program = QStringLiteral("drafter");
    for (const ProgramProfile &one : {profile, byView, empty}) {
        write("drafter.json", QJsonDocument(one.toJson()).toJson());
        QString message;
        const ProgramProfile again = read(&message);
        QCOMPARE(message, QString());
        QCOMPARE(again.toJson(), one.toJson());
        QCOMPARE(again.viewClasses, one.viewClasses);
        QCOMPARE(again.triggerButton, one.triggerButton);
        QCOMPARE(again.triggerModifiers, one.triggerModifiers);
        QCOMPARE(again.wellKnownCommands, one.wellKnownCommands);
        QCOMPARE(again.toolsMenu, one.toolsMenu);
        QCOMPARE(again.commandLineClass, one.commandLineClass);
        QCOMPARE(again.taskActions, one.taskActions);
        QCOMPARE(again.isTaskOfView, one.isTaskOfView);
        QCOMPARE(again.taskBindings, one.taskBindings);
        QCOMPARE(again.taskPrefixes, one.taskPrefixes);
        QCOMPARE(again.changesMenus, one.changesMenus);
    }
}

void ProgramProfileTest::namesOfButtonsAndKeys_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("key");
    QStringList keys = gesturewidget::modifierNames();
    keys.append({QStringLiteral("control"), QStringLiteral("Ctrl"), QStringLiteral("SHIFT")});
    const QStringList buttons = gesturewidget::buttonNames();
    for (const QString &button : buttons) {
        for (const QString &key : std::as_const(keys))
            QTest::newRow(qPrintable(key + QLatin1Char('+') + button)) << button << key;
    }
}

// A profile takes every trigger that a person may type.
void ProgramProfileTest::namesOfButtonsAndKeys()
{
    QFETCH(QString, button);
    QFETCH(QString, key);
    write("drafter.json", QStringLiteral(R"({"version": 1, "program": "drafter",
        "trigger": {"button": "%1", "modifiers": ["%2"]}})")
                              .arg(button, key)
                              .toUtf8());
    QString message;
    const ProgramProfile profile = read(&message);
    QCOMPARE(message, QString());
    Qt::MouseButton expectedButton = Qt::NoButton;
    Qt::KeyboardModifiers expectedKeys = Qt::NoModifier;
    QVERIFY(gesturewidget::parseTrigger(key + QLatin1Char('+') + button, expectedButton, expectedKeys));
    QCOMPARE(profile.triggerButton, expectedButton);
    QCOMPARE(profile.triggerModifiers, expectedKeys);
    // It is always written in the same way.
    const QJsonObject trigger = profile.toJson().value(QStringLiteral("trigger")).toObject();
    QCOMPARE(trigger.value(QStringLiteral("button")).toString(), button);
    QCOMPARE(trigger.value(QStringLiteral("modifiers")).toArray().at(0).toString() + QLatin1Char('+')
                 + button,
             gesturewidget::triggerText(expectedButton, expectedKeys));
}

void ProgramProfileTest::soundProfileIsRead_data()
{
    QTest::addColumn<QByteArray>("text");
    const QList<Case> all = cases();
    for (const Case &one : all) {
        if (one.says.isEmpty())
            QTest::newRow(qPrintable(one.name)) << one.text;
    }
}

void ProgramProfileTest::soundProfileIsRead()
{
    QFETCH(QByteArray, text);
    write("drafter.json", text);
    QString message;
    QCOMPARE(read(&message).program, QStringLiteral("drafter"));
    QCOMPARE(message, QString());
}

void ProgramProfileTest::whatIsLeftOutIsDefault()
{
    write("drafter.json", R"({"version": 1, "program": "drafter"})");
    QString message;
    QVERIFY(isDefault(read(&message)));
    QCOMPARE(message, QString());
}

void ProgramProfileTest::firstFolderWithAProfileCounts()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("a")));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("b")));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("c")));
    write("b/drafter.json", R"({"version": 1, "program": "drafter", "toolsMenu": "b"})");
    write("c/drafter.json", R"({"version": 1, "program": "drafter", "toolsMenu": "c"})");
    const QStringList folders{place(QStringLiteral("a")), place(QStringLiteral("b")),
                              place(QStringLiteral("c"))};
    QString message;
    QCOMPARE(ProgramProfile::forProgram(QStringLiteral("drafter"), folders, &message).toolsMenu,
             QStringLiteral("b"));
    QCOMPARE(message, QString());
}

void ProgramProfileTest::theTriggerMayFollowASetting_data()
{
    QTest::addColumn<QByteArray>("content"); // of the program's own file
    QTest::addColumn<QString>("trigger");
    QTest::newRow("no file") << QByteArray() << QStringLiteral("right");
    QTest::newRow("no value") << QByteArray("<a/>") << QStringLiteral("right");
    QTest::newRow("another value") << QByteArray("<Style>Flat</Style>") << QStringLiteral("right");
    QTest::newRow("cut off") << QByteArray("<Style>Space") << QStringLiteral("right");
    QTest::newRow("the value") << QByteArray("<a/><Style>Space</Style>") << QStringLiteral("ctrl+right");
}

void ProgramProfileTest::theTriggerMayFollowASetting()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, trigger);
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    const auto store = [&folder](const char *name, const QByteArray &text) {
        QFile file(folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), text.size());
    };
    if (!content.isEmpty())
        store("space.cfg", content);
    const QByteArray text = R"({"version": 1, "program": "program", "trigger": {"button": "right"},
        "usedTriggers": ["middle"],
        "triggerBySetting": {"file": "space.cfg", "before": "<Style>", "behind": "<",
                             "triggers": {"Space": "ctrl+right"},
                             "usedTriggers": {"Space": ["right", "Control+Middle"], "Other": []}}})";
    store("program.json", text);
    const QJsonObject written = QJsonDocument::fromJson(text).object();
    QString message;
    const ProgramProfile profile =
        ProgramProfile::forProgram(QStringLiteral("program"), {folder.path()}, &message);
    qunsetenv("XDG_CONFIG_HOME");
    QCOMPARE(message, QString());
    QCOMPARE(gesturewidget::triggerText(profile.triggerButton, profile.triggerModifiers), trigger);
    QVERIFY(profile.hasTrigger);
    const bool isFound = trigger != QLatin1String("right");
    QCOMPARE(profile.triggerSetting, isFound ? QStringLiteral("Space") : QString());
    QCOMPARE(profile.usedTriggers,
             isFound ? QStringList({QStringLiteral("right"), QStringLiteral("ctrl+middle")})
                     : QStringList(QStringLiteral("middle")));
    // What is printed follows the setting too, whatever it is at the moment.
    const QJsonObject printed = profile.toJson();
    for (const char *key : {"trigger", "usedTriggers", "triggerBySetting"})
        QCOMPARE(printed.value(QLatin1String(key)), written.value(QLatin1String(key)));
}

// tests/docs/test_profile_schema.py judges the same files by the schema.
void ProgramProfileTest::brokenProfileIsNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("wrong");
    const QList<Case> all = cases();
    for (const Case &one : all) {
        if (!one.says.isEmpty())
            QTest::newRow(qPrintable(one.name)) << one.text << one.says;
    }
    QTest::newRow("empty") << QByteArray() << QStringLiteral("at byte 0");
    QTest::newRow("zeroed") << QByteArray(100, '\0') << QStringLiteral("at byte");
    QTest::newRow("too long") << QByteArray(2 * 1024 * 1024, ' ') << QStringLiteral("it is too long");
}

void ProgramProfileTest::brokenProfileIsNamed()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, wrong);
    write("drafter.json", text);
    QString message;
    const ProgramProfile profile = read(&message);
    QVERIFY(isDefault(profile));
    QCOMPARE(profile.program, QStringLiteral("drafter"));
    QVERIFY2(message.contains(place(QStringLiteral("drafter.json"))), qPrintable(message));
    QVERIFY2(message.contains(wrong), qPrintable(message));
    QVERIFY2(!message.contains(QLatin1Char('\n')), qPrintable(message));
}

// The installed profile must not hide a mistake in the user's own one.
void ProgramProfileTest::aBrokenProfileIsNotReplacedByALaterOne()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("a")));
    write("a/drafter.json", "{");
    write("drafter.json", R"({"version": 1, "program": "drafter", "toolsMenu": "b"})");
    QString message;
    QVERIFY(isDefault(ProgramProfile::forProgram(
        QStringLiteral("drafter"), {place(QStringLiteral("a")), m_folder->path()}, &message)));
    QVERIFY(!message.isEmpty());
}

void ProgramProfileTest::whatIsNoFileIsNotOpened()
{
    const QByteArray pipe = QFile::encodeName(place(QStringLiteral("drafter.json")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QString message;
    QVERIFY(isDefault(read(&message))); // opening a pipe would wait for its writer
    QVERIFY2(message.contains(QStringLiteral("it is not a file")), qPrintable(message));
}

void ProgramProfileTest::namesThatLeaveTheFolderFindNothing_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("empty") << QString();
    QTest::newRow("up") << QStringLiteral("../drafter");
    QTest::newRow("absolute") << QStringLiteral("/drafter");
    QTest::newRow("hidden") << QStringLiteral(".drafter");
    QTest::newRow("null") << QStringLiteral("drafter") + QChar() + QStringLiteral("x");
}

void ProgramProfileTest::namesThatLeaveTheFolderFindNothing()
{
    QFETCH(QString, program);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("a")));
    write("drafter.json", "{");
    write(".drafter.json", "{");
    QString message;
    QVERIFY(isDefault(
        ProgramProfile::forProgram(program, {place(QStringLiteral("a")), m_folder->path()}, &message)));
    QCOMPARE(message, QString());
}

void ProgramProfileTest::messageMayBeNull()
{
    write("drafter.json", "{");
    QVERIFY(isDefault(read(nullptr)));
}

void ProgramProfileTest::everyShippedProfileIsSound()
{
    const QDir folder(QStringLiteral(TESTS_SOURCE_DIR "/../host/profiles"));
    const QStringList files = folder.entryList({QStringLiteral("*.json")}, QDir::Files);
    QVERIFY(!files.isEmpty());
    const QStringList known = QStringLiteral("ID_ZOOM_BOUNDS ID_OFFSET ID_OPEN ID_COPY ID_SAVE ID_DTEXT "
                                             "ID_LINE ID_TRIM")
                                  .split(QLatin1Char(' '));
    for (const QString &file : files) {
        const QString program = file.chopped(5);
        QString message;
        const ProgramProfile profile = ProgramProfile::forProgram(program, {folder.path()}, &message);
        QVERIFY2(message.isEmpty(), qPrintable(message));
        QVERIFY2(profile.hasTrigger, qPrintable(file));
        // A profile may be there for the trigger only. It leaves a view to be guessed whose class
        // says too little.
        QVERIFY2(profile.viewClasses.isEmpty() || !profile.wellKnownCommands.isEmpty(),
                 qPrintable(file));
        QVERIFY2(!profile.viewClasses.contains(QStringLiteral("QWidget"))
                     && !profile.viewClasses.contains(QStringLiteral("QFrame")),
                 qPrintable(file));
        const QStringList identifiers = profile.wellKnownCommands.keys();
        for (const QString &identifier : identifiers)
            QVERIFY2(known.contains(identifier), qPrintable(file + identifier));
    }
}

// docs/write-a-profile.md and docs/hosting.md show them.
void ProgramProfileTest::theGuidesExamplesAreSound()
{
    const QStringList folders{QStringLiteral(TESTS_SOURCE_DIR "/../docs/examples")};
    QString message;
    const ProgramProfile ipe = ProgramProfile::forProgram(QStringLiteral("ipe"), folders, &message);
    QCOMPARE(message, QString());
    QCOMPARE(ipe.viewClasses, QStringList(QStringLiteral("ipe::Canvas")));
    const ProgramProfile plate = ProgramProfile::forProgram(QStringLiteral("plate"), folders, &message);
    QCOMPARE(message, QString());
    QCOMPARE(plate.wellKnownCommands.value(QStringLiteral("ID_LINE")),
             QStringList(QStringLiteral("plateLine")));
}

QTEST_GUILESS_MAIN(ProgramProfileTest)
#include "tst_programprofile.moc"
