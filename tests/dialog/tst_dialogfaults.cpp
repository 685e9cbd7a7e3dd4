// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/fakehost/Fault.h"
#include "tests/support/FatalWarnings.h"

#include <QMessageBox>
#include <QPrintDialog>
#include <QTest>
#include <QTimer>

#include <rapidcheck.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

using tests::TestDialog;

namespace {

// What somebody does with the dialog.
enum Use { Opens, Saves, Resets, AsksForHelp };
constexpr int kUses = AsksForHelp + 1;
// Calls that the host gets, from before the dialog opens. A new one needs a look at what it does when it
// goes wrong.
constexpr int kCalls[kUses] = {342, 370, 644, 343};

const char *nameOf(Use use)
{
    static const char *const names[kUses] = {"opens", "saves", "resets", "asks for help"};
    return names[use];
}

} // namespace

Q_DECLARE_METATYPE(Use)

// The dialog in a host that throws in any of its operations, or does something else that no host should.
class DialogFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void okErasesNothingThatWasNotRead();
    void throwsWhileTheDialogOpens();
    void throwsWhileItSaves();
    void throwsWhenAskedToConfirm();
    void throwsWhenAskedForHelp();
    void anyCallMayGoWrong_data();
    void anyCallMayGoWrong();
    void anyTwoCallsMayGoWrong_data();
    void anyTwoCallsMayGoWrong();
    void theDialogMayGoBehindAQuestion();
    void theDialogMayGoBehindThePrintDialog();

private:
    // Opens a dialog of the main window and does something in it. The dialog may be gone afterwards.
    void use(Use use);
    // What is wrong afterwards; empty if nothing is.
    [[nodiscard]] QString complaint();
    void startAnew();

    std::unique_ptr<tests::FakeHost> m_host;
    QMap<QString, QString> m_stored;
    QPointer<QWidget> m_window; // the host's main window
    QPointer<TestDialog> m_dialog;
    const std::vector<tests::Fault> m_faults = tests::faultsWith(
        {{"loses the main window", // and the dialog with it
          [this] { delete std::exchange(m_window, nullptr).data(); }},
         {"handles events", [] { QCoreApplication::processEvents(); }},
         {"reads the bindings again", [] { MgDonutDataContainer::instance()->init(); }}});
};

void DialogFaultsTest::init()
{
    tests::resetWarnings();
    startAnew();
}

void DialogFaultsTest::startAnew()
{
    delete m_window;
    m_window = new QWidget;
    m_host.reset();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 10, false);
    MgDonutDataContainer::instance()->init();
    m_host->store.values.insert(QStringLiteral("81"), QStringLiteral("ID_COPY"));
    m_host->store.values.insert(QStringLiteral("84"), QString());
    MgDonutDataContainer::instance()->init();
    m_stored = m_host->store.values;
}

void DialogFaultsTest::cleanup()
{
    delete m_window;
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

// Each call of a reading fails in turn before the dialog opens. The dialog's own attempt to read again
// fails or succeeds.
void DialogFaultsTest::okErasesNothingThatWasNotRead()
{
    int calls = 0;
    for (bool reached = true; reached; ++calls) {
        {
            const tests::FakeFault fault(calls);
            MgDonutDataContainer::instance()->init();
            reached = fault.wasReached();
        }
        for (const bool again : {true, false}) {
            std::optional<tests::FakeFault> fault;
            if (again)
                fault.emplace(calls);
            TestDialog dialog;
            fault.reset();
            dialog.okPressed();
            QCOMPARE(m_host->store.values, m_stored);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
    }
    QVERIFY2(calls > 100, qPrintable(QString::number(calls)));
}

// If the menus throw, the categories come from the commands.
void DialogFaultsTest::throwsWhileTheDialogOpens()
{
    const int categories = TestDialog().ui.category_comboBox->count();
    int calls = 0;
    for (bool reached = true; reached; ++calls) {
        const tests::FakeFault fault(calls);
        const TestDialog dialog;
        reached = fault.wasReached();
        QCOMPARE(dialog.proxy->rowCount(), 10);
        QVERIFY(dialog.ui.category_comboBox->count() > 2);
        QVERIFY(dialog.ui.category_comboBox->count() <= categories);
    }
    QVERIFY2(calls > 10, qPrintable(QString::number(calls)));
}

void DialogFaultsTest::throwsWhileItSaves()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    m_host->log.throwOn = QStringLiteral("store.set");
    tests::click(dialog.button(QDialogButtonBox::Ok));
    m_host->log.throwOn.clear();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_host->store.values, m_stored);
}

