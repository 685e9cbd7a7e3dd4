// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using tests::kCategory;
using tests::kCommand;
using tests::kDirection;
using tests::TestDialog;

// Uses the dialog with the mouse and the keyboard, as a person does.
class ConfigurationDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void openingWithGesturesDisabled();
    void openingWithGesturesEnabled();
    void openingWithFourScheme();
    void openingShowsWhatWasChangedElsewhere();
    void enableBoxSwitchesTheControls();
    void switchingToFourGestures();
    void switchingBackToEightLeavesResetAsItIs();
    void schemeWithTheKeyboard();

    void searching();
    void categoryWithTheMouse();
    void categoryWithTheKeyboard();
    void assignedCommandsOnly();
    void filtersTogether();
    void sortingWithTheHeader();

    void pressingARowShowsAndEditsIt_data();
    void pressingARowShowsAndEditsIt();
    void twoSelectedRowsGreyOutTheDescription();
    void noSelectedRow();
    void selectionChangesAloneDoNothing();
    void filteringKeepsTheSelection();

    void okWritesBindingsSchemeAndFlag();
    void okButtonIsTheOnlyWayToAccept();
    void cancelLeavesTheContainer_data();
    void cancelLeavesTheContainer();
    void modalRun();

    void resetAsksFirst();
    void resetDeclinedChangesNothing_data();
    void resetDeclinedChangesNothing();
    void resetConfirmed();
    void resetSwitchesToEightGestures();
    void resetStaysEnabledWhereDefaultsAreMissing();
    void cancelAfterResetKeepsTheDefaults();
    void resetWithoutServices_data();
    void resetWithoutServices();
    void isDefaultReadsTheContainerAndTheScheme();

    void badTexts_data();
    void badTexts();
    void descriptionsAreNeverRendered();
    void twoCommandsWithOneIdentifier();
    void noCommands();
    void noServices();
    void tenThousandCommands();

private:
    void open();
    void bind(const QString &command, int direction);
    QStringList storeWrites() const { return m_host->log.startingWith(QStringLiteral("store.set")); }
    QString stored(const char *key) const { return m_host->store.values.value(QLatin1String(key)); }
    QList<QWidget *> switchedControls() const
    {
        return {m_dialog->ui.category_comboBox, m_dialog->ui.search_lineEdit,
                m_dialog->ui.filter_checkBox,   m_dialog->ui.four_radioButton,
                m_dialog->ui.eight_radioButton, m_dialog->ui.print_pushButton,
                m_dialog->ui.reset_pushButton,  m_dialog->ui.command_tableView};
    }

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void ConfigurationDialogTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 40, true);
}

void ConfigurationDialogTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void ConfigurationDialogTest::open()
{
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    m_host->log.clear();
    QVERIFY(tests::showActive(*m_dialog));
}

// Gives a command a direction as a user does, by its drop-down and the keys.
void ConfigurationDialogTest::bind(const QString &command, int direction)
{
    const int row = m_dialog->rowOf(command);
    QVERIFY(row >= 0);
    m_dialog->ui.command_tableView->scrollTo(m_dialog->cell(row, kDirection));
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(row, kDirection));
    QVERIFY(m_dialog->editor());
    // If the editor was there before the click, the click has opened its list.
    if (!QApplication::activePopupWidget())
        tests::key(m_dialog.get(), Qt::Key_F4);
    tests::key(m_dialog.get(), Qt::Key_Home);
    for (int step = 0; step < direction; ++step)
        tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
}

void ConfigurationDialogTest::openingWithGesturesDisabled()
{
    m_host->store.values.insert(QStringLiteral("EnableMouseGesture"), QStringLiteral("0"));
    open();
    QVERIFY(!m_dialog->ui.enableGesture_checkBox->isChecked());
    const auto switched = switchedControls();
    for (const QWidget *control : switched)
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    for (const QWidget *control : {static_cast<QWidget *>(m_dialog->ui.category_label),
                                   static_cast<QWidget *>(m_dialog->ui.search_label),
                                   static_cast<QWidget *>(m_dialog->ui.description_groupBox),
                                   static_cast<QWidget *>(m_dialog->ui.enableGesture_checkBox),
                                   static_cast<QWidget *>(m_dialog->ui.buttonBox)})
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
    // A click on the table edits nothing.
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(0, kDirection));
    QVERIFY(!m_dialog->editor());

    tests::click(m_dialog->ui.enableGesture_checkBox);
    QVERIFY(m_dialog->ui.enableGesture_checkBox->isChecked());
    const auto controls = switchedControls();
    for (const QWidget *control : controls)
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
}

