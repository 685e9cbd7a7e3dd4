// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/captions/KnownCaptions.h"
#include "host/commands/WellKnownGuess.h"
#include "tests/host/support/Files.h"
#include "tests/support/EmbeddedLanguage.h"
#include "tests/support/FatalWarnings.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <iterator>
#include <memory>
#include <vector>

using gesturewidget::KnownCaptions;
using gesturewidget::WellKnownGuess;

class WellKnownGuessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        tests::resetWarnings();
        m_actions.clear();
    }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void theThemeHasItsIcons();
    void byOneSign_data();
    void byOneSign();
    void byNothing_data();
    void byNothing();
    void theMoreTrustedSignWins_data();
    void theMoreTrustedSignWins();
    void signsAddUp();
    void ofEqualsTheFirstWins();
    void ofEqualsTheOneInTheRightMenuWins();
    void someWordsCountInTheirMenuOnly();
    void whatASignContradictsStaysEmpty_data();
    void whatASignContradictsStaysEmpty();
    void thePlainCaptionWinsOverAPart();
    void aMenuFurtherUpSpeaksForIt();
    void sixteenMenusUpCount();
    void menusMayContainEachOther();
    void aToolbarsTitleSpeaksForIt();
    void aModeIsNoCommand();
    void aButtonIsNoFileCommandByItsCaption();
    void aShortcutInALaterMenuIsDoubtful();
    void aPartOfTheWindowHasNoFileCommands();
    void aBarInsideTheWindowIsNoPart();
    void onlyFileCommandsAreAtHomeInTheFirstMenu();
    void aDoubtfulShortcutCountsLittle();
    void aWordOfOneCharacterIsMentioned();
    void theMenuAloneSaysNothing();
    void switchesOfBarsAreNone();
    void anActionStandsForOneOnly();
    void onlyWhatIsWanted();
    void identifiersAreThoseOfTheFirstBindings();
    void everyLanguageHasEveryCommand();
    void captionsOfAllLanguages_data();
    void captionsOfAllLanguages();
    void wordsThatMeanSomethingElseElsewhere_data();
    void wordsThatMeanSomethingElseElsewhere();

private:
    QAction *add(const QString &name, const QString &caption, const QString &icon = {},
                 const QKeySequence &shortcut = {})
    {
        m_actions.push_back(std::make_unique<QAction>(caption));
        QAction *action = m_actions.back().get();
        action->setObjectName(name);
        action->setShortcut(shortcut);
        if (!icon.isEmpty())
            action->setIcon(QIcon::fromTheme(icon));
        return action;
    }
    QVector<QAction *> actions() const
    {
        QVector<QAction *> list;
        for (const auto &action : m_actions)
            list.append(action.get());
        return list;
    }

    QTemporaryDir m_themes;
    std::vector<std::unique_ptr<QAction>> m_actions;
};

// Uses the tests' own theme, so the machine's theme does not matter.
void WellKnownGuessTest::initTestCase()
{
    tests::failOnWarnings();
    const QDir folder(m_themes.path());
    QVERIFY(folder.mkpath(QStringLiteral("plain/16/actions")));
    tests::writeFile(folder.filePath(QStringLiteral("plain/index.theme")),
                     "[Icon Theme]\nName=plain\nDirectories=16/actions\n"
                     "[16/actions]\nSize=16\nContext=Actions\nType=Fixed\n");
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    for (const char *name :
         {"document-open", "document-save", "edit-copy", "zoom-fit-best", "edit-cut", "draw-line"})
        QVERIFY(image.save(
            folder.filePath(QStringLiteral("plain/16/actions/%1.png").arg(QLatin1String(name)))));
    QIcon::setThemeSearchPaths({m_themes.path()});
    QIcon::setThemeName(QStringLiteral("plain"));
}

void WellKnownGuessTest::theThemeHasItsIcons()
{
    QCOMPARE(QIcon::fromTheme(QStringLiteral("document-open")).name(), QStringLiteral("document-open"));
}