void DialogFaultsTest::throwsWhenAskedToConfirm()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    for (int call = 0; call < 2; ++call) {
        const tests::FakeFault fault(call);
        tests::click(dialog.ui.reset_pushButton);
        QVERIFY(fault.wasReached());
        QVERIFY(dialog.isVisible());
        QCOMPARE(m_host->store.values, m_stored);
    }
}

void DialogFaultsTest::throwsWhenAskedForHelp()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    m_host->log.throwOn = QStringLiteral("help");
    tests::click(dialog.button(QDialogButtonBox::Help));
    m_host->log.throwOn.clear();
    QCOMPARE(m_host->log.startingWith(QStringLiteral("help")).size(), 1);
    QVERIFY(dialog.isVisible());
}

void DialogFaultsTest::use(Use use)
{
    // Settings that changed elsewhere, so that the dialog reads everything.
    m_host->store.values.insert(QStringLiteral("84"), QStringLiteral("ID_OFFSET"));
    m_dialog = new TestDialog(m_window);
    switch (use) {
    case Opens:
        break;
    case Saves:
        m_dialog->okPressed();
        break;
    case Resets:
        m_dialog->ui.reset_pushButton->setEnabled(true);
        m_dialog->ui.reset_pushButton->click();
        break;
    case AsksForHelp:
        m_dialog->button(QDialogButtonBox::Help)->click();
        break;
    }
    delete m_dialog;
}

QString DialogFaultsTest::complaint()
{
    MgDonutDataContainer *container = MgDonutDataContainer::instance();
    container->init();
    if (container->hasReadingFailed())
        return QStringLiteral("the next reading fails");
    const std::size_t commands = container->getCommandsDS().size();
    if (commands != 10)
        return QStringLiteral("the next reading finds %1 commands").arg(commands);
    return tests::warnings();
}

void DialogFaultsTest::anyCallMayGoWrong_data()
{
    QTest::addColumn<Use>("what");
    QTest::addColumn<int>("fault"); // place in the list
    for (int what = 0; what < kUses; ++what) {
        int place = 0;
        for (const tests::Fault &fault : m_faults)
            QTest::addRow("%s, %s", nameOf(static_cast<Use>(what)), fault.name)
                << static_cast<Use>(what) << place++;
    }
}

void DialogFaultsTest::anyCallMayGoWrong()
{
    QFETCH(const Use, what);
    QFETCH(const int, fault);
    // All begin with opening it.
    const int stride = tests::faultStride();
    int call = (what == Opens ? 0 : kCalls[Opens]) + fault % stride;
    for (bool isReached = true; isReached; call += stride) {
        {
            const auto one = m_faults[static_cast<std::size_t>(fault)].at(call);
            use(what);
            isReached = one->wasReached();
        }
        const QString wrong = complaint();
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after call %1: %2").arg(call).arg(wrong)));
        startAnew();
    }
    if (stride == 1)
        QCOMPARE(call - 1, kCalls[what]);
}

void DialogFaultsTest::anyTwoCallsMayGoWrong_data()
{
    QTest::addColumn<Use>("what");
    for (int what = 0; what < kUses; ++what)
        QTest::newRow(nameOf(static_cast<Use>(what))) << static_cast<Use>(what);
}

void DialogFaultsTest::anyTwoCallsMayGoWrong()
{
    QFETCH(const Use, what);
    const bool holds = rc::check([&] {
        const auto one = *tests::someFault(m_faults, kCalls[what]);
        const auto other = *tests::someFault(m_faults, kCalls[what]);
        startAnew();
        {
            const auto first = one.start();
            const auto second = other.start();
            use(what);
        }
        RC_ASSERT(complaint().toStdString() == std::string());
    });
    QVERIFY(holds);
}

// Without a host that could ask, the dialog asks itself.
void DialogFaultsTest::theDialogMayGoBehindAQuestion()
{
    m_dialog = new TestDialog(m_window);
    m_host->setPresent(false);
    bool hasAsked = false;
    QTimer::singleShot(0, this, [&] {
        hasAsked = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        delete std::exchange(m_window, nullptr).data();
    });
    m_dialog->ui.reset_pushButton->setEnabled(true);
    m_dialog->ui.reset_pushButton->click();
    m_host->setPresent(true);
    QVERIFY(hasAsked);
    QVERIFY(!m_dialog);
}

void DialogFaultsTest::theDialogMayGoBehindThePrintDialog()
{
    m_dialog = new TestDialog(m_window);
    bool hasAsked = false;
    QTimer::singleShot(0, this, [&] {
        hasAsked = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        delete std::exchange(m_window, nullptr).data();
    });
    m_dialog->ui.print_pushButton->click();
    QVERIFY(hasAsked);
    QVERIFY(!m_dialog);
}

QTEST_MAIN(DialogFaultsTest)
#include "tst_dialogfaults.moc"
