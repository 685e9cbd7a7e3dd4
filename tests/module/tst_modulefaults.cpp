// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using tests::FakeFault;
using tests::FakeHost;
using tests::Misdeed;
using tests::OpenModule;

namespace {

const QString kToolsMenu = QStringLiteral("ID_MnTools");

// A host with two documents and a Tools menu, and a module in it.
class Desk
{
public:
    Desk()
    {
        tools = host.addTopLevelMenu(QStringLiteral("&Tools"), kToolsMenu);
        host.commands.addCommand(QStringLiteral("ID_LINE"), QStringLiteral("line"),
                                 QStringLiteral("Line"));
        for (int number = 0; number < 2; ++number)
            host.documents.open();
        // Its first reading writes many settings, once in a process.
        MgDonutDataContainer::instance()->init();
        menuItems = host.ui.menuItems.size();
    }

    [[nodiscard]] const tests::FakeWorkspace &workspace() const
    {
        return *static_cast<tests::FakeWorkspace *>(host.ui.workspaces.front());
    }
    // The entry and its command are complete, once.
    [[nodiscard]] bool hasEntry() const
    {
        if (tools->subItems->items.size() != 1 || host.ui.commandItems.size() != 1
            || host.ui.menuItems.size() != menuItems + 1 || workspace().commandItems.size() != 1)
            return false;
        const auto *entry = static_cast<tests::FakeMenuItem *>(tools->subItems->items.front());
        const tests::FakeCommandItem &item = *host.ui.commandItems.front();
        return entry->text == QLatin1String("Mouse Gestures...") && entry->command == &item
            && item.caption == QLatin1String("Mouse Gestures")
            && item.command == QLatin1String("^C^C_GESTURE") && !item.tip.isEmpty();
    }
    // Neither is there, nor a part of them.
    [[nodiscard]] bool hasNoTrace() const
    {
        return tools->subItems->items.empty() && host.ui.commandItems.empty()
            && host.ui.menuItems.size() == menuItems && workspace().commandItems.empty();
    }
    // The module is registered nowhere.
    [[nodiscard]] bool isFree() const
    {
        const auto isEmpty = [](const tests::FakeDocument *document) {
            return document->input.trackers.empty();
        };
        return host.stack.commands.empty() && host.documents.reactors.empty()
            && std::all_of(host.documents.openDocuments.begin(), host.documents.openDocuments.end(),
                           isEmpty);
    }

    FakeHost host;
    tests::FakeMenuItem *tools = nullptr;
    std::size_t menuItems = 0; // before the module came
    OpenModule module;
};

// The module's life in a host, from its first call to its last.
void live(OpenModule &module, FakeHost &host)
{
    module.initApp();
    module.mainFrameCreated(nullptr);
    tests::FakeDocument *third = host.documents.open();
    module.DocumentCreated(third);
    module.DatabaseDetached(third);
    module.mainFrameDestroyed(nullptr);
    module.uninitApp();
}

} // namespace

Q_DECLARE_METATYPE(Misdeed)

// Each call into the host goes wrong in each way while the module comes, stays and goes.
class ModuleFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aThrowLeavesNoHalfOfAnEntry();
    void anEntryThatIsRefusedAfterAllIsTakenOut();
    void nothingStaysRegistered_data();
    void nothingStaysRegistered();

private:
    tests::OlderSettings m_settings;
};

void ModuleFaultsTest::aThrowLeavesNoHalfOfAnEntry()
{
    int calls = 0;
    int whole = 0;
    int none = 0;
    for (bool isReached = true; isReached; ++calls) {
        Desk desk;
        {
            const FakeFault fault(calls);
            desk.module.LoadMenu();
            isReached = fault.wasReached();
        }
        whole += desk.hasEntry();
        none += desk.hasNoTrace();
        QVERIFY2(desk.hasEntry() || desk.hasNoTrace(), qPrintable(QString::number(calls)));
        if (desk.hasNoTrace())
            desk.module.LoadMenu();
        QVERIFY(desk.hasEntry());
    }
    // The entry is whole if the menus' refresh fails, or nothing. A new call needs a look.
    QCOMPARE(none, 26);
    QCOMPARE(whole, 4);
}

// A host that takes the entry and fails then.
void ModuleFaultsTest::anEntryThatIsRefusedAfterAllIsTakenOut()
{
    class LateCollection : public tests::FakeMenuItemCollection
    {
    public:
        void Append(CHxUIMenuItem *item) override
        {
            FakeMenuItemCollection::Append(item);
            throw std::runtime_error("too late");
        }
    };
    Desk desk;
    desk.tools->subItems = std::make_unique<LateCollection>();
    desk.module.LoadMenu();
    QVERIFY(desk.hasNoTrace());
}

void ModuleFaultsTest::nothingStaysRegistered_data()
{
    QTest::addColumn<Misdeed>("misdeed");
    QTest::addColumn<int>("calls"); // that the host gets; a new one needs a look
    constexpr int kCalls = 89;
    QTest::newRow("throws") << Misdeed::Throws << kCalls;
    QTest::newRow("nothing") << Misdeed::GivesNothing << kCalls;
    QTest::newRow("too little") << Misdeed::GivesTooLittle << kCalls;
    QTest::newRow("too much") << Misdeed::GivesTooMuch << kCalls;
    QTest::newRow("comes back") << Misdeed::Acts << kCalls;
}

void ModuleFaultsTest::nothingStaysRegistered()
{
    QFETCH(const Misdeed, misdeed);
    QFETCH(const int, calls);
    int call = 0;
    for (bool isReached = true; isReached; ++call) {
        Desk desk;
        const auto comeBack = [&desk] {
            desk.module.DocumentCreated(desk.host.documents.openDocuments.front());
            desk.module.LoadMenu();
            desk.module.UnLoadMenu();
            desk.module.mainFrameDestroyed(nullptr);
            MgDonutDataContainer::instance()->init();
        };
        {
            const std::unique_ptr<FakeFault> fault = misdeed == Misdeed::Acts
                                                       ? std::make_unique<FakeFault>(call, comeBack)
                                                       : std::make_unique<FakeFault>(call, misdeed);
            live(desk.module, desk.host);
            isReached = fault->wasReached();
        }
        // What the host did not let go of, it lets go of the next time.
        desk.module.mainFrameDestroyed(nullptr);
        const QString place = QStringLiteral("call %1").arg(call);
        QVERIFY2(desk.isFree(), qPrintable(place));
        QCOMPARE(desk.host.documents.iteratorsAlive, 0);
        QCOMPARE(desk.host.ui.iteratorsAlive, 0);
        // A second life is as good as the first.
        desk.module.initApp();
        desk.module.LoadMenu();
        QVERIFY2(!desk.tools->subItems->items.empty(), qPrintable(place));
        desk.module.mainFrameDestroyed(nullptr);
        QVERIFY2(desk.isFree(), qPrintable(place));
    }
    QCOMPARE(call - 1, calls);
}

QTEST_MAIN(ModuleFaultsTest)
#include "tst_modulefaults.moc"