void WellKnownGuessTest::byOneSign_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QKeySequence>("shortcut");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *title, const char *name, const char *caption, const char *icon,
                        const QKeySequence &shortcut, const char *identifier, const char *reason) {
        QTest::newRow(title) << QString::fromLatin1(name) << QString::fromLatin1(caption)
                             << QString::fromLatin1(icon) << shortcut << QString::fromLatin1(identifier)
                             << QString::fromLatin1(reason);
    };
    row("shortcut open", "", "Open Image", "", QKeySequence::Open, "ID_OPEN", "shortcut \"Ctrl+O\"");
    row("shortcut save", "", "Save Map", "", QKeySequence::Save, "ID_SAVE", "shortcut \"Ctrl+S\"");
    row("shortcut copy", "", "Copy Nodes", "", QKeySequence::Copy, "ID_COPY", "shortcut \"Ctrl+C\"");
    row("icon open", "", "Open Image", "document-open", {}, "ID_OPEN", "icon \"document-open\"");
    row("icon save", "", "Save Map", "document-save", {}, "ID_SAVE", "icon \"document-save\"");
    row("icon copy", "", "Copy Nodes", "edit-copy", {}, "ID_COPY", "icon \"edit-copy\"");
    row("icon zoom", "", "Fit Drawing", "zoom-fit-best", {}, "ID_ZOOM_BOUNDS", "icon \"zoom-fit-best\"");
    row("name", "actionLine", "x", "", {}, "ID_LINE", "object name \"actionLine\"");
    row("name with noise", "m_drawOffsetAction", "x", "", {}, "ID_OFFSET", "object name");
    row("icon zoom, another caption", "", "Zoom Drawing", "zoom-fit-best", {}, "ID_ZOOM_BOUNDS",
        "icon \"zoom-fit-best\"");
    row("name of words", "action_zoom_to_fit", "x", "", {}, "ID_ZOOM_BOUNDS", "object name");
    row("name in lower case", "zoom-extents", "x", "", {}, "ID_ZOOM_BOUNDS", "object name");
    row("name trim", "ModifyTrim", "x", "", {}, "ID_TRIM", "object name");
    row("name text", "toolText", "x", "", {}, "ID_DTEXT", "object name");
    row("caption line", "", "&Line", "", {}, "ID_LINE", "caption \"Line\"");
    row("caption offset", "", "Offset...", "", {}, "ID_OFFSET", "caption \"Offset...\"");
    row("caption trim", "", "Trim", "", {}, "ID_TRIM", "caption \"Trim\"");
    row("caption text", "", "Add &Text", "", {}, "ID_DTEXT", "caption \"Add Text\"");
    row("caption zoom", "", "Zoom All\tZ", "", {}, "ID_ZOOM_BOUNDS", "caption \"Zoom All\"");
    row("caption fit", "", "Fit in View", "", {}, "ID_ZOOM_BOUNDS", "caption");
    row("caption extents", "", "Zoom Extents", "", {}, "ID_ZOOM_BOUNDS", "caption");
    row("caption open", "", "Open...", "", {}, "ID_OPEN", "caption");
    row("caption view all", "", "View All", "", {}, "ID_ZOOM_BOUNDS", "caption");
    row("name view all", "actionViewAll", "x", "", {}, "ID_ZOOM_BOUNDS", "object name");
    row("name full extent", "mActionZoomFullExtent", "x", "", {}, "ID_ZOOM_BOUNDS", "object name");
    row("caption global zoom", "", "Global Zoom", "", {}, "ID_ZOOM_BOUNDS", "caption");
    row("caption with an article", "", "Add a &textfield", "", {}, "ID_DTEXT", "caption");
    row("caption text label", "", "Text Label", "", {}, "ID_DTEXT", "caption");
    row("caption text frame", "", "Text &Frame", "", {}, "ID_DTEXT", "caption");
    row("caption by points", "", "Line by Two Points", "", {}, "ID_LINE", "caption");
    row("caption features", "", "Copy Features", "", {}, "ID_COPY", "caption");
    row("shortcut with a name", "actionOpenMap", "x", "", QKeySequence::Open, "ID_OPEN",
        "shortcut \"Ctrl+O\"");
    row("shortcut with an icon", "", "x", "document-open", QKeySequence::Open, "ID_OPEN",
        "shortcut \"Ctrl+O\", icon \"document-open\"");
    row("caption whole map", "", "Show whole map", "", {}, "ID_ZOOM_BOUNDS", "caption");
    row("caption write", "", "Write text", "", {}, "ID_DTEXT", "caption");
    row("name trim feature", "mActionTrimExtendFeature", "x", "", {}, "ID_TRIM", "object name");
}

