// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "dialog/MgCommandModelDelegate.h"
#include "dialog/MgCommandTableView.h"
#include "dialog/MyStyle.h"
#include "dialog/Notice.h"
#include "tests/dialog/AssignmentRules.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTest>
#include <QToolTip>

#include <memory>

using tests::kCategory;
using tests::kCommand;
using tests::kDirection;
using tests::TestDialog;

namespace {

QImage drawn(const QStyle &style, QStyle::PrimitiveElement element)
{
    QImage image(60, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QStyleOptionFocusRect focus;
    QStyleOptionButton button;
    QStyleOption &option = element == QStyle::PE_FrameFocusRect ? static_cast<QStyleOption &>(focus)
                                                                : static_cast<QStyleOption &>(button);
    option.rect = QRect(2, 2, 50, 20);
    option.state = QStyle::State_Enabled | QStyle::State_On | QStyle::State_Raised
                 | QStyle::State_KeyboardFocusChange;
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    return image;
}

} // namespace

class DirectionEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void editorShowsTheCurrentDirection_data();
    void editorShowsTheCurrentDirection();
    void fiveChoicesInFourSchemeNineInEight();
    void choosingTheSelectedEntryStillCommits();
    void choosingWithTheMouse();
    void choosingWithTheKeyboard();
    void closedDropDownChoosesNothing_data();
    void closedDropDownChoosesNothing();
    void keysThatOpenTheList_data();
    void keysThatOpenTheList();
    void enterLeavesAClosedListAlone();
    void movingInTheOpenListChoosesNothing();
    void wheelOverAClosedDropDownScrollsTheTable();
    void arrowKeysGoOnToOtherCells();
    void leavingTheCellChoosesNothing_data();
    void leavingTheCellChoosesNothing();
    void editorComesBackOnlyInTheCurrentCell();
    void escapeKeepsTheDirection();
    void escapeLeavesTheEditorThenTheDialog();
    void editorLeftByClickingElsewhereStaysAway();
    void closeEditorAsksForFocusFirst();
    void otherColumnsAreNotEdited();
    void onlyTheDirectionIsWritten();
    void editorWithoutChoiceWritesNothing();
    void openEditorFollowsTheScheme();
    void commitSlotCalledDirectlyDoesNothing();
    void editorCoversTheCell();
    void sizeHints();
    void lineBreaksAreDrawnOnOneLine();
    void editorsHaveAccessibleTexts();

    void entriesSayWhoHasTheDirection();
    void robbedCommandIsNamedAtTheCell();
    void hiddenRowsHaveNoNotes();
    void undoTakesTheLastChoiceBack();
    void currentCellHasALine();
    void onlyElidedTextsHaveTooltips();
    void helpElsewhereIsTheBaseClasses();
    void focusRectangleIsTheStyles();
    void otherEditorsShowWhatTheBaseClassShows();

    void styleIsPlastiqueWhereThereIsOne();
    void styleDrawsNoFocusRectangle();
    void styleDrawsEverythingElse_data();
    void styleDrawsEverythingElse();
    void tableShowsNoFocusRectangle();
    void tableFollowsWhatChangedWhileHidden();

private:
    void open(const char *scheme);
    void openEditor(const QString &name);
    QComboBox *editor() const { return m_dialog->editor(); }
    QModelIndex directionCell(const QString &name) const
    {
        return m_dialog->cell(m_dialog->rowOf(name), kDirection);
    }

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void DirectionEditorTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    for (const char *id : {"A", "B", "C", "D", "E"})
        m_host->commands.addCommand(QLatin1String(id), QLatin1String(id), QLatin1String(id));
    m_host->store.values = {{QStringLiteral("83"), QStringLiteral("A")},
                            {QStringLiteral("43"), QStringLiteral("A")}};
}

void DirectionEditorTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DirectionEditorTest::open(const char *scheme)
{
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QLatin1String(scheme));
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*m_dialog));
    m_dialog->ui.reset_pushButton->setEnabled(false);
}

void DirectionEditorTest::openEditor(const QString &name)
{
    tests::click(m_dialog->ui.command_tableView, directionCell(name));
    QVERIFY(editor());
    QVERIFY(editor()->hasFocus());
}

void DirectionEditorTest::editorShowsTheCurrentDirection_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("row");
    QTest::newRow("none") << QStringLiteral("8") << QStringLiteral("B") << 0;
    QTest::newRow("third of eight") << QStringLiteral("8") << QStringLiteral("A") << 3;
    QTest::newRow("third of four") << QStringLiteral("4") << QStringLiteral("A") << 3;
}

void DirectionEditorTest::editorShowsTheCurrentDirection()
{
    QFETCH(QString, scheme);
    QFETCH(QString, command);
    QFETCH(int, row);
    open(qPrintable(scheme));
    openEditor(command);
    QCOMPARE(editor()->currentIndex(), row);
    QCOMPARE(editor()->currentText(), row == 0 ? QStringLiteral("None") : QString());
    QCOMPARE(editor()->itemIcon(row).isNull(), row == 0);
}