void ConfigurationDialogTest::openingWithGesturesEnabled()
{
    open();
    QVERIFY(MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    QVERIFY(m_dialog->ui.eight_radioButton->isChecked());
    QVERIFY(!m_dialog->ui.four_radioButton->isChecked());
    QVERIFY(m_dialog->ui.enableGesture_checkBox->isChecked());
    QCOMPARE(m_dialog->getScheme(), TestDialog::Eight);
    QCOMPARE(m_dialog->directionList.rowCount(), 9);
    // "Reset to Defaults" too, although there is nothing to reset. The last step of opening checks the
    // enable box, and that enables the button.
    const auto switched = switchedControls();
    for (const QWidget *control : switched)
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));

    // The second time the box is checked already, so the bindings decide.
    m_dialog->initDialogState();
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
}

void ConfigurationDialogTest::openingWithFourScheme()
{
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("4"));
    open();
    QVERIFY(MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    QVERIFY(m_dialog->ui.four_radioButton->isChecked());
    QVERIFY(!m_dialog->ui.eight_radioButton->isChecked());
    QCOMPARE(m_dialog->getScheme(), TestDialog::Four);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    m_dialog->initDialogState();
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(0, kDirection));
    QVERIFY(m_dialog->editor());
    QCOMPARE(m_dialog->editor()->count(), 5);
}

// A command line, another window or another task may have changed the settings since the last gesture.
void ConfigurationDialogTest::openingShowsWhatWasChangedElsewhere()
{
    MgDonutDataContainer::instance()->init();
    QVERIFY(!MgDonutDataContainer::instance()->isBehindSettings());
    m_host->store.values.insert(QStringLiteral("87"), QStringLiteral("ID_COPY"));
    m_host->store.values.insert(QStringLiteral("84"), QString());
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("4"));
    QVERIFY(MgDonutDataContainer::instance()->isBehindSettings());
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(!MgDonutDataContainer::instance()->isBehindSettings());
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_COPY")).eightDirection), 7);
    QCOMPARE(m_dialog->getScheme(), TestDialog::Four);
    m_dialog->okPressed();
    QCOMPARE(stored("87"), QStringLiteral("ID_COPY"));
    QCOMPARE(stored("84"), QString());
    QCOMPARE(stored("ActiveScheme"), QStringLiteral("4"));
}

void ConfigurationDialogTest::enableBoxSwitchesTheControls()
{
    open();
    m_dialog->ui.reset_pushButton->setEnabled(false);
    tests::click(m_dialog->ui.enableGesture_checkBox);
    const auto controls = switchedControls();
    for (const QWidget *control : controls)
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    // The key works as well. It enables "Reset to Defaults" for any bindings.
    QVERIFY(m_dialog->ui.enableGesture_checkBox->hasFocus());
    tests::key(m_dialog.get(), Qt::Key_Space);
    for (const QWidget *control : controls)
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
    m_dialog->disableControls();
    for (const QWidget *control : controls)
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    QCOMPARE(storeWrites(), QStringList());
}

void ConfigurationDialogTest::switchingToFourGestures()
{
    open();
    m_dialog->ui.reset_pushButton->setEnabled(false);
    tests::click(m_dialog->ui.filter_checkBox);
    QCOMPARE(m_dialog->proxy->rowCount(), 8);
    const int line = m_dialog->rowOf(QStringLiteral("Line"));
    const auto arrow = [this](const QString &command) {
        return m_dialog->cell(m_dialog->rowOf(command), kDirection)
            .data(Qt::DecorationRole)
            .value<QIcon>()
            .pixmap(32)
            .toImage();
    };
    const auto image = [](const char *name) {
        return QIcon(QStringLiteral(":/gesturewidgetimages/Resources/") + QLatin1String(name))
            .pixmap(32)
            .toImage();
    };
    QVERIFY(line >= 0);
    QCOMPARE(arrow(QStringLiteral("Save")), image("down.png"));
    QCOMPARE(arrow(QStringLiteral("Text")), image("down_right.png"));

    QSignalSpy toggled(m_dialog->ui.eight_radioButton, &QRadioButton::toggled);
    tests::click(m_dialog->ui.four_radioButton);
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(m_dialog->getScheme(), TestDialog::Four);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    // The filter was applied: it shows commands with a four direction, with the arrows of that scheme.
    QCOMPARE(m_dialog->proxy->rowCount(), 4);
    QCOMPARE(arrow(QStringLiteral("Open...")), image("left.png"));
    QCOMPARE(arrow(QStringLiteral("Save")), image("down.png"));
    QCOMPARE(arrow(QStringLiteral("Line")), image("right.png"));
    QCOMPARE(m_dialog->directionList.rowCount(), 5);
    QCOMPARE(m_dialog->directionList.index(0, 0).data().toString(), QStringLiteral("None"));
}

