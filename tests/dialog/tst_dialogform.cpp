// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgDonutDataContainer.h"
#include "dialog/MyStyle.h"
#include "tests/dialog/DraftingCommands.h"
#include "tests/dialog/Input.h"
#include "tests/dialog/TestDialog.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/support/EmbeddedLanguage.h"
#include "tests/support/FakeTranslator.h"
#include "tests/support/FatalWarnings.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QHeaderView>
#include <QItemDelegate>
#include <QProxyStyle>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTest>

#include <algorithm>
#include <memory>

using tests::TestDialog;

namespace {

// The pixels that a drop-down has for its text.
int widthForText(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

} // namespace

// Most styles happen to have the form's spacing and margins.
class SpaciousStyle : public QProxyStyle
{
public:
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return 17;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

// A dialog with a slot that is named after a button of the form.
class DialogWithANamedSlot : public QDialog
{
    Q_OBJECT

public:
    int clicks = 0;

public Q_SLOTS:
    void on_print_pushButton_clicked() { ++clicks; }
};

// The dialog as it is built: its form, texts, sizes and owners.
class DialogFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void widgets_data();
    void widgets();
    void texts();
    void textsAreTranslatedInTheirContexts();
    void layouts_data();
    void layouts();
    void spacers_data();
    void spacers();
    void sizePolicies();
    void sizeForSmallTexts();
    void widthCannotBeChanged();
    void growsWithTheFontAndClipsNothing_data();
    void growsWithTheFontAndClipsNothing();
    void aLongTextWidensItUntilItFits_data();
    void aLongTextWidensItUntilItFits();
    void aLongNoneWidensItUntilItFits();
    void longMenuCaptionsDoNotWidenIt();
    void entriesOfTheDirectionListHaveRoom();
    void slotsAreConnectedByTheirNames();
    void windowFlags();
    void helpTopic();
    void buttonIcons();
    void table();
    void columnsAndRows();
    void directionIcons_data();
    void directionIcons();

