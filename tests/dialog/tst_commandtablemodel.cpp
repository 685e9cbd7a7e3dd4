// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "dialog/MgCommandDSModel.h"
#include "dialog/MgCommandDSSortFilterProxyModel.h"
#include "tests/dialog/AssignmentRules.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTest>

#include <memory>
#include <random>

using tests::Bytes;
using tests::bytesOf;
using tests::kCategory;
using tests::kCommand;
using tests::kDirection;
using tests::TestDialog;

namespace {

// The model, but without children below its cells.
class RootOnlyModel : public MgCommandDSModel
{
public:
    using MgCommandDSModel::MgCommandDSModel;
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : MgCommandDSModel::rowCount(parent);
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : MgCommandDSModel::columnCount(parent);
    }
};

// The faults that QAbstractItemModelTester reports.
QStringList *complaints = nullptr;

void collectComplaints(QtMsgType /*type*/, const QMessageLogContext &context, const QString &text)
{
    if (complaints && QLatin1String(context.category) == QLatin1String("qt.modeltest"))
        complaints->append(text);
}

} // namespace

class CommandTableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init();
    void cleanup();

    void columnsAndRoles_data();
    void columnsAndRoles();
    void headers();
    void flags();
    void invalidIndexes();
    void rowsAndColumnsWhateverTheParent();
    void passesTheModelTester();
    void testerFindsOnlyTheRowsBelowCells();
    void withoutDialog();
    void copiesTheContainersRecords();
    void resetToDefaultReadsTheContainerAgain();
    void callOperatorIsAlwaysTrue();

    void setDataRefusesOtherColumnsAndRoles();
    void setDataTakesTheLowByte();
    void setDataEmitsNothing();
    void upInFourSchemeTakesBothDirectionsFromTheHolder();
    void diagonalClearsOnlyTheHoldersEightDirection();
    void leftInEightSchemeClearsTheHolderInBothSchemes();
    void twoRecordsCanComeToShareAFourDirection();
    void noneOnUnboundInFourSchemeStillClearsAnEightDirection();
    void noneInEightSchemeClearsBothOfTheRecord();
    void linkedDirections_data();
    void linkedDirections();
    void resetButtonFollowsChangesOnly();
    void randomWalkKeepsTheRules();

    void takesChangesBackOneByOne();
    void takesNothingBackAfterAReset();
    void namesTheHolderOfADirection();

    void assignedOnlyShowsNonzeroCurrentDirections();
    void searchMatchesNamesNotCategories();
    void filterCondition_data();
    void filterCondition();
    void sortingByDirectionPutsUnboundFirst();
    void sortingTextsIsCaseSensitiveAndStable();
    void theSameOrderAgainIsNoWork();
    void sortsAgainWhenTheFilterIsApplied();
    void announcesAllDirectionsWhenTheFilterIsApplied();
    void comparesTextsAsTheBaseClassDoes();
    void comparesOtherCellsAsTheBaseClassDoes();
    void proxyAcceptsEveryRowOfAnotherModel();
    void proxyReadsDirectionsOut();

private:
    void open(const char *scheme);
    int rowIn(const QString &id) const;
    QModelIndex directionOf(const QString &id) const;
    void assign(const QString &id, int direction);
    Bytes bytes(const QString &id) const { return bytesOf(m_dialog->record(id)); }

    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void CommandTableModelTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    // The host does not offer the factory's commands, so no direction is bound.
    for (const char *id : {"A", "B", "C", "D", "E"})
        m_host->commands.addCommand(QLatin1String(id), QString(QLatin1String(id)).toLower(),
                                    QStringLiteral("Name ") + QLatin1String(id),
                                    QStringLiteral("Tip ") + QLatin1String(id));
}

void CommandTableModelTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

// Opens a dialog for the host's current commands and settings.
void CommandTableModelTest::open(const char *scheme)
{
    m_host->store.values.insert(QStringLiteral("ActiveScheme"), QLatin1String(scheme));
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
}

int CommandTableModelTest::rowIn(const QString &id) const
{
    const std::vector<MgCommandDS> commands = m_dialog->model->getCommands();
    for (std::size_t row = 0; row < commands.size(); ++row) {
        if (commands[row].id == id)
            return static_cast<int>(row);
    }
    return -1;
}

QModelIndex CommandTableModelTest::directionOf(const QString &id) const
{
    return m_dialog->model->index(rowIn(id), kDirection);
}

void CommandTableModelTest::assign(const QString &id, int direction)
{
    QVERIFY(m_dialog->model->setData(directionOf(id), direction, Qt::EditRole));
}

