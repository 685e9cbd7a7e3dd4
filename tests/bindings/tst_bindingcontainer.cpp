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

#include <map>
#include <memory>

using tests::text;

namespace {

using Table = std::vector<int>;

// Places of the factory defaults among the standard commands.
Table defaultFour()
{
    return {7, 4, 5, 2};
}
Table defaultEight()
{
    return {7, 3, 4, 0, 5, 1, 2, 6};
}

} // namespace

class BindingContainerTest : public QObject
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
    }

    void cleanup()
    {
        QCOMPARE(host->commands.iteratorsAlive, 0);
        host.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void anEmptyStoreTakesTheDefaults()
    {
        const tests::OpenContainer container;
        QVERIFY(container.getGestureEnabled());
        QCOMPARE(container.getScheme(), DonutScheme::Eight);
        QCOMPARE(container.fourTable, defaultFour());
        QCOMPARE(container.eightTable, defaultEight());
        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("EnableMouseGesture=1 ActiveScheme=8 41=ID_ZOOM_BOUNDS 42=ID_OPEN 43=ID_SAVE "
                      "44=ID_LINE 81=ID_ZOOM_BOUNDS 82=ID_OFFSET 83=ID_OPEN 84=ID_COPY 85=ID_SAVE "
                      "86=ID_DTEXT 87=ID_LINE 88=ID_TRIM"));
        QVERIFY(container.isDefaultSettingsEnabled());
        // ID_LINE is right in both schemes, ID_COPY down-left in the eight scheme alone.
        QCOMPARE(container.commands[2].fourDirection, static_cast<unsigned char>(4));
        QCOMPARE(container.commands[2].eightDirection, static_cast<unsigned char>(7));
        QCOMPARE(container.commands[0].fourDirection, static_cast<unsigned char>(0));
        QCOMPARE(container.commands[0].eightDirection, static_cast<unsigned char>(4));
    }

    void anEmptyStoreTakesWhatTheHostOffersOfTheDefaults()
    {
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        group->commands.resize(5); // without ID_SAVE, ID_TRIM and ID_ZOOM_BOUNDS
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{-1, 4, -1, 2}));
        QCOMPARE(container.eightTable, (Table{-1, 3, 4, 0, -1, 1, 2, -1}));
        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("EnableMouseGesture=1 ActiveScheme=8 41= 42=ID_OPEN 43= 44=ID_LINE 81= "
                      "82=ID_OFFSET 83=ID_OPEN 84=ID_COPY 85= 86=ID_DTEXT 87=ID_LINE 88="));
    }

    void enableFlag_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("kept");
        QTest::newRow("on") << "1" << true << "1";
        QTest::newRow("off") << "0" << false << "0";
        QTest::newRow("empty") << "" << true << "1";
        QTest::newRow("word") << "false" << true << "1";
        QTest::newRow("number") << "2" << true << "1";
        QTest::newRow("blanks") << " 0" << true << "1";
        QTest::newRow("leading zero") << "00" << true << "1";
        QTest::newRow("binary") << QString(2, QChar(QChar::Null)) << true << "1";
        QTest::newRow("huge") << QString(1024 * 1024, QLatin1Char('0')) << true << "1";
    }

    void enableFlag()
    {
        QFETCH(QString, stored);
        QFETCH(QString, kept);
        host->store.values = {{text("EnableMouseGesture"), stored}};
        const tests::OpenContainer container;
        QTEST(container.getGestureEnabled(), "enabled");
        QCOMPARE(host->store.values.value(text("EnableMouseGesture")), kept);
        // A valid value is not written again.
        QCOMPARE(host->log.startingWith(text("store.set EnableMouseGesture")).size(),
                 stored == kept ? 0 : 1);
    }

    void activeScheme_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("scheme");
        QTest::addColumn<QString>("kept");
        QTest::newRow("four") << "4" << 0 << "4";
        QTest::newRow("eight") << "8" << 1 << "8";
        QTest::newRow("six") << "6" << 1 << "8";
        QTest::newRow("number of the four scheme") << "0" << 1 << "8";
        QTest::newRow("empty") << "" << 1 << "8";
        QTest::newRow("forty-four") << "44" << 1 << "8";
        QTest::newRow("other digit four") << QString(QChar(0x0664)) << 1 << "8";
        QTest::newRow("huge") << QString(1024 * 1024, QLatin1Char('4')) << 1 << "8";
    }

    void activeScheme()
    {
        QFETCH(QString, stored);
        QFETCH(QString, kept);
        host->store.values = {{text("ActiveScheme"), stored}};
        const tests::OpenContainer container;
        QTEST(static_cast<int>(container.getScheme()), "scheme");
        QCOMPARE(host->store.values.value(text("ActiveScheme")), kept);
        QCOMPARE(host->log.startingWith(text("store.set ActiveScheme")).size(), stored == kept ? 0 : 1);
    }

    void onlyOneKeyStored()
    {
        host->store.values = {{text("41"), text("ID_TRIM")}, {text("85"), text("ID_COPY")}};
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{6, -1, -1, -1}));
        QCOMPARE(container.eightTable, (Table{-1, -1, -1, -1, 0, -1, -1, -1}));
        QCOMPARE(tests::writes(*host).mid(2).join(QLatin1Char(' ')),
                 text("41=ID_TRIM 42= 43= 44= 81= 82= 83= 84= 85=ID_COPY 86= 87= 88="));
    }

    // Each scheme decides by its own keys whether it is untouched.
    void oneSchemeStored()
    {
        host->store.values = {{text("44"), QString()}};
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{-1, -1, -1, -1}));
        QCOMPARE(container.eightTable, defaultEight());
    }

    void unknownIdentifiersAreErased_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("unknown") << "ID_GONE";
        QTest::newRow("command string") << "line";
        QTest::newRow("caption") << "Line";
        QTest::newRow("other case") << "id_line";
        QTest::newRow("blank at the end") << "ID_LINE ";
        QTest::newRow("null character at the end") << QString(text("ID_LINE") + QChar(QChar::Null));
        QTest::newRow("huge") << text("ID_LINE").repeated(200000);
    }

    void unknownIdentifiersAreErased()
    {
        QFETCH(QString, stored);
        host->store.values = {{text("42"), stored}, {text("43"), text("ID_LINE")}};
        host->store.values.insert(text("ActiveScheme"), text("4"));
        tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{-1, -1, 2, -1}));
        QCOMPARE(host->store.values.value(text("42"), text("missing")), QString());
        QCOMPARE(container.getCommandNameFromIndex(1), QString());
        QCOMPARE(container.getDonutHelperData().sectorVisuals.at(1),
                 (std::pair<int, QVariant>(1, QString())));
    }

    // A host may have a command without an identifier. An empty value still means "unbound".
    void anEmptyValueBindsNothing()
    {
        host->commands.addCommand(QString(), text("nameless"), text("Nameless"));
        host->store.values = {{text("41"), QString()}};
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{-1, -1, -1, -1}));
    }

    void oneCommandInTwoDirections()
    {
        host->store.values = {{text("41"), text("ID_LINE")}, {text("43"), text("ID_LINE")}};
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, (Table{2, -1, 2, -1}));
        QCOMPARE(container.commands[2].fourDirection, static_cast<unsigned char>(3));
        QCOMPARE(host->store.values.value(text("41")), text("ID_LINE"));
    }

    void olderSettingsAreTakenOver()
    {
        older->writeFile("[Gesture]\nSettings%5CEnableMouseGesture=0\nSettings%5CActiveScheme=4\n"
                         "Settings%5C42=ID_TRIM\nSettings%5C88=ID_GONE\n");
        const tests::OpenContainer container;
        QVERIFY(!container.getGestureEnabled());
        QCOMPARE(container.getScheme(), DonutScheme::Four);
        QCOMPARE(container.fourTable, (Table{-1, 6, -1, -1}));
        QCOMPARE(container.eightTable, Table(8, -1));
        QCOMPARE(container.getCommandNameFromIndex(1), text("trim"));
        // A value from the older settings is stored unchanged first and repaired afterwards.
        QCOMPARE(tests::writes(*host).join(QLatin1Char(' ')),
                 text("EnableMouseGesture=0 ActiveScheme=4 41= 42=ID_TRIM 42=ID_TRIM 43= 44= 81= 82= "
                      "83= 84= 85= 86= 87= 88=ID_GONE 88="));
    }

    void olderNullValuesAreRepaired()
    {
        older->writeFile("[Gesture]\nSettings%5CEnableMouseGesture=@Invalid()\n"
                         "Settings%5CActiveScheme=@Invalid()\nSettings%5C42=@Invalid()\n");
        const tests::OpenContainer container;
        QVERIFY(container.getGestureEnabled());
        QCOMPARE(container.getScheme(), DonutScheme::Eight);
        QCOMPARE(container.fourTable, Table(4, -1));
        QCOMPARE(tests::writes(*host).mid(0, 6).join(QLatin1Char(' ')),
                 text("EnableMouseGesture=1 ActiveScheme=8 41= 42= 43= 44="));
    }

    void aStoreThatKeepsNothing()
    {
        host->store.setFails = true;
        const tests::OpenContainer container;
        QCOMPARE(container.fourTable, defaultFour());
        QCOMPARE(container.eightTable, defaultEight());
        QVERIFY(host->store.values.isEmpty());
    }

    // HostFaultsTest covers a container that has read before.
    void aStoreThatHandsOutNothing()
    {
        host->store.values = {{text("EnableMouseGesture"), text("0")}, {text("41"), text("ID_LINE")}};
        host->store.getFails = true;
        const tests::OpenContainer container;
        QVERIFY(container.hasReadingFailed());
        QVERIFY(tests::writes(*host).isEmpty());
        for (int d = 0; d < 8; ++d)
            QCOMPARE(container.getCommandNameFromIndex(d), QString());
    }

    void withoutAProfileStoreTheDefaultsHold()
    {
        host->hasProfileStore = false;
        const tests::OpenContainer container;
        QVERIFY(container.getGestureEnabled());
        QCOMPARE(container.getScheme(), DonutScheme::Eight);
        QCOMPARE(container.fourTable, defaultFour());
        QCOMPARE(container.eightTable, defaultEight());
    }

    void withoutCommandsNothingIsBound_data()
    {
        QTest::addColumn<bool>("hasServices");
        QTest::newRow("no command manager") << true;
        QTest::newRow("no services") << false;
    }

    void withoutCommandsNothingIsBound()
    {
        QFETCH(bool, hasServices);
        tests::OpenContainer container;
        QCOMPARE(container.commands.size(), std::size_t(8));
        host->hasCommandManager = false;
        host->setPresent(hasServices);
        container.init();
        QVERIFY(container.getCommandsDS().empty());
        QCOMPARE(container.fourTable, Table(4, -1));
        QCOMPARE(container.eightTable, Table(8, -1));
        QCOMPARE(container.getDonutHelperData().sectorCount, 8);
        QVERIFY(!container.isDefaultSettingsEnabled());
    }

    void recordsFollowTheHost()
    {
        tests::FakeCommandItem *arc =
            host->commands.addCommand(text("ID_ARC"), text("arc"), text("Arc"), text("Draws an arc"));
        arc->smallIcon = tests::anyIcon();
        arc->largeIcon = tests::anyIcon();
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("&Draw"));
        host->ui.addItem(draw->subItems.get(), text("Arc"), false, {}, arc);

        tests::OpenContainer container;
        const std::vector<MgCommandDS> records = container.getCommandsDS();
        QCOMPARE(records.size(), std::size_t(9));
        for (int i = 0; i < 8; ++i)
            QCOMPARE(records[i].id, tests::standardIdentifiers().at(i));
        QCOMPARE(records[8].id, text("ID_ARC"));
        QCOMPARE(records[8].command, text("arc"));
        QCOMPARE(records[8].displayName, text("Arc"));
        QCOMPARE(records[8].category, text("Draw"));
        QCOMPARE(records[8].tooltip, text("Draws an arc"));
        QCOMPARE(records[8].icon.cacheKey(), arc->smallIcon.cacheKey());
        QCOMPARE(records[8].fourDirection, static_cast<unsigned char>(0));
        QCOMPARE(records[8].eightDirection, static_cast<unsigned char>(0));
        QVERIFY(!container.largeIcons);

        host->largeIcons = true;
        container.init();
        QVERIFY(container.largeIcons);
        QCOMPARE(container.getCommandsDS()[8].icon.cacheKey(), arc->largeIcon.cacheKey());
        // The chosen size alone decides, even if that icon is null.
        arc->largeIcon = QIcon();
        container.init();
        QVERIFY(container.getCommandsDS()[8].icon.isNull());
        // And back.
        host->largeIcons = false;
        container.init();
        QVERIFY(!container.largeIcons);
        QCOMPARE(container.getCommandsDS()[8].icon.cacheKey(), arc->smallIcon.cacheKey());
    }

    // The ring has to open at once, so a reading that finds what the last one found copies nothing.
    void recordsThatHoldStayWhereTheyAre()
    {
        tests::OpenContainer container;
        const MgCommandDS *records = container.commands.data();
        container.init();
        QCOMPARE(container.commands.data(), records);
        // Saved records may be old; these are not.
        container.update(container.getCommandsDS(), true, DonutScheme::Eight);
        records = container.commands.data();
        container.init();
        QCOMPARE(container.commands.data(), records);
    }

    void everyGroupIsAskedForItsName()
    {
        auto *first = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        const tests::FakeCommandGroup *second = host->commands.addGroup(text("Nothing in it"));
        const tests::OpenContainer container;
        QCOMPARE(first->nameReadings, 1);
        QCOMPARE(second->nameReadings, 1);
    }

    void commandsThatCannotBeUsedAreSkipped()
    {
        auto *first = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        first->commands = {nullptr, first->commands[2], nullptr};
        host->commands.addCommand(text("ID_NULL"), QString(), text("Null"));
        host->commands.addCommand(text("ID_EMPTY"), text(""), text("Empty"));
        host->commands.groups.push_back(nullptr);
        host->commands.addGroup(text("Nothing in it"));
        host->commands.addGroup(text("Last"));
        host->commands.addCommand(text("ID_ARC"), text("arc"), QString());
        host->commands.groups.push_back(nullptr);
        const tests::OpenContainer container;
        QCOMPARE(container.commands.size(), std::size_t(2));
        QCOMPARE(container.commands[0].id, text("ID_LINE"));
        QCOMPARE(container.commands[1].id, text("ID_ARC"));
    }

    void aCommandOfTwoGroupsMakesTwoRecords()
    {
        auto *first = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        host->commands.addGroup(text("Again"))->commands = {first->commands[2], first->commands[2]};
        const tests::OpenContainer container;
        QCOMPARE(container.commands.size(), std::size_t(10));
        QCOMPARE(container.commands[9].id, text("ID_LINE"));
        // The first of them is the one that is bound.
        QCOMPARE(container.fourTable[3], 2);
        QCOMPARE(container.commands[8].fourDirection, static_cast<unsigned char>(0));
    }

    void theDirectionDecidesTheCommand_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("command");
        const QStringList four = text("zoom_bounds open save line").split(QLatin1Char(' '));
        for (int d = 0; d < 4; ++d)
            QTest::addRow("four %d", d) << 0 << d << four.at(d);
        const QStringList eight =
            text("zoom_bounds offset open copy save dtext line trim").split(QLatin1Char(' '));
        for (int d = 0; d < 8; ++d) {
            QTest::addRow("eight %d", d) << 1 << d << eight.at(d);
            QTest::addRow("any other scheme %d", d) << 2 << d << eight.at(d);
        }
        // One past the last sector: where the two ends of the circle meet.
        QTest::newRow("four sector count") << 0 << 4 << QString();
        QTest::newRow("eight sector count") << 1 << 8 << QString();
        QTest::newRow("four none") << 0 << -1 << QString();
        QTest::newRow("eight none") << 1 << -1 << QString();
        QTest::newRow("largest") << 1 << INT_MAX << QString();
        QTest::newRow("smallest") << 0 << INT_MIN << QString();
    }

    void theDirectionDecidesTheCommand()
    {
        QFETCH(int, scheme);
        QFETCH(int, direction);
        tests::OpenContainer container;
        container.scheme = static_cast<DonutScheme>(scheme);
        QTEST(container.getCommandNameFromIndex(direction), "command");
    }

    // While the host is being read, the tables still belong to the previous records.
    void placesWithoutARecordRunNothing()
    {
        tests::OpenContainer container;
        container.commands.clear();
        for (int d = 0; d < 8; ++d)
            QCOMPARE(container.getCommandNameFromIndex(d), QString());
        QVERIFY(!container.isDefaultSettingsEnabled());
    }

    void theDonutShowsIconsElseNames()
    {
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        auto *line = static_cast<tests::FakeCommandItem *>(group->commands[2]);
        line->smallIcon = tests::anyIcon();
        host->store.values = {{text("ActiveScheme"), text("4")},
                              {text("42"), text("ID_LINE")},
                              {text("44"), text("ID_TRIM")}};
        tests::OpenContainer container;
        const DonutHelperData data = container.getDonutHelperData();
        QCOMPARE(data.sectorCount, 4);
        QCOMPARE(data.sectorVisuals.size(), std::size_t(4));
        QCOMPARE(data.sectorTooltips.size(), std::size_t(4));
        const std::pair<int, QVariant> unbound(1, QString());
        QCOMPARE(data.sectorVisuals.at(0), unbound);
        QCOMPARE(data.sectorVisuals.at(1).first, 0);
        QCOMPARE(data.sectorVisuals.at(1).second.value<QIcon>().cacheKey(), line->smallIcon.cacheKey());
        QCOMPARE(data.sectorVisuals.at(2), unbound);
        QCOMPARE(data.sectorVisuals.at(3), (std::pair<int, QVariant>(1, text("Trim"))));
        QCOMPARE(data.sectorTooltips.at(0), QString());
        QCOMPARE(data.sectorTooltips.at(1), text("Tip of Line"));
        QCOMPARE(data.sectorTooltips.at(2), QString());
        QCOMPARE(data.sectorTooltips.at(3), text("Tip of Trim"));
        QCOMPARE(data.sectorNames,
                 (std::map<int, QString>{
                     {0, QString()}, {1, text("Line")}, {2, QString()}, {3, text("Trim")}}));
    }

    void theDonutShowsEightSectors()
    {
        tests::OpenContainer container;
        const DonutHelperData data = container.getDonutHelperData();
        QCOMPARE(data.sectorCount, 8);
        QStringList shown;
        for (int d = 0; d < 8; ++d) {
            QCOMPARE(data.sectorVisuals.at(d).first, 1);
            shown.append(data.sectorVisuals.at(d).second.toString());
        }
        QCOMPARE(shown.join(QLatin1Char(' ')),
                 text("Zoom_bounds Offset Open Copy Save Dtext Line Trim"));
    }

    void theDonutShowsWhatHoldsNow()
    {
        tests::OpenContainer container;
        QCOMPARE(container.getDonutHelperData().sectorCount, 8);
        // The settings change elsewhere, and the host learns another command.
        host->commands.addCommand(text("ID_ARC"), text("arc"), text("Arc"));
        host->store.values.insert(text("ActiveScheme"), text("4"));
        host->store.values.insert(text("43"), text("ID_ARC"));
        const DonutHelperData data = container.getDonutHelperData();
        QCOMPARE(data.sectorCount, 4);
        QCOMPARE(data.sectorVisuals.at(2).second.toString(), text("Arc"));
        QCOMPARE(container.getCommandNameFromIndex(2), text("arc"));
    }

    void aSchemeWithoutATableShowsNothing_data()
    {
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<int>("count");
        QTest::newRow("four") << "4" << 4;
        QTest::newRow("eight") << "8" << 8;
    }

    void aSchemeWithoutATableShowsNothing()
    {
        QFETCH(QString, scheme);
        host->store.values = {{text("ActiveScheme"), scheme}};
        tests::OpenContainer container;
        container.fourTable.clear();
        container.eightTable.clear();
        const DonutHelperData data = container.getDonutHelperData();
        QTEST(data.sectorCount, "count");
        QVERIFY(data.sectorVisuals.empty());
        QVERIFY(data.sectorTooltips.empty());
        QCOMPARE(container.getCommandNameFromIndex(0), QString());
        QVERIFY(container.isDefaultSettingsEnabled());
    }

    // Holds icons until the process ends, after the application object is gone.
    void thereIsOne()
    {
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        static_cast<tests::FakeCommandItem *>(group->commands[2])->smallIcon = tests::anyIcon();
        QVERIFY(!tests::OpenContainer::_pinstance);
        MgDonutDataContainer *container = MgDonutDataContainer::instance();
        QCOMPARE(tests::OpenContainer::_pinstance, container);
        QCOMPARE(MgDonutDataContainer::instance(), container);
        QCOMPARE(host->log.startingWith(text("store.set")).size(), 14);
        QCOMPARE(container->getCommandNameFromIndex(0), text("zoom_bounds"));
        QVERIFY(container->getGestureEnabled());
        {
            const tests::OpenContainer another;
        }
        QCOMPARE(tests::OpenContainer::_pinstance, container);
    }

    void aThousandCommands()
    {
        for (int i = 0; i < 40; ++i) {
            tests::FakeMenuItem *menu = host->addTopLevelMenu(text("&Menu ") + QString::number(i));
            for (int j = 0; j < 25; ++j) {
                const QString name = QStringLiteral("%1_%2").arg(i).arg(j);
                tests::FakeCommandItem *item = host->commands.addCommand(
                    text("ID_") + name, text("command ") + name, text("Command ") + name);
                host->ui.addItem(menu->subItems.get(), name, false, {}, item);
            }
        }
        tests::OpenContainer container;
        DonutHelperData data;
        QBENCHMARK
        {
            host->log.clear();
            data = container.getDonutHelperData();
        }
        QCOMPARE(container.commands.size(), std::size_t(1008));
        QCOMPARE(container.commands.back().category, text("Menu 39"));
        QCOMPARE(data.sectorVisuals.size(), std::size_t(8));
    }

private:
    std::unique_ptr<tests::OlderSettings> older;
    std::unique_ptr<tests::FakeHost> host;
};

QTEST_MAIN(BindingContainerTest)
#include "tst_bindingcontainer.moc"
