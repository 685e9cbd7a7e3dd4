// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/captions/KnownCaptions.h"
#include "host/menus/MenuLanguage.h"
#include "host/menus/ProgramLanguage.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

using gesturewidget::MenuLanguage;
using gesturewidget::programLanguage;

// Which language host and module speak in a program.
class ProgramLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void language_data();
    void language();
    void menusCount();
    void windowWithoutMenus();
    void everyFileOfCaptionsIsRead();
};

void ProgramLanguageTest::language_data()
{
    QTest::addColumn<QString>("menus");
    QTest::addColumn<QString>("preferred");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *menus, const char *preferred,
                        const char *expected) {
        QTest::newRow(name) << QString::fromUtf8(menus) << QString::fromUtf8(preferred)
                            << QString::fromLatin1(expected);
    };
    const char *const english = "&File|&Edit|&View|&Tools|&Help";
    row("English everywhere", english, "en-US|en", "en");
    row("no language", english, "C", "en");
    row("program without the person's language", english, "de-AT|de", "de");
    row("first language that is known", english, "nl-NL|nl|fr", "fr");
    row("English before another", english, "nl|en-GB|fr", "en");
    row("language with a script", english, "zh-Hans-CN|zh", "zh");
    row("nothing known", english, "nl|sv", "en");
    row("program set to German", "&Datei|&Bearbeiten|&Ansicht|E&xtras|&Hilfe", "en-US", "de");
    row("program set to French", "&Fichier|&Édition|&Affichage|&Outils|&Aide", "de-DE", "fr");
    row("Japanese mnemonics", "ファイル(&F)|編集(&E)|表示(&V)|ツール(&T)|ヘルプ(&H)", "C", "ja");
    row("one German word", "&Foo|&Bar|&Ansicht", "en", "en");
    row("two German words", "&Foo|&Datei|&Ansicht", "en", "de");
    row("unknown words", "&Foo|&Bar", "pl", "pl");
}

void ProgramLanguageTest::language()
{
    QFETCH(QString, menus);
    QFETCH(QString, preferred);
    QFETCH(QString, expected);
    QMainWindow window;
    const QStringList captions = menus.split(QLatin1Char('|'));
    for (const QString &caption : captions)
        window.menuBar()->addMenu(caption);
    const QStringList available{QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("fr"),
                                QStringLiteral("ja"), QStringLiteral("pl"), QStringLiteral("zh")};
    QCOMPARE(programLanguage(&window, preferred.split(QLatin1Char('|')), available), expected);
}

void ProgramLanguageTest::menusCount()
{
    QMenuBar bar;
    QCOMPARE(MenuLanguage::of(bar).code, QStringLiteral("en"));
    QCOMPARE(MenuLanguage::of(bar).count, 0);
    for (const char *caption : {"Datei", "Ansicht", "File", "Fenster?"})
        bar.addMenu(QString::fromLatin1(caption));
    const MenuLanguage found = MenuLanguage::of(bar);
    QCOMPARE(found.code, QStringLiteral("de"));
    QCOMPARE(found.count, 2);
}

void ProgramLanguageTest::windowWithoutMenus()
{
    const QStringList german{QStringLiteral("de")};
    const QMainWindow window;
    QCOMPARE(programLanguage(&window, german, german), QStringLiteral("de"));
    QCOMPARE(programLanguage(nullptr, german, german), QStringLiteral("de"));
    QCOMPARE(programLanguage(nullptr, german, {}), QStringLiteral("en"));
}

void ProgramLanguageTest::everyFileOfCaptionsIsRead()
{
    const QDir files(QStringLiteral(":/gesturewidget-host/captions"));
    QCOMPARE(gesturewidget::KnownCaptions::languages().size(), static_cast<int>(files.count()));
    for (const gesturewidget::KnownCaptions &language : gesturewidget::KnownCaptions::languages())
        QVERIFY2(files.exists(language.language + QStringLiteral(".json")),
                 qPrintable(language.language));
}

QTEST_MAIN(ProgramLanguageTest)
#include "tst_programlanguage.moc"