void CommandTableModelTest::columnsAndRoles_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");

    for (int column = 0; column < 3; ++column)
        QTest::addRow("alignment %d", column) << column << int(Qt::TextAlignmentRole) << QVariant(129);
    QTest::newRow("category") << kCategory << int(Qt::DisplayRole) << QVariant(QStringLiteral("Draw"));
    QTest::newRow("name") << kCommand << int(Qt::DisplayRole) << QVariant(QStringLiteral("Name A"));
    QTest::newRow("direction has no text") << kDirection << int(Qt::DisplayRole) << QVariant();
    QTest::newRow("category has no icon") << kCategory << int(Qt::DecorationRole) << QVariant();
    QTest::newRow("direction to edit") << kDirection << int(Qt::EditRole) << QVariant(3);
    QTest::newRow("category to edit") << kCategory << int(Qt::EditRole) << QVariant();
    QTest::newRow("name to edit") << kCommand << int(Qt::EditRole) << QVariant();
    for (const int role :
         {Qt::ToolTipRole, Qt::StatusTipRole, Qt::WhatsThisRole, Qt::FontRole, Qt::BackgroundRole,
          Qt::ForegroundRole, Qt::CheckStateRole, Qt::SizeHintRole, Qt::UserRole}) {
        for (int column = 0; column < 3; ++column)
            QTest::addRow("nothing for role %d column %d", role, column) << column << role << QVariant();
    }
}