void ConfigurationDialogTest::switchingBackToEightLeavesResetAsItIs()
{
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("4"));
    open();
    for (const bool enabled : {true, false}) {
        m_dialog->ui.reset_pushButton->setEnabled(enabled);
        tests::click(m_dialog->ui.eight_radioButton);
        QCOMPARE(m_dialog->getScheme(), TestDialog::Eight);
        QCOMPARE(m_dialog->directionList.rowCount(), 9);
        QCOMPARE(m_dialog->ui.reset_pushButton->isEnabled(), enabled);
        tests::click(m_dialog->ui.four_radioButton);
        QCOMPARE(m_dialog->directionList.rowCount(), 5);
        QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    }
}

void ConfigurationDialogTest::schemeWithTheKeyboard()
{
    open();
    m_dialog->ui.eight_radioButton->setFocus();
    tests::key(m_dialog.get(), Qt::Key_Up);
    QVERIFY(m_dialog->ui.four_radioButton->isChecked());
    QCOMPARE(m_dialog->getScheme(), TestDialog::Four);
    tests::key(m_dialog.get(), Qt::Key_Down);
    QVERIFY(m_dialog->ui.eight_radioButton->isChecked());
    QCOMPARE(m_dialog->getScheme(), TestDialog::Eight);
}

void ConfigurationDialogTest::searching()
{
    open();
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    tests::type(m_dialog.get(), QStringLiteral("POLY"));
    QCOMPARE(m_dialog->ui.search_lineEdit->text(), QStringLiteral("POLY"));
    const QStringList found = m_dialog->shown();
    QCOMPARE(found.size(), 7);
    for (const QString &name : found)
        QVERIFY(name.contains(QLatin1String("Polyline")));
    tests::type(m_dialog.get(), QStringLiteral("x"));
    QCOMPARE(m_dialog->proxy->rowCount(), 0);
    tests::key(m_dialog.get(), Qt::Key_Backspace);
    QCOMPARE(m_dialog->shown(), found);
    tests::key(m_dialog.get(), Qt::Key_A, Qt::ControlModifier);
    tests::key(m_dialog.get(), Qt::Key_Delete);
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
}

void ConfigurationDialogTest::categoryWithTheMouse()
{
    open();
    const QPointer<QComboBox> box = m_dialog->ui.category_comboBox;
    tests::click(box, box->rect().center());
    QTRY_VERIFY(tests::chooseWithMouse(box, 3));
    QCOMPARE(box->currentText(), QStringLiteral("Draw"));
    QVERIFY(m_dialog->proxy->rowCount() > 0);
    QStringList categories = m_dialog->shown(kCategory);
    categories.removeDuplicates();
    QCOMPARE(categories, QStringList(QStringLiteral("Draw")));
}

void ConfigurationDialogTest::categoryWithTheKeyboard()
{
    open();
    m_dialog->ui.category_comboBox->setFocus();
    tests::key(m_dialog.get(), Qt::Key_End);
    QCOMPARE(m_dialog->ui.category_comboBox->currentText(), QStringLiteral("Others"));
    QStringList categories = m_dialog->shown(kCategory);
    QCOMPARE(categories.size(), 4);
    categories.removeDuplicates();
    QCOMPARE(categories, QStringList(QStringLiteral("Others")));
    tests::key(m_dialog.get(), Qt::Key_Home);
    QCOMPARE(m_dialog->proxy->rowCount(), 40);
}

void ConfigurationDialogTest::assignedCommandsOnly()
{
    open();
    tests::click(m_dialog->ui.filter_checkBox);
    QVERIFY(m_dialog->ui.filter_checkBox->isChecked());
    QCOMPARE(m_dialog->proxy->rowCount(), 8);
    const auto directions = m_dialog->shownDirections();
    for (const int direction : directions)
        QVERIFY(direction != 0);

    // A command that loses its direction is shown until the filter is asked again.
    bind(QStringLiteral("Save"), 0);
    QCOMPARE(m_dialog->proxy->rowCount(), 8);
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    tests::type(m_dialog.get(), QStringLiteral("e"));
    tests::key(m_dialog.get(), Qt::Key_Backspace);
    QCOMPARE(m_dialog->proxy->rowCount(), 7);
    QCOMPARE(m_dialog->rowOf(QStringLiteral("Save")), -1);
}

