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
    for (const bool isEmpty : {false, true}) {
        if (isEmpty) {
            profile = ProgramProfile();
            profile.program = QStringLiteral("drafter");
        }
        write("drafter.json", QJsonDocument(profile.toJson()).toJson());
        QString message;
        const ProgramProfile again = read(&message);
        QCOMPARE(message, QString());
        QCOMPARE(again.toJson(), profile.toJson());
        QCOMPARE(again.viewClasses, profile.viewClasses);
        QCOMPARE(again.triggerButton, profile.triggerButton);
        QCOMPARE(again.triggerModifiers, profile.triggerModifiers);
        QCOMPARE(again.wellKnownCommands, profile.wellKnownCommands);
        QCOMPARE(again.toolsMenu, profile.toolsMenu);
        QCOMPARE(again.commandLineClass, profile.commandLineClass);
        QCOMPARE(again.taskActions, profile.taskActions);
        QCOMPARE(again.isTaskOfView, profile.isTaskOfView);
        QCOMPARE(again.taskBindings, profile.taskBindings);
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
    store("program.json", R"({"version": 1, "program": "program", "trigger": {"button": "right"},
        "triggerBySetting": {"file": "space.cfg", "before": "<Style>", "behind": "<",
                             "triggers": {"Space": "ctrl+right"}}})");
    QString message;
    const ProgramProfile profile =
        ProgramProfile::forProgram(QStringLiteral("program"), {folder.path()}, &message);
    qunsetenv("XDG_CONFIG_HOME");
    QCOMPARE(message, QString());
    QCOMPARE(gesturewidget::triggerText(profile.triggerButton, profile.triggerModifiers), trigger);
    QVERIFY(profile.hasTrigger);
}

void ProgramProfileTest::brokenProfileIsNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("wrong");
    const auto row = [](const char *name, const char *members, const char *wrong) {
        QTest::newRow(name) << QByteArray(R"({"version": 1, "program": "drafter", )") + members + "}"
                            << QString::fromLatin1(wrong);
    };
    QTest::newRow("empty") << QByteArray() << QStringLiteral("at byte 0");
    QTest::newRow("cut off") << QByteArray(R"({"version": 1, "pro)") << QStringLiteral("at byte");
    QTest::newRow("zeroed") << QByteArray(100, '\0') << QStringLiteral("at byte");
    QTest::newRow("a list") << QByteArray("[]") << QStringLiteral("it is not an object");
    QTest::newRow("no version") << QByteArray(R"({"program": "drafter"})")
                                << QStringLiteral("\"version\" is missing");
    QTest::newRow("version as text") << QByteArray(R"({"version": "1", "program": "drafter"})")
                                     << QStringLiteral("\"version\" is missing or not a number");
    QTest::newRow("later version") << QByteArray(R"({"version": 2, "program": "drafter"})")
                                   << QStringLiteral("version 2 is not known");
    QTest::newRow("other program") << QByteArray(R"({"version": 1, "program": "painter"})")
                                   << QStringLiteral("\"program\" is \"painter\", not \"drafter\"");
    QTest::newRow("no program") << QByteArray(R"({"version": 1})") << QStringLiteral("\"program\" is");
    QTest::newRow("too long") << QByteArray(2 * 1024 * 1024, ' ') << QStringLiteral("it is too long");
    row("unknown key", R"("viewClass": "Canvas")", "unknown key \"viewClass\"");
    row("views as text", R"("viewClasses": "Canvas")", "\"viewClasses\" is not a list");
    row("view as number", R"("viewClasses": [1])", "\"viewClasses\" holds something");
    row("empty view", R"("viewClasses": [""])", "\"viewClasses\" holds something");
    row("trigger as text", R"("trigger": "right")", "\"trigger\" is not an object");
    row("no such button", R"("trigger": {"button": "third"})",
        "\"trigger.button\" names no mouse button");
    row("button as number", R"("trigger": {"button": 2})", "\"trigger.button\" is not a string");
    row("empty button", R"("trigger": {"button": ""})", "\"trigger.button\" names no mouse button");
    row("no such key", R"("trigger": {"modifiers": ["hyper"]})", "\"trigger.modifiers\" names no key");
    row("unknown in trigger", R"("trigger": {"key": "x"})", "unknown key \"trigger.key\"");
    row("commands as list", R"("wellKnownCommands": [])", "\"wellKnownCommands\" is not an object");
    row("command as number", R"("wellKnownCommands": {"ID_LINE": 1})", "\"wellKnownCommands.ID_LINE\"");
    row("empty command", R"("wellKnownCommands": {"ID_LINE": ""})", "\"wellKnownCommands.ID_LINE\"");
    row("no command", R"("wellKnownCommands": {"ID_LINE": []})", "\"wellKnownCommands.ID_LINE\"");
    row("empty among commands", R"("wellKnownCommands": {"ID_LINE": ["a", ""]})",
        "\"wellKnownCommands.ID_LINE\"");
    row("number among commands", R"("wellKnownCommands": {"ID_LINE": ["a", 1]})",
        "\"wellKnownCommands.ID_LINE\"");
    row("tasks as text", R"("tasks": "workbench")", "\"tasks\" is not an object");
    row("unknown in tasks", R"("tasks": {"group": "x"})", "unknown key \"tasks.group\"");
    row("two ways", R"("tasks": {"checkedActionBeside": "x", "classOfView": true})", "two ways");
    row("class as text", R"("tasks": {"classOfView": "yes"})",
        "\"tasks.classOfView\" is neither true nor false");
    row("ring as text", R"("tasks": {"firstBindings": {"a": "b"}})",
        "\"tasks.firstBindings.a\" is not an object");
    row("no direction", R"("tasks": {"firstBindings": {"a": {"45": "b"}}})",
        "\"tasks.firstBindings.a.45\" is no direction");
    row("command of a ring as number", R"("tasks": {"firstBindings": {"a": {"44": 1}}})",
        "\"tasks.firstBindings.a.44\" is not a string");
    row("neither true nor false", R"("changesMenus": 1)", "\"changesMenus\" is neither true nor false");
    row("a setting without a place", R"("triggerBySetting": {"file": "a.cfg"})",
        "\"triggerBySetting\" needs a file");
    row("a setting of another folder",
        R"("triggerBySetting": {"file": "/a.cfg", "before": "a", "behind": "b"})",
        "\"triggerBySetting\" needs a file");
    row("a setting that means no trigger",
        R"("triggerBySetting": {"file": "a", "before": "a", "behind": "b", "triggers": {"x": "left"}})",
        "\"triggerBySetting.triggers.x\" names no trigger");
    row("a used drag that is none", R"("usedTriggers": ["middle", "wheel"])",
        "\"usedTriggers\" names no trigger: \"wheel\"");
    row("used drags as text", R"("usedTriggers": "middle")", "\"usedTriggers\" is not a list");
    row("reasons as text", R"("why": "because")", "\"why\" is not an object");
    row("menu as list", R"("toolsMenu": [])", "\"toolsMenu\" is not a string");
    row("class as null", R"("commandLineClass": null)", "\"commandLineClass\" is not a string");
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
        // A profile may be there for the trigger only, and the rest is guessed.
        QCOMPARE(profile.viewClasses.isEmpty(), profile.wellKnownCommands.isEmpty());
        const QStringList identifiers = profile.wellKnownCommands.keys();
        for (const QString &identifier : identifiers)
            QVERIFY2(known.contains(identifier), qPrintable(file + identifier));
    }
}

QTEST_GUILESS_MAIN(ProgramProfileTest)
#include "tst_programprofile.moc"