void CommandTableModelTest::columnsAndRoles()
{
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QVariant, expected);

    auto *menu = m_host->addTopLevelMenu(QStringLiteral("&Draw"));
    auto *group = static_cast<tests::FakeCommandGroup *>(m_host->commands.groups.front());
    auto *item = static_cast<tests::FakeCommandItem *>(group->commands.front());
    item->smallIcon = tests::squareIcon(Qt::red);
    m_host->ui.addItem(menu->subItems.get(), item->caption, false, item->identifier, item);
    m_host->store.values.insert(QStringLiteral("83"), QStringLiteral("A"));
    open("8");

    const MgCommandDSModel *model = m_dialog->model;
    QCOMPARE(model->data(model->index(0, column), role), expected);
    // Icons cannot be compared, so compare their images: the command's icon and the arrow of its
    // direction.
    QVERIFY(!model->data(model->index(0, kCommand), Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(!model->data(model->index(0, kDirection), Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(!model->data(model->index(1, kDirection), Qt::DecorationRole).isValid());
}

void CommandTableModelTest::headers()
{
    open("8");
    const MgCommandDSModel *model = m_dialog->model;
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Category"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Command"));
    QCOMPARE(model->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Select"));
    QVERIFY(!model->headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!model->headerData(-1, Qt::Horizontal).isValid());

    const auto font = model->headerData(1, Qt::Horizontal, Qt::FontRole).value<QFont>();
    QCOMPARE(font.family(), QStringLiteral("Tahoma"));
    QCOMPARE(font.pointSize(), 8);
    QCOMPARE(font.weight(), int(QFont::Bold));
    QVERIFY(!font.italic());

    for (const int role : {Qt::DisplayRole, Qt::FontRole, Qt::DecorationRole})
        QVERIFY(!model->headerData(0, Qt::Vertical, role).isValid());
    QVERIFY(!model->headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void CommandTableModelTest::flags()
{
    open("8");
    const MgCommandDSModel *model = m_dialog->model;
    const Qt::ItemFlags base = model->flags(model->index(0, kCategory));
    QVERIFY(base & Qt::ItemIsEnabled);
    QVERIFY(base & Qt::ItemIsSelectable);
    QVERIFY(!(base & Qt::ItemIsEditable));
    QCOMPARE(model->flags(model->index(0, kCommand)), base);
    QCOMPARE(model->flags(model->index(0, kDirection)), base | Qt::ItemIsEditable);
}

void CommandTableModelTest::invalidIndexes()
{
    open("8");
    MgCommandDSModel *model = m_dialog->model;
    QVERIFY(!model->data(QModelIndex(), Qt::TextAlignmentRole).isValid());
    QVERIFY(!model->setData(QModelIndex(), 1, Qt::EditRole));
    QCOMPARE(model->flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    for (const int row : {-1, 5, 1000}) {
        QCOMPARE(model->getCommandDisplayName(row), QString());
        QCOMPARE(model->getCategory(row), QString());
        QCOMPARE(int(model->getInvokerType(row)), 0);
    }

    // This index is from a time when there were more commands.
    const QModelIndex stale = model->index(4, kDirection);
    static_cast<tests::FakeCommandGroup *>(m_host->commands.groups.front())->commands.resize(2);
    MgDonutDataContainer::instance()->init();
    model->resetToDefault();
    QVERIFY(!model->data(stale, Qt::EditRole).isValid());
    QVERIFY(!model->setData(stale, 1, Qt::EditRole));
}

void CommandTableModelTest::rowsAndColumnsWhateverTheParent()
{
    open("8");
    const MgCommandDSModel *model = m_dialog->model;
    QCOMPARE(model->rowCount(), 5);
    QCOMPARE(model->columnCount(), 3);
    QCOMPARE(model->rowCount(model->index(1, 1)), 5);
    QCOMPARE(model->columnCount(model->index(1, 1)), 3);
}

// Checks everything else that the tester knows, strictly.
void CommandTableModelTest::passesTheModelTester()
{
    open("8");
    RootOnlyModel model(m_dialog.get());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    MgCommandDSSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    const QAbstractItemModelTester proxyTester(&proxy,
                                               QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (const int direction : {1, 2, 1, 0})
        QVERIFY(model.setData(model.index(direction, kDirection), direction, Qt::EditRole));
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("name b"));
    proxy.applyFilter();
    QCOMPARE(proxy.rowCount(), 1);
    m_dialog->ui.search_lineEdit->clear();
    proxy.applyFilter();
    m_dialog->ui.filter_checkBox->setChecked(true);
    proxy.applyFilter();
    QCOMPARE(proxy.rowCount(), 2);
    m_dialog->ui.filter_checkBox->setChecked(false);
    proxy.applyFilter();
    proxy.sort(kDirection, Qt::DescendingOrder);
    proxy.sort(kCommand);
    model.resetToDefault();
    QCOMPARE(proxy.rowCount(), 5);
}

// The real model claims rows below its cells too, which is specified. The tester finds two faults
// that follow from it: the cell has no children, and its claimed child has another parent. It finds
// nothing else, and the same in the proxy, which asks the model.
void CommandTableModelTest::testerFindsOnlyTheRowsBelowCells()
{
    open("8");
    QStringList found;
    complaints = &found;
    const QtMessageHandler previous = qInstallMessageHandler(collectComplaints);
    {
        using Mode = QAbstractItemModelTester::FailureReportingMode;
        const QAbstractItemModelTester tester(m_dialog->model, Mode::Warning);
        const QAbstractItemModelTester proxyTester(m_dialog->proxy, Mode::Warning);
        assign(QStringLiteral("A"), 1);
        assign(QStringLiteral("B"), 1);
        m_dialog->ui.search_lineEdit->setText(QStringLiteral("name b"));
        m_dialog->ui.four_radioButton->setChecked(true);
        m_dialog->proxy->sort(kDirection, Qt::DescendingOrder);
        m_dialog->model->resetToDefault();
    }
    qInstallMessageHandler(previous);
    complaints = nullptr;
    QVERIFY(!found.isEmpty());
    for (const QString &complaint : found) {
        const bool known = complaint.contains(QLatin1String("model->hasChildren(topIndex)"))
                        || complaint.contains(QLatin1String("model->parent(childIndex)"));
        QVERIFY2(known, qPrintable(complaint));
    }
}

void CommandTableModelTest::withoutDialog()
{
    m_host->store.values.insert(QStringLiteral("83"), QStringLiteral("A"));
    open("8");
    QObject stranger;
    for (QObject *owner : {static_cast<QObject *>(nullptr), &stranger}) {
        MgCommandDSModel model(owner);
        QCOMPARE(model.parent(), nullptr);
        const QModelIndex cell = model.index(0, kDirection);
        QVERIFY(!model.data(cell, Qt::DecorationRole).isValid());
        QVERIFY(!model.data(cell, Qt::EditRole).isValid());
        QCOMPARE(model.data(model.index(0, kCommand)).toString(), QStringLiteral("Name A"));
        QCOMPARE(int(model.getInvokerType(0)), 0);
        QVERIFY(!model.checkFilterCondition(QStringLiteral("Name A"), QStringLiteral("Others"), 3));
        QVERIFY(model.setData(cell, 5, Qt::EditRole));
        QCOMPARE(bytesOf(model.getCommands().front()), Bytes(0, 3));
        QVERIFY(!model.setData(model.index(0, kCommand), 5, Qt::EditRole));

        MgCommandDSSortFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        QCOMPARE(proxy.rowCount(), 0);
    }
}

void CommandTableModelTest::copiesTheContainersRecords()
{
    open("8");
    assign(QStringLiteral("A"), 1);
    const std::vector<MgCommandDS> copy = m_dialog->model->getCommands();
    assign(QStringLiteral("B"), 1);
    QCOMPARE(bytesOf(copy[0]), Bytes(1, 1));
    for (const MgCommandDS &record : MgDonutDataContainer::instance()->getCommandsDS())
        QCOMPARE(bytesOf(record), Bytes(0, 0));
}

void CommandTableModelTest::resetToDefaultReadsTheContainerAgain()
{
    open("8");
    assign(QStringLiteral("A"), 1);
    m_host->commands.addCommand(QStringLiteral("F"), QStringLiteral("f"), QStringLiteral("Name F"));
    MgDonutDataContainer::instance()->init();
    QSignalSpy begin(m_dialog->model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy spy(m_dialog->model, &QAbstractItemModel::modelReset);
    m_dialog->model->resetToDefault();
    QCOMPARE(begin.count(), 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_dialog->model->rowCount(), 6);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
}

void CommandTableModelTest::callOperatorIsAlwaysTrue()
{
    open("8");
    const MgCommandDS record = m_dialog->record(QStringLiteral("A"));
    QVERIFY((*m_dialog->model)(record, 0));
    QVERIFY((*m_dialog->model)(record, 255));
}

void CommandTableModelTest::setDataRefusesOtherColumnsAndRoles()
{
    open("8");
    MgCommandDSModel *model = m_dialog->model;
    QVERIFY(!model->setData(model->index(0, kCategory), 1, Qt::EditRole));
    QVERIFY(!model->setData(model->index(0, kCommand), 1, Qt::EditRole));
    QVERIFY(!model->setData(model->index(0, kDirection), 1, Qt::DisplayRole));
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
}

void CommandTableModelTest::setDataTakesTheLowByte()
{
    open("8");
    assign(QStringLiteral("A"), 0x103);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(2, 3));
}

void CommandTableModelTest::setDataEmitsNothing()
{
    open("8");
    QSignalSpy changed(m_dialog->model, &QAbstractItemModel::dataChanged);
    bool layout = false;
    connect(m_dialog->model, &QAbstractItemModel::layoutChanged, this, [&layout] { layout = true; });
    QSignalSpy reset(m_dialog->model, &QAbstractItemModel::modelReset);
    m_dialog->ui.filter_checkBox->setChecked(true);
    assign(QStringLiteral("A"), 1);
    QCOMPARE(changed.count() + reset.count(), 0);
    QVERIFY(!layout);
    // So the filter notices only when it is applied again.
    QCOMPARE(m_dialog->shown(), QStringList());
    m_dialog->applyFilter();
    QCOMPARE(m_dialog->shown(), QStringList(QStringLiteral("Name A")));
}

void CommandTableModelTest::upInFourSchemeTakesBothDirectionsFromTheHolder()
{
    open("4");
    assign(QStringLiteral("A"), 1);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(1, 1));
    assign(QStringLiteral("B"), 1);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(1, 1));
}

void CommandTableModelTest::diagonalClearsOnlyTheHoldersEightDirection()
{
    m_host->store.values = {{QStringLiteral("41"), QStringLiteral("A")},
                            {QStringLiteral("43"), QStringLiteral("B")},
                            {QStringLiteral("82"), QStringLiteral("A")}};
    open("8");
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(1, 2));
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(3, 0));
    assign(QStringLiteral("B"), 2);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(1, 0));
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(3, 2));
}

