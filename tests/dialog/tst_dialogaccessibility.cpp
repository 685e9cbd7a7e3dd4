// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QAccessible>
#include <QTest>

#include <memory>

using tests::kCommand;
using tests::kDirection;
using tests::TestDialog;

// The dialog as a screen reader sees it.
class DialogAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void controls_data();
    void controls();
    void everyControlIsAsserted();
    void description();
    void cells();
    void directionEditor();
    void dropDownsOpenAndHaveTheirLists();
    void otherDropDownsStayQtsOwn();

private:
    static QAccessibleInterface *read(QObject *object)
    {
        return QAccessible::queryAccessibleInterface(object);
    }

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void DialogAccessibilityTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 20, false);
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*m_dialog));
}

void DialogAccessibilityTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DialogAccessibilityTest::controls_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *control, const char *name, QAccessible::Role role,
                        const char *value = "") {
        QTest::newRow(control) << QString(QLatin1String(name)) << int(role)
                               << QString(QLatin1String(value));
    };
    row("category_comboBox", "Category", QAccessible::ComboBox, "All Commands");
    row("filter_checkBox", "Mouse Gesture assigned commands", QAccessible::CheckBox);
    row("search_lineEdit", "Search for commands", QAccessible::EditableText, "typed");
    row("enableGesture_checkBox", "Enable mouse gestures", QAccessible::CheckBox);
    row("four_radioButton", "4 Gestures", QAccessible::RadioButton);
    row("eight_radioButton", "8 Gestures", QAccessible::RadioButton);
    row("reset_pushButton", "Reset to Defaults", QAccessible::Button);
    row("print_pushButton", "Print List", QAccessible::Button);
    row("command_tableView", "Commands and their gestures", QAccessible::Table,
        "Commands and their gestures");
    row("description_groupBox", "Description", QAccessible::Grouping);
    row("description_label", "What \"Copy\" does to a drawing.", QAccessible::StaticText);
    row("category_label", "Category:", QAccessible::StaticText);
    row("search_label", "Search for:", QAccessible::StaticText);
}

void DialogAccessibilityTest::controls()
{
    QFETCH(QString, name);
    QFETCH(int, role);
    QFETCH(QString, value);
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("Copy"));
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(0, kCommand));
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("typed"));

    auto *control = m_dialog->findChild<QWidget *>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(control);
    QAccessibleInterface *accessible = read(control);
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Name), name);
    QCOMPARE(int(accessible->role()), role);
    QCOMPARE(accessible->text(QAccessible::Value), value);
    QCOMPARE(accessible->text(QAccessible::Description), QString());
    QCOMPARE(bool(accessible->state().disabled), !control->isEnabled());
    // Qt's table says nothing of this.
    if (accessible->role() != QAccessible::Table)
        QCOMPARE(bool(accessible->state().focusable), control->focusPolicy() != Qt::NoFocus);
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        QCOMPARE(bool(accessible->state().checked), button->isChecked());
}

// No control that takes the focus is missing from the list above.
void DialogAccessibilityTest::everyControlIsAsserted()
{
    QStringList asserted{QStringLiteral("category_comboBox"), QStringLiteral("filter_checkBox"),
                         QStringLiteral("search_lineEdit"),   QStringLiteral("enableGesture_checkBox"),
                         QStringLiteral("four_radioButton"),  QStringLiteral("eight_radioButton"),
                         QStringLiteral("reset_pushButton"),  QStringLiteral("print_pushButton"),
                         QStringLiteral("command_tableView")};
    QStringList buttons;
    const auto widgets = m_dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        if (m_dialog->ui.buttonBox->isAncestorOf(widget)) {
            QCOMPARE(read(widget)->role(), QAccessible::Button);
            QCOMPARE(read(widget)->text(QAccessible::Value), QString());
            QCOMPARE(read(widget)->text(QAccessible::Description), QString());
            buttons.append(read(widget)->text(QAccessible::Name));
            continue;
        }
        QVERIFY2(asserted.contains(widget->objectName()), qPrintable(widget->objectName()));
    }
    buttons.sort();
    QCOMPARE(buttons,
             (QStringList{QStringLiteral("Cancel"), QStringLiteral("Help"), QStringLiteral("OK")}));
    QCOMPARE(read(m_dialog.get())->text(QAccessible::Name), QStringLiteral("Mouse Gestures"));
    QCOMPARE(read(m_dialog.get())->role(), QAccessible::Dialog);
}

