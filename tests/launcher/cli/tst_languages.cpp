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
    void complaintsAboutFiles_data() { languages(); }
    void complaintsAboutFiles();
    void explanation_data();
    void explanation();
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
        for (const char *folder : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QLatin1String(folder), m_folder->path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        // The program's own warnings pass too.
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("default.warning=false"));
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

// Each line begins as in English and names the file, whatever the language.
void LanguagesTest::complaintsAboutFiles()
{
    QFETCH(QString, language);
    const bool isEnglish = language == QLatin1String("en");
    const QString name =
        QFileInfo(QStringLiteral("/bin/sh")).canonicalFilePath().section(QLatin1Char('/'), -1);
    const QString settings = place("gesturewidget/") + name + QStringLiteral(".ini");
    const QString commands = place("gesturewidget/") + name + QStringLiteral(".commands.json");
    const QString profile = place("gesturewidget/profiles/") + name + QStringLiteral(".json");
    QVERIFY(QDir().mkpath(place("gesturewidget/profiles")));
    const auto write = [](const QString &path, const QByteArray &content) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    const auto isSaid = [&](const QString &option, const QString &path) {
        const QStringList arguments{option, QStringLiteral("/bin/sh")};
        const QString here = run(language, arguments).errors.section(QLatin1Char('\n'), 0, 0);
        const QString there =
            run(QStringLiteral("en"), arguments).errors.section(QLatin1Char('\n'), 0, 0);
        const bool isWell = here.startsWith(QLatin1String("mouse gestures: ")) && here.contains(path)
                         && !here.contains(QLatin1Char('?')) && (here == there) == isEnglish;
        if (!isWell)
            qWarning("%s\n%s", qPrintable(here), qPrintable(there));
        return isWell;
    };
    QVERIFY(write(settings, QByteArray(20, '\0')));
    QVERIFY(isSaid(QStringLiteral("--bindings"), settings));
    QVERIFY(QFile::remove(settings) && QDir().mkpath(settings));
    QVERIFY(isSaid(QStringLiteral("--bindings"), settings));
    QVERIFY(QDir().rmdir(settings));
    for (const char *content : {"{", "[]", "{\"version\": 7}"}) {
        QVERIFY(write(commands, content));
        QVERIFY(isSaid(QStringLiteral("--list-commands"), commands));
    }
    QVERIFY(QFile::remove(commands));
    const QVector<std::pair<QByteArray, QString>> profiles{
        {"{\"versoin\": 1}", QStringLiteral("unknown key")},
        {"{\"version\": 7}", QStringLiteral("is not known")},
        {"{\"version\": 1}", QStringLiteral("\"program\" is")},
    };
    for (const auto &[content, english] : profiles) {
        QVERIFY(write(profile, content));
        const QStringList arguments{QStringLiteral("--doctor"), QStringLiteral("/bin/sh")};
        const QString said =
            run(language, arguments).output.split(QLatin1Char('\n')).filter(profile).value(0);
        QVERIFY2(!said.isEmpty() && said.contains(english) == isEnglish, qPrintable(said));
    }
}

// Two of them suffice, since each start takes seconds.
void LanguagesTest::explanation_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "ja"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

// The explanation is in the language of the terminal; the profile is the same in all.
void LanguagesTest::explanation()
{
    QFETCH(QString, language);
    const QStringList arguments{QStringLiteral("--explain"), QStringLiteral(GUEST),
                                QStringLiteral("stay")};
    const Ended here = run(language, arguments);
    static const Ended there = run(QStringLiteral("en"), arguments);
    QCOMPARE(here.status, 0);
    QCOMPARE(here.output, there.output);
    const QStringList lines = here.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList english = there.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.filter(QStringLiteral("GuestView")).size() == 1);
    QCOMPARE(lines.size(), english.size());
    QVERIFY(lines.size() > 10);
    for (int i = 0; i < lines.size(); ++i) {
        // Only a name follows.
        const bool isSame = english.at(i).startsWith(QLatin1String("window: "));
        QVERIFY2(isSame || (lines.at(i) == english.at(i)) == (language == QLatin1String("en")),
                 qPrintable(lines.at(i)));
    }
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
        const bool isSame = tests::isAsInEnglish(language, QLatin1String(word));
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
