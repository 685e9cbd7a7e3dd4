// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "tests/dialog/AssignmentRules.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QHeaderView>
#include <QTest>

#include <array>
#include <memory>
#include <random>

using tests::Bytes;
using tests::TestDialog;

namespace {

constexpr int kSteps = 20000;

// The bindings that OK stores. If several records name one direction, the last one gets it.
std::vector<Bytes> saved(std::vector<Bytes> records)
{
    for (std::size_t place = 0; place < records.size(); ++place) {
        for (std::size_t later = place + 1; later < records.size(); ++later) {
            if (records[later].first == records[place].first)
                records[place].first = 0;
            if (records[later].second == records[place].second)
                records[place].second = 0;
        }
    }
    return records;
}

// Names the records whose bytes differ from the expected ones; empty if none does.
QString differences(const std::vector<Bytes> &expected, const std::vector<Bytes> &actual)
{
    QStringList found;
    for (std::size_t place = 0; place < expected.size(); ++place) {
        if (expected[place] != actual[place])
            found.append(QStringLiteral("record %1 has %2/%3, not %4/%5")
                             .arg(place)
                             .arg(actual[place].first)
                             .arg(actual[place].second)
                             .arg(expected[place].first)
                             .arg(expected[place].second));
    }
    return found.join(QLatin1String(", "));
}

} // namespace

// Thousands of turns of the wheel, keys and clicks, anywhere in the dialog but on the buttons
// that close it or reset everything. No binding changes unless an entry of the open list was
// clicked or taken with Enter.
class DialogWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void nothingIsLostWithoutAChoice_data();
    void nothingIsLostWithoutAChoice();

private:
    void open();
    QString step();
    QString turnTheWheel();
    QString pressAKey();
    QString clickSomewhere();
    // The open list of directions; null if none is open.
    QAbstractItemView *openList() const;
    // All bindings after the choice of an entry of the open list.
    std::vector<Bytes> chosen(const QModelIndex &entry) const;
    std::vector<Bytes> bytes() const { return tests::bytesOf(m_dialog->model->getCommands()); }
    int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(m_random); }
    QPoint pointIn(const QWidget *widget)
    {
        return {upTo(widget->width() - 1), upTo(widget->height() - 1)};
    }

    std::mt19937 m_random;
    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
    std::vector<Bytes> m_expected;
    std::vector<Bytes> m_opened; // as the dialog found them
    int m_choices = 0;
};

void DialogWalkTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 40, false);
    m_choices = 0;
}

void DialogWalkTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DialogWalkTest::open()
{
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*m_dialog));
    m_expected = bytes();
    m_opened = m_expected;
}

QAbstractItemView *DialogWalkTest::openList() const
{
    QComboBox *editor = m_dialog->editor();
    return editor && editor->view()->isVisible() ? editor->view() : nullptr;
}

std::vector<Bytes> DialogWalkTest::chosen(const QModelIndex &entry) const
{
    const MgCommandTableView *table = m_dialog->ui.command_tableView;
    const QModelIndex cell = table->indexAt(m_dialog->editor()->geometry().center());
    const int row = m_dialog->proxy->mapToSource(cell).row();
    return tests::bytesAfter(m_expected, m_dialog->getScheme() == TestDialog::Four,
                             static_cast<std::size_t>(row), entry.row());
}

QString DialogWalkTest::turnTheWheel()
{
    QWidget *target = m_dialog->ui.command_tableView->viewport();
    if (QAbstractItemView *list = openList())
        target = list->viewport();
    else if (m_dialog->editor() && target->rect().contains(m_dialog->editor()->geometry())
             && upTo(3) > 0)
        target = m_dialog->editor();
    else if (upTo(9) == 0)
        target = m_dialog->ui.category_comboBox;
    const int angle = upTo(1) == 0 ? 120 : -120;
    tests::wheel(target, pointIn(target), angle);
    return QStringLiteral("wheel %1").arg(angle);
}

QString DialogWalkTest::pressAKey()
{
    static constexpr std::array kKeys = {
        Qt::Key_Down,   Qt::Key_Up,     Qt::Key_Left,     Qt::Key_Right, Qt::Key_Home,
        Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_F4,    Qt::Key_Space,
        Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Tab,   Qt::Key_F2,
        Qt::Key_Delete, Qt::Key_L,      Qt::Key_N,        Qt::Key_1,     Qt::Key_Backspace};
    const Qt::Key which = kKeys[static_cast<std::size_t>(upTo(kKeys.size() - 1))];
    const int modified = upTo(9);
    const Qt::KeyboardModifiers modifiers = modified == 0 ? Qt::ShiftModifier
                                          : modified == 1 ? Qt::AltModifier
                                          : modified == 2 ? Qt::ControlModifier
                                                          : Qt::NoModifier;
    const QAbstractItemView *list = openList();
    const bool enter = which == Qt::Key_Return || which == Qt::Key_Enter;
    if (list && enter && list->currentIndex().isValid()) {
        m_expected = chosen(list->currentIndex());
        ++m_choices;
    }
    // On a button the key would close the dialog or ask a question.
    if (!list && qobject_cast<QPushButton *>(QApplication::focusWidget()))
        m_dialog->ui.command_tableView->setFocus();
    tests::key(m_dialog.get(), which, modifiers);
    return QKeySequence(int(modifiers) + int(which)).toString();
}

