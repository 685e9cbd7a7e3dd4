// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Names and tips by which a person tells commands apart.

#include "host/files/CommandNames.h"

#include "tests/support/FatalWarnings.h"

#include <QtTest>

using gesturewidget::commandNames;
using gesturewidget::fullWayOf;
using gesturewidget::namedTip;
using gesturewidget::RememberedCommand;
using gesturewidget::repeatsCaption;

namespace {

// "Draw > Line > 2 Points"; a name in brackets at the beginning is that of a toolbar.
RememberedCommand command(const char *way, const char *tip = "")
{
    QStringList captions = QString::fromUtf8(way).split(QStringLiteral(" > "));
    RememberedCommand command;
    command.identifier = QString::fromUtf8(way);
    command.caption = captions.takeLast();
    command.tip = QString::fromUtf8(tip);
    command.group = captions.isEmpty() ? command.caption : captions.takeFirst();
    command.isInToolBar = command.group.startsWith(QLatin1Char('['));
    command.group.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    command.way = captions;
    return command;
}

using Ways = std::vector<const char *>;

} // namespace

Q_DECLARE_METATYPE(Ways)

class CommandNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void names_data();
    void names();
    void namesAreDifferent();
    void tips_data();
    void tips();
    void repeating_data();
    void repeating();
    void fullWays();
    void captionsOfIdentifiers_data();
    void captionsOfIdentifiers();
    void capitalized_data();
    void capitalized();
};

void CommandNamesTest::names_data()
{
    QTest::addColumn<Ways>("ways");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char *name, const Ways &ways, const QStringList &names) {
        QTest::newRow(name) << ways << names;
    };
    const auto list = [](const char *text) { return QString::fromUtf8(text).split(QLatin1Char('|')); };
    row("none", {}, {});
    row("directly in a menu", {"Draw > Line"}, list("Line"));
    row("an entry of the menu bar", {"About"}, list("About"));
    row("in a submenu", {"Tools > Line > 2 Points"}, list("Line > 2 Points"));
    row("deeper", {"Draw > Circle > By points > Three"}, list("Circle > By points > Three"));
    row("the caption says it", {"View > Zoom > Zoom In"}, list("Zoom In"));
    row("also in the plural", {"Layer > Groups > New Group..."}, list("New Group"));
    row("it says it twice", {"View > Zoom > Zoom In", "Map > Zoom > Zoom In"},
        list("View > Zoom > Zoom In|Map > Zoom > Zoom In"));
    row("submenus tell them apart", {"Tools > Line > 2 Points", "Tools > Circle > 2 Points"},
        list("Line > 2 Points|Circle > 2 Points"));
    row("menus tell them apart", {"File > Properties...", "Edit > Properties"},
        list("File > Properties|Edit > Properties"));
    row("dots at the end", {"File > Open...", "File > Print …", "Tools > Export.... > Picture.."},
        list("Open|Print|Export > Picture"));
    row("dots that belong to the name", {"Help > Misc.", "Draw > ...", "Draw > 1...2"},
        list("Misc.|...|1...2"));
    row("the same but for the dots", {"File > Print", "File > Print..."},
        list("File > Print|File > Print (2)"));
    row("a toolbar", {"[Main] > Save", "[Main] > Save a copy"}, list("Save|Save a copy"));
    row("a toolbar and a menu", {"File > Save", "[Main] > Save"}, list("File > Save|Main > Save"));
    row("twins", {"Draw > Line", "Draw > Line"}, list("Draw > Line|Draw > Line (2)"));
    row("no caption", {"Draw > ", "Draw > "}, list("Draw|Draw (2)"));
}

void CommandNamesTest::names()
{
    QFETCH(Ways, ways);
    QFETCH(QStringList, names);
    QVector<RememberedCommand> commands;
    for (const char *way : ways)
        commands.append(command(way));
    QCOMPARE(commandNames(commands), names);
}