void WellKnownGuessTest::byOneSign()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QString, icon);
    QFETCH(QKeySequence, shortcut);
    QFETCH(QString, identifier);
    QFETCH(QString, reason);
    add(QStringLiteral("other"), QStringLiteral("Something"), QStringLiteral("edit-cut"),
        QKeySequence::Cut);
    QAction *action = add(name, caption, icon, shortcut);
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().identifier, identifier);
    QCOMPARE(found.first().action, action);
    QVERIFY(found.first().weight > 0);
    QVERIFY2(found.first().reason.english().startsWith(reason),
             qPrintable(found.first().reason.english()));
}

void WellKnownGuessTest::byNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *name, const char *caption) {
        QTest::newRow(caption) << QString::fromLatin1(name) << QString::fromLatin1(caption);
    };
    row("", "Line Width");
    row("actionLineStyle", "Style of lines");
    row("", "Polyline");
    row("", "Save As...");
    row("", "Copy Format");
    row("", "Open Recent");
    row("", "Zoom In");
    row("", "Text Color");
    row("action", "Nothing");
    row("draw", "");
    row("", "Trimmed");
    row("", "Show All");
    row("drawPolyLine", "x");
    row("", "Text Annotation");
}

void WellKnownGuessTest::byNothing()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    add(name, caption);
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QVERIFY2(found.isEmpty(), found.isEmpty() ? "" : qPrintable(found.first().reason.english()));
}

void WellKnownGuessTest::theMoreTrustedSignWins_data()
{
    QTest::addColumn<int>("weaker");
    QTest::addColumn<int>("stronger");
    const char *const kinds[] = {"caption", "object name", "icon", "shortcut"};
    for (int stronger = 1; stronger < 4; ++stronger) {
        for (int weaker = 0; weaker < stronger; ++weaker)
            QTest::addRow("%s against %s", kinds[stronger], kinds[weaker]) << weaker << stronger;
    }
}

void WellKnownGuessTest::theMoreTrustedSignWins()
{
    QFETCH(int, weaker);
    QFETCH(int, stronger);
    // All weaker signs together do not outweigh it.
    add(weaker >= 1 ? QStringLiteral("fileOpen") : QString(), QStringLiteral("Open"),
        weaker >= 2 ? QStringLiteral("document-open") : QString());
    QAction *wins = add(stronger == 1 ? QStringLiteral("fileOpen") : QString(),
                        stronger >= 2 ? QStringLiteral("Open") : QStringLiteral("Open Image"),
                        stronger == 2 ? QStringLiteral("document-open") : QString(),
                        stronger == 3 ? QKeySequence(QKeySequence::Open) : QKeySequence());
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, wins);
}

void WellKnownGuessTest::signsAddUp()
{
    add(QStringLiteral("fileOpen"), QStringLiteral("x"));
    QAction *both = add(QStringLiteral("fileOpen"), QStringLiteral("Open"));
    const WellKnownGuess guess = WellKnownGuess::among(actions()).value(0);
    QCOMPARE(guess.action, both);
    QCOMPARE(guess.reason.english(), QStringLiteral("object name \"fileOpen\", caption \"Open\""));
}

void WellKnownGuessTest::ofEqualsTheFirstWins()
{
    QAction *first = add(QString(), QStringLiteral("Line"));
    add(QString(), QStringLiteral("Line"));
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().action, first);
}

