// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/IniText.h"

#include "tests/support/FolderTest.h"

#include <QFile>
#include <QSettings>
#include <QTest>

#include <algorithm>
#include <random>

using gesturewidget::IniText;
using tests::contentOf;
using tests::text;

namespace {

using Values = QMap<QString, QString>;

// Random texts of characters that have a meaning in such a file.
class Texts
{
public:
    QString next(int least)
    {
        static const QString letters =
            QString::fromUtf8("abX019 _-.,;=\"\\[]#%@/'\t\n\r\x01$()ÄßЖ線") + QChar(0) + QChar(0xd83d);
        std::uniform_int_distribution<int> letter(0, int(letters.size()) - 1);
        QString result;
        for (int size = std::uniform_int_distribution<int>(least, 8)(m_random); size > 0; --size)
            result += letters.at(letter(m_random));
        return result;
    }

private:
    std::mt19937 m_random{20261121};
};

// The text without the characters that are encoded.
QString plain(QString text)
{
    const auto isEncoded = [](QChar letter) {
        return letter < QLatin1Char(' ') || letter > QLatin1Char('~') || letter == QLatin1Char('%');
    };
    text.resize(int(std::remove_if(text.begin(), text.end(), isEncoded) - text.begin()));
    return text;
}

} // namespace

class IniTextTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSetComesBack();
    void readsWhatQSettingsWrote();
    void isReadByQSettings();
    void byHand_data();
    void byHand();
    void otherLinesStay();
    void wellFormed_data();
    void wellFormed();
};

void IniTextTest::whatIsSetComesBack()
{
    Texts texts;
    for (int round = 0; round < 300; ++round) {
        IniText ini{QByteArray()};
        Values expected;
        for (int i = 0; i < 20; ++i) {
            const QString name = IniText::nameOf(texts.next(0), texts.next(0));
            const QString value = texts.next(0);
            expected.insert(name, value);
            ini.set(name, value);
            QCOMPARE(ini.values(), expected);
        }
        const QByteArray written = ini.text();
        QVERIFY2(IniText::isWellFormed(written), written.constData());
        QCOMPARE(IniText(written).values(), expected);
        QCOMPARE(IniText(written).text(), written);
    }
}

// Earlier versions wrote encoded texts, which are printable ASCII, with QSettings.
void IniTextTest::readsWhatQSettingsWrote()
{
    Texts texts;
    for (int round = 0; round < 200; ++round) {
        const QString path = place(text("q%1.ini").arg(round));
        Values expected;
        {
            QSettings settings(path, QSettings::IniFormat);
            for (int i = 0; i < 20; ++i) {
                const QString value = plain(texts.next(0));
                const QString name = IniText::nameOf(texts.next(1), texts.next(1));
                expected.insert(name, value);
                settings.setValue(name, value);
            }
        }
        const QByteArray written = contentOf(path);
        QVERIFY2(IniText(written).values() == expected, written.constData());
    }
}

void IniTextTest::isReadByQSettings()
{
    Texts texts;
    for (int round = 0; round < 200; ++round) {
        const QString path = place(text("q%1.ini").arg(round));
        IniText ini{QByteArray()};
        Values expected;
        for (int i = 0; i < 20; ++i) {
            const QString value = plain(texts.next(0));
            const QString name = IniText::nameOf(texts.next(1), texts.next(1));
            expected.insert(name, value);
            ini.set(name, value);
        }
        write(path, ini.text());
        const QSettings settings(path, QSettings::IniFormat);
        Values found;
        const QStringList names = settings.allKeys();
        for (const QString &name : names)
            found.insert(name, settings.value(name).toString());
        QVERIFY2(found == expected, ini.text().constData());
    }
}

void IniTextTest::byHand_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *line, const char *value) {
        QTest::newRow(line) << QByteArray(line) << QString::fromUtf8(value);
    };
    row("41=a", "a");
    row("  41 = a b  ", "a b");
    row("41=a, b,c", "a, b,c");
    row("41=a ; why", "a");
    row("41=\"a ; b \"", "a ; b ");
    row("41=\" a\" b", " a b");
    row("41=a=b", "a=b");
    row("41=\\x41\\n\\\\", "A\n\\");
    row("41=\\", "\\");
    row("41=\\q", "");
    row("41=Gr\xc3\xb6\xc3\x9f"
        "e",
        "Größe");
    row("41=100%", "100%");
    row("41=%u00e4", "ä");
    row("41=", "");
    row("41=a\r", "a");
    row("41=a\n41=b", "b");
    row("%34%31=a", "a");
    row("%U00341=a", "a");
}

void IniTextTest::byHand()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, value);
    const QString name = text("GestureWidget/41");
    IniText ini("[GestureWidget]\n" + line + '\n');
    QCOMPARE(ini.values().value(name, text("<none>")), value);
    ini.set(name, text("new"));
    QCOMPARE(ini.values(), (Values{{name, text("new")}}));
    QCOMPARE(IniText(ini.text()).values(), (Values{{name, text("new")}}));
}

void IniTextTest::otherLinesStay()
{
    IniText ini("# my gestures\n\n[A]\n1=x\n; a note\n\n[B]\n 2 = y ; why\n");
    ini.set(text("A/2"), text("z"));
    ini.set(text("A/1"), text("w"));
    ini.set(text("C/1"), text("c"));
    QCOMPARE(ini.text(), QByteArray("# my gestures\n\n[A]\n1=w\n; a note\n2=z\n\n[B]\n 2 = y ; why\n\n"
                                    "[C]\n1=c\n"));
    IniText general("0=first\n[General]\n1=x\n[%General]\n2=y\n");
    QCOMPARE(
        general.values(),
        (Values{{text("0"), text("first")}, {text("1"), text("x")}, {text("General/2"), text("y")}}));
}

void IniTextTest::wellFormed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isIt");
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("lines") << QByteArray("# x\n; y\n\n[a]\n b = c\n") << true;
    QTest::newRow("zeroed") << QByteArray(10, '\0') << false;
    QTest::newRow("half a head") << QByteArray("[a\n") << false;
    QTest::newRow("half a key") << QByteArray("[a]\nkey") << false;
}

void IniTextTest::wellFormed()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isIt);
    QCOMPARE(IniText::isWellFormed(content), isIt);
}

QTEST_GUILESS_MAIN(IniTextTest)
#include "tst_initext.moc"