void ConfigurationDialogTest::filtersTogether()
{
    open();
    tests::click(m_dialog->ui.filter_checkBox);
    m_dialog->ui.category_comboBox->setCurrentIndex(4);
    QCOMPARE(m_dialog->shown(),
             QStringList({QStringLiteral("Offset"), QStringLiteral("Copy"), QStringLiteral("Trim")}));
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("T"));
    QCOMPARE(m_dialog->shown(), QStringList({QStringLiteral("Offset"), QStringLiteral("Trim")}));
    tests::click(m_dialog->ui.filter_checkBox);
    QVERIFY(m_dialog->proxy->rowCount() > 2);
}

void ConfigurationDialogTest::sortingWithTheHeader()
{
    open();
    QHeaderView *header = m_dialog->ui.command_tableView->horizontalHeader();
    const auto clickSection = [header](int section) {
        tests::click(header->viewport(),
                     QPoint(header->sectionViewportPosition(section) + 20, header->height() / 2));
    };
    clickSection(kCommand);
    QStringList sorted = m_dialog->shown();
    sorted.sort(Qt::CaseSensitive);
    QCOMPARE(m_dialog->shown(), sorted);
    clickSection(kDirection);
    QCOMPARE(m_dialog->shownDirections().mid(31), QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    clickSection(kDirection);
    QCOMPARE(m_dialog->shownDirections().mid(0, 9), QList<int>({8, 7, 6, 5, 4, 3, 2, 1, 0}));
}

void ConfigurationDialogTest::pressingARowShowsAndEditsIt_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("category") << kCategory;
    QTest::newRow("command") << kCommand;
    QTest::newRow("direction") << kDirection;
}

void ConfigurationDialogTest::pressingARowShowsAndEditsIt()
{
    QFETCH(int, column);
    open();
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    for (const int row : {2, 4, 4, 0}) {
        const QString name = m_dialog->shown().at(row);
        QTest::mousePress(m_dialog->windowHandle(), Qt::LeftButton, {},
                          table->viewport()->mapTo(
                              m_dialog.get(), table->visualRect(m_dialog->cell(row, column)).center()));
        // Already on the press, before the release. A press on the drop-down is not a press on the row.
        QVERIFY(m_dialog->editor());
        if (QApplication::activePopupWidget())
            tests::key(m_dialog.get(), Qt::Key_Escape);
        QCOMPARE(m_dialog->editor()->geometry(), table->visualRect(m_dialog->cell(row, kDirection)));
        QVERIFY(m_dialog->editor()->hasFocus());
        QCOMPARE(m_dialog->ui.description_label->text(),
                 QStringLiteral("What \"%1\" does to a drawing.").arg(name));
        QTest::mouseRelease(
            m_dialog->windowHandle(), Qt::LeftButton, {},
            table->viewport()->mapTo(m_dialog.get(),
                                     table->visualRect(m_dialog->cell(row, column)).center()));
        QVERIFY(m_dialog->editor());
        QCOMPARE(table->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(table->selectionModel()->selectedRows().front().row(), row);
    }
}

void ConfigurationDialogTest::twoSelectedRowsGreyOutTheDescription()
{
    open();
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier}) {
        tests::click(table, m_dialog->cell(5, kCommand));
        tests::click(table, m_dialog->cell(1, kCommand));
        QVERIFY(m_dialog->ui.description_groupBox->isEnabled());
        QVERIFY(m_dialog->ui.description_label->isEnabled());
        QVERIFY(!m_dialog->ui.description_label->text().isEmpty());

        tests::click(table, m_dialog->cell(3, kCommand), modifier);
        QCOMPARE(table->selectionModel()->selectedRows().size(),
                 modifier == Qt::ControlModifier ? 2 : 3);
        QVERIFY(!m_dialog->ui.description_groupBox->isEnabled());
        QVERIFY(!m_dialog->ui.description_label->isEnabledTo(m_dialog->ui.description_groupBox));
        QCOMPARE(m_dialog->ui.description_label->text(), QString());
    }
}

void ConfigurationDialogTest::noSelectedRow()
{
    open();
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    tests::click(table, m_dialog->cell(1, kCommand));
    tests::click(table, m_dialog->cell(3, kCommand), Qt::ControlModifier);
    QVERIFY(!m_dialog->ui.description_groupBox->isEnabled());
    table->clearSelection();
    m_dialog->viewSelectionChanged(QItemSelection(), QItemSelection());
    QVERIFY(m_dialog->ui.description_groupBox->isEnabled());
    QVERIFY(m_dialog->ui.description_label->isEnabled());
    QCOMPARE(m_dialog->ui.description_label->text(), QString());
}