void DirectionEditorTest::fiveChoicesInFourSchemeNineInEight()
{
    for (const int count : {4, 8}) {
        open(count == 4 ? "4" : "8");
        openEditor(QStringLiteral("B"));
        QCOMPARE(editor()->model(), &m_dialog->directionList);
        QCOMPARE(editor()->count(), count + 1);
        QCOMPARE(m_dialog->directionList.columnCount(), 1);
        QCOMPARE(editor()->itemText(0), QStringLiteral("None"));
        QVERIFY(editor()->itemIcon(0).isNull());
        for (int row = 1; row <= count; ++row) {
            QCOMPARE(editor()->itemText(row), QString());
            QCOMPARE(editor()->itemIcon(row).pixmap(16).toImage(),
                     m_dialog->getDirectionIcon(static_cast<unsigned char>(row), TestDialog::Eight)
                         .pixmap(16)
                         .toImage());
            QVERIFY(!editor()->itemIcon(row).isNull());
        }
    }
}

void DirectionEditorTest::choosingTheSelectedEntryStillCommits()
{
    open("8");
    openEditor(QStringLiteral("A"));
    const QPointer<QComboBox> first = editor();
    QAbstractItemDelegate *delegate = m_dialog->ui.command_tableView->itemDelegate();
    QSignalSpy committed(delegate, &QAbstractItemDelegate::commitData);
    QList<QAbstractItemDelegate::EndEditHint> closed;
    const QObject listener;
    const auto note = [&closed](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
        closed.append(hint);
    };
    connect(delegate, &QAbstractItemDelegate::closeEditor, &listener, note);
    tests::key(m_dialog.get(), Qt::Key_F4);
    QVERIFY(first->view()->isVisible());
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(committed.count(), 1);
    QVERIFY(closed == QList<QAbstractItemDelegate::EndEditHint>{QAbstractItemDelegate::NoHint});
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 3);
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
    QTRY_VERIFY(first.isNull());
    // A new editor is in the cell, with its list closed.
    QVERIFY(editor());
    QVERIFY(editor()->hasFocus());
    QVERIFY(!editor()->view()->isVisible());
}

void DirectionEditorTest::choosingWithTheMouse()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const QPointer<QComboBox> first = editor();
    tests::click(first, first->rect().center());
    QVERIFY(first->view()->isVisible());
    QTRY_VERIFY(!first || tests::chooseWithMouse(first, 3));

    // The direction was A's. Both schemes show the change.
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 3);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).fourDirection), 2);
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 0);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    QTRY_VERIFY(first.isNull());
    QVERIFY(editor());
    QCOMPARE(editor()->currentIndex(), 3);
}

void DirectionEditorTest::choosingWithTheKeyboard()
{
    open("4");
    m_dialog->ui.command_tableView->setFocus();
    m_dialog->ui.command_tableView->setCurrentIndex(m_dialog->cell(0, kCategory));
    QVERIFY(!editor());
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Right);
    QVERIFY(!editor());
    // Moving to the cell starts editing.
    tests::key(m_dialog.get(), Qt::Key_Right);
    QVERIFY(editor());
    const QPointer<QComboBox> first = editor();
    QCOMPARE(first->currentIndex(), 0);
    tests::key(m_dialog.get(), Qt::Key_Space);
    QVERIFY(first->view()->isVisible());
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).fourDirection), 2);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 3);
    QTRY_VERIFY(first.isNull());
    QVERIFY(editor());
    QVERIFY(editor()->hasFocus());
}

void DirectionEditorTest::closedDropDownChoosesNothing_data()
{
    QTest::addColumn<int>("key");
    const Qt::Key keys[] = {Qt::Key_Down,     Qt::Key_Up,   Qt::Key_Home,     Qt::Key_End,
                            Qt::Key_PageDown, Qt::Key_N,    Qt::Key_PageUp,   Qt::Key_0,
                            Qt::Key_Delete,   Qt::Key_Left, Qt::Key_Backspace};
    for (const Qt::Key which : keys)
        QTest::newRow(qPrintable(QKeySequence(which).toString())) << int(which);
    QTest::newRow("wheel") << 0;
}

// The wheel and keys pass entries. Each of them would take a direction from another command.
void DirectionEditorTest::closedDropDownChoosesNothing()
{
    QFETCH(int, key);
    for (const char *command : {"A", "B"}) {
        open("8");
        openEditor(QLatin1String(command));
        const std::vector<MgCommandDS> before = m_dialog->model->getCommands();
        for (int time = 0; time < 9; ++time) {
            if (key == 0 && editor())
                tests::wheel(editor(), editor()->rect().center(), time % 2 == 0 ? -120 : 120);
            else if (key != 0)
                tests::key(m_dialog.get(), static_cast<Qt::Key>(key));
            QVERIFY(!QApplication::activePopupWidget());
        }
        QCOMPARE(tests::bytesOf(m_dialog->model->getCommands()), tests::bytesOf(before));
        QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
        QVERIFY(m_dialog->isVisible());
    }
}