void CommandTableModelTest::leftInEightSchemeClearsTheHolderInBothSchemes()
{
    open("8");
    assign(QStringLiteral("A"), 3);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(2, 3));
    assign(QStringLiteral("B"), 3);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(2, 3));
}

void CommandTableModelTest::twoRecordsCanComeToShareAFourDirection()
{
    open("8");
    assign(QStringLiteral("B"), 1);
    assign(QStringLiteral("B"), 2);
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(1, 2));
    assign(QStringLiteral("C"), 1);
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(1, 2));
    QCOMPARE(bytes(QStringLiteral("C")), Bytes(1, 1));
}

void CommandTableModelTest::noneOnUnboundInFourSchemeStillClearsAnEightDirection()
{
    // A is the first without a four direction, and has a diagonal.
    m_host->store.values = {{QStringLiteral("41"), QStringLiteral("B")},
                            {QStringLiteral("82"), QStringLiteral("A")}};
    open("4");
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 2));
    m_dialog->ui.reset_pushButton->setEnabled(false);
    assign(QStringLiteral("D"), 0);
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
    QCOMPARE(bytes(QStringLiteral("D")), Bytes(0, 0));
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
}

void CommandTableModelTest::noneInEightSchemeClearsBothOfTheRecord()
{
    m_host->store.values = {{QStringLiteral("41"), QStringLiteral("B")},
                            {QStringLiteral("42"), QStringLiteral("A")},
                            {QStringLiteral("81"), QStringLiteral("B")}};
    open("8");
    assign(QStringLiteral("B"), 0);
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(0, 0));
    // The first record with the eight direction 0, which keeps its four direction.
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(2, 0));
}

void CommandTableModelTest::linkedDirections_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("four");
    QTest::addColumn<int>("eight");
    const QString four = QStringLiteral("4");
    const QString eight = QStringLiteral("8");
    QTest::newRow("four none") << four << 0 << 0 << 0;
    QTest::newRow("four up") << four << 1 << 1 << 1;
    QTest::newRow("four left") << four << 2 << 2 << 3;
    QTest::newRow("four down") << four << 3 << 3 << 5;
    QTest::newRow("four right") << four << 4 << 4 << 7;
    QTest::newRow("eight none") << eight << 0 << 0 << 0;
    QTest::newRow("eight up") << eight << 1 << 1 << 1;
    QTest::newRow("eight up left") << eight << 2 << 4 << 2;
    QTest::newRow("eight left") << eight << 3 << 2 << 3;
    QTest::newRow("eight down left") << eight << 4 << 4 << 4;
    QTest::newRow("eight down") << eight << 5 << 3 << 5;
    QTest::newRow("eight down right") << eight << 6 << 4 << 6;
    QTest::newRow("eight right") << eight << 7 << 4 << 7;
    QTest::newRow("eight up right") << eight << 8 << 4 << 8;
}

