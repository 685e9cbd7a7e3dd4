// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "dialog/BindingListDocument.h"
#include "dialog/BindingListPrinter.h"
#include "dialog/PrintTableView.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/FatalWarnings.h"

#include <QAbstractTextDocumentLayout>
#include <QHeaderView>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <memory>

#include <malloc.h>

using tests::kCommand;
using tests::kDirection;
using tests::TestDialog;

namespace {

std::unique_ptr<QTextDocument> documentOf(QAbstractItemModel *model)
{
    return std::unique_ptr<QTextDocument>(createBindingListDocument(model));
}

// The document's one table; null when there is none.
QTextTable *tableOf(const QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    return frames.size() == 1 ? qobject_cast<QTextTable *>(frames.front()) : nullptr;
}

QString textOf(const QTextTableCell &cell)
{
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

QStringList columnOf(const QTextTable &table, int column)
{
    QStringList texts;
    for (int row = 0; row < table.rows(); ++row)
        texts.append(textOf(table.cellAt(row, column)));
    return texts;
}

QColor backgroundOf(const QTextTableCell &cell)
{
    return cell.format().background().color();
}

// A run of characters of a cell with one format.
QTextFragment fragmentOf(const QTextTableCell &cell, int number)
{
    auto fragment = cell.firstCursorPosition().block().begin();
    for (int skipped = 0; skipped < number; ++skipped)
        ++fragment;
    return fragment.fragment();
}

// The output of a tool about a file; empty if it failed.
QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The words of a printed page, in reading order, with ligatures split.
QStringList wordsOf(const QString &file)
{
    return run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")})
        .normalized(QString::NormalizationForm_KC)
        .simplified()
        .split(QLatin1Char(' '));
}

int pagesOf(const QString &file)
{
    const QString info = run(QStringLiteral("pdfinfo"), {file});
    const QStringList words = info.simplified().split(QLatin1Char(' '));
    const auto place = words.indexOf(QLatin1String("Pages:"));
    return place < 0 ? 0 : words.value(place + 1).toInt();
}

// Has one page, and no other.
class GivingUpPrinter : public QPrinter, public QPrintEngine
{
public:
    explicit GivingUpPrinter(const QString &file)
    {
        m_paper.setOutputFormat(QPrinter::PdfFormat);
        m_paper.setOutputFileName(file);
        setEngines(this, m_paper.paintEngine());
    }

    int pagesAskedFor = 0;

    bool newPage() override
    {
        ++pagesAskedFor;
        return false;
    }
    void setProperty(PrintEnginePropertyKey key, const QVariant &value) override
    {
        m_paper.printEngine()->setProperty(key, value);
    }
    QVariant property(PrintEnginePropertyKey key) const override
    {
        return m_paper.printEngine()->property(key);
    }
    bool abort() override { return false; }
    int metric(PaintDeviceMetric metric) const override { return m_paper.printEngine()->metric(metric); }
    QPrinter::PrinterState printerState() const override { return QPrinter::Active; }

private:
    QPrinter m_paper;
};

} // namespace

class PrintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void headerOnlyWhenNothingMatches();
    void rowsInTheOrderOfTheSelectColumn();
    void filteredRowsOnly();
    void cellWithIconAndNoTextHasMargins();
    void rowsAlternate();
    void leadingSpacesAreKept();
    void tableFormat();
    void headerCells();
    void rolesOfTheModel();
    void blocksTakeTheModelsAlignment();
    void iconsAreThirtyTwoPixels();
    void aSmallerIconIsCentred();
    void textIsNeverRendered_data();
    void textIsNeverRendered();
    void modelsWithoutATable();
    void belongsToTheCaller();
    void aDocumentWithoutATablePrintsNothing();

    void printsWhatTheTableShows();
    void everyPageHasWholeRowsBelowTheHeader_data();
    void everyPageHasWholeRowsBelowTheHeader();
    void aRowIsAsHighAsItsHighestCell();
    void cellsOfARowAlign();
    void iconsAreCentredOnTheirText();
    void theNumberIsFivePointsBelowThePage();
    void theTableFillsThePageInsideItsMargins();
    void chosenPagesOnly();
    void lastPageFirst();
    void textIsBlackInADarkProgram();
    void fileHasATitle();
    void iconsArePrintedAsTheyAreWhenOff();
    void printedPagesLook();
    void aPrinterThatGivesUpIsAskedOnce();
    void cancelledPrintsNothing();
    void realPrintDialog_data();
    void realPrintDialog();
    void everyPrintStartsAfresh();
    void documentIsFreed();
    void tenThousandCommands();

    void tableViewFillsTheArea();
    void tableViewPaintsRowsThatAreScrolledAway();
    void tableViewPaintsEachCellOnce();
    void tableViewWithoutRows();
    void tableViewWithoutModel();

private:
    void open(int commands);
    void printToFile();

    QTemporaryDir m_folder;
    QString m_file;
    std::unique_ptr<tests::FakeHost> m_host;
    std::unique_ptr<TestDialog> m_dialog;
};

void PrintingTest::initTestCase()
{
    tests::failOnWarnings();
    QVERIFY(m_folder.isValid());
    // These tools read the pages back.
    QVERIFY(!run(QStringLiteral("which"),
                 {QStringLiteral("pdftotext"), QStringLiteral("pdfinfo"), QStringLiteral("pdftoppm")})
                 .isEmpty());
}

void PrintingTest::init()
{
    tests::resetWarnings();
    m_file = m_folder.filePath(QLatin1String(QTest::currentTestFunction()) + QLatin1String(".pdf"));
    m_host = std::make_unique<tests::FakeHost>();
}