    void categories();
    void categoriesWithGapsInTheMenus();
    void categoriesWithoutMenus();
    void everyControlHasAnAccessibleName();
    void tabReachesEveryControl();
    void labelsPointToTheirControls();
    void everythingDiesWithTheDialog();
    void thousandOpenings();

private:
    std::unique_ptr<tests::FakeHost> m_host;
    QFont m_font;
};

void DialogFormTest::initTestCase()
{
    tests::failOnWarnings();
    m_font = QApplication::font();
}

void DialogFormTest::init()
{
    tests::resetWarnings();
    m_host = std::make_unique<tests::FakeHost>();
    tests::addDraftingCommands(*m_host, 30, true);
    MgDonutDataContainer::instance()->init();
}

void DialogFormTest::cleanup()
{
    QApplication::setFont(m_font);
    m_host.reset();
    QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
}

void DialogFormTest::widgets_data()
{
    QTest::addColumn<QString>("className");
    const auto row = [](const char *name, const char *className) {
        QTest::newRow(name) << QString(QLatin1String(className));
    };
    row("category_label", "QLabel");
    row("category_comboBox", "QComboBox");
    row("filter_checkBox", "QCheckBox");
    row("search_label", "QLabel");
    row("search_lineEdit", "QLineEdit");
    row("enableGesture_checkBox", "QCheckBox");
    row("four_radioButton", "QRadioButton");
    row("eight_radioButton", "QRadioButton");
    row("reset_pushButton", "QPushButton");
    row("print_pushButton", "QPushButton");
    row("command_tableView", "MgCommandTableView");
    row("description_groupBox", "QGroupBox");
    row("description_label", "QLabel");
    row("buttonBox", "QDialogButtonBox");
}

void DialogFormTest::widgets()
{
    QFETCH(QString, className);
    const TestDialog dialog;
    const QString name = QLatin1String(QTest::currentDataTag());
    const auto found = dialog.findChildren<QWidget *>(name);
    QCOMPARE(found.size(), 1);
    QCOMPARE(QString(QLatin1String(found.front()->metaObject()->className())), className);
    const bool inBox = name == QLatin1String("description_label");
    QCOMPARE(found.front()->parentWidget(), inBox
                                                ? static_cast<QWidget *>(dialog.ui.description_groupBox)
                                                : static_cast<const QWidget *>(&dialog));
}

void DialogFormTest::texts()
{
    TestDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("MgDonutDialogManagerClass"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Mouse Gestures"));
    QCOMPARE(dialog.ui.category_label->text(), QStringLiteral("Category:"));
    QCOMPARE(dialog.ui.filter_checkBox->text(), QStringLiteral("Mouse Gesture assigned commands"));
    QCOMPARE(dialog.ui.search_label->text(), QStringLiteral("Search for:"));
    QCOMPARE(dialog.ui.enableGesture_checkBox->text(), QStringLiteral("Enable mouse gestures"));
    QCOMPARE(dialog.ui.four_radioButton->text(), QStringLiteral("4 Gestures"));
    QCOMPARE(dialog.ui.eight_radioButton->text(), QStringLiteral("8 Gestures"));
    QCOMPARE(dialog.ui.reset_pushButton->text(), QStringLiteral("Reset to Defaults"));
    QCOMPARE(dialog.ui.print_pushButton->text(), QStringLiteral("Print List"));
    QCOMPARE(dialog.ui.description_groupBox->title(), QStringLiteral("Description"));
    QCOMPARE(dialog.ui.description_label->text(), QString());
    QCOMPARE(dialog.ui.buttonBox->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);

    QDialog named;
    named.setObjectName(QStringLiteral("mine"));
    Ui::MgDonutDialogManagerClass form;
    form.setupUi(&named);
    QCOMPARE(named.objectName(), QStringLiteral("mine"));
}

void DialogFormTest::textsAreTranslatedInTheirContexts()
{
    tests::FakeTranslator translator;
    const QString other = QStringLiteral("in another language");
    const char *const formTexts[] = {"Mouse Gestures",
                                     "Category:",
                                     "Mouse Gesture assigned commands",
                                     "Search for:",
                                     "Enable mouse gestures",
                                     "4 Gestures",
                                     "8 Gestures",
                                     "Reset to Defaults",
                                     "Print List",
                                     "Description"};
    for (const char *text : formTexts)
        translator.add("MgDonutDialogManagerClass", text, other);
    translator.add("MgDonutDialogManager", "All Commands", QStringLiteral("all"));
    translator.add("MgDonutDialogManager", "None", QStringLiteral("none"));
    translator.add("MgDonutDialogManager", "Others", QStringLiteral("the dialog's own"));
    translator.add("QObject", "Others", QStringLiteral("others"));
    translator.add("MgCommandDSModel", "Category", QStringLiteral("column"));
    const QVector<QDialogButtonBox::StandardButton> buttons{
        QDialogButtonBox::Ok, QDialogButtonBox::Cancel, QDialogButtonBox::Help};
    const QStringList buttonTexts{QStringLiteral("agreed"), QStringLiteral("never"),
                                  QStringLiteral("what")};
    translator.add("MgDonutDialogManager", "OK", buttonTexts.at(0));
    translator.add("MgDonutDialogManager", "Cancel", buttonTexts.at(1));
    translator.add("MgDonutDialogManager", "Help", buttonTexts.at(2));
    const TestDialog dialog;
    QCOMPARE(dialog.windowTitle(), other);
    QCOMPARE(dialog.ui.category_label->text(), other);
    QCOMPARE(dialog.ui.filter_checkBox->text(), other);
    QCOMPARE(dialog.ui.search_label->text(), other);
    QCOMPARE(dialog.ui.enableGesture_checkBox->text(), other);
    QCOMPARE(dialog.ui.four_radioButton->text(), other);
    QCOMPARE(dialog.ui.eight_radioButton->text(), other);
    QCOMPARE(dialog.ui.reset_pushButton->text(), other);
    QCOMPARE(dialog.ui.print_pushButton->text(), other);
    QCOMPARE(dialog.ui.description_groupBox->title(), other);
    const QComboBox *categories = dialog.ui.category_comboBox;
    QCOMPARE(categories->itemText(0), QStringLiteral("all"));
    QCOMPARE(categories->itemText(categories->count() - 1), QStringLiteral("others"));
    QCOMPARE(dialog.directionList.item(0)->text(), QStringLiteral("none"));
    QCOMPARE(dialog.proxy->headerData(0, Qt::Horizontal).toString(), QStringLiteral("column"));
    for (int i = 0; i < buttons.size(); ++i)
        QCOMPARE(dialog.button(buttons.at(i))->text(), buttonTexts.at(i));
}

void DialogFormTest::layouts_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char *name, const char *className, const QString &items) {
        QTest::newRow(name) << QString(QLatin1String(className)) << items.split(QLatin1Char(' '));
    };
    row("verticalLayout_5", "QVBoxLayout",
        QStringLiteral("verticalLayout_4 command_tableView description_groupBox horizontalLayout_6"));
    row("verticalLayout_4", "QVBoxLayout", QStringLiteral("horizontalLayout_8 horizontalLayout_4"));
    row("horizontalLayout_8", "QHBoxLayout", QStringLiteral("verticalLayout_2 verticalLayout_3"));
    row("verticalLayout_2", "QVBoxLayout",
        QStringLiteral("horizontalLayout_5 filter_checkBox horizontalLayout_7"));
    row("horizontalLayout_5", "QHBoxLayout", QStringLiteral("category_label category_comboBox"));
    row("horizontalLayout_7", "QHBoxLayout", QStringLiteral("search_label search_lineEdit"));
    row("verticalLayout_3", "QVBoxLayout", QStringLiteral("horizontalLayout_3 horizontalLayout_2"));
    row("horizontalLayout_3", "QHBoxLayout", QStringLiteral("spacer enableGesture_checkBox"));
    row("horizontalLayout_2", "QHBoxLayout", QStringLiteral("spacer verticalLayout spacer"));
    row("verticalLayout", "QVBoxLayout", QStringLiteral("four_radioButton eight_radioButton"));
    row("horizontalLayout_4", "QHBoxLayout", QStringLiteral("spacer horizontalLayout"));
    row("horizontalLayout", "QHBoxLayout", QStringLiteral("reset_pushButton print_pushButton"));
    row("horizontalLayout_6", "QHBoxLayout", QStringLiteral("spacer buttonBox"));
}