void CommandTableModelTest::linkedDirections()
{
    QFETCH(QString, scheme);
    QFETCH(int, direction);
    QFETCH(int, four);
    QFETCH(int, eight);
    // B starts with "right" in the four scheme. Only diagonals do not change that.
    m_host->store.values = {{QStringLiteral("44"), QStringLiteral("B")}};
    open(qPrintable(scheme));
    assign(QStringLiteral("B"), direction);
    QCOMPARE(bytes(QStringLiteral("B")), Bytes(four, eight));
}

void CommandTableModelTest::resetButtonFollowsChangesOnly()
{
    open("8");
    m_dialog->ui.reset_pushButton->setEnabled(false);
    assign(QStringLiteral("A"), 0);
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
    assign(QStringLiteral("A"), 4);
    QVERIFY(m_dialog->ui.reset_pushButton->isEnabled());
    m_dialog->ui.reset_pushButton->setEnabled(false);
    assign(QStringLiteral("A"), 4);
    QVERIFY(!m_dialog->ui.reset_pushButton->isEnabled());
}

void CommandTableModelTest::randomWalkKeepsTheRules()
{
    for (int number = 0; number < 7; ++number)
        m_host->commands.addCommand(QStringLiteral("X%1").arg(number), QStringLiteral("x"),
                                    QStringLiteral("X"));
    open("8");
    MgCommandDSModel *model = m_dialog->model;
    std::vector<Bytes> expected(static_cast<std::size_t>(model->rowCount()), Bytes(0, 0));
    QCOMPARE(expected.size(), std::size_t(12));

    std::mt19937 random(20240229);
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    int shared = 0;
    for (int step = 0; step < 100000; ++step) {
        const bool four = upTo(1) == 0;
        m_dialog->scheme = four ? MgDonutDialogManager::Four : MgDonutDialogManager::Eight;
        const int row = upTo(11);
        const int direction = upTo(four ? 4 : 8);
        QVERIFY(model->setData(model->index(row, kDirection), direction, Qt::EditRole));
        expected = tests::bytesAfter(expected, four, static_cast<std::size_t>(row), direction);

        const std::vector<MgCommandDS> records = model->getCommands();
        int ups = 0;
        for (std::size_t place = 0; place < records.size(); ++place) {
            if (bytesOf(records[place]) != expected[place])
                QFAIL(qPrintable(QStringLiteral("step %1: record %2").arg(step).arg(place)));
            ups += expected[place].first == 1 ? 1 : 0;
        }
        shared += ups > 1 ? 1 : 0;
    }
    // The walk must have reached states where two records share a four direction.
    QVERIFY(shared > 1000);
}

void CommandTableModelTest::takesChangesBackOneByOne()
{
    for (int number = 0; number < 7; ++number)
        m_host->commands.addCommand(QStringLiteral("X%1").arg(number), QStringLiteral("x"),
                                    QStringLiteral("X"));
    open("8");
    MgCommandDSModel *model = m_dialog->model;
    QVERIFY(!model->takeBack());
    std::mt19937 random(7);
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    std::vector<std::vector<Bytes>> states{tests::bytesOf(model->getCommands())};
    for (int step = 0; step < 300; ++step) {
        const bool four = upTo(1) == 0;
        m_dialog->scheme = four ? MgDonutDialogManager::Four : MgDonutDialogManager::Eight;
        const QModelIndex cell = model->index(upTo(model->rowCount() - 1), kDirection);
        QVERIFY(model->setData(cell, upTo(four ? 4 : 8), Qt::EditRole));
        // A choice that changed nothing cannot be undone.
        const std::vector<Bytes> state = tests::bytesOf(model->getCommands());
        if (state != states.back())
            states.push_back(state);
    }
    QVERIFY(states.size() > 200);
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    for (states.pop_back(); !states.empty(); states.pop_back()) {
        QVERIFY(model->takeBack());
        QCOMPARE(tests::bytesOf(model->getCommands()), states.back());
        QVERIFY(changed.count() > 0);
        QCOMPARE(changed.takeFirst().at(0).toModelIndex().column(), kDirection);
        changed.clear();
    }
    QVERIFY(!model->takeBack());
}

void CommandTableModelTest::takesNothingBackAfterAReset()
{
    open("8");
    assign(QStringLiteral("A"), 3);
    m_dialog->model->resetToDefault();
    QVERIFY(!m_dialog->model->takeBack());
    QCOMPARE(bytes(QStringLiteral("A")), Bytes(0, 0));
}

void CommandTableModelTest::namesTheHolderOfADirection()
{
    m_host->store.values = {{QStringLiteral("82"), QStringLiteral("A")},
                            {QStringLiteral("42"), QStringLiteral("B")}};
    open("8");
    const QString a = m_dialog->record(QStringLiteral("A")).displayName;
    QCOMPARE(m_dialog->model->getHolderNames(2), a);
    QCOMPARE(m_dialog->model->getHolderNames(0), QString());
    QCOMPARE(m_dialog->model->getHolderNames(3), QString());
    m_dialog->scheme = MgDonutDialogManager::Four;
    QCOMPARE(m_dialog->model->getHolderNames(2), m_dialog->record(QStringLiteral("B")).displayName);
}