// No two commands have the same name, in random menus.
void CommandNamesTest::namesAreDifferent()
{
    const QStringList captions{QStringLiteral("Line"), QStringLiteral("line..."),
                               QStringLiteral("2 Points")};
    QVector<RememberedCommand> commands;
    for (const QString &group : captions) {
        for (const QString &menu : captions) {
            for (const QString &caption : captions) {
                RememberedCommand one;
                one.caption = caption;
                one.group = group;
                one.way = QStringList(menu);
                commands.append(one);
                one.way.clear();
                commands.append(one);
                one.isInToolBar = true;
                commands.append(one);
            }
        }
    }
    QStringList names = commandNames(commands);
    QCOMPARE(names.size(), commands.size());
    QCOMPARE(names.removeDuplicates(), 0);
}

void CommandNamesTest::tips_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *way, const char *tip, const char *result) {
        QTest::newRow(qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(way), QLatin1String(tip))))
            << QString::fromUtf8(way) << QString::fromUtf8(tip) << QString::fromUtf8(result);
    };
    row("Draw > Line", "", "Line");
    row("Draw > Line", "Line", "Line");
    row("Draw > Line", "Draws a line", "Draws a line");
    row("File > Open...", "Open...", "Open");
    row("File > Open...", "Open (Ctrl+O)", "Open (Ctrl+O)");
    row("File > Save", "Keeps the drawing", "Save: Keeps the drawing");
    row("Tools > Line > 2 Points", "2 Points", "Line > 2 Points");
    row("Tools > Line > 2 Points", "Draw lines", "Line > 2 Points: Draw lines");
    row("Tools > Line > 2 Points", "A line by 2 points", "A line by 2 points");
}

void CommandNamesTest::tips()
{
    QFETCH(QString, way);
    QFETCH(QString, tip);
    QFETCH(QString, result);
    const RememberedCommand one = command(way.toUtf8().constData(), tip.toUtf8().constData());
    QCOMPARE(namedTip(one, commandNames({one}).at(0)), result);
}

void CommandNamesTest::repeating_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<bool>("repeats");
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("the same") << QStringLiteral("open") << true;
    QTest::newRow("dots") << QStringLiteral("Open...") << true;
    QTest::newRow("a shortcut") << QStringLiteral("Open (Ctrl+O)") << true;
    QTest::newRow("more") << QStringLiteral("Open a drawing") << false;
    QTest::newRow("another") << QStringLiteral("Reads a file") << false;
}

void CommandNamesTest::repeating()
{
    QFETCH(QString, tip);
    QFETCH(bool, repeats);
    QCOMPARE(repeatsCaption(tip, QStringLiteral("Open…")), repeats);
}

void CommandNamesTest::fullWays()
{
    QCOMPARE(fullWayOf(command("Tools > Line > 2 Points")), QStringLiteral("Tools > Line > 2 Points"));
    QCOMPARE(fullWayOf(command("About")), QStringLiteral("About"));
}

void CommandNamesTest::captionsOfIdentifiers_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *identifier, const char *caption) {
        QTest::newRow(identifier) << QString::fromLatin1(identifier) << QString::fromLatin1(caption);
    };
    row("ID_COPY", "Copy");
    row("ID_DTEXT", "Text");
    row("ID_LINE", "Line");
    row("ID_OFFSET", "Offset");
    row("ID_OPEN", "Open");
    row("ID_SAVE", "Save");
    row("ID_TRIM", "Trim");
    row("ID_ZOOM_BOUNDS", "Zoom to Fit");
    row("ID_SOMETHING_ELSE", "Something else");
    row("ID_", "");
    row("Draw/Arcs/By centre", "By centre");
    row("fileOpen", "fileOpen");
    row("", "");
}

void CommandNamesTest::captionsOfIdentifiers()
{
    QFETCH(QString, identifier);
    QFETCH(QString, caption);
    QCOMPARE(gesturewidget::captionFrom(identifier), caption);
}

void CommandNamesTest::capitalized_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("capitalized");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("one letter") << QStringLiteral("a") << QStringLiteral("A");
    QTest::newRow("only the first") << QStringLiteral("up and left") << QStringLiteral("Up and left");
    QTest::newRow("an accent") << QStringLiteral("élan") << QStringLiteral("Élan");
    QTest::newRow("no letter") << QStringLiteral("8 directions") << QStringLiteral("8 directions");
}

void CommandNamesTest::capitalized()
{
    QFETCH(QString, text);
    QTEST(gesturewidget::capitalized(text), "capitalized");
}

QTEST_GUILESS_MAIN(CommandNamesTest)
#include "tst_commandnames.moc"