QString DialogWalkTest::clickSomewhere()
{
    const Qt::KeyboardModifiers modifiers = upTo(9) == 0 ? Qt::ControlModifier : Qt::NoModifier;
    if (QAbstractItemView *list = openList()) {
        const QPoint position = pointIn(list->viewport());
        const QModelIndex entry = list->indexAt(position);
        const std::vector<Bytes> after = entry.isValid() ? chosen(entry) : m_expected;
        QTest::mouseMove(list->window()->windowHandle(),
                         list->viewport()->mapTo(list->window(), position));
        const QPointer<QAbstractItemView> watched = list;
        tests::click(list->viewport(), position, modifiers);
        // A list ignores clicks for a moment after the mouse opened it.
        const bool taken = !watched || !watched->isVisible();
        if (taken) {
            m_expected = after;
            ++m_choices;
        }
        return QStringLiteral("click on entry %1").arg(entry.row());
    }

    MgCommandTableView *table = m_dialog->ui.command_tableView;
    QWidget *const targets[] = {table->viewport(),
                                table->viewport(),
                                table->viewport(),
                                m_dialog->editor(),
                                m_dialog->editor(),
                                m_dialog->ui.search_lineEdit,
                                m_dialog->ui.filter_checkBox,
                                m_dialog->ui.four_radioButton,
                                m_dialog->ui.eight_radioButton,
                                table->horizontalHeader()->viewport()};
    QWidget *target = targets[upTo(static_cast<int>(std::size(targets)) - 1)];
    // A drop-down scrolls away with its cell.
    const bool isReachable =
        target
        && (target != m_dialog->editor() || table->viewport()->rect().contains(target->geometry()));
    if (!isReachable)
        target = table->viewport();
    const QLatin1String name(target->metaObject()->className());
    // A click on another cell ends the editor that was clicked.
    tests::click(target, pointIn(target), modifiers);
    return QStringLiteral("click on ") + name;
}

// Describes the step, for the report of a failure.
QString DialogWalkTest::step()
{
    // A key may open the list of the category box. Close it without a choice.
    if (QApplication::activePopupWidget() && !openList()) {
        tests::key(m_dialog.get(), Qt::Key_Escape);
        return QStringLiteral("close a popup");
    }
    switch (upTo(3)) {
    case 0:
        return turnTheWheel();
    case 1:
        return clickSomewhere();
    default:
        return pressAKey();
    }
}

void DialogWalkTest::nothingIsLostWithoutAChoice_data()
{
    QTest::addColumn<int>("seed");
    QTest::newRow("seed 3") << 3;
}

void DialogWalkTest::nothingIsLostWithoutAChoice()
{
    QFETCH(int, seed);
    m_random.seed(static_cast<unsigned>(seed));
    open();
    QStringList done;
    for (int number = 0; number < kSteps; ++number) {
        done.append(step());
        const QString difference = differences(m_expected, bytes());
        if (!difference.isEmpty()) {
            const QStringList last = done.mid(qMax(0, static_cast<int>(done.size()) - 12));
            QFAIL(qPrintable(QStringLiteral("step %1, after %2: %3")
                                 .arg(number)
                                 .arg(last.join(QLatin1String(", ")), difference)));
        }
        if (!m_dialog->isVisible()) {
            // Escape or Enter closed the dialog. The next one shows what was stored.
            const bool accepted = m_dialog->result() == QDialog::Accepted;
            const std::vector<Bytes> kept = accepted ? saved(m_expected) : m_opened;
            open();
            QCOMPARE(bytes(), kept);
        }
        // Clears the search field, so that typed letters do not hide all rows from now on.
        if (number % 50 == 0 && !openList())
            m_dialog->ui.search_lineEdit->clear();
    }
    // The walk must have made many choices, so that commands were bound all the time.
    QVERIFY2(m_choices > 100, qPrintable(QString::number(m_choices)));
}

QTEST_MAIN(DialogWalkTest)
#include "tst_dialogwalk.moc"