void WellKnownGuessTest::ofEqualsTheOneInTheRightMenuWins()
{
    QMenu convert(QStringLiteral("Convert to"));
    QMenu insert(QStringLiteral("&Insert"));
    convert.addAction(add(QString(), QStringLiteral("Text Frame")));
    QAction *inserts = add(QString(), QStringLiteral("Text Frame"));
    insert.addAction(inserts);
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().action, inserts);
    // But the name outweighs the place.
    QAction *named = add(QStringLiteral("drawText"), QStringLiteral("x"));
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, named);
}

// "Fit" is one thing in the View menu and another where curves are fitted.
void WellKnownGuessTest::someWordsCountInTheirMenuOnly()
{
    QMenu analysis(QStringLiteral("Analysis"));
    QMenu zoom(QStringLiteral("&Zoom"));
    QAction *fit = add(QString(), QStringLiteral("Fit"));
    analysis.addAction(fit);
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
    QAction *zoomFit = add(QString(), QStringLiteral("&Fit"));
    zoom.addAction(zoomFit);
    const WellKnownGuess found = WellKnownGuess::among(actions()).value(0);
    QCOMPARE(found.identifier, QStringLiteral("ID_ZOOM_BOUNDS"));
    QCOMPARE(found.action, zoomFit);
}

void WellKnownGuessTest::whatASignContradictsStaysEmpty_data()
{
    QTest::addColumn<QStringList>("menus"); // from the top down; in the second menu of a bar
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QKeySequence>("shortcut");
    const auto row = [](const char *title, const QStringList &menus, const char *name,
                        const char *caption, const char *icon, const QKeySequence &shortcut) {
        QTest::newRow(title) << menus << QString::fromLatin1(name) << QString::fromLatin1(caption)
                             << QString::fromLatin1(icon) << shortcut;
    };
    const auto in = [](const char *menus) { return QString::fromLatin1(menus).split(QLatin1Char('>')); };
    row("copy: caption and name say otherwise", in("Graph"), "graphConnectAction", "&Connect", "",
        QKeySequence::Copy);
    row("copy: caption says otherwise", in("Edit"), "", "Connect", "", QKeySequence::Copy);
    row("save: caption says otherwise", in("File"), "", "Config settings", "", QKeySequence::Save);
    row("save: without a menu", {}, "", "Config settings", "", QKeySequence::Save);
    row("open: icon alone", in("File"), "", "Import...", "document-open", {});
    row("save: icon alone", in("File"), "", "Export...", "document-save", {});
    row("copy: icon alone", in("Edit"), "", "Duplicate", "edit-copy", {});
    row("line: the menu says otherwise", in("Edit>Go to"), "", "&Line", "", {});
    row("line: a name in another menu", in("Analysis"), "actionLine", "x", "", {});
    row("text: the menu says otherwise", in("Convert to"), "", "Text Frame", "", {});
    row("open: the menu says otherwise", in("Colors"), "colors_open", "&Open...", "", {});
    row("save: the menu says otherwise", in("Colors"), "colors_save", "&Save", "", {});
    row("copy: the menu says otherwise", in("Layer"), "", "Copy", "", {});
    row("trim: the menu says otherwise", in("Audio"), "", "Trim", "", {});
}

void WellKnownGuessTest::whatASignContradictsStaysEmpty()
{
    QFETCH(QStringList, menus);
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QString, icon);
    QFETCH(QKeySequence, shortcut);
    QMenuBar bar;
    bar.addMenu(QStringLiteral("&Program"));
    QMenu *menu = nullptr;
    for (const QString &title : std::as_const(menus))
        menu = menu ? menu->addMenu(title) : bar.addMenu(title);
    QAction *action = add(name, caption, icon, shortcut);
    if (menu)
        menu->addAction(action);
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QVERIFY2(found.isEmpty(), found.isEmpty() ? "" : qPrintable(found.first().reason.english()));
}

// In some programs "Save All" has Ctrl+S and "Save" has no shortcut.
void WellKnownGuessTest::thePlainCaptionWinsOverAPart()
{
    add(QStringLiteral("actionSaveAll"), QStringLiteral("Save All"), QString(), QKeySequence::Save);
    QAction *save = add(QStringLiteral("actionSave"), QStringLiteral("Save"));
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, save);
}

