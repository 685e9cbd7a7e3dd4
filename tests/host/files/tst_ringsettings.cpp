// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/RingSettings.h"

#include <QTest>

using gesturewidget::SettingsFile;
namespace ringsettings = gesturewidget::ringsettings;

class RingSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfARing_data();
    void keysOfARing();
    void aRingIsItsTasksUntilItIsShared();
    void whatIsSeenIsTheTasksRing();
    void changesGoToTheTasksRing();
    void aNewRingTakesFirstBindingsAndThenTheSharedOnes();
    void anOldRingComesBack();
    void theAdministratorsValuesAreLeftOut();
    void boundCommandsOfAllRings();
    void tasksWithOddNames_data();
    void tasksWithOddNames();

private:
    // A shared ring of two directions.
    const SettingsFile::Values m_shared{
        {QStringLiteral("GestureWidget/81"), QStringLiteral("ID_A")},
        {QStringLiteral("GestureWidget/82"), QStringLiteral("ID_B")},
        {QStringLiteral("GestureWidget/ActiveScheme"), QStringLiteral("8")}};
    static void merge(SettingsFile::Values &into, const SettingsFile::Values &values)
    {
        for (auto it = values.begin(); it != values.end(); ++it)
            into.insert(it.key(), it.value());
    }
};

void RingSettingsTest::keysOfARing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isRings");
    for (const char *key : {"41", "44", "81", "88", "ActiveScheme"})
        QTest::newRow(key) << QString::fromLatin1(key) << true;
    for (const char *key : {"EnableMouseGesture", "Trigger", "Own", ""})
        QTest::newRow(*key ? key : "empty") << QString::fromLatin1(key) << false;
}

void RingSettingsTest::keysOfARing()
{
    QFETCH(QString, key);
    QTEST(ringsettings::isRingKey(key), "isRings");
}

void RingSettingsTest::aRingIsItsTasksUntilItIsShared()
{
    SettingsFile::Values values = m_shared;
    const QString task = QStringLiteral("Sketcher");
    QVERIFY(!ringsettings::hasOwnRing(values, task));
    merge(values, ringsettings::ownRing(values, task, {}, m_shared));
    QVERIFY(ringsettings::hasOwnRing(values, task));
    QVERIFY(!ringsettings::hasOwnRing(values, QStringLiteral("Part")));
    QVERIFY(!ringsettings::hasOwnRing(values, QString()));
    merge(values, ringsettings::ownRing(values, QStringLiteral("Part"), {}, m_shared));
    QCOMPARE(ringsettings::ownRings(values), QStringList({QStringLiteral("Part"), task}));
    merge(values, ringsettings::sharedRing(task));
    QVERIFY(!ringsettings::hasOwnRing(values, task));
    QCOMPARE(ringsettings::ownRings(values), QStringList(QStringLiteral("Part")));
    QCOMPARE(values.value(QStringLiteral("GestureWidget/81")), QStringLiteral("ID_A"));
}

void RingSettingsTest::whatIsSeenIsTheTasksRing()
{
    const QString task = QStringLiteral("Sketcher");
    SettingsFile::Values values = m_shared;
    values.insert(QStringLiteral("GestureWidget/EnableMouseGesture"), QStringLiteral("0"));
    QCOMPARE(ringsettings::seenIn(values, task), values);
    values.insert(SettingsFile::nameOf(ringsettings::sectionOf(task), QStringLiteral("81")),
                  QStringLiteral("ID_C"));
    values.insert(SettingsFile::nameOf(ringsettings::sectionOf(task), QStringLiteral("Own")), task);
    const SettingsFile::Values seen = ringsettings::seenIn(values, task);
    QCOMPARE(seen.value(QStringLiteral("GestureWidget/81")), QStringLiteral("ID_C"));
    QVERIFY(!seen.contains(QStringLiteral("GestureWidget/82")));
    QCOMPARE(seen.value(QStringLiteral("GestureWidget/EnableMouseGesture")), QStringLiteral("0"));
}

void RingSettingsTest::changesGoToTheTasksRing()
{
    const SettingsFile::Values moved =
        ringsettings::movedTo({{QStringLiteral("GestureWidget/81"), QStringLiteral("ID_C")},
                               {QStringLiteral("GestureWidget/EnableMouseGesture"), QStringLiteral("1")},
                               {QStringLiteral("Host/Trigger"), QStringLiteral("middle")}},
                              QStringLiteral("Sketcher"));
    const SettingsFile::Values expected{
        {SettingsFile::nameOf(ringsettings::sectionOf(QStringLiteral("Sketcher")), QStringLiteral("81")),
         QStringLiteral("ID_C")},
        {QStringLiteral("GestureWidget/EnableMouseGesture"), QStringLiteral("1")},
        {QStringLiteral("Host/Trigger"), QStringLiteral("middle")}};
    QCOMPARE(moved, expected);
}

