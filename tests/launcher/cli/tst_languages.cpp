// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The texts of mouse-gestures and its sheet in each language.

#include "launcher/Columns.h"
#include "tests/support/EmbeddedLanguage.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/FolderTest.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using launcher::columnsOf;
using launcher::padded;
using launcher::wrapped;

namespace {

struct Ended
{
    int status = -1;
    QString output;
    QString errors;
};

} // namespace

class LanguagesTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void columns();
    void linesAreBrokenWhereTheScriptAllows_data();
    void linesAreBrokenWhereTheScriptAllows();
    void help_data() { languages(); }
    void help();
    void outputs_data() { languages(); }
    void outputs();
    void sheet_data() { languages(); }
    void sheet();
    void theFirstKnownLanguageCounts();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : tests::kLanguages)
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    Ended run(const QString &language, const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LANGUAGE"), language);
        environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder->path());
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"})
            environment.remove(QLatin1String(name));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(MOUSE_GESTURES), arguments);
        if (!process.waitForFinished())
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
};

void LanguagesTest::columns()
{
    QCOMPARE(columnsOf(QStringLiteral("up-left")), 7);
    QCOMPARE(columnsOf(QString::fromUtf8("вверх")), 5);
    QCOMPARE(columnsOf(QString::fromUtf8("左上 (8)")), 8);
    QCOMPARE(padded(QString::fromUtf8("左"), 4), QString::fromUtf8("左  "));
    QCOMPARE(padded(QStringLiteral("longer"), 4), QStringLiteral("longer"));
}

void LanguagesTest::linesAreBrokenWhereTheScriptAllows_data()
{
    QTest::addColumn<QString>("whole");
    QTest::addColumn<QString>("broken"); // "|" between lines
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("short") << QStringLiteral("two words") << QStringLiteral("two words");
    QTest::newRow("full") << QStringLiteral("ten column") << QStringLiteral("ten column");
    QTest::newRow("words") << QStringLiteral("up, left, down or right")
                           << QStringLiteral("up, left,|down or|right");
    QTest::newRow("hyphens") << QStringLiteral("also up-left here")
                             << QStringLiteral("also|up-left|here");
    QTest::newRow("too long") << QStringLiteral("a incomprehensible b")
                              << QStringLiteral("a|incomprehensible|b");
    QTest::newRow("Japanese") << QString::fromUtf8("方向に割り当てる。")
                              << QString::fromUtf8("方向に割り|当てる。");
    QTest::newRow("no stop at the front")
        << QString::fromUtf8("割り当てる。") << QString::fromUtf8("割り当て|る。");
    QTest::newRow("two lines") << QStringLiteral("one\ntwo") << QStringLiteral("one|two");
}

void LanguagesTest::linesAreBrokenWhereTheScriptAllows()
{
    QFETCH(QString, whole);
    QFETCH(QString, broken);
    QCOMPARE(wrapped(whole, 10).join(QLatin1Char('|')), broken);
}

void LanguagesTest::help()
{
    QFETCH(QString, language);
    const Ended here = run(language, {QStringLiteral("--help")});
    QCOMPARE(here.status, 0);
    const QStringList lines = here.output.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        QVERIFY2(columnsOf(line) <= 88, qPrintable(line));
    const QStringList english =
        run(QStringLiteral("en"), {QStringLiteral("--help")}).output.split(QLatin1Char('\n'));
    for (const QString &line : english) {
        const QString name = line.section(QLatin1Char(' '), 2, 2);
        if (line.startsWith(QLatin1String("  -")))
            QVERIFY2(here.output.contains(QLatin1String("  ") + name + QLatin1Char(' ')),
                     qPrintable(name));
        const bool isText = line.size() > 60;
        QVERIFY2(!isText || lines.contains(line) == (language == QLatin1String("en")), qPrintable(line));
    }
}

void LanguagesTest::outputs()
{
    QFETCH(QString, language);
    const bool isEnglish = language == QLatin1String("en");
    const QString english = QStringLiteral("en");
    const QString program = QStringLiteral("/bin/sh");
    for (const char *option : {"--bindings", "--doctor", "--list-commands", "--bind"}) {
        const QStringList arguments{QString::fromLatin1(option), program};
        const Ended here = run(language, arguments);
        const Ended there = run(english, arguments);
        QCOMPARE(here.status, there.status);
        QVERIFY(here.status >= 0);
        QCOMPARE(here.output == there.output && here.errors == there.errors, isEnglish);
        QVERIFY2(!(here.output + here.errors).contains(QLatin1Char('%')), qPrintable(here.output));
        QVERIFY2(!(here.output + here.errors).contains(QLatin1Char('?')), qPrintable(here.output));
    }
    // For other programs.
    const QStringList json{QStringLiteral("--bindings"), program, QStringLiteral("--json")};
    QCOMPARE(run(language, json).output, run(english, json).output);
    const QStringList unknown{QStringLiteral("--bindings"), QStringLiteral("/nowhere/draw")};
    QCOMPARE(run(language, unknown).status, 127);
}

void LanguagesTest::sheet()
{
    QFETCH(QString, language);
    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    QVERIFY2(!pdftotext.isEmpty(), "pdftotext is missing; Debian has it in poppler-utils");
    const auto wordsIn = [&](const QString &spoken) {
        const QString file = place(spoken + QStringLiteral(".pdf"));
        const Ended printed = run(spoken, {QStringLiteral("--print"), QStringLiteral("/bin/sh"), file});
        QProcess reading;
        reading.start(pdftotext, {file, QStringLiteral("-")});
        if (printed.status != 0 || !reading.waitForFinished())
            return QStringList(printed.errors);
        return QString::fromUtf8(reading.readAllStandardOutput()).simplified().split(QLatin1Char(' '));
    };
    const QStringList here = wordsIn(language);
    const QStringList there = wordsIn(QStringLiteral("en"));
    for (const char *word : {"Direction", "Command", "Hold", "gestures"}) {
        QVERIFY2(there.contains(QLatin1String(word)), qPrintable(there.join(QLatin1Char(' '))));
        const bool isSame =
            language == QLatin1String("en")
            || (language == QLatin1String("fr") && QLatin1String(word) == QLatin1String("Direction"));
        QVERIFY2(here.contains(QLatin1String(word)) == isSame, qPrintable(here.join(QLatin1Char(' '))));
    }
    QVERIFY2(!here.join(QString()).contains(QChar(0x2026)), qPrintable(here.join(QLatin1Char(' '))));
}

void LanguagesTest::theFirstKnownLanguageCounts()
{
    const QStringList arguments{QStringLiteral("--bindings"), QStringLiteral("/bin/sh")};
    const auto says = [&](const char *languages) {
        return run(QString::fromLatin1(languages), arguments).output;
    };
    QCOMPARE(says("cy:de"), says("de"));
    QCOMPARE(says("de_AT"), says("de"));
    QCOMPARE(says("zh_CN"), says("zh"));
    QCOMPARE(says("en:de"), says("en"));
    QCOMPARE(says("cy:gd"), says("en"));
    QVERIFY(says("de") != says("en"));
}

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