void CommandTableModelTest::assignedOnlyShowsNonzeroCurrentDirections()
{
    m_host->store.values = {{QStringLiteral("41"), QStringLiteral("B")},
                            {QStringLiteral("82"), QStringLiteral("A")},
                            {QStringLiteral("88"), QStringLiteral("D")}};
    open("8");
    QCOMPARE(m_dialog->ui.category_comboBox->currentText(), QStringLiteral("All Commands"));
    m_dialog->ui.filter_checkBox->setChecked(true);
    QCOMPARE(m_dialog->shown(), QStringList({QStringLiteral("Name A"), QStringLiteral("Name D")}));

    // The scheme alone does not apply the filter. Applying it afterwards does.
    m_dialog->scheme = MgDonutDialogManager::Four;
    QCOMPARE(m_dialog->shown(), QStringList({QStringLiteral("Name A"), QStringLiteral("Name D")}));
    m_dialog->proxy->applyFilter();
    QCOMPARE(m_dialog->shown(), QStringList(QStringLiteral("Name B")));
}

void CommandTableModelTest::searchMatchesNamesNotCategories()
{
    auto *menu = m_host->addTopLevelMenu(QStringLiteral("Lines"));
    for (const char *name : {"Line", "Polyline", "Circle"}) {
        auto *item = m_host->commands.addCommand(QStringLiteral("line_") + QLatin1String(name),
                                                 QStringLiteral("line ") + QLatin1String(name),
                                                 QLatin1String(name), QStringLiteral("A line."));
        m_host->ui.addItem(menu->subItems.get(), item->caption, false, item->identifier, item);
    }
    open("8");
    for (const char *text : {"line", "LINE", "LiNe"}) {
        m_dialog->ui.search_lineEdit->setText(QLatin1String(text));
        QCOMPARE(m_dialog->shown(), QStringList({QStringLiteral("Line"), QStringLiteral("Polyline")}));
    }
    QCOMPARE(m_dialog->shown(kCategory),
             QStringList({QStringLiteral("Lines"), QStringLiteral("Lines")}));
}

void CommandTableModelTest::filterCondition_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<bool>("assignedOnly");
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("accepted");
    const QString all = QStringLiteral("All Commands");
    const QString draw = QStringLiteral("Draw");
    const QString none;
    // The row is "Arc" in "Draw", without a direction.
    QTest::newRow("nothing asked") << all << false << none << true;
    QTest::newRow("assigned only") << all << true << none << false;
    QTest::newRow("its category") << draw << false << none << true;
    QTest::newRow("case of the category") << QStringLiteral("draw") << false << none << false;
    QTest::newRow("another category") << QStringLiteral("Dra") << false << none << false;
    QTest::newRow("search") << all << false << QStringLiteral("rc") << true;
    QTest::newRow("search in another case") << all << false << QStringLiteral("RC") << true;
    QTest::newRow("search for the category") << all << false << QStringLiteral("Draw") << false;
    QTest::newRow("a blank is searched for") << all << false << QStringLiteral(" ") << false;
    QTest::newRow("search that looks like a pattern") << all << false << QStringLiteral(".*") << false;
    QTest::newRow("category but not search") << draw << false << QStringLiteral("x") << false;
}

void CommandTableModelTest::filterCondition()
{
    QFETCH(QString, category);
    QFETCH(bool, assignedOnly);
    QFETCH(QString, search);
    QFETCH(bool, accepted);
    for (const char *caption : {"&Draw", "draw", "Dra"})
        m_host->addTopLevelMenu(QLatin1String(caption));
    open("8");
    m_dialog->ui.category_comboBox->setCurrentIndex(
        m_dialog->ui.category_comboBox->findText(category, Qt::MatchExactly | Qt::MatchCaseSensitive));
    QCOMPARE(m_dialog->categoryText(), category);
    m_dialog->ui.filter_checkBox->setChecked(assignedOnly);
    m_dialog->ui.search_lineEdit->setText(search);

    const auto accepts = [this](unsigned char direction) {
        return m_dialog->model->checkFilterCondition(QStringLiteral("Arc"), QStringLiteral("Draw"),
                                                     direction);
    };
    QCOMPARE(accepts(0), accepted);
    // A direction only ever matters to the check box.
    QCOMPARE(accepts(8), assignedOnly || accepted);
}

void CommandTableModelTest::sortingByDirectionPutsUnboundFirst()
{
    m_host->store.values = {{QStringLiteral("81"), QStringLiteral("E")},
                            {QStringLiteral("82"), QStringLiteral("C")},
                            {QStringLiteral("88"), QStringLiteral("A")}};
    open("8");
    m_dialog->proxy->sort(kDirection, Qt::AscendingOrder);
    QCOMPARE(m_dialog->shownDirections(), QList<int>({0, 0, 1, 2, 8}));
    QCOMPARE(m_dialog->shown(),
             QStringList({QStringLiteral("Name B"), QStringLiteral("Name D"), QStringLiteral("Name E"),
                          QStringLiteral("Name C"), QStringLiteral("Name A")}));
    m_dialog->proxy->sort(kDirection, Qt::DescendingOrder);
    QCOMPARE(m_dialog->shownDirections(), QList<int>({8, 2, 1, 0, 0}));
}