void PrintingTest::cleanup()
{
    m_dialog.reset();
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void PrintingTest::open(int commands)
{
    tests::addDraftingCommands(*m_host, commands, true);
    MgDonutDataContainer::instance()->init();
    m_dialog = std::make_unique<TestDialog>();
    m_dialog->printDialog = [this](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        return static_cast<int>(QDialog::Accepted);
    };
    QVERIFY(tests::showActive(*m_dialog));
}

void PrintingTest::printToFile()
{
    tests::click(m_dialog->ui.print_pushButton);
    QVERIFY(QFile::exists(m_file));
}

void PrintingTest::headerOnlyWhenNothingMatches()
{
    open(30);
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("no such command"));
    const auto document = documentOf(m_dialog->proxy);
    QCOMPARE(tableOf(*document)->rows(), 1);
    QCOMPARE(tableOf(*document)->columns(), 3);
    QCOMPARE(document->toPlainText().simplified(), QStringLiteral("Category Command Select"));
    printToFile();
    // Below the rows is the page number.
    QCOMPARE(wordsOf(m_file), QStringList({QStringLiteral("Category"), QStringLiteral("Command"),
                                           QStringLiteral("Select"), QStringLiteral("1")}));
}

void PrintingTest::rowsInTheOrderOfTheSelectColumn()
{
    open(30);
    m_dialog->ui.filter_checkBox->setChecked(true);
    m_dialog->ui.command_tableView->sortByColumn(kDirection, Qt::AscendingOrder);
    const QStringList names{QStringLiteral("Zoom Bounds"), QStringLiteral("Offset"),
                            QStringLiteral("Open..."),     QStringLiteral("Copy"),
                            QStringLiteral("Save"),        QStringLiteral("Text"),
                            QStringLiteral("Line"),        QStringLiteral("Trim")};
    QCOMPARE(m_dialog->shown(), names);
    const auto document = documentOf(m_dialog->proxy);
    const QStringList printed = columnOf(*tableOf(*document), kCommand);
    for (int row = 0; row < names.size(); ++row)
        QVERIFY(printed[row + 1].endsWith(QLatin1String("  ") + names[row]));

    printToFile();
    const QString words = wordsOf(m_file).join(QLatin1Char(' '));
    qsizetype place = 0;
    for (const QString &name : names) {
        const qsizetype found = words.indexOf(name, static_cast<int>(place));
        QVERIFY2(found > place, qPrintable(name + QLatin1String(" in ") + words));
        place = found;
    }
}

void PrintingTest::filteredRowsOnly()
{
    open(30);
    m_dialog->ui.category_comboBox->setCurrentIndex(4);
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("c"));
    const int rows = m_dialog->proxy->rowCount();
    QVERIFY(rows > 0 && rows < 30);
    const auto document = documentOf(m_dialog->proxy);
    QCOMPARE(tableOf(*document)->rows(), rows + 1);
    printToFile();
    const QStringList words = wordsOf(m_file);
    QCOMPARE(words.count(QStringLiteral("Modify")), rows);
    QVERIFY(!words.contains(QStringLiteral("File")));
}

void PrintingTest::cellWithIconAndNoTextHasMargins()
{
    QStandardItemModel model(3, 1);
    model.setItem(0, 0, new QStandardItem(tests::squareIcon(Qt::red), QString()));
    model.setItem(1, 0, new QStandardItem(QStringLiteral(" \t ")));
    model.setItem(2, 0, new QStandardItem(tests::squareIcon(Qt::red), QStringLiteral("text")));
    const auto document = documentOf(&model);
    const QTextTable *table = tableOf(*document);
    const auto block = [table](int row) {
        return table->cellAt(row, 0).firstCursorPosition().blockFormat();
    };
    // The image is followed by two blanks.
    QCOMPARE(textOf(table->cellAt(1, 0)),
             QString(QChar(QChar::ObjectReplacementCharacter)) + QLatin1String("  "));
    for (const int row : {1, 2}) {
        QCOMPARE(block(row).topMargin(), 8.0);
        QCOMPARE(block(row).bottomMargin(), 8.0);
        QVERIFY(!block(row).hasProperty(QTextFormat::BlockAlignment));
    }
    QCOMPARE(block(3).topMargin(), 0.0);
    QCOMPARE(block(3).bottomMargin(), 0.0);
    QVERIFY(block(3).hasProperty(QTextFormat::BlockAlignment));
}

void PrintingTest::rowsAlternate()
{
    open(30);
    const auto document = documentOf(m_dialog->proxy);
    const QTextTable *table = tableOf(*document);
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(backgroundOf(table->cellAt(0, column)), QColor(QStringLiteral("#dfdfdf")));
        QCOMPARE(backgroundOf(table->cellAt(1, column)), QColor(QStringLiteral("#ffffff")));
        QCOMPARE(backgroundOf(table->cellAt(2, column)), QColor(QStringLiteral("#e1e1e1")));
        QCOMPARE(backgroundOf(table->cellAt(3, column)), QColor(QStringLiteral("#ffffff")));
        QCOMPARE(backgroundOf(table->cellAt(30, column)), QColor(QStringLiteral("#e1e1e1")));
    }
}

