// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QHeaderView>
#include <QTest>
#include <QToolButton>

#include <memory>

using tests::kDirection;
using tests::TestDialog;

// Uses the dialog with the keyboard only.
class DialogKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void searchFieldHasTheFocusFirst();
    void searchFieldCanBeClearedWithOneClick();
    void controlFGoesToTheSearchField();
    void goesFromTheSearchFieldToTheFirstHit_data();
    void goesFromTheSearchFieldToTheFirstHit();
    void enterInTheSearchFieldPressesNothing();
    void bindsACommandWithoutTheMouse();
    void enterChoosesAndPressesNothing_data();
    void enterChoosesAndPressesNothing();
    void sortsByKeys();
    void headerTellsOfTheKeys();

private:
    void open();

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void DialogKeysTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 40, false);
}

void DialogKeysTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DialogKeysTest::open()
{
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*m_dialog));
}

void DialogKeysTest::searchFieldHasTheFocusFirst()
{
    open();
    QVERIFY(m_dialog->ui.search_lineEdit->hasFocus());
    // While gestures are off, the search field is disabled.
    m_host->store.values.insert(QStringLiteral("EnableMouseGesture"), QStringLiteral("0"));
    open();
    QVERIFY(m_dialog->ui.enableGesture_checkBox->hasFocus());
}

void DialogKeysTest::searchFieldCanBeClearedWithOneClick()
{
    open();
    tests::type(m_dialog.get(), QStringLiteral("line"));
    QVERIFY(m_dialog->proxy->rowCount() < 40);
    auto *clear = m_dialog->ui.search_lineEdit->findChild<QToolButton *>();
    QVERIFY(clear);
    QVERIFY(m_dialog->ui.search_lineEdit->isClearButtonEnabled());
    tests::click(clear);
    QCOMPARE(m_dialog->ui.search_lineEdit->text(), QString());
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
}

