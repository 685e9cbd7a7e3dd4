// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutSettings.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/bindings/OpenContainer.h"
#include "tests/bindings/StandardCommands.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/fakehost/Fault.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/Text.h"

#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <memory>
#include <vector>

using tests::text;

namespace {

using Table = std::vector<int>;

// A host that throws something other than a standard exception.
class OddHost : public tests::FakeHost
{
public:
    [[nodiscard]] bool UsesLargeIcons() const override
    {
        if (throwsNumbers)
            throw 42;
        return FakeHost::UsesLargeIcons();
    }
    bool throwsNumbers = false;
};

} // namespace

// The host throws in any of its operations or withholds a value. No binding is lost, and no exception
// leaves the container.
class HostFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }

    void init()
    {
        tests::resetWarnings();
        older = std::make_unique<tests::OlderSettings>();
        host = std::make_unique<OddHost>();
        tests::addStandardCommands(*host);
        tests::FakeMenuItem *draw = host->addTopLevelMenu(text("&Draw"));
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        host->ui.addItem(draw->subItems.get(), text("Line"), false, {}, group->commands[2]);
        // Settings as a user has them, with an unbound direction in either scheme.
        const QStringList ids = tests::standardIdentifiers();
        host->store.values = {{text("EnableMouseGesture"), text("0")},
                              {text("ActiveScheme"), text("4")}};
        for (int number = 1; number <= 4; ++number)
            host->store.values.insert(QString::number(40 + number), ids.value(number));
        for (int number = 1; number <= 8; ++number)
            host->store.values.insert(QString::number(80 + number), ids.value(8 - number));
        host->store.values.insert(text("43"), QString());
        host->store.values.insert(text("86"), QString());
        stored = host->store.values;
    }

    void cleanup()
    {
        subject.reset();
        QCOMPARE(host->commands.iteratorsAlive, 0);
        QCOMPARE(host->ui.iteratorsAlive, 0);
        host.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    // Fails each call of a reading in turn.
    void aFailedReadingKeepsTheLastOne()
    {
        tests::OpenContainer container;
        const Table four = container.fourTable;
        const Table eight = container.eightTable;
        const auto categories = container.categoryMap;
        QCOMPARE(four, (Table{1, 2, -1, 4}));
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            const tests::FakeFault fault(calls);
            container.init();
            reached = fault.wasReached();
            QCOMPARE(host->store.values, stored);
            QCOMPARE(container.fourTable, four);
            QCOMPARE(container.eightTable, eight);
            QCOMPARE(container.categoryMap, categories);
            QCOMPARE(container.commands.size(), std::size_t(8));
            QCOMPARE(container.commands[2].fourDirection, static_cast<unsigned char>(2));
            QCOMPARE(container.commands[2].category, text("Draw"));
            QVERIFY(!container.getGestureEnabled());
            QCOMPARE(container.getScheme(), DonutScheme::Four);
            QCOMPARE(container.getCommandNameFromIndex(0), text("dtext"));
        }
        QVERIFY2(calls > 100, qPrintable(QString::number(calls)));
        QVERIFY(!container.hasReadingFailed());
    }

    // Somebody else may change the settings, and the next reading fails: it takes over nothing. If only
    // a write fails, it takes over everything.
    void aFailedReadingTakesOverNothing()
    {
        tests::OpenContainer container;
        const Table four = container.fourTable;
        const Table eight = container.eightTable;
        QMap<QString, QString> changed = stored;
        changed.insert(text("EnableMouseGesture"), text("1"));
        changed.insert(text("ActiveScheme"), text("8"));
        changed.insert(text("41"), stored.value(text("42")));
        changed.insert(text("81"), stored.value(text("82")));
        int failures = 0;
        for (int call = 0; call < kCalls; ++call) {
            host->store.values = changed;
            host->largeIcons = true;
            {
                const tests::FakeFault fault(call);
                container.init();
                QVERIFY(fault.wasReached());
            }
            const bool hasFailed = container.hasReadingFailed();
            failures += hasFailed ? 1 : 0;
            QCOMPARE(container.fourTable == four, hasFailed);
            QCOMPARE(container.eightTable == eight, hasFailed);
            QCOMPARE(container.getGestureEnabled(), !hasFailed);
            QCOMPARE(container.getScheme(), hasFailed ? DonutScheme::Four : DonutScheme::Eight);
            QCOMPARE(container.largeIcons, !hasFailed);
            QCOMPARE(host->store.values, changed);
            host->store.values = stored;
            host->largeIcons = false;
            container.init();
            QVERIFY(!container.hasReadingFailed());
            QCOMPARE(container.fourTable, four);
        }
        QCOMPARE(failures, kCalls - 2 * 12); // a write for each direction, and for each its store
    }

    // A reading of another list may fail after it has looked up commands in that list.
    void aFailedReadingOfAnotherListIsForgotten()
    {
        tests::OpenContainer container;
        const Table four = container.fourTable;
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        const auto commands = group->commands;
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            std::reverse(group->commands.begin(), group->commands.end());
            {
                const tests::FakeFault fault(calls);
                container.init();
                reached = fault.wasReached();
            }
            group->commands = commands;
            container.init();
            QCOMPARE(container.fourTable, four);
        }
        QVERIFY2(calls > 100, qPrintable(QString::number(calls)));
    }

    // Any value may be wrong, and the host may come back in the middle. The container is whole all the
    // same, and a reading in a host that is right again makes it right.
    void oddAnswersLeaveItWhole_data()
    {
        QTest::addColumn<int>("fault"); // place in the list
        int place = 0;
        for (const tests::Fault &fault : faults)
            QTest::newRow(fault.name) << place++;
    }

    void oddAnswersLeaveItWhole()
    {
        QFETCH(const int, fault);
        subject = std::make_unique<tests::OpenContainer>();
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            {
                const auto one = faults[static_cast<std::size_t>(fault)].at(calls);
                subject->init();
                reached = one->wasReached();
            }
            const QString wrong = complaint();
            QVERIFY2(wrong.isEmpty(),
                     qPrintable(QStringLiteral("after call %1: %2").arg(calls).arg(wrong)));
        }
        QCOMPARE(calls - 1, kCalls);
    }

    void aReadingInsideAReadingIsNoChange()
    {
        subject = std::make_unique<tests::OpenContainer>();
        for (int call = 0; call < kCalls; ++call) {
            const auto one = faults.back().at(call);
            subject->init();
            QVERIFY(one->wasReached());
            QVERIFY2(!subject->isBehindSettings(), qPrintable(QString::number(call)));
        }
    }

    void aReadingInsideAReadingAsksNothing()
    {
        subject = std::make_unique<tests::OpenContainer>();
        for (int call = 0; call < kCalls; ++call) {
            bool isAsked = false;
            const tests::FakeFault inside(call, [this, &isAsked] {
                const tests::FakeFault next(0, [&isAsked] { isAsked = true; });
                subject->init();
            });
            subject->init();
            QVERIFY(inside.wasReached());
            QVERIFY2(!isAsked, qPrintable(QString::number(call)));
        }
    }

    void twoOddAnswersLeaveItWhole()
    {
        subject = std::make_unique<tests::OpenContainer>();
        const bool holds = rc::check([this] {
            const auto one = *tests::someFault(faults, kCalls);
            const auto other = *tests::someFault(faults, kCalls);
            {
                const auto first = one.start();
                const auto second = other.start();
                subject->init();
            }
            RC_ASSERT(complaint().toStdString() == std::string());
        });
        QVERIFY(holds);
    }

    // The menus may go while the host fails.
    void categoriesOfBeforeAFailureAreNotKept()
    {
        tests::OpenContainer container;
        QCOMPARE(container.commands[2].category, text("Draw"));
        {
            const tests::FakeFault fault(0);
            container.init();
            QVERIFY(fault.wasReached());
        }
        host->ui.menus.clear();
        container.init();
        QVERIFY(!container.hasReadingFailed());
        QCOMPARE(container.commands[2].category, text("Others"));
    }

    void whatCannotBeReadIsNotAChange()
    {
        tests::OpenContainer container;
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            const tests::FakeFault fault(calls);
            QVERIFY(!container.isBehindSettings());
            reached = fault.wasReached();
        }
        QVERIFY2(calls > 10, qPrintable(QString::number(calls)));
    }

    // OK in the dialog hands back what the container has. After a failed first reading that is
    // next to nothing.
    void aFailedReadingIsNotSavedOver()
    {
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            std::unique_ptr<tests::OpenContainer> container;
            {
                const tests::FakeFault fault(calls);
                container = std::make_unique<tests::OpenContainer>();
                reached = fault.wasReached();
            }
            container->update(container->getCommandsDS(), container->getGestureEnabled(),
                              container->getScheme());
            QCOMPARE(host->store.values, stored);
            // The next successful reading restores everything.
            container->init();
            QVERIFY(!container->hasReadingFailed());
            QCOMPARE(container->fourTable, (Table{1, 2, -1, 4}));
            container->update(container->getCommandsDS(), true, DonutScheme::Four);
            QCOMPARE(host->store.values.value(text("EnableMouseGesture")), text("1"));
            host->store.values = stored;
        }
        QVERIFY2(calls > 100, qPrintable(QString::number(calls)));
    }

    void aValueThatIsNotHandedOutIsNotReplaced()
    {
        host->store.getFails = true;
        tests::OpenContainer container;
        QVERIFY(container.hasReadingFailed());
        QCOMPARE(host->store.values, stored);
        container.update({}, true, DonutScheme::Eight);
        QCOMPARE(host->store.values, stored);
        host->store.getFails = false;
        QCOMPARE(container.getDonutHelperData().sectorCount, 4);
        QCOMPARE(container.fourTable, (Table{1, 2, -1, 4}));
    }

    void settingsAreLeftAloneWhenReadOneByOne()
    {
        tests::OpenContainer container;
        container.commands.clear();
        host->throwsNumbers = true;
        container.init();
        QVERIFY(container.hasReadingFailed());
        container.applyCommonSettings();
        container.applyFourSettings();
        container.applyEightSettings();
        QCOMPARE(host->store.values, stored);
    }

    // Each key is written by a call of its own, so one failure loses one key.
    void aWriteThatFailsKeepsNoOtherFromBeingMade()
    {
        tests::OpenContainer container;
        const QStringList keys = tests::allKeys();
        for (const QString &key : keys) {
            host->store.values = stored;
            container.init();
            host->log.throwOn = text("store.set ") + key;
            container.update({}, true, DonutScheme::Eight);
            host->log.throwOn.clear();
            QMap<QString, QString> expected;
            for (const QString &other : keys)
                expected.insert(other, QString());
            expected.insert(text("EnableMouseGesture"), text("1"));
            expected.insert(text("ActiveScheme"), text("8"));
            expected.insert(key, stored.value(key));
            QCOMPARE(host->store.values, expected);
            QVERIFY(container.getGestureEnabled());
        }
    }

    void resettingGoesOnToo()
    {
        older->set(text("Settings\\41"), text("ID_OLD"));
        tests::OpenContainer container;
        host->log.throwOn = text("store.set EnableMouseGesture");
        container.applyDefaultSettings();
        host->log.throwOn.clear();
        QVERIFY(older->entries().isEmpty());
        QCOMPARE(host->store.values.value(text("EnableMouseGesture")), text("0"));
        QCOMPARE(host->store.values.value(text("88")), text("ID_TRIM"));
        QVERIFY(container.isDefaultSettingsEnabled());
    }

    void menusReadOutsideAReading()
    {
        tests::OpenContainer container;
        auto *menus = static_cast<tests::FakeMenu *>(host->ui.menus.front());
        for (int call = 0; call < 3; ++call) {
            const tests::FakeFault fault(call);
            container.fcParseRecursive({}, &menus->items);
            QVERIFY(fault.wasReached());
            QVERIFY(container.hasReadingFailed());
            container.init();
            QVERIFY(!container.hasReadingFailed());
        }
    }

    void nullIterators_data()
    {
        QTest::addColumn<QString>("which");
        for (const char *which : {"menus", "groups", "commands"})
            QTest::newRow(which) << QString(QLatin1String(which));
    }

    void nullIterators()
    {
        QFETCH(QString, which);
        auto *group = static_cast<tests::FakeCommandGroup *>(host->commands.groups.front());
        host->ui.hasMenuIterator = which != QLatin1String("menus");
        host->commands.hasGroupIterator = which != QLatin1String("groups");
        group->hasCommandIterator = which != QLatin1String("commands");
        const tests::OpenContainer container;
        QVERIFY(!container.hasReadingFailed());
        QCOMPARE(container.commands.empty(), which != QLatin1String("menus"));
        if (which == QLatin1String("menus"))
            QCOMPARE(container.commands[2].category, text("Others"));
    }