void PrintingTest::leadingSpacesAreKept()
{
    QStandardItemModel model(2, 1);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("   three before, two behind  ")));
    model.setItem(1, 0, new QStandardItem(tests::squareIcon(Qt::red), QStringLiteral(" one before")));
    const auto document = documentOf(&model);
    const QTextTable *table = tableOf(*document);
    QCOMPARE(textOf(table->cellAt(1, 0)), QStringLiteral("   three before, two behind  "));
    QCOMPARE(table->cellAt(1, 0).firstCursorPosition().blockFormat().topMargin(), 0.0);
    QCOMPARE(textOf(table->cellAt(2, 0)).mid(1), QStringLiteral("   one before"));
}

void PrintingTest::tableFormat()
{
    open(10);
    const auto document = documentOf(m_dialog->proxy);
    QCOMPARE(document->parent(), nullptr);
    const QTextTableFormat format = tableOf(*document)->format();
    QCOMPARE(format.width(), QTextLength(QTextLength::PercentageLength, 98));
    QCOMPARE(format.background(), QBrush(Qt::white, Qt::SolidPattern));
    QCOMPARE(format.border(), 0.0);
    QCOMPARE(format.cellSpacing(), 2.0);
    QCOMPARE(format.cellPadding(), 2.0);
    QCOMPARE(format.alignment(), Qt::AlignLeft);
}

void PrintingTest::headerCells()
{
    open(10);
    const auto document = documentOf(m_dialog->proxy);
    const QTextTable *table = tableOf(*document);
    const QStringList texts{QStringLiteral("Category"), QStringLiteral("Command"),
                            QStringLiteral("Select")};
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(textOf(table->cellAt(0, column)), texts[column]);
        const QTextCharFormat format = fragmentOf(table->cellAt(0, column), 0).charFormat();
        QCOMPARE(format.font().family(), QStringLiteral("Tahoma"));
        QCOMPARE(format.font().pointSize(), 8);
        QCOMPARE(format.font().weight(), int(QFont::Bold));
        QCOMPARE(format.foreground().style(), Qt::SolidPattern);
    }

    // One model has fonts and colours of its own, the other answers with wrong types.
    QStandardItemModel model(0, 2);
    const QFont font(QStringLiteral("Serif"), 20);
    model.setHorizontalHeaderLabels({QStringLiteral("own"), QStringLiteral("plain")});
    model.setHeaderData(0, Qt::Horizontal, font, Qt::FontRole);
    model.setHeaderData(0, Qt::Horizontal, QColor(Qt::blue), Qt::ForegroundRole);
    model.setHeaderData(1, Qt::Horizontal, QStringLiteral("no font"), Qt::FontRole);
    model.setHeaderData(1, Qt::Horizontal, QStringLiteral("no colour"), Qt::ForegroundRole);
    const auto other = documentOf(&model);
    const QTextCharFormat own = fragmentOf(tableOf(*other)->cellAt(0, 0), 0).charFormat();
    QCOMPARE(own.font(), font);
    QCOMPARE(own.foreground(), QBrush(Qt::blue));
    const QTextCharFormat plain = fragmentOf(tableOf(*other)->cellAt(0, 1), 0).charFormat();
    QCOMPARE(plain.font(), QFont());
    QVERIFY(!plain.foreground().color().isValid());
}

void PrintingTest::rolesOfTheModel()
{
    QStandardItemModel model(2, 1);
    const QFont font(QStringLiteral("Serif"), 20, QFont::Bold, true);
    const QModelIndex cell = model.index(1, 0);
    model.setData(cell, QStringLiteral("text"));
    model.setData(cell, font, Qt::FontRole);
    model.setData(cell, QColor(Qt::red), Qt::ForegroundRole);
    model.setData(cell, QColor(Qt::yellow), Qt::BackgroundRole);
    const auto document = documentOf(&model);
    const QTextTableCell printed = tableOf(*document)->cellAt(2, 0);
    QCOMPARE(backgroundOf(printed), QColor(Qt::yellow));
    const QTextCharFormat format = fragmentOf(printed, 0).charFormat();
    QCOMPARE(format.font(), font);
    QCOMPARE(format.foreground(), QBrush(Qt::red, Qt::SolidPattern));

    // Views accept brushes for these roles too.
    model.setData(cell, QBrush(Qt::green), Qt::ForegroundRole);
    model.setData(cell, QBrush(Qt::cyan), Qt::BackgroundRole);
    const auto brushes = documentOf(&model);
    QCOMPARE(backgroundOf(tableOf(*brushes)->cellAt(2, 0)), QColor(Qt::cyan));
    QCOMPARE(fragmentOf(tableOf(*brushes)->cellAt(2, 0), 0).charFormat().foreground().color(),
             QColor(Qt::green));
}

void PrintingTest::blocksTakeTheModelsAlignment()
{
    open(10);
    const auto document = documentOf(m_dialog->proxy);
    const QTextTable *table = tableOf(*document);
    for (int column = 0; column < 2; ++column) {
        const QTextBlockFormat block = table->cellAt(1, column).firstCursorPosition().blockFormat();
        QCOMPARE(block.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(block.topMargin(), 0.0);
        QCOMPARE(block.bottomMargin(), 0.0);
    }
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("text"));
    model.setData(model.index(0, 0), int(Qt::AlignRight), Qt::TextAlignmentRole);
    const auto right = documentOf(&model);
    QCOMPARE(tableOf(*right)->cellAt(1, 0).firstCursorPosition().blockFormat().alignment(),
             Qt::AlignRight);
}