void CommandTableModelTest::sortingTextsIsCaseSensitiveAndStable()
{
    auto *group = static_cast<tests::FakeCommandGroup *>(m_host->commands.groups.front());
    const QStringList names{QStringLiteral("b"), QStringLiteral("A"), QStringLiteral("a"),
                            QString::fromUtf8("Ä"), QStringLiteral("B")};
    for (int place = 0; place < 5; ++place)
        static_cast<tests::FakeCommandItem *>(group->commands[place])->caption = names[place];
    open("8");
    // All are in one category, so they keep the host's order.
    QCOMPARE(m_dialog->shown(), names);
    m_dialog->proxy->sort(kCommand, Qt::AscendingOrder);
    QCOMPARE(m_dialog->shown(),
             QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("a"),
                          QStringLiteral("b"), QString::fromUtf8("Ä")}));
    // Equal rows keep the order of the source model, not the order shown before.
    m_dialog->proxy->sort(kCategory, Qt::AscendingOrder);
    QCOMPARE(m_dialog->shown(), names);
    m_dialog->proxy->sort(kCategory, Qt::DescendingOrder);
    QCOMPARE(m_dialog->shown(), names);
    // The same after rows were filtered out and came back.
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        m_dialog->proxy->sort(kCategory, order);
        m_dialog->ui.search_lineEdit->setText(QStringLiteral("b"));
        QCOMPARE(m_dialog->shown(), QStringList({QStringLiteral("b"), QStringLiteral("B")}));
        m_dialog->ui.search_lineEdit->clear();
        QCOMPARE(m_dialog->shown(), names);
    }
}

// A table view asks twice for each order. Texts never change, but directions do.
void CommandTableModelTest::theSameOrderAgainIsNoWork()
{
    open("8");
    MgCommandDSSortFilterProxyModel &proxy = *m_dialog->proxy;
    int sorted = 0;
    connect(&proxy, &QAbstractItemModel::layoutChanged, this, [&sorted] { ++sorted; });
    for (const int column : {kCategory, kCommand}) {
        proxy.sort(column, Qt::DescendingOrder);
        sorted = 0;
        proxy.sort(column, Qt::DescendingOrder);
        QCOMPARE(sorted, 0);
        proxy.sort(column, Qt::AscendingOrder);
        QVERIFY(sorted > 0);
    }
    proxy.sort(kDirection, Qt::DescendingOrder);
    sorted = 0;
    proxy.sort(kDirection, Qt::DescendingOrder);
    QVERIFY(sorted > 0);
    proxy.disconnect(this);
}

void CommandTableModelTest::sortsAgainWhenTheFilterIsApplied()
{
    m_host->store.values = {{QStringLiteral("81"), QStringLiteral("A")}};
    open("8");
    m_dialog->proxy->sort(kDirection, Qt::DescendingOrder);
    const QStringList before{QStringLiteral("Name A"), QStringLiteral("Name B"),
                             QStringLiteral("Name C"), QStringLiteral("Name D"),
                             QStringLiteral("Name E")};
    QCOMPARE(m_dialog->shown(), before);
    assign(QStringLiteral("D"), 5);
    QCOMPARE(m_dialog->shown(), before);
    m_dialog->proxy->applyFilter();
    QCOMPARE(m_dialog->shownDirections(), QList<int>({5, 1, 0, 0, 0}));
}

// An open editor of any row follows the scheme.
void CommandTableModelTest::announcesAllDirectionsWhenTheFilterIsApplied()
{
    open("8");
    for (const int rows : {5, 1, 0}) {
        m_dialog->ui.search_lineEdit->setText(QLatin1String(rows == 5   ? ""
                                                            : rows == 1 ? "name b"
                                                                        : "no such command"));
        QCOMPARE(m_dialog->proxy->rowCount(), rows);
        QSignalSpy changed(m_dialog->proxy, &QAbstractItemModel::dataChanged);
        m_dialog->proxy->applyFilter();
        QCOMPARE(changed.count(), rows > 0 ? 1 : 0);
        if (rows > 0) {
            QCOMPARE(changed.front().at(0).toModelIndex(), m_dialog->cell(0, kDirection));
            QCOMPARE(changed.front().at(1).toModelIndex(), m_dialog->cell(rows - 1, kDirection));
        }
    }
}