void DialogKeysTest::controlFGoesToTheSearchField()
{
    open();
    tests::type(m_dialog.get(), QStringLiteral("line"));
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(0, kDirection));
    QVERIFY(!m_dialog->ui.search_lineEdit->hasFocus());
    tests::key(m_dialog.get(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_dialog->ui.search_lineEdit->hasFocus());
    // The text is selected, so typing replaces it.
    QCOMPARE(m_dialog->ui.search_lineEdit->selectedText(), QStringLiteral("line"));
    // Also if the field has the focus already.
    tests::type(m_dialog.get(), QStringLiteral("poly"));
    QVERIFY(!m_dialog->ui.search_lineEdit->hasSelectedText());
    tests::key(m_dialog.get(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(m_dialog->ui.search_lineEdit->selectedText(), QStringLiteral("poly"));
}

void DialogKeysTest::goesFromTheSearchFieldToTheFirstHit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Down") << int(Qt::Key_Down);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void DialogKeysTest::goesFromTheSearchFieldToTheFirstHit()
{
    QFETCH(int, key);
    open();
    const MgCommandTableView *table = m_dialog->ui.command_tableView;
    for (const char *search : {"poly", "trim", "e"}) {
        tests::key(m_dialog.get(), Qt::Key_F, Qt::ControlModifier);
        tests::type(m_dialog.get(), QLatin1String(search));
        tests::key(m_dialog.get(), static_cast<Qt::Key>(key));
        QCOMPARE(table->currentIndex(), m_dialog->cell(0, kDirection));
        QCOMPARE(table->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(table->selectionModel()->selectedRows().front().row(), 0);
        QVERIFY(m_dialog->editor());
        QVERIFY(m_dialog->editor()->hasFocus());
        QCOMPARE(m_dialog->ui.description_label->text(),
                 QStringLiteral("What \"%1\" does to a drawing.").arg(m_dialog->shown().front()));
    }
    QVERIFY(m_dialog->isVisible());
}

void DialogKeysTest::enterInTheSearchFieldPressesNothing()
{
    open();
    tests::type(m_dialog.get(), QStringLiteral("no such command"));
    for (const Qt::Key which : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        tests::key(m_dialog.get(), which);
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->ui.search_lineEdit->hasFocus());
    }
}

void DialogKeysTest::bindsACommandWithoutTheMouse()
{
    open();
    tests::type(m_dialog.get(), QStringLiteral("copy"));
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Space);
    tests::key(m_dialog.get(), Qt::Key_Home);
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_COPY")).eightDirection), 1);
    // Pressed again in the new editor, it does nothing.
    tests::key(m_dialog.get(), Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    tests::key(m_dialog.get(), Qt::Key_Escape);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_host->store.values.value(QStringLiteral("81")), QStringLiteral("ID_COPY"));
}

void DialogKeysTest::enterChoosesAndPressesNothing_data()
{
    QTest::addColumn<Qt::Key>("enter");
    QTest::addColumn<bool>("isListOnScreen");
    QTest::newRow("Return") << Qt::Key_Return << true;
    QTest::newRow("Enter") << Qt::Key_Enter << true;
    // A fast hand is ahead of the window system. The keys still go to the dialog's window then.
    QTest::newRow("Return, list not on the screen yet") << Qt::Key_Return << false;
    QTest::newRow("Enter, list not on the screen yet") << Qt::Key_Enter << false;
}

void DialogKeysTest::enterChoosesAndPressesNothing()
{
    QFETCH(const Qt::Key, enter);
    QFETCH(const bool, isListOnScreen);
    open();
    tests::type(m_dialog.get(), QStringLiteral("copy"));
    tests::key(m_dialog.get(), Qt::Key_Down);
    const QModelIndex cell = m_dialog->cell(0, kDirection);
    QWindow *dialogWindow = m_dialog->windowHandle();
    QTest::keyClick(dialogWindow, Qt::Key_F4);
    const QPointer<QWidget> list = QApplication::activePopupWidget();
    QVERIFY(list);
    QWindow *window = isListOnScreen ? list->windowHandle() : dialogWindow;
    if (!isListOnScreen)
        QApplication::setActiveWindow(nullptr);
    QTest::keyClick(window, Qt::Key_Home);
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyPress(window, enter);
    QVERIFY(!list || !list->isVisible());
    QTest::keyRelease(dialogWindow, enter);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(cell.data(Qt::EditRole).toInt(), 1);
    // The next one presses OK, as ever. Here it may come in the same millisecond; another key between
    // them tells them apart.
    m_dialog->ui.command_tableView->setFocus();
    QTest::keyClick(dialogWindow, Qt::Key_Up);
    QTest::keyClick(dialogWindow, enter);
    QVERIFY(!m_dialog->isVisible());
}

void DialogKeysTest::sortsByKeys()
{
    open();
    const QHeaderView *header = m_dialog->ui.command_tableView->horizontalHeader();
    for (int column = 0; column < 3; ++column) {
        const auto which = static_cast<Qt::Key>(Qt::Key_1 + column);
        // The table is sorted by category, ascending, from the start.
        for (const Qt::SortOrder order : {column == 0 ? Qt::DescendingOrder : Qt::AscendingOrder,
                                          column == 0 ? Qt::AscendingOrder : Qt::DescendingOrder}) {
            tests::key(m_dialog.get(), which, Qt::ControlModifier);
            QCOMPARE(m_dialog->proxy->sortColumn(), column);
            QCOMPARE(m_dialog->proxy->sortOrder(), order);
            QCOMPARE(header->sortIndicatorSection(), column);
            QCOMPARE(header->sortIndicatorOrder(), order);
        }
    }
    // There is no fourth column.
    tests::key(m_dialog.get(), Qt::Key_4, Qt::ControlModifier);
    QCOMPARE(m_dialog->proxy->sortColumn(), 2);
    QCOMPARE(m_dialog->shownDirections().front(), 8);
}

void DialogKeysTest::headerTellsOfTheKeys()
{
    open();
    const QString tip = m_dialog->ui.command_tableView->horizontalHeader()->viewport()->toolTip();
    QVERIFY(tip.contains(QLatin1String("Ctrl+1")));
}

QTEST_MAIN(DialogKeysTest)
#include "tst_dialogkeys.moc"