void PrintingTest::iconsAreThirtyTwoPixels()
{
    open(10);
    const auto document = documentOf(m_dialog->proxy);
    const QTextTable *table = tableOf(*document);
    for (int row = 1; row <= 10; ++row) {
        QVERIFY(fragmentOf(table->cellAt(row, kCommand), 0).charFormat().isImageFormat());
        const QTextImageFormat format =
            fragmentOf(table->cellAt(row, kCommand), 0).charFormat().toImageFormat();
        const auto image =
            document->resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
        QCOMPARE(image.size(), QSize(32, 32));
        QVERIFY(!image.allGray());
        QCOMPARE(textOf(table->cellAt(row, kCommand)).mid(1, 2), QStringLiteral("  "));
    }
    // The direction's icon if there is one, otherwise nothing.
    const int line = m_dialog->rowOf(QStringLiteral("Line"));
    QVERIFY(fragmentOf(table->cellAt(line + 1, kDirection), 0).charFormat().isImageFormat());
    const auto unbound = static_cast<int>(m_dialog->shownDirections().indexOf(0));
    QVERIFY(unbound >= 0);
    QCOMPARE(textOf(table->cellAt(unbound + 1, kDirection)), QString());
}

void PrintingTest::aSmallerIconIsCentred()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    QStandardItemModel model(1, 1);
    model.setItem(0, new QStandardItem(QIcon(pixmap), QStringLiteral("Line")));
    mallopt(M_PERTURB, 0x55); // no memory is empty by chance
    const auto document = documentOf(&model);
    mallopt(M_PERTURB, 0);
    const QString name =
        fragmentOf(tableOf(*document)->cellAt(1, 0), 0).charFormat().toImageFormat().name();
    const auto image = document->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    QImage expected(32, 32, image.format());
    expected.fill(Qt::transparent);
    QPainter(&expected).fillRect(8, 8, 16, 16, Qt::red);
    QCOMPARE(image, expected);
}

void PrintingTest::textIsNeverRendered_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << QStringLiteral("<h1>Line</h1><img src=\"/etc/hostname\">&amp;");
    QTest::newRow("right to left") << QString::fromUtf8("ارسم خطًا (Line) شريط");
    QTest::newRow("empty") << QString();
    QTest::newRow("line breaks") << QStringLiteral("first\nsecond\r\nthird\u2028fourth\u2029fifth");
    QTest::newRow("frame marks") << QString::fromUtf8("a\ufdd0b\ufdd1c");
    QTest::newRow("object placeholder") << QString(3, QChar(QChar::ObjectReplacementCharacter));
    QTest::newRow("null characters") << QString::fromLatin1("a\0b", 3);
    QTest::newRow("half a character") << QString(QChar(0xd83d));
    QTest::newRow("enormous") << QString(100000, QLatin1Char('W'));
}

void PrintingTest::textIsNeverRendered()
{
    QFETCH(QString, text);
    m_host->commands.addCommand(QStringLiteral("ID_BAD"), QStringLiteral("bad"), text, text);
    open(3);
    const int row = m_dialog->rowOf(text) + 1;
    QVERIFY(row > 0);
    const auto document = documentOf(m_dialog->proxy);
    const QTextTable *table = tableOf(*document);
    QVERIFY(table);
    QCOMPARE(table->rows(), 5);
    QCOMPARE(table->columns(), 3);
    if (QLatin1String(QTest::currentDataTag()) == QLatin1String("markup")) {
        QCOMPARE(textOf(table->cellAt(row, kCommand)), text);
        printToFile();
        QVERIFY(wordsOf(m_file).join(QString()).contains(QString(text).remove(QLatin1Char(' '))));
    } else {
        printToFile();
    }
    QVERIFY(pagesOf(m_file) >= 1);
}

void PrintingTest::modelsWithoutATable()
{
    QStandardItemModel empty;
    QVERIFY(!tableOf(*documentOf(&empty)));
    QVERIFY(documentOf(&empty)->isEmpty());
    QVERIFY(documentOf(nullptr)->isEmpty());
    QStandardItemModel rowsOnly;
    rowsOnly.setRowCount(3);
    QVERIFY(!tableOf(*documentOf(&rowsOnly)));
}

void PrintingTest::belongsToTheCaller()
{
    QStandardItemModel model(1, 1);
    QPointer<QTextDocument> document = createBindingListDocument(&model);
    QCOMPARE(document->parent(), nullptr);
    delete document;
    QVERIFY(!document);
}

void PrintingTest::aDocumentWithoutATablePrintsNothing()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_file);
    printBindingList(QTextDocument(QStringLiteral("text")), printer);
    QCOMPARE(wordsOf(m_file), QStringList(QString()));
}

void PrintingTest::printsWhatTheTableShows()
{
    open(60);
    printToFile();
    const QStringList words = wordsOf(m_file);
    QCOMPARE(words.mid(0, 3), QStringList({QStringLiteral("Category"), QStringLiteral("Command"),
                                           QStringLiteral("Select")}));
    const QString all = words.join(QLatin1Char(' '));
    for (int row = 0; row < m_dialog->proxy->rowCount(); ++row) {
        const QString line = m_dialog->shown(0).at(row) + QLatin1Char(' ') + m_dialog->shown().at(row);
        QVERIFY2(all.contains(line), qPrintable(line));
    }
    QVERIFY(pagesOf(m_file) > 1);
}

void PrintingTest::everyPageHasWholeRowsBelowTheHeader_data()
{
    QTest::addColumn<int>("commands");
    QTest::addColumn<int>("longNames");
    QTest::newRow("one page") << 8 << 0;
    QTest::newRow("some pages") << 200 << 0;
    QTest::newRow("names of several lines") << 100 << 60;
}