void WellKnownGuessTest::aMenuFurtherUpSpeaksForIt()
{
    QMenuBar bar;
    QAction *line = add(QString(), QStringLiteral("Line"));
    bar.addMenu(QStringLiteral("&Insert"))->addMenu(QStringLiteral("Figure"))->addAction(line);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, line);
}

// A table's "Ajouter une ligne" is not the one in the toolbar of drawing tools.
// The line is in the last of a number of menus, each in the one before, the first in the menu bar.
// Menus may contain each other, so there is a bound.
void WellKnownGuessTest::sixteenMenusUpCount()
{
    const auto isLine = [this](const char *first, int menus, bool isInImageToo) {
        m_actions.clear();
        QMenuBar bar;
        bar.addMenu(QStringLiteral("&File"));
        QMenu *menu = bar.addMenu(QString::fromLatin1(first));
        for (int below = 1; below < menus; ++below)
            menu = menu->addMenu(QStringLiteral("Part"));
        QAction *line = add(QString(), QStringLiteral("Line"));
        menu->addAction(line);
        if (isInImageToo)
            bar.addMenu(QStringLiteral("Image"))->addAction(line);
        return !WellKnownGuess::among(actions()).isEmpty();
    };
    // That the menu is elsewhere in the menu bar speaks against it.
    QVERIFY(!isLine("Image", 1, false));
    QVERIFY(!isLine("Image", 16, false));
    QVERIFY(isLine("Image", 17, false));
    // The title of the first menu speaks for it.
    QVERIFY(isLine("Draw", 16, false));
    QVERIFY(isLine("Draw", 16, true));
    QVERIFY(!isLine("Draw", 17, true));
}

void WellKnownGuessTest::menusMayContainEachOther()
{
    QMenu outer;
    QMenu inner;
    outer.addMenu(&inner);
    inner.addMenu(&outer);
    QAction *line = add(QString(), QStringLiteral("Line"));
    inner.addAction(line);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, line);
}

void WellKnownGuessTest::aToolbarsTitleSpeaksForIt()
{
    QMenuBar menus;
    menus.addMenu(QString::fromUtf8("&Édition"))
        ->addAction(add(QString(), QStringLiteral("Ajouter une ligne")));
    QToolBar bar(QStringLiteral("Ajouter"));
    QAction *line = add(QString(), QStringLiteral("Ajouter une ligne"));
    line->setCheckable(true);
    bar.addAction(line);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, line);
}

// "View > Zoom > All" may choose which direction a zoom acts on.
void WellKnownGuessTest::aModeIsNoCommand()
{
    QMenuBar bar;
    QMenu *zoom = bar.addMenu(QStringLiteral("&View"))->addMenu(QStringLiteral("&Zoom"));
    QAction *all = add(QStringLiteral("viewZoomAllAction"), QStringLiteral("&All"));
    all->setCheckable(true);
    zoom->addAction(all);
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
    // The icon says that it keeps the drawing fitted, but the icon alone is not enough.
    all->setIcon(QIcon::fromTheme(QStringLiteral("zoom-fit-best")));
    QAction *select = add(QString(), QStringLiteral("Select and Zoom"), QStringLiteral("zoom-fit-best"));
    select->setCheckable(true);
    QVERIFY(WellKnownGuess::among({select}).isEmpty());
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, all);
}

// Some programs fill the File menu when the first document opens. Their buttons are there earlier.
void WellKnownGuessTest::aButtonIsNoFileCommandByItsCaption()
{
    QToolBar bar;
    QAction *saves = add(QStringLiteral("tree_save"), QStringLiteral("Save"));
    bar.addAction(saves);
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
    QMenu overTheTree;
    overTheTree.addAction(saves);
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
    saves->setShortcut(QKeySequence::Save);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, saves);
    // A drawing tool is often only in a toolbar.
    QAction *line = add(QString(), QStringLiteral("Line"));
    bar.addAction(line);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, line);
}