void ConfigurationDialogTest::selectionChangesAloneDoNothing()
{
    open();
    m_dialog->ui.command_tableView->selectRow(2);
    QCOMPARE(m_dialog->ui.description_label->text(), QString());
    QVERIFY(!m_dialog->editor());
    // A call of the slot has the same effect as a press.
    m_dialog->viewSelectionChanged(QItemSelection(), QItemSelection());
    QVERIFY(!m_dialog->ui.description_label->text().isEmpty());
    QVERIFY(m_dialog->editor());
}

void ConfigurationDialogTest::filteringKeepsTheSelection()
{
    open();
    const QString name = QStringLiteral("Line");
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(m_dialog->rowOf(name), kCommand));
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    tests::type(m_dialog.get(), QStringLiteral("line"));
    const QItemSelectionModel *selection = m_dialog->ui.command_tableView->selectionModel();
    QCOMPARE(selection->selectedRows().size(), 1);
    QCOMPARE(selection->selectedRows().front().row(), m_dialog->rowOf(name));
    QVERIFY(!m_dialog->editor());
    tests::type(m_dialog.get(), QStringLiteral("zzz"));
    QCOMPARE(m_dialog->proxy->rowCount(), 0);
    QVERIFY(!selection->hasSelection());
}

void ConfigurationDialogTest::okWritesBindingsSchemeAndFlag()
{
    open();
    bind(QStringLiteral("Mirror Polyline"), 3);
    tests::click(m_dialog->ui.four_radioButton);
    bind(QStringLiteral("Copy"), 1);
    tests::click(m_dialog->ui.enableGesture_checkBox);
    const std::vector<MgCommandDS> copy = m_dialog->model->getCommands();
    const QString mirror = [&copy] {
        for (const MgCommandDS &record : copy) {
            if (record.displayName == QLatin1String("Mirror Polyline"))
                return record.id;
        }
        return QString();
    }();
    QCOMPARE(storeWrites(), QStringList());

    QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(stored("83"), mirror);
    QCOMPARE(stored("42"), mirror);
    QCOMPARE(stored("81"), QStringLiteral("ID_COPY"));
    QCOMPARE(stored("41"), QStringLiteral("ID_COPY"));
    QCOMPARE(stored("84"), QString());
    QCOMPARE(stored("ActiveScheme"), QStringLiteral("4"));
    QCOMPARE(stored("EnableMouseGesture"), QStringLiteral("0"));
    const MgDonutDataContainer *container = MgDonutDataContainer::instance();
    QCOMPARE(container->getScheme(), TestDialog::Four);
    QVERIFY(!container->getGestureEnabled());
    const std::vector<MgCommandDS> kept = container->getCommandsDS();
    QCOMPARE(kept.size(), copy.size());
    for (std::size_t place = 0; place < kept.size(); ++place) {
        QCOMPARE(kept[place].id, copy[place].id);
        QCOMPARE(kept[place].fourDirection, copy[place].fourDirection);
        QCOMPARE(kept[place].eightDirection, copy[place].eightDirection);
    }

    // The next dialog shows it.
    open();
    QVERIFY(m_dialog->ui.four_radioButton->isChecked());
    QVERIFY(!m_dialog->ui.enableGesture_checkBox->isChecked());
    QCOMPARE(int(m_dialog->record(mirror).fourDirection), 2);
}

void ConfigurationDialogTest::okButtonIsTheOnlyWayToAccept()
{
    open();
    Q_EMIT m_dialog->ui.buttonBox->accepted();
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(storeWrites(), QStringList());
    // It is the default button.
    m_dialog->ui.filter_checkBox->setFocus();
    tests::key(m_dialog.get(), Qt::Key_Return);
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(!storeWrites().isEmpty());
}

void ConfigurationDialogTest::cancelLeavesTheContainer_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("the button") << QStringLiteral("button");
    QTest::newRow("the Escape key") << QStringLiteral("escape");
    QTest::newRow("closing the window") << QStringLiteral("close");
}

void ConfigurationDialogTest::cancelLeavesTheContainer()
{
    QFETCH(QString, way);
    open();
    const QMap<QString, QString> before = m_host->store.values;
    bind(QStringLiteral("Copy"), 1);
    tests::click(m_dialog->ui.four_radioButton);
    tests::click(m_dialog->ui.enableGesture_checkBox);
    if (way == QLatin1String("button"))
        tests::click(m_dialog->button(QDialogButtonBox::Cancel));
    else if (way == QLatin1String("escape"))
        tests::key(m_dialog.get(), Qt::Key_Escape);
    else
        m_dialog->windowHandle()->close();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(m_host->store.values, before);
    QCOMPARE(storeWrites(), QStringList());
    QVERIFY(MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    QCOMPARE(MgDonutDataContainer::instance()->getScheme(), TestDialog::Eight);
    QVERIFY(MgDonutDataContainer::instance()->getGestureEnabled());
}

void ConfigurationDialogTest::modalRun()
{
    MgDonutDataContainer::instance()->init();
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        TestDialog dialog;
        QTimer clicker;
        connect(&clicker, &QTimer::timeout, &dialog, [&dialog, which] {
            if (dialog.isActiveWindow())
                tests::click(dialog.button(which));
        });
        clicker.start(1);
        QCOMPARE(dialog.exec(),
                 which == QDialogButtonBox::Ok ? int(QDialog::Accepted) : int(QDialog::Rejected));
    }
}