void PrintingTest::everyPageHasWholeRowsBelowTheHeader()
{
    QFETCH(int, commands);
    QFETCH(int, longNames);
    for (int number = 0; number < longNames; ++number) {
        const QString name = QStringLiteral("word%1 ").arg(number).repeated(5 + number % 40).trimmed();
        m_host->commands.addCommand(QStringLiteral("L%1").arg(number), QStringLiteral("l"), name);
    }
    open(commands);
    printToFile();
    const int pages = pagesOf(m_file);
    QCOMPARE(pages > 1, commands > 10);
    int row = 0;
    int rowsOfTheFirst = 0;
    for (int page = 1; page <= pages; ++page) {
        const QString number = QString::number(page);
        QStringList words =
            run(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), QStringLiteral("-f"), number,
                                              QStringLiteral("-l"), number, m_file, QStringLiteral("-")})
                .normalized(QString::NormalizationForm_KC)
                .simplified()
                .split(QLatin1Char(' '));
        QCOMPARE(words.mid(0, 3), QStringList({QStringLiteral("Category"), QStringLiteral("Command"),
                                               QStringLiteral("Select")}));
        QCOMPARE(words.takeLast(), number);
        // Between header and page number there are whole rows only.
        words = words.mid(3);
        words.sort();
        QStringList expected;
        while (row < m_dialog->proxy->rowCount() && expected.size() < words.size()) {
            expected += m_dialog->shown(0).at(row).split(QLatin1Char(' '));
            expected += m_dialog->shown().at(row).split(QLatin1Char(' '));
            ++row;
        }
        expected.sort();
        QCOMPARE(words, expected);
        if (page == 1)
            rowsOfTheFirst = row;
        else if (longNames == 0 && page < pages)
            QCOMPARE(row, page * rowsOfTheFirst); // no page has room for another row
    }
    QCOMPARE(row, m_dialog->proxy->rowCount());
}

// In any column. Each page has the header and whole rows only.
void PrintingTest::aRowIsAsHighAsItsHighestCell()
{
    constexpr int kRows = 60;
    for (const int highest : {0, 1}) {
        QStandardItemModel model(kRows, 2);
        const auto text = [](const QString &name) {
            return QStringList{name + QLatin1Char('a'), name + QLatin1Char('b'), name + QLatin1Char('c'),
                               name + QLatin1Char('d')};
        };
        QStringList expected;
        model.setHorizontalHeaderLabels({QStringLiteral("left"), QStringLiteral("right")});
        model.setHeaderData(highest, Qt::Horizontal, text(QStringLiteral("h")).join(QLatin1Char('\n')));
        for (int row = 0; row < kRows; ++row) {
            const QStringList lines = text(QStringLiteral("r%1").arg(row));
            expected += lines;
            model.setData(model.index(row, highest), lines.join(QLatin1Char('\n')));
            model.setData(model.index(row, 1 - highest), QStringLiteral("x"));
        }
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        printBindingList(*documentOf(&model), printer);
        const int pages = pagesOf(m_file);
        QVERIFY(pages > 1);
        QStringList words = wordsOf(m_file);
        const QStringList header = text(QStringLiteral("h"));
        for (const QString &line : header)
            QCOMPARE(words.count(line), pages);
        words = words.filter(QRegularExpression(QStringLiteral("^r\\d+[a-d]$")));
        QCOMPARE(words, expected);
    }
}

// Beside an icon, a line is as high as the icon.
void PrintingTest::cellsOfARowAlign()
{
    open(8);
    for (int number = 0; number < 4; ++number)
        m_host->commands.addCommand(QStringLiteral("P%1").arg(number), QStringLiteral("p"),
                                    QStringLiteral("plain%1").arg(number));
    MgDonutDataContainer::instance()->init();
    m_dialog->model->resetToDefault();
    printToFile();
    const QString page =
        run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), m_file, QStringLiteral("-")});
    struct Word
    {
        QString text;
        qreal left, middle;
    };
    QVector<Word> words;
    auto found = QRegularExpression(QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" "
                                                   "xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\">([^<]*)<"))
                     .globalMatch(page);
    while (found.hasNext()) {
        const QRegularExpressionMatch word = found.next();
        words.append({word.captured(4), word.captured(1).toDouble(),
                      (word.captured(2).toDouble() + word.captured(3).toDouble()) / 2});
    }
    // The words of the first column; every other word is in the line of one of them.
    QVERIFY(words.size() > 20);
    const qreal edge = words.front().left;
    QVector<qreal> lines;
    for (const Word &word : words) {
        if (std::abs(word.left - edge) < 1)
            lines.append(word.middle);
    }
    QCOMPARE(lines.size(), m_dialog->proxy->rowCount() + 1);
    words.removeLast(); // the page number
    for (const Word &word : words) {
        qreal nearest = 1000;
        for (const qreal line : lines)
            nearest = std::min(nearest, std::abs(line - word.middle));
        QVERIFY2(nearest < 1, qPrintable(QStringLiteral("%1: %2 points").arg(word.text).arg(nearest)));
    }
}

// In the font of the text beside it.
void PrintingTest::iconsAreCentredOnTheirText()
{
    QStandardItemModel model(1, 2);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("plain")));
    model.setItem(0, 1, new QStandardItem(tests::squareIcon(Qt::red), QStringLiteral("beside")));
    QFont font;
    font.setPointSize(16);
    for (int column = 0; column < 2; ++column)
        model.setData(model.index(0, column), font, Qt::FontRole);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_file);
    printBindingList(*documentOf(&model), printer);
    const QString page =
        run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), m_file, QStringLiteral("-")});
    const auto top = [&page](const QString &word) {
        const QRegularExpression place(QStringLiteral("yMin=\"([0-9.]+)\"[^>]*>%1</word>").arg(word));
        return place.match(page).captured(1).toDouble();
    };
    QVERIFY(top(QStringLiteral("plain")) > 0);
    const qreal apart = top(QStringLiteral("plain")) - top(QStringLiteral("beside"));
    QVERIFY2(std::abs(apart) < 1, qPrintable(QString::number(apart)));
}