void DirectionEditorTest::keysThatOpenTheList_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier);
    QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier);
}

void DirectionEditorTest::keysThatOpenTheList()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    open("8");
    openEditor(QStringLiteral("B"));
    tests::key(m_dialog.get(), static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(editor()->view()->isVisible());
    // Enter takes the entry that the list has moved to.
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Enter);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 2);
    QVERIFY(m_dialog->isVisible());
}

void DirectionEditorTest::enterLeavesAClosedListAlone()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const int before = m_dialog->record(QStringLiteral("B")).eightDirection;
    const QPointer<QComboBox> box = editor();
    for (const Qt::Key which : {Qt::Key_Return, Qt::Key_Enter}) {
        tests::key(m_dialog.get(), which);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(box && box->hasFocus());
        QVERIFY(!box->view()->isVisible());
        QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), before);
        QVERIFY(m_dialog->isVisible());
    }
}

void DirectionEditorTest::movingInTheOpenListChoosesNothing()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const std::vector<MgCommandDS> before = m_dialog->model->getCommands();
    tests::key(m_dialog.get(), Qt::Key_F4);
    const QPointer<QAbstractItemView> list = editor()->view();
    for (const Qt::Key which : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up})
        tests::key(m_dialog.get(), which);
    QVERIFY(list->isVisible());
    QCOMPARE(list->currentIndex().row(), 7);
    tests::wheel(list->viewport(), QPoint(5, 5), -120);
    QCOMPARE(tests::bytesOf(m_dialog->model->getCommands()), tests::bytesOf(before));
    // Closes the list without a choice.
    tests::key(m_dialog.get(), Qt::Key_F4);
    QVERIFY(!list->isVisible());
    QCOMPARE(tests::bytesOf(m_dialog->model->getCommands()), tests::bytesOf(before));
    QCOMPARE(editor()->currentIndex(), 0);
}

void DirectionEditorTest::wheelOverAClosedDropDownScrollsTheTable()
{
    for (int number = 0; number < 100; ++number)
        m_host->commands.addCommand(QStringLiteral("X%1").arg(number), QStringLiteral("x"),
                                    QStringLiteral("X"));
    open("8");
    openEditor(QStringLiteral("B"));
    QScrollBar *bar = m_dialog->ui.command_tableView->verticalScrollBar();
    const int before = bar->value();
    tests::wheel(editor(), editor()->rect().center(), -120);
    QVERIFY(bar->value() > before);
}

void DirectionEditorTest::arrowKeysGoOnToOtherCells()
{
    open("8");
    openEditor(QStringLiteral("B"));
    for (const char *command : {"C", "D", "E"}) {
        tests::key(m_dialog.get(), Qt::Key_Down);
        const QModelIndex cell = directionCell(QLatin1String(command));
        QCOMPARE(m_dialog->ui.command_tableView->currentIndex(), cell);
        QVERIFY(editor());
        QVERIFY(editor()->hasFocus());
        QCOMPARE(editor()->geometry(), m_dialog->ui.command_tableView->visualRect(cell));
    }
    tests::key(m_dialog.get(), Qt::Key_Left);
    QTRY_VERIFY(!editor());
    QCOMPARE(m_dialog->ui.command_tableView->currentIndex().column(), kCommand);
    QVERIFY(m_dialog->ui.command_tableView->hasFocus());
}

void DirectionEditorTest::leavingTheCellChoosesNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"another cell", "another control", "Tab", "Escape", "Down"})
        QTest::newRow(way) << QString(QLatin1String(way));
}

// In the four scheme, writing "none" to a command that has none clears the eight direction of
// the first command without a four direction. Walking over unbound commands must not do it.
void DirectionEditorTest::leavingTheCellChoosesNothing()
{
    QFETCH(QString, way);
    m_host->store.values.insert(QStringLiteral("82"), QStringLiteral("B"));
    open("4");
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).fourDirection), 0);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 2);
    openEditor(QStringLiteral("D"));
    if (way == QLatin1String("another cell"))
        openEditor(QStringLiteral("E"));
    else if (way == QLatin1String("another control"))
        tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    else
        tests::key(m_dialog.get(), QKeySequence(way)[0] == int(Qt::Key_Tab) ? Qt::Key_Tab
                                   : way == QLatin1String("Escape")         ? Qt::Key_Escape
                                                                            : Qt::Key_Down);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 2);
    QVERIFY(m_dialog->isVisible());
}

void DirectionEditorTest::editorComesBackOnlyInTheCurrentCell()
{
    open("8");
    // The row's editor opens, but the current cell is the one that was pressed.
    tests::click(m_dialog->ui.command_tableView, m_dialog->cell(1, kCommand));
    QVERIFY(editor());
    tests::key(m_dialog.get(), Qt::Key_Space);
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 1);
    QVERIFY(!editor());
    QVERIFY(m_dialog->ui.command_tableView->hasFocus());
}

