// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The commands that a program has shown: listing them, and finding one by what a person types.

#include "launcher/settings/KnownCommands.h"

#include "tests/support/FatalWarnings.h"
#include "tests/support/FolderTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using launcher::KnownCommands;
using launcher::Outcome;
using tests::text;

namespace {

const QString kProgram = QStringLiteral("drafter");

KnownCommands shown()
{
    return KnownCommands({{text("ID_LINE"), text("drawLine"), text("Line"), {}, text("Draw"), {}, false},
                          {text("drawArc"), text("drawArc"), text("Arc..."), text("Draws an arc"),
                           text("Draw"), "png", false},
                          {text("File/Export/Picture..."),
                           {},
                           text("Picture..."),
                           {},
                           text("File"),
                           {},
                           false,
                           {text("Export")}},
                          {text("viewGrid"), {}, text("Grid"), {}, text("View"), {}, false},
                          {text("snapGrid"), {}, text("Grid"), {}, text("Snap"), {}, true},
                          {text("odd"), {}, {}, {}, {}, {}, false},
                          {text("Save"), {}, text("Save"), {}, text("Main"), {}, true},
                          {text("fileSave"), {}, text("Save..."), {}, text("File"), {}, false}},
                         {text("ID_TRIM"), text("ID_LINE")});
}

} // namespace

class KnownCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void resolves_data();
    void resolves();
    void nothingShownYet();
    void captions();
    void list();
    void aLongIdentifierMovesNoOther();
    void commandsWithoutAMenu();
    void listAsJson();
};

void KnownCommandsTest::resolves_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("identifier"); // empty when it is refused
    QTest::addColumn<QString>("says");
    const auto row = [](const char *given, const char *identifier, const char *says = "") {
        QTest::newRow(given) << text(given) << text(identifier) << text(says);
    };
    row("ID_LINE", "ID_LINE");
    row("drawLine", "ID_LINE"); // the action's own name
    row("Line", "ID_LINE");
    row(" lINE ", "ID_LINE");
    row("Arc", "drawArc");
    row("arc...", "drawArc");
    row("File/Export/Picture...", "File/Export/Picture...");
    row("picture", "File/Export/Picture...");
    row("export > picture", "File/Export/Picture...");
    row("File/Export/picture", "File/Export/Picture...");
    row("file > export > picture", "File/Export/Picture...");
    row("File/Picture", "File/Export/Picture...");
    row("viewGrid", "viewGrid");
    row("ID_TRIM", "ID_TRIM"); // well known, though not shown
    row("odd", "odd");
    row("Grid", "",
        "several commands are called \"Grid\": viewGrid (View > Grid), snapGrid (Snap > Grid)");
    row("view/grid", "viewGrid");
    row("Snap/Grid", "snapGrid");
    // The identifier of an action in a toolbar is the caption of an action in a menu.
    row("Save", "", "several commands are called \"Save\": fileSave (File > Save), Save (Main > Save)");
    row("file/save", "fileSave");
    row("Main/Save", "Save");
    row("fileSave", "fileSave");
    row("Circle", "",
        "drafter has never shown a command \"Circle\"; mouse-gestures --list-commands drafter says "
        "which it has");
    row("id_trim", "", "never shown");
    row("...", "", "never shown");
    row(" ", "", "never shown");
}

void KnownCommandsTest::resolves()
{
    QFETCH(QString, given);
    QFETCH(QString, identifier);
    QFETCH(QString, says);
    QString found;
    const QString complaint = shown().resolve(given, kProgram, found);
    QCOMPARE(complaint.isEmpty(), says.isEmpty());
    QVERIFY2(says.isEmpty() || complaint.contains(says), qPrintable(complaint));
    QVERIFY(!complaint.contains(QLatin1Char('\n')));
    if (says.isEmpty())
        QCOMPARE(found, identifier);
}

void KnownCommandsTest::nothingShownYet()
{
    const KnownCommands nothing({}, {text("ID_LINE")});
    for (const char *given : {"ID_LINE", "anything", "Any Thing..."}) {
        QString found;
        QCOMPARE(nothing.resolve(text(given), kProgram, found), QString());
        QCOMPARE(found, text(given));
    }
    const QString says = text("no command of drafter is known yet; start it once with "
                              "\"mouse-gestures drafter\"");
    QCOMPARE(nothing.list(kProgram).complaint, says);
    QCOMPARE(nothing.listAsJson(kProgram).complaint, says);
}

void KnownCommandsTest::captions()
{
    QCOMPARE(shown().captionOf(text("drawArc")), text("Arc"));
    QCOMPARE(shown().captionOf(text("ID_TRIM")), QString());
    QCOMPARE(shown().captionOf(text("odd")), QString());
    QCOMPARE(shown().captionOf(QString()), QString());
}

void KnownCommandsTest::list()
{
    const Outcome outcome = shown().list(kProgram);
    QCOMPARE(outcome.output, QByteArray("Draw\n"
                                        "  ID_LINE                 Line\n"
                                        "  drawArc                 Arc\n"
                                        "File\n"
                                        "  File/Export/Picture...  Export > Picture\n"
                                        "  fileSave                File > Save\n"
                                        "Others\n"
                                        "  viewGrid                View > Grid\n"
                                        "  snapGrid                Snap > Grid\n"
                                        "  odd\n"
                                        "  Save                    Main > Save\n"));
}

void KnownCommandsTest::aLongIdentifierMovesNoOther()
{
    const QString longest = text("anIdentifier").repeated(4);
    const KnownCommands known({{text("one"), {}, text("One"), {}, text("Draw"), {}, false},
                               {longest, {}, text("Two"), {}, text("Draw"), {}, false}},
                              {});
    QCOMPARE(known.list(kProgram).output, "Draw\n  one  One\n  " + longest.toLatin1() + "  Two\n");
}

void KnownCommandsTest::commandsWithoutAMenu()
{
    const KnownCommands known({{text("one"), {}, text("Same"), {}, {}, {}, true},
                               {text("two"), {}, text("Same"), {}, {}, {}, false}},
                              {});
    QString found;
    QCOMPARE(known.resolve(text("same"), kProgram, found),
             text("several commands are called \"same\": two, one"));
}

void KnownCommandsTest::listAsJson()
{
    const QJsonObject list = QJsonDocument::fromJson(shown().listAsJson(kProgram).output).object();
    QCOMPARE(list.value(text("version")), QJsonValue(1));
    QCOMPARE(list.value(text("program")), QJsonValue(kProgram));
    const QJsonArray commands = list.value(text("commands")).toArray();
    QCOMPARE(commands.size(), 8);
    const QJsonObject arc{{text("identifier"), text("drawArc")}, {text("name"), text("Arc")},
                          {text("caption"), text("Arc...")},     {text("tip"), text("Draws an arc")},
                          {text("category"), text("Draw")},      {text("toolbar"), false}};
    QCOMPARE(commands.at(1).toObject(), arc);
    QCOMPARE(commands.at(4).toObject().value(text("toolbar")), QJsonValue(true));
}

QTEST_GUILESS_MAIN(KnownCommandsTest)
#include "tst_knowncommands.moc"