// In some programs Ctrl+O goes back to the last place. The command that opens files is in the first
// menu.
void WellKnownGuessTest::aShortcutInALaterMenuIsDoubtful()
{
    QMenuBar bar;
    QMenu *map = bar.addMenu(QStringLiteral("&Map"));
    QMenu *select = bar.addMenu(QStringLiteral("&Select"))->addMenu(QStringLiteral("Jump"));
    QAction *back = add(QString(), QStringLiteral("Previous"), QString(), QKeySequence::Open);
    select->addAction(back);
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
    QAction *opens = add(QString(), QStringLiteral("Open..."));
    map->addAction(opens);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, opens);
    // A shortcut and a caption together count in any menu.
    QAction *patchbay = add(QString(), QStringLiteral("&Open..."), QString(), QKeySequence::Open);
    bar.addMenu(QStringLiteral("Patchbay"))->addAction(patchbay);
    map->removeAction(opens);
    QCOMPARE(WellKnownGuess::among({back, patchbay}).value(0).action, patchbay);
}

// A shortcut does not count in an editor that is a main window inside the main window.
void WellKnownGuessTest::aPartOfTheWindowHasNoFileCommands()
{
    for (const bool isFirst : {true, false}) {
        m_actions.clear();
        QMainWindow window;
        auto *notes = new QMainWindow;
        notes->setWindowFlags(Qt::Widget);
        window.setCentralWidget(notes);
        if (!isFirst)
            notes->menuBar()->addMenu(QStringLiteral("Notebook"));
        QAction *note = add(QString(), QStringLiteral("Open Note"), QString(), QKeySequence::Open);
        notes->menuBar()->addMenu(QStringLiteral("Note"))->addAction(note);
        QVERIFY(WellKnownGuess::among({note}).isEmpty());
        QAction *opens = add(QString(), QStringLiteral("Open..."));
        window.menuBar()->addMenu(QStringLiteral("Map"))->addAction(opens);
        QCOMPARE(WellKnownGuess::among(actions()).value(0).action, opens);
    }
}

void WellKnownGuessTest::aBarInsideTheWindowIsNoPart()
{
    QMainWindow window;
    auto *inside = new QWidget;
    window.setCentralWidget(inside);
    auto *bar = new QMenuBar(inside);
    QAction *file = add(QString(), QStringLiteral("Open Map"), QString(), QKeySequence::Open);
    bar->addMenu(QStringLiteral("Map"))->addAction(file);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, file);
}

// The shortcut of any other command counts in every menu.
void WellKnownGuessTest::onlyFileCommandsAreAtHomeInTheFirstMenu()
{
    QMenuBar bar;
    bar.addMenu(QStringLiteral("Map"));
    QAction *copy =
        add(QStringLiteral("copy"), QStringLiteral("Duplicate"), QString(), QKeySequence::Copy);
    bar.addMenu(QStringLiteral("Model"))->addAction(copy);
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, copy);
    QAction *load = add(QStringLiteral("open"), QStringLiteral("Load"), QString(), QKeySequence::Open);
    bar.actions().constLast()->menu()->addAction(load);
    QVERIFY(WellKnownGuess::among({load}).isEmpty());
    bar.actions().constFirst()->menu()->addAction(load);
    QCOMPARE(WellKnownGuess::among({load}).size(), 1);
}

// It counts as much as the menu of such commands: then the first one is it.
void WellKnownGuessTest::aDoubtfulShortcutCountsLittle()
{
    QMenuBar bar;
    bar.addMenu(QStringLiteral("Map"));
    QAction *file = add(QString(), QStringLiteral("&Open..."));
    bar.addMenu(QStringLiteral("File"))->addAction(file);
    QAction *patchbay = add(QString(), QStringLiteral("&Open..."), QString(), QKeySequence::Open);
    bar.addMenu(QStringLiteral("Patchbay"))->addAction(patchbay);
    QCOMPARE(WellKnownGuess::among({file, patchbay}).value(0).action, file);
    QCOMPARE(WellKnownGuess::among({patchbay, file}).value(0).action, patchbay);
}