void DirectionEditorTest::escapeKeepsTheDirection()
{
    open("8");
    openEditor(QStringLiteral("A"));
    const QPointer<QComboBox> first = editor();
    tests::key(m_dialog.get(), Qt::Key_F4);
    tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!first->view()->isVisible());
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 3);
    QVERIFY(m_dialog->isVisible());
}

void DirectionEditorTest::escapeLeavesTheEditorThenTheDialog()
{
    open("8");
    openEditor(QStringLiteral("A"));
    tests::key(m_dialog.get(), Qt::Key_Escape);
    QTRY_VERIFY(!editor());
    QVERIFY(m_dialog->ui.command_tableView->hasFocus());
    QVERIFY(m_dialog->isVisible());
    // The cell can be edited again from there.
    tests::key(m_dialog.get(), Qt::Key_F2);
    QVERIFY(editor());
    tests::key(m_dialog.get(), Qt::Key_Escape);
    QTRY_VERIFY(!editor());
    tests::key(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void DirectionEditorTest::editorLeftByClickingElsewhereStaysAway()
{
    open("8");
    openEditor(QStringLiteral("A"));
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    QVERIFY(m_dialog->ui.search_lineEdit->hasFocus());
    QTRY_VERIFY(!editor());
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 3);
    // Moves to the cell of another command. Only that cell has an editor.
    openEditor(QStringLiteral("A"));
    openEditor(QStringLiteral("D"));
    QCOMPARE(editor()->geometry(),
             m_dialog->ui.command_tableView->visualRect(directionCell(QStringLiteral("D"))));
}

void DirectionEditorTest::closeEditorAsksForFocusFirst()
{
    QStandardItemModel model(3, 1);
    MgCommandTableView table(nullptr);
    table.setModel(&model);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    QVERIFY(tests::showActive(table));
    table.setCurrentIndex(model.index(1, 0));
    table.beginEditing(model.index(1, 0));
    const auto editors = [&table] { return table.viewport()->findChildren<QLineEdit *>(); };
    QCOMPARE(editors().size(), 1);
    QPointer<QWidget> first = editors().value(0);
    QVERIFY(first->hasFocus());

    // After a close the editor comes back at once. After a move to another cell it comes back there.
    Q_EMIT table.itemDelegate()->closeEditor(first, QAbstractItemDelegate::NoHint);
    QTRY_VERIFY(first.isNull());
    QCOMPARE(editors().size(), 1);
    first = editors().value(0);
    QVERIFY(first->hasFocus());
    QCOMPARE(first->geometry(), table.visualRect(model.index(1, 0)));
    table.setCurrentIndex(model.index(2, 0));
    QTRY_VERIFY(first.isNull());
    QCOMPARE(editors().size(), 1);
    QPointer<QWidget> second = editors().value(0);
    QCOMPARE(second->geometry(), table.visualRect(model.index(2, 0)));
    QVERIFY(second->hasFocus());

    second->clearFocus();
    QTRY_VERIFY(second.isNull());
    QCOMPARE(editors().size(), 0);

    // There is no current cell to come back to, then nothing to close, then nothing to edit.
    table.beginEditing(model.index(0, 0));
    first = editors().value(0);
    table.setCurrentIndex(QModelIndex());
    Q_EMIT table.itemDelegate()->closeEditor(first, QAbstractItemDelegate::NoHint);
    QTRY_VERIFY(first.isNull());
    QCOMPARE(editors().size(), 0);
    table.beginEditing(QModelIndex());
    QCOMPARE(editors().size(), 0);
}

void DirectionEditorTest::otherColumnsAreNotEdited()
{
    open("8");
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    for (const int column : {kCategory, kCommand}) {
        table->setCurrentIndex(m_dialog->cell(2, column));
        table->setFocus();
        tests::key(m_dialog.get(), Qt::Key_F2);
        QTest::mouseDClick(m_dialog->windowHandle(), Qt::LeftButton, {},
                           table->viewport()->mapTo(
                               m_dialog.get(), table->visualRect(m_dialog->cell(2, column)).center()));
        QCOMPARE(table->viewport()->findChildren<QLineEdit *>().size(), 0);
    }
    const std::unique_ptr<QWidget> base(table->itemDelegate()->createEditor(
        table->viewport(), QStyleOptionViewItem(), m_dialog->cell(0, kCommand)));
    QVERIFY(!qobject_cast<QComboBox *>(base.get()));
}

void DirectionEditorTest::onlyTheDirectionIsWritten()
{
    QStandardItemModel directions(9, 1);
    QStandardItemModel model(1, 3);
    QObject parent;
    MgCommandModelDelegate delegate(&directions, &parent);
    QCOMPARE(delegate.parent(), &parent);
    QComboBox editor;
    editor.setModel(&directions);
    editor.setCurrentIndex(5);
    QLineEdit text(QStringLiteral("written"));
    for (const int column : {kCategory, kCommand}) {
        delegate.setModelData(&editor, &model, model.index(0, column));
        delegate.setModelData(&text, &model, model.index(0, column));
        QVERIFY(!model.index(0, column).data(Qt::EditRole).isValid());
    }
    delegate.setModelData(&editor, &model, model.index(0, kDirection));
    const QVariant written = model.index(0, kDirection).data(Qt::EditRole);
    QCOMPARE(written, QVariant(5));
    QCOMPARE(written.userType(), int(QMetaType::Int));

    // Only the low byte counts.
    model.setData(model.index(0, kDirection), 0x102);
    delegate.setEditorData(&editor, model.index(0, kDirection));
    QCOMPARE(editor.currentIndex(), 2);
    model.setData(model.index(0, kCommand), QStringLiteral("shown"));
    delegate.setEditorData(&text, model.index(0, kCommand));
    QCOMPARE(text.text(), QStringLiteral("shown"));
}

void DirectionEditorTest::editorWithoutChoiceWritesNothing()
{
    QStandardItemModel directions(9, 1);
    QStandardItemModel model(1, 3);
    MgCommandModelDelegate delegate(&directions, nullptr);
    QComboBox editor;
    editor.setModel(&directions);
    editor.setCurrentIndex(-1);
    delegate.setModelData(&editor, &model, model.index(0, kDirection));
    QVERIFY(!model.index(0, kDirection).data(Qt::EditRole).isValid());
}

// A screen reader can switch the scheme without moving the focus first.
void DirectionEditorTest::openEditorFollowsTheScheme()
{
    m_host->store.values.insert(QStringLiteral("88"), QStringLiteral("B"));
    m_host->store.values.insert(QStringLiteral("42"), QStringLiteral("B"));
    open("8");
    openEditor(QStringLiteral("B"));
    QCOMPARE(editor()->currentIndex(), 8);
    m_dialog->ui.four_radioButton->setChecked(true);
    QCOMPARE(editor()->count(), 5);
    QCOMPARE(editor()->currentIndex(), 2);
    m_dialog->ui.eight_radioButton->setChecked(true);
    QCOMPARE(editor()->currentIndex(), 8);
    m_dialog->ui.four_radioButton->setChecked(true);
    // Leaving the editor commits what it shows, which is the command's direction.
    m_dialog->ui.reset_pushButton->setEnabled(false);
    tests::click(m_dialog->ui.search_lineEdit, m_dialog->ui.search_lineEdit->rect().center());
    QTRY_VERIFY(!editor());
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).fourDirection), 2);
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
}