private:
    // Calls that the host gets in a reading. A new one needs a look at what it does when it goes wrong.
    static constexpr int kCalls = 191;

    std::unique_ptr<tests::OpenContainer> subject; // the one that is read
    const std::vector<tests::Fault> faults =
        tests::faultsWith({{"reads again", [this] {
                                subject->init();
                                static_cast<void>(subject->getDonutHelperData());
                                static_cast<void>(subject->getCommandNameFromIndex(0));
                            }}});

    // What is wrong with a container after a reading; empty if nothing is.
    QString complaint()
    {
        const auto isWhole = [this](const Table &table) {
            return std::all_of(table.begin(), table.end(), [this](int place) {
                return place >= -1 && place < static_cast<int>(subject->commands.size());
            });
        };
        if (subject->fourTable.size() != 4 || subject->eightTable.size() != 8
            || !isWhole(subject->fourTable) || !isWhole(subject->eightTable))
            return text("a table is not whole");
        host->store.values = stored;
        subject->init();
        if (subject->hasReadingFailed() || subject->commands.size() != 8)
            return text("the next reading fails");
        const bool isRight = subject->fourTable == Table{1, 2, -1, 4} && subject->eightTable.size() == 8
                          && subject->eightTable[5] == -1;
        return isRight ? QString() : text("the next reading is wrong");
    }

    QMap<QString, QString> stored;
    std::unique_ptr<tests::OlderSettings> older;
    std::unique_ptr<OddHost> host;
};

QTEST_MAIN(HostFaultsTest)
#include "tst_hostfaults.moc"