void RingSettingsTest::aNewRingTakesFirstBindingsAndThenTheSharedOnes()
{
    const QString task = QStringLiteral("Sketcher");
    SettingsFile::Values values = m_shared;
    // The shared ring has the command in another direction, which then stays empty.
    merge(values, ringsettings::ownRing(values, task,
                                        {{QStringLiteral("81"), QStringLiteral("ID_B")},
                                         {QStringLiteral("nonsense"), QStringLiteral("ID_X")}},
                                        m_shared));
    const SettingsFile::Values seen = ringsettings::seenIn(values, task);
    QCOMPARE(seen.value(QStringLiteral("GestureWidget/81")), QStringLiteral("ID_B"));
    QCOMPARE(seen.value(QStringLiteral("GestureWidget/82")), QString());
    QCOMPARE(seen.value(QStringLiteral("GestureWidget/ActiveScheme")), QStringLiteral("8"));
    QVERIFY(seen.contains(QStringLiteral("GestureWidget/82")));
}

void RingSettingsTest::anOldRingComesBack()
{
    const QString task = QStringLiteral("Sketcher");
    SettingsFile::Values values = m_shared;
    merge(values, ringsettings::ownRing(values, task, {}, m_shared));
    merge(values, ringsettings::movedTo(
                      {{QStringLiteral("GestureWidget/81"), QStringLiteral("ID_MINE")}}, task));
    merge(values, ringsettings::sharedRing(task));
    merge(values, ringsettings::ownRing(values, task,
                                        {{QStringLiteral("81"), QStringLiteral("ID_FIRST")}}, m_shared));
    QCOMPARE(ringsettings::seenIn(values, task).value(QStringLiteral("GestureWidget/81")),
             QStringLiteral("ID_MINE"));
}

void RingSettingsTest::theAdministratorsValuesAreLeftOut()
{
    const QString task = QStringLiteral("Sketcher");
    const QString own = SettingsFile::nameOf(ringsettings::sectionOf(task), QStringLiteral("Own"));
    const QString up = SettingsFile::nameOf(ringsettings::sectionOf(task), QStringLiteral("81"));
    const QString left = SettingsFile::nameOf(ringsettings::sectionOf(task), QStringLiteral("83"));
    // A ring that the administrator prepares, and tasks do not use at first.
    SettingsFile::Values site{{up, QStringLiteral("ID_SITE")}, {left, QString()}};
    SettingsFile::Values now = m_shared;
    merge(now, site);
    const SettingsFile::Values made = ringsettings::ownRing(now, task, {}, m_shared, site);
    QCOMPARE(made.value(own), task);
    QVERIFY(!made.contains(up) && !made.contains(left));
    QVERIFY(ringsettings::sharedRing(task, site).value(own).isNull());
    merge(now, made);
    QCOMPARE(ringsettings::seenIn(now, task).value(QStringLiteral("GestureWidget/81")),
             QStringLiteral("ID_SITE"));
    QCOMPARE(ringsettings::seenIn(now, task).value(QStringLiteral("GestureWidget/82")),
             QStringLiteral("ID_B"));

    // One that the task uses at first.
    site.insert(own, task);
    const SettingsFile::Values toShare = ringsettings::sharedRing(task, site);
    QVERIFY(toShare.contains(own) && !toShare.value(own).isNull());
    merge(now, toShare);
    QVERIFY(!ringsettings::hasOwnRing(now, task));
    const SettingsFile::Values back = ringsettings::ownRing(now, task, {}, m_shared, site);
    QCOMPARE(back.keys(), QStringList(own));
    QVERIFY(back.value(own).isNull());
}

void RingSettingsTest::boundCommandsOfAllRings()
{
    SettingsFile::Values values = m_shared;
    merge(values, ringsettings::ownRing(values, QStringLiteral("Sketcher"),
                                        {{QStringLiteral("83"), QStringLiteral("ID_C")}}, m_shared));
    QCOMPARE(ringsettings::boundCommands(values),
             QStringList({QStringLiteral("ID_A"), QStringLiteral("ID_B"), QStringLiteral("ID_C")}));
    merge(values, ringsettings::sharedRing(QStringLiteral("Sketcher")));
    QCOMPARE(ringsettings::boundCommands(values),
             QStringList({QStringLiteral("ID_A"), QStringLiteral("ID_B")}));
}

void RingSettingsTest::tasksWithOddNames_data()
{
    QTest::addColumn<QString>("task");
    for (const char *task : {"ns::View", "a/b", "with blank", "[x]", "Own", "\xc3\xa9"})
        QTest::newRow(task) << QString::fromUtf8(task);
}

void RingSettingsTest::tasksWithOddNames()
{
    QFETCH(QString, task);
    SettingsFile::Values values = m_shared;
    merge(values, ringsettings::ownRing(values, task, {}, m_shared));
    QVERIFY(ringsettings::hasOwnRing(values, task));
    QCOMPARE(ringsettings::ownRings(values), QStringList(task));
    merge(values, ringsettings::movedTo(
                      {{QStringLiteral("GestureWidget/81"), QStringLiteral("ID_MINE")}}, task));
    QCOMPARE(ringsettings::seenIn(values, task).value(QStringLiteral("GestureWidget/81")),
             QStringLiteral("ID_MINE"));
}

QTEST_APPLESS_MAIN(RingSettingsTest)
#include "tst_ringsettings.moc"