void DialogAccessibilityTest::description()
{
    QLabel *label = m_dialog->ui.description_label;
    // An empty label has the name of its box.
    QCOMPARE(read(label)->text(QAccessible::Name), QStringLiteral("Description"));
    for (const int row : {1, 4}) {
        tests::click(m_dialog->ui.command_tableView, m_dialog->cell(row, kCommand));
        QVERIFY(!label->text().isEmpty());
        QCOMPARE(read(label)->text(QAccessible::Name), label->text());
    }
}

void DialogAccessibilityTest::cells()
{
    QAccessibleTableInterface *table = read(m_dialog->ui.command_tableView)->tableInterface();
    QVERIFY(table);
    QCOMPARE(table->rowCount(), 20);
    for (int row = 0; row < 20; ++row) {
        const int direction = m_dialog->shownDirections().at(row);
        const QString name = direction == 0
                               ? QStringLiteral("None")
                               : m_dialog->getDirectionName(static_cast<unsigned char>(direction));
        QVERIFY(!name.isEmpty());
        QCOMPARE(table->cellAt(row, kDirection)->text(QAccessible::Name), name);
        QCOMPARE(table->cellAt(row, kCommand)->text(QAccessible::Name), m_dialog->shown().at(row));
    }
}

void DialogAccessibilityTest::directionEditor()
{
    const auto editorOf = [this](const QString &command) {
        const QModelIndex cell = m_dialog->cell(m_dialog->rowOf(command), kDirection);
        m_dialog->ui.command_tableView->scrollTo(cell);
        tests::click(m_dialog->ui.command_tableView, cell);
        return m_dialog->editor() ? read(m_dialog->editor()) : nullptr;
    };
    QAccessibleInterface *editor = editorOf(QStringLiteral("Save"));
    QVERIFY(editor);
    QCOMPARE(editor->role(), QAccessible::ComboBox);
    QCOMPARE(editor->text(QAccessible::Name), QStringLiteral("Gesture direction"));
    QCOMPARE(editor->text(QAccessible::Value), QStringLiteral("Down: Save"));
    QCOMPARE(editor->text(QAccessible::Description), QStringLiteral("Down"));
    editor = editorOf(QStringLiteral("Move Polyline"));
    QVERIFY(editor);
    QCOMPARE(editor->text(QAccessible::Value), QStringLiteral("None"));
}

void DialogAccessibilityTest::dropDownsOpenAndHaveTheirLists()
{
    QComboBox *box = m_dialog->ui.category_comboBox;
    QAccessibleInterface *accessible = read(box);
    QCOMPARE(accessible->childCount(), 1);
    QCOMPARE(accessible->child(0)->object(), box->view());
    QCOMPARE(accessible->indexOfChild(accessible->child(0)), 0);
    QVERIFY(!accessible->child(1));
    QVERIFY(!accessible->child(-1));
    QCOMPARE(accessible->indexOfChild(read(m_dialog->ui.search_lineEdit)), -1);
    QCOMPARE(accessible->indexOfChild(nullptr), -1);
    QAccessibleActionInterface *actions = accessible->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    QVERIFY(!accessible->state().expanded);
    QVERIFY(accessible->state().collapsed);
    QVERIFY(accessible->state().expandable);
    actions->doAction(QStringLiteral("no such action"));
    QVERIFY(!box->view()->isVisible());
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(box->view()->isVisible());
    QVERIFY(accessible->state().expanded);
    QVERIFY(!accessible->state().collapsed);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!box->view()->isVisible());
    QVERIFY(accessible->state().collapsed);
}

void DialogAccessibilityTest::otherDropDownsStayQtsOwn()
{
    QWidget window;
    QComboBox box(&window);
    box.setAccessibleName(QStringLiteral("label"));
    box.addItem(QStringLiteral("value"));
    const QString before = read(&box)->text(QAccessible::Name);
    m_dialog.reset();
    QComboBox second(&window);
    second.setAccessibleName(QStringLiteral("label"));
    second.addItem(QStringLiteral("value"));
    QCOMPARE(read(&second)->text(QAccessible::Name), before);
}

QTEST_MAIN(DialogAccessibilityTest)
#include "tst_dialogaccessibility.moc"
