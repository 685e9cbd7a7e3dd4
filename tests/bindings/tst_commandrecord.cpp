// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/DonutHelperData.h"
#include "bindings/DonutScheme.h"
#include "bindings/MgCommandDS.h"
#include "bindings/SettingsKeys.h"
#include "tests/bindings/StandardCommands.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <type_traits>

namespace {

MgCommandDS record(const char *id, const char *command, const char *displayName, const char *category)
{
    return {QString::fromLatin1(id),
            QString::fromLatin1(command),
            QString::fromLatin1(displayName),
            QString::fromLatin1(category),
            QStringLiteral("tip"),
            QIcon(),
            0,
            0};
}

// Shows the scheme under another class's name, as the configuration dialog does.
class SchemeUser
{
public:
    using DonutScheme = DonutSchemes::DonutScheme;
    static constexpr DonutScheme Four = DonutSchemes::Four;
    static constexpr DonutScheme Eight = DonutSchemes::Eight;
};

} // namespace

class CommandRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void holdsWhatItIsGiven()
    {
        const QIcon icon = tests::anyIcon();
        const MgCommandDS made(QStringLiteral("ID_LINE"), QStringLiteral("line"), QStringLiteral("Line"),
                               QStringLiteral("Draw"), QStringLiteral("Draws a line"), icon, 4, 7);
        const MgCommandDS copy(made); // NOLINT(performance-unnecessary-copy-initialization): tested
        MgCommandDS assigned = record("x", "x", "x", "x");
        assigned = made;
        for (const MgCommandDS &held : {made, copy, assigned}) {
            QCOMPARE(held.id, QStringLiteral("ID_LINE"));
            QCOMPARE(held.command, QStringLiteral("line"));
            QCOMPARE(held.displayName, QStringLiteral("Line"));
            QCOMPARE(held.category, QStringLiteral("Draw"));
            QCOMPARE(held.tooltip, QStringLiteral("Draws a line"));
            QCOMPARE(held.icon.cacheKey(), icon.cacheKey());
            QCOMPARE(held.fourDirection, static_cast<unsigned char>(4));
            QCOMPARE(held.eightDirection, static_cast<unsigned char>(7));
        }
    }

    void ordersByCategory_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<bool>("less");
        QTest::newRow("before") << "Draw"
                                << "Edit" << true;
        QTest::newRow("after") << "Edit"
                               << "Draw" << false;
        QTest::newRow("same") << "Draw"
                              << "Draw" << false;
        QTest::newRow("empty first") << ""
                                     << "Draw" << true;
        QTest::newRow("upper case before lower case") << "Zoom"
                                                      << "edit" << true;
    }

    void ordersByCategory()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        // Every other field would order them the other way round.
        const MgCommandDS a = record("Z", "Z", "Z", qPrintable(left));
        const MgCommandDS b = record("A", "A", "A", qPrintable(right));
        QTEST(a < b, "less");
    }

    // Only the category counts, so there is no order inside one.
    void oneCategoryHasNoOrder()
    {
        const MgCommandDS a = record("ID_A", "a", "A", "Draw");
        const MgCommandDS b = record("ID_B", "b", "B", "Draw");
        QVERIFY(!(a < b));
        QVERIFY(!(b < a));
    }

    void equalsItsIdentifierOnly()
    {
        const MgCommandDS made = record("ID_LINE", "line", "Line", "Draw");
        QVERIFY(made == QStringLiteral("ID_LINE"));
        for (const char *other : {"line", "Line", "Draw", "tip", "id_line", "ID_LINE ", "ID_LIN", ""})
            QVERIFY2(!(made == QString::fromLatin1(other)), other);
        QVERIFY(!(record("ID_X", "ID_LINE", "ID_LINE", "ID_LINE") == QStringLiteral("ID_LINE")));
    }

    void schemesAreNumbered()
    {
        QCOMPARE(static_cast<int>(DonutScheme::Four), 0);
        QCOMPARE(static_cast<int>(DonutScheme::Eight), 1);
        QCOMPARE(static_cast<int>(SchemeUser::Four), 0);
        QCOMPARE(static_cast<int>(SchemeUser::Eight), 1);
        static_assert(std::is_same_v<SchemeUser::DonutScheme, DonutScheme>);
    }

    void directionKeys_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("key");
        for (int number = 1; number <= 4; ++number)
            QTest::addRow("four %d", number) << 0 << number << QString::number(40 + number);
        for (int number = 1; number <= 8; ++number)
            QTest::addRow("eight %d", number) << 1 << number << QString::number(80 + number);
        QTest::newRow("four 0") << 0 << 0 << QString();
        QTest::newRow("four 5") << 0 << 5 << QString();
        QTest::newRow("four -1") << 0 << -1 << QString();
        QTest::newRow("four largest") << 0 << INT_MAX << QString();
        QTest::newRow("eight 0") << 1 << 0 << QString();
        QTest::newRow("eight 9") << 1 << 9 << QString();
        QTest::newRow("eight smallest") << 1 << INT_MIN << QString();
        QTest::newRow("scheme 2") << 2 << 1 << QString();
        QTest::newRow("scheme -1") << -1 << 1 << QString();
    }

    void directionKeys()
    {
        QFETCH(int, scheme);
        QFETCH(int, number);
        QTEST(settingskeys::directionKey(static_cast<DonutScheme>(scheme), number), "key");
    }

    void initialValues_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const QVector<QPair<const char *, const char *>> rows = {
            {"EnableMouseGesture", "1"},
            {"ActiveScheme", "4"}, // the store says "8"; see tst_settingsstore
            {"41", "ID_ZOOM_BOUNDS"},
            {"42", "ID_OPEN"},
            {"43", "ID_SAVE"},
            {"44", "ID_LINE"},
            {"81", "ID_ZOOM_BOUNDS"},
            {"82", "ID_OFFSET"},
            {"83", "ID_OPEN"},
            {"84", "ID_COPY"},
            {"85", "ID_SAVE"},
            {"86", "ID_DTEXT"},
            {"87", "ID_LINE"},
            {"88", "ID_TRIM"},
            {"40", ""},
            {"45", ""},
            {"80", ""},
            {"89", ""},
            {"99", ""},
            {"activescheme", ""},
            {"", ""},
        };
        for (const auto &row : rows)
            QTest::newRow(row.first)
                << QString::fromLatin1(row.first) << QString::fromLatin1(row.second);
    }

    void initialValues()
    {
        QFETCH(QString, key);
        QTEST(settingskeys::initialValue(key), "value");
    }

    void commonKeys()
    {
        QCOMPARE(settingskeys::enableMouseGesture(), QStringLiteral("EnableMouseGesture"));
        QCOMPARE(settingskeys::activeScheme(), QStringLiteral("ActiveScheme"));
    }

    void helperDataKinds()
    {
        QCOMPARE(DonutHelperData::kIcon, 0);
        QCOMPARE(DonutHelperData::kText, 1);
    }
};

QTEST_MAIN(CommandRecordTest)
#include "tst_commandrecord.moc"