void DirectionEditorTest::commitSlotCalledDirectlyDoesNothing()
{
    QStandardItemModel directions(9, 1);
    MgCommandModelDelegate delegate(&directions, nullptr);
    QSignalSpy committed(&delegate, &QAbstractItemDelegate::commitData);
    int closed = 0;
    connect(&delegate, &QAbstractItemDelegate::closeEditor, &delegate, [&closed] { ++closed; });
    delegate.commitAndCloseEditor(3);
    QCOMPARE(committed.count() + closed, 0);
}

void DirectionEditorTest::editorCoversTheCell()
{
    open("8");
    openEditor(QStringLiteral("B"));
    QCOMPARE(editor()->geometry(),
             m_dialog->ui.command_tableView->visualRect(directionCell(QStringLiteral("B"))));
    QWidget widget;
    QStyleOptionViewItem option;
    option.rect = QRect(3, 4, 50, 60);
    for (int column = 0; column < 3; ++column) {
        widget.setGeometry(0, 0, 1, 1);
        m_dialog->ui.command_tableView->itemDelegate()->updateEditorGeometry(&widget, option,
                                                                             m_dialog->cell(0, column));
        QCOMPARE(widget.geometry(), option.rect);
    }
}

void DirectionEditorTest::sizeHints()
{
    open("8");
    const QAbstractItemDelegate *delegate = m_dialog->ui.command_tableView->itemDelegate();
    const QItemDelegate base;
    QStyleOptionViewItem option;
    option.font = m_dialog->font();
    QCOMPARE(delegate->sizeHint(option, m_dialog->cell(0, kDirection)), QSize(10, 10));
    for (const int column : {kCategory, kCommand})
        QCOMPARE(delegate->sizeHint(option, m_dialog->cell(0, column)),
                 base.sizeHint(option, m_dialog->cell(0, column)));
}

void DirectionEditorTest::lineBreaksAreDrawnOnOneLine()
{
    QStandardItemModel directions;
    QStandardItemModel model(2, 2);
    model.setData(model.index(0, 1), QStringLiteral("two\nlines"));
    model.setData(model.index(1, 1), QStringLiteral("two lines"));
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    for (int row = 0; row < 2; ++row)
        model.setData(model.index(row, 1), icon, Qt::DecorationRole);
    MgCommandModelDelegate delegate(&directions, nullptr);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QImage images[2];
        for (int row = 0; row < 2; ++row) {
            images[row] = QImage(150, 24, QImage::Format_ARGB32_Premultiplied);
            images[row].fill(Qt::white);
            QPainter painter(&images[row]);
            QStyleOptionViewItem option;
            option.rect = images[row].rect();
            option.state = QStyle::State_Enabled;
            option.direction = direction;
            option.decorationSize = icon.size();
            option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
            delegate.paint(&painter, option, model.index(row, 1));
        }
        QCOMPARE(images[0], images[1]);
        QImage empty(150, 24, QImage::Format_ARGB32_Premultiplied);
        empty.fill(Qt::white);
        QVERIFY(images[0] != empty);
    }
}

