// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/ToolsMenu.h"
#include "host/window/MenuChanges.h"
#include "tests/support/FakeTranslator.h"
#include "tests/support/FatalWarnings.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using gesturewidget::MenuChanges;
using gesturewidget::ToolsMenu;

namespace {

QStringList captions(const QMenuBar &bar)
{
    QStringList list;
    const QList<QAction *> actions = bar.actions();
    for (const QAction *action : actions)
        list.append(action->text());
    return list;
}

} // namespace

class ToolsMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void everyLanguageHasOne_data();
    void everyLanguageHasOne();
    void aMadeOneSpeaksTheProgramsLanguage_data() { everyLanguageHasOne_data(); }
    void aMadeOneSpeaksTheProgramsLanguage();
    void aMadeOneInUnknownWordsSpeaksTheHostsLanguage();
    void aMadeOneIsLastWithoutAHelpMenu();
    void toolsBesideExtras();
};

void ToolsMenuTest::everyLanguageHasOne_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("tools"); // as the program writes it
    QTest::addColumn<QString>("help");
    QTest::addColumn<QString>("made");
    const auto row = [](const char *name, const char *file, const char *tools, const char *help,
                        const char *made) {
        QTest::newRow(name) << QString::fromUtf8(file) << QString::fromUtf8(tools)
                            << QString::fromUtf8(help) << QString::fromUtf8(made);
    };
    row("English", "&File", "&Tools", "&Help", "&Tools");
    row("German, KDE", "&Datei", "E&xtras", "&Hilfe", "Extras");
    row("German, GTK", "_Datei", "_Werkzeuge", "_Hilfe", "Extras");
    row("German, question mark", "&Datei", "E&xtras", "&?", "Extras");
    row("French", "&Fichier", "&Outils", "&Aide", "Outils");
    row("Spanish", "&Archivo", "&Herramientas", "Ay&uda", "Herramientas");
    row("Italian", "Pro&getto", "&Strumenti", "A&iuto", "Strumenti");
    row("Italian, guide", "Pro&getto", "&Strumenti", "&Guida", "Strumenti");
    row("Portuguese", "&Ficheiro", "Ferramen&tas", "A&juda", "Ferramentas");
    row("Brazilian", "&Arquivo", "Ferramen&tas", "Aj&uda", "Ferramentas");
    row("Polish", "&Plik", "&Narzędzia", "Pomo&c", "Narzędzia");
    row("Russian", "&Файл", "&Сервис", "&Справка", "Инструменты");
    row("Japanese", "ファイル(&F)", "ツール(&T)", "ヘルプ(&H)", "ツール");
    row("Chinese", "文件(&F)", "工具(&T)", "帮助(&H)", "工具");
    row("Traditional Chinese", "檔案(&F)", "工具(&T)", "說明(&H)", "工具");
}

void ToolsMenuTest::everyLanguageHasOne()
{
    QFETCH(QString, file);
    QFETCH(QString, tools);
    QFETCH(QString, help);
    QMainWindow window;
    window.menuBar()->addMenu(file);
    const QMenu *own = window.menuBar()->addMenu(tools);
    window.menuBar()->addMenu(help);
    const MenuChanges watcher(&window);
    ToolsMenu menu(watcher, QString());
    QCOMPARE(menu.find(), own);
    QCOMPARE(menu.findOrMake(), own);
    QCOMPARE(captions(*window.menuBar()), QStringList({file, tools, help}));
}

void ToolsMenuTest::aMadeOneSpeaksTheProgramsLanguage()
{
    QFETCH(QString, file);
    QFETCH(QString, help);
    QFETCH(QString, made);
    QMainWindow window;
    window.menuBar()->addMenu(file);
    window.menuBar()->addMenu(help);
    const MenuChanges watcher(&window);
    ToolsMenu menu(watcher, QString());
    QCOMPARE(menu.find(), nullptr);
    const QMenu *found = menu.findOrMake();
    QVERIFY(found);
    QVERIFY(!found->menuAction()->isVisible()); // it is empty
    QCOMPARE(menu.find(), found);
    QCOMPARE(menu.findOrMake(), found);
    QCOMPARE(captions(*window.menuBar()), QStringList({file, made, help}));
}

void ToolsMenuTest::aMadeOneInUnknownWordsSpeaksTheHostsLanguage()
{
    tests::FakeTranslator translator;
    translator.add("host", "&Tools", QStringLiteral("&Gereedschap"));
    const auto made = [](const QStringList &captions) {
        QMainWindow window;
        for (const QString &caption : captions)
            window.menuBar()->addMenu(caption);
        const MenuChanges watcher(&window);
        ToolsMenu menu(watcher, QString());
        return menu.findOrMake()->title();
    };
    QCOMPARE(made({QStringLiteral("&Foo"), QStringLiteral("&Bar")}), QStringLiteral("&Gereedschap"));
    // One word is enough to know the program's language.
    QCOMPARE(made({QStringLiteral("&Foo"), QStringLiteral("&Datei")}), QStringLiteral("Extras"));
    QCOMPARE(made({QStringLiteral("&Foo"), QStringLiteral("&File")}), QStringLiteral("&Tools"));
}

void ToolsMenuTest::aMadeOneIsLastWithoutAHelpMenu()
{
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"));
    window.menuBar()->addAction(QStringLiteral("Quit")); // without a menu
    window.menuBar()->addMenu(QStringLiteral("&Draw"));
    const MenuChanges watcher(&window);
    ToolsMenu menu(watcher, QString());
    QVERIFY(menu.findOrMake());
    QCOMPARE(captions(*window.menuBar()),
             QStringList({QStringLiteral("&File"), QStringLiteral("Quit"), QStringLiteral("&Draw"),
                          QStringLiteral("&Tools")}));
}

// A word of the program's own language wins over a word of another language.
void ToolsMenuTest::toolsBesideExtras()
{
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("E&xtras"));
    const QMenu *tools = window.menuBar()->addMenu(QStringLiteral("&Tools"));
    const MenuChanges watcher(&window);
    const ToolsMenu menu(watcher, QString());
    QCOMPARE(menu.find(), tools);
}

QTEST_MAIN(ToolsMenuTest)
#include "tst_toolsmenu.moc"
