// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/SettingsKeys.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/OpenContainer.h"
#include "tests/bindings/StandardCommands.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/Text.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using tests::text;

namespace {

using Table = std::vector<int>;

} // namespace

class ContainerUpdateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void init()
    {
        tests::resetWarnings();
        older = std::make_unique<tests::OlderSettings>();
        host = std::make_unique<tests::FakeHost>();
        tests::addStandardCommands(*host);
        container = std::make_unique<tests::OpenContainer>();
        host->log.clear();
    }

    void cleanup()
    {
        container.reset();
        host.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void writesInTheOrderOfTheRecords()
    {
        std::vector<MgCommandDS> records = unbound();
        records[0].eightDirection = 5; // ID_COPY
        records[2].fourDirection = 3; // ID_LINE
        records[2].eightDirection = 1;
        records[6].fourDirection = 1; // ID_TRIM
        container->update(records, false, DonutScheme::Four);

        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("85=ID_COPY 43=ID_LINE 81=ID_LINE 41=ID_TRIM 42= 44= 82= 83= 84= 86= 87= 88= "
                      "EnableMouseGesture=0 ActiveScheme=4"));
        // It writes without reading.
        QCOMPARE(host->log.calls.size(), 14);
        QCOMPARE(container->fourTable, (Table{6, -1, 2, -1}));
        QCOMPARE(container->eightTable, (Table{2, -1, -1, -1, 0, -1, -1, -1}));
        QVERIFY(!container->getGestureEnabled());
        QCOMPARE(container->getScheme(), DonutScheme::Four);
        QCOMPARE(container->getCommandNameFromIndex(0), text("trim"));
        QCOMPARE(container->getCommandsDS()[2].fourDirection, static_cast<unsigned char>(3));
    }

    void isBehindWhatIsStoredElsewhere()
    {
        QVERIFY(!container->isBehindSettings());
        const QMap<QString, QString> stored = host->store.values;
        for (const char *key : {"EnableMouseGesture", "ActiveScheme", "41", "44", "81", "88"}) {
            host->store.values.insert(QLatin1String(key), text("0"));
            QVERIFY2(container->isBehindSettings(), key);
            host->store.values = stored;
            QVERIFY2(!container->isBehindSettings(), key);
        }
    }

    void takesTheRecordsOver()
    {
        std::vector<MgCommandDS> records = {unbound()[3], unbound()[2]};
        records[1].eightDirection = 8;
        container->update(records, true, DonutScheme::Eight);
        QCOMPARE(container->getCommandsDS().size(), std::size_t(2));
        QCOMPARE(container->getCommandsDS()[0].id, text("ID_OFFSET"));
        QCOMPARE(container->eightTable[7], 1);
        QCOMPARE(container->getCommandNameFromIndex(7), text("line"));
    }

    void twoRecordsOfOneDirection()
    {
        std::vector<MgCommandDS> records = unbound();
        records[1].fourDirection = 2; // ID_DTEXT
        records[4].fourDirection = 2; // ID_OPEN
        records[1].eightDirection = 6;
        records[4].eightDirection = 6;
        container->update(records, true, DonutScheme::Four);
        QCOMPARE(tests::writes(*host).mid(0, 4).join(QLatin1Char(' ')),
                 text("42=ID_DTEXT 86=ID_DTEXT 42=ID_OPEN 86=ID_OPEN"));
        QCOMPARE(container->fourTable, (Table{-1, 4, -1, -1}));
        QCOMPARE(container->getCommandNameFromIndex(1), text("open"));
        QCOMPARE(host->store.values.value(text("42")), text("ID_OPEN"));
        // The earlier record keeps its direction until everything is read again.
        QCOMPARE(container->commands[1].fourDirection, static_cast<unsigned char>(2));
        QCOMPARE(container->commands[1].eightDirection, static_cast<unsigned char>(6));
        container->init();
        QCOMPARE(container->commands[1].fourDirection, static_cast<unsigned char>(0));
        QCOMPARE(container->commands[1].eightDirection, static_cast<unsigned char>(0));
        QCOMPARE(container->commands[4].fourDirection, static_cast<unsigned char>(2));
    }

    void directionsThatDoNotExistBindNothing_data()
    {
        QTest::addColumn<int>("four");
        QTest::addColumn<int>("eight");
        QTest::newRow("one too many") << 5 << 9;
        QTest::newRow("of the other scheme") << 8 << 16;
        QTest::newRow("half") << 128 << 128;
        QTest::newRow("largest") << 255 << 255;
    }

    void directionsThatDoNotExistBindNothing()
    {
        QFETCH(int, four);
        QFETCH(int, eight);
        std::vector<MgCommandDS> records = unbound();
        records[2].fourDirection = static_cast<unsigned char>(four);
        records[2].eightDirection = static_cast<unsigned char>(eight);
        records[3].fourDirection = 4;
        container->update(records, true, DonutScheme::Eight);
        QCOMPARE(container->fourTable, (Table{-1, -1, -1, 3}));
        QCOMPARE(container->eightTable, Table(8, -1));
        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("44=ID_OFFSET 41= 42= 43= 81= 82= 83= 84= 85= 86= 87= 88= "
                      "EnableMouseGesture=1 ActiveScheme=8"));
        QCOMPARE(host->store.values.size(), 14);
        // Taken over as given.
        QCOMPARE(container->commands[2].fourDirection, static_cast<unsigned char>(four));
        container->init();
        QCOMPARE(container->commands[2].fourDirection, static_cast<unsigned char>(0));
        QCOMPARE(container->commands[2].eightDirection, static_cast<unsigned char>(0));
    }

    void withoutRecordsEverythingIsUnbound()
    {
        container->update({}, true, DonutScheme::Eight);
        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("41= 42= 43= 44= 81= 82= 83= 84= 85= 86= 87= 88= "
                      "EnableMouseGesture=1 ActiveScheme=8"));
        QVERIFY(container->getCommandsDS().empty());
        QCOMPARE(container->getCommandNameFromIndex(0), QString());
    }

    void flagAndScheme_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("scheme");
        QTest::addColumn<QString>("written");
        QTest::newRow("on, four") << true << 0 << "EnableMouseGesture=1 ActiveScheme=4";
        QTest::newRow("on, eight") << true << 1 << "EnableMouseGesture=1 ActiveScheme=8";
        QTest::newRow("off, four") << false << 0 << "EnableMouseGesture=0 ActiveScheme=4";
        QTest::newRow("off, eight") << false << 1 << "EnableMouseGesture=0 ActiveScheme=8";
        QTest::newRow("any other scheme") << true << 2 << "EnableMouseGesture=1 ActiveScheme=8";
        QTest::newRow("below zero") << true << -1 << "EnableMouseGesture=1 ActiveScheme=8";
    }

    void flagAndScheme()
    {
        QFETCH(bool, enabled);
        QFETCH(int, scheme);
        container->update(unbound(), enabled, static_cast<DonutScheme>(scheme));
        QTEST(tests::writes(*host).mid(12).join(QLatin1Char(' ')), "written");
        QCOMPARE(container->getGestureEnabled(), enabled);
        QCOMPARE(static_cast<int>(container->getScheme()), scheme);
        // Back to the first state.
        container->init();
        QCOMPARE(container->getGestureEnabled(), enabled);
        QCOMPARE(container->getScheme(), scheme == 0 ? DonutScheme::Four : DonutScheme::Eight);
    }

    void survivesARestart()
    {
        std::vector<MgCommandDS> records = unbound();
        for (int i = 0; i < 8; ++i) {
            records[i].fourDirection = static_cast<unsigned char>(i < 4 ? 4 - i : 0);
            records[i].eightDirection = static_cast<unsigned char>(8 - i);
        }
        container->update(records, false, DonutScheme::Four);
        const tests::OpenContainer next;
        QCOMPARE(next.fourTable, (Table{3, 2, 1, 0}));
        QCOMPARE(next.eightTable, (Table{7, 6, 5, 4, 3, 2, 1, 0}));
        QVERIFY(!next.getGestureEnabled());
        QCOMPARE(next.getScheme(), DonutScheme::Four);
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(next.commands[i].fourDirection, records[i].fourDirection);
            QCOMPARE(next.commands[i].eightDirection, records[i].eightDirection);
        }
    }

    // The places of commands in the list are remembered; they are others in another list.
    void recordsOfAnotherListAreFound()
    {
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        std::vector<MgCommandDS> records = container->getCommandsDS();
        std::reverse(group->commands.begin(), group->commands.end());
        container->init();
        std::reverse(group->commands.begin(), group->commands.end());
        container->update(records, true, DonutScheme::Eight);
        container->init();
        for (int direction = 0; direction < 8; ++direction)
            QCOMPARE(container->commands[container->eightTable[direction]].id,
                     settingskeys::initialValue(
                         settingskeys::directionKey(DonutScheme::Eight, direction + 1)));
    }

    void takesItsOwnRecords()
    {
        container->update(container->commands, true, DonutScheme::Eight);
        QCOMPARE(container->commands.size(), std::size_t(8));
        QVERIFY(container->isDefaultSettingsEnabled());
    }

    void withoutAProfileStoreItHoldsUntilTheNextInit()
    {
        host->hasProfileStore = false;
        std::vector<MgCommandDS> records = unbound();
        records[2].fourDirection = 1;
        container->update(records, false, DonutScheme::Four);
        QVERIFY(!container->getGestureEnabled());
        QCOMPARE(container->getCommandNameFromIndex(0), text("line"));
        container->init();
        QVERIFY(container->getGestureEnabled());
        QCOMPARE(container->getCommandNameFromIndex(0), text("zoom_bounds"));
    }

    // Another program may write to the store at any time. Nothing else is taken over before the next
    // reading.
    void switchedOnElsewhereItIsNoted()
    {
        container->update(unbound(), false, DonutScheme::Four);
        QVERIFY(!container->noteSwitchedOn());
        host->store.values.insert(text("EnableMouseGesture"), text("1"));
        host->store.values.insert(text("ActiveScheme"), text("8"));
        host->log.throwOn = text("store.get EnableMouseGesture");
        QVERIFY(!container->noteSwitchedOn());
        host->log.throwOn.clear();
        host->store.getFails = true;
        QVERIFY(!container->noteSwitchedOn());
        host->store.getFails = false;
        QVERIFY(!container->getGestureEnabled());
        QVERIFY(container->noteSwitchedOn());
        QVERIFY(container->getGestureEnabled());
        QCOMPARE(container->getScheme(), DonutScheme::Four);
        // Only on: switched off elsewhere, the host keeps the press from the tracker.
        host->store.values.insert(text("EnableMouseGesture"), text("0"));
        QVERIFY(container->noteSwitchedOn());
    }

    void defaultsAreWrittenAndReadBack()
    {
        container->update(unbound(), false, DonutScheme::Four);
        older->set(text("Settings\\41"), text("ID_OLD"));
        host->log.clear();
        container->applyDefaultSettings();
        QVERIFY(container->getGestureEnabled());
        QCOMPARE(container->getScheme(), DonutScheme::Eight);
        QCOMPARE(container->fourTable, (Table{7, 4, 5, 2}));
        QCOMPARE(container->eightTable, (Table{7, 3, 4, 0, 5, 1, 2, 6}));
        QVERIFY(container->isDefaultSettingsEnabled());
        QVERIFY(older->entries().isEmpty());
        const QStringList written = tests::writes(*host);
        QCOMPARE(written.mid(0, 14).join(QLatin1Char(' ')),
                 text("EnableMouseGesture=1 ActiveScheme=8 41=ID_ZOOM_BOUNDS 42=ID_OPEN 43=ID_SAVE "
                      "44=ID_LINE 81=ID_ZOOM_BOUNDS 82=ID_OFFSET 83=ID_OPEN 84=ID_COPY 85=ID_SAVE "
                      "86=ID_DTEXT 87=ID_LINE 88=ID_TRIM"));
        // Reading them back writes the directions again, but not the other two keys.
        QCOMPARE(written.mid(14), written.mid(2, 12));
    }

    void onlyTheEightSchemeDecidesTheDefault()
    {
        std::vector<MgCommandDS> records = container->getCommandsDS();
        for (MgCommandDS &record : records)
            record.fourDirection = 0;
        records[0].fourDirection = 1;
        container->update(records, false, DonutScheme::Four);
        QVERIFY(container->isDefaultSettingsEnabled());
    }

    void everyEightDirectionDecidesTheDefault_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("place");
        for (int d = 0; d < 8; ++d) {
            QTest::addRow("%d unbound", d) << d << -1;
            QTest::addRow("%d bound otherwise", d) << d << 8;
        }
    }

    void everyEightDirectionDecidesTheDefault()
    {
        QFETCH(int, direction);
        QFETCH(int, place);
        host->commands.addCommand(text("ID_ARC"), text("arc"), text("Arc"));
        container->init();
        QVERIFY(container->isDefaultSettingsEnabled());
        container->eightTable[direction] = place;
        QVERIFY(!container->isDefaultSettingsEnabled());
    }

    void withoutADefaultsCommandItIsNotTheDefault()
    {
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        group->commands.erase(group->commands.begin());
        container->applyDefaultSettings();
        QVERIFY(!container->isDefaultSettingsEnabled());
    }

private:
    // The host's commands, none of them bound.
    [[nodiscard]] std::vector<MgCommandDS> unbound() const
    {
        std::vector<MgCommandDS> records = container->getCommandsDS();
        for (MgCommandDS &record : records)
            record.fourDirection = record.eightDirection = 0;
        return records;
    }

    std::unique_ptr<tests::OlderSettings> older;
    std::unique_ptr<tests::FakeHost> host;
    std::unique_ptr<tests::OpenContainer> container;
};

QTEST_MAIN(ContainerUpdateTest)
#include "tst_containerupdate.moc"