void DirectionEditorTest::editorsHaveAccessibleTexts()
{
    open("8");
    openEditor(QStringLiteral("A"));
    QCOMPARE(editor()->accessibleName(), QStringLiteral("Gesture direction"));
    QCOMPARE(editor()->accessibleDescription(), QStringLiteral("Left"));
    QCOMPARE(editor()->itemData(8, Qt::AccessibleTextRole).toString(), QStringLiteral("Up right"));
    open("4");
    openEditor(QStringLiteral("A"));
    QCOMPARE(editor()->accessibleDescription(), QStringLiteral("Down"));
    QCOMPARE(editor()->itemData(4, Qt::AccessibleTextRole).toString(), QStringLiteral("Right"));
}

void DirectionEditorTest::entriesSayWhoHasTheDirection()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const auto says = [this](int row, const QString &text) {
        return editor()->itemData(row, Qt::AccessibleTextRole).toString() == text
            && editor()->itemData(row, Qt::ToolTipRole).toString() == text;
    };
    QVERIFY(says(3, QStringLiteral("Left: A")));
    QVERIFY(says(1, QStringLiteral("Up")));
    QVERIFY(says(5, QStringLiteral("Down")));
    // "None" says all itself.
    QVERIFY(!editor()->itemData(0, Qt::AccessibleTextRole).isValid());
    QVERIFY(!editor()->itemData(0, Qt::ToolTipRole).isValid());
    // The texts of the rows stay as they are.
    QCOMPARE(editor()->itemText(3), QString());
    QCOMPARE(editor()->itemText(0), QStringLiteral("None"));
    // The texts change at once after a choice and after a change of the scheme.
    tests::key(m_dialog.get(), Qt::Key_Space);
    for (int step = 0; step < 5; ++step)
        tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("B")).eightDirection), 5);
    QVERIFY(says(5, QStringLiteral("Down: B")));
    m_dialog->ui.four_radioButton->setChecked(true);
    // Two commands may share a direction of the four scheme.
    QVERIFY(says(3, QStringLiteral("Down: A, B")));
    QVERIFY(says(2, QStringLiteral("Left")));
}

void DirectionEditorTest::robbedCommandIsNamedAtTheCell()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const auto choose = [this](int direction) {
        tests::key(m_dialog.get(), Qt::Key_Space);
        tests::key(m_dialog.get(), Qt::Key_Home);
        for (int step = 0; step < direction; ++step)
            tests::key(m_dialog.get(), Qt::Key_Down);
        tests::key(m_dialog.get(), Qt::Key_Return);
    };
    const auto *notice = m_dialog->findChild<Notice *>();
    QVERIFY(notice);
    // Nobody had this direction.
    choose(2);
    QVERIFY(!notice->isVisible());
    choose(3);
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), QStringLiteral("Taken from: A"));
    // The note lies right below the cell.
    const QRect cell = m_dialog->ui.command_tableView->visualRect(directionCell(QStringLiteral("B")));
    QCOMPARE(notice->pos(), m_dialog->ui.command_tableView->viewport()->mapTo(
                                m_dialog.get(), cell.bottomLeft() + QPoint(0, 1)));
    QVERIFY(m_dialog->rect().contains(notice->geometry()));
    // The note takes no focus and goes away by itself.
    QVERIFY(editor()->hasFocus());
    QTRY_VERIFY_WITH_TIMEOUT(!notice->isVisible(), 2 * Notice::kDuration);
    // The next choice hides it at once.
    openEditor(QStringLiteral("A"));
    choose(3);
    QCOMPARE(notice->text(), QStringLiteral("Taken from: B"));
    QVERIFY(notice->isVisible());
    choose(2);
    QVERIFY(!notice->isVisible());
}

// Where the row is not shown, there is no place for a note.
void DirectionEditorTest::hiddenRowsHaveNoNotes()
{
    open("8");
    const QModelIndex hidden = m_dialog->proxy->mapToSource(directionCell(QStringLiteral("B")));
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("C"));
    QCOMPARE(m_dialog->proxy->rowCount(), 1);
    QVERIFY(m_dialog->model->setData(hidden, 3));
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 0);
    QVERIFY(!m_dialog->findChild<Notice *>()->isVisible());
}