void WellKnownGuessTest::aWordOfOneCharacterIsMentioned()
{
    QAction *thin = add(QString(), QString::fromUtf8("細線"), QStringLiteral("draw-line"));
    QCOMPARE(WellKnownGuess::among(actions()).value(0).action, thin);
}

void WellKnownGuessTest::theMenuAloneSaysNothing()
{
    QMenu file(QStringLiteral("&File"));
    file.addAction(add(QString(), QStringLiteral("Properties")));
    QVERIFY(WellKnownGuess::among(actions()).isEmpty());
}

// The switch of a bar has the bar's title as its caption.
void WellKnownGuessTest::switchesOfBarsAreNone()
{
    QToolBar bar(QStringLiteral("Lines"));
    QDockWidget dock(QStringLiteral("Text"));
    QAction *byName = add(QStringLiteral("offset_toolbar"), QStringLiteral("Offset"));
    byName->setCheckable(true);
    const QVector<QAction *> switches{bar.toggleViewAction(), dock.toggleViewAction(), byName};
    QVERIFY(WellKnownGuess::among(switches).isEmpty());
    // A tool that stays chosen can be checked too.
    QAction *tool = add(QStringLiteral("drawLine"), QStringLiteral("Line"));
    tool->setCheckable(true);
    QCOMPARE(WellKnownGuess::among(switches + QVector<QAction *>{tool}).value(0).action, tool);
}

void WellKnownGuessTest::anActionStandsForOneOnly()
{
    QAction *torn = add(QStringLiteral("drawLine"), QStringLiteral("Text"));
    QAction *text = add(QString(), QStringLiteral("Text"));
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).identifier, QStringLiteral("ID_DTEXT"));
    QCOMPARE(found.at(0).action, text);
    QCOMPARE(found.at(1).identifier, QStringLiteral("ID_LINE"));
    QCOMPARE(found.at(1).action, torn);
}

void WellKnownGuessTest::onlyWhatIsWanted()
{
    add(QString(), QStringLiteral("Line"));
    add(QString(), QStringLiteral("Text"));
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions(), {QStringLiteral("ID_DTEXT")});
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().identifier, QStringLiteral("ID_DTEXT"));
    QVERIFY(WellKnownGuess::among(actions(), {}).isEmpty());
    QVERIFY(WellKnownGuess::among({}).isEmpty());
}

void WellKnownGuessTest::identifiersAreThoseOfTheFirstBindings()
{
    QCOMPARE(
        WellKnownGuess::identifiers(),
        QStringList({QStringLiteral("ID_COPY"), QStringLiteral("ID_DTEXT"), QStringLiteral("ID_LINE"),
                     QStringLiteral("ID_OFFSET"), QStringLiteral("ID_OPEN"), QStringLiteral("ID_SAVE"),
                     QStringLiteral("ID_TRIM"), QStringLiteral("ID_ZOOM_BOUNDS")}));
}

void WellKnownGuessTest::everyLanguageHasEveryCommand()
{
    const QVector<KnownCaptions> &languages = KnownCaptions::languages();
    QCOMPARE(languages.size(), int(std::size(tests::kLanguages)));
    const QStringList identifiers = WellKnownGuess::identifiers();
    QHash<QString, QString> commands; // by caption
    for (const KnownCaptions &captions : languages) {
        for (const char *role : {"tools", "help", "file", "edit", "view", "draw"})
            QVERIFY2(!captions.menus.value(QLatin1String(role)).isEmpty(),
                     qPrintable(captions.language + QLatin1Char(' ') + QLatin1String(role)));
        for (const QString &identifier : identifiers) {
            const QStringList known = captions.commands.value(identifier);
            QVERIFY2(!known.isEmpty(), qPrintable(captions.language + QLatin1Char(' ') + identifier));
            const QStringList all = known + captions.commandsInTheirMenus.value(identifier);
            for (const QString &caption : all) {
                QCOMPARE(caption, caption.toLower().simplified());
                // A caption means the same command in all languages.
                QCOMPARE(commands.value(caption, identifier), identifier);
                commands.insert(caption, identifier);
            }
        }
    }
}

