// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QTest>

#include <memory>
#include <optional>

using tests::TestDialog;

// The dialog in a host that throws in any of its operations.
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

private:
    std::unique_ptr<tests::FakeHost> m_host;
    QMap<QString, QString> m_stored;
};

void DialogFaultsTest::init()
{
    tests::resetWarnings();
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

QTEST_MAIN(DialogFaultsTest)
#include "tst_dialogfaults.moc"