void DirectionEditorTest::undoTakesTheLastChoiceBack()
{
    open("8");
    openEditor(QStringLiteral("B"));
    const std::vector<MgCommandDS> before = m_dialog->model->getCommands();
    tests::key(m_dialog.get(), Qt::Key_Space);
    for (int step = 0; step < 3; ++step)
        tests::key(m_dialog.get(), Qt::Key_Down);
    tests::key(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(int(m_dialog->record(QStringLiteral("A")).eightDirection), 0);
    QCOMPARE(editor()->currentIndex(), 3);
    QVERIFY(m_dialog->findChild<Notice *>()->isVisible());
    tests::key(m_dialog.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!m_dialog->findChild<Notice *>()->isVisible());
    QCOMPARE(tests::bytesOf(m_dialog->model->getCommands()), tests::bytesOf(before));
    // The open drop-down and the list follow.
    QCOMPARE(editor()->currentIndex(), 0);
    QCOMPARE(editor()->itemData(3, Qt::AccessibleTextRole).toString(), QStringLiteral("Left: A"));
    tests::key(m_dialog.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(tests::bytesOf(m_dialog->model->getCommands()), tests::bytesOf(before));
}

void DirectionEditorTest::currentCellHasALine()
{
    open("8");
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    // Returns the height of the black line at the bottom of a cell, in pixels.
    const auto lineBelow = [this, table](int column) {
        const QRect cell = table->visualRect(m_dialog->cell(1, column));
        const QImage picture = table->viewport()->grab(cell).toImage();
        int height = 0;
        while (height < cell.height()
               && picture.pixelColor(cell.width() / 2, cell.height() - 1 - height) == QColor(Qt::black))
            ++height;
        return height;
    };
    table->setFocus();
    table->setCurrentIndex(m_dialog->cell(1, kCommand));
    QCOMPARE(lineBelow(kCommand), 2);
    QCOMPARE(lineBelow(kCategory), 0);
    tests::key(m_dialog.get(), Qt::Key_Left);
    QCOMPARE(lineBelow(kCategory), 2);
    QCOMPARE(lineBelow(kCommand), 0);
    m_dialog->ui.search_lineEdit->setFocus();
    QCOMPARE(lineBelow(kCategory), 0);
}

void DirectionEditorTest::onlyElidedTextsHaveTooltips()
{
    const QString longName = QStringLiteral("A command with a name that no column shows whole");
    m_host->commands.addCommand(QStringLiteral("L"), QStringLiteral("l"), longName);
    open("8");
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    const auto pointAt = [table](const QModelIndex &cell) {
        const QPoint position = table->visualRect(cell).center();
        QHelpEvent help(QEvent::ToolTip, position, table->viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(table->viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    QCOMPARE(pointAt(m_dialog->cell(m_dialog->rowOf(longName), kCommand)), longName);
    QTRY_COMPARE(pointAt(directionCell(longName)), QString());
    QTRY_COMPARE(pointAt(m_dialog->cell(0, kCommand)), QString());
    // A text that just fits has none. The grid takes a pixel of the column.
    const QModelIndex cell = m_dialog->cell(m_dialog->rowOf(longName), kCommand);
    const int width = table->sizeHintForIndex(cell).width();
    table->setColumnWidth(kCommand, width + 1);
    QTRY_COMPARE(pointAt(cell), QString());
    table->setColumnWidth(kCommand, width);
    QCOMPARE(pointAt(cell), longName);
}

void DirectionEditorTest::helpElsewhereIsTheBaseClasses()
{
    open("8");
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    QAbstractItemDelegate *delegate = table->itemDelegate();
    QItemDelegate base;
    const auto isHandled = [table](QAbstractItemDelegate &handler, QEvent::Type type,
                                   const QModelIndex &cell) {
        QHelpEvent help(type, QPoint(5, 5), table->viewport()->mapToGlobal(QPoint(5, 5)));
        QStyleOptionViewItem option;
        option.rect = table->visualRect(cell);
        return handler.helpEvent(&help, table, option, cell);
    };
    const QModelIndex cell = m_dialog->cell(0, kCommand);
    QVERIFY(isHandled(*delegate, QEvent::ToolTip, cell)); // there is nothing to show
    for (const QModelIndex &place : {cell, QModelIndex()})
        QCOMPARE(isHandled(*delegate, QEvent::QueryWhatsThis, place),
                 isHandled(base, QEvent::QueryWhatsThis, place));
    QCOMPARE(isHandled(*delegate, QEvent::ToolTip, QModelIndex()),
             isHandled(base, QEvent::ToolTip, QModelIndex()));
}

// In a table whose style draws a focus rectangle, the delegate draws it too.
void DirectionEditorTest::focusRectangleIsTheStyles()
{
    class Delegate : public MgCommandModelDelegate
    {
    public:
        using MgCommandModelDelegate::drawFocus;
        using MgCommandModelDelegate::MgCommandModelDelegate;
    };
    class Base : public QItemDelegate
    {
    public:
        using QItemDelegate::drawFocus;
    };
    QStandardItemModel directions;
    const Delegate delegate(&directions, nullptr);
    const Base base;
    QStyleOptionViewItem option;
    option.rect = QRect(2, 2, 50, 20);
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const auto blank = [] {
        QImage image(60, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        return image;
    };
    QImage drawn = blank();
    QImage expected = blank();
    QPainter drawnPainter(&drawn);
    delegate.drawFocus(&drawnPainter, option, option.rect);
    QPainter expectedPainter(&expected);
    base.drawFocus(&expectedPainter, option, option.rect);
    QVERIFY(expected != blank());
    QCOMPARE(drawn, expected);
}

// A derived class may have editors of its own.
void DirectionEditorTest::otherEditorsShowWhatTheBaseClassShows()
{
    open("8");
    const QAbstractItemDelegate *delegate = m_dialog->ui.command_tableView->itemDelegate();
    QLineEdit line;
    delegate->setEditorData(&line, directionCell(QStringLiteral("A")));
    QCOMPARE(line.text(), QStringLiteral("3"));
    QComboBox box;
    box.addItems({QStringLiteral("one"), QStringLiteral("two")});
    box.setCurrentIndex(1);
    delegate->setEditorData(&box, m_dialog->cell(0, kCommand));
    QCOMPARE(box.currentIndex(), 1);
}

void DirectionEditorTest::styleIsPlastiqueWhereThereIsOne()
{
    const bool plastique =
        QStyleFactory::keys().contains(QLatin1String("Plastique"), Qt::CaseInsensitive);
    const MyStyle style;
    QCOMPARE(QLatin1String(style.baseStyle()->metaObject()->className()),
             plastique ? QLatin1String("QPlastiqueStyle") : QLatin1String("QFusionStyle"));
}

void DirectionEditorTest::styleDrawsNoFocusRectangle()
{
    const MyStyle style;
    QImage empty(60, 30, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::white);
    QCOMPARE(drawn(style, QStyle::PE_FrameFocusRect), empty);
    QVERIFY(drawn(*style.baseStyle(), QStyle::PE_FrameFocusRect) != empty);
}

void DirectionEditorTest::styleDrawsEverythingElse_data()
{
    QTest::addColumn<int>("element");
    QTest::newRow("button") << int(QStyle::PE_PanelButtonCommand);
    QTest::newRow("check box") << int(QStyle::PE_IndicatorCheckBox);
    QTest::newRow("radio button") << int(QStyle::PE_IndicatorRadioButton);
    QTest::newRow("arrow") << int(QStyle::PE_IndicatorArrowDown);
    QTest::newRow("other arrow") << int(QStyle::PE_IndicatorArrowUp);
}

void DirectionEditorTest::styleDrawsEverythingElse()
{
    QFETCH(int, element);
    const MyStyle style;
    const auto primitive = static_cast<QStyle::PrimitiveElement>(element);
    const std::unique_ptr<QStyle> base(QStyleFactory::create(
        QLatin1String(style.baseStyle()->metaObject()->className()) == QLatin1String("QPlastiqueStyle")
            ? QStringLiteral("Plastique")
            : QStringLiteral("Fusion")));
    QCOMPARE(drawn(style, primitive), drawn(*base, primitive));
    // The style does draw something.
    QImage empty(60, 30, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::white);
    QVERIFY(drawn(style, primitive) != empty);
}

void DirectionEditorTest::tableShowsNoFocusRectangle()
{
    open("8");
    MgCommandTableView *table = m_dialog->ui.command_tableView;
    const auto cellPicture = [this, table] {
        return table->viewport()->grab(table->visualRect(m_dialog->cell(1, kCommand))).toImage();
    };
    const auto makeCurrent = [this, table](bool current) {
        table->setFocus();
        table->selectionModel()->clear();
        if (current)
            table->selectionModel()->setCurrentIndex(m_dialog->cell(1, kCommand),
                                                     QItemSelectionModel::NoUpdate);
    };
    makeCurrent(false);
    const QImage plain = cellPicture();
    makeCurrent(true);
    QVERIFY(table->hasFocus());
    QCOMPARE(cellPicture(), plain);

    // Without MyStyle the same table draws a focus rectangle, so the pictures would differ.
    const std::unique_ptr<QStyle> base(QStyleFactory::create(QStringLiteral("Fusion")));
    table->setStyle(base.get());
    makeCurrent(false);
    const QImage basePlain = cellPicture();
    makeCurrent(true);
    QVERIFY(cellPicture() != basePlain);
    m_dialog.reset();
}

void DirectionEditorTest::tableFollowsWhatChangedWhileHidden()
{
    QStandardItemModel rows(3, 3);
    MgCommandTableView table(nullptr);
    table.setModel(&rows);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QCOMPARE(table.viewport()->x(), table.frameWidth() + table.verticalHeader()->width());
    table.hide();
    table.verticalHeader()->hide();
    table.show();
    QCOMPARE(table.viewport()->x(), table.frameWidth());
}

QTEST_MAIN(DirectionEditorTest)
#include "tst_directioneditor.moc"