// As Qt prints the pages of a text.
void PrintingTest::theNumberIsFivePointsBelowThePage()
{
    open(8);
    qreal bottom = 0; // of the text's area, in points
    qreal right = 0;
    m_dialog->printDialog = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        const qreal margin = 2 / 2.54 * 72;
        const QRectF paper = printer.pageLayout().paintRect(QPageLayout::Point);
        bottom = paper.bottom() - margin;
        right = paper.right() - margin;
        return static_cast<int>(QDialog::Accepted);
    };
    m_dialog->printList();
    const QString words =
        run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), m_file, QStringLiteral("-")});
    const QRegularExpression number(
        QStringLiteral("yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\"[^>]*>1</word>"));
    const QRegularExpressionMatch found = number.match(words);
    QVERIFY2(found.hasMatch(), qPrintable(words));
    const qreal gap = found.captured(1).toDouble() - bottom;
    QVERIFY2(std::abs(gap - 5) < 0.5, qPrintable(QString::number(gap)));
    const qreal beside = right - found.captured(2).toDouble();
    QVERIFY2(std::abs(beside) < 0.5, qPrintable(QString::number(beside)));
}

void PrintingTest::theTableFillsThePageInsideItsMargins()
{
    open(8);
    QRectF paper; // the printable part, in points
    m_dialog->printDialog = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        paper = printer.pageLayout().paintRect(QPageLayout::Point);
        return static_cast<int>(QDialog::Accepted);
    };
    m_dialog->printList();
    constexpr int kDpi = 300;
    const QString base = m_folder.filePath(QStringLiteral("page"));
    run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(kDpi), QStringLiteral("-png"),
                                     QStringLiteral("-singlefile"), m_file, base});
    const QImage page(base + QLatin1String(".png"));
    QVERIFY(!page.isNull());
    const QColor dark(0xdf, 0xdf, 0xdf); // the header
    const QColor grey(0xe1, 0xe1, 0xe1); // every other row

    // In pixels of the picture.
    const qreal point = kDpi / 72.0;
    const qreal margin = 2 / 2.54 * kDpi;
    const qreal spacing = 2 / 96.0 * kDpi;
    const QRectF body =
        QRectF(paper.topLeft() * point, paper.size() * point).adjusted(margin, margin, -margin, -margin);
    const auto isNear = [](qreal place, qreal expected) { return std::abs(place - expected) < 1.5; };

    const int inHeader = qRound(body.top()) + 3;
    int left = 0;
    while (left < page.width() && page.pixelColor(left, inHeader) != dark)
        ++left;
    int right = page.width();
    while (right > left && page.pixelColor(right - 1, inHeader) != dark)
        --right;
    QVERIFY2(isNear(left, body.left() + spacing), qPrintable(QString::number(left)));
    QVERIFY2(isNear(right, body.left() + 0.98 * body.width() - spacing), // the table has 98 %
             qPrintable(QString::number(right)));

    // Where the colours begin and end, down the left edge: header, second row, fourth row ...
    QVector<int> edges;
    for (int y = 1; y < page.height(); ++y) {
        const auto isRow = [&](int line) {
            const QColor colour = page.pixelColor(left + 2, line);
            return colour == dark || colour == grey;
        };
        if (isRow(y) != isRow(y - 1))
            edges.append(y);
    }
    QCOMPARE(edges.size(), 2 * (1 + m_dialog->proxy->rowCount() / 2));
    QVERIFY2(isNear(edges.at(0), body.top()), qPrintable(QString::number(edges.at(0))));
    const int height = edges.at(3) - edges.at(2);
    for (int i = 2; i < edges.size(); i += 2) {
        QVERIFY(isNear(edges.at(i + 1) - edges.at(i), height));
        QVERIFY(isNear(edges.at(i) - edges.at(i - 1), height + 2 * spacing)); // a white row is between
    }
}

void PrintingTest::chosenPagesOnly()
{
    open(200);
    printToFile();
    const int pages = pagesOf(m_file);
    QVERIFY(pages > 3);
    const auto choose = [this](int first, int last) {
        m_dialog->printDialog = [this, first, last](QPrinter &printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(m_file);
            printer.setFromTo(first, last);
            return static_cast<int>(QDialog::Accepted);
        };
    };
    choose(2, 3);
    printToFile();
    QCOMPARE(pagesOf(m_file), 2);
    QCOMPARE(wordsOf(m_file).constLast(), QStringLiteral("3"));
    choose(1, 1);
    printToFile();
    QCOMPARE(pagesOf(m_file), 1);
    QCOMPARE(wordsOf(m_file).constLast(), QStringLiteral("1"));
}

void PrintingTest::lastPageFirst()
{
    open(100);
    m_dialog->printDialog = [this](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        printer.setPageOrder(QPrinter::LastPageFirst);
        return static_cast<int>(QDialog::Accepted);
    };
    printToFile();
    const int pages = pagesOf(m_file);
    QVERIFY(pages > 2);
    for (int page = 1; page <= pages; ++page) {
        const QString number = QString::number(page);
        const QString text = run(QStringLiteral("pdftotext"),
                                 {QStringLiteral("-raw"), QStringLiteral("-f"), number,
                                  QStringLiteral("-l"), number, m_file, QStringLiteral("-")});
        QCOMPARE(text.simplified().split(QLatin1Char(' ')).constLast(),
                 QString::number(pages + 1 - page));
    }
}