void ConfigurationDialogTest::resetAsksFirst()
{
    m_host->messageAnswer = CHxSystemServices::kMessageCancel;
    m_host->messageCaption = QStringLiteral("The drafting program");
    open();
    tests::click(m_dialog->ui.reset_pushButton);
    QCOMPARE(m_host->log.calls, QStringList(QStringLiteral("message 49")));
    QCOMPARE(m_host->messageText,
             QStringLiteral("This will delete all of the user defined mouse gestures and reset to the "
                            "factory defaults. Do you want to continue?"));
    QCOMPARE(m_host->lastMessageCaption, QStringLiteral("The drafting program"));
}

void ConfigurationDialogTest::resetDeclinedChangesNothing_data()
{
    QTest::addColumn<int>("answer");
    for (const int answer : {2, 0, -1, 6})
        QTest::addRow("answer %d", answer) << answer;
}

void ConfigurationDialogTest::resetDeclinedChangesNothing()
{
    QFETCH(int, answer);
    m_host->messageAnswer = answer;
    open();
    bind(QStringLiteral("Copy"), 1);
    tests::click(m_dialog->ui.four_radioButton);
    tests::click(m_dialog->ui.reset_pushButton);
    QCOMPARE(m_host->log.startingWith(QStringLiteral("message")).size(), 1);
    QCOMPARE(storeWrites(), QStringList());
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_COPY")).eightDirection), 1);
    QCOMPARE(m_dialog->getScheme(), TestDialog::Four);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
}

void ConfigurationDialogTest::resetConfirmed()
{
    m_host->store.values = {{QStringLiteral("81"), QStringLiteral("ID_COPY")},
                            {QStringLiteral("EnableMouseGesture"), QStringLiteral("1")}};
    open();
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    bind(QStringLiteral("Line"), 2);
    tests::click(m_dialog->ui.reset_pushButton);
    // Store, container and table change at once.
    QCOMPARE(stored("81"), QStringLiteral("ID_ZOOM_BOUNDS"));
    QCOMPARE(stored("84"), QStringLiteral("ID_COPY"));
    QCOMPARE(stored("44"), QStringLiteral("ID_LINE"));
    QVERIFY(MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_LINE")).eightDirection), 7);
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_COPY")).eightDirection), 4);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
    QCOMPARE(m_dialog->directionList.item(2)->toolTip(), QStringLiteral("Up left: Offset"));
    // The table still works.
    bind(QStringLiteral("Line"), 2);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
}

void ConfigurationDialogTest::resetSwitchesToEightGestures()
{
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QStringLiteral("4"));
    open();
    tests::click(m_dialog->ui.reset_pushButton);
    QVERIFY(m_dialog->ui.eight_radioButton->isChecked());
    QCOMPARE(m_dialog->getScheme(), TestDialog::Eight);
    QCOMPARE(m_dialog->directionList.rowCount(), 9);
    QCOMPARE(stored("ActiveScheme"), QStringLiteral("8"));
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
}

void ConfigurationDialogTest::resetStaysEnabledWhereDefaultsAreMissing()
{
    auto *group = static_cast<tests::FakeCommandGroup *>(m_host->commands.groups.front());
    group->commands.erase(group->commands.begin());
    open();
    tests::click(m_dialog->ui.reset_pushButton);
    QCOMPARE(m_host->log.startingWith(QStringLiteral("message")).size(), 1);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
}

void ConfigurationDialogTest::cancelAfterResetKeepsTheDefaults()
{
    m_host->store.values.insert(QStringLiteral("81"), QStringLiteral("ID_COPY"));
    open();
    QVERIFY(!MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    tests::click(m_dialog->ui.reset_pushButton);
    bind(QStringLiteral("Line"), 2);
    tests::click(m_dialog->button(QDialogButtonBox::Cancel));
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(MgDonutDataContainer::instance()->isDefaultSettingsEnabled());
    QCOMPARE(stored("82"), QStringLiteral("ID_OFFSET"));
    QCOMPARE(stored("87"), QStringLiteral("ID_LINE"));
}

void ConfigurationDialogTest::resetWithoutServices_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
}