void DialogFormTest::layouts()
{
    QFETCH(QString, className);
    QFETCH(QStringList, items);
    SpaciousStyle style;
    TestDialog dialog;
    dialog.setStyle(&style);
    const QString name = QLatin1String(QTest::currentDataTag());
    const auto *layout = dialog.findChild<QBoxLayout *>(name);
    QVERIFY(layout);
    QCOMPARE(QString(QLatin1String(layout->metaObject()->className())), className);
    QStringList names;
    for (int place = 0; place < layout->count(); ++place) {
        QLayoutItem *item = layout->itemAt(place);
        names.append(item->widget()   ? item->widget()->objectName()
                     : item->layout() ? item->layout()->objectName()
                                      : QStringLiteral("spacer"));
    }
    QCOMPARE(names, items);
    QCOMPARE(layout->spacing(), 6);
    const bool outer = name == QLatin1String("verticalLayout_5");
    QCOMPARE(layout->contentsMargins(), outer ? QMargins(11, 11, 11, 11) : QMargins());
    QCOMPARE(dialog.layout() == layout, outer);
    if (name == QLatin1String("verticalLayout_4"))
        QCOMPARE(layout->sizeConstraint(), QLayout::SetFixedSize);
}

void DialogFormTest::spacers_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QSize>("size");
    QTest::newRow("horizontalLayout_3") << 0 << QSize(38, 20);
    QTest::newRow("horizontalLayout_2") << 0 << QSize(58, 20);
    QTest::newRow("horizontalLayout_2 ") << 2 << QSize(18, 45);
    QTest::newRow("horizontalLayout_4") << 0 << QSize(188, 17);
    QTest::newRow("horizontalLayout_6") << 0 << QSize(228, 20);
}