// A program in light letters on dark ground still prints dark ones.
void PrintingTest::textIsBlackInADarkProgram()
{
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    const auto restore = qScopeGuard([&before] { QApplication::setPalette(before); });
    QStandardItemModel model(1, 1);
    model.setHorizontalHeaderLabels({QStringLiteral(" ")});
    model.setData(model.index(0, 0), QString(8, QChar(0x2588))); // full blocks
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_file);
    printBindingList(*documentOf(&model), printer);
    const QString base = m_folder.filePath(QStringLiteral("dark"));
    run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-png"),
                                     QStringLiteral("-singlefile"), m_file, base});
    const QImage page(base + QLatin1String(".png"));
    QVERIFY(!page.isNull());
    int black = 0;
    for (int y = 0; y < page.height() / 2; ++y) {
        for (int x = 0; x < page.width(); ++x)
            black += page.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
    }
    QVERIFY2(black > 100, qPrintable(QString::number(black)));
}

void PrintingTest::fileHasATitle()
{
    open(10);
    printToFile();
    const QString info = run(QStringLiteral("pdfinfo"), {m_file}).simplified();
    QVERIFY2(info.contains(QLatin1String("Title: Mouse Gestures")), qPrintable(info));
}

void PrintingTest::iconsArePrintedAsTheyAreWhenOff()
{
    QPixmap pixmap(32, 32);
    QIcon icon;
    for (const bool on : {true, false}) {
        pixmap.fill(on ? Qt::red : Qt::green);
        icon.addPixmap(pixmap, QIcon::Normal, on ? QIcon::On : QIcon::Off);
        pixmap.fill(Qt::blue);
        icon.addPixmap(pixmap, QIcon::Disabled, on ? QIcon::On : QIcon::Off);
        icon.addPixmap(pixmap, QIcon::Selected, on ? QIcon::On : QIcon::Off);
    }
    QStandardItemModel model(1, 1);
    model.setItem(0, 0, new QStandardItem(icon, QStringLiteral("text")));
    const auto document = documentOf(&model);
    const QTextImageFormat format =
        fragmentOf(tableOf(*document)->cellAt(1, 0), 0).charFormat().toImageFormat();
    const auto image =
        document->resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
    QCOMPARE(image.pixelColor(16, 16), QColor(Qt::green));
}

// The colours of a printed page: the header, both kinds of rows, an icon and an arrow.
void PrintingTest::printedPagesLook()
{
    open(8);
    m_dialog->ui.command_tableView->sortByColumn(kDirection, Qt::AscendingOrder);
    printToFile();
    const QString base = m_folder.filePath(QStringLiteral("page"));
    run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-png"),
                                     QStringLiteral("-singlefile"), m_file, base});
    const QImage page(base + QLatin1String(".png"));
    QVERIFY(!page.isNull());
    QMap<QRgb, int> colors;
    bool arrow = false;
    bool icon = false;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor color = page.pixelColor(x, y);
            ++colors[color.rgb()];
            const bool strong = color.saturation() > 100 && color.value() > 150;
            icon = icon || (strong && x < page.width() * 2 / 3);
            arrow = arrow || (strong && x > page.width() * 2 / 3);
        }
    }
    QVERIFY(colors.value(qRgb(0xdf, 0xdf, 0xdf)) > 1000);
    QVERIFY(colors.value(qRgb(0xe1, 0xe1, 0xe1)) > 10000);
    QVERIFY(colors.value(qRgb(0xff, 0xff, 0xff)) > 10000);
    QVERIFY(icon);
    QVERIFY(arrow);
}

// As when somebody removes the job, or the disk is full.
void PrintingTest::aPrinterThatGivesUpIsAskedOnce()
{
    open(100);
    GivingUpPrinter printer(m_file);
    printBindingList(*documentOf(m_dialog->proxy), printer);
    QCOMPARE(printer.pagesAskedFor, 1);
}

void PrintingTest::cancelledPrintsNothing()
{
    open(10);
    int asked = 0;
    m_dialog->printDialog = [&asked, this](QPrinter &printer) {
        ++asked;
        printer.setOutputFileName(m_file);
        return static_cast<int>(QDialog::Rejected);
    };
    m_dialog->ui.search_lineEdit->setText(QStringLiteral("line"));
    const QStringList shown = m_dialog->shown();
    tests::click(m_dialog->ui.print_pushButton);
    QCOMPARE(asked, 1);
    QVERIFY(!QFile::exists(m_file));
    // The dialog's state is unchanged.
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->ui.search_lineEdit->text(), QStringLiteral("line"));
    QCOMPARE(m_dialog->shown(), shown);
    QVERIFY(!shown.isEmpty());
}

void PrintingTest::realPrintDialog_data()
{
    QTest::addColumn<bool>("printed");
    QTest::newRow("cancelled") << false;
    QTest::newRow("to a file") << true;
}