// The dialog asks with a box of its own then. Without a store nothing is kept and without commands
// nothing can be bound, so only an empty table shows that the reset was done.
void ConfigurationDialogTest::resetWithoutServices()
{
    QFETCH(bool, confirmed);
    open();
    m_host->setPresent(false);
    int asked = 0;
    QTimer answerer;
    connect(&answerer, &QTimer::timeout, this, [&asked, confirmed] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isActiveWindow())
            return;
        ++asked;
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        QVERIFY(box->text().startsWith(QLatin1String("This will delete all")));
        tests::click(box->button(confirmed ? QMessageBox::Ok : QMessageBox::Cancel));
    });
    answerer.start(1);
    tests::click(m_dialog->ui.reset_pushButton);
    m_host->setPresent(true);
    QCOMPARE(asked, 1);
    QCOMPARE(m_dialog->model->rowCount(), confirmed ? 0 : 40);
}

void ConfigurationDialogTest::isDefaultReadsTheContainerAndTheScheme()
{
    open();
    QVERIFY(m_dialog->isDefaultSettingsEnabled());
    // Not the working copy.
    bind(QStringLiteral("Line"), 2);
    QVERIFY(m_dialog->isDefaultSettingsEnabled());
    tests::click(m_dialog->ui.four_radioButton);
    QVERIFY(!m_dialog->isDefaultSettingsEnabled());
    tests::click(m_dialog->ui.eight_radioButton);
    QVERIFY(m_dialog->isDefaultSettingsEnabled());
    m_host->store.values.insert(QStringLiteral("88"), QStringLiteral("ID_LINE"));
    MgDonutDataContainer::instance()->init();
    QVERIFY(!m_dialog->isDefaultSettingsEnabled());
}

void ConfigurationDialogTest::badTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("line breaks") << QStringLiteral("first\nsecond\r\nthird\u2028fourth\u2029fifth");
    QTest::newRow("right to left") << QString::fromUtf8("ارسم خطًا (Line) شريط");
    QTest::newRow("turned round") << QString::fromUtf8("\u202egnp.enil\u202c");
    QTest::newRow("markup") << QStringLiteral("<h1>Line</h1><img src=\"/etc/hostname\">&amp;");
    QTest::newRow("ampersands") << QStringLiteral("Cut && &Paste");
    QTest::newRow("null characters") << QString::fromLatin1("a\0b", 3);
    QTest::newRow("half a character") << QString(QChar(0xd83d));
    QTest::newRow("object placeholder") << QString(3, QChar(QChar::ObjectReplacementCharacter));
    QTest::newRow("outside the first plane") << QString::fromUtf8("✏️📐𝔸");
    QTest::newRow("enormous") << QString(100000, QLatin1Char('W'));
    QTest::newRow("enormous in lines") << QStringLiteral("line\n").repeated(20000);
}

void ConfigurationDialogTest::badTexts()
{
    QFETCH(QString, text);
    m_host.reset();
    m_host = std::make_unique<tests::FakeHost>();
    auto *menu = m_host->addTopLevelMenu(text);
    auto *item =
        m_host->commands.addCommand(QStringLiteral("ID_BAD"), QStringLiteral("bad"), text, text);
    m_host->ui.addItem(menu->subItems.get(), QStringLiteral("entry"), false, {}, item);
    m_host->commands.addCommand(QStringLiteral("ID_GOOD"), QStringLiteral("good"),
                                QStringLiteral("Good"));
    open();
    const int row = m_dialog->rowOf(text);
    QVERIFY(row >= 0);
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(row, kCommand));
    // A very long description is cut far beyond what the label can show.
    QCOMPARE(m_dialog->ui.description_label->text(), text.left(10000));
    QVERIFY(m_dialog->editor());
    bind(text, 5);
    QCOMPARE(int(m_dialog->record(QStringLiteral("ID_BAD")).eightDirection), 5);
    QVERIFY(!m_dialog->grab().isNull());

    // The search finds it, and so does its category.
    m_dialog->ui.search_lineEdit->setMaxLength(200000);
    m_dialog->ui.search_lineEdit->setText(text.left(20));
    if (m_dialog->ui.search_lineEdit->text() == text.left(20))
        QVERIFY(m_dialog->rowOf(text) >= 0);
    m_dialog->ui.search_lineEdit->clear();
    m_dialog->ui.category_comboBox->setCurrentIndex(1);
    // A command in a menu without a caption is filed under its own caption.
    QCOMPARE(m_dialog->rowOf(text) >= 0, !text.isEmpty());
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QCOMPARE(stored("85"), QStringLiteral("ID_BAD"));
}

