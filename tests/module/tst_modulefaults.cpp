// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/bindings/OlderSettings.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/fakehost/Fault.h"
#include "tests/module/OpenModule.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <rapidcheck.h>

#include <algorithm>
#include <memory>
#include <vector>

using tests::FakeFault;
using tests::FakeHost;
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

// Each call into the host goes wrong in each way while the module comes, stays and goes.
class ModuleFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup()
    {
        m_desk.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void aThrowLeavesNoHalfOfAnEntry();
    void anEntryThatIsRefusedAfterAllIsTakenOut();
    void nothingStaysRegistered_data();
    void nothingStaysRegistered();
    void twoAtATime();

private:
    // Of the desk that is there at the moment.
    std::unique_ptr<Desk> m_desk;
    const std::vector<tests::Fault> m_faults = tests::faultsWith(
        {{"comes back", [this] {
              m_desk->module.DocumentCreated(m_desk->host.documents.openDocuments.front());
              m_desk->module.LoadMenu();
              m_desk->module.UnLoadMenu();
              m_desk->module.mainFrameDestroyed(nullptr);
              MgDonutDataContainer::instance()->init();
          }}});

    // What is wrong after the module's life; empty if nothing is.
    [[nodiscard]] QString complaint();

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

QString ModuleFaultsTest::complaint()
{
    Desk &desk = *m_desk;
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
    QTest::addColumn<int>("fault"); // place in the list
    int place = 0;
    for (const tests::Fault &fault : m_faults)
        QTest::newRow(fault.name) << place++;
}

void ModuleFaultsTest::nothingStaysRegistered()
{
    QFETCH(const int, fault);
    int call = 0;
    for (bool isReached = true; isReached; ++call) {
        m_desk = std::make_unique<Desk>();
        {
            const auto one = m_faults[static_cast<std::size_t>(fault)].at(call);
            live(m_desk->module, m_desk->host);
            isReached = one->wasReached();
        }
        const QString wrong = complaint();
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after call %1: %2").arg(call).arg(wrong)));
        m_desk.reset();
    }
    QCOMPARE(call - 1, kCalls);
}

void ModuleFaultsTest::twoAtATime()
{
    const bool holds = rc::check([this] {
        const auto one = *tests::someFault(m_faults, kCalls);
        const auto other = *tests::someFault(m_faults, kCalls);
        m_desk.reset(); // it is the process's host while it lives
        m_desk = std::make_unique<Desk>();
        {
            const auto first = one.start();
            const auto second = other.start();
            live(m_desk->module, m_desk->host);
        }
        RC_ASSERT(complaint().toStdString() == std::string());
    });
    QVERIFY(holds);
}

QTEST_MAIN(ModuleFaultsTest)
#include "tst_modulefaults.moc"