// The result must equal that of the base class on a model with the same texts.
void CommandTableModelTest::comparesTextsAsTheBaseClassDoes()
{
    const QStringList names{QString(),
                            QLatin1String(""),
                            QStringLiteral("a"),
                            QStringLiteral("A"),
                            QStringLiteral("aa"),
                            QStringLiteral("10"),
                            QStringLiteral("9"),
                            QString::fromUtf8("ß"),
                            QString::fromUtf8("é"),
                            QString::fromUtf8("𝔸"),
                            QString(QChar(0xffee))};
    for (const QString &name : names)
        m_host->commands.addCommand(name, QStringLiteral("x"), name);
    open("8");
    QStandardItemModel plain;
    const QStringList shown = m_dialog->shown();
    for (const QString &name : shown)
        plain.appendRow({new QStandardItem, new QStandardItem(name)});
    QSortFilterProxyModel plainProxy;
    plainProxy.setSourceModel(&plain);
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        plainProxy.sort(-1);
        plainProxy.sort(kCommand, order);
        m_dialog->proxy->sort(kCommand, order);
        for (int row = 0; row < plainProxy.rowCount(); ++row)
            QCOMPARE(m_dialog->cell(row, kCommand).data().toString(),
                     plainProxy.index(row, kCommand).data().toString());
    }

    // With other settings the base class compares.
    const QLocale locale;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const auto restore = qScopeGuard([&locale] { QLocale::setDefault(locale); });
    for (const bool isLocaleAware : {false, true}) {
        const auto sensitivity = isLocaleAware ? Qt::CaseSensitive : Qt::CaseInsensitive;
        for (QSortFilterProxyModel *proxy :
             {static_cast<QSortFilterProxyModel *>(m_dialog->proxy), &plainProxy}) {
            proxy->setSortLocaleAware(isLocaleAware);
            proxy->setSortCaseSensitivity(sensitivity);
        }
        plainProxy.sort(-1);
        plainProxy.sort(kCommand);
        m_dialog->proxy->sort(kCommand);
        for (int row = 0; row < plainProxy.rowCount(); ++row)
            QCOMPARE(m_dialog->cell(row, kCommand).data().toString(),
                     plainProxy.index(row, kCommand).data().toString());
    }
    m_dialog->proxy->setSortLocaleAware(false);
    m_dialog->proxy->setSortRole(Qt::UserRole); // all are equal, and stay in the model's order
    m_dialog->proxy->sort(kCommand, Qt::DescendingOrder);
    for (int row = 0; row < m_dialog->proxy->rowCount(); ++row)
        QCOMPARE(m_dialog->proxy->mapToSource(m_dialog->cell(row, kCommand)).row(), row);
}

// Only two cells of the last column are compared by their directions.
void CommandTableModelTest::comparesOtherCellsAsTheBaseClassDoes()
{
    class Proxy : public MgCommandDSSortFilterProxyModel
    {
    public:
        using MgCommandDSSortFilterProxyModel::lessThan;
    };
    class Base : public QSortFilterProxyModel
    {
    public:
        using QSortFilterProxyModel::lessThan;
    };
    open("8");
    assign(QStringLiteral("A"), 2);
    assign(QStringLiteral("B"), 1);
    const MgCommandDSModel &model = *m_dialog->model;
    Proxy proxy;
    proxy.setSourceModel(m_dialog->model);
    Base base;
    base.setSourceModel(m_dialog->model);
    QVector<QModelIndex> cells{QModelIndex()};
    for (const char *id : {"A", "B"}) {
        for (int column = 0; column < 3; ++column)
            cells.append(model.index(rowIn(QLatin1String(id)), column));
    }
    for (const QModelIndex &left : qAsConst(cells)) {
        for (const QModelIndex &right : qAsConst(cells)) {
            const bool areDirections = left.column() == kDirection && right.column() == kDirection;
            const bool expected =
                areDirections ? model.getInvokerType(left.row()) < model.getInvokerType(right.row())
                              : base.lessThan(left, right);
            QCOMPARE(proxy.lessThan(left, right), expected);
        }
    }
    // Another model has no directions.
    QStandardItemModel plain(2, 3);
    plain.setData(plain.index(0, kDirection), QStringLiteral("a"));
    plain.setData(plain.index(1, kDirection), QStringLiteral("b"));
    proxy.setSourceModel(&plain);
    QVERIFY(proxy.lessThan(plain.index(0, kDirection), plain.index(1, kDirection)));
    QVERIFY(!proxy.lessThan(plain.index(1, kDirection), plain.index(0, kDirection)));
}

void CommandTableModelTest::proxyAcceptsEveryRowOfAnotherModel()
{
    QStandardItemModel other(7, 3);
    MgCommandDSSortFilterProxyModel proxy;
    QCOMPARE(proxy.parent(), nullptr);
    proxy.setSourceModel(&other);
    QCOMPARE(proxy.rowCount(), 7);
    proxy.applyFilter();
    proxy.sort(kDirection);
    QCOMPARE(proxy.rowCount(), 7);
}

void CommandTableModelTest::proxyReadsDirectionsOut()
{
    m_host->store.values = {{QStringLiteral("82"), QStringLiteral("A")}};
    open("8");
    QCOMPARE(m_dialog->cell(0, kDirection).data(Qt::AccessibleTextRole).toString(),
             QStringLiteral("Up left"));
    QCOMPARE(m_dialog->cell(1, kDirection).data(Qt::AccessibleTextRole).toString(),
             QStringLiteral("None"));
    QVERIFY(!m_dialog->cell(0, kCommand).data(Qt::AccessibleTextRole).isValid());
}

QTEST_MAIN(CommandTableModelTest)
#include "tst_commandtablemodel.moc"