void ConfigurationDialogTest::descriptionsAreNeverRendered()
{
    const QString markup = QStringLiteral("<b>bold</b> <font size=\"7\">large</font><br><br>");
    auto *group = static_cast<tests::FakeCommandGroup *>(m_host->commands.groups.front());
    static_cast<tests::FakeCommandItem *>(group->commands[0])->tip = markup;
    static_cast<tests::FakeCommandItem *>(group->commands[0])->caption = markup;
    open();
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(m_dialog->rowOf(markup), kCommand));
    const QLabel *label = m_dialog->ui.description_label;
    QCOMPARE(label->text(), markup);
    // The label is as tall as plain text, not as tall as rendered markup.
    QLabel plain;
    plain.setFont(label->font());
    plain.setWordWrap(true);
    plain.setContentsMargins(label->contentsMargins());
    plain.setTextFormat(Qt::PlainText);
    plain.setText(markup);
    QLabel rich;
    rich.setFont(label->font());
    rich.setWordWrap(true);
    rich.setText(markup);
    QCOMPARE(label->heightForWidth(371), plain.heightForWidth(371));
    QVERIFY(rich.heightForWidth(371) != plain.heightForWidth(371));
}

void ConfigurationDialogTest::twoCommandsWithOneIdentifier()
{
    m_host->commands.addCommand(QStringLiteral("ID_LINE"), QStringLiteral("other"),
                                QStringLiteral("Another Line"));
    open();
    // The first one is bound. Each can get a direction of its own.
    QCOMPARE(m_dialog->model->rowCount(), 41);
    bind(QStringLiteral("Another Line"), 2);
    QCOMPARE(
        m_dialog->cell(m_dialog->rowOf(QStringLiteral("Line")), kDirection).data(Qt::EditRole).toInt(),
        7);
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QCOMPARE(stored("82"), QStringLiteral("ID_LINE"));
    QCOMPARE(stored("87"), QStringLiteral("ID_LINE"));
    // The settings hold only the identifier, so both directions come back to the first.
    open();
    QCOMPARE(m_dialog->cell(m_dialog->rowOf(QStringLiteral("Another Line")), kDirection)
                 .data(Qt::EditRole)
                 .toInt(),
             0);
}

void ConfigurationDialogTest::noCommands()
{
    m_host->commands.groups.clear();
    open();
    QCOMPARE(m_dialog->proxy->rowCount(), 0);
    tests::click(m_dialog->ui.command_tableView, QPoint(60, 60));
    QVERIFY(!m_dialog->editor());
    m_dialog->openEditor(QModelIndex());
    QCOMPARE(m_dialog->ui.description_label->text(), QString());
    tests::click(m_dialog->ui.four_radioButton);
    tests::click(m_dialog->ui.filter_checkBox);
    tests::click(m_dialog->ui.reset_pushButton);
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(stored("81"), QString());
}

void ConfigurationDialogTest::noServices()
{
    m_host->setPresent(false);
    open();
    QCOMPARE(m_dialog->proxy->rowCount(), 0);
    QCOMPARE(m_dialog->ui.category_comboBox->count(), 2);
    QVERIFY(m_dialog->ui.enableGesture_checkBox->isChecked());
    tests::click(m_dialog->button(QDialogButtonBox::Help));
    QVERIFY(m_dialog->isVisible());
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QVERIFY(!m_dialog->isVisible());
    m_host->setPresent(true);
}

void ConfigurationDialogTest::tenThousandCommands()
{
    m_host.reset();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 10000, true);
    open();
    QCOMPARE(m_dialog->proxy->rowCount(), 10000);
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    tests::type(m_dialog.get(), QStringLiteral("Move Spline 77"));
    QCOMPARE(m_dialog->shown(), QStringList(QStringLiteral("Move Spline 77")));
    bind(QStringLiteral("Move Spline 77"), 8);
    m_dialog->ui.search_lineEdit->clear();
    tests::click(m_dialog->ui.filter_checkBox);
    QCOMPARE(m_dialog->proxy->rowCount(), 8);
    QVERIFY(m_dialog->rowOf(QStringLiteral("Move Spline 77")) >= 0);
    tests::click(m_dialog->button(QDialogButtonBox::Ok));
    QVERIFY(!stored("88").isEmpty());
    QVERIFY(stored("88") != QLatin1String("ID_TRIM"));
}

QTEST_MAIN(ConfigurationDialogTest)
#include "tst_configurationdialog.moc"