void DialogFormTest::spacers()
{
    QFETCH(int, place);
    QFETCH(QSize, size);
    const TestDialog dialog;
    const auto *layout =
        dialog.findChild<QBoxLayout *>(QString(QLatin1String(QTest::currentDataTag())).trimmed());
    const QSpacerItem *spacer = layout->itemAt(place)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), size);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void DialogFormTest::sizePolicies()
{
    const TestDialog dialog;
    const QSizePolicy category = dialog.ui.category_comboBox->sizePolicy();
    QCOMPARE(category.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(category.verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(category.verticalStretch(), 1);
    const QSizePolicy table = dialog.ui.command_tableView->sizePolicy();
    QCOMPARE(table.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(table.verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(table.horizontalStretch(), 1);
    QCOMPARE(table.verticalStretch(), 1);
    QVERIFY(!dialog.ui.command_tableView->wordWrap());
    const QSizePolicy box = dialog.ui.description_groupBox->sizePolicy();
    QCOMPARE(box.horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(box.verticalPolicy(), QSizePolicy::Fixed);
    QVERIFY(dialog.ui.description_label->wordWrap());
    QCOMPARE(dialog.ui.description_label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(dialog.ui.description_label->textFormat(), Qt::PlainText);
    // The text begins below the frame of its box.
    QCOMPARE(dialog.ui.description_label->contentsMargins(), QMargins(0, 4, 0, 0));
}

// Uses a font as small as the form was designed for.
void DialogFormTest::sizeForSmallTexts()
{
    QFont small = m_font;
    small.setPixelSize(9);
    QApplication::setFont(small);
    TestDialog dialog;
    QCOMPARE(dialog.size(), QSize(414, 576));
    QCOMPARE(dialog.minimumWidth(), 414);
    QCOMPARE(dialog.maximumWidth(), 414);
    QCOMPARE(dialog.ui.description_groupBox->minimumSize(), QSize(396, 91));
    QCOMPARE(dialog.ui.description_label->geometry(), QRect(10, 20, 371, 61));
    QVERIFY(tests::showActive(dialog));
    QCOMPARE(dialog.size(), QSize(414, 576));
}

void DialogFormTest::widthCannotBeChanged()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    const int width = dialog.width();
    QCOMPARE(dialog.minimumWidth(), width);
    QCOMPARE(dialog.maximumWidth(), width);
    dialog.resize(width + 300, 700);
    QCOMPARE(dialog.size(), QSize(width, 700));
    dialog.resize(10, 700);
    QCOMPARE(dialog.size(), QSize(width, 700));
}

void DialogFormTest::growsWithTheFontAndClipsNothing_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pixels");
    for (const int pixels : {8, 10, 12, 15, 20, 26, 32, 39})
        QTest::addRow("%d pixels", pixels) << QStringLiteral("en") << pixels;
    // From 100 to 300 % of a usual font.
    for (const char *language : tests::kLanguages) {
        for (const int pixels : {13, 16, 20, 26, 39})
            QTest::addRow("%s, %d pixels", language, pixels) << QString::fromLatin1(language) << pixels;
    }
}

void DialogFormTest::growsWithTheFontAndClipsNothing()
{
    QFETCH(QString, language);
    QFETCH(int, pixels);
    const tests::EmbeddedLanguage embedded(QStringLiteral("module"), language);
    QCOMPARE(embedded.isLoaded(), language != QLatin1String("en"));
    QFont font = m_font;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    QVERIFY(dialog.width() >= 414);
    const QWidget *const controls[] = {dialog.ui.category_label,
                                       dialog.ui.filter_checkBox,
                                       dialog.ui.search_label,
                                       dialog.ui.category_comboBox,
                                       dialog.ui.four_radioButton,
                                       dialog.ui.eight_radioButton,
                                       dialog.ui.reset_pushButton,
                                       dialog.ui.print_pushButton,
                                       dialog.ui.enableGesture_checkBox,
                                       dialog.button(QDialogButtonBox::Ok),
                                       dialog.button(QDialogButtonBox::Cancel),
                                       dialog.button(QDialogButtonBox::Help)};
    for (const QWidget *control : controls) {
        const QString what = control->objectName() + QLatin1Char(' ') + QString::number(control->width())
                           + QLatin1String(" of ") + QString::number(control->minimumSizeHint().width());
        QVERIFY2(control->width() >= control->minimumSizeHint().width(), qPrintable(what));
        QVERIFY2(control->height() >= control->minimumSizeHint().height(), qPrintable(what));
        const QRect inDialog(control->mapTo(&dialog, QPoint()), control->size());
        QVERIFY2(dialog.rect().contains(inDialog), qPrintable(what));
    }
    // Row heights follow the font as well.
    const MgCommandTableView *table = dialog.ui.command_tableView;
    QCOMPARE(table->rowHeight(0), table->fontMetrics().height() + 8);
    QVERIFY(dialog.ui.description_groupBox->geometry().right() < dialog.width());
    const QGroupBox *box = dialog.ui.description_groupBox;
    const QLabel *label = dialog.ui.description_label;
    QVERIFY(box->rect().contains(label->geometry()));
    // The label fills its box below the title and has room for three lines.
    QCOMPARE(box->width() - label->width(), 396 - 371);
    const int line = dialog.fontMetrics().height();
    QCOMPARE(label->y(), std::max(20, line + 2));
    QCOMPARE(label->height(), std::max(61, 3 * line + 4));
    QCOMPARE(box->minimumHeight(), label->geometry().bottom() + 11);
    // No header and no usual category is elided.
    for (int column = 0; column < 3; ++column) {
        const QString header = dialog.proxy->headerData(column, Qt::Horizontal).toString();
        const auto headerFont =
            dialog.proxy->headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>();
        const int margin = table->style()->pixelMetric(QStyle::PM_HeaderMargin);
        const int needed = QFontMetrics(headerFont).horizontalAdvance(header) + 2 * margin;
        QVERIFY2(
            table->columnWidth(column) >= needed,
            qPrintable(
                QStringLiteral("%1: %2 of %3").arg(header).arg(table->columnWidth(column)).arg(needed)));
    }
    // The drop-down of a direction shows its text whole.
    tests::click(dialog.ui.command_tableView, dialog.cell(0, tests::kDirection));
    const QComboBox *editor = dialog.editor();
    QVERIFY(editor);
    const int inside = widthForText(*editor);
    const int none = editor->fontMetrics().horizontalAdvance(dialog.directionList.item(0)->text());
    QVERIFY2(inside >= none, qPrintable(QStringLiteral("%1 of %2").arg(inside).arg(none)));
    QVERIFY(editor->height() >= editor->fontMetrics().height());
    int category = 0;
    const QStringList shown = dialog.shown(0);
    for (const QString &text : shown)
        category = std::max(category, table->fontMetrics().horizontalAdvance(text) + 8);
    QVERIFY2(table->columnWidth(0) >= category,
             qPrintable(QStringLiteral("%1 of %2").arg(table->columnWidth(0)).arg(category)));
}

void DialogFormTest::aLongTextWidensItUntilItFits_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("layout");
    QTest::newRow("check box") << QStringLiteral("MgDonutDialogManagerClass")
                               << QStringLiteral("Enable mouse gestures")
                               << QStringLiteral("verticalLayout_4");
    QTest::newRow("button") << QStringLiteral("MgDonutDialogManager") << QStringLiteral("Help")
                            << QStringLiteral("horizontalLayout_6");
}

void DialogFormTest::aLongTextWidensItUntilItFits()
{
    QFETCH(QString, context);
    QFETCH(QString, text);
    QFETCH(QString, layout);
    tests::FakeTranslator translator;
    translator.add(qPrintable(context), qPrintable(text), QString(150, QLatin1Char('W')));
    TestDialog dialog;
    const int needed = dialog.findChild<QLayout *>(layout)->minimumSize().width();
    QVERIFY(needed > 1000);
    QCOMPARE(dialog.width(), needed + 2 * 11);
    QCOMPARE(dialog.minimumWidth(), dialog.width());
    QCOMPARE(dialog.maximumWidth(), dialog.width());
    // The description and the columns grow with it.
    QCOMPARE(dialog.ui.description_groupBox->minimumWidth(), needed);
    QCOMPARE(dialog.ui.description_label->width(), needed - (396 - 371));
    const QTableView plain;
    QCOMPARE(dialog.ui.command_tableView->horizontalHeader()->defaultSectionSize(),
             plain.horizontalHeader()->defaultSectionSize() * dialog.width() / 414);
    // The label keeps its width, the box beside it takes the rest.
    QVERIFY(tests::showActive(dialog));
    QCOMPARE(dialog.ui.category_label->width(), dialog.ui.category_label->sizeHint().width());
}

// "None" is the longest text of a direction's drop-down.
void DialogFormTest::aLongNoneWidensItUntilItFits()
{
    tests::FakeTranslator translator;
    translator.add("MgDonutDialogManager", "None", QString(30, QLatin1Char('W')));
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    QVERIFY(dialog.ui.command_tableView->verticalScrollBar()->isVisible());
    tests::click(dialog.ui.command_tableView, dialog.cell(0, tests::kDirection));
    const QComboBox *editor = dialog.editor();
    QVERIFY(editor);
    const int inside = widthForText(*editor);
    const int none = editor->fontMetrics().horizontalAdvance(dialog.directionList.item(0)->text());
    QCOMPARE(inside, none + 1); // of its margin of two pixels, the grid takes one
    QCOMPARE(dialog.ui.description_groupBox->minimumWidth(), dialog.width() - 2 * 11);
    QCOMPARE(dialog.ui.description_label->width(), dialog.width() - 2 * 11 - (396 - 371));
}

void DialogFormTest::longMenuCaptionsDoNotWidenIt()
{
    const int width = TestDialog().width();
    m_host->addTopLevelMenu(QString(5000, QLatin1Char('W')));
    TestDialog dialog;
    QCOMPARE(dialog.width(), width);
    QVERIFY(tests::showActive(dialog));
    QVERIFY(dialog.ui.enableGesture_checkBox->width()
            >= dialog.ui.enableGesture_checkBox->minimumSizeHint().width());
    const QComboBox *categories = dialog.ui.category_comboBox;
    QCOMPARE(categories->itemText(6).size(), 5000);
    QVERIFY(categories->sizeHint().width() < width);
    QVERIFY(categories->mapTo(&dialog, QPoint(categories->width(), 0)).x() <= width - 11);
}

// Arrows alone would touch each other.
void DialogFormTest::entriesOfTheDirectionListHaveRoom()
{
    TestDialog dialog;
    const int height = dialog.fontMetrics().height() + 4;
    QVERIFY(!dialog.directionList.item(0)->sizeHint().isValid()); // a text has room
    for (int row = 1; row <= 8; ++row)
        QCOMPARE(dialog.directionList.item(row)->sizeHint(), QSize(height, height));
}

void DialogFormTest::slotsAreConnectedByTheirNames()
{
    DialogWithANamedSlot dialog;
    Ui::MgDonutDialogManagerClass form;
    form.setupUi(&dialog);
    form.print_pushButton->click();
    QCOMPARE(dialog.clicks, 1);
}

void DialogFormTest::windowFlags()
{
    const MgDonutDialogManager plain(nullptr, {});
    QVERIFY(!(plain.windowFlags() & Qt::WindowContextHelpButtonHint));
    QVERIFY(plain.windowFlags() & Qt::WindowTitleHint);
    QVERIFY(plain.windowFlags() & Qt::WindowSystemMenuHint);
    // The host's dialog adds a close button unless it is asked to keep the flags.
    QVERIFY(plain.windowFlags() & Qt::WindowCloseButtonHint);
    QVERIFY(plain.isWindow());

    QWidget parent;
    const MgDonutDialogManager kept(&parent, Qt::Tool);
    QCOMPARE(kept.parentWidget(), &parent);
    QVERIFY(!(kept.windowFlags() & Qt::WindowCloseButtonHint));
    QVERIFY(!(kept.windowFlags() & Qt::WindowContextHelpButtonHint));
}

void DialogFormTest::helpTopic()
{
    TestDialog dialog;
    QCOMPARE(dialog.GetHelpId(), 9000);
    QVERIFY(tests::showActive(dialog));
    tests::click(dialog.button(QDialogButtonBox::Help));
    QCOMPARE(m_host->log.startingWith(QStringLiteral("help")), QStringList(QStringLiteral("help 9000")));
    QVERIFY(dialog.isVisible());
}

void DialogFormTest::buttonIcons()
{
    const auto color = [](const QPushButton *button) {
        return button->icon().pixmap(16).toImage().pixelColor(8, 8);
    };
    {
        const TestDialog dialog;
        QCOMPARE(color(dialog.button(QDialogButtonBox::Ok)), QColor(QStringLiteral("#2e8b57")));
        QCOMPARE(color(dialog.button(QDialogButtonBox::Cancel)), QColor(QStringLiteral("#b22222")));
        QCOMPARE(color(dialog.button(QDialogButtonBox::Help)), QColor(QStringLiteral("#4169e1")));
    }
    // Without the host's images the buttons have the style's icons.
    Q_CLEANUP_RESOURCE(hosticons);
    const TestDialog dialog;
    QDialogButtonBox plain(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel, QDialogButtonBox::Help}) {
        QCOMPARE(dialog.button(which)->icon().pixmap(16).toImage(),
                 plain.button(which)->icon().pixmap(16).toImage());
    }
    Q_INIT_RESOURCE(hosticons);
}

void DialogFormTest::table()
{
    const TestDialog dialog;
    const MgCommandTableView *view = dialog.ui.command_tableView;
    QCOMPARE(view->model(), dialog.proxy);
    QCOMPARE(dialog.proxy->sourceModel(), dialog.model);
    QCOMPARE(view->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(view->editTriggers(), QAbstractItemView::AllEditTriggers);
    QVERIFY(view->isSortingEnabled());
    QCOMPARE(dialog.proxy->sortColumn(), 0);
    QCOMPARE(dialog.proxy->sortOrder(), Qt::AscendingOrder);
    QCOMPARE(view->horizontalHeader()->sortIndicatorSection(), 0);
    QCOMPARE(view->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    QVERIFY(view->horizontalHeader()->stretchLastSection());
    for (int column = 0; column < 3; ++column)
        QCOMPARE(view->horizontalHeader()->sectionResizeMode(column), QHeaderView::Fixed);
    QCOMPARE(
        view->styleSheet(),
        QStringLiteral("*{selection-color:rgb(0,0,0);selection-background-color:rgb(220,220,220);}"));
    QCOMPARE(view->verticalHeader()->styleSheet(),
             QStringLiteral("QHeaderView::section {padding-bottom: 0px;padding-top: 0px;padding-left: "
                            "0px;padding-right: 0px;margin: 0px;}"));
    QStringList sorted = dialog.shown(0);
    sorted.sort();
    QCOMPARE(dialog.shown(0), sorted);
}

void DialogFormTest::columnsAndRows()
{
    TestDialog dialog;
    const MgCommandTableView *view = dialog.ui.command_tableView;
    const QHeaderView *header = view->horizontalHeader();
    QVERIFY(tests::showActive(dialog));
    QCOMPARE(view->columnWidth(0), header->defaultSectionSize());
    QCOMPARE(view->columnWidth(1), static_cast<int>(header->defaultSectionSize() * 2.1));
    // The column takes the remaining width.
    QCOMPARE(view->columnWidth(2),
             view->viewport()->width() - view->columnWidth(0) - view->columnWidth(1));
    QVERIFY(view->columnWidth(2) > 10);
    // By itself it would be as narrow as a column can be.
    dialog.ui.command_tableView->horizontalHeader()->setStretchLastSection(false);
    QVERIFY(header->minimumSectionSize() > 10);
    QCOMPARE(view->columnWidth(2), header->minimumSectionSize());
    QCOMPARE(view->verticalHeader()->defaultSectionSize(), view->fontMetrics().height() + 8);
}

void DialogFormTest::directionIcons_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("eight");
    QTest::addColumn<QString>("four");
    const char *const eight[] = {"",     "up",         "up_left", "left",    "down_left",
                                 "down", "down_right", "right",   "up_right"};
    const char *const four[] = {"", "up", "left", "down", "right"};
    for (int direction = 0; direction < 256; ++direction) {
        if (direction > 9 && direction != 128 && direction != 129 && direction != 255)
            continue;
        QTest::addRow("%d", direction)
            << direction << QString(QLatin1String(direction <= 8 ? eight[direction] : ""))
            << QString(QLatin1String(direction <= 4 ? four[direction] : ""));
    }
}

void DialogFormTest::directionIcons()
{
    QFETCH(int, direction);
    QFETCH(QString, eight);
    QFETCH(QString, four);
    TestDialog dialog;
    const auto imageOf = [](const QString &name) {
        return QImage(QStringLiteral(":/gesturewidgetimages/Resources/%1.png").arg(name));
    };
    for (const bool fourShown : {false, true}) {
        dialog.ui.four_radioButton->setChecked(fourShown);
        dialog.ui.eight_radioButton->setChecked(!fourShown);
        const QString expected = fourShown ? four : eight;
        // The scheme argument is ignored.
        for (const DonutScheme ignored : {TestDialog::Four, TestDialog::Eight}) {
            const QIcon icon = dialog.getDirectionIcon(static_cast<unsigned char>(direction), ignored);
            QCOMPARE(icon.isNull(), expected.isEmpty());
            if (expected.isEmpty())
                continue;
            const QImage image = imageOf(expected);
            QVERIFY(!image.isNull());
            QCOMPARE(icon.pixmap(image.size()).toImage().convertToFormat(QImage::Format_ARGB32),
                     image.convertToFormat(QImage::Format_ARGB32));
        }
    }
}

void DialogFormTest::categories()
{
    m_host->addTopLevelMenu(QStringLiteral("D&&imension"));
    m_host->addTopLevelMenu(QStringLiteral("&Draw"));
    const TestDialog dialog;
    QStringList items;
    for (int item = 0; item < dialog.ui.category_comboBox->count(); ++item)
        items.append(dialog.ui.category_comboBox->itemText(item));
    QCOMPARE(
        items,
        QStringList({QStringLiteral("All Commands"), QStringLiteral("File"), QStringLiteral("Edit"),
                     QStringLiteral("Draw"), QStringLiteral("Modify"), QStringLiteral("Tools"),
                     QStringLiteral("Dimension"), QStringLiteral("Draw"), QStringLiteral("Others")}));
    QCOMPARE(dialog.ui.category_comboBox->currentIndex(), 0);
}

void DialogFormTest::categoriesWithGapsInTheMenus()
{
    m_host->menuItems.items.push_back(nullptr);
    m_host->ui.addItem(&m_host->menuItems, QStringLiteral("no menus in it"), false);
    tests::FakeMenuItem *second = m_host->ui.addItem(&m_host->menuItems, QString(), true);
    second->subItems->items.push_back(nullptr);
    m_host->ui.addItem(second->subItems.get(), QStringLiteral("&Window"), true);
    const TestDialog dialog;
    QCOMPARE(dialog.ui.category_comboBox->count(), 8);
    QCOMPARE(dialog.ui.category_comboBox->itemText(6), QStringLiteral("Window"));
    QCOMPARE(dialog.ui.category_comboBox->itemText(7), QStringLiteral("Others"));
}

void DialogFormTest::categoriesWithoutMenus()
{
    const auto items = [] {
        const TestDialog dialog;
        QStringList texts;
        for (int item = 0; item < dialog.ui.category_comboBox->count(); ++item)
            texts.append(dialog.ui.category_comboBox->itemText(item));
        return texts;
    };
    // The categories of the commands, in their order.
    const QStringList used{QStringLiteral("All Commands"), QStringLiteral("Edit"),
                           QStringLiteral("File"),         QStringLiteral("Draw"),
                           QStringLiteral("Modify"),       QStringLiteral("Tools"),
                           QStringLiteral("Others")};
    m_host->hasMenuItems = false;
    QCOMPARE(items(), used);
    m_host->setPresent(false);
    QCOMPARE(items(), used);
    m_host->setPresent(true);
}

void DialogFormTest::everyControlHasAnAccessibleName()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    int controls = 0;
    const auto widgets = dialog.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
        ++controls;
    }
    QVERIFY(controls >= 12);
    QCOMPARE(QAccessible::queryAccessibleInterface(dialog.ui.command_tableView)->text(QAccessible::Name),
             QStringLiteral("Commands and their gestures"));
}

void DialogFormTest::tabReachesEveryControl()
{
    TestDialog dialog;
    QVERIFY(tests::showActive(dialog));
    dialog.ui.category_comboBox->setFocus();
    QList<QWidget *> visited;
    for (int step = 0; step < 30; ++step) {
        QWidget *focused = QApplication::focusWidget();
        if (visited.contains(focused))
            break;
        visited.append(focused);
        tests::key(&dialog, Qt::Key_Tab);
    }
    // Tab reaches one of the two radio buttons; the arrow keys reach the other.
    const QList<QWidget *> expected{dialog.ui.category_comboBox,
                                    dialog.ui.filter_checkBox,
                                    dialog.ui.search_lineEdit,
                                    dialog.ui.enableGesture_checkBox,
                                    dialog.ui.four_radioButton,
                                    dialog.ui.reset_pushButton,
                                    dialog.ui.print_pushButton,
                                    dialog.ui.command_tableView,
                                    dialog.button(QDialogButtonBox::Ok),
                                    dialog.button(QDialogButtonBox::Cancel),
                                    dialog.button(QDialogButtonBox::Help)};
    QStringList names;
    for (const QWidget *control : visited)
        names.append(control->objectName());
    for (QWidget *control : expected)
        QVERIFY2(visited.contains(control), qPrintable(names.join(QLatin1Char(' '))));
    QCOMPARE(visited.size(), expected.size());
    QCOMPARE(visited.mid(0, 8), expected.mid(0, 8));
    dialog.ui.four_radioButton->setFocus();
    tests::key(&dialog, Qt::Key_Down);
    QVERIFY(dialog.ui.eight_radioButton->hasFocus());
    tests::key(&dialog, Qt::Key_Up);
    QVERIFY(dialog.ui.four_radioButton->hasFocus());

    // The same from the cell that is being edited.
    dialog.ui.command_tableView->setFocus();
    dialog.ui.command_tableView->setCurrentIndex(dialog.cell(0, 2));
    QVERIFY(dialog.editor());
    int tabs = 0;
    while (!dialog.ui.buttonBox->isAncestorOf(QApplication::focusWidget()) && tabs < 5) {
        tests::key(&dialog, Qt::Key_Tab);
        ++tabs;
    }
    QVERIFY(dialog.ui.buttonBox->isAncestorOf(QApplication::focusWidget()));
}

void DialogFormTest::labelsPointToTheirControls()
{
    const TestDialog dialog;
    QCOMPARE(dialog.ui.category_label->buddy(), dialog.ui.category_comboBox);
    QCOMPARE(dialog.ui.search_label->buddy(), dialog.ui.search_lineEdit);
}

void DialogFormTest::everythingDiesWithTheDialog()
{
    auto dialog = std::make_unique<TestDialog>();
    QVERIFY(tests::showActive(*dialog));
    // An editor is open, which writes to the model when it loses the focus.
    tests::click(dialog->ui.command_tableView, dialog->cell(0, 2));
    QVERIFY(dialog->editor());
    QList<QPointer<QObject>> parts{dialog->model, dialog->proxy,
                                   dialog->ui.command_tableView->itemDelegate(), dialog->editor(),
                                   dialog->findChild<MyStyle *>()};
    for (const QPointer<QObject> &part : parts)
        QVERIFY(part);
    dialog.reset();
    for (const QPointer<QObject> &part : parts)
        QVERIFY(!part);
}

// The leak checker finds leaks. This test checks that no object stays alive.
void DialogFormTest::thousandOpenings()
{
    int deaths = 0;
    const auto note = [&deaths] { ++deaths; };
    const auto count = [this, &note](QObject *object) {
        connect(object, &QObject::destroyed, this, note);
    };
    const auto before = QApplication::allWidgets().size();
    for (int opening = 0; opening < 1000; ++opening) {
        TestDialog dialog;
        count(dialog.model);
        count(dialog.proxy);
        count(dialog.ui.command_tableView->itemDelegate());
        count(dialog.findChild<MyStyle *>());
        // Some of the dialogs are really used.
        if (opening % 50 == 0) {
            QVERIFY(tests::showActive(dialog));
            tests::click(dialog.ui.command_tableView, dialog.cell(3, 1));
            QVERIFY(dialog.editor());
            tests::key(&dialog, Qt::Key_Down);
            dialog.reject();
        }
    }
    QCOMPARE(deaths, 4000);
    QCOMPARE(QApplication::allWidgets().size(), before);
}

QTEST_MAIN(DialogFormTest)
#include "tst_dialogform.moc"