void WellKnownGuessTest::captionsOfAllLanguages_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("identifier");
    const auto row = [](const char *menu, const char *caption, const char *identifier) {
        QTest::newRow(caption) << QString::fromUtf8(menu) << QString::fromUtf8(caption)
                               << QString::fromLatin1(identifier);
    };
    row("&Datei", "Ö&ffnen ...", "ID_OPEN");
    row("&Ansicht", "Zoom anpassen", "ID_ZOOM_BOUNDS");
    row("Z&eichnen", "&Linie", "ID_LINE");
    row("&Ändern", "&Versatz", "ID_OFFSET");
    row("&Fichier", "&Enregistrer", "ID_SAVE");
    row("&Affichage", "Ajuster à la fenêtre", "ID_ZOOM_BOUNDS");
    row("&Insertion", "Zone de &texte", "ID_DTEXT");
    row("&Archivo", "&Guardar", "ID_SAVE");
    row("&Dibujo", "&Línea", "ID_LINE");
    row("&Modifica", "&Copia", "ID_COPY");
    row("&Inserisci", "Casella di &testo", "ID_DTEXT");
    row("&Arquivo", "&Abrir...", "ID_OPEN");
    row("&Ficheiro", "&Gravar", "ID_SAVE");
    row("&Edycja", "&Kopiuj", "ID_COPY");
    row("&Widok", "Dopasuj do okna", "ID_ZOOM_BOUNDS");
    row("&Файл", "&Сохранить", "ID_SAVE");
    row("&Вид", "Вписать", "ID_ZOOM_BOUNDS");
    row("作図(&D)", "線(&L)", "ID_LINE");
    row("表示(&V)", "全体表示(&A)", "ID_ZOOM_BOUNDS");
    row("编辑(&E)", "复制(&C)", "ID_COPY");
    row("修改(&M)", "修剪(&T)", "ID_TRIM");
    row("檔案(&F)", "儲存(&S)", "ID_SAVE");
}

void WellKnownGuessTest::captionsOfAllLanguages()
{
    QFETCH(QString, menu);
    QFETCH(QString, caption);
    QFETCH(QString, identifier);
    QMenuBar bar;
    QAction *action = add(QString(), caption);
    bar.addMenu(menu)->addAction(action);
    const WellKnownGuess found = WellKnownGuess::among(actions()).value(0);
    QCOMPARE(found.identifier, identifier);
    QCOMPARE(found.action, action);
}

void WellKnownGuessTest::wordsThatMeanSomethingElseElsewhere_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *menu, const char *caption) {
        QTest::newRow(caption) << QString::fromUtf8(menu) << QString::fromUtf8(caption);
    };
    row("&Transport", "&Enregistrer"); // records sound
    row("&Édition", "Ajouter une ligne"); // of a table
    row("&Transporte", "&Gravar"); // likewise
    row("&Bild", "Einpassen");
    row("&Immagine", "Miglior adattamento"); // of a curve
    row("&Imagen", "&Recortar"); // crops
    row("&Image", "&Ajuster"); // changes colours
    row("&Ver", "Mostrar todo"); // what is hidden
    row("&Widok", "Pokaż wszystko");
    row("書式(&O)", "文字(&C)"); // characters
    row("円(&C)", "2点(&2)"); // a circle
    row("&Карта", "Смещение");
}

void WellKnownGuessTest::wordsThatMeanSomethingElseElsewhere()
{
    QFETCH(QString, menu);
    QFETCH(QString, caption);
    QMenuBar bar;
    bar.addMenu(QStringLiteral("&File"));
    bar.addMenu(menu)->addAction(add(QString(), caption));
    const QVector<WellKnownGuess> found = WellKnownGuess::among(actions());
    QVERIFY2(found.isEmpty(), found.isEmpty() ? "" : qPrintable(found.first().reason.english()));
}

QTEST_MAIN(WellKnownGuessTest)
#include "tst_wellknownguess.moc"
