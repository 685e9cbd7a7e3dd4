// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The strings and the result buffer.

#include "sdk/chx/CHxString.h"
#include "sdk/od/OdResBuf.h"
#include "sdk/od/OdString.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

namespace {

int sign(int number)
{
    return number < 0 ? -1 : number > 0 ? 1 : 0;
}

} // namespace

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void platformString()
    {
        const QString accented = QString::fromUtf8("Größe");
        QCOMPARE(OdString("GESTURE", kOdAnsiCodePage).toQString(), QStringLiteral("GESTURE"));
        QCOMPARE(OdString(L"Gr\u00f6\u00dfe").toQString(), accented);
        QCOMPARE(OdString(accented).toQString(), accented);
        QVERIFY(OdString().isEmpty());
        QVERIFY(OdString(static_cast<const char *>(nullptr), kOdAnsiCodePage).isEmpty());
        QVERIFY(OdString(static_cast<const wchar_t *>(nullptr)).isEmpty());
        QVERIFY(!OdString(accented).isEmpty());
        QVERIFY(OdString("a", kOdAnsiCodePage) == OdString(L"a"));
        QVERIFY(OdString("a", kOdAnsiCodePage) != OdString(L"A"));
        QCOMPARE(kOdAnsiCodePage, 45);
    }

    void hostString()
    {
        const QString accented = QString::fromUtf8("Größe");
        QCOMPARE(CHxString("ID_LINE").toQString(), QStringLiteral("ID_LINE"));
        QCOMPARE(CHxString(L"Gr\u00f6\u00dfe").toQString(), accented);
        QCOMPARE(CHxString(accented).toQString(), accented);
        QVERIFY(CHxString().isEmpty());
        QVERIFY(CHxString(static_cast<const char *>(nullptr)).isEmpty());
        QVERIFY(CHxString(static_cast<const wchar_t *>(nullptr)).isEmpty());
        QVERIFY(CHxString("a") == CHxString(L"a"));
        QVERIFY(CHxString("a") != CHxString("A"));
    }

    void compare_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("withCase"); // sign of the result
        QTest::addColumn<int>("withoutCase");

        QTest::newRow("equal") << QStringLiteral("Tools") << QStringLiteral("Tools") << 0 << 0;
        QTest::newRow("case") << QStringLiteral("Tools") << QStringLiteral("tools") << -1 << 0;
        QTest::newRow("case, the other way")
            << QStringLiteral("tools") << QStringLiteral("TOOLS") << 1 << 0;
        QTest::newRow("before") << QStringLiteral("Draw") << QStringLiteral("Edit") << -1 << -1;
        QTest::newRow("after") << QStringLiteral("Edit") << QStringLiteral("Draw") << 1 << 1;
        QTest::newRow("case decides") << QStringLiteral("a") << QStringLiteral("B") << 1 << -1;
        QTest::newRow("prefix") << QStringLiteral("Zoom") << QStringLiteral("Zoom In") << -1 << -1;
        QTest::newRow("empty") << QString() << QStringLiteral("a") << -1 << -1;
        QTest::newRow("both empty") << QString() << QString() << 0 << 0;
        QTest::newRow("accents") << QString::fromUtf8("ÄÖ") << QString::fromUtf8("äö") << -1 << 0;
    }

    void compare()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, withCase);
        QFETCH(int, withoutCase);
        QCOMPARE(sign(CHxString(a).Compare(CHxString(b))), withCase);
        QCOMPARE(sign(CHxString(a).CompareNoCase(CHxString(b))), withoutCase);
        QCOMPARE(CHxString(a) == CHxString(b), withCase == 0);
    }

    void resultBuffer()
    {
        const OdResBufPtr buffer = OdResBuf::newString(OdString(QStringLiteral("ID_SAVE")));
        QCOMPARE(buffer->restype(), 5005);
        QCOMPARE(buffer->getString().toQString(), QStringLiteral("ID_SAVE"));
        QCOMPARE(buffer->numRefs(), 1L);
        buffer->setString(OdString());
        QCOMPARE(buffer->restype(), 5005);
        QVERIFY(buffer->getString().isEmpty());
        QCOMPARE(static_cast<int>(OdResBuf::kNone), 5000);
    }
};

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