// Opens Qt's own dialog. The machine may have no printer.
void PrintingTest::realPrintDialog()
{
    QFETCH(bool, printed);
    open(10);
    m_dialog->printDialog = nullptr;
    QFile::remove(m_file);
    int seen = 0;
    QTimer driver;
    connect(&driver, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (!dialog || seen > 0)
            return;
        ++seen;
        QCOMPARE(dialog->parentWidget(), m_dialog.get());
        QCOMPARE(dialog->printer()->printerState(), QPrinter::Idle);
        if (!printed) {
            dialog->reject();
            return;
        }
        dialog->printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog->printer()->setOutputFileName(m_file);
        dialog->done(QDialog::Accepted);
    });
    driver.start(1);
    tests::click(m_dialog->ui.print_pushButton);
    QCOMPARE(seen, 1);
    QVERIFY(!m_dialog->findChild<QDialog *>()); // none is left
    QCOMPARE(QFile::exists(m_file), printed);
    if (printed)
        QVERIFY(wordsOf(m_file).contains(QStringLiteral("Offset")));
}

void PrintingTest::everyPrintStartsAfresh()
{
    open(10);
    QStringList names;
    QList<int> resolutions;
    m_dialog->printDialog = [&](QPrinter &printer) {
        names.append(printer.outputFileName());
        resolutions.append(printer.resolution());
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_file);
        printer.setResolution(72);
        return static_cast<int>(QDialog::Accepted);
    };
    m_dialog->printList();
    m_dialog->printList();
    QCOMPARE(names, QStringList({QString(), QString()}));
    QCOMPARE(resolutions[0], resolutions[1]);
    QCOMPARE(resolutions[0], QPrinter(QPrinter::HighResolution).resolution());
}

// The leak checker finds a document that outlives its printing. This test sees that printing works
// more than once.
void PrintingTest::documentIsFreed()
{
    open(10);
    for (int print = 0; print < 20; ++print)
        m_dialog->printList();
    QCOMPARE(pagesOf(m_file), 1);
}

void PrintingTest::tenThousandCommands()
{
    open(10000);
    m_dialog->ui.command_tableView->sortByColumn(kCommand, Qt::AscendingOrder);
    printToFile();
    QVERIFY(pagesOf(m_file) > 100);
    const QStringList words = wordsOf(m_file);
    QVERIFY(words.count(QStringLiteral("Others")) >= 1000);
    const QString all = words.join(QLatin1Char(' '));
    QVERIFY(all.contains(m_dialog->shown().front()));
    QVERIFY(all.contains(m_dialog->shown().back()));
}

void PrintingTest::tableViewFillsTheArea()
{
    QStandardItemModel model(2, 2);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            model.setData(model.index(row, column), QColor::fromHsv(row * 180 + column * 60, 255, 255),
                          Qt::BackgroundRole);
        }
    }
    PrintTableView view;
    view.setModel(&model);
    view.horizontalHeader()->setMinimumSectionSize(1);
    view.verticalHeader()->setMinimumSectionSize(1);
    for (int section = 0; section < 2; ++section) {
        view.setColumnWidth(section, 50);
        view.setRowHeight(section, 25);
    }
    // Twice as wide and four times as high as the cells together.
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    view.printTable(&painter, QRect(QPoint(0, 0), QPoint(199, 199)));
    QCOMPARE(painter.transform().m11(), 2.0);
    QCOMPARE(painter.transform().m22(), 4.0);
    painter.end();
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column)
            QCOMPARE(image.pixelColor(50 + column * 100, 50 + row * 100).hue(), row * 180 + column * 60);
    }
    QVERIFY(image.pixelColor(2, 2) != QColor(Qt::black));
}

void PrintingTest::tableViewPaintsRowsThatAreScrolledAway()
{
    QStandardItemModel model(100, 1);
    for (int row = 0; row < 100; ++row)
        model.setData(model.index(row, 0), QColor::fromHsv(row * 3, 255, 255), Qt::BackgroundRole);
    PrintTableView view;
    view.resize(100, 60);
    view.setModel(&model);
    view.verticalHeader()->setMinimumSectionSize(1);
    view.verticalHeader()->setDefaultSectionSize(10);
    view.setColumnWidth(0, 50);
    QImage image(50, 1000, QImage::Format_RGB32);
    QPainter painter(&image);
    view.printTable(&painter, image.rect());
    painter.end();
    for (const int row : {0, 50, 99})
        QVERIFY(std::abs(image.pixelColor(25, row * 10 + 5).hue() - row * 3) <= 1);
}

void PrintingTest::tableViewPaintsEachCellOnce()
{
    class Delegate : public QStyledItemDelegate
    {
    public:
        mutable QStringList cells;
        void paint(QPainter *, const QStyleOptionViewItem &, const QModelIndex &index) const override
        {
            cells.append(QStringLiteral("%1,%2").arg(index.row()).arg(index.column()));
        }
    };
    QStandardItemModel model(2, 2);
    Delegate delegate;
    PrintTableView view;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    view.printTable(&painter, image.rect());
    QCOMPARE(delegate.cells.join(QLatin1Char(' ')), QStringLiteral("0,0 0,1 1,0 1,1"));
}

// The vertical scale stays infinite.
void PrintingTest::tableViewWithoutRows()
{
    QStandardItemModel model(0, 2);
    PrintTableView view;
    view.setModel(&model);
    view.setColumnWidth(0, 40);
    view.setColumnWidth(1, 60);
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::black);
    const QImage before = image;
    QPainter painter(&image);
    view.printTable(&painter, image.rect());
    QCOMPARE(painter.worldTransform().m11(), 2.0);
    QVERIFY(std::isinf(painter.worldTransform().m22()));
    painter.end();
    QCOMPARE(image, before);
}

void PrintingTest::tableViewWithoutModel()
{
    PrintTableView view;
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::black);
    const QImage before = image;
    QPainter painter(&image);
    view.printTable(&painter, image.rect());
    painter.end();
    QCOMPARE(image, before);
}

QTEST_MAIN(PrintingTest)
#include "tst_printing.moc"
