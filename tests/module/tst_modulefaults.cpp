// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <functional>
#include <memory>

using tests::FakeFault;
using tests::FakeHost;
using tests::Misdeed;
using tests::OpenModule;

namespace {

const QString kToolsMenu = QStringLiteral("ID_MnTools");
// That the host gets in live(). A new one needs a look at what it does when it goes wrong.
constexpr int kCalls = 89;

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
    void twoAtATime();

private:
    [[nodiscard]] std::unique_ptr<FakeFault> faultOf(Desk &desk, Misdeed misdeed, int call) const;
    // What is wrong after the module's life; empty if nothing is.
    [[nodiscard]] QString complaint(Desk &desk) const;

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

std::unique_ptr<FakeFault> ModuleFaultsTest::faultOf(Desk &desk, Misdeed misdeed, int call) const
{
    if (misdeed != Misdeed::Acts)
        return std::make_unique<FakeFault>(call, misdeed);
    return std::make_unique<FakeFault>(call, [&desk] {
        desk.module.DocumentCreated(desk.host.documents.openDocuments.front());
        desk.module.LoadMenu();
        desk.module.UnLoadMenu();
        desk.module.mainFrameDestroyed(nullptr);
        MgDonutDataContainer::instance()->init();
    });
}

QString ModuleFaultsTest::complaint(Desk &desk) const
{
    // What the host did not let go of, it lets go of the next time.
    desk.module.mainFrameDestroyed(nullptr);
    if (!desk.isFree())
        return QStringLiteral("something stays registered");
    if (desk.host.documents.iteratorsAlive != 0 || desk.host.ui.iteratorsAlive != 0)
        return QStringLiteral("an iterator stays");
    // A second life is as good as the first.
    desk.module.initApp();
    desk.module.LoadMenu();
    if (desk.tools->subItems->items.empty())
        return QStringLiteral("the second life has no entry");
    desk.module.mainFrameDestroyed(nullptr);
    return desk.isFree() ? QString()
                         : QStringLiteral("something stays registered after the second life");
}

void ModuleFaultsTest::nothingStaysRegistered_data()
{
    QTest::addColumn<Misdeed>("misdeed");
    QTest::newRow("throws") << Misdeed::Throws;
    QTest::newRow("nothing") << Misdeed::GivesNothing;
    QTest::newRow("too little") << Misdeed::GivesTooLittle;
    QTest::newRow("too much") << Misdeed::GivesTooMuch;
    QTest::newRow("comes back") << Misdeed::Acts;
}

void ModuleFaultsTest::nothingStaysRegistered()
{
    QFETCH(const Misdeed, misdeed);
    int call = 0;
    for (bool isReached = true; isReached; ++call) {
        Desk desk;
        {
            const std::unique_ptr<FakeFault> fault = faultOf(desk, misdeed, call);
            live(desk.module, desk.host);
            isReached = fault->wasReached();
        }
        const QString wrong = complaint(desk);
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after call %1: %2").arg(call).arg(wrong)));
    }
    QCOMPARE(call - 1, kCalls);
}

void ModuleFaultsTest::twoAtATime()
{
    const bool holds = rc::check([this] {
        const auto someMisdeed =
            rc::gen::element(Misdeed::Throws, Misdeed::GivesNothing, Misdeed::GivesTooLittle,
                             Misdeed::GivesTooMuch, Misdeed::Acts);
        const auto someCall = rc::gen::inRange(0, kCalls);
        Desk desk;
        {
            const std::unique_ptr<FakeFault> one = faultOf(desk, *someMisdeed, *someCall);
            const std::unique_ptr<FakeFault> other = faultOf(desk, *someMisdeed, *someCall);
            live(desk.module, desk.host);
        }
        RC_ASSERT(complaint(desk).toStdString() == std::string());
    });
    QVERIFY(holds);
}

QTEST_MAIN(ModuleFaultsTest)
#include "tst_modulefaults.moc"
